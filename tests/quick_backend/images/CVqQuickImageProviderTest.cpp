#include "quick_backend/images/CVqQuickImageProvider.h"

#include "quick_backend/images/CVqImagePainter.h"
#include "quick_backend/images/CVqSvgImage.h"
#include "tests/quick_backend/images/ImageSamples.h"
#include "tests/quick_backend/images/PaletteForTest.h"
#include "tests/support/PictureCompare.h"

#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// Image 1 is a stencil of 4 x 2, image 2 has two colours on 2 x 1.
struct CVqQuickImageProviderTest : testing::Test
{
    CVqQuickImageProviderTest()
    {
        Add(StencilSvg());
        Add(TwoColourSvg());
    }

    void Add(const QByteArray& svg)
    {
        m_images->Add(CVqPoolImages::Kind::Name, QString::fromLatin1(svg), {},
                      std::make_shared<CVqSvgImage>(svg));
    }

    QImage Request(const QString& id, QSize size = {}) { return m_provider.requestImage(id, nullptr, size); }

    PaletteForTest m_palette;
    std::shared_ptr<CVqPoolImages> m_images = std::make_shared<CVqPoolImages>();
    CVqQuickImageProvider m_provider{m_images, std::make_shared<CVqImagePainter>()};
};

}

TEST_F(CVqQuickImageProviderTest, ImageHasItsNaturalSizeAndTellsIt)
{
    QSize size;

    EXPECT_EQ(m_provider.requestImage(u"1"_s, &size, {}).size(), QSize(4, 2));

    EXPECT_EQ(size, QSize(4, 2));
}

TEST_F(CVqQuickImageProviderTest, AskedSizeIsFittedInto)
{
    EXPECT_TRUE(EqualPictures(Request(u"2"_s, {6, 50}), Columns({0xFFFF0000, 0xFF0000FF}, 3, 3)));
    EXPECT_EQ(Request(u"2"_s, {0, 10}).size(), QSize(20, 10));
    EXPECT_EQ(Request(u"2"_s, {8, 0}).size(), QSize(8, 4));
}

TEST_F(CVqQuickImageProviderTest, StateChoosesTheColourOfThePalette)
{
    EXPECT_EQ(Request(u"1"_s).pixel(0, 0), PaletteForTest::g_text);
    EXPECT_EQ(Request(u"1?state=disabled"_s).pixel(0, 0), PaletteForTest::g_disabled);
    EXPECT_EQ(Request(u"1?state=selected"_s).pixel(0, 0), PaletteForTest::g_highlighted);
}

TEST_F(CVqQuickImageProviderTest, OwnColourTakesThePlaceOfThePalettes)
{
    EXPECT_EQ(Request(u"1?state=disabled&color=%2300ff00"_s).pixel(0, 0), 0xFF00FF00);
}

TEST_F(CVqQuickImageProviderTest, SeveralColoursAreGreyWhenDisabled)
{
    EXPECT_EQ(Request(u"2?color=green"_s).pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(Request(u"2?state=disabled"_s).pixelColor(0, 0).alpha(), 127);
}

TEST_F(CVqQuickImageProviderTest, UnknownImagesAreNull)
{
    for (const QString& id : {u"0"_s, u"3"_s, u"-1"_s, u"4294967295"_s, u"1?state=other"_s, u""_s})
        EXPECT_TRUE(Request(id).isNull()) << qPrintable(id);
}

TEST_F(CVqQuickImageProviderTest, TooLargeSizesAreNull)
{
    EXPECT_TRUE(Request(u"1"_s, {16385, 0}).isNull());
    EXPECT_TRUE(Request(u"1"_s, {0x7FFFFFFF, 0x7FFFFFFF}).isNull());
}

TEST_F(CVqQuickImageProviderTest, ThreadsAskWhileImagesAreAdded)
{
    std::vector<std::thread> threads;
    for (int number = 0; number < 3; ++number) {
        threads.emplace_back([this] {
            for (int round = 0; round < 50; ++round)
                EXPECT_EQ(Request(u"2"_s, {8, 4}).size(), QSize(8, 4));
        });
    }
    for (int number = 0; number < 50; ++number)
        Add(Svg(1 + number, 1, "<rect/>"));
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(Request(u"52"_s).size(), QSize(50, 1));
}
