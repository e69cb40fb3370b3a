#include "quick_backend/CVqQuickBitmapPool.h"
#include "tests/quick_backend/PoolFixture.h"
#include "tests/support/PictureCompare.h"

#include <QPainter>

using namespace Qt::StringLiterals;

using CVqQuickBitmapPoolDrawingTest = PoolFixture;
using Pool = CVqAbstractBitmapPool;

TEST_F(CVqQuickBitmapPoolDrawingTest, SizeIsTheNaturalOne)
{
    const int index = Pool::AddImageSVG(VQ_TEXT("a"), StencilSvg().constData());
    vq_uint32 width = 0;
    vq_uint32 height = 0;

    Pool::GetImageSize(vq_uint32(index), width, height);

    EXPECT_EQ(width, 4u);
    EXPECT_EQ(height, 2u);
}

TEST_F(CVqQuickBitmapPoolDrawingTest, UnknownIndexHasNothing)
{
    CVqStringW file(VQ_TEXT("before"));
    vq_uint32 width = 5;
    vq_uint32 height = 6;
    for (const vq_uint32 index : {0u, 1u, 0xFFFFFFFFu}) {
        Pool::GetImageSize(index, width, height);
        EXPECT_EQ(Pool::GetImageSource(index, file, file), -13);
        EXPECT_TRUE(Pool::GetPixmap(index, 4, 4).isNull());
        EXPECT_TRUE(Pool::GetIcon(index).isNull());
    }
    EXPECT_EQ(width + height, 11u);
    EXPECT_EQ(file, VQ_TEXT("before"));
}

TEST_F(CVqQuickBitmapPoolDrawingTest, PixmapHasExactlyTheSizeAndTheColourOfThePalette)
{
    const int index = Pool::AddImageSVG(VQ_TEXT("a"), StencilSvg().constData());
    const QRgb thin = qRgba(10, 20, 30, 51);

    EXPECT_TRUE(EqualPictures(Drawn(index, 8, 4), Columns({PaletteForTest::g_text, 0, thin, thin}, 2, 4)));
    EXPECT_EQ(Drawn(index, 8, 8).size(), QSize(8, 8));
    EXPECT_EQ(Drawn(index, 0, 8).size(), QSize(16, 8));
    EXPECT_TRUE(Drawn(index, 16385, 1).isNull());
}

TEST_F(CVqQuickBitmapPoolDrawingTest, PixmapFollowsThePalette)
{
    const int index = Pool::AddImageSVG(VQ_TEXT("a"), StencilSvg().constData());
    Drawn(index);

    m_palette.Set(qRgb(200, 100, 50), 0, 0);

    EXPECT_EQ(Drawn(index).pixel(0, 0), qRgb(200, 100, 50));
}

TEST_F(CVqQuickBitmapPoolDrawingTest, SecondPixmapIsTheKeptOne)
{
    const int index = AddIcon(VQ_TEXT("OPEN"));
    const qint64 first = Pool::GetPixmap(vq_uint32(index), 24, 24).cacheKey();

    EXPECT_EQ(Pool::GetPixmap(vq_uint32(index), 24, 24).cacheKey(), first);
    EXPECT_EQ(m_pool.CachedBytes(), 24 * 24 * 4);
}

