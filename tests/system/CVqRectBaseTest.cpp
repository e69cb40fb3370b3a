#include "system/CVqRectBase.h"

#include <gtest/gtest.h>

TEST(CVqRectBase, AssignmentCopiesAllFourValues)
{
    static_assert(sizeof(CVqRectBase<int>) == 16);
    const CVqRectBase<int> source{1, -2, 3, -4};
    CVqRectBase<int> target;
    EXPECT_EQ(target, (CVqRectBase<int>{0, 0, 0, 0}));

    target = source;

    EXPECT_EQ(target, (CVqRectBase<int>{1, -2, 3, -4}));
}
