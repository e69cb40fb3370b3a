#include "quick_backend/toolbar_setup/VqToolbarPlace.h"

#include "quick_backend/toolbar/CVqQuickPicker.h"
#include "tests/quick_backend/toolbar_setup/SetupBars.h"

namespace {

class VqToolbarPlaceTest : public testing::Test, protected SetupBars
{
protected:
    static QRectF Rect(const CVqQuickControl* control)
    {
        return {control->Item()->position(), control->Item()->size()};
    }

    static std::string Name(const CVqQuickControl* control)
    {
        if (!control)
            return "none";
        return control->GetKind() == CVqQuickControl::Separator ? "-" : control->Name().toStdString();
    }

    static std::string Found(CVqQuickButtonToolbar& bar, QPointF point)
    {
        const SVqToolbarPlace place = VqToolbarPlace(bar.Toolbar(), *bar.Area(), point);
        return Name(place.m_behind) + ' ' + Name(place.m_before);
    }

    static QRectF Mark(CVqQuickButtonToolbar& bar, QPointF point)
    {
        return VqToolbarPlace(bar.Toolbar(), *bar.Area(), point).m_mark;
    }
};

}

TEST_F(VqToolbarPlaceTest, EachHalfOfAControlBelongsToItsOwnSide)
{
    const QRectF save = Rect(Named(first, "save"));

    EXPECT_EQ(Found(first, save.center() - QPointF(1, 0)), "open save");
    EXPECT_EQ(Found(first, save.center() + QPointF(1, 0)), "save -");
}

TEST_F(VqToolbarPlaceTest, BeyondTheControlsAreTheEnds)
{
    EXPECT_EQ(Found(first, {0, 20}), "none open");
    EXPECT_EQ(Found(first, {599, 20}), "undo none");
}

TEST_F(VqToolbarPlaceTest, ARowIsHitAboveAndBelowItsControls)
{
    const qreal x = Rect(Named(first, "save")).center().x() - 1;

    EXPECT_EQ(Found(first, {x, 0.5}), "open save");
    EXPECT_EQ(Found(first, {x, 39.5}), "open save");
}

TEST_F(VqToolbarPlaceTest, AnUprightBarIsReadDownwards)
{
    const QRectF copy = Rect(Named(second, "copy"));

    EXPECT_EQ(Found(second, copy.center() - QPointF(0, 1)), "cut copy");
    EXPECT_EQ(Found(second, copy.center() + QPointF(0, 1)), "copy none");
}

TEST_F(VqToolbarPlaceTest, AMirroredBarIsReadFromTheRight)
{
    first.Area()->SetMirrored(true);
    first.Toolbar().Layout();
    const QRectF save = Rect(Named(first, "save"));

    EXPECT_EQ(Found(first, save.center() + QPointF(1, 0)), "open save");
    EXPECT_EQ(Found(first, {599, 20}), "none open");
}

TEST_F(VqToolbarPlaceTest, HiddenControlsHaveNoPlace)
{
    Named(first, "save")->SetControlVisibility(false);
    Settle();

    const QRectF open = Rect(Named(first, "open"));
    EXPECT_EQ(Found(first, open.center() + QPointF(1, 0)), "open -");
}

TEST_F(VqToolbarPlaceTest, TheMarkStandsBetweenTheTwoControls)
{
    const QRectF open = Rect(Named(first, "open"));
    const QRectF save = Rect(Named(first, "save"));

    const QRectF mark = Mark(first, save.center() - QPointF(1, 0));

    EXPECT_DOUBLE_EQ(mark.center().x(), (open.right() + save.left()) / 2);
    EXPECT_EQ(mark.height(), 40);
}

TEST_F(VqToolbarPlaceTest, TheMarkOfAnUprightBarLies)
{
    const QRectF cut = Rect(Named(second, "cut"));
    const QRectF copy = Rect(Named(second, "copy"));

    const QRectF mark = Mark(second, copy.center() - QPointF(0, 1));

    EXPECT_DOUBLE_EQ(mark.center().y(), (cut.bottom() + copy.top()) / 2);
    EXPECT_EQ(mark.width(), 60);
}

TEST_F(VqToolbarPlaceTest, TheMarkAtTheEndStandsBehindTheLast)
{
    const QRectF undo = Rect(Named(first, "undo"));

    EXPECT_DOUBLE_EQ(Mark(first, {599, 20}).center().x(), undo.right() + 0.5);
}

TEST_F(VqToolbarPlaceTest, AnEmptyBarHasOnePlace)
{
    second.RemoveAllControls();

    EXPECT_EQ(Found(second, {30, 200}), "none none");
    EXPECT_FALSE(Mark(second, {30, 200}).isEmpty());
}

TEST_F(VqToolbarPlaceTest, ThePickerShowsItsOwnControlsLineByLine)
{
    first.Area()->setSize({60, 40});
    first.Toolbar().Layout();
    CVqQuickPicker& picker = *first.Toolbar().Picker();
    picker.Popup().Layout();
    const QRectF zoom = Rect(Named(first, "zoom"));

    const SVqToolbarPlace place
        = VqToolbarPlace(first.Toolbar(), *picker.Area(), zoom.center() + QPointF(1, 0));

    EXPECT_EQ(Name(place.m_behind), "zoom");
    EXPECT_EQ(Name(place.m_before), "undo");
}

TEST_F(VqToolbarPlaceTest, ThePickerOfAMirroredUprightBarIsReadColumnByColumnFromTheRight)
{
    for (int number = 10; number < 30; ++number)
        Add(second, ("button" + std::to_string(number)).c_str(), "");
    second.Area()->SetMirrored(true);
    second.Area()->setSize({60, 40});
    second.Toolbar().Layout();
    CVqQuickPicker& picker = *second.Toolbar().Picker();
    picker.Popup().Layout();
    picker.Area()->setSize({picker.Area()->implicitWidth(), picker.Area()->implicitHeight()});
    const QRectF last = Rect(Named(second, "button29"));
    ASSERT_LT(last.right(), Rect(Named(second, "button10")).left());

    const auto place = [&](QPointF point) { return VqToolbarPlace(second.Toolbar(), *picker.Area(), point); };
    const SVqToolbarPlace above = place(last.center() - QPointF(0, 1));
    const SVqToolbarPlace below = place(last.center() + QPointF(0, 1));

    EXPECT_EQ(Name(above.m_behind) + ' ' + Name(above.m_before), "button28 button29");
    EXPECT_EQ(Name(below.m_behind) + ' ' + Name(below.m_before), "button29 none");
    EXPECT_DOUBLE_EQ(below.m_mark.center().x(), last.center().x());
}
