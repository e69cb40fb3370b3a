#include "quick_backend/toolbar/CVqQuickControl.h"

#include "quick_backend/toolbar/CVqQuickTextButton.h"
#include "system/CVqVariant.h"
#include "tests/quick_backend/toolbar/CoreBar.h"

#include <QQmlEngine>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

class CVqQuickControlTest : public testing::Test
{
protected:
    int StateCount()
    {
        vq_uint32 count = 0;
        EXPECT_EQ(button.Get(vq_control_state_count, 0, &count), 0);
        return int(count);
    }

    CVqStringW SavedText(int state)
    {
        CVqStringW text;
        button.Get(vq_control_text, state, &text);
        return text;
    }

    CVqQuickButton button;
};

}

// States ------------------------------------------------------------------------------------------------

TEST_F(CVqQuickControlTest, HasOneStateAtFirst)
{
    EXPECT_EQ(StateCount(), 1);
}

TEST_F(CVqQuickControlTest, TakesNoStatesAtAll)
{
    EXPECT_EQ(SetInt(button, vq_control_state_count, 0), 0);

    EXPECT_EQ(StateCount(), 0);
}

TEST_F(CVqQuickControlTest, TakesAsManyStatesAsThereIsRoomFor)
{
    EXPECT_EQ(SetInt(button, vq_control_state_count, 32), 0);

    EXPECT_EQ(StateCount(), 32);
}

TEST_F(CVqQuickControlTest, RefusesMoreStatesThanThereIsRoomFor)
{
    const QSignalSpy told(&button, &CVqQuickControl::lookChanged);

    EXPECT_EQ(SetInt(button, vq_control_state_count, 33), -9);

    EXPECT_EQ(StateCount(), 1);
    EXPECT_EQ(told.count(), 0);
}

TEST_F(CVqQuickControlTest, RefusesNegativeNumbersOfStates)
{
    EXPECT_EQ(SetInt(button, vq_control_state_count, -1), -9);
}

TEST_F(CVqQuickControlTest, EmptiesStatesThatComeBackIntoUse)
{
    SetInt(button, vq_control_state_count, 2);
    SetText(button, vq_control_text, "old", 1);
    SetInt(button, vq_control_state_count, 1);

    SetInt(button, vq_control_state_count, 2);

    EXPECT_TRUE(SavedText(1).IsEmpty());
}

TEST_F(CVqQuickControlTest, KeepsStatesThatStayInUse)
{
    SetText(button, vq_control_text, "kept");

    SetInt(button, vq_control_state_count, 5);

    EXPECT_EQ(button.Text(), u"kept"_s);
}

TEST_F(CVqQuickControlTest, ShowsTheCurrentState)
{
    SetInt(button, vq_control_state_count, 2);
    SetText(button, vq_control_text, "text", 1);
    SetText(button, vq_control_tooltip, "tip", 1);
    SetText(button, vq_control_command, "Run(1)", 1);
    SetInt(button, vq_control_bitmap, 7, 1);

    button.setState(1);

    EXPECT_EQ(button.Text(), u"text"_s);
    EXPECT_EQ(button.Tooltip(), u"tip"_s);
    EXPECT_EQ(button.CommandText(), u"Run(1)"_s);
    EXPECT_EQ(button.ImageIndex(), 7);
}

TEST_F(CVqQuickControlTest, ShowsNothingOfAStateThatIsNotInUse)
{
    SetText(button, vq_control_text, "text");
    SetInt(button, vq_control_bitmap, 7);

    SetInt(button, vq_control_state_count, 0);

    EXPECT_TRUE(button.Text().isEmpty());
    EXPECT_TRUE(button.Tooltip().isEmpty());
    EXPECT_TRUE(button.CommandText().isEmpty());
    EXPECT_EQ(button.ImageIndex(), -1);
}

TEST_F(CVqQuickControlTest, ShowsNothingOfStatesOutsideTheRoom)
{
    for (const int state : {-1, 32, std::numeric_limits<int>::max()}) {
        button.setState(state);

        EXPECT_EQ(button.ImageIndex(), -1) << state;
        EXPECT_TRUE(button.Text().isEmpty()) << state;
    }
}

// Codes -------------------------------------------------------------------------------------------------

