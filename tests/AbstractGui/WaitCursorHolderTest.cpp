#include "AbstractGui/WaitCursorHolder.h"

#include "tests/AbstractGui/OverrideCursor.h"

#include <gtest/gtest.h>

#include <type_traits>

using Support::WaitCursorHolder;

TEST(WaitCursorHolder, ShowsTheWaitCursorUntilItEnds)
{
    {
        const WaitCursorHolder holder;

        EXPECT_EQ(OverrideShape(), Qt::WaitCursor);
    }
    EXPECT_EQ(OverrideShape(), std::nullopt);
}

TEST(WaitCursorHolder, NestsInAnotherHolder)
{
    const Support::CursorHolder outer(Qt::CrossCursor);
    {
        const WaitCursorHolder inner;

        EXPECT_EQ(OverrideShape(), Qt::WaitCursor);
    }
    EXPECT_EQ(OverrideShape(), Qt::CrossCursor);
}

TEST(WaitCursorHolder, HasNoFields)
{
    EXPECT_TRUE(std::is_empty_v<WaitCursorHolder>);
}
