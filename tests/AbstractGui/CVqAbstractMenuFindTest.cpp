#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/support/TestMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Found
{
    int m_result = 0;
    vq_uint32 m_count = 0;
    std::vector<vq_uint32> m_ids;
};

/// Calls a search with room for `capacity` identifiers, and sees to it that it keeps to that.
template <class Search>
Found found(vq_uint32 capacity, Search search)
{
    constexpr vq_uint32 guard = 0xABABABAB;
    Found result;
    result.m_count = capacity;
    result.m_ids.assign(capacity + 1, guard);
    result.m_result = search(result.m_ids.data(), result.m_count);
    EXPECT_EQ(result.m_ids.back(), guard);
    result.m_ids.resize(result.m_result == 0 ? result.m_count : 0);
    return result;
}

Found found_in_popup(CVqAbstractMenu& menu, vq_uint32 popup, const vq_wchar* text, bool exact,
                     vq_uint32 capacity = 10)
{
    return found(capacity, [&](vq_uint32* ids, vq_uint32& count) {
        return menu.FindItemInPopup(popup, text, ids, count, exact);
    });
}

Found found_items(CVqAbstractMenu& menu, const vq_wchar* text, vq_uint32 type, vq_uint32 status,
                  vq_uint32 capacity = 10)
{
    return found(capacity, [&](vq_uint32* ids, vq_uint32& count) {
        return menu.FindItems(text, type, status, ids, count);
    });
}

Found found_by_command(CVqAbstractMenu& menu, const vq_wchar* command, vq_uint32 type, vq_uint32 status,
                       vq_uint32 capacity = 10)
{
    return found(capacity, [&](vq_uint32* ids, vq_uint32& count) {
        return menu.FindItemsByCommand(command, type, status, ids, count);
    });
}

constexpr vq_uint32 any_status = 0xFF00;
constexpr bool exactly = true;
constexpr bool similar = false;

}

// FindItemInPopup by text: one label against one search ---------------------------------------------------

namespace {

struct LabelRow
{
    const char* m_name;
    const vq_wchar* m_label;
    const vq_wchar* m_wanted;
    bool m_matches;
};

}

class CVqAbstractMenuLabel : public testing::TestWithParam<LabelRow>
{
protected:
    int search(bool exact)
    {
        TestMenu menu;
        menu.AppendSeparator(1, 0);
        menu.Item(1)->setText(GetParam().m_label);
        return found_in_popup(menu, 0, GetParam().m_wanted, exact).m_result;
    }
};

class CVqAbstractMenuExactLabel : public CVqAbstractMenuLabel
{ };

class CVqAbstractMenuSimilarLabel : public CVqAbstractMenuLabel
{ };

TEST_P(CVqAbstractMenuExactLabel, MatchesOrNot)
{
    EXPECT_EQ(search(exactly), GetParam().m_matches ? 0 : -13);
}

const LabelRow exact_rows[] = {
    {"SameText", VQ_TEXT("Open"), VQ_TEXT("Open"), true},
    {"OtherCase", VQ_TEXT("Open"), VQ_TEXT("open"), false},
    {"OtherText", VQ_TEXT("Open"), VQ_TEXT("Save"), false},
    {"LabelEndsAtBel", VQ_TEXT("Open\aCtrl+O"), VQ_TEXT("Open"), true},
    {"LabelEndsAtTab", VQ_TEXT("Open\tCtrl+O"), VQ_TEXT("Open"), true},
    {"SearchEndsAtBel", VQ_TEXT("Open"), VQ_TEXT("Open\aCtrl+O"), true},
    {"SearchEndsAtTab", VQ_TEXT("Open"), VQ_TEXT("Open\tX"), true},
    {"BothWithEqualKeys", VQ_TEXT("Open\aF3"), VQ_TEXT("Open\aF3"), true},
    {"BothWithKeysOfOneLength", VQ_TEXT("Open\aF3"), VQ_TEXT("Open\aF4"), false},
    {"BothWithKeysOneLonger", VQ_TEXT("Open\aF3"), VQ_TEXT("Open\aF31"), false},
    {"LabelIsLonger", VQ_TEXT("Open As"), VQ_TEXT("Open"), false},
    {"SearchIsLonger", VQ_TEXT("Open"), VQ_TEXT("Open As"), false},
    {"MarkCounts", VQ_TEXT("&Open"), VQ_TEXT("Open"), false},
    {"DotsCount", VQ_TEXT("Open..."), VQ_TEXT("Open"), false},
    {"EmptySearchAndEmptyText", VQ_TEXT(""), VQ_TEXT(""), true},
    {"EmptySearchAndOnlyKey", VQ_TEXT("\aF3"), VQ_TEXT(""), true},
    {"EmptySearchAndText", VQ_TEXT("Open"), VQ_TEXT(""), false},
};

