#include "quick_backend/CVqQuickBitmapPool.h"
#include "tests/quick_backend/MenuWindow.h"

namespace {

constexpr char Coloured[] = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
    <rect width="16" height="16" fill="#ff0000"/><rect width="1" height="1" fill="#0000ff"/></svg>)";
constexpr char Stencil[] = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
    <rect width="16" height="16" fill="#000000"/></svg>)";

/// A menu whose images come from the pool.
class MenuRowImages : public testing::Test
{
protected:
    MenuRowImages()
    {
        pool.AddImageProvider(window.Engine());
        FillMenu(window.Menu());
        window.Menu().SetIdBitmap(11, CVqAbstractBitmapPool::AddImageSVG(VQ_TEXT("coloured"), Coloured));
        window.Menu().SetIdBitmap(12, CVqAbstractBitmapPool::AddImageSVG(VQ_TEXT("stencil"), Stencil));
    }

    /// What is drawn in the middle of a row's image, once the row is not the current one.
    QColor Drawn(int row)
    {
        window.Click(window.BarItem(1));
        window.Press(Qt::Key_End); // Cut
        const QQuickItem* image = window.Row(row)->findChild<QQuickItem*>(QStringLiteral("menuImage"));
        return window.ColorAt(image, {8, 8});
    }

    QColor Ink(int row) { return window.Row(row)->property("ink").value<QColor>(); }

    CVqQuickBitmapPool pool;
    MenuWindow window{"imageSource: \"image://arbor/\""};
};

}

TEST_F(MenuRowImages, AnImageOfSeveralColoursKeepsThem)
{
    EXPECT_EQ(Drawn(0), QColor(Qt::red));
}

TEST_F(MenuRowImages, AnImageOfOneColourTakesThatOfTheText)
{
    const QColor drawn = Drawn(1);

    EXPECT_EQ(drawn, Ink(1));
}

TEST_F(MenuRowImages, ADisabledImageOfSeveralColoursIsGray)
{
    window.Menu().EnableId(11, false);

    const QColor drawn = Drawn(0);

    EXPECT_EQ(drawn.red(), drawn.green());
    EXPECT_EQ(drawn.green(), drawn.blue());
    EXPECT_NE(drawn, window.ColorAt(window.Row(0), {3, 12})); // of the ground
}

TEST_F(MenuRowImages, ADisabledImageOfOneColourIsPalerThanTheText)
{
    window.Menu().EnableId(12, false);

    const QColor drawn = Drawn(1);

    EXPECT_NE(drawn, Ink(1));
    EXPECT_NE(drawn, window.ColorAt(window.Row(0), {3, 12}));
}

TEST_F(MenuRowImages, FollowsTheStateOfItsItemWhileItShows)
{
    const QColor enabled = Drawn(0);

    window.Menu().EnableId(11, false);

    const QQuickItem* image = window.Row(0)->findChild<QQuickItem*>(QStringLiteral("menuImage"));
    EXPECT_NE(window.ColorAt(image, {8, 8}), enabled);
}
