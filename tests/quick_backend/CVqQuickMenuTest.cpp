#include "quick_backend/CVqQuickMenu.h"

#include "AbstractGui/VqHiddenMenuCommands.h"
#include "quick_backend/CVqQuickMenuItem.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqVariant.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// File (1): Open (2, Ctrl+O), Save (3, Ctrl+S), Recent (4): one (5, F5).
class CVqQuickMenuTest : public testing::Test
{
protected:
    CVqQuickMenuTest()
    {
        menu->SetCmdHandler([this](vq_uint32 id) { fired.push_back(id); });
        menu->AppendPopup(1, 0, VQ_TEXT("&File"));
        menu->AppendMenuItem(2, 1, VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT("FileOpen"), 0);
        menu->AppendMenuItem(3, 1, VQ_TEXT("&Save\aCtrl+S"), VQ_TEXT("FileSave"), 0);
        menu->AppendPopup(4, 1, VQ_TEXT("&Recent"));
        menu->AppendMenuItem(5, 4, VQ_TEXT("one\aF5"), VQ_TEXT("One"), 0);
    }

    CVqQuickMenuItem& Item(vq_uint32 id)
    {
        return *dynamic_cast<CVqQuickMenuItem*>(menu->Manipulators().find_item(id, menu->getRootMenuItem()));
    }

    QString KeyText(vq_uint32 id)
    {
        const CVqQuickMenuRows& rows = *Item(id).rows();
        return rows.index(rows.RowOf(Item(id))).data(CVqQuickMenuRows::KeyTextRole).toString();
    }

    std::unique_ptr<CVqQuickMenu> menu = std::make_unique<CVqQuickMenu>();
    std::vector<vq_uint32> fired;
};

}

TEST_F(CVqQuickMenuTest, ACommandGoesToTheHandlerAndThenToTheSignal)
{
    std::vector<QString> signalled;
    QObject::connect(menu.get(), &CVqQuickMenu::commandTriggered, [&](uint id, const QString& command) {
        signalled.push_back(QStringLiteral("%1 %2 %3").arg(id).arg(command).arg(fired.size()));
    });

    EXPECT_EQ(menu->CallCmdHandler(2), 0);

    EXPECT_THAT(fired, ElementsAre(2u));
    EXPECT_THAT(signalled, ElementsAre(QStringLiteral("2 FileOpen 1")));
}

TEST_F(CVqQuickMenuTest, WithoutAHandlerTheSignalAloneTells)
{
    menu->SetCmdHandler(nullptr);
    QSignalSpy triggered(menu.get(), &CVqQuickMenu::commandTriggered);

    EXPECT_EQ(menu->CallCmdHandler(3), 0);

    EXPECT_EQ(triggered.size(), 1);
}

TEST_F(CVqQuickMenuTest, AHandlerMayDeleteTheMenu)
{
    menu->SetCmdHandler([this](vq_uint32) { menu.reset(); });

    EXPECT_TRUE(menu->Dispatch(2));

    EXPECT_EQ(menu, nullptr);
}

TEST_F(CVqQuickMenuTest, AHandlerMayChangeTheMenuAndItself)
{
    menu->SetCmdHandler([this](vq_uint32 id) {
        fired.push_back(id);
        menu->DeleteAll();
        menu->SetCmdHandler(nullptr);
    });

    menu->Dispatch(2);
    menu->Dispatch(2);

    EXPECT_THAT(fired, ElementsAre(2u));
}

TEST_F(CVqQuickMenuTest, ADisabledOrGrayedItemDoesNotFire)
{
    menu->EnableId(2, false);
    menu->GrayId(3, true);

    EXPECT_FALSE(menu->Dispatch(2));
    EXPECT_FALSE(menu->Dispatch(3));

    EXPECT_THAT(fired, IsEmpty());
}

TEST_F(CVqQuickMenuTest, ARemovedOrDeletedItemDoesNotFire)
{
    Item(2).setRemoved(true);
    Item(3).setDeleted(true);

    EXPECT_FALSE(menu->Dispatch(2));
    EXPECT_FALSE(menu->Dispatch(3));

    EXPECT_THAT(fired, IsEmpty());
}

