#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/support/TestMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

bool array_allocation_fails = false;

}

// Lets a test see what happens when memory for a table runs out.
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return array_allocation_fails ? nullptr : ::operator new[](size);
}

namespace {

using Text = std::basic_string<vq_wchar>;

/// Popup 1, whose children have the identifiers 2, 3, ...
class CVqAbstractMenuMnemonics : public testing::Test
{
protected:
    CVqAbstractMenuMnemonics() { m_menu.AppendPopup(1, 0, VQ_TEXT("Popup")); }

    void add(std::initializer_list<const vq_wchar*> labels)
    {
        for (const vq_wchar* label : labels)
            m_menu.AppendMenuItem(m_next_id++, 1, label, VQ_TEXT(""), 0);
        m_menu.TakeCalls();
    }

    int update() { return m_menu.UpdateMnemonics(1, false); }

    /// The children's menu strings in their order.
    std::vector<std::string> texts()
    {
        std::vector<std::string> result;
        for (const CVqMenuItem* item = m_menu.Item(1)->subItem(); item; item = item->nextItem())
            result.push_back(TestMenu::Plain(item->text()));
        return result;
    }

    /// The children's mnemonics in their order, `-` for none.
    std::string mnemonics()
    {
        std::string result;
        for (const CVqMenuItem* item = m_menu.Item(1)->subItem(); item; item = item->nextItem())
            result += item->mnemonic() ? static_cast<char>(item->mnemonic()) : '-';
        return result;
    }

    TestMenu m_menu;
    vq_uint32 m_next_id = 2;
};

}

// Hand-worked tables --------------------------------------------------------------------------------------

namespace {

struct PopupRow
{
    const char* m_name;
    std::vector<const vq_wchar*> m_labels;
    std::vector<std::string> m_texts;
    std::string m_mnemonics;
};

}

class CVqAbstractMenuMnemonicsOfPopup : public CVqAbstractMenuMnemonics,
                                        public testing::WithParamInterface<PopupRow>
{ };

TEST_P(CVqAbstractMenuMnemonicsOfPopup, LabelsAndMnemonics)
{
    for (const vq_wchar* label : GetParam().m_labels)
        add({label});

    EXPECT_EQ(update(), 0);

    EXPECT_EQ(texts(), GetParam().m_texts);
    EXPECT_EQ(mnemonics(), GetParam().m_mnemonics);
}

