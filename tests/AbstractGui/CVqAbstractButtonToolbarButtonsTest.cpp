#include "AbstractGui/VqControlCodes.h"
#include "tests/support/TestButtonToolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const vq_wchar* g_long_name = VQ_TEXT("a name that is too long for the place of the short one");

/// A separator, then "a", a separator and "b", on a main toolbar.
struct Buttons
{
    TestButtonToolbar bar;
    vq_uint64 first_separator = bar.AppendSeparator(nullptr);
    vq_uint64 a = bar.AddButton(VQ_TEXT("a"));
    vq_uint64 separator = bar.AppendSeparator(nullptr);
    vq_uint64 b = bar.AddButton(VQ_TEXT("b"));

    Buttons() { bar.Settle(); }
};

}

// ControlFromId and the cache ----------------------------------------------------------------------------

TEST(CVqAbstractButtonToolbarFind, ControlIsFoundByItsIdentifier)
{
    Buttons buttons;

    EXPECT_EQ(buttons.bar.ControlFromId(buttons.a), &buttons.bar.Control(buttons.a));
    EXPECT_EQ(buttons.bar.ControlFromId(4711), nullptr);
}

TEST(CVqAbstractButtonToolbarFind, RememberedControlIsGivenWithoutAskingTheToolbar)
{
    Buttons buttons;
    RecordingControl other("other");
    buttons.bar.m_uiCachedId = 4711;
    buttons.bar.m_pCachedControl = &other;

    EXPECT_EQ(buttons.bar.ControlFromId(4711), &other);
    EXPECT_EQ(buttons.bar.m_pCachedControl, &other);
}

TEST(CVqAbstractButtonToolbarFind, AnotherIdentifierClearsTheCacheAndDoesNotFillIt)
{
    Buttons buttons;
    buttons.bar.FindButton(VQ_TEXT("a"));

    EXPECT_EQ(buttons.bar.ControlFromId(buttons.b), &buttons.bar.Control(buttons.b));

    EXPECT_EQ(buttons.bar.m_uiCachedId, 0u);
    EXPECT_EQ(buttons.bar.m_pCachedControl, nullptr);
}

TEST(CVqAbstractButtonToolbarFind, RememberedIdentifierWithoutAControlIsLookedUp)
{
    Buttons buttons;
    buttons.bar.m_uiCachedId = buttons.a;
    buttons.bar.m_pCachedControl = nullptr;

    EXPECT_EQ(buttons.bar.ControlFromId(buttons.a), &buttons.bar.Control(buttons.a));
}

TEST(CVqAbstractButtonToolbarFind, WithoutAToolbarTheCacheIsNotLookedAt)
{
    NoButtonToolbar bar;
    RecordingControl control("a");
    bar.m_uiCachedId = 5;
    bar.m_pCachedControl = &control;

    EXPECT_EQ(bar.ControlFromId(5), nullptr);
}

// GetButtonID --------------------------------------------------------------------------------------------

TEST(CVqAbstractButtonToolbarFind, IndexCountsAllControlsFromZero)
{
    Buttons buttons;

    EXPECT_EQ(buttons.bar.GetButtonID(0, false), buttons.first_separator);
    EXPECT_EQ(buttons.bar.GetButtonID(1, false), buttons.a);
    EXPECT_EQ(buttons.bar.GetButtonID(2, false), buttons.separator);
    EXPECT_EQ(buttons.bar.GetButtonID(3, false), buttons.b);
    EXPECT_EQ(buttons.bar.GetButtonID(4, false), 0u);
}

TEST(CVqAbstractButtonToolbarFind, FirstButtonOfAToolbarThatStartsWithASeparatorHasIndexZeroWithoutThem)
{
    Buttons buttons;

    EXPECT_EQ(buttons.bar.GetButtonID(0, true), buttons.a);
    EXPECT_EQ(buttons.bar.GetButtonID(1, true), buttons.b);
    EXPECT_EQ(buttons.bar.GetButtonID(2, true), 0u);
}

TEST(CVqAbstractButtonToolbarFind, SeparatorWhoseAnswerFailsCountsAsAButton)
{
    Buttons buttons;
    buttons.bar.Control(buttons.first_separator).AnswerSeparator(1, -9);

    EXPECT_EQ(buttons.bar.GetButtonID(0, true), buttons.first_separator);
    EXPECT_FALSE(buttons.bar.IsIDSeparator(buttons.first_separator));
}

TEST(CVqAbstractButtonToolbarFind, NodesWithoutAControlAreNotCounted)
{
    Buttons buttons;
    CVqList& list = *buttons.bar.Bar().m_pControls;
    list.Insert(list.GetFirst(), nullptr);

    EXPECT_EQ(buttons.bar.GetButtonID(1, false), buttons.a);
}

TEST(CVqAbstractButtonToolbarFind, ControlAtAnIndexIsRemembered)
{
    Buttons buttons;

    buttons.bar.GetButtonID(1, false);

    EXPECT_EQ(buttons.bar.m_uiCachedId, buttons.a);
    EXPECT_EQ(buttons.bar.m_pCachedControl, &buttons.bar.Control(buttons.a));
}

TEST(CVqAbstractButtonToolbarFind, IndexPastTheEndClearsTheCache)
{
    Buttons buttons;
    buttons.bar.FindButton(VQ_TEXT("a"));

    buttons.bar.GetButtonID(99, false);

    EXPECT_EQ(buttons.bar.m_pCachedControl, nullptr);
}

// FindButton, GetButtonsCount ----------------------------------------------------------------------------

