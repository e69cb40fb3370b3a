#include "gallery/resize/ImageEnd.h"

#include "tests/gallery/resize/ImageFolder.h"

using namespace Qt::StringLiterals;
using Gallery::IsWholeImage;

namespace {

QByteArray jpeg()
{
    return ImageBytes(RedAndBlue({40, 30}), "jpeg");
}

bool is_whole(const QByteArray& bytes)
{
    return IsWholeImage(bytes, "jpeg");
}

}

TEST(ImageEnd, AFileWithItsEndIsWhole)
{
    EXPECT_TRUE(is_whole(jpeg()));
}

TEST(ImageEnd, BytesBehindTheEndDoNotMatter)
{
    EXPECT_TRUE(is_whole(jpeg() + "more"));
}

TEST(ImageEnd, FillingBeforeAMarkerIsSteppedOver)
{
    const QByteArray bytes = jpeg();

    EXPECT_TRUE(is_whole(bytes.first(bytes.size() - 2) + "\xFF\xFF\xFF\xD9"_ba));
}

TEST(ImageEnd, NoShorterJpegIsWhole)
{
    const QByteArray bytes = jpeg();

    for (qsizetype size = 0; size < bytes.size(); ++size)
        ASSERT_FALSE(is_whole(bytes.first(size))) << size;
}

TEST(ImageEnd, TheEndOfAPreviewIsNotTheEndOfTheFile)
{
    const QByteArray bytes = jpeg();
    const QByteArray preview("\xFF\xE1\x00\x06\xFF\xD8\xFF\xD9", 8);

    EXPECT_TRUE(is_whole(bytes.first(2) + preview + bytes.sliced(2)));
    EXPECT_FALSE(is_whole(bytes.first(2) + preview + bytes.sliced(2).chopped(2)));
}

TEST(ImageEnd, NoShorterPngIsWhole)
{
    const QByteArray bytes = ImageBytes(RedAndBlue({40, 30}), "png");

    EXPECT_TRUE(IsWholeImage(bytes, "png"));
    EXPECT_TRUE(IsWholeImage(bytes + "more", "png"));
    for (qsizetype size = 0; size < bytes.size(); ++size)
        ASSERT_FALSE(IsWholeImage(bytes.first(size), "png")) << size;
}

TEST(ImageEnd, APngChunkOfAnyLengthIsRefusedWhenItIsNotThere)
{
    const QByteArray bytes = ImageBytes(RedAndBlue({40, 30}), "png");

    EXPECT_FALSE(IsWholeImage(bytes.first(8) + "\xFF\xFF\xFF\xFFIHDR" + bytes.sliced(16), "png"));
}

TEST(ImageEnd, NoShorterBmpIsWhole)
{
    const QByteArray bytes = ImageBytes(RedAndBlue({13, 7}), "bmp");

    EXPECT_TRUE(IsWholeImage(bytes, "bmp"));
    EXPECT_TRUE(IsWholeImage(bytes + "more", "bmp"));
    for (qsizetype size = 0; size < bytes.size(); ++size)
        ASSERT_FALSE(IsWholeImage(bytes.first(size), "bmp")) << size;
}

TEST(ImageEnd, AVeryOldBmpTellsTooLittleToJudge)
{
    const QByteArray bytes("BM\x1E\0\0\0\0\0\0\0\x1A\0\0\0\x0C\0\0\0\1\0\1\0\1\0\x18\0", 26);

    EXPECT_TRUE(IsWholeImage(bytes, "bmp"));
}

TEST(ImageEnd, AGifIsWholeFromTheEndOfItsFirstPicture)
{
    const QByteArray header("GIF89a\1\0\1\0\x80\0\0\0\0\0\xFF\xFF\xFF", 19);
    const QByteArray note("!\xF9\4\0\0\0\0\0", 8);
    const QByteArray picture(",\0\0\0\0\1\0\1\0\0\2\2\x44\1\0", 15);
    const QByteArray bytes = header + note + picture;

    EXPECT_TRUE(IsWholeImage(bytes, "gif"));
    EXPECT_TRUE(IsWholeImage(bytes + ";", "gif"));
    EXPECT_TRUE(IsWholeImage(header + picture, "gif"));
    for (qsizetype size = 0; size < bytes.size(); ++size)
        ASSERT_FALSE(IsWholeImage(bytes.first(size), "gif")) << size;
}

TEST(ImageEnd, OtherFormatsHaveNoCheck)
{
    EXPECT_TRUE(Gallery::HasImageEnd("gif"));
    EXPECT_TRUE(Gallery::HasImageEnd("jpeg"));
    EXPECT_TRUE(Gallery::HasImageEnd("png"));
    EXPECT_TRUE(Gallery::HasImageEnd("bmp"));
    EXPECT_FALSE(Gallery::HasImageEnd("ppm"));
}
