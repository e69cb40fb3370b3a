#include "gallery/resize/ResizeImage.h"

#include "tests/gallery/resize/ImageFolder.h"

#include <QColorSpace>
#include <QScopeGuard>

using namespace Qt::StringLiterals;
using Gallery::ResizeImage;

namespace {

class ResizeImageTest : public testing::Test
{
protected:
    ResizeImageTest() { m_folder.MakeOut(); }

    /// Resizes `name` to `width` in its own format.
    QString Resize(const QString& name, int width)
    {
        return ResizeImage(m_folder.In(name), m_folder.Out(name), QFileInfo(name).suffix().toLatin1(), width);
    }

    QImage Result(const QString& name) const { return QImage(m_folder.Out(name)); }

    ImageFolder m_folder;
};

/// `jpeg` with the word of a camera that it was held on its side.
QByteArray turned(const QByteArray& jpeg)
{
    static const char segment[] = "\xFF\xE1\x00\x22"
                                  "Exif\0\0"
                                  "II\x2A\x00\x08\x00\x00\x00"
                                  "\x01\x00"
                                  "\x12\x01\x03\x00\x01\x00\x00\x00\x06\x00\x00\x00"
                                  "\x00\x00\x00\x00";
    return jpeg.first(2) + QByteArray(segment, sizeof segment - 1) + jpeg.sliced(2);
}

bool is_near(const QColor& color, const QColor& other)
{
    return qAbs(color.red() - other.red()) + qAbs(color.green() - other.green())
        + qAbs(color.blue() - other.blue())
        < 30;
}

}

TEST_F(ResizeImageTest, TheHeightKeepsItsProportion)
{
    m_folder.Image(u"a.png"_s, {200, 100});

    EXPECT_EQ(Resize(u"a.png"_s, 50), QString());
    EXPECT_EQ(Result(u"a.png"_s).size(), QSize(50, 25));
    EXPECT_EQ(Result(u"a.png"_s).pixelColor(5, 12), QColor(Qt::red));
    EXPECT_EQ(Result(u"a.png"_s).pixelColor(45, 12), QColor(Qt::blue));
}

TEST_F(ResizeImageTest, AFlatImageKeepsALine)
{
    m_folder.Image(u"a.png"_s, {400, 1});

    EXPECT_EQ(Resize(u"a.png"_s, 10), QString());
    EXPECT_EQ(Result(u"a.png"_s).size(), QSize(10, 1));
}

TEST_F(ResizeImageTest, AnImageThatIsNoWiderIsCopiedByteForByte)
{
    for (const QString& name : {u"a.jpg"_s, u"a.png"_s}) {
        const QString path = m_folder.Image(name, {50, 200});

        EXPECT_EQ(Resize(name, 50), QString());
        EXPECT_EQ(ImageFolder::Bytes(m_folder.Out(name)), ImageFolder::Bytes(path));
    }
}

TEST_F(ResizeImageTest, AnImageInAWronglyNamedFileGetsTheFormatOfTheName)
{
    m_folder.Write(u"a.jpg"_s, ImageBytes(RedAndBlue({20, 10}), "png"));

    EXPECT_EQ(Resize(u"a.jpg"_s, 50), QString());
    EXPECT_EQ(QImageReader::imageFormat(m_folder.Out(u"a.jpg"_s)), "jpeg");
    EXPECT_EQ(Result(u"a.jpg"_s).size(), QSize(20, 10));
}

TEST_F(ResizeImageTest, AnImageIsTurnedAsItsCameraTells)
{
    m_folder.Write(u"a.jpg"_s, turned(ImageBytes(RedAndBlue({320, 160}), "jpeg")));

    EXPECT_EQ(Resize(u"a.jpg"_s, 40), QString());
    const QImage result = Result(u"a.jpg"_s);
    EXPECT_EQ(result.size(), QSize(40, 80));
    EXPECT_TRUE(is_near(result.pixelColor(20, 10), Qt::red));
    EXPECT_TRUE(is_near(result.pixelColor(20, 70), Qt::blue));
}

TEST_F(ResizeImageTest, ItsWidthIsThatOfTheTurnedImage)
{
    const QString path = m_folder.Write(u"a.jpg"_s, turned(ImageBytes(RedAndBlue({320, 160}), "jpeg")));

    EXPECT_EQ(Resize(u"a.jpg"_s, 160), QString());
    EXPECT_EQ(ImageFolder::Bytes(m_folder.Out(u"a.jpg"_s)), ImageFolder::Bytes(path));
}

