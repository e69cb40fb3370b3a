#include "quick_backend/toolbar/CVqQuickToolbar.h"

#include "tests/quick_backend/toolbar/ToolbarFixture.h"

#include <QPointer>
#include <QQuickWindow>

#include <memory>

namespace {

class CVqQuickToolbarTest : public ToolbarFixture
{
protected:
    CVqQuickItemControl& Insert(const char* name, const IVqUIcontrol& anchor, bool after)
    {
        auto* control = new CVqQuickItemControl(CoreBar::SizedItem(100, 20));
        CoreBar::Name(*control, name);
        vq_uint64 id = 0;
        if (after)
            bar.toolbar.InsertControlAfter(anchor, *control, id);
        else
            bar.toolbar.InsertControlBefore(anchor, *control, id);
        return *control;
    }
};

}

// Life --------------------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarTest, HasNeitherAreaNorPickerBeforeItIsCreated)
{
    CVqQuickToolbar toolbar;

    toolbar.Layout();
    toolbar.RequestLayout();
    toolbar.SetToolbarVisibility(true);

    EXPECT_EQ(toolbar.Area(), nullptr);
    EXPECT_EQ(toolbar.Picker(), nullptr);
    EXPECT_EQ(toolbar.FullSize().m_iWidth, 4);
    EXPECT_EQ(toolbar.SetOrientation(EOrientation::Vertical), -9);
}

TEST_F(CVqQuickToolbarTest, HangsItsAreaBelowTheParent)
{
    QQuickItem parent;
    CVqQuickToolbar toolbar;

    const vq_uint64 handle
        = toolbar.CreateUI(reinterpret_cast<vq_uint64>(&parent), EToolbarType::Main, VQ_TEXT("bar"));

    EXPECT_EQ(handle, reinterpret_cast<vq_uint64>(toolbar.Area()));
    EXPECT_EQ(toolbar.Area()->parentItem(), &parent);
}

TEST_F(CVqQuickToolbarTest, ShowsAndHidesItsArea)
{
    QQuickItem parent;
    CVqQuickToolbar toolbar;
    toolbar.CreateUI(reinterpret_cast<vq_uint64>(&parent), EToolbarType::Main, VQ_TEXT("bar"));
    EXPECT_FALSE(toolbar.Area()->isVisible());

    toolbar.SetToolbarVisibility(true);
    EXPECT_TRUE(toolbar.Area()->isVisible());
    toolbar.SetToolbarVisibility(false);

    EXPECT_FALSE(toolbar.Area()->isVisible());
    EXPECT_FALSE(toolbar.GetToolbarVisibility());
}

TEST_F(CVqQuickToolbarTest, HasAPickerForTypeMainAlone)
{
    for (const auto type : {EToolbarType::Hosted, EToolbarType::Fixed, EToolbarType(77)}) {
        CoreBar other(type);
        other.AddSized("a", 100);
        other.AddSized("b", 100);

        other.Stretch(50);

        EXPECT_EQ(other.toolbar.Picker(), nullptr);
        EXPECT_EQ(other.Lies(), "a b |");
    }
}

TEST_F(CVqQuickToolbarTest, LaysOutATypeWithoutAPickerBeyondItsEnd)
{
    CoreBar fixed(EToolbarType::Fixed);
    fixed.AddSized("a", 100);
    const CVqQuickControl& last = fixed.AddSized("b", 100);

    fixed.Stretch(50);

    EXPECT_EQ(PlaceOf(last), QRectF(103, 10, 100, 20));
    EXPECT_EQ(fixed.area().implicitWidth(), 205);
}

TEST_F(CVqQuickToolbarTest, GivesThePickerItsZoom)
{
    CVqQuickToolbar toolbar;
    toolbar.SetAdditionalToolbarGuiZoom(2);

    toolbar.CreateUI(0, EToolbarType::Main, VQ_TEXT("bar"));

    EXPECT_EQ(toolbar.Picker()->Zoom(), 2);
}

TEST_F(CVqQuickToolbarTest, EndsAllWithItsWidget)
{
    bar.Stretch(150);
    const QPointer<CVqQuickControl> on_bar(&a);
    const QPointer<CVqQuickControl> in_picker(&b);
    const QPointer<CVqQuickToolbarArea> area(&bar.area());
    const QPointer<CVqQuickToolbarArea> popup(&bar.popup());

    bar.toolbar.DestroyUI();

    EXPECT_FALSE(on_bar || in_picker || area || popup);
    EXPECT_EQ(bar.toolbar.Picker(), nullptr);
    bar.toolbar.DestroyUI();
}

TEST_F(CVqQuickToolbarTest, IsCreatedAnew)
{
    bar.Stretch(150);

    bar.toolbar.CreateUI(reinterpret_cast<vq_uint64>(&bar.root), EToolbarType::Main, VQ_TEXT("bar"));
    bar.AddSized("new", 100);
    bar.Stretch(600);

    EXPECT_EQ(bar.Lies(), "new |");
}

TEST_F(CVqQuickToolbarTest, OutlivesTheItemInWhichItsAreaLies)
{
    auto parent = std::make_unique<QQuickItem>();
    bar.area().setParentItem(parent.get());

    parent.reset();
    EXPECT_EQ(bar.area().parentItem(), nullptr);
    bar.area().setParentItem(&bar.root);
    bar.Stretch(150);

    EXPECT_EQ(bar.Lies(), "a > | b c");
}

