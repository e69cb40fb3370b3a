#include "quick_backend/CVqQuickMenuRows.h"

#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/CVqQuickMenuItem.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QElapsedTimer>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

/// Edit (1): Undo (2, Ctrl+Z), separator (3), Cut (4, grayed), Copy (5), More (6): one (7).
class CVqQuickMenuRowsTest : public testing::Test
{
protected:
    CVqQuickMenuRowsTest()
    {
        menu.AppendPopup(1, 0, VQ_TEXT("&Edit"));
        menu.AppendMenuItem(2, 1, VQ_TEXT("&Undo\aCtrl+Z"), VQ_TEXT("Undo"), 0);
        menu.AppendSeparator(3, 1);
        menu.AppendMenuItem(4, 1, VQ_TEXT("Cu&t"), VQ_TEXT("Cut"), 0);
        menu.EnableId(4, false);
        menu.AppendMenuItem(5, 1, VQ_TEXT("&Copy"), VQ_TEXT("Copy"), 0);
        menu.AppendPopup(6, 1, VQ_TEXT("&More"));
        menu.AppendMenuItem(7, 6, VQ_TEXT("one"), VQ_TEXT("One"), 0);
    }

    CVqQuickMenuRows& Rows() { return *menu.Rows()->submenuAt(0); }
    QVariant Data(int row, int role) { return Rows().index(row).data(role); }

    CVqQuickMenuItem& Item(vq_uint32 id)
    {
        return *dynamic_cast<CVqQuickMenuItem*>(menu.Manipulators().find_item(id, menu.getRootMenuItem()));
    }

    CVqQuickMenu menu;
};

}

TEST_F(CVqQuickMenuRowsTest, RolesReadTheItem)
{
    EXPECT_EQ(Data(0, CVqQuickMenuRows::ItemIdRole), 2u);
    EXPECT_EQ(Data(0, CVqQuickMenuRows::KindRole), int(CVqQuickMenuRows::Command));
    EXPECT_EQ(Data(0, Qt::DisplayRole), QStringLiteral("Undo"));
    EXPECT_EQ(Data(0, CVqQuickMenuRows::LabelRole), QStringLiteral("Undo"));
    EXPECT_EQ(Data(0, CVqQuickMenuRows::StyledLabelRole), QStringLiteral("<u>U</u>ndo"));
    EXPECT_EQ(Data(0, CVqQuickMenuRows::MnemonicRole), QStringLiteral("U"));
    EXPECT_EQ(Data(0, CVqQuickMenuRows::MnemonicPositionRole), 0);
    EXPECT_EQ(Data(0, CVqQuickMenuRows::KeyTextRole), QStringLiteral("Ctrl+Z"));
    EXPECT_EQ(Data(0, CVqQuickMenuRows::CheckedRole), false);
    EXPECT_EQ(Data(0, CVqQuickMenuRows::RadioRole), false);
    EXPECT_EQ(Data(0, CVqQuickMenuRows::GrayedRole), false);
    EXPECT_EQ(Data(0, CVqQuickMenuRows::ShownRole), true);
    EXPECT_EQ(Data(0, CVqQuickMenuRows::ImageIndexRole), -1);
    EXPECT_EQ(Data(0, CVqQuickMenuRows::SubmenuRole).value<CVqQuickMenuRows*>(), nullptr);
    EXPECT_EQ(Data(0, CVqQuickMenuRows::AccessibleNameRole), QStringLiteral("Undo"));
    EXPECT_EQ(Data(2, CVqQuickMenuRows::GrayedRole), true);
    EXPECT_EQ(Data(4, CVqQuickMenuRows::SubmenuRole).value<CVqQuickMenuRows*>()->idAt(0), 7u);
}