TEST_F(CVqQuickMenuTest, AnItemBelowADisabledGrayedOrDeletedPopupDoesNotFire)
{
    menu->GrayId(4, true);
    EXPECT_FALSE(menu->CanFire(5));

    menu->GrayId(4, false);
    menu->EnableId(1, false);
    EXPECT_FALSE(menu->CanFire(5));

    menu->EnableId(1, true);
    Item(1).setDeleted(true);
    EXPECT_FALSE(menu->CanFire(5));

    Item(1).setDeleted(false);
    EXPECT_TRUE(menu->CanFire(5));
}

TEST_F(CVqQuickMenuTest, AnItemBelowAPopupThatIsOnlyRemovedFires)
{
    Item(1).setRemoved(true);

    EXPECT_TRUE(menu->Dispatch(5));
}

TEST_F(CVqQuickMenuTest, TheMainRootDoesNotFire)
{
    EXPECT_FALSE(menu->Dispatch(0));

    EXPECT_THAT(fired, IsEmpty());
}

TEST_F(CVqQuickMenuTest, ALonelyAcceleratorFires)
{
    menu->AppendLonelyAccel(90, 18, VQ_TEXT('L'), VQ_TEXT("Lonely"));
    QSignalSpy triggered(menu.get(), &CVqQuickMenu::commandTriggered);

    EXPECT_TRUE(menu->trigger(90));

    EXPECT_EQ(triggered[0][1], QStringLiteral("Lonely"));
}

TEST_F(CVqQuickMenuTest, HiddenCommandsLoseTheirRowsFromTheView)
{
    menu->AppendPopup(12300, 0, VQ_TEXT("Custom"));
    menu->AppendMenuItem(50, 12300, VQ_TEXT("a"), VQ_TEXT("QuickHidden"), 0);
    menu->AppendMenuItem(51, 12300, VQ_TEXT("b"), VQ_TEXT("QuickShown"), 0);
    VQ_SetMenuCommandAsHidden(VQ_TEXT("QuickMenuTest"), VQ_TEXT("QuickHidden"), true);
    QSignalSpy changed(Item(50).rows(), &QAbstractItemModel::dataChanged);

    menu->RemoveHiddenInPopup(0, VQ_TEXT("QuickMenuTest"));

    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 0);
    EXPECT_EQ(changed[0][2].value<QList<int>>(), QList<int>{CVqQuickMenuRows::ShownRole});
    VQ_SetMenuCommandAsHidden(VQ_TEXT("QuickMenuTest"), VQ_TEXT("QuickHidden"), false);
}

TEST_F(CVqQuickMenuTest, ATidiedSeparatorTellsItsRow)
{
    menu->AppendSeparator(60, 1);
    QSignalSpy changed(Item(60).rows(), &QAbstractItemModel::dataChanged);

    menu->AppendSeparator(61, 1);
    EXPECT_EQ(menu->Rows()->submenuAt(0)->SeparatorCount(), 1);

    menu->InsertMenuItemBefore(62, 1, 61, VQ_TEXT("between"), VQ_TEXT(""));
    EXPECT_EQ(menu->Rows()->submenuAt(0)->SeparatorCount(), 2);
    EXPECT_EQ(changed.size(), 1);
}

TEST_F(CVqQuickMenuTest, KeysOfBothTablesShowTheSecondFirst)
{
    menu->AppendIdAccelKey(2, 16, 113, true);
    menu->AppendIdAccelKey(2, 18, 188, false);

    EXPECT_EQ(KeyText(2), QStringLiteral("F2, Ctrl+O, Ctrl+,"));
}

TEST_F(CVqQuickMenuTest, AKeyThatAnotherCommandTakesLeavesItsRow)
{
    QSignalSpy changed(Item(2).rows(), &QAbstractItemModel::dataChanged);

    menu->SetIdAccelKey(2, 18, VQ_TEXT('S'), false);

    EXPECT_EQ(KeyText(2), QStringLiteral("Ctrl+S"));
    EXPECT_EQ(KeyText(3), QString());
    EXPECT_EQ(changed.size(), 2);
}

