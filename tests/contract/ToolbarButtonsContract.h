#pragma once

#include "tests/contract/ToolbarContractFixture.h"

#include <gtest/gtest.h>

#include <vector>

/// Which controls a toolbar holds, in which order, and how they are found.
template <typename Traits>
class ToolbarButtonsContract : public ToolbarContractFixture<Traits>
{ };

TYPED_TEST_SUITE_P(ToolbarButtonsContract);

// Buttons -----------------------------------------------------------------------------------------------

TYPED_TEST_P(ToolbarButtonsContract, AnEmptyBarHoldsItsPickerOnly)
{
    EXPECT_EQ(this->Bar().GetButtonsCount(), 0);
    EXPECT_EQ(this->Bar().GetButtonID(0, false), 0);
    EXPECT_EQ(this->Toolbar().GetFirstNode(), nullptr);
    EXPECT_EQ(this->List().GetFirst(), this->List().GetLast());
    EXPECT_EQ(this->Boundary(), this->List().GetLast());
}

TYPED_TEST_P(ToolbarButtonsContract, AddedControlsComeInOrder)
{
    this->Fill();
    this->Bar().AddTextButton(VQ_TEXT("text"));
    this->Bar().AddGeneralControl(this->m_traits.MakeGeneral(), VQ_TEXT("slider"));

    EXPECT_EQ(this->SettledOrder(), "open save - zoom text slider");
    EXPECT_EQ(this->Bar().GetButtonsCount(), 6);
}

TYPED_TEST_P(ToolbarButtonsContract, InsertedControlsStandBesideTheirAnchor)
{
    const auto ids = this->Fill();

    this->Bar().InsertButtonBefore(ids[0], VQ_TEXT("first"));
    this->Bar().InsertButtonAfter(ids[0], VQ_TEXT("second"));
    this->Bar().InsertTextButtonBefore(ids[3], VQ_TEXT("text"));
    this->Bar().InsertTextButtonAfter(ids[3], VQ_TEXT("last text"));
    this->Bar().InsertSeparatorBefore(ids[1], nullptr);
    this->Bar().InsertSeparatorAfter(ids[3], nullptr);
    this->Bar().InsertGeneralControlBefore(ids[1], this->m_traits.MakeGeneral(), VQ_TEXT("slider"));
    this->Bar().InsertGeneralControlAfter(ids[1], this->m_traits.MakeGeneral(), VQ_TEXT("field"));

    EXPECT_EQ(this->SettledOrder(), "first open second - slider save field - text zoom - last text");
}

TYPED_TEST_P(ToolbarButtonsContract, AnUnknownAnchorAddsNothing)
{
    this->Fill();

    EXPECT_EQ(this->Bar().InsertButtonBefore(1, VQ_TEXT("lost")), 0);
    EXPECT_EQ(this->Bar().InsertTextButtonAfter(1, VQ_TEXT("lost")), 0);
    EXPECT_EQ(this->Bar().InsertSeparatorBefore(1, nullptr), 0);

    EXPECT_EQ(this->SettledOrder(), "open save - zoom");
}

TYPED_TEST_P(ToolbarButtonsContract, AMissingGeneralControlAddsNothing)
{
    const auto ids = this->Fill();

    EXPECT_EQ(this->Bar().AddGeneralControl(nullptr, VQ_TEXT("lost")), 0);
    EXPECT_EQ(this->Bar().InsertGeneralControlAfter(ids[0], nullptr, VQ_TEXT("lost")), 0);

    EXPECT_EQ(this->SettledOrder(), "open save - zoom");
}

TYPED_TEST_P(ToolbarButtonsContract, AControlIsNotAddedTwice)
{
    const auto ids = this->Fill();
    IVqUIcontrol& open = this->Control(ids[0]);
    IVqUIcontrol& save = this->Control(ids[1]);
    vq_uint64 id = 77;

    EXPECT_EQ(this->Toolbar().AddControl(open, id), -9);
    EXPECT_EQ(this->Toolbar().InsertControlBefore(save, open, id), -9);
    EXPECT_EQ(this->Toolbar().InsertControlAfter(save, open, id), -9);

    EXPECT_EQ(id, 77);
    EXPECT_EQ(this->SettledOrder(), "open save - zoom");
}

TYPED_TEST_P(ToolbarButtonsContract, ARemovedButtonIsForgotten)
{
    const auto ids = this->Fill();

    EXPECT_EQ(this->Bar().RemoveButton(ids[1]), 0);

    EXPECT_EQ(this->SettledOrder(), "open - zoom");
    EXPECT_EQ(this->Toolbar().GetControl(ids[1]), nullptr);
    EXPECT_EQ(this->Bar().GetButtonsCount(), 3);
}

TYPED_TEST_P(ToolbarButtonsContract, AnUnknownButtonIsRemovedWithoutAWord)
{
    this->Fill();

    EXPECT_EQ(this->Bar().RemoveButton(1), 0);

    EXPECT_EQ(this->SettledOrder(), "open save - zoom");
}

