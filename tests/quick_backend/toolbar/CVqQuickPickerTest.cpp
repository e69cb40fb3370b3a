#include "quick_backend/toolbar/CVqQuickPicker.h"

#include "tests/quick_backend/toolbar/CoreBar.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class CVqQuickPickerTest : public testing::Test
{
protected:
    CVqQuickPicker picker;
};

/// A toolbar with three controls of 100 pixels, of which the first fits beside the picker.
class CVqQuickPickerOfBarTest : public testing::Test
{
protected:
    CVqQuickPickerOfBarTest() { bar.Stretch(150); }

    CoreBar bar;
    CVqQuickItemControl& a = bar.AddSized("a", 100);
    CVqQuickItemControl& b = bar.AddSized("b", 100);
    CVqQuickItemControl& c = bar.AddSized("c", 100);
};

}

TEST_F(CVqQuickPickerTest, IsAPicker)
{
    EXPECT_EQ(picker.GetKind(), CVqQuickControl::Picker);
    EXPECT_EQ(picker.type(), CVqQuickControl::Picker);
}

TEST_F(CVqQuickPickerTest, IsAsBroadAsAButton)
{
    EXPECT_EQ(WantedSize(picker), QSize(20, 34));
    SetZoom(picker, 1.5);
    EXPECT_EQ(WantedSize(picker), QSize(30, 51));

    picker.SetOrientation(EOrientation::Vertical);

    EXPECT_EQ(WantedSize(picker), QSize(51, 30));
}

TEST_F(CVqQuickPickerTest, HasAnAreaWhileItHasAWidget)
{
    const QSignalSpy told(&picker, &CVqQuickPicker::areaChanged);
    EXPECT_EQ(picker.Area(), nullptr);

    EXPECT_NE(picker.CreateUI(0), 0U);
    ASSERT_TRUE(picker.Area());
    EXPECT_TRUE(picker.Area()->IsInPicker());
    EXPECT_EQ(told.count(), 1);
    picker.DestroyUI();

    EXPECT_EQ(picker.Area(), nullptr);
    EXPECT_EQ(told.count(), 2);
}

TEST_F(CVqQuickPickerTest, RefusesToTakeNothing)
{
    picker.CreateUI(0);

    EXPECT_EQ(picker.Command(vq_picker_take, 0, nullptr), -9);
}

TEST_F(CVqQuickPickerTest, RefusesToTakeAnythingWithoutAWidget)
{
    CVqQuickButton button;

    EXPECT_EQ(picker.Command(vq_picker_take, 0, static_cast<IVqUIcontrol*>(&button)), -9);
}

TEST_F(CVqQuickPickerTest, TakesTheFrameOfAControl)
{
    picker.CreateUI(0);
    CVqQuickButton button;
    button.CreateUI(0);

    EXPECT_EQ(picker.Command(vq_picker_take, 0, static_cast<IVqUIcontrol*>(&button)), 0);

    EXPECT_EQ(button.Item()->parentItem(), picker.Area());
    EXPECT_TRUE(button.IsInPicker());
}

TEST_F(CVqQuickPickerTest, AnswersItsCodes)
{
    CVqList list;
    CVqAbstractToolbar::id_map_type map;

    EXPECT_EQ(picker.Set(vq_picker_list, 0, &list), 0);
    EXPECT_EQ(picker.Set(vq_picker_map, 0, &map), 0);
    EXPECT_EQ(picker.Set(vq_picker_boundary, 0, nullptr), 0);
    EXPECT_EQ(picker.Set(vq_picker_callback, 0, nullptr), 0);

    picker.Set(vq_picker_list, 0, nullptr);
    picker.Set(vq_picker_map, 0, nullptr);
}

TEST_F(CVqQuickPickerTest, AnswersTheOtherCodesLikeAnyControl)
{
    vq_int32 value = 1;

    EXPECT_EQ(picker.Set(vq_control_check, 0, &value), 0);
    EXPECT_TRUE(picker.IsChecked());
    EXPECT_EQ(picker.Set(99, 0, &value), -9);
    EXPECT_EQ(picker.Command(vq_control_clear_states, 0, nullptr), 0);
    EXPECT_EQ(picker.Command(99, 0, nullptr), -9);
}

TEST_F(CVqQuickPickerTest, TellsWhenItIsOpenedAndClosed)
{
    const QSignalSpy told(&picker, &CVqQuickPicker::openedChanged);

    picker.SetOpened(true);
    picker.SetOpened(true);
    EXPECT_TRUE(picker.IsOpened());
    picker.SetOpened(false);

    EXPECT_FALSE(picker.IsOpened());
    EXPECT_EQ(told.count(), 2);
}

TEST_F(CVqQuickPickerTest, ClosesWithItsWidget)
{
    picker.CreateUI(0);
    picker.SetOpened(true);

    picker.DestroyUI();

    EXPECT_FALSE(picker.IsOpened());
}

TEST_F(CVqQuickPickerOfBarTest, SharesControlsWithItsToolbar)
{

    EXPECT_EQ(bar.picker().Popup().GetControl(b.GetControlID()), &b);
    EXPECT_EQ(bar.picker().Popup().GetControlByName(VQ_TEXT("c")), &c);
    EXPECT_EQ(bar.picker().Popup().GetControlByName(VQ_TEXT("a")), nullptr);
}

TEST_F(CVqQuickPickerOfBarTest, WalksOverWhatItHolds)
{

    CVqList::CVqNode* node = bar.picker().Popup().GetFirstNode();
    EXPECT_EQ(bar.picker().Popup().GetNextControl(node), &b);
    EXPECT_EQ(bar.picker().Popup().GetNextControl(node), &c);
    EXPECT_EQ(node, nullptr);
}

TEST_F(CVqQuickPickerOfBarTest, ShowsWhileItHoldsAShownControl)
{
    EXPECT_EQ(bar.Lies(), "a > | b c");

    b.SetControlVisibility(false);
    c.SetHiddenByCommand(true);
    bar.toolbar.Layout();

    EXPECT_EQ(bar.Lies(), "a |");
}

TEST_F(CVqQuickPickerOfBarTest, ClosesWhenItHoldsNothing)
{
    bar.picker().SetOpened(true);
    bar.Stretch(200);
    EXPECT_TRUE(bar.picker().IsOpened());

    bar.Stretch(600);

    EXPECT_FALSE(bar.picker().IsOpened());
}

TEST_F(CVqQuickPickerOfBarTest, StandsAtTheFarEnd)
{

    EXPECT_EQ(PlaceOf(bar.picker()), QRectF(150 - 2 - 20, 3, 20, 34));
}

TEST_F(CVqQuickPickerOfBarTest, TellsItsLookNothingWhileNothingMoves)
{
    const QSignalSpy told(&bar.picker(), &CVqQuickControl::lookChanged);
    const QSignalSpy told_of_control(&b, &CVqQuickControl::lookChanged);

    for (int length = 151; length < 200; ++length)
        bar.Stretch(length);

    EXPECT_EQ(told.count(), 0);
    EXPECT_EQ(told_of_control.count(), 0);
}