TEST_F(CVqQuickToolbarTest, OutlivesTheWindowAndTheEngineOfItsLooks)
{
    auto window = std::make_unique<QQuickWindow>();
    auto other_engine = std::make_unique<QQmlEngine>();
    QQmlComponent component(other_engine.get());
    component.setData(
        "import QtQuick\nimport K7.Arbor.QuickBackend\nToolbarLooks { general: Component { Item { "
        "required property QuickControl control } } }",
        QUrl());
    std::unique_ptr<QObject> looks(component.create());
    bar.area().setParentItem(window->contentItem());
    bar.area().SetLooks(qobject_cast<CVqQuickToolbarLooks*>(looks.get()));
    bar.Stretch(150);
    ASSERT_TRUE(LookOf(a));

    looks.reset();
    other_engine.reset();
    window.reset();
    bar.area().setParentItem(&bar.root);
    bar.Stretch(250);

    EXPECT_EQ(bar.Lies(), "a b > | c");
}

TEST_F(CVqQuickToolbarTest, GoesBeforeTheItemInWhichItsAreaLies)
{
    QQuickItem parent;
    auto looks = MakeLooks();
    {
        CoreBar inner;
        inner.area().setParentItem(&parent);
        inner.area().SetLooks(looks.get());
        inner.AddSized("a", 300);
        inner.Stretch(100);
    }

    EXPECT_TRUE(parent.childItems().isEmpty());
}

// Controls ----------------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarTest, PutsANewControlInFrontOfThePicker)
{
    bar.Stretch(150);

    const CVqQuickControl& last = bar.AddSized("d", 100);
    bar.toolbar.Layout();

    EXPECT_EQ(bar.Lies(), "a > | b c d");
    EXPECT_TRUE(last.IsInPicker());
}

TEST_F(CVqQuickToolbarTest, InsertsControlsOnTheBarAndInThePicker)
{
    bar.Stretch(250);
    ASSERT_EQ(bar.Lies(), "a b > | c");

    Insert("before a", a, false);
    Insert("after c", c, true);
    bar.toolbar.Layout();

    EXPECT_EQ(bar.Lies(), "before a a > | b c after c");
}

TEST_F(CVqQuickToolbarTest, RefusesAControlThatItHolds)
{
    vq_uint64 id = 0;

    EXPECT_EQ(bar.toolbar.AddControl(a, id), -9);
    EXPECT_EQ(bar.toolbar.InsertControlAfter(b, a, id), -9);
    bar.toolbar.Layout();

    EXPECT_EQ(bar.Lies(), "a b c |");
}

TEST_F(CVqQuickToolbarTest, RemovesControlsFromThePicker)
{
    bar.Stretch(150);

    EXPECT_EQ(bar.toolbar.RemoveControl(b), 0);
    const std::unique_ptr<CVqQuickControl> owned(&b);
    bar.toolbar.Layout();

    EXPECT_EQ(bar.Lies(), "a > | c");
    EXPECT_EQ(b.Item(), nullptr);
    EXPECT_FALSE(b.IsInPicker());
}

TEST_F(CVqQuickToolbarTest, MovesTheLastControlBackWhenOthersAreRemoved)
{
    bar.Stretch(250);

    bar.toolbar.RemoveControl(a);
    delete &a;
    bar.toolbar.Layout();

    EXPECT_EQ(bar.Lies(), "b c |");
}

TEST_F(CVqQuickToolbarTest, AddsAControlAgainThatWasRemoved)
{
    bar.Stretch(150);
    bar.toolbar.RemoveControl(c);
    vq_uint64 id = 0;

    EXPECT_EQ(bar.toolbar.InsertControlBefore(a, c, id), 0);
    bar.toolbar.Layout();

    EXPECT_EQ(bar.Lies(), "c > | a b");
}

TEST_F(CVqQuickToolbarTest, RemovesAllControlsFromBarAndPicker)
{
    bar.Stretch(150);
    bar.picker().SetOpened(true);
    const QPointer<CVqQuickControl> on_bar(&a);
    const QPointer<CVqQuickControl> in_picker(&b);

    EXPECT_EQ(bar.toolbar.RemoveAllControls(), 0);
    bar.toolbar.Layout();

    EXPECT_FALSE(on_bar || in_picker);
    EXPECT_EQ(bar.Lies(), "|");
    EXPECT_FALSE(bar.picker().IsOpened());
    EXPECT_EQ(bar.picker().Popup().GetFirstNode(), nullptr);
}

TEST_F(CVqQuickToolbarTest, LetsGoOfAPickerThatIsRemoved)
{
    bar.Stretch(150);
    CVqQuickPicker* picker = &bar.picker();

    EXPECT_EQ(bar.toolbar.RemoveControl(*picker), 0);
    delete picker;
    bar.toolbar.Layout();

    EXPECT_EQ(bar.toolbar.Picker(), nullptr);
    EXPECT_EQ(a.Item()->parentItem(), &bar.area());
    EXPECT_EQ(c.Item()->parentItem(), &bar.area());
}

TEST_F(CVqQuickToolbarTest, ChangesTypeWithControlsInThePicker)
{
    bar.Stretch(150);

    bar.toolbar.ChangeToolbarType(EToolbarType::Fixed, true);
    bar.Stretch(600);

    EXPECT_EQ(c.Item()->parentItem(), &bar.area());
}
