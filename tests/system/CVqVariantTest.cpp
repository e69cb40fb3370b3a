#include "system/CVqVariant.h"

#include "tests/support/SmallStack.h"
#include "tests/system/SystemPrinters.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>

namespace {

const vq_wchar* const null_text = nullptr;
const CVqVariantRunType list_type(CVqStringA(VQ_TEXT("CVqListVariant"), 0));

CVqVariant record()
{
    CVqVariant node;
    node.SetName(VQ_TEXT("record"));
    node.Append(CVqVariant(5u, VQ_TEXT("Id")));
    node.Append(CVqVariant(VQ_TEXT("&Open"), VQ_TEXT("Text")));
    return node;
}

CVqVariant chain(int levels)
{
    CVqVariant root;
    CVqVariant* node = &root;
    for (int i = 0; i < levels; ++i)
        node = &node->Append(CVqVariant());
    node->Append(CVqVariant(levels, VQ_TEXT("depth")));
    return root;
}

const CVqVariant& deepest(const CVqVariant& root)
{
    const CVqVariant* node = &root;
    while (node->GetCount() > 0)
        node = node->IndexPtr(0);
    return *node;
}

}

TEST(CVqVariant, DefaultIsAnEmptyNode)
{
    const CVqVariant node;

    EXPECT_TRUE(node.IsEmpty());
    EXPECT_EQ(node.GetType(), EVqVariantType::Empty);
    EXPECT_EQ(node.GetCount(), 0);
    EXPECT_EQ(node.GetName(), VQ_TEXT(""));
}

TEST(CVqVariant, ConstructorsMakeNamedScalars)
{
    const CVqStringW name(VQ_TEXT("n"));

    EXPECT_EQ(CVqVariant(true, name).GetType(), EVqVariantType::Bool);
    EXPECT_EQ(CVqVariant(5u, name).GetType(), EVqVariantType::Uint);
    EXPECT_EQ(CVqVariant(5, name).GetType(), EVqVariantType::Int);
    EXPECT_EQ(CVqVariant(CVqStringW(VQ_TEXT("x")), name).GetType(), EVqVariantType::Text);
    EXPECT_EQ(CVqVariant(VQ_TEXT("x"), name).GetType(), EVqVariantType::Text);
    EXPECT_EQ(CVqVariant(5, name).GetName(), VQ_TEXT("n"));
    EXPECT_FALSE(CVqVariant(VQ_TEXT(""), name).IsEmpty());
    EXPECT_EQ(CVqVariant(null_text, name).GetCVqStringW(nullptr), VQ_TEXT(""));
}

TEST(CVqVariant, CopiesAreDeep)
{
    CVqVariant source = record();
    source.SetRunType(list_type);
    CVqVariant copy(source);
    CVqVariant assigned;
    assigned = source;

    copy.Append(CVqVariant(1, VQ_TEXT("more")));
    copy[VQ_TEXT("Id")] = CVqVariant(6u, VQ_TEXT("Id"));

    EXPECT_EQ(source.GetCount(), 2);
    EXPECT_EQ(source[VQ_TEXT("Id")].GetVq_uint32(nullptr), 5u);
    EXPECT_EQ(assigned.GetCount(), 2);
    EXPECT_EQ(assigned.GetName(), VQ_TEXT("record"));
    EXPECT_STREQ(assigned.GetRunType(), "CVqListVariant");
    EXPECT_NE(assigned.IndexPtr(0), source.IndexPtr(0));
}

TEST(CVqVariant, AssignmentReplacesTheWholeNodeWhateverItsType)
{
    CVqVariant node(5, VQ_TEXT("number"));

    node = CVqVariant(VQ_TEXT("x"), VQ_TEXT("text"));
    EXPECT_EQ(node.GetType(), EVqVariantType::Text);
    EXPECT_EQ(node.GetName(), VQ_TEXT("text"));

    node = record();
    EXPECT_EQ(node.GetType(), EVqVariantType::Level);

    node = CVqVariant();
    EXPECT_TRUE(node.IsEmpty());
    EXPECT_EQ(node.GetCount(), 0);
}

TEST(CVqVariant, ANodeMayBecomeItsOwnChildAndBack)
{
    CVqVariant node = record();

    node.Append(node);
    EXPECT_EQ(node.GetCount(), 3);
    EXPECT_EQ(node[2].GetCount(), 2);

    node = node[2];
    EXPECT_EQ(node.GetCount(), 2);
    node = std::move(node[VQ_TEXT("Text")]);
    EXPECT_EQ(node.GetCVqStringW(nullptr), VQ_TEXT("&Open"));
}

