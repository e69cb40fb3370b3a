#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/support/TestMenu.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Text = std::basic_string<vq_wchar>;

constexpr vq_wchar no_mnemonic = 0;

CVqAbstractMenu::SVqManipulators& tools()
{
    return CVqAbstractMenu::SVqManipulators::Instance();
}

/// What set_accel() makes of `text`.
std::string after_set_accel(CVqAccelerators& table, vq_uint32 id, const vq_wchar* text)
{
    CVqStringW copy(text);
    tools().set_accel(&table, id, copy);
    return TestMenu::Plain(copy);
}

/// What update_menustring() makes of `text` on an item of `type`.
std::string after_update(vq_uint32 type, const vq_wchar* text, const vq_wchar* accel_text)
{
    CVqMenuItem item;
    item.setType(type);
    item.setText(text);
    tools().update_menustring(&item, accel_text);
    return TestMenu::Plain(item.text());
}

/// Both parts of a split; the second is "(none)" without a delimiter.
struct Parts
{
    std::string m_first;
    std::string m_second;

    bool operator==(const Parts&) const = default;
};

void PrintTo(const Parts& parts, std::ostream* out)
{
    *out << "'" << parts.m_first << "' and '" << parts.m_second << "'";
}

Parts split(const vq_wchar* source, vq_wchar mnemonic, const vq_wchar* delimiters)
{
    Text area(Text(VqView(source)).size() + 1, VQ_TEXT('#'));
    const vq_wchar* second = tools().handle_mnemonics_and_split(area.data(), source, mnemonic, delimiters);
    const bool is_inside = second && second >= area.data() && second <= area.data() + area.size();
    return {TestMenu::Plain(CVqStringW(area.c_str())),
            is_inside ? TestMenu::Plain(CVqStringW(second)) : std::string("(none)")};
}

}

// set_accel -----------------------------------------------------------------------------------------------

TEST(SVqManipulatorsSetAccel, KeyTextBehindBelReplacesTheKeysOfTheIdAndLeavesTheString)
{
    CVqAccelerators table;
    table.AddAccelKey(7, 16, 0x42, 0);
    table.AddAccelKey(8, 16, 0x43, 0);

    const std::string text = after_set_accel(table, 7, VQ_TEXT("&Open\aCtrl+O"));

    EXPECT_EQ(text, "&Open|Ctrl+O");
    EXPECT_EQ(TestMenu::Keys(table), "8:16+67 7:18+79");
}

TEST(SVqManipulatorsSetAccel, KeyTextBehindTheFirstBelCounts)
{
    CVqAccelerators table;

    after_set_accel(table, 7, VQ_TEXT("Open\aCtrl+O\aCtrl+P"));

    EXPECT_EQ(TestMenu::Keys(table), "7:18+79");
}

TEST(SVqManipulatorsSetAccel, TargetOfAddedKeysIsZero)
{
    CVqAccelerators table;

    after_set_accel(table, 7, VQ_TEXT("Open\aCtrl+O"));

    vq_uint64 target = 5;
    vq_uint32 id = 0;
    EXPECT_TRUE(table.Translate(0x4F, 2, target, id));
    EXPECT_EQ(target, 0u);
}

TEST(SVqManipulatorsSetAccel, BelWithoutKeyTextRemovesTheKeys)
{
    CVqAccelerators table;
    table.AddAccelKey(7, 16, 0x42, 0);

    const std::string text = after_set_accel(table, 7, VQ_TEXT("Open\a"));

    EXPECT_EQ(text, "Open|");
    EXPECT_EQ(TestMenu::Keys(table), "");
}

TEST(SVqManipulatorsSetAccel, UnreadableKeyTextRemovesTheKeys)
{
    CVqAccelerators table;
    table.AddAccelKey(7, 16, 0x42, 0);

    after_set_accel(table, 7, VQ_TEXT("Open\aCtrl+;"));

    EXPECT_EQ(TestMenu::Keys(table), "");
}

