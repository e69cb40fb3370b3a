#include "tests/AbstractGui/MenuAddersFixture.h"
#include "tests/support/CaptureMessages.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr vq_uint32 unknown = 999;
constexpr vq_uint32 new_id = 50;

}

// Popups --------------------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuAdders, PopupTakesItsTextAndAHandleOfTheBackEnd)
{
    m_menu.AppendPopup(new_id, 1, VQ_TEXT("&Recent"));

    EXPECT_THAT(m_menu.TakeCalls(),
                ElementsAre("CreateMenuHandle = 3", "InsertItem parent 1, position null, item 50 = 0"));
    EXPECT_EQ(m_menu.Item(new_id)->menu(), 3u);
    EXPECT_EQ(m_menu.Text(new_id), "&Recent");
    EXPECT_EQ(m_menu.Item(new_id)->mnemonic(), VQ_TEXT('R'));
}

TEST_F(CVqAbstractMenuAdders, InsertedPopupsTakeHandlesToo)
{
    m_menu.InsertPopupBefore(new_id, 1, 2, VQ_TEXT("Before"));
    m_menu.InsertPopupAfter(51, 1, 2, VQ_TEXT("After"));

    EXPECT_EQ(m_menu.Item(new_id)->menu(), 3u);
    EXPECT_EQ(m_menu.Item(51)->menu(), 4u);
    EXPECT_EQ(m_menu.Text(new_id), "Before");
    EXPECT_EQ(m_menu.Text(51), "After");
}

TEST_F(CVqAbstractMenuAdders, PopupWithoutBackEndHasHandleZero)
{
    TestMenu menu(TestMenu::BackEnd::None);

    menu.AppendPopup(new_id, 0, VQ_TEXT("File"));

    EXPECT_EQ(menu.Item(new_id)->menu(), 0u);
}

TEST_F(CVqAbstractMenuAdders, PopupWithKeyTextAddsNoKey)
{
    m_menu.AppendPopup(new_id, 0, VQ_TEXT("File\aF3"));

    EXPECT_EQ(TestMenu::Keys(m_menu.MainTable()), "");
}

// Commands ------------------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuAdders, CommandTakesTextCommandMnemonicAndTheMainTable)
{
    m_menu.AppendMenuItem(new_id, 1, VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT("open"), 0);

    const CVqMenuItem* item = m_menu.Item(new_id);
    EXPECT_EQ(m_menu.Text(new_id), "&Open|Ctrl+O");
    EXPECT_EQ(TestMenu::Plain(item->command()), "open");
    EXPECT_EQ(item->mnemonic(), VQ_TEXT('O'));
    EXPECT_EQ(item->accelerators(), &m_menu.MainTable());
}

TEST_F(CVqAbstractMenuAdders, KeyTextAddsAKeyAndLeavesTheText)
{
    m_menu.AppendMenuItem(new_id, 1, VQ_TEXT("Open\actrl+o"), VQ_TEXT("open"), 0);

    EXPECT_EQ(TestMenu::Keys(m_menu.MainTable()), "50:18+79");
    EXPECT_EQ(TestMenu::Keys(m_menu.SecondTable()), "");
    EXPECT_EQ(m_menu.Text(new_id), "Open|ctrl+o");
}

TEST_F(CVqAbstractMenuAdders, KeyTextReplacesEarlierKeysOfTheId)
{
    m_menu.MainTable().AddAccelKey(new_id, 16, 0x70, 0);

    m_menu.AppendMenuItem(new_id, 1, VQ_TEXT("Open\aCtrl+O"), VQ_TEXT("open"), 0);

    EXPECT_EQ(TestMenu::Keys(m_menu.MainTable()), "50:18+79");
}