INSTANTIATE_TEST_SUITE_P(Rows, CVqAbstractMenuExactLabel, testing::ValuesIn(exact_rows),
                         [](const auto& row) { return std::string(row.param.m_name); });

TEST_P(CVqAbstractMenuSimilarLabel, MatchesOrNot)
{
    EXPECT_EQ(search(similar), GetParam().m_matches ? 0 : -13);
}

const LabelRow similar_rows[] = {
    {"SameText", VQ_TEXT("Open"), VQ_TEXT("Open"), true},
    {"OtherCase", VQ_TEXT("Open"), VQ_TEXT("oPEN"), true},
    {"OtherText", VQ_TEXT("Open"), VQ_TEXT("Save"), false},
    {"MarkInLabel", VQ_TEXT("O&pen"), VQ_TEXT("Open"), true},
    {"MarkInSearch", VQ_TEXT("Open"), VQ_TEXT("O&pen"), true},
    {"MarksAtOtherPlaces", VQ_TEXT("&Open"), VQ_TEXT("Ope&n"), true},
    {"PairOfMarksIsIgnored", VQ_TEXT("R&&D"), VQ_TEXT("RD"), true},
    {"DotsInLabel", VQ_TEXT("Open..."), VQ_TEXT("Open"), true},
    {"DotsInSearch", VQ_TEXT("Open"), VQ_TEXT("Open..."), true},
    {"DollarInLabel", VQ_TEXT("$Open$"), VQ_TEXT("Open"), true},
    {"DollarInSearchCounts", VQ_TEXT("Open"), VQ_TEXT("$Open"), false},
    {"DollarInBothNeverMatches", VQ_TEXT("$Open"), VQ_TEXT("$Open"), false},
    {"DoubleBlankInLabel", VQ_TEXT("Open  As"), VQ_TEXT("Open As"), true},
    {"ManyBlanksInLabel", VQ_TEXT("Open    As"), VQ_TEXT("Open As"), true},
    {"DoubleBlankInSearchMatchesOneBlankInLabel", VQ_TEXT("Open As"), VQ_TEXT("Open  As"), true},
    {"DoubleBlankInBoth", VQ_TEXT("Open  As"), VQ_TEXT("Open  As"), true},
    {"MoreBlanksInSearchThanInLabel", VQ_TEXT("Open  As"), VQ_TEXT("Open    As"), true},
    {"OneBlankCounts", VQ_TEXT("Open As"), VQ_TEXT("OpenAs"), false},
    {"OneBlankInSearchCounts", VQ_TEXT("OpenAs"), VQ_TEXT("Open As"), false},
    {"BlankInFrontOfLabelCounts", VQ_TEXT(" Open"), VQ_TEXT("Open"), false},
    {"BlankInFrontOfSearchCounts", VQ_TEXT("Open"), VQ_TEXT(" Open"), false},
    {"BlankInFrontOfBoth", VQ_TEXT("  Open"), VQ_TEXT(" Open"), true},
    {"TrailingBlankOfLabelCounts", VQ_TEXT("Open "), VQ_TEXT("Open"), false},
    {"TrailingBlanksOfBoth", VQ_TEXT("Open "), VQ_TEXT("Open   "), true},
    {"BlankBehindADotIsNoRepeatedOne", VQ_TEXT("A . B"), VQ_TEXT("A B"), false},
    {"BlankBehindADotTakesABlankOfItsOwn", VQ_TEXT("A . B"), VQ_TEXT("A  B"), true},
    {"BlankBehindAMarkIsNoRepeatedOne", VQ_TEXT("A & B"), VQ_TEXT("A B"), false},
    {"LabelEndsAtBel", VQ_TEXT("&Open...\aCtrl+O"), VQ_TEXT("open"), true},
    {"LabelEndsAtTab", VQ_TEXT("Open\tCtrl+O"), VQ_TEXT("Open"), true},
    {"SearchEndsAtBel", VQ_TEXT("Open"), VQ_TEXT("Open\aCtrl+O"), true},
    {"SearchEndsAtTab", VQ_TEXT("Open"), VQ_TEXT("Open\tX"), true},
    {"KeysDoNotCount", VQ_TEXT("Open\aF3"), VQ_TEXT("Open\tF4"), true},
    {"LabelIsLonger", VQ_TEXT("Open As"), VQ_TEXT("Open"), false},
    {"SearchIsLonger", VQ_TEXT("Open"), VQ_TEXT("Open As"), false},
    {"LabelOfIgnoredCharactersIsEmpty", VQ_TEXT("&."), VQ_TEXT(""), true},
    {"ChildWithoutTextNeverMatches", VQ_TEXT(""), VQ_TEXT(""), false},
    {"OnlyKeyAndEmptySearch", VQ_TEXT("\aF3"), VQ_TEXT(""), true},
    {"MarkAtTheEndOfTheLabel", VQ_TEXT("Open&"), VQ_TEXT("Open"), true},
    {"MarkAtTheEndOfTheSearch", VQ_TEXT("Open"), VQ_TEXT("Open&"), true},
};

