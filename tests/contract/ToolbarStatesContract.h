#pragma once

#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "tests/contract/ToolbarContractFixture.h"

#include <gtest/gtest.h>

/// What is told to a toolbar and its controls, and what of them shows.
template <typename Traits>
class ToolbarStatesContract : public ToolbarContractFixture<Traits>
{ };

TYPED_TEST_SUITE_P(ToolbarStatesContract);

// States ------------------------------------------------------------------------------------------------

TYPED_TEST_P(ToolbarStatesContract, EachStateHasItsTexts)
{
    const vq_uint64 id = this->Bar().AddButton(VQ_TEXT("tool"));
    CVqStringW text;
    CVqStringW tooltip;
    CVqStringW command;
    unsigned count = 0;

    EXPECT_EQ(this->Bar().SetStatesCountOnButton(id, 3), 0);
    EXPECT_EQ(this->Bar().SetTextsOnButton(id, 2, VQ_TEXT("tip"), VQ_TEXT("text"), VQ_TEXT("Run")), 0);
    this->Bar().GetStatesCountOnButton(id, count);
    this->Bar().GetTextOnButton(id, 2, text);
    this->Bar().GetTooltipOnButton(id, 2, tooltip);
    this->Bar().GetCommandOnButton(id, 2, command);

    EXPECT_EQ(count, 3U);
    EXPECT_EQ(text, VQ_TEXT("text"));
    EXPECT_EQ(tooltip, VQ_TEXT("tip"));
    EXPECT_EQ(command, VQ_TEXT("Run"));
}

TYPED_TEST_P(ToolbarStatesContract, OneTextChangesAlone)
{
    const vq_uint64 id = this->Bar().AddButton(VQ_TEXT("tool"));
    CVqStringW text;
    CVqStringW tooltip;
    CVqStringW command;
    this->Bar().SetTextsOnButton(id, 0, VQ_TEXT("tip"), VQ_TEXT("text"), VQ_TEXT("Run"));

    this->Bar().SetTooltipOnButton(id, 0, VQ_TEXT("other tip"));
    this->Bar().SetCommandOnButton(id, 0, VQ_TEXT("Walk"));
    this->Bar().GetTextOnButton(id, 0, text);
    this->Bar().GetTooltipOnButton(id, 0, tooltip);
    this->Bar().GetCommandOnButton(id, 0, command);

    EXPECT_EQ(text, VQ_TEXT("text"));
    EXPECT_EQ(tooltip, VQ_TEXT("other tip"));
    EXPECT_EQ(command, VQ_TEXT("Walk"));
}

TYPED_TEST_P(ToolbarStatesContract, BadStatesAndUnknownButtonsHaveTheirCodes)
{
    const vq_uint64 id = this->Bar().AddButton(VQ_TEXT("tool"));
    CVqStringW text(VQ_TEXT("kept"));

    EXPECT_EQ(this->Bar().GetTextOnButton(id, 1, text), -17);
    EXPECT_EQ(this->Bar().GetTextOnButton(1, 0, text), -9);
    EXPECT_EQ(this->Bar().SetTextsOnButton(1, 0, VQ_TEXT(""), VQ_TEXT(""), VQ_TEXT("")), 0);
    EXPECT_EQ(this->Bar().GetBitmap(1, 0), -1);
    EXPECT_EQ(this->Bar().SetButtonName(1, VQ_TEXT("x")), -9);
    EXPECT_EQ(text, VQ_TEXT("kept"));
}

TYPED_TEST_P(ToolbarStatesContract, TheImageIndexOfAStateIsKept)
{
    const vq_uint64 id = this->Bar().AddButton(VQ_TEXT("tool"));

    EXPECT_EQ(this->Bar().SetBitmapOnButton(id, 0, 7U), 0);

    EXPECT_EQ(this->Bar().GetBitmap(id, 0), 7);
}

TYPED_TEST_P(ToolbarStatesContract, ButtonsAreCheckedAndEnabledOneByOne)
{
    const auto ids = this->Fill();

    this->Bar().SetCheck(ids[0], true);
    this->Bar().Enable(ids[1], false);

    EXPECT_TRUE(this->Bar().GetCheck(ids[0]));
    EXPECT_FALSE(this->Bar().GetCheck(ids[1]));
    EXPECT_TRUE(this->Bar().IsEnabled(ids[0]));
    EXPECT_FALSE(this->Bar().IsEnabled(ids[1]));
    EXPECT_FALSE(this->Bar().IsEnabled(1));
}

TYPED_TEST_P(ToolbarStatesContract, AllAreEnabledAndDisabledAtOnce)
{
    const auto ids = this->Fill();

    this->Bar().EnableAll(false);
    const vq_uint64 later = this->Bar().AddButton(VQ_TEXT("later"));

    EXPECT_FALSE(this->Bar().IsEnabledAll());
    EXPECT_FALSE(this->Bar().IsEnabled(ids[0]));
    EXPECT_TRUE(this->Bar().IsEnabled(later));
}

// Visibility and separators -----------------------------------------------------------------------------

TYPED_TEST_P(ToolbarStatesContract, AHiddenButtonKeepsItsPlace)
{
    const auto ids = this->Fill();

    this->Bar().SetButtonVisibility(ids[1], false);
    EXPECT_EQ(this->SettledOrder(), "open (save) - zoom");
    EXPECT_FALSE(this->Bar().GetButtonVisibility(ids[1]));

    this->Bar().SetButtonVisibility(ids[1], true);
    EXPECT_EQ(this->SettledOrder(), "open save - zoom");
}

