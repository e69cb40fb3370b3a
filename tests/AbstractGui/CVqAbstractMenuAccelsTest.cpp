#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/support/TestMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using testing::IsEmpty;

namespace {

constexpr bool main_table = false;
constexpr bool second_table = true;
constexpr vq_wchar key_a = 0x41;
constexpr vq_wchar key_b = 0x42;
constexpr vq_wchar key_f1 = 0x70;

/// Popup 1 with command 2 (Ctrl+O) and command 3.
class CVqAbstractMenuAccels : public testing::Test
{
protected:
    CVqAbstractMenuAccels()
    {
        m_menu.AppendPopup(1, 0, VQ_TEXT("&File"));
        m_menu.AppendMenuItem(2, 1, VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT("open"), 0);
        m_menu.AppendMenuItem(3, 1, VQ_TEXT("&Save"), VQ_TEXT("save"), 0);
        m_menu.TakeCalls();
    }

    std::string main_keys() { return TestMenu::Keys(m_menu.MainTable()); }
    std::string second_keys() { return TestMenu::Keys(m_menu.SecondTable()); }
    std::string lonely() { return TestMenu::Chain(m_menu.LonelyAccels()); }

    TestMenu m_menu;
};

/// "identifier of target", or "none".
std::string fired(CVqAbstractMenu& menu, vq_wchar key, vq_uint32 flags)
{
    vq_uint64 target = 4711;
    vq_uint32 id = 4711;
    if (menu.Translate(key, flags, target, id))
        return std::to_string(id) + " of " + std::to_string(target);
    EXPECT_EQ(target, 4711u);
    EXPECT_EQ(id, 4711u);
    return "none";
}

}

// AppendIdAccelKey ----------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuAccels, AppendedKeyGoesToTheMainTableAndTheLabelShowsAllKeys)
{
    EXPECT_EQ(m_menu.AppendIdAccelKey(2, 16, key_f1, main_table), 0);

    EXPECT_EQ(main_keys(), "2:18+79 2:16+112");
    EXPECT_EQ(second_keys(), "");
    EXPECT_EQ(m_menu.Text(2), "&Open|Ctrl+O, F1");
}

TEST_F(CVqAbstractMenuAccels, AppendedKeyGoesToTheSecondTableAndTheLabelShowsOnlyThatTable)
{
    EXPECT_EQ(m_menu.AppendIdAccelKey(2, 16, key_f1, second_table), 0);

    EXPECT_EQ(main_keys(), "2:18+79");
    EXPECT_EQ(second_keys(), "2:16+112");
    EXPECT_EQ(m_menu.Text(2), "&Open|F1");
}

TEST_F(CVqAbstractMenuAccels, AppendedKeyOfAnUnknownIdIsAddedAllTheSame)
{
    EXPECT_EQ(m_menu.AppendIdAccelKey(999, 16, key_f1, main_table), 0);

    EXPECT_EQ(main_keys(), "2:18+79 999:16+112");
}

TEST_F(CVqAbstractMenuAccels, AppendedKeyIsAddedTwiceWhenAskedTwice)
{
    m_menu.AppendIdAccelKey(2, 18, 0x4F, main_table);

    EXPECT_EQ(main_keys(), "2:18+79 2:18+79");
    EXPECT_EQ(m_menu.Text(2), "&Open|Ctrl+O");
}

TEST_F(CVqAbstractMenuAccels, AppendedKeyHasTargetZeroAndTheFlagsAsGiven)
{
    m_menu.AppendIdAccelKey(3, 2, key_b, main_table);
    m_menu.AppendIdAccelKey(3, 18, key_a, main_table);

    EXPECT_EQ(main_keys(), "2:18+79 3:2+66 3:18+65");
    EXPECT_EQ(fired(m_menu, key_a, 2), "3 of 0");
    EXPECT_EQ(fired(m_menu, key_b, 2), "none");
}

TEST_F(CVqAbstractMenuAccels, AppendedKeyOfAPopupIsNotShown)
{
    m_menu.AppendIdAccelKey(1, 16, key_f1, main_table);

    EXPECT_EQ(m_menu.Text(1), "&File");
    EXPECT_EQ(main_keys(), "2:18+79 1:16+112");
}

TEST_F(CVqAbstractMenuAccels, AppendedRecordWithoutKeyStripsTheLabel)
{
    m_menu.AppendIdAccelKey(2, 16, 0xFFFF, second_table);

    EXPECT_EQ(m_menu.Text(2), "&Open");
}