INSTANTIATE_TEST_SUITE_P(Rows, CVqAbstractMenuSimilarLabel, testing::ValuesIn(similar_rows),
                         [](const auto& row) { return std::string(row.param.m_name); });

// FindItemInPopup by text: codes and counts ---------------------------------------------------------------

namespace {

/// Popup 1 (2 "&Open...", separator 3, 4 "open", popup 5 "Open" (6 "Open"), 7 "Save") and popup 8, empty.
class CVqAbstractMenuFind : public testing::Test
{
protected:
    CVqAbstractMenuFind()
    {
        m_menu.AppendPopup(1, 0, VQ_TEXT("File"));
        m_menu.AppendMenuItem(2, 1, VQ_TEXT("&Open..."), VQ_TEXT("open"), 0);
        m_menu.AppendSeparator(3, 1);
        m_menu.AppendMenuItem(4, 1, VQ_TEXT("open"), VQ_TEXT("open"), 1 | 2);
        m_menu.AppendPopup(5, 1, VQ_TEXT("Open"));
        m_menu.AppendMenuItem(6, 5, VQ_TEXT("Open"), VQ_TEXT("save"), 4);
        m_menu.AppendMenuItem(7, 1, VQ_TEXT("Save"), VQ_TEXT("save"), 0);
        m_menu.AppendPopup(8, 0, VQ_TEXT("Edit"));
    }

    TestMenu m_menu;
};

}

TEST_F(CVqAbstractMenuFind, SimilarLabelsOfThePopupAreFoundInOrder)
{
    const Found result = found_in_popup(m_menu, 1, VQ_TEXT("Open"), similar);

    EXPECT_EQ(result.m_result, 0);
    EXPECT_THAT(result.m_ids, ElementsAre(2, 4, 5));
}

TEST_F(CVqAbstractMenuFind, ExactLabelsOfThePopupAreFound)
{
    EXPECT_THAT(found_in_popup(m_menu, 1, VQ_TEXT("Open"), exactly).m_ids, ElementsAre(5));
}

TEST_F(CVqAbstractMenuFind, SearchEndsWhenTheRoomIsFull)
{
    EXPECT_THAT(found_in_popup(m_menu, 1, VQ_TEXT("Open"), similar, 2).m_ids, ElementsAre(2, 4));
    m_menu.Item(2)->setText(VQ_TEXT("Open"));
    EXPECT_THAT(found_in_popup(m_menu, 1, VQ_TEXT("Open"), exactly, 1).m_ids, ElementsAre(2));
}

TEST_F(CVqAbstractMenuFind, WithoutRoomNothingIsFound)
{
    for (const bool exact : {exactly, similar}) {
        const Found result = found_in_popup(m_menu, 1, VQ_TEXT("Open"), exact, 0);

        EXPECT_EQ(result.m_result, -13);
        EXPECT_EQ(result.m_count, 0u);
    }
}

TEST_F(CVqAbstractMenuFind, NullArrayCountsAsNoRoom)
{
    vq_uint32 count = 10;

    EXPECT_EQ(m_menu.FindItemInPopup(1, VQ_TEXT("Open"), nullptr, count, similar), -13);

    EXPECT_EQ(count, 0u);
}

TEST_F(CVqAbstractMenuFind, NoMatchIsNotFoundAndCountsZero)
{
    const Found result = found_in_popup(m_menu, 1, VQ_TEXT("Close"), similar);

    EXPECT_EQ(result.m_result, -13);
    EXPECT_EQ(result.m_count, 0u);
}

TEST_F(CVqAbstractMenuFind, MissingPopupEmptyPopupAndNullTextAreBadArguments)
{
    EXPECT_EQ(found_in_popup(m_menu, 999, VQ_TEXT("Open"), similar).m_result, -4);
    EXPECT_EQ(found_in_popup(m_menu, 8, VQ_TEXT("Open"), similar).m_result, -4);
    EXPECT_EQ(found_in_popup(m_menu, 1, nullptr, similar).m_result, -4);
}

TEST_F(CVqAbstractMenuFind, RemovedAndDeletedChildrenAreFoundToo)
{
    m_menu.Item(2)->setDeleted(true);
    m_menu.Item(4)->setRemoved(true);

    EXPECT_THAT(found_in_popup(m_menu, 1, VQ_TEXT("Open"), similar).m_ids, ElementsAre(2, 4, 5));
}

// FindItems and FindItemsByCommand ------------------------------------------------------------------------