TEST_F(CVqAbstractMenuAdders, TextWithoutKeyKeepsEarlierKeysOfTheIdAndDoesNotShowThem)
{
    m_menu.MainTable().AddAccelKey(new_id, 16, 0x70, 0);

    m_menu.AppendMenuItem(new_id, 1, VQ_TEXT("Open"), VQ_TEXT("open"), 0);

    EXPECT_EQ(TestMenu::Keys(m_menu.MainTable()), "50:16+112");
    EXPECT_EQ(m_menu.Text(new_id), "Open");
}

TEST_F(CVqAbstractMenuAdders, InsertedCommandsAddTheirKeys)
{
    m_menu.InsertMenuItemBefore(new_id, 1, 2, VQ_TEXT("Open\aCtrl+O"), VQ_TEXT("open"));
    m_menu.InsertMenuItemAfter(51, 1, 2, VQ_TEXT("Save\aCtrl+S"), VQ_TEXT("save"));

    EXPECT_EQ(TestMenu::Keys(m_menu.MainTable()), "50:18+79 51:18+83");
    EXPECT_EQ(m_menu.Text(new_id), "Open|Ctrl+O");
    EXPECT_EQ(m_menu.Text(51), "Save|Ctrl+S");
    EXPECT_EQ(TestMenu::Plain(m_menu.Item(new_id)->command()), "open");
    EXPECT_EQ(TestMenu::Plain(m_menu.Item(51)->command()), "save");
    EXPECT_EQ(m_menu.Item(51)->accelerators(), &m_menu.MainTable());
}

TEST_F(CVqAbstractMenuAdders, KeyIsAddedUnderAMissingParentToo)
{
    m_menu.AppendMenuItem(new_id, unknown, VQ_TEXT("Open\aCtrl+O"), VQ_TEXT("open"), 0);

    EXPECT_EQ(TestMenu::Keys(m_menu.MainTable()), "50:18+79");
}

TEST_F(CVqAbstractMenuAdders, StatusReplacesThatOfANewItem)
{
    m_menu.AppendMenuItem(new_id, 1, VQ_TEXT("Open"), VQ_TEXT("open"), 2 | 16);

    EXPECT_EQ(m_menu.Item(new_id)->status(), 2u | 16u);
}

TEST_F(CVqAbstractMenuAdders, StatusZeroLeavesThatOfANewItem)
{
    m_menu.AppendMenuItem(new_id, 1, VQ_TEXT("Open"), VQ_TEXT("open"), 0);

    EXPECT_EQ(m_menu.Item(new_id)->status(), 1u);
}

TEST_F(CVqAbstractMenuAdders, StatusWithoutMemoryIsNoProblem)
{
    m_keeping.m_makes_items = false;

    EXPECT_EQ(m_menu.AppendMenuItem(new_id, 1, VQ_TEXT("Open"), VQ_TEXT("open"), 2), 0);
}

TEST_F(CVqAbstractMenuAdders, NullTextsReadAsEmpty)
{
    m_menu.AppendMenuItem(new_id, 1, nullptr, nullptr, 0);
    m_menu.AppendPopup(51, 1, nullptr);
    m_menu.AppendLineWidth(52, 1, 3, nullptr, nullptr);
    m_menu.AppendOneColor(53, 1, 3, nullptr);

    EXPECT_EQ(m_menu.Text(new_id), "");
    EXPECT_TRUE(m_menu.Item(new_id)->command().IsEmpty());
    EXPECT_EQ(m_menu.Text(51), "");
    EXPECT_EQ(m_menu.Text(52), "");
    EXPECT_TRUE(m_menu.Item(53)->command().IsEmpty());
}