TEST_F(CVqAbstractMenuAccels, AppendedKeyTellsTheBackEndNothing)
{
    m_menu.AppendIdAccelKey(2, 16, key_f1, main_table);

    EXPECT_THAT(m_menu.TakeCalls(), IsEmpty());
}

TEST_F(CVqAbstractMenuAccels, LabelWithManyKeysIsWhole)
{
    std::string expected = "&Save|A";
    m_menu.AppendIdAccelKey(3, 16, key_a, main_table);
    for (int i = 0; i < 200; ++i) {
        m_menu.AppendIdAccelKey(3, 16 | 7, i % 2 ? key_a : key_b, main_table);
        expected += i % 2 ? ", Ctrl+Alt+Shift+A" : ", Ctrl+Alt+Shift+B";
    }

    EXPECT_EQ(m_menu.Text(3), expected);
}

// SetIdAccelKey -------------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuAccels, SetKeyReplacesAllKeysOfTheId)
{
    m_menu.AppendIdAccelKey(2, 16, key_f1, main_table);

    EXPECT_EQ(m_menu.SetIdAccelKey(2, 18, key_a, main_table), 0);

    EXPECT_EQ(main_keys(), "2:18+65");
    EXPECT_EQ(m_menu.Text(2), "&Open|Ctrl+A");
}

TEST_F(CVqAbstractMenuAccels, SetKeyTakesAllKeysFromTheHolderAndLeavesItsLabel)
{
    m_menu.AppendIdAccelKey(2, 16, key_f1, main_table);

    EXPECT_EQ(m_menu.SetIdAccelKey(3, 16, key_f1, main_table), 0);

    EXPECT_EQ(main_keys(), "3:16+112");
    EXPECT_EQ(m_menu.Text(2), "&Open|Ctrl+O, F1");
    EXPECT_EQ(m_menu.Text(3), "&Save|F1");
}

TEST_F(CVqAbstractMenuAccels, SetKeyKeepsToItsTable)
{
    m_menu.AppendIdAccelKey(2, 16, key_f1, main_table);
    m_menu.AppendIdAccelKey(3, 16, key_f1, second_table);

    EXPECT_EQ(m_menu.SetIdAccelKey(2, 16, key_f1, second_table), 0);

    EXPECT_EQ(main_keys(), "2:18+79 2:16+112");
    EXPECT_EQ(second_keys(), "2:16+112");
}

TEST_F(CVqAbstractMenuAccels, SetKeyOnTheKeyThatTheIdHasAlready)
{
    EXPECT_EQ(m_menu.SetIdAccelKey(2, 18, 0x4F, main_table), 0);

    EXPECT_EQ(main_keys(), "2:18+79");
    EXPECT_EQ(m_menu.Text(2), "&Open|Ctrl+O");
}

TEST_F(CVqAbstractMenuAccels, SetKeyTakesItFromTheFirstOfTwoHolders)
{
    m_menu.MainTable().AddAccelKey(8, 16, key_f1, 0);
    m_menu.MainTable().AddAccelKey(9, 16, key_f1, 0);

    m_menu.SetIdAccelKey(3, 16, key_f1, main_table);

    EXPECT_EQ(main_keys(), "2:18+79 9:16+112 3:16+112");
}

// Lonely accelerators -------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuAccels, LonelyAccelIsAnItemOfTypeAccelWithTheMainTable)
{
    EXPECT_EQ(m_menu.AppendLonelyAccel(7, 18, key_a, VQ_TEXT("all")), 0);

    const CVqMenuItem* item = m_menu.LonelyAccels();
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->id(), 7u);
    EXPECT_EQ(item->type(), CVqAbstractMenu::SenseAccel);
    EXPECT_EQ(TestMenu::Plain(item->command()), "all");
    EXPECT_EQ(item->accelerators(), &m_menu.MainTable());
    EXPECT_EQ(main_keys(), "2:18+79 7:18+65");
    EXPECT_EQ(m_menu.Tree(), "1(2 3)");
}

TEST_F(CVqAbstractMenuAccels, LonelyAccelsAreLinkedInTheirOrder)
{
    m_menu.AppendLonelyAccel(7, 18, key_a, VQ_TEXT("a"));
    m_menu.AppendLonelyAccel(6, 18, key_b, VQ_TEXT("b"));
    m_menu.AppendLonelyAccel(8, 16, key_f1, VQ_TEXT("c"));

    EXPECT_EQ(lonely(), "7 6 8");
}

