#include "quick_backend/images/CVqSvgImage.h"

#include "tests/quick_backend/images/ImageSamples.h"
#include "tests/support/PictureCompare.h"

#include <thread>
#include <vector>

namespace {

constexpr QRgb g_ink = qRgb(0, 200, 100);
constexpr QRgb g_thin_ink = qRgba(0, 200, 100, 51);

}

TEST(CVqSvgImage, HasTheSizeOfTheText)
{
    const CVqSvgImage image(StencilSvg());

    EXPECT_TRUE(image.IsValid());
    EXPECT_EQ(image.Size(), QSize(4, 2));
}

TEST(CVqSvgImage, BoxOfTheViewIsTheSizeOfATextWithoutOne)
{
    const CVqSvgImage image(
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 12"><rect width="3"/></svg>)");

    EXPECT_EQ(image.Size(), QSize(24, 12));
}

TEST(CVqSvgImage, StencilTakesTheInk)
{
    const CVqSvgImage image(StencilSvg());

    const QImage drawn = image.Draw({4, 2}, {QIcon::Normal, g_ink});

    EXPECT_TRUE(EqualPictures(drawn, Columns({g_ink, 0, g_thin_ink, g_thin_ink}, 1, 2)));
}

TEST(CVqSvgImage, StencilInAnyColourTakesTheInk)
{
    const CVqSvgImage image(StencilSvg("#ff0000"));

    const QImage drawn = image.Draw({4, 2}, {QIcon::Normal, g_ink});

    EXPECT_TRUE(EqualPictures(drawn, Columns({g_ink, 0, g_thin_ink, g_thin_ink}, 1, 2)));
}

TEST(CVqSvgImage, StencilWithoutInkHasItsOwnColour)
{
    const CVqSvgImage image(StencilSvg("#ff0000"));

    const QImage drawn = image.Draw({4, 2}, {});

    EXPECT_EQ(drawn.pixelColor(0, 0), QColor(Qt::red));
}

TEST(CVqSvgImage, EdgesAreSharpAtEachSize)
{
    const CVqSvgImage image(StencilSvg());

    EXPECT_TRUE(EqualPictures(image.Draw({8, 4}, {QIcon::Normal, g_ink}),
                              Columns({g_ink, 0, g_thin_ink, g_thin_ink}, 2, 4)));
    EXPECT_TRUE(EqualPictures(image.Draw({400, 2}, {QIcon::Normal, g_ink}),
                              Columns({g_ink, 0, g_thin_ink, g_thin_ink}, 100, 2)));
}

TEST(CVqSvgImage, SeveralColoursStay)
{
    const CVqSvgImage image(TwoColourSvg());

    EXPECT_TRUE(
        EqualPictures(image.Draw({2, 1}, {QIcon::Normal, g_ink}), Columns({0xFFFF0000, 0xFF0000FF}, 1, 1)));
}

TEST(CVqSvgImage, SeveralColoursAreGreyWhenDisabled)
{
    const CVqSvgImage image(TwoColourSvg());

    const QImage drawn = image.Draw({2, 1}, {QIcon::Disabled, g_ink});

    EXPECT_TRUE(EqualPictures(drawn, Columns({qRgba(87, 87, 87, 127), qRgba(39, 39, 39, 127)}, 1, 1)));
}

TEST(CVqSvgImage, WhatIsAStencilDoesNotDependOnTheFirstSize)
{
    const CVqSvgImage image(TwoColourSvg());

    const QImage tiny = image.Draw({1, 1}, {QIcon::Normal, g_ink});

    EXPECT_NE(tiny.pixel(0, 0), g_ink);
}

TEST(CVqSvgImage, EmptySizeGivesNoPicture)
{
    const CVqSvgImage image(StencilSvg());

    EXPECT_TRUE(image.Draw({0, 5}, {}).isNull());
}

TEST(CVqSvgImage, BrokenTextIsNotValid)
{
    EXPECT_FALSE(CVqSvgImage("<svg><rect></svg>").IsValid());
}

TEST(CVqSvgImage, AnotherLanguageIsNotValid)
{
    EXPECT_FALSE(CVqSvgImage("<html/>").IsValid());
}

TEST(CVqSvgImage, ThreadsDrawTheSame)
{
    const CVqSvgImage image(StencilSvg());
    std::vector<QImage> drawn(4);

    std::vector<std::thread> threads;
    for (QImage& picture : drawn)
        threads.emplace_back([&] { picture = image.Draw({40, 20}, {QIcon::Normal, g_ink}); });
    for (std::thread& thread : threads)
        thread.join();

    for (const QImage& picture : drawn)
        EXPECT_TRUE(EqualPictures(picture, Columns({g_ink, 0, g_thin_ink, g_thin_ink}, 10, 20)));
}
