#include "tests/system/SystemPrinters.h"
#include "tests/system/VariantTrees.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Result = EVqStorageResult;

struct SBytes
{
    const char* name;
    const char* hex;
    Result result;
};

void PrintTo(const SBytes& row, std::ostream* out)
{
    *out << row.hex;
}

class VqCborDecode : public testing::TestWithParam<SBytes>
{ };

CVqVariant read(const char* hex)
{
    CVqVariant tree;
    EXPECT_EQ(from_cbor(QByteArray::fromHex(hex), tree), Result::Ok);
    return tree;
}

}

TEST_P(VqCborDecode, GivesTheResultAndLeavesTheTarget)
{
    CVqVariant target(5, VQ_TEXT("kept"));

    EXPECT_EQ(from_cbor(QByteArray::fromHex(GetParam().hex), target), GetParam().result);

    EXPECT_EQ(target.GetName(), VQ_TEXT("kept"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, VqCborDecode,
    testing::Values(
        SBytes{"NoBytes", "", Result::CutShort}, SBytes{"CutMap", "a2616101", Result::CutShort},
        SBytes{"CutText", "6461", Result::CutShort},
        SBytes{"TextOfAnEnormousLength", "7b7fffffffffffff0061", Result::CutShort},
        SBytes{"BytesOfAnEnormousLength", "5b00000000ffffffff61", Result::CutShort},
        SBytes{"MapOfAnEnormousLength", "bb0000000000ffffff6161", Result::CutShort},
        SBytes{"ArrayOfAnEnormousLength", "9b0000000000ffffff01", Result::CutShort},
        SBytes{"CutTag", "d8", Result::CutShort}, SBytes{"TagOfNothing", "d858", Result::CutShort},
        SBytes{"BreakAlone", "ff", Result::BadBytes}, SBytes{"ReservedLength", "1c", Result::BadBytes},
        SBytes{"TextThatIsNotUtf8", "61ff", Result::BadBytes},
        SBytes{"SurrogateInUtf8", "63eda080", Result::BadBytes},
        SBytes{"UnitsOfOddLength", "4161", Result::WrongType}, SBytes{"Float", "f93c00", Result::WrongType},
        SBytes{"Double", "fb3ff0000000000000", Result::WrongType},
        SBytes{"Undefined", "f7", Result::WrongType}, SBytes{"SimpleValue", "e0", Result::WrongType},
        SBytes{"UnknownTag", "c101", Result::WrongType},
        SBytes{"IntAboveGreatest", "1a80000000", Result::WrongType},
        SBytes{"IntBelowLeast", "3a80000000", Result::WrongType},
        SBytes{"IntFarBelowLeast", "3bffffffffffffffff", Result::WrongType},
        SBytes{"UnsignedAboveGreatest", "d8581b0000000100000000", Result::WrongType},
        SBytes{"UnsignedNegative", "d85820", Result::WrongType},
        SBytes{"UnsignedText", "d8586161", Result::WrongType},
        SBytes{"UnsignedTwice", "d858d85801", Result::WrongType},
        SBytes{"KeyWithoutAName", "a10001", Result::WrongType},
        SBytes{"KeyNumberTooLarge", "a26161010105", Result::WrongType},
        SBytes{"UnsignedKeyOfAText", "a26161d8580100616b", Result::WrongType},
        SBytes{"UnsignedKeyOfALevel", "a26161d8580100a0", Result::WrongType},
        SBytes{"KeyThatIsALevel", "a1a001", Result::WrongType},
        SBytes{"RunTypeWithoutArray", "d81b01", Result::WrongType},
        SBytes{"RunTypeOfOne", "d81b816154", Result::WrongType},
        SBytes{"RunTypeOfThree", "d81b8361540102", Result::WrongType},
        SBytes{"RunTypeThatIsANumber", "d81b820101", Result::WrongType},
        SBytes{"RunTypeInARunType", "d81b826154d81b82615401", Result::WrongType},
        SBytes{"NamedInside", "81d85982616101", Result::WrongType},
        SBytes{"Trailing", "0101", Result::TrailingBytes}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(VqCborDecoding, ContainersAndTextsMayBeOfOpenLength)
{
    const CVqVariant tree = read("bf61617f61626163ff61629f01ffff");

    EXPECT_EQ(tree.GetCount(), 2);
    EXPECT_EQ(tree[VQ_TEXT("a")].GetCVqStringW(nullptr), VQ_TEXT("bc"));
    EXPECT_EQ(tree[VQ_TEXT("b")][0].GetVq_int32(nullptr), 1);
}

TEST(VqCborDecoding, ArraysAreLists)
{
    EXPECT_STREQ(read("80").GetRunType(), "CVqListVariant");
    EXPECT_STREQ(read("a0").GetRunType(), "");
    EXPECT_EQ(read("a0").GetType(), EVqVariantType::Level);
}

TEST(VqCborDecoding, ANameMayStandAsTextAgain)
{
    const CVqVariant tree = read("a4616101616102616203016164");

    EXPECT_EQ(tree.GetCount(), 4);
    EXPECT_EQ(tree[1].GetName(), VQ_TEXT("a"));
    EXPECT_EQ(tree[3].GetName(), VQ_TEXT("b"));
}

TEST(VqCborDecoding, LimitsOfBothIntegersAreTaken)
{
    EXPECT_EQ(read("3a7fffffff").GetVq_int32(nullptr), INT32_MIN);
    EXPECT_EQ(read("1a7fffffff").GetVq_int32(nullptr), INT32_MAX);
    EXPECT_EQ(read("d8581affffffff").GetVq_uint32(nullptr), UINT32_MAX);
}

TEST(VqCborDecoding, ALongTextComesInPieces)
{
    const QByteArray text = QByteArray(5000, 'x') + "\xC3\xBC";
    CVqVariant tree;

    ASSERT_EQ(from_cbor(QByteArray::fromHex("79138a") + text, tree), Result::Ok);

    EXPECT_EQ(tree.GetCVqStringW(nullptr).GetLength(), 5001);
}

TEST(VqCborDecoding, FourThousandLevelsAreReadAndOneMoreIsTooDeep)
{
    CVqVariant tree;

    EXPECT_EQ(from_cbor(QByteArray(3999, '\x81') + '\x80', tree), Result::Ok);
    EXPECT_EQ(from_cbor(QByteArray(4000, '\x81') + '\x80', tree), Result::TooDeep);
    EXPECT_EQ(tree.GetCount(), 1);
}

TEST(VqCborDecoding, AMillionLevelsAreTooDeep)
{
    CVqVariant tree;

    EXPECT_EQ(from_cbor(QByteArray(1'000'000, '\x81'), tree), Result::TooDeep);
}
