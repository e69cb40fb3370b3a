#pragma once

#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqVariant.h"
#include "tests/contract/RandomToolbar.h"
#include "tests/contract/ToolbarModel.h"

#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

/// What every back end of a toolbar of buttons must keep, whatever it draws: list, map, boundary and what is
/// shown agree with each other and with what was asked for.
///
/// A back end joins with a traits class and one line. The object of the traits class lives as long as a test:
///
///     struct MyTraits
///     {
///         CVqAbstractButtonToolbar& Bar();   // of type Main, named "bar", empty at first
///         CVqAbstractToolbar& Toolbar();     // that of the bar
///         IVqUIcontrol* MakeGeneral();       // a control that no factory of the bar makes
///         void Settle();                     // does what waits for the next frame; tidies separators
///         bool IsShown(IVqUIcontrol&);       // takes room, on the toolbar or in the picker
///         bool IsInPicker(IVqUIcontrol&);
///         void SetLength(int);               // lays out in so many pixels; only if the back end has a
///         layout
///     };
///     INSTANTIATE_TYPED_TEST_SUITE_P(MyBackEnd, ToolbarContract, MyTraits);
template <typename Traits>
class ToolbarContract : public testing::Test
{
protected:
    ~ToolbarContract() override
    {
        for (const bool system : {false, true})
            VQ_SetToolbarButtonAsHidden(VQ_TEXT("bar"), nullptr, false, system);
    }

    CVqAbstractButtonToolbar& Bar() { return m_traits.Bar(); }
    CVqAbstractToolbar& Toolbar() { return m_traits.Toolbar(); }
    IVqUIcontrol& Control(vq_uint64 id) { return *Toolbar().GetControl(id); }

    static std::string Plain(const vq_wchar* text) { return CVqStringW(text).ToQString().toStdString(); }

    /// The names of all controls in order; "-" for a separator, "(name)" for one that is not shown.
    std::string Order()
    {
        std::string out;
        for (CVqList::CVqNode* node = Toolbar().GetFirstNode(); node;) {
            IVqUIcontrol& control = *Toolbar().GetNextControl(node);
            int separator = 0;
            control.Get(vq_control_separator, 0, &separator);
            const std::string name = separator ? "-" : Plain(ToolbarModel::NameOf(control).c_str());
            out += (out.empty() ? "" : " ") + (m_traits.IsShown(control) ? name : "(" + name + ")");
        }
        return out;
    }

    std::string SettledOrder()
    {
        m_traits.Settle();
        return Order();
    }

    /// Adds open, save, a separator and zoom, and gives their identifiers.
    std::vector<vq_uint64> Fill()
    {
        return {Bar().AddButton(VQ_TEXT("open")), Bar().AddButton(VQ_TEXT("save")),
                Bar().AppendSeparator(nullptr), Bar().AddButton(VQ_TEXT("zoom"))};
    }

    const CVqList& List() { return *(Toolbar().*SOpenToolbar::Controls); }
    const CVqList::CVqNode* Boundary() { return Toolbar().*SOpenToolbar::Boundary; }

    Traits m_traits;
};

TYPED_TEST_SUITE_P(ToolbarContract);

// Buttons ----------------------------------------------------------------------------------------------

TYPED_TEST_P(ToolbarContract, AnEmptyBarHoldsItsPickerOnly)
{
    EXPECT_EQ(this->Bar().GetButtonsCount(), 0);
    EXPECT_EQ(this->Bar().GetButtonID(0, false), 0);
    EXPECT_EQ(this->Toolbar().GetFirstNode(), nullptr);
    EXPECT_EQ(this->List().GetFirst(), this->List().GetLast());
    EXPECT_EQ(this->Boundary(), this->List().GetLast());
}

TYPED_TEST_P(ToolbarContract, AddedControlsComeInOrder)
{
    this->Fill();
    this->Bar().AddTextButton(VQ_TEXT("text"));
    this->Bar().AddGeneralControl(this->m_traits.MakeGeneral(), VQ_TEXT("slider"));

    EXPECT_EQ(this->SettledOrder(), "open save - zoom text slider");
    EXPECT_EQ(this->Bar().GetButtonsCount(), 6);
}

TYPED_TEST_P(ToolbarContract, InsertedControlsStandBesideTheirAnchor)
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