TEST_F(CVqAbstractMenuAdders, InsertingACommandWithoutPlaceIsRefusedAndMakesNothing)
{
    for (const auto insert :
         {&CVqAbstractMenu::InsertMenuItemBefore, &CVqAbstractMenu::InsertMenuItemAfter}) {
        EXPECT_EQ((m_menu.*insert)(new_id, unknown, 2, VQ_TEXT("Open\aF3"), VQ_TEXT("open")), -9);
        EXPECT_EQ((m_menu.*insert)(new_id, 9, 2, VQ_TEXT("Open\aF3"), VQ_TEXT("open")), -9);
        EXPECT_EQ((m_menu.*insert)(new_id, 1, 9, VQ_TEXT("Open\aF3"), VQ_TEXT("open")), -9);
        EXPECT_EQ((m_menu.*insert)(new_id, 0, 2, VQ_TEXT("Open\aF3"), VQ_TEXT("open")), -9);
    }

    EXPECT_EQ(m_menu.Tree(), "1(2 3) 9");
    EXPECT_THAT(m_menu.TakeCalls(), IsEmpty());
    EXPECT_EQ(TestMenu::Keys(m_menu.MainTable()), "");
    EXPECT_THAT(m_keeping.LooseItems(m_menu), IsEmpty());
}

namespace {

/// Writes down what hangs in the tree and which keys there are when the back end hears of an item.
class MomentWatcher : public RecordingMenuBase
{
public:
    int InsertItem(CVqMenuItem*, CVqMenuItem*, CVqMenuItem*) override
    {
        m_moments.push_back(m_menu->Tree() + " with " + TestMenu::Keys(m_menu->MainTable()));
        return 0;
    }

    TestMenu* m_menu = nullptr;
    std::vector<std::string> m_moments;
};

}

TEST(CVqAbstractMenuAddersOrder, BackEndHearsOfAnItemOnceItIsLinkedAndHasItsKey)
{
    TestMenu menu(TestMenu::BackEnd::None);
    auto* watcher = new MomentWatcher;
    watcher->m_menu = &menu;
    menu.MenuBase() = watcher;

    menu.AppendMenuItem(1, 0, VQ_TEXT("One\aF1"), VQ_TEXT("one"), 0);
    menu.InsertMenuItemBefore(2, 0, 1, VQ_TEXT("Two\aF2"), VQ_TEXT("two"));

    EXPECT_THAT(watcher->m_moments, ElementsAre("1 with 1:16+112", "2 1 with 1:16+112 2:16+113"));
}

TEST(CVqAbstractMenuAddersOrder, BackEndHearsOfAnInsertedSeparatorBeforeItIsTidiedAway)
{
    TestMenu menu(TestMenu::BackEnd::None);
    menu.AppendMenuItem(1, 0, VQ_TEXT("One"), VQ_TEXT("one"), 0);
    auto* watcher = new MomentWatcher;
    watcher->m_menu = &menu;
    menu.MenuBase() = watcher;

    menu.InsertSeparatorBefore(2, 0, 1);

    EXPECT_THAT(watcher->m_moments, ElementsAre("2 1 with "));
    EXPECT_EQ(menu.Tree(), "2- 1");
}

// Separators ----------------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuAdders, InsertSeparatorAfterUnderAMissingParentGivesMinusSixAndLogs)
{
    const CaptureMessages debug(QtDebugMsg);

    EXPECT_EQ(m_menu.InsertSeparatorAfter(new_id, 77, 2), -6);

    // The debug stream puts a blank between the three pieces.
    ASSERT_EQ(debug.Texts().size(), 1);
    EXPECT_EQ(debug.Texts().at(0).toStdString(),
              "CVqAbstractMenu::InsertSeparatorAfter > pParentItem with Id  77  not found");
    EXPECT_THAT(m_menu.TakeCalls(), IsEmpty());
    EXPECT_THAT(m_keeping.LooseItems(m_menu), IsEmpty());
}

TEST_F(CVqAbstractMenuAdders, InsertSeparatorBeforeUnderAMissingParentGivesZeroAndLogsNothing)
{
    const CaptureMessages debug(QtDebugMsg);

    EXPECT_EQ(m_menu.InsertSeparatorBefore(new_id, 77, 2), 0);

    EXPECT_TRUE(debug.Texts().isEmpty());
}