TEST_F(CVqQuickMenuTest, SwappedTablesShow)
{
    CVqAccelerators main;
    CVqAccelerators second;
    second.AddAccelKey(3, 16, 114, 0);
    QSignalSpy changed(Item(3).rows(), &QAbstractItemModel::dataChanged);

    EXPECT_EQ(menu->SwapAccels(main, second), 0);

    EXPECT_EQ(KeyText(3), QStringLiteral("F3"));
    EXPECT_GE(changed.size(), 1);
}

TEST_F(CVqQuickMenuTest, AddedAndFreedLonelyKeysShowOnItemsOfTheirIdentifier)
{
    menu->AppendLonelyAccel(2, 16, 115, VQ_TEXT("FileOpen"));
    menu->AppendLonelyAccel(99, 16, 116, VQ_TEXT("Other"));
    EXPECT_EQ(KeyText(2), QStringLiteral("Ctrl+O, F4"));
    QSignalSpy changed(Item(2).rows(), &QAbstractItemModel::dataChanged);

    EXPECT_EQ(menu->DeleteAllLonelyAccels(), 0);

    EXPECT_EQ(KeyText(2), QString());
    EXPECT_GE(changed.size(), 1);
}

TEST_F(CVqQuickMenuTest, ItemsEverInARadioRangeAreRadioItems)
{
    menu->CheckRadioId(2, 2, 3);

    EXPECT_TRUE(Item(2).radio());
    EXPECT_TRUE(Item(3).radio());
    EXPECT_FALSE(Item(4).radio());
    EXPECT_TRUE(Item(2).status() & CVqMenuItem::StatusChecked);
    EXPECT_EQ(menu->CheckRadioId(2, 999, 3), 0);
}

TEST_F(CVqQuickMenuTest, TheRowsOfTheBarStayWhateverHappens)
{
    CVqQuickMenuRows* rows = menu->Rows();

    menu->DeleteAll();
    menu->AppendPopup(1, 0, VQ_TEXT("&File"));

    EXPECT_EQ(menu->Rows(), rows);
    EXPECT_EQ(rows->Count(), 1);
}

TEST_F(CVqQuickMenuTest, EnterMenuIsPassedOn)
{
    QSignalSpy entered(menu.get(), &CVqQuickMenu::entered);

    EXPECT_EQ(menu->EnterMenu(VQ_TEXT('f')), 0);
    EXPECT_EQ(menu->UnrollPopup(1), 0);

    EXPECT_EQ(entered[0][0], QStringLiteral("f"));
    EXPECT_EQ(entered[1][0], QString());
}

TEST_F(CVqQuickMenuTest, TrackingTellsOfChangesOnly)
{
    QSignalSpy changed(menu.get(), &CVqQuickMenu::trackingChanged);

    menu->SetTracking(true);
    menu->SetTracking(true);

    EXPECT_TRUE(menu->IsTracking());
    EXPECT_EQ(changed.size(), 1);
}

TEST_F(CVqQuickMenuTest, ATrackedPopupIsHandedToTheView)
{
    QSignalSpy requested(menu.get(), &CVqQuickMenu::contextMenuRequested);

    EXPECT_EQ(menu->track(4, 30, 40), 0);

    ASSERT_EQ(requested.size(), 1);
    EXPECT_EQ(requested[0][0].value<CVqQuickMenuRows*>(), Item(4).submenu());
    EXPECT_EQ(requested[0][1].toInt(), 30);
    EXPECT_EQ(requested[0][2].toInt(), 40);
}

TEST_F(CVqQuickMenuTest, ADuplicateHasRowsAndAHandlerOfItsOwn)
{
    const std::unique_ptr<CVqAbstractMenu> copy(menu->Duplicate());
    auto& quick_copy = dynamic_cast<CVqQuickMenu&>(*copy);

    menu->DeleteAll();
    quick_copy.Dispatch(5);

    ASSERT_EQ(quick_copy.Rows()->Count(), 1);
    EXPECT_EQ(quick_copy.Rows()->submenuAt(0)->Count(), 3);
    EXPECT_EQ(quick_copy.Rows()->submenuAt(0)->submenuAt(2)->idAt(0), 5u);
    EXPECT_THAT(fired, ElementsAre(5u));
}

