#include "quick_backend/CVqQuickMenuBackend.h"

#include "AbstractGui/CVqAbstractMenu.h"
#include "quick_backend/CVqQuickMenuItem.h"
#include "quick_backend/CVqQuickMenuRows.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

namespace {

/// A root with a list of rows and items that are linked by hand.
class CVqQuickMenuBackendTest : public testing::Test
{
protected:
    CVqQuickMenuBackendTest()
    {
        root.setType(CVqAbstractMenu::SenseMainRoot);
        root.setMenu(backend.CreateMenuHandle());
        first.setType(CVqAbstractMenu::SenseItem);
        first.setParentItem(&root);
        root.setSubItem(&first);
    }

    CVqQuickMenuRows& Rows() { return *backend.RowsOf(root.menu()); }

    CVqQuickMenuBackend backend;
    CVqQuickMenuItem root;
    CVqQuickMenuItem first;
};

}

TEST_F(CVqQuickMenuBackendTest, EachHandleHasRowsOfItsOwn)
{
    const vq_uint64 handle = backend.CreateMenuHandle();

    EXPECT_NE(handle, 0u);
    EXPECT_NE(handle, root.menu());
    EXPECT_NE(backend.RowsOf(handle), &Rows());
    EXPECT_EQ(backend.RowsOf(0), nullptr);
    EXPECT_EQ(backend.RowsOf(99), nullptr);
}

TEST_F(CVqQuickMenuBackendTest, InsertsAnItemOnce)
{
    EXPECT_EQ(backend.InsertItem(&root, nullptr, &first), 0);
    EXPECT_EQ(backend.InsertItem(&root, nullptr, &first), 0);

    EXPECT_EQ(Rows().Count(), 1);
    EXPECT_EQ(first.rows(), &Rows());
}

TEST_F(CVqQuickMenuBackendTest, TheRootHasNoRowAndKeepsItsList)
{
    EXPECT_EQ(backend.InsertItem(nullptr, nullptr, &root), 0);
    backend.DestroyItem(&root);

    EXPECT_NE(backend.RowsOf(root.menu()), nullptr);
    EXPECT_EQ(backend.OrphanCount(), 0);
}

TEST_F(CVqQuickMenuBackendTest, TakesOverWhatHangsNowhere)
{
    auto* without_parent = new CVqQuickMenuItem;
    auto* without_sibling = new CVqQuickMenuItem;

    EXPECT_EQ(backend.InsertItem(nullptr, nullptr, without_parent), -6);
    EXPECT_EQ(backend.InsertItem(&root, nullptr, without_sibling), -6);

    EXPECT_EQ(backend.OrphanCount(), 2);
    EXPECT_EQ(Rows().Count(), 0);
}

TEST_F(CVqQuickMenuBackendTest, AnOrphanedPopupKeepsNoRows)
{
    auto* popup = new CVqQuickMenuItem;
    popup->setType(CVqAbstractMenu::SensePopup);
    popup->setMenu(backend.CreateMenuHandle());

    backend.InsertItem(nullptr, nullptr, popup);

    EXPECT_EQ(backend.RowsOf(popup->menu()), nullptr);
}

TEST_F(CVqQuickMenuBackendTest, AnItemBelowACommandHasNoRowAndIsNoOrphan)
{
    CVqQuickMenuItem below;
    below.setParentItem(&first);
    first.setSubItem(&below);

    EXPECT_EQ(backend.InsertItem(&first, nullptr, &below), -6);
    EXPECT_EQ(backend.OrphanCount(), 0);
}

TEST_F(CVqQuickMenuBackendTest, NullAndForeignItemsAreRefused)
{
    CVqMenuItem foreign;

    EXPECT_EQ(backend.InsertItem(&root, nullptr, nullptr), -9);
    EXPECT_EQ(backend.InsertItem(&root, nullptr, &foreign), -9);
    backend.DestroyItem(nullptr);
    backend.DestroyItem(&foreign);
    backend.UpdateItemText(nullptr);
    backend.UpdateItemState(&foreign);

    EXPECT_EQ(Rows().Count(), 0);
}

TEST_F(CVqQuickMenuBackendTest, ADestroyedItemLosesItsRowAlsoWhenItWasUnlinked)
{
    backend.InsertItem(&root, nullptr, &first);
    root.setSubItem(nullptr);

    backend.DestroyItem(&first);
    backend.DestroyItem(&first);

    EXPECT_EQ(Rows().Count(), 0);
    EXPECT_EQ(first.rows(), nullptr);
}

TEST_F(CVqQuickMenuBackendTest, ADestroyedPopupLosesItsListAndThoseInIt)
{
    first.setType(CVqAbstractMenu::SensePopup);
    first.setMenu(backend.CreateMenuHandle());
    CVqQuickMenuItem below;
    below.setParentItem(&first);
    first.setSubItem(&below);
    backend.InsertItem(&root, nullptr, &first);
    backend.InsertItem(&first, nullptr, &below);
    ASSERT_EQ(Rows().submenuAt(0)->Count(), 1);

    backend.DestroyItem(&first);

    EXPECT_EQ(backend.RowsOf(first.menu()), nullptr);
    EXPECT_EQ(below.rows(), nullptr);
    EXPECT_EQ(first.submenu(), nullptr);
}

TEST_F(CVqQuickMenuBackendTest, EnterMenuTellsTheLetter)
{
    QSignalSpy entered(&backend, &CVqQuickMenuBackend::menuEntered);

    EXPECT_EQ(backend.EnterMenu(VQ_TEXT('f')), 0);
    EXPECT_EQ(backend.EnterMenu(0), 0);

    EXPECT_EQ(entered[0][0], QStringLiteral("f"));
    EXPECT_EQ(entered[1][0], QString());
}

TEST_F(CVqQuickMenuBackendTest, ADuplicateHasNoRows)
{
    const std::unique_ptr<IVqMenuBase> copy(backend.Duplicate());

    EXPECT_EQ(dynamic_cast<CVqQuickMenuBackend&>(*copy).RowsOf(root.menu()), nullptr);
}

TEST_F(CVqQuickMenuBackendTest, ChangedKeysReachAllRows)
{
    backend.InsertItem(&root, nullptr, &first);
    QSignalSpy changed(&Rows(), &QAbstractItemModel::dataChanged);

    backend.KeysChanged();

    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0][2].value<QList<int>>(), QList<int>{CVqQuickMenuRows::KeyTextRole});
}
