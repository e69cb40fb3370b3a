#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/VqHiddenMenuCommands.h"
#include "tests/support/SmallStack.h"
#include "tests/support/TestMenu.h"

#include <gtest/gtest.h>

#include <vector>

// Menus of 100,000 siblings and of 1,000 levels, in a stack of 1 MiB.

namespace {

constexpr vq_uint32 siblings = 100'000;
constexpr vq_uint32 levels = 1'000;
constexpr vq_uint32 any_status = 0xFF00;

void fill_wide(TestMenu& menu)
{
    menu.AppendPopup(siblings + 1, 0, VQ_TEXT("Popup"));
    for (vq_uint32 id = 1; id <= siblings; ++id)
        menu.AppendMenuItem(id, siblings + 1, VQ_TEXT("Open"), VQ_TEXT("open"), 0);
}

/// Popups 1, 2, 3, ..., each in the one before it.
void fill_deep(TestMenu& menu)
{
    for (vq_uint32 id = 1; id <= levels; ++id)
        menu.AppendPopup(id, id - 1, VQ_TEXT("Popup"));
    menu.AppendMenuItem(levels + 1, levels, VQ_TEXT("Open"), VQ_TEXT("open"), 0);
}

bool count(CVqMenuItem*, void* user)
{
    ++*static_cast<vq_uint32*>(user);
    return true;
}

/// Everything that walks the tree below `popup`, once.
void use_all(TestMenu& menu, vq_uint32 popup, vq_uint32 last, vq_uint32 items)
{
    std::vector<vq_uint32> ids(items + 10);
    auto found = static_cast<vq_uint32>(ids.size());
    vq_uint32 visited = 0;
    EXPECT_EQ(menu.FindItems(VQ_TEXT(""), CVqAbstractMenu::SenseAny, any_status, ids.data(), found), 0);
    EXPECT_EQ(found, items + 1);
    EXPECT_EQ(menu.EnumItems(popup, true, &count, &visited), 0);
    EXPECT_EQ(visited, items);
    EXPECT_EQ(menu.SetIdStatus(last, 3), 0);
    EXPECT_EQ(menu.GetSafeId(1), items + 1);
    EXPECT_EQ(menu.UpdateMnemonics(popup, true), 0);
    EXPECT_EQ(menu.RecreatePopup(popup), 0);
    EXPECT_EQ(menu.CheckRadioId(last, last, last), 0);
    menu.setIgnoreAdditionalBitmapZoomRecursive(true);
    EXPECT_TRUE(menu.Manipulators().remove_hidden(menu.Root(), VQ_TEXT("StackOwner")));
    EXPECT_EQ(menu.AppendSeparator(items + 1, popup), 0);
    EXPECT_EQ(menu.DeleteId(popup), 0);
    EXPECT_EQ(menu.GetCountInPopup(0), 0);
}

}

TEST(CVqAbstractMenuStack, HundredThousandSiblings)
{
    run_in_small_stack([] {
        TestMenu menu;
        fill_wide(menu);
        vq_uint32 index = 0;
        EXPECT_EQ(menu.GetIndexInPopupFromId(siblings + 1, siblings, index), 0);
        EXPECT_EQ(index, siblings - 1);
        EXPECT_EQ(
            menu.InsertMenuItemAfter(siblings + 2, siblings + 1, siblings, VQ_TEXT("Last"), VQ_TEXT("")), 0);
        EXPECT_EQ(menu.DeleteId(siblings + 2), 0);
        use_all(menu, siblings + 1, siblings, siblings + 1);
    });
}

TEST(CVqAbstractMenuStack, ThousandLevels)
{
    run_in_small_stack([] {
        TestMenu menu;
        fill_deep(menu);
        use_all(menu, 1, levels + 1, levels + 1);
    });
}

TEST(CVqAbstractMenuStack, MenuOfAnySizeDies)
{
    run_in_small_stack([] {
        TestMenu menu;
        fill_wide(menu);
        TestMenu deep;
        fill_deep(deep);
    });
}

TEST(CVqAbstractMenuStack, CopyOfManyLevels)
{
    run_in_small_stack([] {
        TestMenu menu;
        fill_deep(menu);
        TestMenu copy(TestMenu::BackEnd::None);

        EXPECT_EQ(menu.Manipulators().copy_items_tree(copy.Root(), menu.Root()), 0);

        EXPECT_EQ(copy.GetCountInPopup(levels), 1);
    });
}

TEST(CVqAbstractMenuStack, ManyLonelyAccels)
{
    run_in_small_stack([] {
        TestMenu menu;
        CVqMenuItem* head = nullptr;
        for (vq_uint32 id = siblings; id > 0; --id) {
            CVqMenuItem* item = menu.Manipulators().create_item_accel(id, VQ_TEXT("lonely"), nullptr);
            item->setNextItem(head);
            head = item;
        }
        menu.SwapLonelyAccels(head);
        menu.AppendLonelyAccel(siblings + 1, 16, 0x41, VQ_TEXT("last"));

        EXPECT_EQ(menu.DeleteId(siblings), -13);
        EXPECT_EQ(menu.DeleteAllLonelyAccels(), 0);
    });
}