TYPED_TEST_P(ToolbarContract, AnUnknownAnchorAddsNothing)
{
    this->Fill();

    EXPECT_EQ(this->Bar().InsertButtonBefore(1, VQ_TEXT("lost")), 0);
    EXPECT_EQ(this->Bar().InsertTextButtonAfter(1, VQ_TEXT("lost")), 0);
    EXPECT_EQ(this->Bar().InsertSeparatorBefore(1, nullptr), 0);

    EXPECT_EQ(this->SettledOrder(), "open save - zoom");
}

TYPED_TEST_P(ToolbarContract, AMissingGeneralControlAddsNothing)
{
    const auto ids = this->Fill();

    EXPECT_EQ(this->Bar().AddGeneralControl(nullptr, VQ_TEXT("lost")), 0);
    EXPECT_EQ(this->Bar().InsertGeneralControlAfter(ids[0], nullptr, VQ_TEXT("lost")), 0);

    EXPECT_EQ(this->SettledOrder(), "open save - zoom");
}

TYPED_TEST_P(ToolbarContract, AControlIsNotAddedTwice)
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

TYPED_TEST_P(ToolbarContract, ARemovedButtonIsForgotten)
{
    const auto ids = this->Fill();

    EXPECT_EQ(this->Bar().RemoveButton(ids[1]), 0);

    EXPECT_EQ(this->SettledOrder(), "open - zoom");
    EXPECT_EQ(this->Toolbar().GetControl(ids[1]), nullptr);
    EXPECT_EQ(this->Bar().GetButtonsCount(), 3);
}

TYPED_TEST_P(ToolbarContract, AnUnknownButtonIsRemovedWithoutAWord)
{
    this->Fill();

    EXPECT_EQ(this->Bar().RemoveButton(1), 0);

    EXPECT_EQ(this->SettledOrder(), "open save - zoom");
}

TYPED_TEST_P(ToolbarContract, AnEmptiedBarKeepsItsPickerAndTakesButtonsAgain)
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

TYPED_TEST_P(ToolbarContract, ARemovedControlLeavesTheBoundaryInTheList)
{
    const auto ids = this->Fill();
    this->Toolbar().*SOpenToolbar::Boundary = this->List().Find(&this->Control(ids[1]));

    this->Bar().RemoveButton(ids[1]);

    EXPECT_EQ(this->Boundary(), this->List().Find(&this->Control(ids[2])));
}

TYPED_TEST_P(ToolbarContract, AThousandButtonsKeepTheirOrder)
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

// Searching --------------------------------------------------------------------------------------------

TYPED_TEST_P(ToolbarContract, ButtonsAreFoundByIndex)
{
    const auto ids = this->Fill();

    EXPECT_EQ(this->Bar().GetButtonID(2, false), ids[2]);
    EXPECT_EQ(this->Bar().GetButtonID(2, true), ids[3]);
    EXPECT_EQ(this->Bar().GetButtonID(3, true), 0);
}

TYPED_TEST_P(ToolbarContract, TheFirstButtonBehindALeadingSeparatorHasIndexZero)
{
    this->Bar().AppendSeparator(nullptr);
    const vq_uint64 open = this->Bar().AddButton(VQ_TEXT("open"));

    EXPECT_EQ(this->Bar().GetButtonID(0, true), open);
}

TYPED_TEST_P(ToolbarContract, ButtonsAreFoundByTheirExactName)
{
    const auto ids = this->Fill();

    EXPECT_EQ(this->Bar().FindButton(VQ_TEXT("save")), ids[1]);
    EXPECT_EQ(this->Bar().FindButton(VQ_TEXT("Save")), 0);
    EXPECT_EQ(this->Bar().FindButton(VQ_TEXT("")), 0);
    EXPECT_EQ(this->Bar().FindButton(nullptr), 0);
}

TYPED_TEST_P(ToolbarContract, AnIdentifierIsANumberAndNoText)
{
    this->Fill();
    const CVqStringW name(VQ_TEXT("open"));

    EXPECT_EQ(this->Toolbar().GetControl(reinterpret_cast<vq_uint64>(name.GetString())), nullptr);
    EXPECT_NE(this->Toolbar().GetControlByName(name), nullptr);
}

TYPED_TEST_P(ToolbarContract, ARenamedButtonIsFoundByItsNewNameAndOldIdentifier)
{
    const auto ids = this->Fill();
    IVqUIcontrol* open = &this->Control(ids[0]);

    EXPECT_EQ(this->Bar().SetButtonName(ids[0], VQ_TEXT("a much longer name than before")), 0);

    EXPECT_EQ(this->Toolbar().GetControlByName(VQ_TEXT("a much longer name than before")), open);
    EXPECT_EQ(this->Toolbar().GetControlByName(VQ_TEXT("open")), nullptr);
    EXPECT_EQ(this->Toolbar().GetControl(ids[0]), open);
}

