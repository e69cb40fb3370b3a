#include "AbstractGui/VqControlCodes.h"
#include "system/CVqVariant.h"
#include "tests/support/TestButtonToolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;

// An event's fields belong to the layer that makes the widgets, so here it has none.
struct SVqUiEvent
{ };

namespace {

bool take_event(SVqUiEvent&)
{
    return true;
}

}

// Construction -------------------------------------------------------------------------------------------

TEST(CVqAbstractButtonToolbar, NewOneHasTheStartValues)
{
    NoButtonToolbar bar;

    EXPECT_EQ(bar.m_pToolbar, nullptr);
    EXPECT_EQ(bar.GetCallbackFunc(), nullptr);
    EXPECT_EQ(bar.GetToolbarHandle(), 0u);
    EXPECT_EQ(bar.GetToolbarType(), EToolbarType::Main);
    EXPECT_EQ(bar.m_eOrientation, EOrientation::Horizontal);
    EXPECT_EQ(bar.m_uiCachedId, 0u);
    EXPECT_EQ(bar.m_pCachedControl, nullptr);
    EXPECT_FALSE(bar.m_bSeparatorsDirty);
    EXPECT_TRUE(bar.IsEnabledAll());
}

TEST(CVqAbstractButtonToolbar, FactoriesOfTheAbstractClassGiveNull)
{
    NoButtonToolbar bar;
    CVqVariant setup;
    SVqUiEvent event;

    EXPECT_EQ(bar.CreateToolbar(), nullptr);
    EXPECT_EQ(bar.CreateControlButton(true), nullptr);
    EXPECT_EQ(bar.CreateTextButton(), nullptr);
    EXPECT_EQ(bar.CreateSeparator(), nullptr);
    EXPECT_FALSE(bar.StartDrag(event));
    bar.ResetAllControlSizesOnToolbar();
    bar.ShowToolbarSetup(1, setup, 2, true, nullptr);
    EXPECT_TRUE(setup.IsEmpty());
}

TEST(CVqAbstractButtonToolbar, DestructorDeletesTheToolbar)
{
    auto bar = std::make_unique<TestButtonToolbar>();
    bar->AddButton(VQ_TEXT("a"));
    const auto calls = bar->Bar().m_calls;
    calls->clear();

    bar.reset();

    EXPECT_THAT(*calls, ElementsAre("a.DestroyUI", "a.Delete", "picker.DestroyUI", "picker.Delete"));
}

TEST(CVqAbstractButtonToolbar, CopiesShareTheToolbar)
{
    TestButtonToolbar bar;
    bar.AddButton(VQ_TEXT("a"));
    bar.EnableAll(false);
    bar.m_hToolbar = 5;

    TestButtonToolbar copy(bar);
    NoButtonToolbar assigned;
    static_cast<CVqAbstractButtonToolbar&>(assigned) = bar;

    EXPECT_EQ(copy.m_pToolbar, bar.m_pToolbar);
    EXPECT_EQ(copy.m_pCachedControl, bar.m_pCachedControl);
    EXPECT_EQ(assigned.m_pToolbar, bar.m_pToolbar);
    EXPECT_EQ(assigned.GetToolbarHandle(), 5u);
    EXPECT_FALSE(assigned.IsEnabledAll());
    EXPECT_TRUE(assigned.m_bSeparatorsDirty);
    copy.m_pToolbar = nullptr; // or each would delete it
    assigned.m_pToolbar = nullptr;
}

TEST(CVqAbstractButtonToolbar, InitStoresBothAndDoesNotTellTheToolbar)
{
    TestButtonToolbar bar;

    EXPECT_TRUE(bar.Init(true, EToolbarType::Fixed));

    EXPECT_EQ(bar.m_eOrientation, EOrientation::Vertical);
    EXPECT_EQ(bar.GetToolbarType(), EToolbarType::Fixed);
    EXPECT_EQ(bar.Bar().m_eOrientation, EOrientation::Horizontal);
    EXPECT_EQ(bar.Bar().m_eType, EToolbarType::Main);
    EXPECT_TRUE(bar.Init(false, EToolbarType::Fixed));
    EXPECT_EQ(bar.m_eOrientation, EOrientation::Horizontal);
}

TEST(CVqAbstractButtonToolbar, InitWithoutAToolbarStoresNothing)
{
    NoButtonToolbar bar;

    EXPECT_FALSE(bar.Init(true, EToolbarType::Fixed));

    EXPECT_EQ(bar.m_eOrientation, EOrientation::Horizontal);
    EXPECT_EQ(bar.GetToolbarType(), EToolbarType::Main);
}