TEST(CVqVariant, NamesFindTheFirstChildExactly)
{
    CVqVariant node = record();
    node.Append(CVqVariant(7u, VQ_TEXT("Id")));
    node.Append(CVqVariant(8u, VQ_TEXT("")));

    EXPECT_EQ(node[VQ_TEXT("Id")].GetVq_uint32(nullptr), 5u);
    EXPECT_TRUE(node[VQ_TEXT("id")].IsEmpty());
    EXPECT_EQ(node[null_text].GetVq_uint32(nullptr), 8u);
}

TEST(CVqVariant, AMissingNameLeavesTheTreeAndGivesANodeWithoutAValue)
{
    CVqVariant node = record();
    const CVqVariant& constant = node;

    EXPECT_TRUE(node[VQ_TEXT("Status")].IsEmpty());
    EXPECT_TRUE(constant[VQ_TEXT("Status")].IsEmpty());
    EXPECT_EQ(node[VQ_TEXT("Status")][VQ_TEXT("deeper")].GetCount(), 0);
    EXPECT_EQ(node.GetCount(), 2);
}

TEST(CVqVariant, WritingToAMissingNodeIsLostWithTheNextMiss)
{
    CVqVariant node = record();
    const CVqVariant& constant = node;

    node[VQ_TEXT("Status")] = CVqVariant(9, VQ_TEXT("Status"));
    node[VQ_TEXT("Other")].Append(CVqVariant(9, VQ_TEXT("x")));

    EXPECT_TRUE(node[VQ_TEXT("Status")].IsEmpty());
    EXPECT_TRUE(constant[VQ_TEXT("Other")].IsEmpty());
    EXPECT_EQ(node.GetCount(), 2);
}

TEST(CVqVariant, IndicesReachChildrenAndNothingBeyond)
{
    CVqVariant node = record();
    const CVqVariant& constant = node;

    EXPECT_EQ(node[0].GetName(), VQ_TEXT("Id"));
    EXPECT_EQ(node[std::size_t(1)].GetName(), VQ_TEXT("Text"));
    EXPECT_EQ(constant[1u].GetName(), VQ_TEXT("Text"));
    EXPECT_TRUE(node[2].IsEmpty());
    EXPECT_TRUE(constant[2].IsEmpty());
    EXPECT_TRUE(node[-1].IsEmpty());
    EXPECT_TRUE(constant[SIZE_MAX].IsEmpty());
}

TEST(CVqVariant, IndexPtrIsNullOutside)
{
    CVqVariant node = record();
    const CVqVariant& constant = node;

    EXPECT_EQ(node.IndexPtr(1), &node[1]);
    EXPECT_EQ(constant.IndexPtr(0), &constant[0]);
    EXPECT_EQ(node.IndexPtr(-1), nullptr);
    EXPECT_EQ(node.IndexPtr(2), nullptr);
    EXPECT_EQ(constant.IndexPtr(INT_MIN), nullptr);
}

TEST(CVqVariant, AppendStoresACopyThatTheCallerFills)
{
    CVqVariant node;
    CVqVariant empty;

    CVqVariant& stored = node.Append(empty);
    stored.Append(CVqVariant(1, VQ_TEXT("a")));
    for (int i = 0; i < 100; ++i)
        node.Append(empty);
    stored.Append(CVqVariant(2, VQ_TEXT("b")));

    EXPECT_EQ(node[0].GetCount(), 2);
    EXPECT_EQ(empty.GetCount(), 0);
}

TEST(CVqVariant, AppendTakesOverWhatIsMoved)
{
    CVqVariant tree;
    CVqVariant level(VQ_TEXT("text"), VQ_TEXT("Level"));
    level.EnableTypeChange(true);
    level.Append(CVqVariant(5, VQ_TEXT("Id")));
    const CVqVariant* child = level.IndexPtr(0);

    CVqVariant& stored = tree.Append(std::move(level));

    EXPECT_EQ(stored.GetName(), VQ_TEXT("Level"));
    EXPECT_EQ(stored.IndexPtr(0), child);
    EXPECT_TRUE(stored.EnableTypeChange(true));
    EXPECT_TRUE(level.IsEmpty()); // NOLINT(bugprone-use-after-move): a moved-from node is empty
    EXPECT_TRUE(level.GetName().IsEmpty());
    EXPECT_FALSE(level.EnableTypeChange(true));
}

