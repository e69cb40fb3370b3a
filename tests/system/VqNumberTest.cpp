#include "system/VqNumber.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

namespace {

struct NumberRow
{
    const char* name;
    double number;
    vq_uint32 bits;
};

void PrintTo(const NumberRow& row, std::ostream* out)
{
    *out << row.name;
}

using limits = std::numeric_limits<double>;

const NumberRow number_rows[] = {
    {"Zero", 0.0, 0},
    {"NegativeZero", -0.0, 0},
    {"One", 1.0, 1},
    {"MinusOne", -1.0, 0xFFFFFFFF},
    {"LargestSigned", 2147483647.0, 0x7FFFFFFF},
    {"BeyondTheLargestSigned", 2147483648.0, 0x80000000},
    {"SmallestSigned", -2147483648.0, 0x80000000},
    {"BelowTheSmallestSigned", -2147483649.0, 0x7FFFFFFF},
    {"LargestUnsigned", 4294967295.0, 0xFFFFFFFF},
    {"BeyondTheLargestUnsigned", 4294967296.0, 0},
    {"OnceRoundAndOne", 4294967297.0, 1},
    {"OnceRoundBelowZeroAndOne", -4294967297.0, 0xFFFFFFFF},
    {"FractionIsCut", 1.99, 1},
    {"FractionBelowZeroIsCutTowardsZero", -1.99, 0xFFFFFFFF},
    {"OnlyAFraction", 0.99, 0},
    {"OnlyAFractionBelowZero", -0.99, 0},
    {"FractionBeyondTheLargestUnsigned", 4294967295.5, 0xFFFFFFFF},
    {"SmallestThatIsNotZero", limits::denorm_min(), 0},
    {"LastOfAllWholeNumbersThatFit", 0x1.FFFFFFFFFFFFFp52, 0xFFFFFFFF},
    {"TwoToThePowerOf63", 0x1p63, 0},
    {"BitsBelowTwoToThePowerOf63", 0x1.00000001p63, 0x80000000},
    {"LowestBitOfANumberOf84Bits", 0x1.0000000000001p83, 0x80000000},
    {"LowestBitIsBeyondTheLow32", 0x1.0000000000001p84, 0},
    {"Largest", limits::max(), 0},
    {"Infinity", limits::infinity(), 0},
    {"NegativeInfinity", -limits::infinity(), 0},
    {"NoNumber", limits::quiet_NaN(), 0},
    {"NoNumberWithASign", -limits::quiet_NaN(), 0},
};

class VqNumberRows : public testing::TestWithParam<NumberRow>
{ };

}

TEST_P(VqNumberRows, HaveTheirLowBits)
{
    EXPECT_EQ(VqLowBits(GetParam().number), GetParam().bits);
}

INSTANTIATE_TEST_SUITE_P(VqNumber, VqNumberRows, testing::ValuesIn(number_rows),
                         [](const auto& row) { return row.param.name; });
