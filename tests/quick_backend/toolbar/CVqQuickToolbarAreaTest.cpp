#include "quick_backend/toolbar/CVqQuickToolbarArea.h"

#include "tests/quick_backend/toolbar/CoreBar.h"
#include "tests/quick_backend/toolbar/LooksFixture.h"

#include <QQuickWindow>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// A toolbar of 600 pixels with the buttons a, b and c and a separator between a and b.
class CVqQuickToolbarAreaTest : public LooksFixture
{
protected:
    CVqQuickToolbarAreaTest() { bar.toolbar.Layout(); }

    CVqQuickControl* Next(CVqQuickControl* from, int step) { return bar.area().nextControl(from, step); }

    CoreBar bar;
    CVqQuickButton& a = bar.AddButton("a");
    CVqQuickSeparator& separator = bar.Take(new CVqQuickSeparator, "-");
    CVqQuickButton& b = bar.AddButton("b");
    CVqQuickButton& c = bar.AddButton("c");
};

}

// Keyboard ---------------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarAreaTest, WalksForwardRoundTheEnd)
{
    EXPECT_EQ(Next(nullptr, 1), &a);
    EXPECT_EQ(Next(&a, 1), &b);
    EXPECT_EQ(Next(&b, 1), &c);
    EXPECT_EQ(Next(&c, 1), &a);
}

TEST_F(CVqQuickToolbarAreaTest, WalksBackwardRoundTheEnd)
{
    EXPECT_EQ(Next(nullptr, -1), &c);
    EXPECT_EQ(Next(&c, -1), &b);
    EXPECT_EQ(Next(&b, -1), &a);
    EXPECT_EQ(Next(&a, -1), &c);
}

TEST_F(CVqQuickToolbarAreaTest, WalksPastDisabledAndHiddenControls)
{
    b.Enable(false);
    EXPECT_EQ(Next(&a, 1), &c);

    c.SetControlVisibility(false);

    EXPECT_EQ(Next(&a, 1), &a);
}

TEST_F(CVqQuickToolbarAreaTest, BeginsAnewFromAControlThatCannotBeReached)
{
    b.Enable(false);

    EXPECT_EQ(Next(&b, 1), &a);
    EXPECT_EQ(Next(&b, -1), &c);
}

TEST_F(CVqQuickToolbarAreaTest, FindsNoControlWhereNoneCanBeReached)
{
    for (CVqQuickButton* button : {&a, &b, &c})
        button->Enable(false);

    EXPECT_EQ(Next(nullptr, 1), nullptr);
    EXPECT_EQ(Next(&a, -1), nullptr);
    EXPECT_EQ(bar.area().entryControl(), nullptr);
}

TEST_F(CVqQuickToolbarAreaTest, WalksOverAllThatIsShownWhileCustomised)
{
    b.Enable(false);
    c.SetControlVisibility(false);

    bar.toolbar.EnableToolbarDragDrop(true);

    EXPECT_EQ(Next(&a, 1), &separator);
    EXPECT_EQ(Next(&separator, 1), &b);
    EXPECT_EQ(Next(&b, 1), &a);
}

TEST_F(CVqQuickToolbarAreaTest, WalksToThePickerAtTheEnd)
{
    bar.Stretch(80);
    ASSERT_EQ(bar.Lies(), "a - > | b c");

    EXPECT_EQ(Next(&a, 1), &bar.picker());
    EXPECT_EQ(Next(&bar.picker(), 1), &a);
}

TEST_F(CVqQuickToolbarAreaTest, WalksOverThePopupByItself)
{
    bar.Stretch(80);

    EXPECT_EQ(bar.popup().nextControl(nullptr, 1), &b);
    EXPECT_EQ(bar.popup().nextControl(&b, 1), &c);
    EXPECT_EQ(bar.popup().nextControl(&c, 1), &b);
}

TEST_F(CVqQuickToolbarAreaTest, IsEnteredAtTheFirstControl)
{
    EXPECT_EQ(bar.area().entryControl(), &a);
}

TEST_F(CVqQuickToolbarAreaTest, IsEnteredWhereTheKeyboardWasLast)
{
    bar.area().setEntryControl(&b);
    EXPECT_EQ(bar.area().entryControl(), &b);

    b.Enable(false);

    EXPECT_EQ(bar.area().entryControl(), &a);
}

TEST_F(CVqQuickToolbarAreaTest, ForgetsAControlThatIsGone)
{
    bar.area().setEntryControl(&b);

    bar.toolbar.RemoveControl(b);
    delete &b;

    EXPECT_EQ(bar.area().entryControl(), &a);
}

// Places -----------------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarAreaTest, FindsTheControlAtAPlace)
{
    EXPECT_EQ(bar.area().controlAt(10, 20), &a);
    EXPECT_EQ(bar.area().controlAt(40, 20), &separator);
    EXPECT_EQ(bar.area().controlAt(60, 20), &b);
    EXPECT_EQ(bar.area().controlAt(500, 20), nullptr);
    EXPECT_EQ(bar.area().controlAt(10, 1), nullptr);
}

TEST_F(CVqQuickToolbarAreaTest, FindsNoControlThatIsHidden)
{
    c.SetControlVisibility(false);
    bar.toolbar.Layout();

    EXPECT_EQ(bar.area().controlAt(95, 20), nullptr);
}

TEST_F(CVqQuickToolbarAreaTest, FindsTheControlOfAnItem)
{
    auto* deep = new QQuickItem;
    CVqQuickItemControl& general = bar.Take(new CVqQuickItemControl(new QQuickItem), "general");
    deep->setParentItem(general.Content());

    EXPECT_EQ(bar.area().controlOf(deep), &general);
    EXPECT_EQ(bar.area().controlOf(a.Item()), &a);
    delete deep;
}