TEST_F(CVqQuickBitmapPoolDrawingTest, KeptPixmapsStayUnderTheLimit)
{
    EXPECT_EQ(m_pool.CacheLimit(), 64 * 1024 * 1024);
    m_pool.SetCacheLimit(10'000);
    const int index = AddIcon(VQ_TEXT("OPEN"));

    for (int size = 1; size < 60; ++size)
        EXPECT_EQ(Drawn(index, size, size).size(), QSize(size, size));

    EXPECT_GT(m_pool.CachedBytes(), 0);
    EXPECT_LE(m_pool.CachedBytes(), 10'000);
}

TEST_F(CVqQuickBitmapPoolDrawingTest, FileMayBeGoneOnceItIsInThePool)
{
    const int index = AddBytes(u"a.png"_s, Encoded(SampleImage(5, 3), "png"));
    QFile::remove(Path(u"a.png"_s));

    EXPECT_TRUE(EqualPictures(Drawn(index), SampleImage(5, 3)));
}

TEST_F(CVqQuickBitmapPoolDrawingTest, PixmapOfASvgTextIsDrawnAsOneOfThePool)
{
    const QImage drawn = Pool::GetPixmapFromSVG(StencilSvg().constData(), 8, 4).toImage();

    EXPECT_EQ(drawn.size(), QSize(8, 4));
    EXPECT_EQ(drawn.pixel(0, 0), PaletteForTest::g_text);
    EXPECT_TRUE(Pool::GetPixmapFromSVG("text", 8, 4).isNull());
    EXPECT_TRUE(Pool::GetPixmapFromSVG(nullptr, 8, 4).isNull());
    EXPECT_TRUE(Pool::GetPixmapFromSVG(StencilSvg().constData(), 16385, 4).isNull());
}

TEST_F(CVqQuickBitmapPoolDrawingTest, BitmapHasItsOwnColourOrTheGivenOne)
{
    const QByteArray svg = StencilSvg("#ff0000");
    const QImage plain
        = CVqQuickBitmapPool::TakeBitmap(Pool::CreateBitmapFromSVG(svg.constData(), 8, 4, false, 0x00FF00));
    const QImage given
        = CVqQuickBitmapPool::TakeBitmap(Pool::CreateBitmapFromSVG(svg.constData(), 8, 4, true, 0x030201));

    EXPECT_EQ(plain.size(), QSize(8, 4));
    EXPECT_EQ(plain.format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(plain.pixel(0, 0), 0xFFFF0000);
    EXPECT_EQ(given.pixel(0, 0), qRgb(1, 2, 3));
}

TEST_F(CVqQuickBitmapPoolDrawingTest, BitmapThatCannotBeIsZero)
{
    const QByteArray svg = StencilSvg();

    EXPECT_EQ(Pool::CreateBitmapFromSVG("text", 8, 4, false, 0), 0u);
    EXPECT_EQ(Pool::CreateBitmapFromSVG(nullptr, 8, 4, false, 0), 0u);
    EXPECT_EQ(Pool::CreateBitmapFromSVG(svg.constData(), 0, 4, false, 0), 0u);
    EXPECT_EQ(Pool::CreateBitmapFromSVG(svg.constData(), 8, 16385, false, 0), 0u);
    EXPECT_EQ(Pool::CreateBitmapFromSVG(svg.constData(), 0xFFFFFFFF, 4, false, 0), 0u);
    EXPECT_TRUE(CVqQuickBitmapPool::TakeBitmap(0).isNull());
}

TEST_F(CVqQuickBitmapPoolDrawingTest, OptimalImageFillsOrFits)
{
    const int index = Pool::AddImageSVG(VQ_TEXT("a"), TwoColourSvg().constData());
    const auto draw = [&](bool fits) {
        QImage canvas(4, 4, QImage::Format_ARGB32_Premultiplied);
        canvas.fill(Qt::transparent);
        QPainter painter(&canvas);
        Pool::DrawOptimalImage(&painter, vq_uint32(index), 0, 0, 4, 4, fits, false);
        return canvas;
    };

    EXPECT_TRUE(EqualPictures(draw(false), Columns({0xFFFF0000, 0xFF0000FF}, 2, 4)));
    EXPECT_TRUE(EqualPictures(draw(true).copy(0, 1, 4, 2), Columns({0xFFFF0000, 0xFF0000FF}, 2, 2)));
    EXPECT_EQ(draw(true).pixelColor(0, 0), QColor(Qt::transparent));
}

TEST_F(CVqQuickBitmapPoolDrawingTest, OptimalImageIsDrawnAsDisabled)
{
    const int index
        = Pool::AddImageSVG(VQ_TEXT("a"), Svg(1, 1, R"(<rect width="1" height="1"/>)").constData());
    QImage canvas(1, 1, QImage::Format_RGB32);
    QPainter painter(&canvas);

    Pool::DrawOptimalImage(&painter, vq_uint32(index), 0, 0, 1, 1, false, true);

    EXPECT_EQ(canvas.pixel(0, 0), PaletteForTest::g_disabled);
}

TEST_F(CVqQuickBitmapPoolDrawingTest, OptimalImageComesFromTheSizeScaledLeast)
{
    WriteFile(Path(u"a@2x.png"_s), Encoded(Columns({0xFF0000FF}, 8, 8), "png"));
    const int index = AddBytes(u"a.png"_s, Encoded(Columns({0xFFFF0000}, 4, 4), "png"));
    const auto colour = [&](double scale) {
        QImage canvas(20, 20, QImage::Format_RGB32);
        QPainter painter(&canvas);
        painter.scale(scale, scale);
        Pool::DrawOptimalImage(&painter, vq_uint32(index), 0, 0, 4, 4, true, false);
        return canvas.pixelColor(1, 1);
    };

    EXPECT_EQ(colour(1), QColor(Qt::red));
    EXPECT_EQ(colour(2), QColor(Qt::blue));
}

TEST_F(CVqQuickBitmapPoolDrawingTest, OptimalImageWithoutPainterOrIndexDrawsNothing)
{
    QImage canvas(1, 1, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);

    Pool::DrawOptimalImage(nullptr, 1, 0, 0, 1, 1, false, false);
    Pool::DrawOptimalImage(&painter, 1, 0, 0, 1, 1, false, false);

    EXPECT_EQ(canvas.pixelColor(0, 0), QColor(Qt::white));
}