TEST_F(CVqAbstractMenuAccels, SameKeyOfAKnownLonelyAccelIsNotAddedAgain)
{
    m_menu.AppendLonelyAccel(7, 18, key_a, VQ_TEXT("all"));

    EXPECT_EQ(m_menu.AppendLonelyAccel(7, 18, key_a, VQ_TEXT("other")), 0);

    EXPECT_EQ(main_keys(), "2:18+79 7:18+65");
    EXPECT_EQ(lonely(), "7");
    EXPECT_EQ(TestMenu::Plain(m_menu.LonelyAccels()->command()), "all");
}

TEST_F(CVqAbstractMenuAccels, FurtherKeyOfAKnownLonelyAccelIsAdded)
{
    m_menu.AppendLonelyAccel(7, 18, key_a, VQ_TEXT("all"));

    EXPECT_EQ(m_menu.AppendLonelyAccel(7, 18, key_b, VQ_TEXT("other")), 0);

    EXPECT_EQ(main_keys(), "2:18+79 7:18+65 7:18+66");
    EXPECT_EQ(lonely(), "7");
}

TEST_F(CVqAbstractMenuAccels, LonelyAccelOnAKeyOfAnotherIdIsAddedBehindIt)
{
    m_menu.AppendLonelyAccel(7, 18, 0x4F, VQ_TEXT("all"));
    m_menu.AppendLonelyAccel(7, 18, 0x4F, VQ_TEXT("all"));

    // What counts is the first record of the combination, which is the one that fires.
    EXPECT_EQ(main_keys(), "2:18+79 7:18+79 7:18+79");
    EXPECT_EQ(fired(m_menu, 0x4F, 2), "2 of 0");
}

TEST_F(CVqAbstractMenuAccels, NewLonelyAccelOnAKeyThatItHasAlreadyIsAddedAgain)
{
    EXPECT_EQ(m_menu.AppendLonelyAccel(2, 18, 0x4F, VQ_TEXT("all")), 0);

    EXPECT_EQ(main_keys(), "2:18+79 2:18+79");
    EXPECT_EQ(lonely(), "2");
}

TEST_F(CVqAbstractMenuAccels, DeleteAllLonelyAccelsOfAnEmptyListFails)
{
    EXPECT_EQ(m_menu.DeleteAllLonelyAccels(), -9);
}

TEST_F(CVqAbstractMenuAccels, DeleteAllLonelyAccelsLeavesTheKeysOfTheLast)
{
    m_menu.AppendLonelyAccel(7, 18, key_a, VQ_TEXT("a"));
    m_menu.AppendLonelyAccel(8, 18, key_b, VQ_TEXT("b"));
    m_menu.AppendLonelyAccel(7, 16, key_a, VQ_TEXT("a"));
    m_menu.AppendLonelyAccel(9, 16, key_f1, VQ_TEXT("c"));
    m_menu.SecondTable().AddAccelKey(7, 16, key_b, 0);

    EXPECT_EQ(m_menu.DeleteAllLonelyAccels(), 0);

    EXPECT_EQ(m_menu.LonelyAccels(), nullptr);
    EXPECT_EQ(main_keys(), "2:18+79 9:16+112");
    EXPECT_EQ(second_keys(), "7:16+66");
}

TEST_F(CVqAbstractMenuAccels, DeleteAllLonelyAccelsWithOneItemFreesItAndLeavesItsKeys)
{
    m_menu.AppendLonelyAccel(7, 18, key_a, VQ_TEXT("a"));

    EXPECT_EQ(m_menu.DeleteAllLonelyAccels(), 0);

    EXPECT_EQ(m_menu.LonelyAccels(), nullptr);
    EXPECT_EQ(main_keys(), "2:18+79 7:18+65");
}

TEST_F(CVqAbstractMenuAccels, SwapLonelyAccelsExchangesTheHeads)
{
    m_menu.AppendLonelyAccel(7, 18, key_a, VQ_TEXT("a"));
    CVqMenuItem* head = m_menu.Manipulators().create_item_accel(8, VQ_TEXT("b"), nullptr);

    EXPECT_EQ(m_menu.SwapLonelyAccels(head), 0);

    EXPECT_EQ(lonely(), "8");
    EXPECT_EQ(TestMenu::Chain(head), "7");
    m_menu.Manipulators().free_all(head);
}