TYPED_TEST_P(ToolbarContract, SeparatorsSayThatTheyAre)
{
    const auto ids = this->Fill();

    EXPECT_TRUE(this->Bar().IsIDSeparator(ids[2]));
    EXPECT_FALSE(this->Bar().IsIDSeparator(ids[0]));
    EXPECT_FALSE(this->Bar().IsIDSeparator(1));
}

// States -----------------------------------------------------------------------------------------------

TYPED_TEST_P(ToolbarContract, EachStateHasItsTexts)
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

TYPED_TEST_P(ToolbarContract, OneTextChangesAlone)
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

TYPED_TEST_P(ToolbarContract, BadStatesAndUnknownButtonsHaveTheirCodes)
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

TYPED_TEST_P(ToolbarContract, TheImageIndexOfAStateIsKept)
{
    const vq_uint64 id = this->Bar().AddButton(VQ_TEXT("tool"));

    EXPECT_EQ(this->Bar().SetBitmapOnButton(id, 0, 7U), 0);

    EXPECT_EQ(this->Bar().GetBitmap(id, 0), 7);
}

TYPED_TEST_P(ToolbarContract, ButtonsAreCheckedAndEnabledOneByOne)
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

TYPED_TEST_P(ToolbarContract, AllAreEnabledAndDisabledAtOnce)
{
    const auto ids = this->Fill();

    this->Bar().EnableAll(false);
    const vq_uint64 later = this->Bar().AddButton(VQ_TEXT("later"));

    EXPECT_FALSE(this->Bar().IsEnabledAll());
    EXPECT_FALSE(this->Bar().IsEnabled(ids[0]));
    EXPECT_TRUE(this->Bar().IsEnabled(later));
}

// Visibility and separators ----------------------------------------------------------------------------

TYPED_TEST_P(ToolbarContract, AHiddenButtonKeepsItsPlace)
{
    const auto ids = this->Fill();

    this->Bar().SetButtonVisibility(ids[1], false);
    EXPECT_EQ(this->SettledOrder(), "open (save) - zoom");
    EXPECT_FALSE(this->Bar().GetButtonVisibility(ids[1]));

    this->Bar().SetButtonVisibility(ids[1], true);
    EXPECT_EQ(this->SettledOrder(), "open save - zoom");
}

TYPED_TEST_P(ToolbarContract, BothStoresHideAButtonAndLeaveItsOwnVisibility)
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

TYPED_TEST_P(ToolbarContract, ASeparatorStandsBetweenTwoShownGroupsOnly)
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

TYPED_TEST_P(ToolbarContract, ASeparatorThatTheTidyingShowsGoesAtTheEnd)
{
    const auto ids = this->Fill();
    this->Bar().SetButtonVisibility(ids[2], false);
    this->Bar().SetButtonVisibility(ids[3], false);

    EXPECT_EQ(this->SettledOrder(), "open save (-) (zoom)");
}

TYPED_TEST_P(ToolbarContract, ALeadingSeparatorGoesWithDragAndDrop)
{
    this->Bar().AppendSeparator(nullptr);
    this->Bar().AddButton(VQ_TEXT("open"));
    EXPECT_EQ(this->SettledOrder(), "- open");

    this->Bar().EnableToolbarDragDrop(true);

    EXPECT_EQ(this->SettledOrder(), "(-) open");
}

// The whole toolbar ------------------------------------------------------------------------------------

TYPED_TEST_P(ToolbarContract, WhatTheToolbarIsToldItAnswers)
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

TYPED_TEST_P(ToolbarContract, AnUprightButtonHasTheSizeThatItIsGiven)
{
    const auto ids = this->Fill();
    CVqSizeBase<int> size;
    this->Toolbar().SetOrientation(EOrientation::Vertical);

    EXPECT_EQ(this->Bar().SetButtonSize(ids[0], 40, 30), 0);
    EXPECT_EQ(this->Bar().GetButtonSize(ids[0], size, -1), 0);
    EXPECT_EQ(this->Bar().SetButtonSize(1, 40, 30), -9);

    EXPECT_EQ(size, (CVqSizeBase<int>{40, 30}));
}

