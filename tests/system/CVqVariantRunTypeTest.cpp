#include "system/CVqVariantRunType.h"

#include <gtest/gtest.h>

TEST(CVqVariantRunType, KeepsTheName)
{
    const CVqVariantRunType type(CVqStringA(VQ_TEXT("CVqListVariant"), 0));

    EXPECT_STREQ(type.GetName(), "CVqListVariant");
}
