#pragma once

#include "AbstractGui/CVqAbstractMenu.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqVariant.h"
#include "tests/contract/MenuModel.h"
#include "tests/contract/RandomMenu.h"
#include "tests/contract/RealMenus.h"

#include <gtest/gtest.h>

#include <algorithm>

/// What every back end of a menu must show: its native rows are those of the model, whatever was done to it.
///
/// A back end joins with a traits class and one line. The object of the traits class lives as long as a test:
///
///     struct MyTraits
///     {
///         CVqAbstractMenu& Menu(); // the menu under test, empty at first
///         std::string Rows();      // its native rows, in the form of MenuModel.h
///     };
///     INSTANTIATE_TYPED_TEST_SUITE_P(MyBackEnd, MenuContract, MyTraits);
template <typename Traits>
class MenuContract : public testing::Test
{
protected:
    CVqAbstractMenu& Menu() { return m_traits.Menu(); }

    void ExpectRowsOfTheModel() { EXPECT_EQ(m_traits.Rows(), ModelRows(Menu())); }

    /// File (1): Open (2), separator (3), Recent (4): one (5). Edit (6): Copy (7).
    void Fill()
    {
        Menu().AppendPopup(1, 0, VQ_TEXT("&File"));
        Menu().AppendMenuItem(2, 1, VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT("FileOpen"), 0);
        Menu().AppendSeparator(3, 1);
        Menu().AppendPopup(4, 1, VQ_TEXT("&Recent"));
        Menu().AppendMenuItem(5, 4, VQ_TEXT("&one"), VQ_TEXT("One"), 0);
        Menu().AppendPopup(6, 0, VQ_TEXT("&Edit"));
        Menu().AppendMenuItem(7, 6, VQ_TEXT("&Copy\aCtrl+C"), VQ_TEXT("Copy"), 0);
    }

    /// Presses every key that the menu holds and expects the first command that has it.
    void ExpectEveryKeyFires()
    {
        CVqAccelerators keys;
        Menu().CopyAccelsTo(keys);
        for (vq_uint32 index = 0; index < keys.GetAccelsCount(); ++index) {
            vq_uint32 flags = 0;
            vq_wchar key = 0;
            keys.GetAccelKeyByIndex(index, &flags, &key);
            int from = 0;
            vq_uint32 first = 0;
            keys.FindId(flags, key, from, &first);
            vq_uint64 target = 1;
            vq_uint32 fired = 0;
            EXPECT_TRUE(Menu().Translate(key, flags & ~16u, target, fired));
            EXPECT_EQ(fired, first);
        }
    }

private:
    Traits m_traits;
};

TYPED_TEST_SUITE_P(MenuContract);