TEST_F(CVqQuickMenuRowsTest, ColoursHaveRedInTheLowestByte)
{
    menu.AppendTwoColor(8, 1, 0x0000FF, 0xFF8000, VQ_TEXT("Both"));

    EXPECT_EQ(Data(5, CVqQuickMenuRows::Color1Role), QColor(255, 0, 0));
    EXPECT_EQ(Data(5, CVqQuickMenuRows::Color2Role), QColor(0, 128, 255));
    EXPECT_EQ(Data(5, CVqQuickMenuRows::AccessibleNameRole), QStringLiteral("#ff0000, #0080ff"));
}

TEST_F(CVqQuickMenuRowsTest, OutsideTheRowsNothingIsKnown)
{
    EXPECT_FALSE(Rows().data(QModelIndex(), Qt::DisplayRole).isValid());
    EXPECT_FALSE(Data(0, Qt::DecorationRole).isValid());
    EXPECT_EQ(Rows().idAt(-1), 0u);
    EXPECT_EQ(Rows().idAt(5), 0u);
    EXPECT_EQ(Rows().submenuAt(99), nullptr);
    EXPECT_EQ(Rows().ItemAt(-1), nullptr);
}

TEST_F(CVqQuickMenuRowsTest, CountsShownCommandsAndSeparators)
{
    EXPECT_EQ(Rows().Count(), 5);
    EXPECT_EQ(Rows().CommandCount(), 4);
    EXPECT_EQ(Rows().SeparatorCount(), 1);

    Item(3).setRemoved(true);
    Item(5).setDeleted(true);

    EXPECT_EQ(Rows().Count(), 5);
    EXPECT_EQ(Rows().CommandCount(), 3);
    EXPECT_EQ(Rows().SeparatorCount(), 0);
}

TEST_F(CVqQuickMenuRowsTest, NextSkipsWhatCannotBePickedAndGoesRound)
{
    EXPECT_EQ(Rows().next(-1, 1), 0);
    EXPECT_EQ(Rows().next(0, 1), 3);
    EXPECT_EQ(Rows().next(4, 1), 0);
    EXPECT_EQ(Rows().next(0, -1), 4);
    EXPECT_EQ(Rows().next(5, -1), 4);
}

TEST_F(CVqQuickMenuRowsTest, NextFindsNothingAmongGrayedRows)
{
    for (const vq_uint32 id : {2u, 5u, 6u})
        menu.GrayId(id, true);

    EXPECT_EQ(Rows().next(-1, 1), -1);
    EXPECT_EQ(Rows().byMnemonic(QStringLiteral("u"), -1), -1);
}

TEST_F(CVqQuickMenuRowsTest, AMnemonicIsFoundWhateverItsCase)
{
    EXPECT_EQ(Rows().byMnemonic(QStringLiteral("c"), -1), 3);
    EXPECT_EQ(Rows().byMnemonic(QStringLiteral("C"), 3), 3);
    EXPECT_EQ(Rows().byMnemonic(QStringLiteral("x"), -1), -1);
    EXPECT_EQ(Rows().byMnemonic(QString(), -1), -1);
    EXPECT_TRUE(Rows().isUniqueMnemonic(QStringLiteral("c")));
}

TEST_F(CVqQuickMenuRowsTest, ASharedMnemonicGoesFromRowToRow)
{
    Item(6).setMnemonic(VQ_TEXT('c'));

    EXPECT_EQ(Rows().byMnemonic(QStringLiteral("c"), 3), 4);
    EXPECT_EQ(Rows().byMnemonic(QStringLiteral("c"), 4), 3);
    EXPECT_FALSE(Rows().isUniqueMnemonic(QStringLiteral("c")));
}

