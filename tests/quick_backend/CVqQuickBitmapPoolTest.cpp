#include "quick_backend/CVqQuickBitmapPool.h"

#include "tests/quick_backend/PoolFixture.h"
#include "tests/support/PictureCompare.h"

#include <memory>

using namespace Qt::StringLiterals;

using CVqQuickBitmapPoolTest = PoolFixture;
using Pool = CVqAbstractBitmapPool;

TEST_F(CVqQuickBitmapPoolTest, IndicesStartAtOne)
{
    EXPECT_EQ(Pool::AddImageSVG(VQ_TEXT("a"), StencilSvg().constData()), 1);
    EXPECT_EQ(AddIcon(VQ_TEXT("OPEN")), 2);
}

TEST_F(CVqQuickBitmapPoolTest, EachFormatIsTaken)
{
    const QImage sample = SampleImage(5, 3);

    EXPECT_TRUE(EqualPictures(Drawn(AddBytes(u"a.png"_s, Encoded(sample, "png"))), sample));
    EXPECT_TRUE(EqualPictures(Drawn(AddBytes(u"a.webp"_s, Encoded(sample, "webp"))), sample));
    EXPECT_EQ(Drawn(AddBytes(u"a.jpg"_s, Encoded(sample, "jpeg"))).size(), QSize(5, 3));
    EXPECT_EQ(Drawn(AddBytes(u"a.svg"_s, StencilSvg())).size(), QSize(4, 2));
}

TEST_F(CVqQuickBitmapPoolTest, SameSourceHasOneIndexHoweverItIsWritten)
{
    const int index = AddBytes(u"a.png"_s, Encoded(SampleImage(2, 2), "png"));

    EXPECT_EQ(Add(Path(u"./a.png"_s)), index);
    EXPECT_EQ(Pool::AddImage(CVqStringW::FromQString(Path(u"a.png"_s))), index);
    EXPECT_EQ(Pool::AddImage(CVqStringW::FromQString(Path(u"a.png"_s)), VQ_TEXT(""), nullptr), index);
}

TEST_F(CVqQuickBitmapPoolTest, IconOfAModuleHasOneIndexHoweverItIsWritten)
{
    const int index = AddIcon(VQ_TEXT("PICKER_BR"));

    EXPECT_GT(index, 0);
    EXPECT_EQ(AddIcon(VQ_TEXT("picker_br")), index);
    EXPECT_EQ(Pool::AddImage(VQ_TEXT("PICKER_BR"), VQ_TEXT("K7_Tile_Assets.dll"), nullptr), index);
    EXPECT_EQ(Pool::AddImage(VQ_TEXT("x"), VQ_TEXT("k7_tile_assets.dll"), VQ_TEXT("PICKER_BR")), index);
    EXPECT_EQ(Pool::AddImage(nullptr, VQ_TEXT("k7_tile_assets.dll"), VQ_TEXT("PICKER_BR")), index);
    EXPECT_EQ(Add(u":/tile_assets/picker_br.svg"_s), index);
    EXPECT_EQ(Add(u"qrc:///tile_assets/picker_br.svg"_s), index);
}

TEST_F(CVqQuickBitmapPoolTest, ModuleMayBeAddedWithAFolderOfItsOwn)
{
    WriteFile(Path(u"star.png"_s), Encoded(SampleImage(2, 3), "png"));
    m_pool.AddModule(u"my_images.dll"_s, m_folder.path());

    const int index = Pool::AddImage(VQ_TEXT("my_images.dll"), VQ_TEXT("STAR"), nullptr);

    EXPECT_EQ(Drawn(index).size(), QSize(2, 3));
    EXPECT_EQ(Source(index), "my_images.dll|STAR");
}

TEST_F(CVqQuickBitmapPoolTest, PixmapIsTakenUnderItsName)
{
    QPixmap pixmap = QPixmap::fromImage(SampleImage(5, 3));

    const int index = Pool::AddImage(&pixmap, VQ_TEXT("brush"));

    EXPECT_TRUE(EqualPictures(Drawn(index), SampleImage(5, 3)));
    EXPECT_EQ(Pool::AddImage(VQ_TEXT("brush")), index);
    EXPECT_EQ(Source(index), "brush|");
}

TEST_F(CVqQuickBitmapPoolTest, KnownNameKeepsItsImage)
{
    QPixmap pixmap(7, 7);
    const int index = Pool::AddImageSVG(VQ_TEXT("a"), StencilSvg().constData());

    EXPECT_EQ(Pool::AddImage(&pixmap, VQ_TEXT("a")), index);
    EXPECT_EQ(Pool::AddImageSVG(VQ_TEXT("a"), TwoColourSvg().constData()), index);

    EXPECT_EQ(Drawn(index).size(), QSize(4, 2));
}

TEST_F(CVqQuickBitmapPoolTest, ReplacedSvgHasTheIndexOfTheName)
{
    const int index = Pool::AddImageSVG(VQ_TEXT("a"), StencilSvg().constData());
    Drawn(index);

    EXPECT_EQ(Pool::ReplaceImageSVG(VQ_TEXT("a"), TwoColourSvg().constData()), index);

    EXPECT_TRUE(EqualPictures(Drawn(index), Columns({0xFFFF0000, 0xFF0000FF}, 1, 1)));
}

