#include "quick_backend/SVqQuickManipulators.h"

#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/CVqQuickMenuItem.h"

#include <gtest/gtest.h>

TEST(SVqQuickManipulators, MakesQuickItems)
{
    SVqQuickManipulators manipulators;

    CVqMenuItem* item = manipulators.create_item_separator(5);

    EXPECT_NE(dynamic_cast<CVqQuickMenuItem*>(item), nullptr);
    manipulators.free_all(item);
}

TEST(SVqQuickManipulators, NamesakesOfARemovedItemGoWithTheirRows)
{
    CVqQuickMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("File"));
    menu.AppendPopup(40, 1, VQ_TEXT("outer"));
    menu.AppendMenuItem(40, 40, VQ_TEXT("inner"), VQ_TEXT(""), 0);
    menu.AppendMenuItem(2, 40, VQ_TEXT("other"), VQ_TEXT(""), 0);
    menu.AppendMenuItem(40, 0, VQ_TEXT("elsewhere"), VQ_TEXT(""), 0);
    menu.AppendMenuItem(3, 0, VQ_TEXT("stays"), VQ_TEXT(""), 0);

    EXPECT_EQ(menu.DeleteId(40), 0);

    EXPECT_EQ(menu.Rows()->Count(), 2);
    EXPECT_EQ(menu.Rows()->submenuAt(0)->Count(), 0);
    EXPECT_EQ(menu.Rows()->idAt(1), 3u);
}

TEST(SVqQuickManipulators, RemovesNothingForAnUnknownIdentifier)
{
    CVqQuickMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("File"));

    EXPECT_EQ(menu.Manipulators().remove_item(7, menu.getRootMenuItem()), nullptr);
    EXPECT_EQ(menu.Manipulators().remove_item(7, nullptr), nullptr);
    EXPECT_EQ(menu.Rows()->Count(), 1);
}

TEST(SVqQuickManipulators, CopiesRadioItemsAsSuch)
{
    SVqQuickManipulators manipulators;
    CVqMenuItem* source = manipulators.create_item_mainroot(0);
    manipulators.append_item(source, manipulators.create_item_separator(5));
    manipulators.append_item(source, manipulators.create_item_separator(6));
    static_cast<CVqQuickMenuItem*>(source->subItem()->nextItem())->setRadio(true);
    CVqMenuItem* copy = manipulators.allocMenuItem();

    EXPECT_EQ(manipulators.copy_items_tree(copy, source), 0);

    EXPECT_FALSE(static_cast<CVqQuickMenuItem*>(copy->subItem())->radio());
    EXPECT_TRUE(static_cast<CVqQuickMenuItem*>(copy->subItem()->nextItem())->radio());
    EXPECT_EQ(manipulators.copy_items_tree(nullptr, source), -4);
    manipulators.free_all(source);
    manipulators.free_all(copy);
}
