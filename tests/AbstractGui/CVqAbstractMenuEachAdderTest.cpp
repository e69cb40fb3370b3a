#include "tests/AbstractGui/MenuAddersFixture.h"
#include "tests/support/CaptureMessages.h"

#include <gmock/gmock.h>

#include <functional>

using testing::ElementsAre;

// What all additions have in common, whatever they make.

namespace {

constexpr vq_uint32 unknown = 999;
constexpr vq_uint32 new_id = 50;

/// One of the additions, by the place where it puts the item `new_id`.
struct Kind
{
    const char* m_name;
    vq_uint32 m_type;
    std::function<int(CVqAbstractMenu&, vq_uint32 parent)> m_append;
    std::function<int(CVqAbstractMenu&, vq_uint32 parent, vq_uint32 sibling)> m_before;
    std::function<int(CVqAbstractMenu&, vq_uint32 parent, vq_uint32 sibling)> m_after;
};

void PrintTo(const Kind& kind, std::ostream* out)
{
    *out << kind.m_name;
}

using Menu = CVqAbstractMenu;
constexpr const vq_wchar* text = VQ_TEXT("&Text");
constexpr const vq_wchar* command = VQ_TEXT("command");

const Kind kinds[] = {
    {"Popup", Menu::SensePopup,
     [](Menu& menu, auto parent) { return menu.AppendPopup(new_id, parent, text); },
     [](Menu& menu, auto parent, auto sibling) {
         return menu.InsertPopupBefore(new_id, parent, sibling, text);
     },
     [](Menu& menu, auto parent, auto sibling) {
         return menu.InsertPopupAfter(new_id, parent, sibling, text);
     }},
    {"MenuItem", Menu::SenseItem,
     [](Menu& menu, auto parent) { return menu.AppendMenuItem(new_id, parent, text, command, 0); },
     [](Menu& menu, auto parent, auto sibling) {
         return menu.InsertMenuItemBefore(new_id, parent, sibling, text, command);
     },
     [](Menu& menu, auto parent, auto sibling) {
         return menu.InsertMenuItemAfter(new_id, parent, sibling, text, command);
     }},
    {"Separator", Menu::SenseSeparator,
     [](Menu& menu, auto parent) { return menu.AppendSeparator(new_id, parent); },
     [](Menu& menu, auto parent, auto sibling) {
         return menu.InsertSeparatorBefore(new_id, parent, sibling);
     },
     [](Menu& menu, auto parent, auto sibling) {
         return menu.InsertSeparatorAfter(new_id, parent, sibling);
     }},
    {"OneColor", Menu::SenseOneColor,
     [](Menu& menu, auto parent) { return menu.AppendOneColor(new_id, parent, 0x11, command); },
     [](Menu& menu, auto parent, auto sibling) {
         return menu.InsertOneColorBefore(new_id, parent, sibling, 0x11, command);
     },
     [](Menu& menu, auto parent, auto sibling) {
         return menu.InsertOneColorAfter(new_id, parent, sibling, 0x11, command);
     }},
    {"TwoColor", Menu::SenseTwoColor,
     [](Menu& menu, auto parent) { return menu.AppendTwoColor(new_id, parent, 0x11, 0x22, command); },
     [](Menu& menu, auto parent, auto sibling) {
         return menu.InsertTwoColorBefore(new_id, parent, sibling, 0x11, 0x22, command);
     },
     [](Menu& menu, auto parent, auto sibling) {
         return menu.InsertTwoColorAfter(new_id, parent, sibling, 0x11, 0x22, command);
     }},
    {"LineWidth", Menu::SenseLineWidth,
     [](Menu& menu, auto parent) { return menu.AppendLineWidth(new_id, parent, 3, text, command); },
     [](Menu& menu, auto parent, auto sibling) {
         return menu.InsertLineWidthBefore(new_id, parent, sibling, 3, text, command);
     },
     [](Menu& menu, auto parent, auto sibling) {
         return menu.InsertLineWidthAfter(new_id, parent, sibling, 3, text, command);
     }},
};

std::string name_of(const testing::TestParamInfo<Kind>& info)
{
    return info.param.m_name;
}

class CVqAbstractMenuEachAdder : public CVqAbstractMenuAdders, public testing::WithParamInterface<Kind>
{ };

INSTANTIATE_TEST_SUITE_P(Kinds, CVqAbstractMenuEachAdder, testing::ValuesIn(kinds), name_of);

/// The kinds that report nothing when parent or sibling is missing.
class CVqAbstractMenuSilentAdder : public CVqAbstractMenuEachAdder
{ };

const Kind silent_kinds[] = {kinds[0], kinds[2], kinds[3], kinds[4], kinds[5]};
INSTANTIATE_TEST_SUITE_P(Kinds, CVqAbstractMenuSilentAdder, testing::ValuesIn(silent_kinds), name_of);

}