TEST(SVqManipulatorsSetAccel, WithoutBelTheFirstKeyIsPutBehind)
{
    CVqAccelerators table;
    table.AddAccelKey(8, 16, 0x43, 0);
    table.AddAccelKey(7, 18, 0x4F, 0);
    table.AddAccelKey(7, 20, 0x70, 0);

    const std::string text = after_set_accel(table, 7, VQ_TEXT("&Open"));

    EXPECT_EQ(text, "&Open|Ctrl+O");
    EXPECT_EQ(TestMenu::Keys(table), "8:16+67 7:18+79 7:20+112");
}

TEST(SVqManipulatorsSetAccel, WithoutBelAndKeyNothingHappens)
{
    CVqAccelerators table;
    table.AddAccelKey(8, 16, 0x43, 0);

    EXPECT_EQ(after_set_accel(table, 7, VQ_TEXT("&Open")), "&Open");
}

TEST(SVqManipulatorsSetAccel, RecordWithoutKeyPutsBelAndNoText)
{
    CVqAccelerators table;
    table.AddAccelKey(7, 16, 0xFFFF, 0);

    EXPECT_EQ(after_set_accel(table, 7, VQ_TEXT("&Open")), "&Open|");
}

TEST(SVqManipulatorsSetAccel, TextWithPercentSignsIsTakenAsItIs)
{
    CVqAccelerators table;
    table.AddAccelKey(7, 18, 0x4F, 0);

    EXPECT_EQ(after_set_accel(table, 7, VQ_TEXT("100 %s %d")), "100 %s %d|Ctrl+O");
}

TEST(SVqManipulatorsSetAccel, NullTableLeavesTheString)
{
    CVqStringW text(VQ_TEXT("Open\aCtrl+O"));

    tools().set_accel(nullptr, 7, text);

    EXPECT_EQ(TestMenu::Plain(text), "Open|Ctrl+O");
}

// update_menustring ---------------------------------------------------------------------------------------

TEST(SVqManipulatorsUpdateMenustring, KeyTextGoesBehindTheLabel)
{
    EXPECT_EQ(after_update(CVqAbstractMenu::SenseItem, VQ_TEXT("&Open"), VQ_TEXT("Ctrl+O, F3")),
              "&Open|Ctrl+O, F3");
}

TEST(SVqManipulatorsUpdateMenustring, FormerKeyTextIsCutAtTheFirstBel)
{
    EXPECT_EQ(after_update(CVqAbstractMenu::SenseItem, VQ_TEXT("&Open\aF3\aF4"), VQ_TEXT("Ctrl+O")),
              "&Open|Ctrl+O");
}

TEST(SVqManipulatorsUpdateMenustring, EmptyKeyTextStripsTheFormerOne)
{
    EXPECT_EQ(after_update(CVqAbstractMenu::SenseItem, VQ_TEXT("&Open\aF3"), VQ_TEXT("")), "&Open");
}

TEST(SVqManipulatorsUpdateMenustring, NullKeyTextReadsAsEmpty)
{
    EXPECT_EQ(after_update(CVqAbstractMenu::SenseItem, VQ_TEXT("&Open\aF3"), nullptr), "&Open");
}

TEST(SVqManipulatorsUpdateMenustring, PopupNeverShowsKeyText)
{
    EXPECT_EQ(after_update(CVqAbstractMenu::SensePopup, VQ_TEXT("&File\aF3"), VQ_TEXT("Ctrl+O")), "&File");
}

TEST(SVqManipulatorsUpdateMenustring, MainRootNeverShowsKeyText)
{
    EXPECT_EQ(after_update(CVqAbstractMenu::SenseMainRoot, VQ_TEXT("Root\aF3"), VQ_TEXT("Ctrl+O")), "Root");
}

TEST(SVqManipulatorsUpdateMenustring, OtherTypesShowKeyText)
{
    EXPECT_EQ(after_update(CVqAbstractMenu::SenseLineWidth, VQ_TEXT("Thin"), VQ_TEXT("F5")), "Thin|F5");
}

