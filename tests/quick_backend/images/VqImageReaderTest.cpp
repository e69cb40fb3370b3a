#include "quick_backend/images/VqImageReader.h"

#include "tests/quick_backend/images/ImageSamples.h"
#include "tests/support/PictureCompare.h"

#include <QTemporaryDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

struct VqImageReaderTest : testing::Test
{
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    /// Code of a file with those bytes.
    int CodeOf(const QByteArray& bytes) const
    {
        WriteFile(Path(u"image"_s), bytes);
        const SVqReadImage read = VqReadImageFile(Path(u"image"_s));
        EXPECT_EQ(read.image == nullptr, read.code < 0);
        return read.code;
    }

    QTemporaryDir m_folder;
};

QImage drawn(const SVqReadImage& read)
{
    return read.image ? read.image->Draw(read.image->Size(), {}) : QImage();
}

}

TEST_F(VqImageReaderTest, FormatIsToldByTheContent)
{
    const QImage sample = SampleImage(5, 3);

    for (const char* format : {"png", "webp"}) {
        WriteFile(Path(u"image.svg"_s), Encoded(sample, format));
        EXPECT_TRUE(EqualPictures(drawn(VqReadImageFile(Path(u"image.svg"_s))), sample)) << format;
    }
}

TEST_F(VqImageReaderTest, JpegAndSvgAreRead)
{
    EXPECT_EQ(CodeOf(Encoded(SampleImage(5, 3), "jpeg")), 0);
    EXPECT_EQ(CodeOf(StencilSvg()), 0);
}

TEST_F(VqImageReaderTest, LargerFilesOfTheNameAreVariants)
{
    WriteFile(Path(u"a.png"_s), Encoded(Columns({0xFFFF0000}, 4, 4), "png"));
    WriteFile(Path(u"a@2x.png"_s), Encoded(Columns({0xFF00FF00}, 8, 8), "png"));
    WriteFile(Path(u"a@3x.png"_s), Encoded(Columns({0xFF0000FF}, 12, 12), "png"));

    const SVqReadImage read = VqReadImageFile(Path(u"a.png"_s));

    ASSERT_TRUE(read.image);
    EXPECT_EQ(read.image->Size(), QSize(4, 4));
    EXPECT_EQ(read.image->Draw({4, 4}, {}).pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(read.image->Draw({8, 8}, {}).pixelColor(0, 0), QColor(Qt::green));
    EXPECT_EQ(read.image->Draw({12, 12}, {}).pixelColor(0, 0), QColor(Qt::blue));
}

TEST_F(VqImageReaderTest, LargerFileThatIsNoGoodIsAsIfItWereNotThere)
{
    WriteFile(Path(u"a.png"_s), Encoded(Columns({0xFFFF0000}, 4, 4), "png"));
    WriteFile(Path(u"a@2x.png"_s), Encoded(Columns({0xFF00FF00}, 8, 8), "png").chopped(9));

    const SVqReadImage read = VqReadImageFile(Path(u"a.png"_s));

    ASSERT_TRUE(read.image);
    EXPECT_EQ(read.image->Draw({8, 8}, {}).pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(VqImageReaderTest, WhatIsNoFileIsMinus13)
{
    EXPECT_EQ(VqReadImageFile(Path(u"none.png"_s)).code, -13);
    EXPECT_EQ(VqReadImageFile(m_folder.path()).code, -13);
    EXPECT_EQ(VqReadImageFile(u"/dev/zero"_s).code, -13);
    EXPECT_EQ(VqReadImageFile(QString()).code, -13);
}

TEST_F(VqImageReaderTest, PipeIsMinus13)
{
    ASSERT_EQ(mkfifo(Path(u"pipe.png"_s).toLocal8Bit().constData(), 0600), 0);

    EXPECT_EQ(VqReadImageFile(Path(u"pipe.png"_s)).code, -13);
}

TEST_F(VqImageReaderTest, NoImageIsMinus9)
{
    EXPECT_EQ(CodeOf(""), -9);
    EXPECT_EQ(CodeOf("text"), -9);
    EXPECT_EQ(CodeOf("GIF89a\1\0\1\0\0\0\0;"), -9);
    EXPECT_EQ(CodeOf("<html/>"), -9);
}

TEST_F(VqImageReaderTest, CutFilesAreMinus9)
{
    for (const char* format : {"png", "jpeg", "webp"}) {
        const QByteArray bytes = Encoded(SampleImage(5, 3), format);
        for (qsizetype size = 0; size < bytes.size(); ++size)
            EXPECT_EQ(CodeOf(bytes.first(size)), -9) << format << ' ' << size;
    }
}

TEST_F(VqImageReaderTest, CutSvgIsMinus9)
{
    const QByteArray text = StencilSvg();
    for (qsizetype size = 0; size < text.size(); ++size)
        EXPECT_EQ(CodeOf(text.first(size)), -9) << size;
}

TEST_F(VqImageReaderTest, SvgWithAnOuterReferenceIsMinus9)
{
    EXPECT_EQ(CodeOf(Svg(2, 2, R"(<image href="http://127.0.0.1/a.png"/>)")), -9);
}

TEST_F(VqImageReaderTest, LongerSidesThan16384AreMinus3)
{
    EXPECT_EQ(CodeOf(Encoded(QImage(16385, 1, QImage::Format_Mono), "png")), -3);
    EXPECT_EQ(CodeOf(Svg(16385, 1, "<rect/>")), -3);
    EXPECT_EQ(CodeOf(Svg(1, 16385, "<rect/>")), -3);
}

TEST_F(VqImageReaderTest, SidesUpTo16384AreFine)
{
    QImage line(16384, 1, QImage::Format_Grayscale8);
    line.fill(Qt::white);

    EXPECT_EQ(CodeOf(Encoded(line, "png")), 0);
    EXPECT_EQ(CodeOf(Svg(16384, 1, "<rect/>")), 0);
}

TEST_F(VqImageReaderTest, FileOfEndlessBytesIsMinus3)
{
    QFile file(Path(u"endless.png"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(256 * 1024 * 1024 + 1)); // a hole, which takes no room on the disk

    EXPECT_EQ(VqReadImageFile(file.fileName()).code, -3);
}

TEST_F(VqImageReaderTest, PixmapIsReadAsItIs)
{
    const QImage sample = SampleImage(5, 3);
    QPixmap pixmap = QPixmap::fromImage(sample);
    pixmap.setDevicePixelRatio(2);

    EXPECT_TRUE(EqualPictures(drawn(VqReadPixmap(pixmap)), sample));
}

TEST_F(VqImageReaderTest, PixmapThatIsNoneOrTooLargeHasItsCode)
{
    EXPECT_EQ(VqReadPixmap(QPixmap()).code, -9);
    EXPECT_EQ(VqReadPixmap(QPixmap(16385, 1)).code, -3);
}
