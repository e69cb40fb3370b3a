#include "quick_backend/CVqQuickMenuItem.h"

#include "quick_backend/CVqQuickMenuRows.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

namespace {

class CVqQuickMenuItemTest : public testing::Test
{
protected:
    CVqQuickMenuItemTest() { rows.Insert(item, nullptr); }

    QList<int> TakeRoles()
    {
        const QList<int> roles = changed.isEmpty() ? QList<int>() : changed[0][2].value<QList<int>>();
        EXPECT_LE(changed.size(), 1);
        changed.clear();
        return roles;
    }

    CVqQuickMenuItem item;
    CVqQuickMenuRows rows{nullptr};
    QSignalSpy changed{&rows, &QAbstractItemModel::dataChanged};
};

}

TEST_F(CVqQuickMenuItemTest, TellsOfEachSilentChange)
{
    item.setRemoved(true);
    EXPECT_TRUE(TakeRoles().contains(CVqQuickMenuRows::ShownRole));
    item.setDeleted(true);
    EXPECT_TRUE(TakeRoles().contains(CVqQuickMenuRows::ShownRole));
    item.setCommand(VQ_TEXT("Open"));
    EXPECT_TRUE(TakeRoles().contains(CVqQuickMenuRows::CommandRole));
    item.setId(5);
    EXPECT_TRUE(TakeRoles().contains(CVqQuickMenuRows::ItemIdRole));
    item.setLineWidth(5);
    EXPECT_TRUE(TakeRoles().contains(CVqQuickMenuRows::LineWidthRole));
    item.setCol1(5);
    EXPECT_TRUE(TakeRoles().contains(CVqQuickMenuRows::Color1Role));
    item.setCol2(5);
    EXPECT_TRUE(TakeRoles().contains(CVqQuickMenuRows::Color2Role));
    item.setEnaBmpIndex(5);
    EXPECT_TRUE(TakeRoles().contains(CVqQuickMenuRows::ImageIndexRole));
    item.setMnemonic(VQ_TEXT('x'));
    EXPECT_TRUE(TakeRoles().contains(CVqQuickMenuRows::StyledLabelRole));
    item.setRadio(true);
    EXPECT_TRUE(TakeRoles().contains(CVqQuickMenuRows::RadioRole));
    item.setSubmenu(&rows);
    EXPECT_TRUE(TakeRoles().contains(CVqQuickMenuRows::SubmenuRole));
}

TEST_F(CVqQuickMenuItemTest, TheSameValueAgainTellsNothing)
{
    item.setRemoved(false);
    item.setDeleted(false);
    item.setCommand(VQ_TEXT(""));
    item.setId(0);
    item.setLineWidth(0);
    item.setCol1(0);
    item.setCol2(0);
    item.setEnaBmpIndex(-1);
    item.setMnemonic(0);
    item.setRadio(false);
    item.setSubmenu(nullptr);

    EXPECT_EQ(changed.size(), 0);
}

TEST_F(CVqQuickMenuItemTest, KeepsItsFieldsWithoutARow)
{
    CVqQuickMenuItem loose;

    loose.setRemoved(true);
    loose.setMnemonic(VQ_TEXT('x'));

    EXPECT_TRUE(loose.removed());
    EXPECT_EQ(loose.mnemonic(), VQ_TEXT('x'));
}

TEST_F(CVqQuickMenuItemTest, TakesItsRowAlongWhenItDies)
{
    auto second = std::make_unique<CVqQuickMenuItem>();
    rows.Insert(*second, nullptr);

    second.reset();

    EXPECT_EQ(rows.Count(), 1);
}
