#include "gallery/picture/PictureFilters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QImage halves()
{
    QImage image(40, 20, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 40; ++x)
            image.setPixel(x, y, x < 20 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    return image;
}

QImage apply(const char* name, int amount = 0)
{
    return Gallery::ApplyFilter(halves(), QString::fromLatin1(name), amount);
}

}

class AllFilters : public testing::TestWithParam<const char*>
{ };

TEST_P(AllFilters, KeepTheSizeAndChangeThePicture)
{
    const QImage image = apply(GetParam(), 6);

    EXPECT_EQ(image.size(), halves().size());
    EXPECT_NE(image, halves());
}

TEST_P(AllFilters, GiveTheSamePixelsEachTime)
{
    EXPECT_EQ(apply(GetParam(), 6), apply(GetParam(), 6));
}

INSTANTIATE_TEST_SUITE_P(PictureFilters, AllFilters,
                         testing::Values("blur", "pixelate", "edges", "emboss", "grain", "wave", "vignette"),
                         [](const auto& row) { return std::string(row.param); });

TEST(PictureFilters, BlurMixesAcrossAnEdge)
{
    const int value = qGray(apply("blur", 6).pixel(19, 10));

    EXPECT_GT(value, 20);
    EXPECT_LT(value, 235);
}

TEST(PictureFilters, EdgesAreBlackInsidePlainFields)
{
    const QImage image = apply("edges");

    EXPECT_EQ(qGray(image.pixel(5, 10)), 0);
    EXPECT_EQ(qGray(image.pixel(20, 10)), 255);
}

TEST(PictureFilters, PixelateRepeatsTheFirstPixelOfEachCell)
{
    const QImage image = apply("pixelate", 15);

    EXPECT_EQ(image.pixel(29, 3), image.pixel(15, 0));
    EXPECT_EQ(qGray(image.pixel(29, 3)), 0);
}

TEST(PictureFilters, SharpenLeavesPlainFields)
{
    EXPECT_EQ(qGray(apply("sharpen").pixel(5, 10)), 0);
    EXPECT_EQ(qGray(apply("sharpen").pixel(35, 10)), 255);
}

TEST(PictureFilters, AnUnknownFilterChangesNothing)
{
    EXPECT_EQ(apply("glue"), halves());
}

TEST(PictureFilters, AnEmptyPictureStaysEmpty)
{
    EXPECT_TRUE(Gallery::ApplyFilter(QImage(), u"blur"_s, 2).isNull());
}