TEST(CVqAbstractButtonToolbarFind, ButtonIsFoundByItsNameAndRemembered)
{
    Buttons buttons;

    EXPECT_EQ(buttons.bar.FindButton(VQ_TEXT("b")), buttons.b);

    EXPECT_EQ(buttons.bar.m_uiCachedId, buttons.b);
    EXPECT_EQ(buttons.bar.m_pCachedControl, &buttons.bar.Control(buttons.b));
}

TEST(CVqAbstractButtonToolbarFind, UnknownNameGivesZeroAndClearsTheCache)
{
    Buttons buttons;
    buttons.bar.FindButton(VQ_TEXT("b"));

    EXPECT_EQ(buttons.bar.FindButton(VQ_TEXT("B")), 0u);

    EXPECT_EQ(buttons.bar.m_uiCachedId, 0u);
    EXPECT_EQ(buttons.bar.m_pCachedControl, nullptr);
}

TEST(CVqAbstractButtonToolbarFind, CountHoldsSeparatorsButNotThePicker)
{
    Buttons buttons;

    EXPECT_EQ(buttons.bar.GetButtonsCount(), 4);
}

TEST(CVqAbstractButtonToolbarFind, WithoutAToolbarNothingIsFound)
{
    NoButtonToolbar bar;
    bar.m_uiCachedId = 5;

    EXPECT_EQ(bar.FindButton(VQ_TEXT("a")), 0u);
    EXPECT_EQ(bar.m_uiCachedId, 0u);
    EXPECT_EQ(bar.GetButtonID(0, false), 0u);
    EXPECT_EQ(bar.GetButtonsCount(), 0);
    EXPECT_FALSE(bar.IsIDSeparator(1));
}

TEST(CVqAbstractButtonToolbarFind, ToolbarThatWasNotCreatedHasNoButtons)
{
    TestButtonToolbar bar;
    bar.Bar().DestroyUI();

    EXPECT_EQ(bar.GetButtonsCount(), 0);
    EXPECT_EQ(bar.GetButtonID(0, false), 0u);
    EXPECT_EQ(bar.FindButton(VQ_TEXT("a")), 0u);
}

TEST(CVqAbstractButtonToolbarFind, SeparatorsAreTold)
{
    Buttons buttons;

    EXPECT_TRUE(buttons.bar.IsIDSeparator(buttons.separator));
    EXPECT_FALSE(buttons.bar.IsIDSeparator(buttons.a));
    EXPECT_FALSE(buttons.bar.IsIDSeparator(4711));
}

// RemoveButton, RemoveAllControls ------------------------------------------------------------------------

TEST(CVqAbstractButtonToolbarRemove, ButtonIsTakenOutAndDeletesItself)
{
    Buttons buttons;

    EXPECT_EQ(buttons.bar.RemoveButton(buttons.a), 0);

    EXPECT_THAT(buttons.bar.TakeCalls(), ElementsAre("a.DestroyUI", "a.MarkToDeleteItself", "a.Delete"));
    EXPECT_EQ(buttons.bar.Bar().Order(), "separator separator b |picker");
    EXPECT_TRUE(buttons.bar.m_bSeparatorsDirty);
    EXPECT_EQ(buttons.bar.ControlFromId(buttons.a), nullptr);
}

TEST(CVqAbstractButtonToolbarRemove, RememberedButtonIsForgotten)
{
    Buttons buttons;
    buttons.bar.FindButton(VQ_TEXT("a"));

    buttons.bar.RemoveButton(buttons.a);

    EXPECT_EQ(buttons.bar.m_uiCachedId, 0u);
    EXPECT_EQ(buttons.bar.m_pCachedControl, nullptr);
}

TEST(CVqAbstractButtonToolbarRemove, UnknownButtonIsNoErrorButMakesSeparatorsDirty)
{
    Buttons buttons;
    NoButtonToolbar none;

    EXPECT_EQ(buttons.bar.RemoveButton(4711), 0);
    EXPECT_EQ(none.RemoveButton(4711), 0);

    EXPECT_THAT(buttons.bar.TakeCalls(), IsEmpty());
    EXPECT_TRUE(buttons.bar.m_bSeparatorsDirty);
    EXPECT_TRUE(none.m_bSeparatorsDirty);
}

TEST(CVqAbstractButtonToolbarRemove, RenamedButtonGoesByItsOldIdentifierAndLeavesNothingBehind)
{
    Buttons buttons;
    buttons.bar.SetButtonName(buttons.a, g_long_name);
    buttons.bar.FindButton(g_long_name);

    EXPECT_EQ(buttons.bar.RemoveButton(buttons.a), 0);

    EXPECT_EQ(buttons.bar.GetButtonsCount(), 3);
    EXPECT_FALSE(buttons.bar.IsEnabled(buttons.a));
    EXPECT_EQ(buttons.bar.FindButton(g_long_name), 0u);
}

TEST(CVqAbstractButtonToolbarRemove, AllControlsGoAndTheCacheIsClear)
{
    Buttons buttons;
    buttons.bar.FindButton(VQ_TEXT("a"));

    EXPECT_EQ(buttons.bar.RemoveAllControls(), 0);

    EXPECT_EQ(buttons.bar.Bar().Order(), "|picker");
    EXPECT_TRUE(buttons.bar.m_bSeparatorsDirty);
    EXPECT_EQ(buttons.bar.m_uiCachedId, 0u);
    EXPECT_EQ(buttons.bar.m_pCachedControl, nullptr);
}

TEST(CVqAbstractButtonToolbarRemove, AllControlsWithoutAToolbarIsRefused)
{
    NoButtonToolbar bar;
    bar.m_uiCachedId = 5;

    EXPECT_EQ(bar.RemoveAllControls(), -12);

    EXPECT_FALSE(bar.m_bSeparatorsDirty);
    EXPECT_EQ(bar.m_uiCachedId, 5u);
}