TYPED_TEST_P(ToolbarContract, AnUnknownCodeIsRefused)
{
    const auto ids = this->Fill();
    int value = 0;

    EXPECT_EQ(this->Bar().Get(ids[0], 9'999, 0, &value), -9);
    EXPECT_EQ(this->Bar().Set(ids[0], 9'999, 0, &value), -9);
    EXPECT_EQ(this->Bar().Command(ids[0], 9'999, 0, &value), -9);
}

// Saving -----------------------------------------------------------------------------------------------

TYPED_TEST_P(ToolbarContract, ASavedBarComesBackInItsOrder)
{
    const auto ids = this->Fill();
    this->Bar().SetButtonVisibility(ids[1], false);
    CVqVariant tree;
    CVqLiteVariantR stream;
    this->Bar().Save(tree, VQ_TEXT("bar"));
    this->Bar().Save(stream);

    this->Bar().AddButton(VQ_TEXT("gone with the load"));
    EXPECT_EQ(this->Bar().Load(tree, nullptr), 0);
    EXPECT_EQ(this->SettledOrder(), "open (save) - zoom");

    this->Bar().RemoveAllControls();
    EXPECT_EQ(this->Bar().Load(stream), 0);
    EXPECT_EQ(this->SettledOrder(), "open (save) - zoom");
}

TYPED_TEST_P(ToolbarContract, ATreeOfALoadedBarEqualsTheOneItCameFrom)
{
    this->Fill();
    this->Bar().AddTextButton(VQ_TEXT("text"));
    CVqVariant saved;
    CVqVariant again;
    this->Bar().Save(saved, nullptr);

    this->Bar().Load(saved, nullptr);
    this->Bar().Save(again, nullptr);

    EXPECT_TRUE(CVqAbstractButtonToolbar::IsEqual(saved, again));
}

TYPED_TEST_P(ToolbarContract, ALoadedButtonRespectsTheStoreOfHiddenButtons)
{
    this->Fill();
    CVqVariant tree;
    this->Bar().Save(tree, nullptr);
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("bar"), VQ_TEXT("save"), true, false);

    this->Bar().Load(tree, nullptr);

    EXPECT_EQ(this->SettledOrder(), "open (save) - zoom");
}

// Everything -------------------------------------------------------------------------------------------

TYPED_TEST_P(ToolbarContract, TenThousandRandomOperationsKeepListMapBoundaryAndWhatIsShown)
{
    ToolbarModel model;
    RandomToolbar random(this->m_traits, model, 20'260'617);
    std::size_t most = 0;

    for (int step = 1; step <= 10'000 && !this->HasFailure(); ++step) {
        random.Step();
        this->m_traits.Settle();
        model.TidySeparators();
        EXPECT_EQ(model.Difference(this->m_traits), "") << "at step " << step;
        most = std::max(most, model.entries.size());
    }

    EXPECT_GT(most, 40U);
}

REGISTER_TYPED_TEST_SUITE_P(
    ToolbarContract, AnEmptyBarHoldsItsPickerOnly, AddedControlsComeInOrder,
    InsertedControlsStandBesideTheirAnchor, AnUnknownAnchorAddsNothing, AMissingGeneralControlAddsNothing,
    AControlIsNotAddedTwice, ARemovedButtonIsForgotten, AnUnknownButtonIsRemovedWithoutAWord,
    AnEmptiedBarKeepsItsPickerAndTakesButtonsAgain, ARemovedControlLeavesTheBoundaryInTheList,
    AThousandButtonsKeepTheirOrder, ButtonsAreFoundByIndex, TheFirstButtonBehindALeadingSeparatorHasIndexZero,
    ButtonsAreFoundByTheirExactName, AnIdentifierIsANumberAndNoText,
    ARenamedButtonIsFoundByItsNewNameAndOldIdentifier, SeparatorsSayThatTheyAre, EachStateHasItsTexts,
    OneTextChangesAlone, BadStatesAndUnknownButtonsHaveTheirCodes, TheImageIndexOfAStateIsKept,
    ButtonsAreCheckedAndEnabledOneByOne, AllAreEnabledAndDisabledAtOnce, AHiddenButtonKeepsItsPlace,
    BothStoresHideAButtonAndLeaveItsOwnVisibility, ASeparatorStandsBetweenTwoShownGroupsOnly,
    ASeparatorThatTheTidyingShowsGoesAtTheEnd, ALeadingSeparatorGoesWithDragAndDrop,
    WhatTheToolbarIsToldItAnswers, AnUprightButtonHasTheSizeThatItIsGiven, AnUnknownCodeIsRefused,
    ASavedBarComesBackInItsOrder, ATreeOfALoadedBarEqualsTheOneItCameFrom,
    ALoadedButtonRespectsTheStoreOfHiddenButtons,
    TenThousandRandomOperationsKeepListMapBoundaryAndWhatIsShown);
