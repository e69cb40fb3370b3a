#include "quick_backend/CVqProgressEstimate.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// Ten steps a second for ten seconds.
CVqProgressEstimate after_a_hundred_steps()
{
    CVqProgressEstimate estimate;
    estimate.Start(0);
    estimate.Add(10'000, 100);
    return estimate;
}

/// A range that so many seconds are left of, at ten steps a second.
unsigned int range_for(unsigned int seconds)
{
    return 100 + seconds * 10;
}

struct Rounding
{
    std::string name;
    unsigned int seconds;
    int shown;
};

class CVqProgressEstimateRounding : public testing::TestWithParam<Rounding>
{ };

INSTANTIATE_TEST_SUITE_P(, CVqProgressEstimateRounding,
                         testing::Values(Rounding{"NothingLeft", 0, 0}, Rounding{"OneSecond", 1, 5},
                                         Rounding{"WholeStep", 30, 30}, Rounding{"PartOfAStep", 26, 30},
                                         Rounding{"MinuteBegins", 60, 60}, Rounding{"PartOfAMinute", 61, 120},
                                         Rounding{"HourBegins", 3'600, 3'600},
                                         Rounding{"PartOfAnHour", 3'601, 3'900}),
                         [](const auto& row) { return row.param.name; });

}

TEST_P(CVqProgressEstimateRounding, IsUpwardsByTheSizeOfTheTime)
{
    auto estimate = after_a_hundred_steps();

    EXPECT_EQ(estimate.SecondsLeft(range_for(GetParam().seconds)), GetParam().shown);
}

TEST(CVqProgressEstimate, SaysNothingInTheFirstSecond)
{
    CVqProgressEstimate estimate;
    estimate.Start(5'000);
    estimate.Add(5'999, 50);

    EXPECT_EQ(estimate.SecondsLeft(100), -1);

    estimate.Add(6'000, 50);
    EXPECT_EQ(estimate.SecondsLeft(100), 5);
}

TEST(CVqProgressEstimate, SaysNothingBeforeTheSecondStep)
{
    CVqProgressEstimate estimate;
    estimate.Start(0);
    estimate.Add(10'000, 1);

    EXPECT_EQ(estimate.SecondsLeft(100), -1);
}

TEST(CVqProgressEstimate, LongWorkDoesNotWrap)
{
    CVqProgressEstimate estimate;
    estimate.Start(0);
    estimate.Add(1'000'000, 10'000'000);

    EXPECT_EQ(estimate.SecondsLeft(3'610'000'000u), 360'000);
}

TEST(CVqProgressEstimate, MoreThanAThousandHoursAreNoEstimate)
{
    CVqProgressEstimate estimate;
    estimate.Start(0);
    estimate.Add(1'000'000, 2);

    EXPECT_EQ(estimate.SecondsLeft(4'000'000'000u), -1);
}

TEST(CVqProgressEstimate, KeepsItsAnswerWhileTheTimeMovesLittle)
{
    auto estimate = after_a_hundred_steps();
    ASSERT_EQ(estimate.SecondsLeft(range_for(30)), 30);

    EXPECT_EQ(estimate.SecondsLeft(range_for(26)), 30);
    EXPECT_EQ(estimate.SecondsLeft(range_for(32)), 30);
    EXPECT_EQ(estimate.SecondsLeft(range_for(33)), 35);
    EXPECT_EQ(estimate.SecondsLeft(range_for(30)), 30);
}

TEST(CVqProgressEstimate, APauseRaisesItSlowly)
{
    auto estimate = after_a_hundred_steps();
    ASSERT_EQ(estimate.SecondsLeft(range_for(30)), 30);

    estimate.Add(11'000, 100);

    EXPECT_EQ(estimate.SecondsLeft(range_for(30)), 35);
}

TEST(CVqProgressEstimate, FollowsALastingChangeOfSpeed)
{
    auto estimate = after_a_hundred_steps();
    for (int second = 11; second <= 110; ++second)
        estimate.Add(second * 1'000.0, 100u + (unsigned(second) - 10) * 20);

    EXPECT_EQ(estimate.SecondsLeft(2'100 + 590), 30);
}

TEST(CVqProgressEstimate, ANumberThatGoesBackIsNoProgress)
{
    auto estimate = after_a_hundred_steps();

    estimate.Add(10'000, 20);

    EXPECT_EQ(estimate.SecondsLeft(range_for(30)), 30);
}

TEST(CVqProgressEstimate, ANumberPastTheRangeLeavesNothing)
{
    auto estimate = after_a_hundred_steps();

    EXPECT_EQ(estimate.SecondsLeft(50), 0);
}

TEST(CVqProgressEstimate, StartForgetsWhatWas)
{
    auto estimate = after_a_hundred_steps();

    estimate.Start(20'000);
    estimate.Add(22'000, 2);

    EXPECT_EQ(estimate.SecondsLeft(32), 30);
}