TEST_F(CVqQuickBitmapPoolTest, ReplacingAnUnknownNameOrByABadTextIsMinusOne)
{
    const int index = Pool::AddImageSVG(VQ_TEXT("a"), StencilSvg().constData());

    EXPECT_EQ(Pool::ReplaceImageSVG(VQ_TEXT("b"), StencilSvg().constData()), -1);
    EXPECT_EQ(Pool::ReplaceImageSVG(nullptr, StencilSvg().constData()), -1);
    EXPECT_EQ(Pool::ReplaceImageSVG(VQ_TEXT("a"), "text"), -1);
    EXPECT_EQ(Pool::ReplaceImageSVG(VQ_TEXT("a"), nullptr), -1);

    EXPECT_EQ(Drawn(index).size(), QSize(4, 2));
}

TEST_F(CVqQuickBitmapPoolTest, NamesAndFilesAreLookedUpByGetImage)
{
    const int named = Pool::AddImageSVG(VQ_TEXT("a"), StencilSvg().constData());
    const int file = AddBytes(u"a.png"_s, Encoded(SampleImage(2, 2), "png"));

    EXPECT_EQ(Pool::GetImage(VQ_TEXT("a")), named);
    EXPECT_EQ(Pool::GetImage(CVqStringW::FromQString(Path(u"a.png"_s))), file);
    EXPECT_EQ(Pool::GetImage(VQ_TEXT("b")), -1);
    EXPECT_EQ(Pool::GetImage(VQ_TEXT("")), -1);
    EXPECT_EQ(Pool::GetImage(nullptr), -1);
}

TEST_F(CVqQuickBitmapPoolTest, EachFailureHasItsCodeAndChangesNothing)
{
    QPixmap none;
    QPixmap good(1, 1);

    EXPECT_EQ(Add(u"NULL"_s), -1);
    EXPECT_EQ(Pool::AddImage(VQ_TEXT("NULL"), VQ_TEXT("OPEN"), nullptr), -1);
    EXPECT_EQ(Add(QString()), -9);
    EXPECT_EQ(Pool::AddImage(nullptr, nullptr, nullptr), -9);
    EXPECT_EQ(Pool::AddImage(nullptr, VQ_TEXT("k7_tile_assets.dll"), nullptr), -9);
    EXPECT_EQ(Pool::AddImage(&none, VQ_TEXT("a")), -9);
    EXPECT_EQ(Pool::AddImage(nullptr, VQ_TEXT("a")), -9);
    EXPECT_EQ(Pool::AddImage(&good, nullptr), -9);
    EXPECT_EQ(AddBytes(u"a.png"_s, "text"), -9);
    EXPECT_EQ(AddBytes(u"a.png"_s, Encoded(SampleImage(3, 3), "png").chopped(20)), -9);
    EXPECT_EQ(AddBytes(u"a.svg"_s, Svg(1, 1, R"(<image href="http://127.0.0.1/"/>)")), -9);
    EXPECT_EQ(AddBytes(u"a.png"_s, Encoded(QImage(16385, 1, QImage::Format_Mono), "png")), -3);
    EXPECT_EQ(Add(Path(u"none.png"_s)), -13);
    EXPECT_EQ(Add(u"http://127.0.0.1/a.png"_s), -13);
    EXPECT_EQ(AddIcon(VQ_TEXT("NONE")), -13);
    EXPECT_EQ(Pool::AddImage(VQ_TEXT("none.dll"), VQ_TEXT("OPEN"), nullptr), -13);

    EXPECT_EQ(AddIcon(VQ_TEXT("OPEN")), 1);
}

TEST_F(CVqQuickBitmapPoolTest, BadSvgTextIsMinusOne)
{
    EXPECT_EQ(Pool::AddImageSVG(VQ_TEXT("a"), nullptr), -1);
    EXPECT_EQ(Pool::AddImageSVG(VQ_TEXT("a"), "text"), -1);
    EXPECT_EQ(Pool::AddImageSVG(VQ_TEXT(""), StencilSvg().constData()), -1);
    EXPECT_EQ(Pool::AddImageSVG(nullptr, StencilSvg().constData()), -1);
    EXPECT_EQ(Pool::AddImageSVG(VQ_TEXT("a"), Svg(16385, 1, "").constData()), -1);

    EXPECT_EQ(Pool::GetImage(VQ_TEXT("a")), -1);
}

TEST(CVqQuickBitmapPoolLife, DestroyedPoolLeavesTheAnswersOfNoPool)
{
    std::make_unique<CVqQuickBitmapPool>().reset();

    EXPECT_EQ(Pool::AddImage(VQ_TEXT("a")), -12);
    EXPECT_EQ(Pool::GetImage(VQ_TEXT("a")), -1);
}

TEST(CVqQuickBitmapPoolLife, PoolThatWasFollowedByAnotherLeavesThatOne)
{
    auto first = std::make_unique<CVqQuickBitmapPool>();
    const CVqQuickBitmapPool second;

    first.reset();

    EXPECT_EQ(Pool::AddImageSVG(VQ_TEXT("a"), StencilSvg().constData()), 1);
}

TEST(CVqQuickBitmapPoolLife, IconsAndPixmapsOutliveThePool)
{
    auto pool = std::make_unique<CVqQuickBitmapPool>();
    const int index = Pool::AddImageSVG(VQ_TEXT("a"), TwoColourSvg().constData());
    const QIcon icon = Pool::GetIcon(vq_uint32(index));
    const QPixmap pixmap = Pool::GetPixmap(vq_uint32(index), 0, 0);

    pool.reset();

    EXPECT_EQ(icon.pixmap(QSize(6, 3), 1.0).size(), QSize(6, 3));
    EXPECT_EQ(pixmap.toImage().pixelColor(0, 0), QColor(Qt::red));
}