TEST(CVqVariant, AppendMakesNamedScalars)
{
    CVqVariant tree;

    tree.Append(true, VQ_TEXT("Bool"));
    tree.Append(0xFFFFFFFFu, VQ_TEXT("Uint"));
    tree.Append(-5, VQ_TEXT("Int"));
    tree.Append(VQ_TEXT("text"), VQ_TEXT("Text"));
    CVqVariant& last = tree.Append(static_cast<const vq_wchar*>(nullptr), nullptr);

    EXPECT_EQ(tree[0].GetType(), EVqVariantType::Bool);
    EXPECT_EQ(tree[0].GetName(), VQ_TEXT("Bool"));
    EXPECT_EQ(tree[VQ_TEXT("Uint")].GetType(), EVqVariantType::Uint);
    EXPECT_EQ(tree[VQ_TEXT("Uint")].GetVq_uint32(nullptr), 0xFFFFFFFFu);
    EXPECT_EQ(tree[VQ_TEXT("Int")].GetType(), EVqVariantType::Int);
    EXPECT_EQ(tree[VQ_TEXT("Int")].GetVq_int32(nullptr), -5);
    EXPECT_EQ(tree[VQ_TEXT("Text")].GetCVqStringW(nullptr), VQ_TEXT("text"));
    EXPECT_EQ(&last, tree.IndexPtr(4));
    EXPECT_EQ(last.GetType(), EVqVariantType::Text);
    EXPECT_TRUE(last.GetName().IsEmpty());
}

TEST(CVqVariant, AppendOfNamedScalarsToAScalarNeedsTypeChange)
{
    CVqVariant scalar(VQ_TEXT("old"), VQ_TEXT("Scalar"));

    EXPECT_TRUE(scalar.Append(5, VQ_TEXT("Int")).IsEmpty());
    EXPECT_TRUE(scalar.Append(VQ_TEXT("text"), VQ_TEXT("Text")).IsEmpty());
    EXPECT_EQ(scalar.GetCVqStringW(nullptr), VQ_TEXT("old"));
    scalar.EnableTypeChange(true);
    EXPECT_EQ(scalar.Append(VQ_TEXT("text"), VQ_TEXT("Text")).GetCVqStringW(nullptr), VQ_TEXT("text"));

    EXPECT_EQ(scalar.GetCount(), 1);
}

TEST(CVqVariant, AppendToAScalarTakesNothingOver)
{
    CVqVariant scalar(5, VQ_TEXT("Scalar"));
    CVqVariant child(6, VQ_TEXT("Child"));

    EXPECT_TRUE(scalar.Append(std::move(child)).IsEmpty());

    EXPECT_EQ(child.GetVq_int32(nullptr), 6); // NOLINT(bugprone-use-after-move): it was left alone
    EXPECT_EQ(scalar.GetVq_int32(nullptr), 5);
}

TEST(CVqVariant, AppendToAScalarNeedsTypeChange)
{
    CVqVariant node(5, VQ_TEXT("number"));

    node.Append(CVqVariant(1, VQ_TEXT("a"))).SetName(VQ_TEXT("b"));
    EXPECT_EQ(node.GetCount(), 0);
    EXPECT_EQ(node.GetVq_int32(nullptr), 5);

    node.EnableTypeChange(true);
    node.Append(CVqVariant(1, VQ_TEXT("a")));
    EXPECT_EQ(node.GetCount(), 1);
    EXPECT_EQ(node.GetType(), EVqVariantType::Level);
    EXPECT_EQ(node.GetName(), VQ_TEXT("number"));
}

TEST(CVqVariant, EnableTypeChangeReturnsTheFormerSetting)
{
    CVqVariant node;

    EXPECT_FALSE(node.EnableTypeChange(true));
    EXPECT_TRUE(node.EnableTypeChange(true));
    EXPECT_TRUE(CVqVariant(node).EnableTypeChange(false));
    EXPECT_TRUE(node.EnableTypeChange(false));
    EXPECT_FALSE(node.EnableTypeChange(false));
}

TEST(CVqVariant, ARunTypeMakesAnEmptyNodeALevel)
{
    CVqVariant node;

    node.SetRunType(list_type);
    EXPECT_STREQ(node.GetRunType(), "CVqListVariant");
    EXPECT_FALSE(node.IsEmpty());
    EXPECT_EQ(node.GetCount(), 0);

    node.SetRunType(CVqVariantRunType(CVqStringA()));
    EXPECT_TRUE(node.IsEmpty());
}

TEST(CVqVariant, ARunTypeLeavesAScalar)
{
    CVqVariant node(5, VQ_TEXT("n"));

    node.SetRunType(list_type);

    EXPECT_EQ(node.GetVq_int32(nullptr), 5);
}