TYPED_TEST_P(ToolbarButtonsContract, AnEmptiedBarKeepsItsPickerAndTakesButtonsAgain)
{
    this->Fill();
    const void* picker = this->List().GetData(this->List().GetLast());

    EXPECT_EQ(this->Bar().RemoveAllControls(), 0);

    EXPECT_EQ(this->List().GetData(this->List().GetFirst()), picker);
    EXPECT_EQ(this->Boundary(), this->List().GetFirst());
    EXPECT_EQ(this->Toolbar().GetFirstNode(), nullptr);
    EXPECT_EQ(this->Bar().GetButtonsCount(), 0);
    this->Fill();
    EXPECT_EQ(this->SettledOrder(), "open save - zoom");
}

TYPED_TEST_P(ToolbarButtonsContract, ARemovedControlLeavesTheBoundaryInTheList)
{
    const auto ids = this->Fill();
    this->Toolbar().*SOpenToolbar::Boundary = this->List().Find(&this->Control(ids[1]));

    this->Bar().RemoveButton(ids[1]);

    EXPECT_EQ(this->Boundary(), this->List().Find(&this->Control(ids[2])));
}

TYPED_TEST_P(ToolbarButtonsContract, AThousandButtonsKeepTheirOrder)
{
    std::vector<IVqUIcontrol*> added;
    for (int i = 0; i < 1'000; ++i)
        added.push_back(&this->Control(this->Bar().AddButton(VQ_TEXT("b"))));

    this->m_traits.Settle();

    CVqList::CVqNode* node = this->Toolbar().GetFirstNode();
    for (IVqUIcontrol* control : added)
        ASSERT_EQ(this->Toolbar().GetNextControl(node), control);
    EXPECT_EQ(node, nullptr);
}

// Searching ---------------------------------------------------------------------------------------------

TYPED_TEST_P(ToolbarButtonsContract, ButtonsAreFoundByIndex)
{
    const auto ids = this->Fill();

    EXPECT_EQ(this->Bar().GetButtonID(2, false), ids[2]);
    EXPECT_EQ(this->Bar().GetButtonID(2, true), ids[3]);
    EXPECT_EQ(this->Bar().GetButtonID(3, true), 0);
}

TYPED_TEST_P(ToolbarButtonsContract, TheFirstButtonBehindALeadingSeparatorHasIndexZero)
{
    this->Bar().AppendSeparator(nullptr);
    const vq_uint64 open = this->Bar().AddButton(VQ_TEXT("open"));

    EXPECT_EQ(this->Bar().GetButtonID(0, true), open);
}

TYPED_TEST_P(ToolbarButtonsContract, ButtonsAreFoundByTheirExactName)
{
    const auto ids = this->Fill();

    EXPECT_EQ(this->Bar().FindButton(VQ_TEXT("save")), ids[1]);
    EXPECT_EQ(this->Bar().FindButton(VQ_TEXT("Save")), 0);
    EXPECT_EQ(this->Bar().FindButton(VQ_TEXT("")), 0);
    EXPECT_EQ(this->Bar().FindButton(nullptr), 0);
}

TYPED_TEST_P(ToolbarButtonsContract, AnIdentifierIsANumberAndNoText)
{
    this->Fill();
    const CVqStringW name(VQ_TEXT("open"));

    EXPECT_EQ(this->Toolbar().GetControl(reinterpret_cast<vq_uint64>(name.GetString())), nullptr);
    EXPECT_NE(this->Toolbar().GetControlByName(name), nullptr);
}

TYPED_TEST_P(ToolbarButtonsContract, ARenamedButtonIsFoundByItsNewNameAndOldIdentifier)
{
    const auto ids = this->Fill();
    IVqUIcontrol* open = &this->Control(ids[0]);

    EXPECT_EQ(this->Bar().SetButtonName(ids[0], VQ_TEXT("a much longer name than before")), 0);

    EXPECT_EQ(this->Toolbar().GetControlByName(VQ_TEXT("a much longer name than before")), open);
    EXPECT_EQ(this->Toolbar().GetControlByName(VQ_TEXT("open")), nullptr);
    EXPECT_EQ(this->Toolbar().GetControl(ids[0]), open);
}

TYPED_TEST_P(ToolbarButtonsContract, SeparatorsSayThatTheyAre)
{
    const auto ids = this->Fill();

    EXPECT_TRUE(this->Bar().IsIDSeparator(ids[2]));
    EXPECT_FALSE(this->Bar().IsIDSeparator(ids[0]));
    EXPECT_FALSE(this->Bar().IsIDSeparator(1));
}

REGISTER_TYPED_TEST_SUITE_P(ToolbarButtonsContract, AnEmptyBarHoldsItsPickerOnly, AddedControlsComeInOrder,
                            InsertedControlsStandBesideTheirAnchor, AnUnknownAnchorAddsNothing,
                            AMissingGeneralControlAddsNothing, AControlIsNotAddedTwice,
                            ARemovedButtonIsForgotten, AnUnknownButtonIsRemovedWithoutAWord,
                            AnEmptiedBarKeepsItsPickerAndTakesButtonsAgain,
                            ARemovedControlLeavesTheBoundaryInTheList, AThousandButtonsKeepTheirOrder,
                            ButtonsAreFoundByIndex, TheFirstButtonBehindALeadingSeparatorHasIndexZero,
                            ButtonsAreFoundByTheirExactName, AnIdentifierIsANumberAndNoText,
                            ARenamedButtonIsFoundByItsNewNameAndOldIdentifier, SeparatorsSayThatTheyAre);
