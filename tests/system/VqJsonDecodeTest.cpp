#include "tests/system/SystemPrinters.h"
#include "tests/system/VariantTrees.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Result = EVqStorageResult;

struct SText
{
    const char* name;
    const char* json;
    Result result;
};

void PrintTo(const SText& row, std::ostream* out)
{
    *out << row.json;
}

class VqJsonDecode : public testing::TestWithParam<SText>
{ };

}

TEST_P(VqJsonDecode, GivesTheResultAndLeavesTheTarget)
{
    CVqVariant target(5, VQ_TEXT("kept"));

    EXPECT_EQ(from_json(GetParam().json, target), GetParam().result);

    EXPECT_EQ(target.GetName(), VQ_TEXT("kept"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, VqJsonDecode,
    testing::Values(SText{"NoBytes", "", Result::CutShort}, SText{"BlanksOnly", " \n", Result::CutShort},
                    SText{"CutArray", R"(["", "level", [)", Result::CutShort},
                    SText{"CutString", R"(["", "te)", Result::CutShort},
                    SText{"NoJson", "menu", Result::BadBytes},
                    SText{"NoComma", R"(["" "text", ""])", Result::BadBytes},
                    SText{"BadUtf8", "[\"\", \"text\", \"\xFF\"]", Result::BadBytes},
                    SText{"TrailingValue", R"(["", "empty", null] 5)", Result::TrailingBytes},
                    SText{"Object", "{}", Result::WrongType}, SText{"EmptyArray", "[]", Result::WrongType},
                    SText{"TwoRoots", R"(["", "int", 1, "", "int", 1])", Result::WrongType},
                    SText{"NameThatIsANumber", R"([1, "int", 1])", Result::WrongType},
                    SText{"TypeThatIsANumber", R"(["", 1, 1])", Result::WrongType},
                    SText{"UnknownType", R"(["", "float", 1])", Result::WrongType},
                    SText{"TypeOfAnotherCase", R"(["", "Int", 1])", Result::WrongType},
                    SText{"EmptyRunType", R"(["", "int ", 1])", Result::WrongType},
                    SText{"Fraction", R"(["", "int", 1.5])", Result::WrongType},
                    SText{"IntAboveGreatest", R"(["", "int", 2147483648])", Result::WrongType},
                    SText{"IntBelowLeast", R"(["", "int", -2147483649])", Result::WrongType},
                    SText{"UintBelowZero", R"(["", "uint", -1])", Result::WrongType},
                    SText{"UintAboveGreatest", R"(["", "uint", 4294967296])", Result::WrongType},
                    SText{"IntOfText", R"(["", "int", "1"])", Result::WrongType},
                    SText{"BoolOfNumber", R"(["", "bool", 1])", Result::WrongType},
                    SText{"TextOfNumber", R"(["", "text", 1])", Result::WrongType},
                    SText{"EmptyOfNumber", R"(["", "empty", 1])", Result::WrongType},
                    SText{"LevelOfNumber", R"(["", "level", 1])", Result::WrongType},
                    SText{"LevelOfObject", R"(["", "level", {}])", Result::WrongType},
                    SText{"LevelOfTwoValues", R"(["", "level", ["a", "int"]])", Result::WrongType}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(VqJsonDecoding, LayoutIsFree)
{
    CVqVariant tree;

    ASSERT_EQ(from_json("\n[\"\",\"level\",[\"a\",\"int\",1,\"b\",\"uint T u\",4294967295]]", tree),
              Result::Ok);

    EXPECT_EQ(tree[VQ_TEXT("a")].GetVq_int32(nullptr), 1);
    EXPECT_EQ(tree[VQ_TEXT("b")].GetVq_uint32(nullptr), UINT32_MAX);
    EXPECT_STREQ(tree[VQ_TEXT("b")].GetRunType(), "T u");
}

TEST(VqJsonDecoding, MoreThanAThousandLevelsAreTooDeep)
{
    for (const int levels : {1001, 1020, 1030, 100'000}) {
        SCOPED_TRACE(levels);
        CVqVariant tree;
        QByteArray json;
        for (int i = 0; i < levels; ++i)
            json += "[\"\", \"level\", ";
        json += "[]";
        for (int i = 0; i < levels; ++i)
            json += "]";
        EXPECT_EQ(from_json(json, tree), Result::TooDeep);
    }
}