TEST_F(CVqQuickMenuRowsTest, OneInsertIsOneRow)
{
    QSignalSpy inserted(&Rows(), &QAbstractItemModel::rowsInserted);
    QSignalSpy reset(&Rows(), &QAbstractItemModel::modelReset);

    menu.InsertMenuItemAfter(9, 1, 2, VQ_TEXT("Redo"), VQ_TEXT("Redo"));

    ASSERT_EQ(inserted.size(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 1);
    EXPECT_EQ(inserted[0][2].toInt(), 1);
    EXPECT_EQ(reset.size(), 0);
}

TEST_F(CVqQuickMenuRowsTest, ADeletedItemIsOneRowLess)
{
    QSignalSpy removed(&Rows(), &QAbstractItemModel::rowsRemoved);

    menu.DeleteId(6);

    ASSERT_EQ(removed.size(), 1);
    EXPECT_EQ(removed[0][1].toInt(), 4);
}

TEST_F(CVqQuickMenuRowsTest, ATextChangeTellsTheRolesOfTexts)
{
    QSignalSpy changed(&Rows(), &QAbstractItemModel::dataChanged);

    menu.SetIdMenuString(5, VQ_TEXT("&Copy all"));

    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 3);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 3);
    EXPECT_EQ(changed[0][2].value<QList<int>>(), CVqQuickMenuRows::TextRoles());
}

TEST_F(CVqQuickMenuRowsTest, AStatusChangeTellsTheRolesOfTheStatus)
{
    QSignalSpy changed(&Rows(), &QAbstractItemModel::dataChanged);

    menu.CheckId(5, true);

    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0][2].value<QList<int>>(), CVqQuickMenuRows::StateRoles());
}

TEST_F(CVqQuickMenuRowsTest, TextColumnsAreAsWideAsTheWidestShownTexts)
{
    const QSizeF before = Rows().textColumns(QFont());

    menu.SetIdMenuString(5, VQ_TEXT("A label that is far wider than the others"));
    const QSizeF wider = Rows().textColumns(QFont());
    Item(5).setDeleted(true);
    const QSizeF after = Rows().textColumns(QFont());

    EXPECT_GT(wider.width(), 2 * before.width());
    EXPECT_EQ(after, before);
    EXPECT_GT(before.height(), 0);
}

TEST_F(CVqQuickMenuRowsTest, PassesTheModelTester)
{
    const QAbstractItemModelTester tester(&Rows(), QAbstractItemModelTester::FailureReportingMode::Warning);

    menu.AppendMenuItem(20, 1, VQ_TEXT("new"), VQ_TEXT(""), 0);
    menu.InsertSeparatorBefore(21, 1, 2);
    menu.SetIdMenuString(5, VQ_TEXT("other"));
    menu.DeleteId(4);
    menu.RecreatePopup(1);
    menu.DeleteAllIn(1);

    EXPECT_EQ(Rows().rowCount(), 0);
    EXPECT_EQ(Rows().rowCount(Rows().index(0)), 0);
}

TEST_F(CVqQuickMenuRowsTest, AnItemHasOneRowAtMost)
{
    CVqQuickMenuRows other(nullptr);

    other.Insert(Item(5), nullptr);
    Rows().Insert(Item(5), nullptr);

    EXPECT_EQ(other.Count(), 0);
    EXPECT_EQ(Rows().Count(), 5);
    EXPECT_EQ(other.RowOf(Item(5)), -1);
}

TEST_F(CVqQuickMenuRowsTest, AListThatDiesLetsItsItemsGo)
{
    CVqQuickMenuItem item;
    {
        CVqQuickMenuRows rows(nullptr);
        rows.Insert(item, nullptr);
        EXPECT_EQ(item.rows(), &rows);
    }

    EXPECT_EQ(item.rows(), nullptr);
}

TEST_F(CVqQuickMenuRowsTest, RowsAreFoundAfterInsertsInFront)
{
    CVqQuickMenuRows rows(nullptr);
    std::vector<CVqQuickMenuItem> items(100);
    for (CVqQuickMenuItem& item : items)
        rows.Insert(item, rows.Count() ? &item - 1 : nullptr);

    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(rows.RowOf(items[std::size_t(i)]), 99 - i);
}