TEST(SVqManipulatorsUpdateMenustring, KeyTextMayBeTheItemsOwnText)
{
    CVqMenuItem item;
    item.setType(CVqAbstractMenu::SenseItem);
    item.setText(VQ_TEXT("Open\aF3"));

    tools().update_menustring(&item, item.text().GetString() + 5);

    EXPECT_EQ(TestMenu::Plain(item.text()), "Open|F3");
}

TEST(SVqManipulatorsUpdateMenustring, TextWithPercentSignsIsTakenAsItIs)
{
    EXPECT_EQ(after_update(CVqAbstractMenu::SenseItem, VQ_TEXT("100 %s"), VQ_TEXT("%d")), "100 %s|%d");
}

TEST(SVqManipulatorsUpdateMenustring, NullItemIsIgnored)
{
    tools().update_menustring(nullptr, VQ_TEXT("F3"));
}

// handle_mnemonics_and_split ------------------------------------------------------------------------------

namespace {

struct SplitRow
{
    const char* m_name;
    const vq_wchar* m_source;
    vq_wchar m_mnemonic;
    const vq_wchar* m_delimiters;
    Parts m_parts;
};

}

class SVqManipulatorsSplit : public testing::TestWithParam<SplitRow>
{ };

TEST_P(SVqManipulatorsSplit, GivesBothParts)
{
    const SplitRow& row = GetParam();

    EXPECT_EQ(split(row.m_source, row.m_mnemonic, row.m_delimiters), row.m_parts);
}

const SplitRow split_rows[] = {
    {"MarkOfTheMnemonicStays", VQ_TEXT("&File"), VQ_TEXT('F'), VQ_TEXT("\a\t"), {"&File", "(none)"}},
    {"MarkStaysIgnoringCase", VQ_TEXT("&File"), VQ_TEXT('f'), VQ_TEXT("\a\t"), {"&File", "(none)"}},
    {"OtherMarkIsDropped", VQ_TEXT("&Fi&le"), VQ_TEXT('l'), VQ_TEXT("\a\t"), {"Fi&le", "(none)"}},
    {"EachMarkOfTheMnemonicStays", VQ_TEXT("&Fi&f"), VQ_TEXT('F'), VQ_TEXT("\a\t"), {"&Fi&f", "(none)"}},
    {"WithoutMnemonicNoMarkStays", VQ_TEXT("&File"), no_mnemonic, VQ_TEXT("\a\t"), {"File", "(none)"}},
    {"PairStays", VQ_TEXT("R&&D"), VQ_TEXT('D'), VQ_TEXT("\a\t"), {"R&&D", "(none)"}},
    {"PairThenMark", VQ_TEXT("&&&D"), VQ_TEXT('D'), VQ_TEXT("\a\t"), {"&&&D", "(none)"}},
    {"PairThenOtherMark", VQ_TEXT("&&&D"), VQ_TEXT('X'), VQ_TEXT("\a\t"), {"&&D", "(none)"}},
    {"DroppedMarkCopiesTheCharacterBehind", VQ_TEXT("a&bc"), VQ_TEXT('z'), VQ_TEXT("\a"), {"abc", "(none)"}},
    {"MarkAtTheEndIsDropped", VQ_TEXT("Open&"), VQ_TEXT('O'), VQ_TEXT("\a\t"), {"Open", "(none)"}},
    {"MarkAtTheEndWithoutMnemonicIsDropped",
     VQ_TEXT("Open&"),
     no_mnemonic,
     VQ_TEXT("\a\t"),
     {"Open", "(none)"}},
    {"MarkAlone", VQ_TEXT("&"), no_mnemonic, VQ_TEXT("\a\t"), {"", "(none)"}},
    {"PairAlone", VQ_TEXT("&&"), no_mnemonic, VQ_TEXT("\a\t"), {"&&", "(none)"}},
    {"EmptySource", VQ_TEXT(""), VQ_TEXT('O'), VQ_TEXT("\a\t"), {"", "(none)"}},
    {"NullSource", nullptr, VQ_TEXT('O'), VQ_TEXT("\a\t"), {"", "(none)"}},
    {"SplitsAtBel", VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT('O'), VQ_TEXT("\a\t"), {"&Open", "Ctrl+O"}},
    {"SplitsAtTab", VQ_TEXT("&Open\tCtrl+O"), VQ_TEXT('O'), VQ_TEXT("\a\t"), {"&Open", "Ctrl+O"}},
    {"FirstDelimiterOfTheListWins", VQ_TEXT("a\tb\ac\td"), VQ_TEXT('x'), VQ_TEXT("\a\t"), {"a>b", "c>d"}},
    {"OrderOfTheListCountsAndNotThatOfTheText",
     VQ_TEXT("a\tb\ac\td"),
     VQ_TEXT('x'),
     VQ_TEXT("\t\a"),
     {"a>b|c", "d"}},
    {"LastOccurrenceCounts", VQ_TEXT("a\ab\ac"), VQ_TEXT('x'), VQ_TEXT("\a"), {"a|b", "c"}},
    {"DelimiterAtTheEndGivesAnEmptyPart", VQ_TEXT("Open\a"), VQ_TEXT('x'), VQ_TEXT("\a"), {"Open", ""}},
    {"DelimiterBehindAMarkWithoutMnemonic", VQ_TEXT("Op&\aX"), no_mnemonic, VQ_TEXT("\a"), {"Op", "X"}},
    {"MnemonicMarkBehindTheDelimiterStays", VQ_TEXT("a\a&b"), VQ_TEXT('b'), VQ_TEXT("\a"), {"a", "&b"}},
    {"EmptyDelimitersLeaveTheTextWhole",
     VQ_TEXT("&Open\aCtrl+O"),
     VQ_TEXT('O'),
     VQ_TEXT(""),
     {"&Open|Ctrl+O", "(none)"}},
    {"NullDelimitersReadAsEmpty",
     VQ_TEXT("&Open\aCtrl+O"),
     VQ_TEXT('O'),
     nullptr,
     {"&Open|Ctrl+O", "(none)"}},
};