TYPED_TEST_P(MenuContract, AnEmptyMenuHasNoRows)
{
    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, AppendedItemsComeInOrder)
{
    this->Fill();

    EXPECT_EQ(ModelRows(this->Menu()),
              "1 popup \"&File\"\n"
              "  2 item \"&Open\"\n"
              "  3 separator \"\"\n"
              "  4 popup \"&Recent\"\n"
              "    5 item \"&one\"\n"
              "6 popup \"&Edit\"\n"
              "  7 item \"&Copy\"\n");
    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, EveryKindOfItemHasARow)
{
    this->Fill();

    this->Menu().AppendOneColor(10, 6, 255, VQ_TEXT("Red"));
    this->Menu().AppendTwoColor(11, 6, 255, 65280, VQ_TEXT("Both"));
    this->Menu().AppendLineWidth(12, 6, 3, VQ_TEXT("Wide"), VQ_TEXT("Width"));

    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, InsertedItemsStandBeforeAndAfterTheirSiblings)
{
    this->Fill();

    this->Menu().InsertMenuItemBefore(20, 1, 2, VQ_TEXT("first"), VQ_TEXT(""));
    this->Menu().InsertMenuItemAfter(21, 1, 2, VQ_TEXT("third"), VQ_TEXT(""));
    this->Menu().InsertPopupBefore(22, 0, 6, VQ_TEXT("between"));
    this->Menu().InsertSeparatorAfter(23, 1, 4);
    this->Menu().InsertOneColorBefore(24, 6, 7, 1, VQ_TEXT(""));
    this->Menu().InsertTwoColorAfter(25, 6, 7, 1, 2, VQ_TEXT(""));
    this->Menu().InsertLineWidthAfter(26, 6, 24, 1, VQ_TEXT(""), VQ_TEXT(""));

    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, AnItemForAMissingParentOrSiblingHasNoRow)
{
    this->Fill();

    this->Menu().AppendMenuItem(30, 999, VQ_TEXT("lost"), VQ_TEXT(""), 0);
    this->Menu().AppendPopup(31, 999, VQ_TEXT("lost"));
    this->Menu().InsertPopupBefore(32, 1, 999, VQ_TEXT("lost"));
    this->Menu().InsertOneColorAfter(33, 999, 2, 1, VQ_TEXT(""));
    this->Menu().AppendMenuItem(34, 31, VQ_TEXT("below a lost one"), VQ_TEXT(""), 0);

    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, AnItemBelowACommandHasNoRow)
{
    this->Fill();

    this->Menu().AppendMenuItem(30, 2, VQ_TEXT("below"), VQ_TEXT(""), 0);
    this->Menu().DeleteId(2);

    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, DeletedItemsTakeTheirRowsAlong)
{
    this->Fill();

    this->Menu().DeleteId(3);
    this->ExpectRowsOfTheModel();

    this->Menu().DeleteId(1);
    this->ExpectRowsOfTheModel();

    this->Menu().DeleteAllIn(6);
    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, AnEmptiedMenuTakesItemsAgain)
{
    this->Fill();

    this->Menu().DeleteAll();
    this->ExpectRowsOfTheModel();

    this->Fill();
    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, TextAndStatusFollow)
{
    this->Fill();

    this->Menu().SetIdMenuString(2, VQ_TEXT("Open && &close"));
    this->Menu().SetIdMenuString(4, VQ_TEXT("Lately"));
    this->Menu().CheckId(2, true);
    this->Menu().GrayId(7, true);
    this->Menu().EnableId(5, false);
    this->Menu().SetIdStatus(6, 0x0003);

    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, RadioItemsFollow)
{
    this->Fill();
    this->Menu().AppendMenuItem(8, 6, VQ_TEXT("a"), VQ_TEXT(""), 0);
    this->Menu().AppendMenuItem(9, 6, VQ_TEXT("b"), VQ_TEXT(""), 0);

    this->Menu().CheckRadioId(8, 7, 9);
    this->Menu().CheckRadioId(9, 7, 9);

    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, AssignedMnemonicsShow)
{
    this->Fill();

    this->Menu().UpdateMnemonics(0, true);
    this->Menu().UpdateMnemonics(4, false);

    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, ALoadedMenuHasItsRows)
{
    this->Fill();
    this->Menu().CheckId(2, true);
    const std::string saved = ModelRows(this->Menu());
    CVqVariant tree;
    CVqLiteVariantR stream;
    this->Menu().Save(tree);
    this->Menu().Save(stream);

    this->Menu().AppendMenuItem(8, 6, VQ_TEXT("gone with the load"), VQ_TEXT(""), 0);
    EXPECT_EQ(this->Menu().Load(tree), 0);
    EXPECT_EQ(ModelRows(this->Menu()), saved);
    this->ExpectRowsOfTheModel();

    this->Menu().DeleteAll();
    EXPECT_EQ(this->Menu().Load(stream), 0);
    EXPECT_EQ(ModelRows(this->Menu()), saved);
    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, ARecreatedPopupHasItsRowsAgain)
{
    this->Fill();

    this->Menu().RecreatePopup(1);
    this->Menu().RecreatePopup(0);
    this->Menu().AppendMenuItem(8, 4, VQ_TEXT("after"), VQ_TEXT(""), 0);

    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, TenThousandRandomOperationsKeepTheRows)
{
    RandomMenu random(this->Menu(), RandomMenu::Ids::Unique, 20'240'611);

    for (int step = 1; step <= 10'000; ++step) {
        random.Step();
        if (step % 250 == 0 || step < 100) {
            SCOPED_TRACE(step);
            this->ExpectRowsOfTheModel();
        }
        if (this->HasFailure())
            break;
    }
    EXPECT_GT(std::ranges::count(ModelRows(this->Menu()), '\n'), 200);
}

TYPED_TEST_P(MenuContract, AThousandLevelsHaveTheirRows)
{
    for (vq_uint32 id = 1; id <= 1'000; ++id)
        this->Menu().AppendPopup(id, id - 1, VQ_TEXT("&Level"));

    this->ExpectRowsOfTheModel();
    this->Menu().RecreatePopup(1);
    this->ExpectRowsOfTheModel();
    this->Menu().DeleteId(1);
    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, TenThousandSiblingsHaveTheirRows)
{
    this->Menu().AppendPopup(1, 0, VQ_TEXT("&Long"));
    for (vq_uint32 id = 2; id < 10'002; ++id)
        this->Menu().AppendMenuItem(id, 1, VQ_TEXT("Row"), VQ_TEXT(""), 0);

    this->ExpectRowsOfTheModel();
    this->Menu().DeleteAllIn(1);
    this->ExpectRowsOfTheModel();
}

TYPED_TEST_P(MenuContract, RealMenusHaveTheirRowsMnemonicsAndKeys)
{
    const auto menus = ReadRealMenus();
    if (menus.empty())
        GTEST_SKIP() << "left the real menus out: there are none in " << RealMenusFolder();

    for (const RealMenu& real : menus) {
        SCOPED_TRACE(real.name);
        this->Menu().DeleteAll();
        Build(real, this->Menu());
        this->ExpectRowsOfTheModel();
        this->ExpectEveryKeyFires();

        ExpectToBeFound(real, this->Menu());
        UpdateAllMnemonics(real, this->Menu());
        this->ExpectRowsOfTheModel();
        ExpectUniqueMnemonics(this->Menu().getRootMenuItem());
        this->ExpectEveryKeyFires();
    }
}

REGISTER_TYPED_TEST_SUITE_P(MenuContract, AnEmptyMenuHasNoRows, AppendedItemsComeInOrder,
                            EveryKindOfItemHasARow, InsertedItemsStandBeforeAndAfterTheirSiblings,
                            AnItemForAMissingParentOrSiblingHasNoRow, AnItemBelowACommandHasNoRow,
                            DeletedItemsTakeTheirRowsAlong, AnEmptiedMenuTakesItemsAgain, TextAndStatusFollow,
                            RadioItemsFollow, AssignedMnemonicsShow, ALoadedMenuHasItsRows,
                            ARecreatedPopupHasItsRowsAgain, TenThousandRandomOperationsKeepTheRows,
                            AThousandLevelsHaveTheirRows, TenThousandSiblingsHaveTheirRows,
                            RealMenusHaveTheirRowsMnemonicsAndKeys);
