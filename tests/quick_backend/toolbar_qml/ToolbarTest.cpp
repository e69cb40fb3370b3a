#include "tests/quick_backend/toolbar_qml/ToolbarWindow.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int g_border = 2;

}

TEST(Toolbar, IsAsLargeAsItsControlsByItself)
{
    ToolbarWindow window;
    const int first = window.AddButton("open").NaturalSize().m_iWidth;
    const int second = window.AddButton("save").NaturalSize().m_iWidth;

    EXPECT_EQ(window.Bar()->width(), 2 * g_border + first + 1 + second);
    EXPECT_EQ(window.Bar()->height(), 2 * g_border + CVqQuickButton::ImageSide + 2 * CVqQuickButton::Padding);
}

TEST(Toolbar, AVerticalOneIsAsHighAsItsControls)
{
    ToolbarWindow window({}, EOrientation::Vertical);
    window.AddButton("a");
    window.AddButton("b");

    const int side = CVqQuickButton::ImageSide + 2 * CVqQuickButton::Padding;
    EXPECT_EQ(window.Bar()->height(), 2 * g_border + 2 * side + 1);
    EXPECT_EQ(window.Bar()->width(), 2 * g_border + side);
}

TEST(Toolbar, ShowsItsControlsInOrder)
{
    ToolbarWindow window;
    auto& open = window.AddButton("open");
    auto& save = window.AddButton("save");

    EXPECT_LT(window.Look(open)->mapToScene({}).x(), window.Look(save)->mapToScene({}).x());
}

TEST(Toolbar, RightToLeftBeginsAtTheRight)
{
    ToolbarWindow window("LayoutMirroring.enabled: true; width: 300");
    auto& open = window.AddButton("open");
    auto& save = window.AddButton("save");

    EXPECT_EQ(ToolbarWindow::Place(window.Look(open)).right(), 300 - g_border);
    EXPECT_GT(window.Look(open)->mapToScene({}).x(), window.Look(save)->mapToScene({}).x());
}

TEST(Toolbar, FollowsADirectionThatChanges)
{
    ToolbarWindow window("width: 300");
    auto& open = window.AddButton("open");
    ASSERT_EQ(ToolbarWindow::Place(window.Look(open)).left(), g_border);

    window.SetBar("LayoutMirroring.enabled", true);

    EXPECT_EQ(ToolbarWindow::Place(window.Look(open)).right(), 300 - g_border);
}

TEST(Toolbar, HasTheGroundOfThePaletteAndALineBelow)
{
    ToolbarWindow window("width: 300");
    window.AddButton("open");
    const QQuickItem* bar = window.Bar();

    EXPECT_EQ(window.ColorAt(bar, {250, 10}), QColor(0xf0, 0xf0, 0xf0));
    EXPECT_LT(window.ColorAt(bar, {250, bar->height() - 1}).lightness(), 0xe0);
}

TEST(Toolbar, HasTheGroundThatItsToolbarSays)
{
    ToolbarWindow window("width: 300");
    window.AddButton("open");

    window.Toolbar().SetToolbarBackgroundColor(0x336699, 1.0);

    EXPECT_EQ(window.ColorAt(window.Bar(), {250, 10}), QColor(0x33, 0x66, 0x99));
}

TEST(Toolbar, AVerticalOneHasItsLineAtTheSide)
{
    ToolbarWindow window("height: 200", EOrientation::Vertical);
    window.AddButton("a");
    const QQuickItem* bar = window.Bar();

    EXPECT_LT(window.ColorAt(bar, {bar->width() - 1, 150}).lightness(), 0xe0);
    EXPECT_EQ(window.ColorAt(bar, {10, bar->height() - 1}), QColor(0xf0, 0xf0, 0xf0));
}

TEST(Toolbar, TheRightButtonBesideTheControlsAsksForAContextMenu)
{
    ToolbarWindow window("width: 300");
    window.AddButton("open");
    window.Settle();
    QPointF place;
    CVqQuickControl* control = &window.Picker();
    QObject::connect(&window.Toolbar(), &CVqQuickButtonToolbar::contextMenuRequested, &window.Window(),
                     [&](CVqQuickControl* at, qreal x, qreal y) {
                         control = at;
                         place = {x, y};
                     });

    window.ClickAt({250, 10}, Qt::RightButton);

    EXPECT_EQ(control, nullptr);
    EXPECT_EQ(place, QPointF(250, 10));
}

TEST(Toolbar, WithoutAToolbarItIsEmpty)
{
    ToolbarWindow window;
    auto& open = window.AddButton("open");
    window.Settle();

    window.SetBar("toolbar", QVariant::fromValue<CVqQuickButtonToolbar*>(nullptr));

    EXPECT_EQ(window.Bar()->height(), 0);
    EXPECT_EQ(window.Toolbar().Area()->parentItem(), nullptr);
    EXPECT_EQ(window.Look(open), nullptr);
}

TEST(Toolbar, ShowsAnotherToolbarInPlaceOfTheFirst)
{
    CVqQuickButtonToolbar other(VQ_TEXT("other"));
    ToolbarWindow window;
    auto& open = window.AddButton("open");
    window.Settle();

    window.SetBar("toolbar", QVariant::fromValue(&other));
    EXPECT_EQ(other.Area()->window(), &window.Window());
    EXPECT_EQ(window.Toolbar().Area()->window(), nullptr);

    window.SetBar("toolbar", QVariant::fromValue(&window.Toolbar()));
    EXPECT_TRUE(window.Look(open));
}

TEST(Toolbar, OutlivesItsToolbar)
{
    ToolbarWindow window;
    window.AddButton("open");
    window.AddSeparator();
    window.AddButton("save");
    window.Settle();

    window.EndToolbar();
    window.Settle();

    EXPECT_EQ(window.Bar()->height(), 0);
}

TEST(Toolbar, MayGoBeforeItsToolbar)
{
    CVqQuickButtonToolbar toolbar(VQ_TEXT("main"));
    toolbar.AddButton(VQ_TEXT("open"));
    {
        ToolbarWindow window;
        window.SetBar("toolbar", QVariant::fromValue(&toolbar));
        ASSERT_TRUE(window.Find("look:open"));
    }

    EXPECT_EQ(toolbar.Area()->parentItem(), nullptr);
}

TEST(Toolbar, TheOneThatTookAToolbarLastShowsIt)
{
    ToolbarWindow first;
    auto& open = first.AddButton("open");
    first.Settle();
    ToolbarWindow second;

    second.SetBar("toolbar", QVariant::fromValue(&first.Toolbar()));
    first.SetBar("toolbar", QVariant::fromValue<CVqQuickButtonToolbar*>(nullptr));

    ASSERT_TRUE(second.Look(open));
    EXPECT_EQ(open.Item()->window(), &second.Window());
    second.SetBar("toolbar", QVariant::fromValue(&second.Toolbar()));
}