INSTANTIATE_TEST_SUITE_P(Rows, SVqManipulatorsSplit, testing::ValuesIn(split_rows),
                         [](const auto& row) { return std::string(row.param.m_name); });

TEST(SVqManipulatorsSplit, EmptyDelimitersGiveTheAddressBehindTheirTerminator)
{
    vq_wchar area[8];
    const vq_wchar delimiters[2] = {0, VQ_TEXT('x')};

    const vq_wchar* second = tools().handle_mnemonics_and_split(area, VQ_TEXT("Open"), 0, delimiters);

    EXPECT_EQ(second, delimiters + 1);
}

TEST(SVqManipulatorsSplit, NullDestinationGivesNull)
{
    EXPECT_EQ(tools().handle_mnemonics_and_split(nullptr, VQ_TEXT("Open"), 0, VQ_TEXT("\a")), nullptr);
}

TEST(SVqManipulatorsSplit, SourceMayBeTheDestination)
{
    Text area = VQ_TEXT("&Op&en\aF3");

    const vq_wchar* second
        = tools().handle_mnemonics_and_split(area.data(), area.data(), VQ_TEXT('e'), VQ_TEXT("\a"));

    EXPECT_EQ(TestMenu::Plain(CVqStringW(area.c_str())), "Op&en");
    EXPECT_EQ(TestMenu::Plain(CVqStringW(second)), "F3");
}

TEST(SVqManipulatorsSplit, WritesNoMoreThanTheSourceHas)
{
    std::vector<vq_wchar> area(6, VQ_TEXT('#'));

    tools().handle_mnemonics_and_split(area.data(), VQ_TEXT("&&&&"), 0, VQ_TEXT("\a"));

    EXPECT_EQ(area[4], 0);
    EXPECT_EQ(area[5], VQ_TEXT('#'));
}