const PopupRow popup_rows[] = {
    {"OpenAndOther", {VQ_TEXT("&Open"), VQ_TEXT("&Other")}, {"&Open", "O&ther"}, "Ot"},
    {"OtherAndOpen", {VQ_TEXT("&Other"), VQ_TEXT("&Open")}, {"O&ther", "&Open"}, "tO"},
    {"FormerMarksAreIgnored", {VQ_TEXT("Op&en")}, {"&Open"}, "O"},
    {"DigitIsTheFirstCandidate", {VQ_TEXT("Layer 2")}, {"Layer &2"}, "2"},
    {"DigitsKeepTheirOrder", {VQ_TEXT("Take 3 or 12"), VQ_TEXT("3")}, {"Take 3 or &12", "&3"}, "13"},
    {"PairOfMarksStays", {VQ_TEXT("R&&D")}, {"&R&&D"}, "R"},
    {"PairOfMarksHasTwoCandidates", {VQ_TEXT("R"), VQ_TEXT("R&&D")}, {"&R", "R&&&D"}, "RD"},
    {"ThreeMarksAreAPairAndAMark", {VQ_TEXT("&&&D")}, {"&&&D"}, "D"},
    {"MarkAtTheEndGoes", {VQ_TEXT("Open&")}, {"&Open"}, "O"},
    {"PunctuationOnly", {VQ_TEXT("...?!")}, {"...?!"}, "-"},
    {"PunctuationLosesItsMark", {VQ_TEXT("&...")}, {"..."}, "-"},
    {"TabEndsTheCandidates", {VQ_TEXT("&A\tX"), VQ_TEXT("A\tB")}, {"&A>X", "A>B"}, "A-"},
    {"OwnCaseIsKept", {VQ_TEXT("open"), VQ_TEXT("oTHER")}, {"&open", "o&THER"}, "oT"},
    {"CaseIsFoldedForUniqueness", {VQ_TEXT("a"), VQ_TEXT("A")}, {"&a", "A"}, "a-"},
    {"FirstOfARepeatedLetterIsMarked", {VQ_TEXT("Banana"), VQ_TEXT("B")}, {"B&anana", "&B"}, "aB"},
    {"EqualCountsGoByIdentifier", {VQ_TEXT("AB"), VQ_TEXT("AB")}, {"&AB", "A&B"}, "AB"},
    {"GoesBackForALaterLabel", {VQ_TEXT("AB"), VQ_TEXT("BC"), VQ_TEXT("BA")}, {"&AB", "B&C", "&BA"}, "ACB"},
    // An entry without candidates stands first and ends the search at once; the rest is served greedily:
    // AB takes A, and BA, which could have had it, takes B.
    {"LabelWithoutCandidatesEndsTheSearch",
     {VQ_TEXT("AB"), VQ_TEXT("?"), VQ_TEXT("A")},
     {"A&B", "?", "&A"},
     "B-A"},
    {"GreedyServiceDoesNotGoBack",
     {VQ_TEXT("AB"), VQ_TEXT("BC"), VQ_TEXT("BA"), VQ_TEXT("?")},
     {"&AB", "&BC", "BA", "?"},
     "AB--"},
    {"MoreLabelsThanLetters", {VQ_TEXT("AB"), VQ_TEXT("AB"), VQ_TEXT("AB")}, {"&AB", "A&B", "AB"}, "AB-"},
    {"FormerMarkGoesWhenNothingIsLeft", {VQ_TEXT("A"), VQ_TEXT("&A")}, {"&A", "A"}, "A-"},
    {"BlankIsNoCandidate", {VQ_TEXT(" "), VQ_TEXT("a b")}, {" ", "&a b"}, "-a"},
    {"EmptyLabel", {VQ_TEXT(""), VQ_TEXT("A")}, {"", "&A"}, "-A"},
};

INSTANTIATE_TEST_SUITE_P(Rows, CVqAbstractMenuMnemonicsOfPopup, testing::ValuesIn(popup_rows),
                         [](const auto& row) { return std::string(row.param.m_name); });

TEST_F(CVqAbstractMenuMnemonics, CandidatesAreLettersDigitsAndCodesFrom192)
{
    struct Row
    {
        vq_wchar m_unit;
        bool m_is_candidate;
    };
    const Row rows[] = {{0x2F, false}, {0x30, true}, {0x39, true},  {0x3A, false},  {0x40, false},
                        {0x41, true},  {0x5A, true}, {0x5B, false}, {0x60, false},  {0x7B, false},
                        {0xBF, false}, {0xC0, true}, {0xD7, true},  {0x4E00, true}, {0xFFFF, true}};
    for (const Row& row : rows) {
        SCOPED_TRACE(static_cast<unsigned>(row.m_unit));
        TestMenu menu;
        menu.AppendPopup(1, 0, VQ_TEXT("Popup"));
        menu.AppendMenuItem(2, 1, Text(1, row.m_unit).c_str(), VQ_TEXT(""), 0);

        menu.UpdateMnemonics(1, false);

        EXPECT_EQ(menu.Item(2)->mnemonic(), row.m_is_candidate ? row.m_unit : 0);
    }
}

TEST_F(CVqAbstractMenuMnemonics, SmallLettersOutsideAsciiFoldForUniqueness)
{
    add({VQ_TEXT("\u00E4"), VQ_TEXT("\u00C4x")});

    update();

    EXPECT_EQ(m_menu.Item(2)->mnemonic(), vq_wchar(0xE4));
    EXPECT_EQ(m_menu.Item(3)->mnemonic(), VQ_TEXT('x'));
}

TEST_F(CVqAbstractMenuMnemonics, PositionHoldsBehindALetterWhoseCapitalsAreTwo)
{
    add({VQ_TEXT("\u00DF"), VQ_TEXT("\u00DFx")});

    update();

    EXPECT_EQ(texts(), (std::vector<std::string>{"&\u00DF", "\u00DF&x"}));
}