// Append --------------------------------------------------------------------------------------------------

TEST_P(CVqAbstractMenuEachAdder, AppendPutsAnItemOfItsTypeAtTheEnd)
{
    EXPECT_EQ(GetParam().m_append(m_menu, 1), 0);

    EXPECT_EQ(m_menu.Tree(), "1(2 3 50) 9");
    EXPECT_EQ(m_menu.Item(new_id)->type(), GetParam().m_type);
    EXPECT_EQ(m_menu.Item(new_id)->parentItem(), m_menu.Item(1));
}

TEST_P(CVqAbstractMenuEachAdder, AppendTellsTheBackEndWithoutAPosition)
{
    GetParam().m_append(m_menu, 1);

    EXPECT_THAT(calls_without_handles(), ElementsAre("InsertItem parent 1, position null, item 50 = 0"));
}

TEST_P(CVqAbstractMenuEachAdder, AppendGivesZeroWhateverTheBackEndSays)
{
    m_menu.Recorder().FailInserts(-77);

    EXPECT_EQ(GetParam().m_append(m_menu, 1), 0);
}

TEST_P(CVqAbstractMenuEachAdder, AppendUnderAMissingParentLeavesAnUnattachedItem)
{
    EXPECT_EQ(GetParam().m_append(m_menu, unknown), 0);

    EXPECT_EQ(m_menu.Tree(), "1(2 3) 9");
    const auto loose = m_keeping.LooseItems(m_menu);
    ASSERT_EQ(loose.size(), 1u);
    EXPECT_EQ(loose[0]->id(), new_id);
    EXPECT_EQ(loose[0]->parentItem(), nullptr);
}

TEST_P(CVqAbstractMenuEachAdder, AppendUnderAMissingParentTellsTheBackEndWithANullParent)
{
    GetParam().m_append(m_menu, unknown);

    EXPECT_THAT(calls_without_handles(), ElementsAre("InsertItem parent null, position null, item 50 = 0"));
}

TEST_P(CVqAbstractMenuEachAdder, AppendWithoutBackEndWorks)
{
    TestMenu menu(TestMenu::BackEnd::None);

    EXPECT_EQ(GetParam().m_append(menu, 0), 0);

    EXPECT_EQ(menu.Tree(), "50");
}

TEST_P(CVqAbstractMenuEachAdder, AppendOutOfMemoryGivesZeroAndChangesNothing)
{
    m_keeping.m_makes_items = false;

    EXPECT_EQ(GetParam().m_append(m_menu, 1), 0);

    EXPECT_EQ(m_menu.Tree(), "1(2 3) 9");
    EXPECT_THAT(calls_without_handles(), ElementsAre("InsertItem parent 1, position null, item null = 0"));
}

// Insert --------------------------------------------------------------------------------------------------

TEST_P(CVqAbstractMenuEachAdder, InsertBeforePutsTheItemAheadOfTheSibling)
{
    EXPECT_EQ(GetParam().m_before(m_menu, 1, 3), 0);

    EXPECT_EQ(m_menu.Tree(), "1(2 50 3) 9");
    EXPECT_EQ(m_menu.Item(new_id)->type(), GetParam().m_type);
    EXPECT_THAT(calls_without_handles(), ElementsAre("InsertItem parent 1, position 3, item 50 = 0"));
}

TEST_P(CVqAbstractMenuEachAdder, InsertBeforeTheFirstChild)
{
    GetParam().m_before(m_menu, 1, 2);

    const bool is_leading_separator = GetParam().m_type == Menu::SenseSeparator;
    EXPECT_EQ(m_menu.Tree(), is_leading_separator ? "1(50- 2 3) 9" : "1(50 2 3) 9");
}

TEST_P(CVqAbstractMenuEachAdder, InsertAfterPutsTheItemBehindTheSiblingAndNamesItAsPosition)
{
    EXPECT_EQ(GetParam().m_after(m_menu, 1, 2), 0);

    EXPECT_EQ(m_menu.Tree(), "1(2 50 3) 9");
    EXPECT_EQ(m_menu.Item(new_id)->type(), GetParam().m_type);
    EXPECT_THAT(calls_without_handles(), ElementsAre("InsertItem parent 1, position 50, item 50 = 0"));
}

