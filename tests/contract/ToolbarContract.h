#pragma once

#include "tests/contract/RandomToolbar.h"
#include "tests/contract/ToolbarButtonsContract.h"
#include "tests/contract/ToolbarContractFixture.h"
#include "tests/contract/ToolbarModel.h"
#include "tests/contract/ToolbarRecordsContract.h"
#include "tests/contract/ToolbarStatesContract.h"

#include <gtest/gtest.h>

#include <algorithm>

/// List, map, boundary and what is shown agree with each other and with what was asked for, whatever comes.
template <typename Traits>
class ToolbarContract : public ToolbarContractFixture<Traits>
{ };

TYPED_TEST_SUITE_P(ToolbarContract);

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

REGISTER_TYPED_TEST_SUITE_P(ToolbarContract, TenThousandRandomOperationsKeepListMapBoundaryAndWhatIsShown);

/// What every back end of a toolbar of buttons must keep, whatever it draws. A back end joins with a traits
/// class and one line. The object of the traits class lives as long as a test:
///
///     struct MyTraits
///     {
///         CVqAbstractButtonToolbar& Bar();   // of type Main, named "bar", empty at first
///         CVqAbstractToolbar& Toolbar();     // that of the bar
///         IVqUIcontrol* MakeGeneral();       // a control that no factory of the bar makes
///         void Settle();                     // does what waits for the next frame; tidies separators
///         bool IsShown(IVqUIcontrol&);       // takes room, on the toolbar or in the picker
///         bool IsInPicker(IVqUIcontrol&);
///         void SetLength(int);               // lays out in so many pixels; only with a layout
///     };
///     ARBOR_TOOLBAR_CONTRACT(MyBackEnd, MyTraits);
#define ARBOR_TOOLBAR_CONTRACT(back_end, traits)                                                             \
    INSTANTIATE_TYPED_TEST_SUITE_P(back_end, ToolbarButtonsContract, traits);                                \
    INSTANTIATE_TYPED_TEST_SUITE_P(back_end, ToolbarStatesContract, traits);                                 \
    INSTANTIATE_TYPED_TEST_SUITE_P(back_end, ToolbarRecordsContract, traits);                                \
    INSTANTIATE_TYPED_TEST_SUITE_P(back_end, ToolbarContract, traits)