// Who takes part ------------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuMnemonics, OnlyCommandsAndPopupsTakePart)
{
    m_menu.AppendLineWidth(2, 1, 1, VQ_TEXT("&Line"), VQ_TEXT(""));
    m_menu.AppendSeparator(3, 1);
    m_menu.Item(3)->setText(VQ_TEXT("&Separator"));
    m_menu.AppendPopup(4, 1, VQ_TEXT("Sub"));
    m_menu.AppendMenuItem(5, 1, VQ_TEXT("Item"), VQ_TEXT(""), 0);

    EXPECT_EQ(update(), 0);

    EXPECT_EQ(texts(), (std::vector<std::string>{"&Line", "&Separator", "&Sub", "&Item"}));
}

TEST_F(CVqAbstractMenuMnemonics, ItemsWithStatusBit16KeepTextAndMnemonic)
{
    add({VQ_TEXT("O&pen"), VQ_TEXT("Other")});
    m_menu.Item(2)->setStatus(1 | 16);

    EXPECT_EQ(update(), 0);

    EXPECT_EQ(texts(), (std::vector<std::string>{"O&pen", "&Other"}));
    EXPECT_EQ(mnemonics(), "pO");
}

TEST_F(CVqAbstractMenuMnemonics, RemovedAndDeletedItemsKeepTextAndMnemonic)
{
    add({VQ_TEXT("O&pen"), VQ_TEXT("Sa&ve"), VQ_TEXT("Pave")});
    m_menu.Item(2)->setRemoved(true);
    m_menu.Item(3)->setDeleted(true);

    EXPECT_EQ(update(), 0);

    EXPECT_EQ(texts(), (std::vector<std::string>{"O&pen", "Sa&ve", "&Pave"}));
    EXPECT_EQ(mnemonics(), "pvP");
}

TEST_F(CVqAbstractMenuMnemonics, WithoutEligibleChildTheResultIsMinusNine)
{
    m_menu.AppendSeparator(2, 1);

    EXPECT_EQ(update(), -9);
}

TEST_F(CVqAbstractMenuMnemonics, MissingItemNullPopupAndEmptyPopupGiveMinusNine)
{
    EXPECT_EQ(m_menu.UpdateMnemonics(999, false), -9);
    EXPECT_EQ(m_menu.UpdateMnemonicsEx(nullptr, false), -9);
    EXPECT_EQ(update(), -9);
}

TEST_F(CVqAbstractMenuMnemonics, MissingMemoryGivesMinusNineAndChangesNothing)
{
    add({VQ_TEXT("Open")});

    array_allocation_fails = true;
    const int result = update();
    array_allocation_fails = false;

    EXPECT_EQ(result, -9);
    EXPECT_EQ(texts(), std::vector<std::string>{"Open"});
}

// Keys and back end ---------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuMnemonics, KeyTextIsPutBackFromTheTable)
{
    add({VQ_TEXT("Open\actrl+o")});

    update();

    EXPECT_EQ(texts(), std::vector<std::string>{"&Open|Ctrl+O"});
}

TEST_F(CVqAbstractMenuMnemonics, KeyTextWithoutTableEntryIsLost)
{
    add({VQ_TEXT("Open\aCtrl+O")});
    m_menu.MainTable().RemoveAllAccels();

    update();

    EXPECT_EQ(texts(), std::vector<std::string>{"&Open"});
}

TEST_F(CVqAbstractMenuMnemonics, LabelThatDoesNotChangeKeepsItsKeyText)
{
    add({VQ_TEXT("&Open\actrl+o")});
    m_menu.MainTable().RemoveAllAccels();

    update();

    EXPECT_EQ(texts(), std::vector<std::string>{"&Open|ctrl+o"});
    EXPECT_THAT(m_menu.TakeCalls(), IsEmpty());
}

TEST_F(CVqAbstractMenuMnemonics, BackEndHearsOfEachChangedTextInTheOrderOfService)
{
    add({VQ_TEXT("Several"), VQ_TEXT("&Xy"), VQ_TEXT("Two\aF2")});

    update();

    EXPECT_THAT(m_menu.TakeCalls(),
                ElementsAre("UpdateItemText 4 \"&Two|F2\"", "UpdateItemText 2 \"&Several\""));
}

