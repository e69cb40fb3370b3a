#include "tests/quick_backend/toolbar/ToolbarFixture.h"
#include "tests/support/RecordingControl.h"

#include <QQuickWindow>

#include <gtest/gtest.h>

namespace {

class CVqQuickToolbarPlacesTest : public ToolbarFixture
{ };

}

// Orientation, zoom, borders ----------------------------------------------------------------------------

TEST_F(CVqQuickToolbarPlacesTest, TurnsControlsOfBarAndPicker)
{
    bar.Stretch(150);

    EXPECT_EQ(bar.toolbar.SetOrientation(EOrientation::Vertical), 0);
    bar.Stretch(60);

    for (const CVqQuickControl* control : std::initializer_list<CVqQuickControl*>{&a, &b, &c, &bar.picker()})
        EXPECT_TRUE(control->IsVertical());
    EXPECT_EQ(bar.Lies(), "a > | b c");
}

TEST_F(CVqQuickToolbarPlacesTest, PutsEverythingIntoOneColumnWhenVertical)
{
    bar.toolbar.SetOrientation(EOrientation::Vertical);
    bar.area().setSize({120, 400});
    bar.toolbar.Layout();

    EXPECT_EQ(PlaceOf(a), QRectF(10, 2, 100, 20));
    EXPECT_EQ(PlaceOf(b), QRectF(10, 23, 100, 20));
    EXPECT_EQ(PlaceOf(c), QRectF(10, 44, 100, 20));
    EXPECT_EQ(bar.area().implicitHeight(), 66);
    EXPECT_EQ(bar.area().implicitWidth(), 104);
}

TEST_F(CVqQuickToolbarPlacesTest, TurnsSeparatorsAloneWhenItsOrientationChangesByDragging)
{
    const CVqQuickSeparator& separator = bar.Take(new CVqQuickSeparator, "-");
    bar.Stretch(150);

    EXPECT_EQ(bar.toolbar.ChangeToolbarOrientation(EOrientation::Vertical), 0);

    EXPECT_TRUE(separator.IsVertical());
    EXPECT_FALSE(a.IsVertical());
    EXPECT_TRUE(bar.area().IsVertical());
}

TEST_F(CVqQuickToolbarPlacesTest, TellsItsZoomToControlsThatAreThere)
{
    bar.Stretch(150);

    bar.toolbar.SetAdditionalToolbarGuiZoom(1.5);
    for (const CVqQuickControl* control : std::initializer_list<CVqQuickControl*>{&a, &b, &bar.picker()})
        EXPECT_EQ(control->Zoom(), 1.5);

    bar.toolbar.EnableEnlargeToolbar(false);

    for (const CVqQuickControl* control : std::initializer_list<CVqQuickControl*>{&a, &b, &bar.picker()})
        EXPECT_EQ(control->Zoom(), 1);
}

TEST_F(CVqQuickToolbarPlacesTest, LiesWithinItsBorders)
{
    bar.toolbar.SetBorders({10, 1, 20, 5});
    bar.Stretch(600);

    EXPECT_EQ(PlaceOf(a), QRectF(10, 1 + (40 - 6 - 20) / 2, 100, 20));
    EXPECT_EQ(bar.area().implicitWidth(), 302 + 30);
    EXPECT_EQ(bar.area().implicitHeight(), 34 + 6);
}

TEST_F(CVqQuickToolbarPlacesTest, MirrorsBordersToo)
{
    bar.toolbar.SetBorders({10, 1, 20, 5});
    bar.area().SetMirrored(true);
    bar.Stretch(600);

    EXPECT_EQ(PlaceOf(a), QRectF(600 - 110, 8, 100, 20));
    EXPECT_EQ(PlaceOf(b), QRectF(600 - 211, 8, 100, 20));
}

TEST_F(CVqQuickToolbarPlacesTest, CutsWhatIsBroaderThanItsArea)
{
    CVqQuickControl& broad = bar.AddSized("broad", 50, 90);
    bar.Stretch(600);

    EXPECT_EQ(PlaceOf(broad).height(), 36);
    EXPECT_EQ(bar.area().implicitHeight(), 94);
}

TEST_F(CVqQuickToolbarPlacesTest, StretchesSeparatorsOverItsBreadth)
{
    const CVqQuickSeparator& separator = bar.Take(new CVqQuickSeparator, "-");
    bar.Stretch(600);

    EXPECT_EQ(PlaceOf(separator), QRectF(2 + 303, 2, 9, 36));
}

// Layout when something changes -------------------------------------------------------------------------

