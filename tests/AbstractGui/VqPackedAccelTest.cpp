#include "AbstractGui/VqPackedAccel.h"

#include "AbstractGui/CVqAccelerators.h"
#include "tests/support/TestMenu.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct PackRow
{
    const char* name;
    vq_uint32 flags;
    vq_wchar key;
    vq_int32 packed;
    vq_uint32 flags_read_back;
};

void PrintTo(const PackRow& row, std::ostream* out)
{
    *out << row.name;
}

const PackRow pack_rows[] = {
    {"CtrlA", 18, 0x41, 4259858, 18},
    {"Nothing", 0, 0, 0, 0},
    {"KeyOnly", 0, 1, 65536, 0},
    {"KeyWithItsHighBit", 16, 0x8000, static_cast<vq_int32>(0x80000010), 16},
    {"NoKey", 0, 0xFFFF, -65536, 0},
    {"FlagsWithBit15ComeBackSignExtended", 0x8012, 0x41, 0x00418012, 0xFFFF8012},
    {"AllFlagsOfTheLowHalf", 0xFFFF, 0x41, 0x0041FFFF, 0xFFFFFFFF},
    {"FlagsAbove16BitsAreCut", 0x10012, 0x41, 4259858, 18},
    {"EverythingSet", 0xFFFFFFFF, 0xFFFF, -1, 0xFFFFFFFF},
};

class VqPackedAccelRows : public testing::TestWithParam<PackRow>
{ };

}

TEST_P(VqPackedAccelRows, KeyIsTheHighHalfAndFlagsTheLow)
{
    EXPECT_EQ(VqPackAccel(GetParam().flags, GetParam().key), GetParam().packed);
}

TEST_P(VqPackedAccelRows, UnpackingGivesKeyAndFlags)
{
    const SVqUnpackedAccel accel = VqUnpackAccel(GetParam().packed);

    EXPECT_EQ(accel.key, GetParam().key);
    EXPECT_EQ(accel.flags, GetParam().flags_read_back);
}

INSTANTIATE_TEST_SUITE_P(Rows, VqPackedAccelRows, testing::ValuesIn(pack_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(VqPackedAccel, AddingToAnEmptyTableAddsARecordWithoutTarget)
{
    CVqAccelerators table;

    EXPECT_TRUE(VqAddPackedAccel(table, 7, 4259858));

    EXPECT_EQ(TestMenu::Keys(table), "7:18+65");
    EXPECT_EQ(table.RemoveAllAccelsTo(0), 0);
}

TEST(VqPackedAccel, KeyThatTheIdentifierHasAlreadyIsNotAdded)
{
    CVqAccelerators table;
    table.AddAccelKey(7, 18, 0x41, 99);

    EXPECT_FALSE(VqAddPackedAccel(table, 7, 4259858));

    EXPECT_EQ(TestMenu::Keys(table), "7:18+65");
}

TEST(VqPackedAccel, KeyOfAnotherIdentifierIsAddedAgain)
{
    CVqAccelerators table;
    table.AddAccelKey(3, 18, 0x41, 0);

    EXPECT_TRUE(VqAddPackedAccel(table, 7, 4259858));

    EXPECT_EQ(TestMenu::Keys(table), "3:18+65 7:18+65");
}

TEST(VqPackedAccel, OnlyTheFirstRecordOfACombinationIsLookedAt)
{
    CVqAccelerators table;
    table.AddAccelKey(3, 18, 0x41, 0);
    table.AddAccelKey(7, 18, 0x41, 0);

    EXPECT_TRUE(VqAddPackedAccel(table, 7, 4259858));

    EXPECT_EQ(TestMenu::Keys(table), "3:18+65 7:18+65 7:18+65");
}

TEST(VqPackedAccel, FlagsCountInTheComparison)
{
    CVqAccelerators table;
    table.AddAccelKey(7, 22, 0x41, 0);

    EXPECT_TRUE(VqAddPackedAccel(table, 7, 4259858));
}

TEST(VqPackedAccel, OlderRecordAnswersForACombinationThatIsThereTwice)
{
    CVqAccelerators table;
    table.AddAccelKey(3, 18, 0x41, 0);
    VqAddPackedAccel(table, 7, 4259858);
    vq_uint64 target = 0;
    vq_uint32 id = 0;

    EXPECT_TRUE(table.Translate(0x41, 2, target, id));

    EXPECT_EQ(id, 3u);
}

TEST(VqPackedAccel, NamesCountFromZero)
{
    EXPECT_EQ(VqView(VqPackedAccelName(0)), VQ_TEXT("AccelKey0"));
    EXPECT_EQ(VqView(VqPackedAccelName(12)), VQ_TEXT("AccelKey12"));
    EXPECT_EQ(VqView(VqPackedAccelName(2'147'483'647)), VQ_TEXT("AccelKey2147483647"));
}

TEST(VqPackedAccel, NumberIsThatOfTheExactNameOnly)
{
    EXPECT_EQ(VqPackedAccelNumber(VQ_TEXT("AccelKey0")), 0);
    EXPECT_EQ(VqPackedAccelNumber(VQ_TEXT("AccelKey12")), 12);
    EXPECT_EQ(VqPackedAccelNumber(VQ_TEXT("AccelKey2147483647")), 2'147'483'647);
    for (const vq_wchar* name :
         {VQ_TEXT("AccelKey2147483648"), VQ_TEXT("AccelKey99999999999"), VQ_TEXT("AccelKey"),
          VQ_TEXT("AccelKey01"), VQ_TEXT("AccelKey00"), VQ_TEXT("AccelKey+1"), VQ_TEXT("AccelKey-1"),
          VQ_TEXT("AccelKey-0"), VQ_TEXT("AccelKey1 "), VQ_TEXT("AccelKey1x"), VQ_TEXT("AccelKeyOther"),
          VQ_TEXT("accelkey0"), VQ_TEXT("0"), VQ_TEXT("")})
        EXPECT_EQ(VqPackedAccelNumber(name), -1) << CVqStringW(name).ToQString().toStdString();
}

TEST(VqPackedAccel, NamesOfKeysBeginWithTheirPrefix)
{
    EXPECT_TRUE(VqIsPackedAccelName(VQ_TEXT("AccelKey0")));
    EXPECT_TRUE(VqIsPackedAccelName(VQ_TEXT("AccelKey")));
    EXPECT_TRUE(VqIsPackedAccelName(VQ_TEXT("AccelKeyOther")));
    EXPECT_FALSE(VqIsPackedAccelName(VQ_TEXT("AccelKe")));
    EXPECT_FALSE(VqIsPackedAccelName(VQ_TEXT("accelkey0")));
    EXPECT_FALSE(VqIsPackedAccelName(VQ_TEXT("MyAccelKey0")));
}
