#include "AbstractGui/CursorHolder.h"

#include "tests/AbstractGui/OverrideCursor.h"

#include <gtest/gtest.h>

#include <type_traits>

using Support::CursorHolder;

TEST(CursorHolder, ShowsItsShapeUntilItEnds)
{
    {
        const CursorHolder holder(Qt::CrossCursor);

        EXPECT_EQ(OverrideShape(), Qt::CrossCursor);
    }
    EXPECT_EQ(OverrideShape(), std::nullopt);
}

TEST(CursorHolder, NestedHoldersBringBackTheFirstShapeAndThenTheNormalCursor)
{
    {
        const CursorHolder outer(Qt::CrossCursor);
        {
            const CursorHolder inner(Qt::WaitCursor);

            EXPECT_EQ(OverrideShape(), Qt::WaitCursor);
        }
        EXPECT_EQ(OverrideShape(), Qt::CrossCursor);
    }
    EXPECT_EQ(OverrideShape(), std::nullopt);
}

TEST(CursorHolder, HasNoFieldsAndNoCopies)
{
    EXPECT_TRUE(std::is_empty_v<CursorHolder>);
    EXPECT_FALSE(std::is_copy_constructible_v<CursorHolder>);
}