namespace {

struct SConversion
{
    const char* name;
    CVqVariant node;
    bool ok;
    vq_uint32 number;
    bool text_ok;
    const vq_wchar* text;
};

void PrintTo(const SConversion& row, std::ostream* out)
{
    *out << row.name;
}

class CVqVariantConversion : public testing::TestWithParam<SConversion>
{ };

}

TEST_P(CVqVariantConversion, GivesNumberBoolAndText)
{
    const SConversion& row = GetParam();
    bool ok = !row.ok;

    EXPECT_EQ(row.node.GetVq_uint32(&ok), row.number);
    EXPECT_EQ(ok, row.ok);
    ok = !row.ok;
    EXPECT_EQ(row.node.GetVq_int32(&ok), static_cast<vq_int32>(row.number));
    EXPECT_EQ(ok, row.ok);
    ok = !row.ok;
    EXPECT_EQ(row.node.GetBool(&ok), row.number != 0);
    EXPECT_EQ(ok, row.ok);
    ok = !row.text_ok;
    EXPECT_EQ(row.node.GetCVqStringW(&ok), row.text);
    EXPECT_EQ(ok, row.text_ok);
    EXPECT_EQ(static_cast<CVqStringW>(row.node), row.text);
}

namespace {

SConversion number(const char* name, const CVqVariant& node, vq_uint32 bits, const vq_wchar* text)
{
    return {name, node, true, bits, true, text};
}

SConversion digits(const char* name, const vq_wchar* text, vq_uint32 bits)
{
    return {name, CVqVariant(text, CVqStringW()), true, bits, true, text};
}

SConversion no_number(const char* name, const vq_wchar* text)
{
    return {name, CVqVariant(text, CVqStringW()), false, 0, true, text};
}

}

INSTANTIATE_TEST_SUITE_P(
    Rows, CVqVariantConversion,
    testing::Values(
        number("True", CVqVariant(true, CVqStringW()), 1, VQ_TEXT("1")),
        number("False", CVqVariant(false, CVqStringW()), 0, VQ_TEXT("0")),
        number("Int", CVqVariant(7, CVqStringW()), 7, VQ_TEXT("7")),
        number("NegativeInt", CVqVariant(-1, CVqStringW()), 0xFFFFFFFF, VQ_TEXT("-1")),
        number("LeastInt", CVqVariant(INT_MIN, CVqStringW()), 0x80000000, VQ_TEXT("-2147483648")),
        number("GreatestUint", CVqVariant(UINT_MAX, CVqStringW()), 0xFFFFFFFF, VQ_TEXT("4294967295")),
        digits("Digits", VQ_TEXT("42"), 42), digits("PlusDigits", VQ_TEXT("+42"), 42),
        digits("MinusDigits", VQ_TEXT("-42"), 0xFFFFFFD6), digits("LeadingZeros", VQ_TEXT("007"), 7),
        digits("GreatestDigits", VQ_TEXT("4294967295"), 0xFFFFFFFF),
        digits("LeastDigits", VQ_TEXT("-2147483648"), 0x80000000),
        no_number("AboveGreatest", VQ_TEXT("4294967296")), no_number("BelowLeast", VQ_TEXT("-2147483649")),
        no_number("FarAbove", VQ_TEXT("99999999999999999999999999")), no_number("EmptyText", VQ_TEXT("")),
        no_number("Word", VQ_TEXT("true")), no_number("DigitsAndMore", VQ_TEXT("5 cm")),
        no_number("BlankBefore", VQ_TEXT(" 5")), no_number("TwoSigns", VQ_TEXT("+-5")),
        no_number("SignOnly", VQ_TEXT("-")), no_number("WideDigit", u"\uFF15"),
        SConversion{"Empty", CVqVariant(), false, 0, false, VQ_TEXT("")},
        SConversion{"Level", record(), false, 0, false, VQ_TEXT("")}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(CVqVariant, FourThousandLevelsCopyAndGoInASmallStack)
{
    run_in_small_stack([] {
        const CVqVariant source = chain(4000);
        CVqVariant copy(source);
        EXPECT_EQ(deepest(copy).GetVq_int32(nullptr), 4000);
        copy = CVqVariant();
        EXPECT_EQ(deepest(source).GetName(), VQ_TEXT("depth"));
    });
}

TEST(CVqVariant, AHundredThousandSiblingsKeepTheirOrder)
{
    CVqVariant node;
    for (int i = 0; i < 100'000; ++i)
        node.Append(CVqVariant(i, CVqStringW()));

    const CVqVariant copy(node);

    EXPECT_EQ(copy.GetCount(), 100'000);
    EXPECT_EQ(copy[99'999].GetVq_int32(nullptr), 99'999);
}