TEST_F(CVqAbstractMenuFind, ItemsAreFoundByTheWholeMenuString)
{
    const Found result = found_items(m_menu, VQ_TEXT("Open"), CVqAbstractMenu::SenseAny, any_status);

    EXPECT_EQ(result.m_result, 0);
    EXPECT_THAT(result.m_ids, ElementsAre(6, 5));
}

TEST_F(CVqAbstractMenuFind, EmptyTextFindsAllChildrenBeforeTheirParentAndTheRootLast)
{
    EXPECT_THAT(found_items(m_menu, VQ_TEXT(""), CVqAbstractMenu::SenseAny, any_status).m_ids,
                ElementsAre(2, 3, 4, 6, 5, 7, 1, 8, 0));
    EXPECT_THAT(found_items(m_menu, nullptr, CVqAbstractMenu::SenseAny, any_status).m_ids,
                ElementsAre(2, 3, 4, 6, 5, 7, 1, 8, 0));
}

TEST_F(CVqAbstractMenuFind, ItemsAreFoundByType)
{
    EXPECT_THAT(found_items(m_menu, VQ_TEXT(""), CVqAbstractMenu::SensePopup, any_status).m_ids,
                ElementsAre(5, 1, 8));
    EXPECT_THAT(found_items(m_menu, VQ_TEXT("Open"), CVqAbstractMenu::SenseItem, any_status).m_ids,
                ElementsAre(6));
}

TEST_F(CVqAbstractMenuFind, ItemsAreFoundByStatus)
{
    EXPECT_THAT(found_items(m_menu, VQ_TEXT(""), CVqAbstractMenu::SenseItem, 1 | 2).m_ids, ElementsAre(4));
    EXPECT_THAT(found_items(m_menu, VQ_TEXT(""), CVqAbstractMenu::SenseItem, 0x0201).m_ids,
                ElementsAre(2, 4, 7));
    EXPECT_THAT(found_items(m_menu, VQ_TEXT(""), CVqAbstractMenu::SenseItem, 4).m_ids, ElementsAre(6));
}

TEST_F(CVqAbstractMenuFind, ItemsAreFoundByCommand)
{
    EXPECT_THAT(found_by_command(m_menu, VQ_TEXT("save"), CVqAbstractMenu::SenseAny, any_status).m_ids,
                ElementsAre(6, 7));
    EXPECT_THAT(found_by_command(m_menu, VQ_TEXT("open"), CVqAbstractMenu::SenseItem, 1).m_ids,
                ElementsAre(2));
    EXPECT_THAT(found_by_command(m_menu, nullptr, CVqAbstractMenu::SensePopup, any_status).m_ids,
                ElementsAre(5, 1, 8));
}

TEST_F(CVqAbstractMenuFind, NothingFoundInTheTreeIsMinusThirteenAndCountsZero)
{
    Found result = found_items(m_menu, VQ_TEXT("Close"), CVqAbstractMenu::SenseAny, any_status);
    EXPECT_EQ(result.m_result, -13);
    EXPECT_EQ(result.m_count, 0u);

    result = found_by_command(m_menu, VQ_TEXT("close"), CVqAbstractMenu::SenseAny, any_status);
    EXPECT_EQ(result.m_result, -13);
    EXPECT_EQ(result.m_count, 0u);
}

TEST_F(CVqAbstractMenuFind, TreeSearchKeepsToItsRoom)
{
    EXPECT_THAT(found_items(m_menu, VQ_TEXT(""), CVqAbstractMenu::SenseAny, any_status, 3).m_ids,
                ElementsAre(2, 3, 4));
    EXPECT_THAT(found_by_command(m_menu, VQ_TEXT("save"), CVqAbstractMenu::SenseAny, any_status, 1).m_ids,
                ElementsAre(6));
    EXPECT_EQ(found_items(m_menu, VQ_TEXT(""), CVqAbstractMenu::SenseAny, any_status, 0).m_result, -13);
}

TEST_F(CVqAbstractMenuFind, TreeSearchWithANullArrayCountsAsNoRoom)
{
    vq_uint32 count = 10;

    EXPECT_EQ(m_menu.FindItems(VQ_TEXT(""), CVqAbstractMenu::SenseAny, any_status, nullptr, count), -13);
    EXPECT_EQ(count, 0u);

    count = 10;
    EXPECT_EQ(m_menu.FindItemsByCommand(VQ_TEXT(""), CVqAbstractMenu::SenseAny, any_status, nullptr, count),
              -13);
    EXPECT_EQ(count, 0u);
}

TEST(CVqAbstractMenuFindWithoutRoot, NothingIsFound)
{
    CVqAbstractMenu menu;

    EXPECT_EQ(found_items(menu, VQ_TEXT(""), CVqAbstractMenu::SenseAny, any_status).m_result, -13);
    EXPECT_EQ(found_in_popup(menu, 0, VQ_TEXT(""), similar).m_result, -4);
}
