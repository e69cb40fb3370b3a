#include "quick_backend/toolbar/CVqQuickSeparator.h"

#include "tests/quick_backend/toolbar/CoreBar.h"

#include <gtest/gtest.h>

namespace {

class CVqQuickSeparatorTest : public testing::Test
{
protected:
    CVqQuickSeparator separator;
};

}

TEST_F(CVqQuickSeparatorTest, IsASeparator)
{
    EXPECT_EQ(separator.GetKind(), CVqQuickControl::Separator);
    EXPECT_EQ(separator.type(), CVqQuickControl::Separator);
}

TEST_F(CVqQuickSeparatorTest, SaysThatItIsOne)
{
    vq_int32 value = 0;

    EXPECT_EQ(separator.Get(vq_control_separator, 0, &value), 0);

    EXPECT_EQ(value, 1);
}

TEST_F(CVqQuickSeparatorTest, SaysThatItGoesAtTheEnd)
{
    vq_int32 value = 5;

    EXPECT_EQ(separator.Get(vq_control_stays_last, 0, &value), 0);

    EXPECT_EQ(value, 0);
}

TEST_F(CVqQuickSeparatorTest, RefusesNullData)
{
    EXPECT_EQ(separator.Get(vq_control_separator, 0, nullptr), -9);
    EXPECT_EQ(separator.Get(vq_control_stays_last, 0, nullptr), -9);
}

TEST_F(CVqQuickSeparatorTest, AnswersTheOtherCodesLikeAnyControl)
{
    vq_int32 value = -1;

    EXPECT_EQ(separator.Get(vq_control_state_count, 0, &value), 0);
    EXPECT_EQ(value, 1);
    EXPECT_EQ(separator.Get(99, 0, &value), -9);
}

TEST_F(CVqQuickSeparatorTest, IsNinePixelsLong)
{
    EXPECT_EQ(WantedSize(separator), QSize(9, 24));
}

TEST_F(CVqQuickSeparatorTest, LiesAcrossAVerticalToolbar)
{
    separator.SetOrientation(EOrientation::Vertical);

    EXPECT_EQ(WantedSize(separator), QSize(24, 9));
}

TEST_F(CVqQuickSeparatorTest, GrowsWithItsZoom)
{
    SetZoom(separator, 1.5);

    EXPECT_EQ(WantedSize(separator), QSize(14, 36));
}