TEST_F(CVqQuickControlTest, AnswersNoOtherCodes)
{
    vq_int64 value = 0;
    for (const unsigned code : {3U, 5U, 33U, 161U, 2306U, 2310U}) {
        EXPECT_EQ(button.Get(code, 0, &value), -9) << code;
        EXPECT_EQ(button.Set(code, 0, &value), -9) << code;
        EXPECT_EQ(button.Command(code == 3 || code == 5 ? 99 : code, 0, &value), -9) << code;
    }
}

TEST_F(CVqQuickControlTest, RefusesNullData)
{
    EXPECT_EQ(button.Get(vq_control_state_count, 0, nullptr), -9);
    for (const unsigned code :
         {vq_control_state_count, vq_control_enlarge, vq_control_zoom, vq_control_check})
        EXPECT_EQ(button.Set(code, 0, nullptr), -9) << code;
}

TEST_F(CVqQuickControlTest, CountsZoomWhileTheToolbarEnlarges)
{
    EXPECT_EQ(SetZoom(button, 1.5), 0);
    EXPECT_EQ(button.Zoom(), 1.5);

    EXPECT_EQ(SetInt(button, vq_control_enlarge, 0), 0);
    EXPECT_EQ(button.Zoom(), 1.0);

    EXPECT_EQ(SetInt(button, vq_control_enlarge, 1), 0);
    EXPECT_EQ(button.Zoom(), 1.5);
}

TEST_F(CVqQuickControlTest, RefusesZoomThatIsNotAboveZero)
{
    SetZoom(button, 2);

    for (const double zoom : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(SetZoom(button, zoom), -9) << zoom;

    EXPECT_EQ(button.Zoom(), 2);
}

TEST_F(CVqQuickControlTest, BoundsWhatZoomMakesOfItsSize)
{
    SetZoom(button, std::numeric_limits<double>::infinity());

    EXPECT_EQ(WantedSize(button), QSize(1'000'000, 1'000'000));
}

// Properties --------------------------------------------------------------------------------------------

TEST_F(CVqQuickControlTest, StaysCheckableOnceItWasChecked)
{
    EXPECT_FALSE(button.IsCheckable());
    SetInt(button, vq_control_check, 1);
    EXPECT_TRUE(button.IsCheckable());

    SetInt(button, vq_control_check, 0);

    EXPECT_TRUE(button.IsCheckable());
    EXPECT_FALSE(button.IsChecked());
}

TEST_F(CVqQuickControlTest, HasADropDownOnceItHasAPopup)
{
    EXPECT_FALSE(button.HasDropDown());

    SetInt(button, vq_control_value, 12);

    EXPECT_TRUE(button.HasDropDown());
    EXPECT_EQ(button.DropDownId(), 12U);
}

TEST_F(CVqQuickControlTest, IsShownUnlessAnybodyHidesIt)
{
    EXPECT_TRUE(button.IsShown());

    button.SetControlVisibility(false);
    EXPECT_FALSE(button.IsShown());
    button.SetControlVisibility(true);
    button.SetListedAsHidden(true);
    EXPECT_FALSE(button.IsShown());
    button.SetListedAsHidden(false);
    button.SetHiddenByCommand(true);
    EXPECT_FALSE(button.IsShown());
    button.SetHiddenByCommand(false);

    EXPECT_TRUE(button.IsShown());
    EXPECT_TRUE(button.GetControlVisibility());
}

TEST_F(CVqQuickControlTest, PlacesTextsByTheBitsOfTheirAlignment)
{
    for (const auto place : {CVqQuickControl::TextBelow, CVqQuickControl::TextBefore,
                             CVqQuickControl::TextAbove, CVqQuickControl::TextBehind}) {
        button.SetTextAlign(unsigned(place) | 0xF);

        EXPECT_EQ(button.GetTextPlace(), place);
    }
}

TEST_F(CVqQuickControlTest, BelongsToCpp)
{
    EXPECT_EQ(QQmlEngine::objectOwnership(&button), QQmlEngine::CppOwnership);
}

TEST_F(CVqQuickControlTest, KeepsItsKindWhenATreeResetsItsType)
{
    CVqQuickTextButton text_button;
    CVqVariant tree;
    text_button.Save(tree);

    text_button.Load(tree);

    EXPECT_EQ(text_button.GetKind(), CVqQuickControl::TextButton);
}
