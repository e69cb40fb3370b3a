#include "tests/system/VariantTrees.h"

#include <gtest/gtest.h>

TEST(VqJsonEncode, EachEntryStandsOnALineOfItsOwn)
{
    CVqVariant tree;
    tree.Append(CVqVariant(5u, VQ_TEXT("Id")));
    tree.Append(CVqVariant(-1, VQ_TEXT("Col1")));
    tree.Append(CVqVariant(true, VQ_TEXT("Removed")));
    tree.Append(CVqVariant(VQ_TEXT("&Open"), VQ_TEXT("Text")));
    CVqVariant& menu = tree.Append(CVqVariant());
    menu.SetName(VQ_TEXT("SubMenu"));
    menu.SetRunType(CVqVariantRunType(CVqStringA(VQ_TEXT("CVqListVariant"), 0)));
    menu.Append(CVqVariant());
    tree.Append(CVqVariant(false, VQ_TEXT("last")));

    EXPECT_EQ(json_of(tree), R"(["", "level", [
    "Id", "uint", 5,
    "Col1", "int", -1,
    "Removed", "bool", true,
    "Text", "text", "&Open",
    "SubMenu", "level CVqListVariant", [
        "", "empty", null
    ],
    "last", "bool", false
]]
)");
}

TEST(VqJsonEncode, AnEmptyLevelStaysOnItsLine)
{
    EXPECT_EQ(json_of(CVqLiteVariantR()), "[\"\", \"level\", []]\n");
}

TEST(VqJsonEncode, TextsAreEscaped)
{
    const CVqStringW::string_type units{vq_wchar('"'), vq_wchar(7), vq_wchar(0xD800), vq_wchar(0x65E5)};

    EXPECT_EQ(json_of(CVqVariant(CVqStringW(units), CVqStringW())),
              "[\"\", \"text\", \"\\\"\\u0007\\ud800\xE6\x97\xA5\"]\n");
}

TEST(VqJsonEncode, AByteOrderMarkIsEscaped)
{
    EXPECT_EQ(json_of(CVqVariant(u"\uFEFFa", CVqStringW())), "[\"\", \"text\", \"\\ufeffa\"]\n");
}