TEST(CVqAbstractButtonToolbar, CallbackIsStoredAndTheToolbarIsNotTold)
{
    TestButtonToolbar bar;
    int data = 0;

    bar.SetCallbackFunc(take_event, &data);

    EXPECT_EQ(bar.GetCallbackFunc(), take_event);
    EXPECT_EQ(bar.m_pCallbackData, &data);
    EXPECT_EQ(bar.Bar().m_pCallback, nullptr);
    EXPECT_THAT(bar.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractButtonToolbar, HandleIsTheField)
{
    TestButtonToolbar bar;
    bar.m_hToolbar = 5;

    EXPECT_EQ(bar.GetToolbarHandle(), 5u);
}

// Codes --------------------------------------------------------------------------------------------------

TEST(CVqAbstractButtonToolbarCodes, AllThreeReachTheControlAndGiveItsResult)
{
    TestButtonToolbar bar;
    const vq_uint64 id = bar.AddButton(VQ_TEXT("a"));
    bar.Settle();
    int value = 7;
    int read = 0;
    CVqStringW text;

    EXPECT_EQ(bar.Set(id, vq_control_value, 0, &value), 0);
    EXPECT_EQ(bar.Set(id, vq_control_text, 3, &text), 0);
    EXPECT_EQ(bar.Get(id, vq_control_value, 0, &read), 0);
    EXPECT_EQ(bar.Get(id, vq_control_text, 3, &text), -17);
    EXPECT_EQ(bar.Command(id, vq_control_delete_state, 3, nullptr), -9);

    EXPECT_EQ(read, 7);
    EXPECT_THAT(bar.TakeCalls(), ElementsAre("a.Set 16 7", "a.Set 258 state 3 \"\"", "a.Command 3 state 3"));
}

TEST(CVqAbstractButtonToolbarCodes, UnknownIdentifierAndMissingToolbarFail)
{
    TestButtonToolbar bar;
    NoButtonToolbar none;
    int value = 7;

    for (CVqAbstractButtonToolbar* each :
         {static_cast<CVqAbstractButtonToolbar*>(&bar), static_cast<CVqAbstractButtonToolbar*>(&none)}) {
        EXPECT_EQ(each->Set(4711, vq_control_value, 0, &value), -9);
        EXPECT_EQ(each->Get(4711, vq_control_value, 0, &value), -9);
        EXPECT_EQ(each->Command(4711, vq_control_clear_states, 0, nullptr), -9);
    }
    EXPECT_EQ(value, 7);
}

// State --------------------------------------------------------------------------------------------------

TEST(CVqAbstractButtonToolbarState, CheckIsSetAndRead)
{
    TestButtonToolbar bar;
    const vq_uint64 id = bar.AddButton(VQ_TEXT("a"));
    bar.Settle();

    EXPECT_FALSE(bar.GetCheck(id));
    bar.SetCheck(id, true);
    EXPECT_TRUE(bar.GetCheck(id));
    bar.SetCheck(id, false);

    EXPECT_FALSE(bar.GetCheck(id));
    EXPECT_THAT(bar.TakeCalls(), ElementsAre("a.Set 2 1", "a.Set 2 0"));
}

TEST(CVqAbstractButtonToolbarState, EnablingReachesTheControl)
{
    TestButtonToolbar bar;
    const vq_uint64 id = bar.AddButton(VQ_TEXT("a"));

    EXPECT_TRUE(bar.IsEnabled(id));
    bar.Enable(id, false);

    EXPECT_FALSE(bar.IsEnabled(id));
}

TEST(CVqAbstractButtonToolbarState, EnableAllReachesEveryControlButThePicker)
{
    TestButtonToolbar bar;
    bar.AddButton(VQ_TEXT("a"));
    bar.AppendSeparator(nullptr);
    bar.Bar().m_pControls->Insert(bar.Bar().m_pControls->GetLast(), nullptr);
    bar.AddTextButton(VQ_TEXT("b"));
    bar.Settle();

    bar.EnableAll(false);

    EXPECT_THAT(bar.TakeCalls(), ElementsAre("a.Enable 0", "separator.Enable 0", "b.Enable 0"));
    EXPECT_FALSE(bar.IsEnabledAll());
}

TEST(CVqAbstractButtonToolbarState, EnabledAllIsWhatWasSetAndNotWhatTheControlsSay)
{
    TestButtonToolbar bar;
    const vq_uint64 id = bar.AddButton(VQ_TEXT("a"));

    bar.EnableAll(false);
    bar.Enable(id, true);

    EXPECT_FALSE(bar.IsEnabledAll());
}

TEST(CVqAbstractButtonToolbarState, UnknownIdentifiersDoNothing)
{
    TestButtonToolbar bar;

    bar.SetCheck(4711, true);
    bar.Enable(4711, true);

    EXPECT_FALSE(bar.GetCheck(4711));
    EXPECT_FALSE(bar.IsEnabled(4711));
    EXPECT_THAT(bar.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractButtonToolbarState, WithoutAToolbarNothingIsCheckedOrEnabled)
{
    NoButtonToolbar bar;

    bar.SetCheck(1, true);
    bar.Enable(1, true);
    bar.EnableAll(false);

    EXPECT_FALSE(bar.GetCheck(1));
    EXPECT_FALSE(bar.IsEnabled(1));
    EXPECT_FALSE(bar.IsEnabledAll());
}