TYPED_TEST_P(ToolbarStatesContract, BothStoresHideAButtonAndLeaveItsOwnVisibility)
{
    const auto ids = this->Fill();

    VQ_SetToolbarButtonAsHidden(VQ_TEXT("bar"), VQ_TEXT("open"), true, false);
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("bar"), VQ_TEXT("save"), true, true);
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("other"), VQ_TEXT("zoom"), true, false);

    EXPECT_FALSE(this->Bar().GetButtonVisibility(ids[0]));
    EXPECT_FALSE(this->Bar().GetButtonVisibility(ids[1]));
    EXPECT_TRUE(this->Bar().GetButtonVisibility(ids[3]));
    EXPECT_TRUE(this->Control(ids[0]).GetControlVisibility());
    EXPECT_EQ(this->Order().substr(0, 13), "(open) (save)");
}

TYPED_TEST_P(ToolbarStatesContract, ASeparatorStandsBetweenTwoShownGroupsOnly)
{
    const auto ids = this->Fill();
    this->Bar().InsertSeparatorAfter(ids[2], nullptr);
    EXPECT_EQ(this->SettledOrder(), "open save - (-) zoom");

    this->Bar().SetButtonVisibility(ids[0], false);
    this->Bar().SetButtonVisibility(ids[1], false);
    EXPECT_EQ(this->SettledOrder(), "(open) (save) (-) (-) zoom");

    this->Bar().SetButtonVisibility(ids[1], true);
    EXPECT_EQ(this->SettledOrder(), "(open) save - (-) zoom");
}

TYPED_TEST_P(ToolbarStatesContract, ASeparatorThatTheTidyingShowsGoesAtTheEnd)
{
    const auto ids = this->Fill();
    this->Bar().SetButtonVisibility(ids[2], false);
    this->Bar().SetButtonVisibility(ids[3], false);

    EXPECT_EQ(this->SettledOrder(), "open save (-) (zoom)");
}

TYPED_TEST_P(ToolbarStatesContract, ALeadingSeparatorGoesWithDragAndDrop)
{
    this->Bar().AppendSeparator(nullptr);
    this->Bar().AddButton(VQ_TEXT("open"));
    EXPECT_EQ(this->SettledOrder(), "- open");

    this->Bar().EnableToolbarDragDrop(true);

    EXPECT_EQ(this->SettledOrder(), "(-) open");
}

// The whole toolbar -------------------------------------------------------------------------------------

TYPED_TEST_P(ToolbarStatesContract, WhatTheToolbarIsToldItAnswers)
{
    this->Bar().EnableEnlargeToolbar(false);
    this->Bar().SetAdditionalToolbarGuiZoom(1.5);
    this->Bar().EnableToolbarDragDrop(true);
    this->Bar().SetVisibility(false);
    this->Bar().ChangeToolbarOrientation(EOrientation::Vertical);
    EOrientation orientation = EOrientation::Horizontal;
    this->Toolbar().GetOrientation(orientation);

    EXPECT_FALSE(this->Bar().IsToolbarEnlargeEnabled());
    EXPECT_EQ(this->Bar().GetAdditionalToolbarGuiZoom(), 1.5);
    EXPECT_TRUE(this->Bar().IsToolbarDragDropEnabled());
    EXPECT_FALSE(this->Bar().GetVisibility());
    EXPECT_EQ(orientation, EOrientation::Vertical);
}

TYPED_TEST_P(ToolbarStatesContract, AnUprightButtonHasTheSizeThatItIsGiven)
{
    const auto ids = this->Fill();
    CVqSizeBase<int> size;
    this->Toolbar().SetOrientation(EOrientation::Vertical);

    EXPECT_EQ(this->Bar().SetButtonSize(ids[0], 40, 30), 0);
    EXPECT_EQ(this->Bar().GetButtonSize(ids[0], size, -1), 0);
    EXPECT_EQ(this->Bar().SetButtonSize(1, 40, 30), -9);

    EXPECT_EQ(size, (CVqSizeBase<int>{40, 30}));
}

TYPED_TEST_P(ToolbarStatesContract, AnUnknownCodeIsRefused)
{
    const auto ids = this->Fill();
    int value = 0;

    EXPECT_EQ(this->Bar().Get(ids[0], 9'999, 0, &value), -9);
    EXPECT_EQ(this->Bar().Set(ids[0], 9'999, 0, &value), -9);
    EXPECT_EQ(this->Bar().Command(ids[0], 9'999, 0, &value), -9);
}

REGISTER_TYPED_TEST_SUITE_P(ToolbarStatesContract, EachStateHasItsTexts, OneTextChangesAlone,
                            BadStatesAndUnknownButtonsHaveTheirCodes, TheImageIndexOfAStateIsKept,
                            ButtonsAreCheckedAndEnabledOneByOne, AllAreEnabledAndDisabledAtOnce,
                            AHiddenButtonKeepsItsPlace, BothStoresHideAButtonAndLeaveItsOwnVisibility,
                            ASeparatorStandsBetweenTwoShownGroupsOnly,
                            ASeparatorThatTheTidyingShowsGoesAtTheEnd, ALeadingSeparatorGoesWithDragAndDrop,
                            WhatTheToolbarIsToldItAnswers, AnUprightButtonHasTheSizeThatItIsGiven,
                            AnUnknownCodeIsRefused);