TEST_F(CVqAbstractMenuAccels, SwapLonelyAccelsWithAnEmptyList)
{
    m_menu.AppendLonelyAccel(7, 18, key_a, VQ_TEXT("a"));
    CVqMenuItem* head = nullptr;

    m_menu.SwapLonelyAccels(head);

    EXPECT_EQ(m_menu.LonelyAccels(), nullptr);
    EXPECT_EQ(TestMenu::Chain(head), "7");
    m_menu.Manipulators().free_all(head);
}

TEST(CVqAbstractMenuAccelsOutOfMemory, LonelyAccelAddsItsKeyAllTheSame)
{
    class EmptyHanded final : public CVqAbstractMenu::SVqManipulators
    {
    public:
        CVqMenuItem* allocMenuItem() override { return nullptr; }
    } manipulators;
    TestMenu menu;
    menu.SetManipulators(&manipulators);

    EXPECT_EQ(menu.AppendLonelyAccel(7, 18, key_a, VQ_TEXT("a")), 0);

    EXPECT_EQ(menu.LonelyAccels(), nullptr);
    EXPECT_EQ(TestMenu::Keys(menu.MainTable()), "7:18+65");
}

// Both tables ---------------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuAccels, TranslateFindsACombinationOfBothTablesInTheSecondTable)
{
    m_menu.MainTable().AddAccelKey(2, 16, key_f1, 20);
    m_menu.SecondTable().AddAccelKey(3, 16, key_f1, 30);

    EXPECT_EQ(fired(m_menu, key_f1, 0), "3 of 30");
}

TEST_F(CVqAbstractMenuAccels, TranslateAsksTheMainTableWhenTheSecondSaysNo)
{
    m_menu.SecondTable().AddAccelKey(3, 16, key_f1, 30);

    EXPECT_EQ(fired(m_menu, 0x4F, 2), "2 of 0");
    EXPECT_EQ(fired(m_menu, 0x4F, 4), "none");
}

TEST_F(CVqAbstractMenuAccels, TranslationIsSwitchedInBothTables)
{
    m_menu.SecondTable().AddAccelKey(3, 16, key_f1, 30);

    EXPECT_EQ(m_menu.EnableAccelTranslation(false), 0);
    EXPECT_EQ(fired(m_menu, key_f1, 0), "none");
    EXPECT_EQ(fired(m_menu, 0x4F, 2), "none");

    EXPECT_EQ(m_menu.EnableAccelTranslation(true), 0);
    EXPECT_EQ(fired(m_menu, key_f1, 0), "3 of 30");
    EXPECT_EQ(fired(m_menu, 0x4F, 2), "2 of 0");
}

TEST_F(CVqAbstractMenuAccels, SecondTableThatDoesNotTranslateLeavesTheMainTableToAnswer)
{
    m_menu.MainTable().AddAccelKey(2, 16, key_f1, 20);
    m_menu.SecondTable().AddAccelKey(3, 16, key_f1, 30);
    m_menu.SecondTable().EnableAccelTranslation(false);

    EXPECT_EQ(fired(m_menu, key_f1, 0), "2 of 20");
}

TEST_F(CVqAbstractMenuAccels, CopyAppendsTheSecondTableAndThenTheMainTable)
{
    m_menu.SecondTable().AddAccelKey(3, 16, key_f1, 0);
    CVqAccelerators to;
    to.AddAccelKey(1, 16, key_a, 0);

    EXPECT_EQ(m_menu.CopyAccelsTo(to), 0);

    EXPECT_EQ(TestMenu::Keys(to), "1:16+65 3:16+112 2:18+79");
    EXPECT_EQ(main_keys(), "2:18+79");
    EXPECT_EQ(second_keys(), "3:16+112");
}

TEST_F(CVqAbstractMenuAccels, SwapExchangesBothTables)
{
    m_menu.SecondTable().AddAccelKey(3, 16, key_f1, 0);
    CVqAccelerators main;
    CVqAccelerators second;
    main.AddAccelKey(10, 16, key_a, 0);
    second.AddAccelKey(11, 16, key_b, 0);

    EXPECT_EQ(m_menu.SwapAccels(main, second), 0);

    EXPECT_EQ(main_keys(), "10:16+65");
    EXPECT_EQ(second_keys(), "11:16+66");
    EXPECT_EQ(TestMenu::Keys(main), "2:18+79");
    EXPECT_EQ(TestMenu::Keys(second), "3:16+112");
}
