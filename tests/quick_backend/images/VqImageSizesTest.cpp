#include "quick_backend/images/VqImageSizes.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

struct SizeRow
{
    const char* name;
    QSize natural;
    QSize asked;
    QSize expected;
};

void PrintTo(const SizeRow& row, std::ostream* out)
{
    *out << row.name;
}

const auto g_name_of = [](const auto& row) { return std::string(row.param.name); };

}

class VqImageSizesRequested : public testing::TestWithParam<SizeRow>
{ };

TEST_P(VqImageSizesRequested, FollowsItsRule)
{
    const SizeRow& row = GetParam();

    EXPECT_EQ(VqRequestedSize(row.natural, row.asked.width(), row.asked.height()), row.expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, VqImageSizesRequested,
                         testing::Values(SizeRow{"Both", {30, 20}, {7, 9}, {7, 9}},
                                         SizeRow{"NaturalForZeros", {30, 20}, {0, 0}, {30, 20}},
                                         SizeRow{"NaturalForNegatives", {30, 20}, {-1, -1}, {30, 20}},
                                         SizeRow{"WidthAlone", {30, 20}, {60, 0}, {60, 40}},
                                         SizeRow{"HeightAlone", {30, 20}, {-1, 10}, {15, 10}},
                                         SizeRow{"SideAtLeastOne", {1000, 1}, {10, 0}, {10, 1}},
                                         SizeRow{"Largest", {30, 20}, {16384, 1}, {16384, 1}},
                                         SizeRow{"TooWide", {30, 20}, {16385, 1}, {}},
                                         SizeRow{"TooHigh", {30, 20}, {1, 16385}, {}},
                                         SizeRow{"TooHighByRatio", {1, 10000}, {1000, 0}, {}}),
                         g_name_of);

class VqImageSizesFitted : public testing::TestWithParam<SizeRow>
{ };

TEST_P(VqImageSizesFitted, KeepsTheRatio)
{
    const SizeRow& row = GetParam();

    EXPECT_EQ(VqFittedSize(row.natural, row.asked), row.expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, VqImageSizesFitted,
                         testing::Values(SizeRow{"SameRatio", {4, 2}, {8, 4}, {8, 4}},
                                         SizeRow{"WideBox", {4, 2}, {100, 4}, {8, 4}},
                                         SizeRow{"HighBox", {4, 2}, {8, 100}, {8, 4}},
                                         SizeRow{"ThinImage", {1000, 1}, {10, 10}, {10, 1}},
                                         SizeRow{"HighThinImage", {1, 1000}, {10, 10}, {1, 10}}),
                         g_name_of);

TEST(VqImageSizes, LeastScaledIsTheNearestByFactor)
{
    const std::vector<QSize> sizes{{16, 16}, {32, 32}, {64, 64}};

    EXPECT_EQ(VqLeastScaled(sizes, {8, 8}), 0u);
    EXPECT_EQ(VqLeastScaled(sizes, {20, 20}), 0u);
    EXPECT_EQ(VqLeastScaled(sizes, {24, 24}), 1u);
    EXPECT_EQ(VqLeastScaled(sizes, {32, 32}), 1u);
    EXPECT_EQ(VqLeastScaled(sizes, {500, 500}), 2u);
}

TEST(VqImageSizes, OfTwoScaledAlikeTheLargerIsTaken)
{
    EXPECT_EQ(VqLeastScaled({{16, 16}, {64, 64}}, {32, 32}), 1u);
    EXPECT_EQ(VqLeastScaled({{64, 64}, {16, 16}}, {32, 32}), 0u);
}