TEST_P(CVqAbstractMenuEachAdder, InsertAfterTheLastChildLeavesATrailingSeparatorVisible)
{
    GetParam().m_after(m_menu, 1, 3);

    EXPECT_EQ(m_menu.Tree(), "1(2 3 50) 9");
}

TEST_P(CVqAbstractMenuEachAdder, InsertWithoutBackEndWorks)
{
    TestMenu menu(TestMenu::BackEnd::None);
    menu.AppendMenuItem(1, 0, VQ_TEXT("One"), VQ_TEXT(""), 0);

    EXPECT_EQ(GetParam().m_after(menu, 0, 1), 0);

    EXPECT_EQ(menu.Tree(), "1 50");
}

TEST_P(CVqAbstractMenuEachAdder, InsertGivesZeroWhateverTheBackEndSays)
{
    m_menu.Recorder().FailInserts(-77);

    EXPECT_EQ(GetParam().m_before(m_menu, 1, 2), 0);
}

TEST_P(CVqAbstractMenuEachAdder, InsertTidiesTheSeparatorsOfTheParent)
{
    m_menu.AppendSeparator(20, 1);
    m_menu.AppendSeparator(21, 1);
    EXPECT_EQ(m_menu.Tree(), "1(2 3 20 21-) 9");

    GetParam().m_before(m_menu, 1, 21);

    const bool is_separator = GetParam().m_type == Menu::SenseSeparator;
    EXPECT_EQ(m_menu.Tree(), is_separator ? "1(2 3 20 50- 21-) 9" : "1(2 3 20 50 21) 9");
}

TEST_P(CVqAbstractMenuSilentAdder, InsertBeforeAMissingSiblingLeavesAnUnattachedItem)
{
    EXPECT_EQ(GetParam().m_before(m_menu, 1, unknown), 0);

    EXPECT_EQ(m_menu.Tree(), "1(2 3) 9");
    EXPECT_EQ(m_keeping.LooseItems(m_menu).size(), 1u);
    EXPECT_THAT(calls_without_handles(), ElementsAre("InsertItem parent 1, position null, item 50 = 0"));
}

TEST_P(CVqAbstractMenuSilentAdder, InsertAfterAMissingSiblingLeavesAnUnattachedItem)
{
    EXPECT_EQ(GetParam().m_after(m_menu, 9, 2), 0);

    EXPECT_EQ(m_keeping.LooseItems(m_menu).size(), 1u);
    EXPECT_THAT(calls_without_handles(), ElementsAre("InsertItem parent 9, position null, item 50 = 0"));
}

TEST_P(CVqAbstractMenuSilentAdder, InsertBeforeUnderAMissingParentLeavesAnUnattachedItem)
{
    EXPECT_EQ(GetParam().m_before(m_menu, unknown, 2), 0);

    EXPECT_EQ(m_menu.Tree(), "1(2 3) 9");
    EXPECT_EQ(m_keeping.LooseItems(m_menu).size(), 1u);
    EXPECT_THAT(calls_without_handles(), ElementsAre("InsertItem parent null, position null, item 50 = 0"));
}

TEST_P(CVqAbstractMenuSilentAdder, InsertAfterUnderAMissingParentIsReportedForASeparatorOnly)
{
    const CaptureMessages debug(QtDebugMsg);
    const bool is_separator = GetParam().m_type == Menu::SenseSeparator;

    EXPECT_EQ(GetParam().m_after(m_menu, unknown, 2), is_separator ? -6 : 0);

    EXPECT_EQ(debug.Texts().size(), is_separator ? 1 : 0);
    EXPECT_EQ(m_menu.Tree(), "1(2 3) 9");
    EXPECT_EQ(m_keeping.LooseItems(m_menu).size(), is_separator ? 0u : 1u);
}

TEST_P(CVqAbstractMenuSilentAdder, InsertOutOfMemoryTellsTheBackEndOfANullItem)
{
    m_keeping.m_makes_items = false;

    EXPECT_EQ(GetParam().m_before(m_menu, 1, 2), 0);

    EXPECT_THAT(calls_without_handles(), ElementsAre("InsertItem parent 1, position null, item null = 0"));
}