TEST_F(CVqQuickMenuTest, ADuplicateKeepsRadioDots)
{
    menu->CheckRadioId(2, 2, 3);

    const std::unique_ptr<CVqAbstractMenu> copy(menu->Duplicate());

    const CVqQuickMenuRows& rows = *dynamic_cast<CVqQuickMenu&>(*copy).Rows()->submenuAt(0);
    EXPECT_TRUE(rows.index(0).data(CVqQuickMenuRows::RadioRole).toBool());
    EXPECT_TRUE(rows.index(1).data(CVqQuickMenuRows::RadioRole).toBool());
    EXPECT_FALSE(rows.index(2).data(CVqQuickMenuRows::RadioRole).toBool());
}

TEST_F(CVqQuickMenuTest, LoadedFromATreeItHasItsRowsAndKeysAgain)
{
    CVqVariant saved;
    menu->Save(saved);
    menu->DeleteId(1);

    EXPECT_EQ(menu->Load(saved), 0);

    ASSERT_EQ(menu->Rows()->Count(), 1);
    EXPECT_EQ(menu->Rows()->submenuAt(0)->Count(), 3);
    EXPECT_EQ(menu->Rows()->submenuAt(0)->submenuAt(2)->idAt(0), 5u);
    EXPECT_EQ(KeyText(2), QStringLiteral("Ctrl+O"));
}

TEST_F(CVqQuickMenuTest, LoadedFromAStreamItReplacesRowByRow)
{
    CVqLiteVariantR saved;
    menu->Save(saved);
    CVqQuickMenuRows* bar = menu->Rows();
    menu->AppendPopup(9, 0, VQ_TEXT("Later"));
    QSignalSpy removed(bar, &QAbstractItemModel::rowsRemoved);
    QSignalSpy inserted(bar, &QAbstractItemModel::rowsInserted);

    EXPECT_EQ(menu->Load(saved), 0);

    EXPECT_EQ(menu->Rows(), bar);
    EXPECT_EQ(removed.size(), 2);
    EXPECT_EQ(inserted.size(), 1);
    EXPECT_EQ(bar->submenuAt(0)->Count(), 3);
    EXPECT_EQ(KeyText(5), QStringLiteral("F5"));
}

TEST_F(CVqQuickMenuTest, AnEmptyLoadLeavesNoRows)
{
    CVqLiteVariantR nothing;

    EXPECT_EQ(menu->Load(nothing), 0);

    EXPECT_EQ(menu->Rows()->Count(), 0);
}

TEST_F(CVqQuickMenuTest, OrphansAreTakenOver)
{
    EXPECT_EQ(menu->AppendMenuItem(70, 999, VQ_TEXT("lost"), VQ_TEXT(""), 0), 0);
    EXPECT_EQ(menu->InsertPopupBefore(71, 1, 999, VQ_TEXT("lost")), 0);

    EXPECT_EQ(menu->Rows()->Count(), 1);
}

namespace {

/// Counts how often a key text was asked for.
class CountingMenu final : public CVqQuickMenu
{
public:
    int Asked() const { return m_asked; }

private:
    QString KeyText(const CVqMenuItem&) const override
    {
        ++m_asked;
        return {};
    }

    mutable int m_asked = 0;
};

}

TEST(CVqQuickMenu, EachOfManyAppendsTellsOfOneRowAndReadsNone)
{
    CountingMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("Long"));
    CVqQuickMenuRows& rows = *menu.Rows()->submenuAt(0);
    QSignalSpy inserted(&rows, &QAbstractItemModel::rowsInserted);
    QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
    QSignalSpy reset(&rows, &QAbstractItemModel::modelReset);

    for (vq_uint32 id = 2; id < 2'002; ++id)
        menu.AppendMenuItem(id, 1, VQ_TEXT("Row"), VQ_TEXT(""), 0);

    EXPECT_EQ(inserted.size(), 2'000);
    EXPECT_EQ(changed.size() + reset.size(), 0);
    EXPECT_EQ(menu.Asked(), 0);
}