TEST_F(CVqQuickToolbarPlacesTest, LaysOutOnceBeforeTheNextFrame)
{
    QQuickWindow window;
    bar.area().setParentItem(window.contentItem());
    window.grabWindow();
    int layouts = 0;
    bar.toolbar.SetTidyFunction([&layouts] { ++layouts; });

    a.SetControlVisibility(false);
    b.Enable(false);
    SetText(c, vq_control_text, "text");
    EXPECT_EQ(layouts, 0);
    window.grabWindow();

    EXPECT_EQ(layouts, 1);
    EXPECT_EQ(bar.Lies(), "b c |");
    bar.area().setParentItem(nullptr);
    bar.toolbar.SetTidyFunction({});
}

TEST_F(CVqQuickToolbarPlacesTest, LetsItsTidyFunctionHideControls)
{
    bar.toolbar.SetTidyFunction([this] { b.SetControlVisibility(false); });

    bar.toolbar.Layout();

    EXPECT_EQ(bar.Lies(), "a c |");
    EXPECT_EQ(PlaceOf(c).x(), 103);
}

TEST_F(CVqQuickToolbarPlacesTest, LaysOutNoSecondTimeFromWithin)
{
    int layouts = 0;
    bar.toolbar.SetTidyFunction([this, &layouts] {
        ++layouts;
        bar.toolbar.Layout();
    });

    bar.toolbar.Layout();

    EXPECT_EQ(layouts, 1);
    bar.toolbar.SetTidyFunction({});
}

TEST_F(CVqQuickToolbarPlacesTest, FollowsSizesOfItsControls)
{
    bar.Stretch(310);
    EXPECT_EQ(bar.Lies(), "a b c |");

    a.Content()->setImplicitWidth(200);
    bar.toolbar.Layout();

    EXPECT_EQ(bar.Lies(), "a > | b c");
    EXPECT_EQ(PlaceOf(a).width(), 200);
}

TEST_F(CVqQuickToolbarPlacesTest, FollowsSizesOfControlsInThePicker)
{
    bar.Stretch(150);

    b.Content()->setImplicitWidth(40);
    bar.toolbar.Layout();

    EXPECT_EQ(PlaceOf(b).width(), 40);
    EXPECT_EQ(PlaceOf(c).x(), 2 + 41);
}

TEST_F(CVqQuickToolbarPlacesTest, MirrorsWhatIsInThePicker)
{
    bar.Stretch(150);
    ASSERT_EQ(bar.popup().implicitWidth(), 2 + 201 + 2);

    bar.area().SetMirrored(true);
    bar.toolbar.Layout();

    EXPECT_EQ(PlaceOf(b).x(), 205 - 2 - 100);
    EXPECT_EQ(PlaceOf(c).x(), 2);
}

// Controls that Qt Quick does not draw ------------------------------------------------------------------

TEST_F(CVqQuickToolbarPlacesTest, LaysOutForeignControlsAmongItsOwn)
{
    bar.Take(new RecordingControl("foreign"), "foreign").Sized(50, 20);
    const CVqQuickControl& d = bar.AddSized("d", 100);

    bar.Stretch(600);

    EXPECT_EQ(PlaceOf(d).x(), 2 + 303 + 51);
    EXPECT_EQ(bar.area().implicitWidth(), 4 + 454);
}

TEST_F(CVqQuickToolbarPlacesTest, MovesForeignControlsIntoThePicker)
{
    auto* foreign = new RecordingControl("foreign");
    bar.Take(foreign, "foreign").Sized(50, 20);
    const CVqQuickControl& d = bar.AddSized("d", 100);

    bar.Stretch(330);

    EXPECT_EQ(bar.Lies(), "a b c > | d");
    EXPECT_EQ(PlaceOf(d).x(), 2 + 51);
    CVqList::CVqNode* node = bar.picker().Popup().GetFirstNode();
    EXPECT_EQ(bar.picker().Popup().GetNextControl(node), foreign);
}

TEST_F(CVqQuickToolbarPlacesTest, AsksForALayoutWhenAForeignControlIsHidden)
{
    QQuickWindow window;
    bar.area().setParentItem(window.contentItem());
    auto* foreign = new RecordingControl("foreign");
    bar.Take(foreign, "foreign").Sized(50, 20);
    const CVqQuickControl& d = bar.AddSized("d", 100);
    window.grabWindow();

    EXPECT_EQ(bar.toolbar.SetToolbarControlVisibility(*foreign, false), 0);
    window.grabWindow();

    EXPECT_EQ(PlaceOf(d).x(), 2 + 303);
    bar.area().setParentItem(nullptr);
}

TEST_F(CVqQuickToolbarPlacesTest, SeesNoForeignControlAmongThoseOfTheKeyboard)
{
    bar.Take(new RecordingControl("foreign"), "foreign").Sized(50, 20);

    EXPECT_EQ(bar.area().nextControl(&c, 1), &a);
}