TEST_F(ResizeImageTest, WithoutTransparencyInTheFormatTheGroundIsWhite)
{
    QImage image(40, 40, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    m_folder.Write(u"a.jpg"_s, ImageBytes(image, "png"));

    EXPECT_EQ(Resize(u"a.jpg"_s, 20), QString());
    EXPECT_TRUE(is_near(Result(u"a.jpg"_s).pixelColor(10, 10), Qt::white));
}

TEST_F(ResizeImageTest, ColoursKeepTheirMeaning)
{
    QImage image = RedAndBlue({40, 40});
    image.setColorSpace(QColorSpace::AdobeRgb);
    m_folder.Write(u"a.jpg"_s, ImageBytes(image, "jpeg"));

    EXPECT_EQ(Resize(u"a.jpg"_s, 20), QString());
    EXPECT_EQ(Result(u"a.jpg"_s).colorSpace(), QColorSpace(QColorSpace::AdobeRgb));
}

TEST_F(ResizeImageTest, WhatWasThereIsReplaced)
{
    m_folder.Image(u"a.png"_s, {40, 40});
    ASSERT_TRUE(RedAndBlue({5, 5}).save(m_folder.Out(u"a.png"_s)));

    EXPECT_EQ(Resize(u"a.png"_s, 20), QString());
    EXPECT_EQ(Result(u"a.png"_s).size(), QSize(20, 20));
    EXPECT_EQ(m_folder.OutNames(), QStringList{u"a.png"_s});
}

// What fails ---------------------------------------------------------------------------------------------

TEST_F(ResizeImageTest, AMissingFileCannotBeOpened)
{
    EXPECT_EQ(Resize(u"a.png"_s, 20), u"it cannot be opened: No such file or directory"_s);
}

TEST_F(ResizeImageTest, ATextIsNoImageWhateverItsName)
{
    m_folder.Write(u"a.png"_s, "text");

    EXPECT_EQ(Resize(u"a.png"_s, 20), u"it is no image, whatever its name says"_s);
}

TEST_F(ResizeImageTest, ACutImageIsToldEvenIfOnlyItsEndIsMissing)
{
    m_folder.Write(u"a.jpg"_s, ImageBytes(RedAndBlue({100, 100}), "jpeg").chopped(2));
    m_folder.Write(u"a.png"_s, ImageBytes(RedAndBlue({100, 100}), "png").chopped(2));
    m_folder.Write(u"a.bmp"_s, ImageBytes(RedAndBlue({100, 100}), "bmp").chopped(2));

    EXPECT_EQ(Resize(u"a.bmp"_s, 20), u"it is cut off"_s);
    EXPECT_EQ(Resize(u"a.jpg"_s, 20), u"it is cut off"_s);
    EXPECT_EQ(Resize(u"a.png"_s, 20), u"it is cut off"_s);
    EXPECT_EQ(m_folder.OutNames(), QStringList());
}

TEST_F(ResizeImageTest, WhatTheDecoderRefusesIsTold)
{
    m_folder.Write(u"a.ppm"_s, ImageBytes(RedAndBlue({100, 100}), "ppm").chopped(9));

    EXPECT_EQ(Resize(u"a.ppm"_s, 20), u"it cannot be read: Unable to read image data"_s);
    EXPECT_EQ(m_folder.OutNames(), QStringList());
}

TEST_F(ResizeImageTest, ALongerSideThanSixteenThousandIsTooMuch)
{
    m_folder.Image(u"most.png"_s, {16384, 1});
    m_folder.Image(u"wide.png"_s, {16385, 1});
    m_folder.Image(u"high.png"_s, {1, 16385});

    EXPECT_EQ(Resize(u"most.png"_s, 20), QString());
    EXPECT_EQ(Resize(u"wide.png"_s, 20), u"its 16385x1 pixels are too many: each side has 16384 at most"_s);
    EXPECT_EQ(Resize(u"high.png"_s, 20), u"its 1x16385 pixels are too many: each side has 16384 at most"_s);
}

TEST_F(ResizeImageTest, MoreMemoryThanReadersMayTakeIsTold)
{
    const auto restore
        = qScopeGuard([limit = QImageReader::allocationLimit()] { QImageReader::setAllocationLimit(limit); });
    QImageReader::setAllocationLimit(1);
    m_folder.Image(u"fits.png"_s, {512, 512});
    m_folder.Image(u"more.png"_s, {512, 513});

    EXPECT_EQ(Resize(u"fits.png"_s, 20), QString());
    EXPECT_EQ(Resize(u"more.png"_s, 20), u"it takes more memory than there is"_s);
}

TEST_F(ResizeImageTest, AFolderInPlaceOfTheImageIsTold)
{
    m_folder.Image(u"a.png"_s, {40, 40});
    ASSERT_TRUE(QDir(m_folder.Out()).mkdir(u"a.png"_s));

    EXPECT_EQ(Resize(u"a.png"_s, 20), u"it cannot be written: Filename refers to a directory"_s);
}

TEST_F(ResizeImageTest, AMissingTargetFolderIsTold)
{
    m_folder.Image(u"a.png"_s, {40, 40});
    ASSERT_TRUE(QDir(m_folder.Out()).removeRecursively());

    EXPECT_EQ(Resize(u"a.png"_s, 20), u"it cannot be written: No such file or directory"_s);
}
