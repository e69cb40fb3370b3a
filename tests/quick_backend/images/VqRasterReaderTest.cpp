#include "quick_backend/images/VqRasterReader.h"

#include "tests/quick_backend/images/ImageSamples.h"
#include "tests/support/PictureCompare.h"

#include <QtEndian>

#include <array>

namespace {

// The checksum of PNG, bit by bit.
quint32 checksum(const QByteArray& bytes)
{
    quint32 value = 0xFFFFFFFF;
    for (const char byte : bytes) {
        value ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            value = value & 1 ? value >> 1 ^ 0xEDB88320 : value >> 1;
    }
    return ~value;
}

// A small file that says of itself that it is so large.
QByteArray png_that_claims(quint32 width, quint32 height)
{
    QByteArray bytes = Encoded(SampleImage(3, 2), "png");
    qToBigEndian(width, bytes.data() + 16);
    qToBigEndian(height, bytes.data() + 20);
    qToBigEndian(checksum(bytes.sliced(12, 17)), bytes.data() + 29);
    return bytes;
}

}

TEST(VqRasterReader, PictureHasThePixelsOfTheFile)
{
    const QImage image = SampleImage(5, 3);

    EXPECT_TRUE(EqualPictures(VqReadRaster(Encoded(image, "png"), "png"), image));
    EXPECT_TRUE(EqualPictures(VqReadRaster(Encoded(image, "webp"), "webp"), image));
}

TEST(VqRasterReader, PictureIsTurnedUpright)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "jpeg");
    writer.setTransformation(QImageIOHandler::TransformationRotate90);
    EXPECT_TRUE(writer.write(SampleImage(5, 3)));

    EXPECT_EQ(VqReadRaster(bytes, "jpeg").size(), QSize(3, 5));
}

TEST(VqRasterReader, BadBytesGiveNoPicture)
{
    EXPECT_TRUE(VqReadRaster("\x89PNG\r\n\x1A\n", "png").isNull());
}

TEST(VqRasterReader, SizeThatCannotBeToldIsMinus9)
{
    EXPECT_EQ(VqCheckRasterSize("\x89PNG\r\n\x1A\n", "png"), -9);
}

TEST(VqRasterReader, SidesUpTo16384AreFine)
{
    EXPECT_EQ(VqCheckRasterSize(png_that_claims(16384, 1), "png"), 0);
    EXPECT_EQ(VqCheckRasterSize(png_that_claims(1, 16384), "png"), 0);
}

TEST(VqRasterReader, LongerSidesAreMinus3)
{
    EXPECT_EQ(VqCheckRasterSize(png_that_claims(16385, 1), "png"), -3);
    EXPECT_EQ(VqCheckRasterSize(png_that_claims(1, 16385), "png"), -3);
    EXPECT_EQ(VqCheckRasterSize(png_that_claims(1'000'000, 1'000'000), "png"), -3);
}

TEST(VqRasterReader, MoreMemoryThanQtAllowsIsMinus3)
{
    EXPECT_EQ(VqCheckRasterSize(png_that_claims(16384, 16384), "png"), -3);
}