// Colours and line widths ---------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuAdders, OneColorTakesColourAndCommand)
{
    m_menu.AppendOneColor(new_id, 1, 0x112233, VQ_TEXT("red"));
    m_menu.InsertOneColorBefore(51, 1, 2, 0x445566, VQ_TEXT("green"));
    m_menu.InsertOneColorAfter(52, 1, 2, 0x778899, VQ_TEXT("blue"));

    EXPECT_EQ(m_menu.Item(new_id)->col1(), 0x112233u);
    EXPECT_EQ(m_menu.Item(51)->col1(), 0x445566u);
    EXPECT_EQ(m_menu.Item(52)->col1(), 0x778899u);
    EXPECT_EQ(TestMenu::Plain(m_menu.Item(new_id)->command()), "red");
    EXPECT_EQ(TestMenu::Plain(m_menu.Item(51)->command()), "green");
    EXPECT_EQ(TestMenu::Plain(m_menu.Item(52)->command()), "blue");
}

TEST_F(CVqAbstractMenuAdders, TwoColorTakesBothColoursAndCommand)
{
    m_menu.AppendTwoColor(new_id, 1, 1, 2, VQ_TEXT("a"));
    m_menu.InsertTwoColorBefore(51, 1, 2, 3, 4, VQ_TEXT("b"));
    m_menu.InsertTwoColorAfter(52, 1, 2, 5, 6, VQ_TEXT("c"));

    EXPECT_EQ(m_menu.Item(new_id)->col1(), 1u);
    EXPECT_EQ(m_menu.Item(new_id)->col2(), 2u);
    EXPECT_EQ(m_menu.Item(51)->col1(), 3u);
    EXPECT_EQ(m_menu.Item(51)->col2(), 4u);
    EXPECT_EQ(m_menu.Item(52)->col1(), 5u);
    EXPECT_EQ(m_menu.Item(52)->col2(), 6u);
    EXPECT_EQ(TestMenu::Plain(m_menu.Item(new_id)->command()), "a");
    EXPECT_EQ(TestMenu::Plain(m_menu.Item(51)->command()), "b");
    EXPECT_EQ(TestMenu::Plain(m_menu.Item(52)->command()), "c");
}

TEST_F(CVqAbstractMenuAdders, LineWidthTakesWidthTextAndCommand)
{
    m_menu.AppendLineWidth(new_id, 1, 1, VQ_TEXT("Hair"), VQ_TEXT("a"));
    m_menu.InsertLineWidthBefore(51, 1, 2, 2, VQ_TEXT("Thin"), VQ_TEXT("b"));
    m_menu.InsertLineWidthAfter(52, 1, 2, 3, VQ_TEXT("Thick"), VQ_TEXT("c"));

    EXPECT_EQ(m_menu.Item(new_id)->lineWidth(), 1u);
    EXPECT_EQ(m_menu.Item(51)->lineWidth(), 2u);
    EXPECT_EQ(m_menu.Item(52)->lineWidth(), 3u);
    EXPECT_EQ(m_menu.Text(new_id), "Hair");
    EXPECT_EQ(m_menu.Text(51), "Thin");
    EXPECT_EQ(m_menu.Text(52), "Thick");
    EXPECT_EQ(TestMenu::Plain(m_menu.Item(new_id)->command()), "a");
    EXPECT_EQ(TestMenu::Plain(m_menu.Item(51)->command()), "b");
    EXPECT_EQ(TestMenu::Plain(m_menu.Item(52)->command()), "c");
}

TEST_F(CVqAbstractMenuAdders, KeyTextOfALineWidthAddsNoKey)
{
    m_menu.AppendLineWidth(new_id, 1, 1, VQ_TEXT("Hair\aF3"), VQ_TEXT("a"));

    EXPECT_EQ(TestMenu::Keys(m_menu.MainTable()), "");
}

TEST(CVqAbstractMenuAddersWithoutRoot, NothingIsAttached)
{
    CVqAbstractMenu menu;

    EXPECT_EQ(menu.InsertMenuItemBefore(1, 0, 2, VQ_TEXT("Open"), VQ_TEXT("open")), -9);
}
