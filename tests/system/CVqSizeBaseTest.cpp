#include "system/CVqSizeBase.h"

#include <gtest/gtest.h>

#include <type_traits>

TEST(CVqSizeBase, HoldsWidthThenHeight)
{
    static_assert(sizeof(CVqSizeBase<int>) == 8);
    const CVqSizeBase<int> size{640, -480};

    const CVqSizeBase<int> copy = size;

    EXPECT_EQ(copy.m_iWidth, 640);
    EXPECT_EQ(copy.m_iHeight, -480);
}

TEST(CVqSizeBase, ANewOneIsZero)
{
    EXPECT_EQ(CVqSizeBase<int>(), (CVqSizeBase<int>{0, 0}));
}
