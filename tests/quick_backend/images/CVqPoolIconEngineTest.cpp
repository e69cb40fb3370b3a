#include "quick_backend/images/CVqPoolIconEngine.h"

#include "quick_backend/images/CVqImagePainter.h"
#include "quick_backend/images/CVqSvgImage.h"
#include "tests/quick_backend/images/ImageSamples.h"
#include "tests/quick_backend/images/PaletteForTest.h"
#include "tests/support/PictureCompare.h"

#include <QPainter>

namespace {

struct CVqPoolIconEngineTest : testing::Test
{
    static QIcon Icon(const QByteArray& svg)
    {
        const SVqPoolEntry entry{std::make_shared<CVqSvgImage>(svg), 1};
        return QIcon(new CVqPoolIconEngine(entry, std::make_shared<CVqImagePainter>()));
    }

    PaletteForTest m_palette;
};

const QImage g_drawn_in_6_by_3 = Columns({0xFFFF0000, 0xFF0000FF}, 3, 3);

}

TEST_F(CVqPoolIconEngineTest, PixmapIsFittedIntoTheSize)
{
    EXPECT_TRUE(EqualPictures(Icon(TwoColourSvg()).pixmap(QSize(6, 50), 1.0).toImage(), g_drawn_in_6_by_3));
    EXPECT_EQ(Icon(TwoColourSvg()).actualSize(QSize(6, 50)), QSize(6, 3));
}

TEST_F(CVqPoolIconEngineTest, PixmapHasTheDevicesPixels)
{
    const QPixmap pixmap = Icon(TwoColourSvg()).pixmap(QSize(3, 3), 2.0);

    EXPECT_EQ(pixmap.devicePixelRatio(), 2.0);
    EXPECT_EQ(pixmap.size(), QSize(6, 3));
}

TEST_F(CVqPoolIconEngineTest, EachModeHasItsColour)
{
    const QIcon icon = Icon(Svg(1, 1, R"(<rect width="1" height="1"/>)"));
    const auto colour
        = [&](QIcon::Mode mode) { return icon.pixmap(QSize(1, 1), 1.0, mode).toImage().pixel(0, 0); };

    EXPECT_EQ(colour(QIcon::Normal), PaletteForTest::g_text);
    EXPECT_EQ(colour(QIcon::Disabled), PaletteForTest::g_disabled);
    EXPECT_EQ(colour(QIcon::Selected), PaletteForTest::g_highlighted);
}

TEST_F(CVqPoolIconEngineTest, PaintDrawsIntoTheMiddle)
{
    QImage canvas(6, 5, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    {
        QPainter painter(&canvas);
        Icon(TwoColourSvg()).paint(&painter, 0, 0, 6, 5);
    }

    EXPECT_TRUE(EqualPictures(canvas.copy(0, 1, 6, 3), g_drawn_in_6_by_3));
    EXPECT_EQ(canvas.pixelColor(0, 0), QColor(Qt::transparent));
}

TEST_F(CVqPoolIconEngineTest, CopyDrawsTheSame)
{
    const QIcon icon = Icon(TwoColourSvg());
    QIcon copy = icon;
    copy.detach();

    EXPECT_TRUE(EqualPictures(copy.pixmap(QSize(6, 3), 1.0).toImage(), g_drawn_in_6_by_3));
}

TEST_F(CVqPoolIconEngineTest, IconTellsItsNaturalSize)
{
    EXPECT_FALSE(Icon(TwoColourSvg()).isNull());
    EXPECT_EQ(Icon(TwoColourSvg()).availableSizes(), QList<QSize>{QSize(2, 1)});
}

TEST_F(CVqPoolIconEngineTest, EmptySizeIsNoPixmap)
{
    EXPECT_TRUE(Icon(TwoColourSvg()).pixmap(QSize(0, 5), 1.0).isNull());
}
