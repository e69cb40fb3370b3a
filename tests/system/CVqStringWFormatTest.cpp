#include "system/CVqStringW.h"
#include "tests/support/ScopedLocale.h"
#include "tests/system/SystemPrinters.h"

#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <cmath>
#include <functional>
#include <limits>
#include <string>

namespace {

template <typename... Arguments>
CVqStringW formatted(const vq_wchar* format, Arguments... arguments)
{
    return CVqStringW().Format(format, arguments...);
}

struct SRow
{
    const char* name;
    CVqStringW result;
    const vq_wchar* expected;
};

void PrintTo(const SRow& row, std::ostream* out)
{
    *out << row.name;
}

class CVqStringWFormat : public testing::TestWithParam<SRow>
{ };

}

TEST_P(CVqStringWFormat, GivesTheText)
{
    EXPECT_EQ(GetParam().result, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CVqStringWFormat,
    testing::Values(
        SRow{"PlainText", formatted(VQ_TEXT("File")), VQ_TEXT("File")},
        SRow{"Empty", formatted(VQ_TEXT("")), VQ_TEXT("")},
        SRow{"Text", formatted(VQ_TEXT("%s@%s"), VQ_TEXT("Paint"), VQ_TEXT("Open")), VQ_TEXT("Paint@Open")},
        SRow{"NullText", formatted(VQ_TEXT("[%s]"), static_cast<const vq_wchar*>(nullptr)), VQ_TEXT("[]")},
        SRow{"WideUnits", formatted(VQ_TEXT("%s"), u"\u65E5\U0001F600"), u"\u65E5\U0001F600"},
        SRow{"TextWidth", formatted(VQ_TEXT("[%5s]"), VQ_TEXT("ab")), VQ_TEXT("[   ab]")},
        SRow{"TextLeft", formatted(VQ_TEXT("[%-8s]"), VQ_TEXT("ab")), VQ_TEXT("[ab      ]")},
        SRow{"TextPrecision", formatted(VQ_TEXT("[%.2s]"), VQ_TEXT("abc")), VQ_TEXT("[ab]")},
        SRow{"TextLongerThanWidth", formatted(VQ_TEXT("%2s"), VQ_TEXT("abc")), VQ_TEXT("abc")},
        SRow{"Signed", formatted(VQ_TEXT("%d %i"), -5, 7), VQ_TEXT("-5 7")},
        SRow{"SignedLimits", formatted(VQ_TEXT("%d %d"), INT_MIN, INT_MAX),
             VQ_TEXT("-2147483648 2147483647")},
        SRow{"Unsigned", formatted(VQ_TEXT("State%u"), 4294967295u), VQ_TEXT("State4294967295")},
        SRow{"TwoDigits", formatted(VQ_TEXT("a%.2u%s"), 7u, VQ_TEXT("Open")), VQ_TEXT("a07Open")},
        SRow{"TwoDigitsOfThree", formatted(VQ_TEXT("%.2u"), 107u), VQ_TEXT("107")},
        SRow{"PrecisionZeroOfZero", formatted(VQ_TEXT("[%.0d]"), 0), VQ_TEXT("[]")},
        SRow{"Zeros", formatted(VQ_TEXT("%05d"), -42), VQ_TEXT("-0042")},
        SRow{"ZerosGiveWayToPrecision", formatted(VQ_TEXT("[%05.2d]"), 4), VQ_TEXT("[   04]")},
        SRow{"ZerosGiveWayToLeft", formatted(VQ_TEXT("[%-05d]"), 4), VQ_TEXT("[4    ]")},
        SRow{"Plus", formatted(VQ_TEXT("%+d %+d"), 4, -4), VQ_TEXT("+4 -4")},
        SRow{"Blank", formatted(VQ_TEXT("% d"), 4), VQ_TEXT(" 4")},
        SRow{"Hexadecimal", formatted(VQ_TEXT("%x %X %#x"), 0xBEEFu, 0xBEEFu, 255u),
             VQ_TEXT("beef BEEF 0xff")},
        SRow{"HexadecimalWidth", formatted(VQ_TEXT("%08x"), 0xFFu), VQ_TEXT("000000ff")},
        SRow{"Octal", formatted(VQ_TEXT("%o %#o"), 8u, 8u), VQ_TEXT("10 010")},
        SRow{"Unit", formatted(VQ_TEXT("%c%c"), VQ_TEXT('A'), 0x65E5), u"A\u65E5"},
        SRow{"UnitWidth", formatted(VQ_TEXT("[%3c]"), VQ_TEXT('A')), VQ_TEXT("[  A]")},
        SRow{"Percent", formatted(VQ_TEXT("%d%%"), 50), VQ_TEXT("50%")},
        SRow{"Real", formatted(VQ_TEXT("%f"), 1.5), VQ_TEXT("1.500000")},
        SRow{"RealWidthPrecision", formatted(VQ_TEXT("%3.2f|%8.2f"), 3.14159, -2.5),
             VQ_TEXT("3.14|   -2.50")},
        SRow{"RealZeros", formatted(VQ_TEXT("%07.2f"), -2.5), VQ_TEXT("-002.50")},
        SRow{"RealNoDigits", formatted(VQ_TEXT("%.0f"), 2.0), VQ_TEXT("2")},
        SRow{"RealExponent", formatted(VQ_TEXT("%.2e %.1E"), 12345.0, 0.25), VQ_TEXT("1.23e+04 2.5E-01")},
        SRow{"RealGeneral", formatted(VQ_TEXT("%g %g"), 0.0001, 1e20), VQ_TEXT("0.0001 1e+20")},
        SRow{"RealNotFinite", formatted(VQ_TEXT("%05f"), std::numeric_limits<double>::infinity()),
             VQ_TEXT("  inf")},
        SRow{"StarWidth", formatted(VQ_TEXT("[%*d][%-*d]"), 4, 7, 3, 8), VQ_TEXT("[   7][8  ]")},
        SRow{"NegativeStarWidth", formatted(VQ_TEXT("[%*d]"), -4, 7), VQ_TEXT("[7   ]")},
        SRow{"StarPrecision", formatted(VQ_TEXT("%.*u"), 3, 7u), VQ_TEXT("007")},
        SRow{"NegativeStarPrecision", formatted(VQ_TEXT("%.*d"), -1, 7), VQ_TEXT("7")},
        SRow{"LongLong", formatted(VQ_TEXT("%lld %I64u"), LLONG_MIN, ULLONG_MAX),
             VQ_TEXT("-9223372036854775808 18446744073709551615")},
        SRow{"Long", formatted(VQ_TEXT("%ld %lu"), -3L, 3UL), VQ_TEXT("-3 3")},
        SRow{"UnknownLetterStands", formatted(VQ_TEXT("%k %d"), 5), VQ_TEXT("%k 5")},
        SRow{"PercentAtTheEnd", formatted(VQ_TEXT("50%")), VQ_TEXT("50%")},
        SRow{"CutConversion", formatted(VQ_TEXT("%-08.3l")), VQ_TEXT("%-08.3l")}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(CVqStringWFormatting, HugeWidthsEnd)
{
    EXPECT_EQ(formatted(VQ_TEXT("%99999999999d"), 1).GetLength(), 65536);
    EXPECT_EQ(formatted(VQ_TEXT("%*d"), INT_MIN, 1).GetLength(), 65536);
    EXPECT_EQ(formatted(VQ_TEXT("%.99999999999f"), 1.0).GetLength(), 65538);
}

TEST(CVqStringWFormatting, FormatReplacesAndAppendFormatAppends)
{
    CVqStringW text(VQ_TEXT("old"));

    EXPECT_EQ(text.Format(VQ_TEXT("%d"), 1), VQ_TEXT("1"));
    EXPECT_EQ(text.AppendFormat(VQ_TEXT(",%d"), 2), VQ_TEXT("1,2"));
    EXPECT_EQ(&text.Format(VQ_TEXT("x")), &text);
    EXPECT_EQ(&text.AppendFormat(VQ_TEXT("x")), &text);
}

TEST(CVqStringWFormatting, ArgumentsMayBeTheStringItself)
{
    CVqStringW text(VQ_TEXT("a text that is longer than a small buffer"));
    const CVqStringW before(text);

    text.Format(VQ_TEXT("%s, %s"), text.GetString(), text.GetString());
    EXPECT_EQ(text, before + VQ_TEXT(", ") + before);

    text = VQ_TEXT("%d");
    EXPECT_EQ(text.Format(text.GetString(), 5), VQ_TEXT("5"));
    EXPECT_EQ(text.AppendFormat(VQ_TEXT("%s"), text.GetString()), VQ_TEXT("55"));
}

TEST(CVqStringWFormatting, TheUsersLocaleDoesNotChangeNumbers)
{
    const ScopedLocale german(LC_NUMERIC, "de_DE.UTF-8");
    if (!german.IsSet())
        GTEST_SKIP() << "this machine has no locale de_DE.UTF-8";
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");

    EXPECT_EQ(formatted(VQ_TEXT("%.1f %e %g %d"), 1.5, 1.5, 1.5, 1000000),
              VQ_TEXT("1.5 1.500000e+00 1.5 1000000"));
}