TEST_F(CVqQuickToolbarAreaTest, FindsNoControlOfOtherItems)
{
    QQuickItem other;
    QQuickItem child(&bar.area());

    EXPECT_EQ(bar.area().controlOf(nullptr), nullptr);
    EXPECT_EQ(bar.area().controlOf(&other), nullptr);
    EXPECT_EQ(bar.area().controlOf(&child), nullptr);
    EXPECT_EQ(bar.popup().controlOf(a.Item()), nullptr);
}

// Looks ------------------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarAreaTest, GivesLooksToControlsThatAreThere)
{
    const auto looks = MakeLooks();
    const QSignalSpy told(&bar.area(), &CVqQuickToolbarArea::looksChanged);

    bar.area().SetLooks(looks.get());
    bar.area().SetLooks(looks.get());

    EXPECT_EQ(told.count(), 1);
    for (const CVqQuickControl* control :
         std::initializer_list<CVqQuickControl*>{&a, &separator, &bar.picker()})
        EXPECT_TRUE(LookOf(*control));
}

TEST_F(CVqQuickToolbarAreaTest, GivesItsLooksToThePopup)
{
    const auto looks = MakeLooks();
    bar.Stretch(80);

    bar.area().SetLooks(looks.get());

    EXPECT_EQ(bar.popup().Looks(), looks.get());
    ASSERT_TRUE(LookOf(b));
    EXPECT_EQ(LookOf(b)->objectName(), u"button"_s);
}

TEST_F(CVqQuickToolbarAreaTest, ReplacesLooksByNewOnes)
{
    const auto looks = MakeLooks();
    bar.area().SetLooks(looks.get());
    const QPointer<QQuickItem> before(LookOf(a));
    auto others = MakeLooks("other ");

    bar.area().SetLooks(others.get());

    EXPECT_FALSE(before);
    ASSERT_TRUE(LookOf(a));
    EXPECT_EQ(LookOf(a)->objectName(), u"other button"_s);
    others.reset();
    EXPECT_FALSE(LookOf(a));
}

TEST_F(CVqQuickToolbarAreaTest, TellsWhenItsLooksGo)
{
    auto looks = MakeLooks();
    bar.area().SetLooks(looks.get());
    const QSignalSpy told(&bar.area(), &CVqQuickToolbarArea::looksChanged);

    looks.reset();

    EXPECT_EQ(told.count(), 1);
    EXPECT_EQ(bar.area().Looks(), nullptr);
}

TEST_F(CVqQuickToolbarAreaTest, DropsLooksWhenItIsGivenNone)
{
    const auto looks = MakeLooks();
    bar.area().SetLooks(looks.get());

    bar.area().SetLooks(nullptr);

    EXPECT_FALSE(LookOf(a));
    EXPECT_FALSE(bar.popup().Looks());
}

// QML --------------------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarAreaTest, KeepsControlsThatQmlAskedFor)
{
    const QPointer<CVqQuickControl> first(&a);
    const std::unique_ptr<QObject> caller
        = Make("Item { function ask(area) { area.nextControl(null, 1); area.entryControl(); gc(); } }");

    QMetaObject::invokeMethod(caller.get(), "ask", Q_ARG(QVariant, QVariant::fromValue(&bar.area())));
    engine.collectGarbage();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    EXPECT_TRUE(first);
}

TEST_F(CVqQuickToolbarAreaTest, TellsHowItsToolbarLies)
{
    const QSignalSpy told(&bar.area(), &CVqQuickToolbarArea::appearanceChanged);

    bar.toolbar.SetOrientation(EOrientation::Vertical);
    bar.toolbar.SetToolbarBackgroundColor(0x102030, 1);
    bar.toolbar.EnableToolbarDragDrop(true);

    EXPECT_EQ(told.count(), 3);
    for (const CVqQuickToolbarArea* area : {&bar.area(), &bar.popup()}) {
        EXPECT_TRUE(area->IsVertical());
        EXPECT_TRUE(area->IsCustomizing());
        EXPECT_EQ(area->Background(), QColor(0x10, 0x20, 0x30));
    }
    EXPECT_FALSE(bar.area().IsInPicker());
    EXPECT_TRUE(bar.popup().IsInPicker());
}

TEST_F(CVqQuickToolbarAreaTest, HasNoBackgroundUntilOneIsSet)
{
    EXPECT_FALSE(bar.area().Background().isValid());
    bar.toolbar.SetToolbarBackgroundColor(0x102030, 0.5);
    EXPECT_EQ(bar.area().Background().alpha(), 128);

    bar.toolbar.SetToolbarBackgroundColor(CVqAbstractToolbar::NoColor, 1);

    EXPECT_FALSE(bar.area().Background().isValid());
}

TEST_F(CVqQuickToolbarAreaTest, TellsOnceWhenItIsMirrored)
{
    const QSignalSpy told(&bar.area(), &CVqQuickToolbarArea::mirroredChanged);

    bar.area().SetMirrored(true);
    bar.area().SetMirrored(true);

    EXPECT_EQ(told.count(), 1);
    EXPECT_TRUE(bar.popup().IsMirrored());
}

TEST_F(CVqQuickToolbarAreaTest, LaysOutBeforeTheNextFrame)
{
    QQuickWindow window;
    window.resize(400, 100);
    bar.area().setParentItem(window.contentItem());
    window.grabWindow();

    bar.area().setWidth(80);
    EXPECT_EQ(bar.Lies(), "a - b c |");
    window.grabWindow();

    EXPECT_EQ(bar.Lies(), "a - > | b c");
    bar.area().setParentItem(nullptr);
}