TEST(CVqAbstractMenuMnemonicsWithoutBackEnd, MnemonicsAreAssigned)
{
    TestMenu menu(TestMenu::BackEnd::None);
    menu.AppendMenuItem(2, 0, VQ_TEXT("Open"), VQ_TEXT(""), 0);

    EXPECT_EQ(menu.UpdateMnemonics(0, false), 0);

    EXPECT_EQ(menu.Text(2), "&Open");
}

TEST_F(CVqAbstractMenuMnemonics, SecondRunChangesNothing)
{
    add({VQ_TEXT("Open"), VQ_TEXT("Other\aF2"), VQ_TEXT("Option")});
    update();
    const auto first = texts();
    m_menu.TakeCalls();

    update();

    EXPECT_EQ(texts(), first);
    EXPECT_THAT(m_menu.TakeCalls(), IsEmpty());
}

// Recursion -----------------------------------------------------------------------------------------------

namespace {

/// Notes the popups that mnemonics are asked for.
class UpdatingMenu : public TestMenu
{
public:
    int UpdateMnemonicsEx(CVqMenuItem* popup, bool recursive) override
    {
        m_calls.push_back(std::to_string(popup->id()) + (recursive ? " recursive" : ""));
        return TestMenu::UpdateMnemonicsEx(popup, recursive);
    }

    std::vector<std::string> m_calls;
};

/// Popup 1 (popup 2 (popup 3 (4)), popup 5 (6)).
void fill(TestMenu& menu)
{
    menu.AppendPopup(1, 0, VQ_TEXT("One"));
    menu.AppendPopup(2, 1, VQ_TEXT("Two"));
    menu.AppendPopup(3, 2, VQ_TEXT("Three"));
    menu.AppendMenuItem(4, 3, VQ_TEXT("Four"), VQ_TEXT(""), 0);
    menu.AppendPopup(5, 1, VQ_TEXT("Five"));
    menu.AppendMenuItem(6, 5, VQ_TEXT("Six"), VQ_TEXT(""), 0);
}

}

TEST(CVqAbstractMenuMnemonicsRecursion, ReachesTheDirectSubPopupsAndNotTheirs)
{
    UpdatingMenu menu;
    fill(menu);

    EXPECT_EQ(menu.UpdateMnemonics(1, true), 0);

    EXPECT_THAT(menu.m_calls, ElementsAre("1 recursive", "2", "5"));
    EXPECT_EQ(menu.Text(2), "&Two");
    EXPECT_EQ(menu.Text(3), "&Three");
    EXPECT_EQ(menu.Text(4), "Four");
    EXPECT_EQ(menu.Text(6), "&Six");
}

TEST(CVqAbstractMenuMnemonicsRecursion, NotAskedForStaysInThePopup)
{
    UpdatingMenu menu;
    fill(menu);

    menu.UpdateMnemonics(1, false);

    EXPECT_THAT(menu.m_calls, ElementsAre("1"));
}

TEST(CVqAbstractMenuMnemonicsRecursion, RemovedAndDeletedSubPopupsAreLeftOut)
{
    UpdatingMenu menu;
    fill(menu);
    menu.AppendPopup(7, 1, VQ_TEXT("Seven"));
    menu.Item(2)->setRemoved(true);
    menu.Item(5)->setDeleted(true);

    menu.UpdateMnemonics(1, true);

    EXPECT_THAT(menu.m_calls, ElementsAre("1 recursive", "7"));
}

TEST(CVqAbstractMenuMnemonicsRecursion, SubPopupWithoutPartInTheAssignmentIsReachedAllTheSame)
{
    UpdatingMenu menu;
    fill(menu);
    menu.Item(2)->setStatus(1 | 16);

    menu.UpdateMnemonics(1, true);

    EXPECT_THAT(menu.m_calls, ElementsAre("1 recursive", "2", "5"));
}

TEST(CVqAbstractMenuMnemonicsRecursion, WithoutEligibleChildNoSubPopupIsReached)
{
    UpdatingMenu menu;
    fill(menu);
    menu.Item(2)->setStatus(1 | 16);
    menu.Item(5)->setStatus(1 | 16);

    EXPECT_EQ(menu.UpdateMnemonics(1, true), -9);

    EXPECT_THAT(menu.m_calls, ElementsAre("1 recursive"));
}
