#include "tests/AbstractGui/MenuTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Manipulators = CVqAbstractMenu::SVqManipulators;

// Counts what it frees and gives no item once `left` are made. Owns what it made and nobody freed.
class CountingTools final : public Manipulators
{
public:
    explicit CountingTools(int left = 1000) : m_left(left) { }

    CVqMenuItem* allocMenuItem() override
    {
        if (m_left-- <= 0)
            return nullptr;
        return m_made.emplace_back(std::make_unique<CVqMenuItem>()).get();
    }

    void freeMenuItem(CVqMenuItem* item) override { freed.push_back(item->id()); }

    std::size_t Made() const { return m_made.size(); }

    std::vector<vq_uint32> freed;

private:
    std::vector<std::unique_ptr<CVqMenuItem>> m_made;
    int m_left;
};

std::vector<vq_uint32> IdsIn(const CVqAccelerators& table)
{
    std::vector<vq_uint32> ids;
    for (vq_uint32 i = 0; i < table.GetAccelsCount(); ++i)
        ids.push_back(table.GetAccelIdByIndex(i));
    return ids;
}

}

// free_all ---------------------------------------------------------------------------------------------

TEST(SVqManipulatorsTrees, FreeingTakesChildrenAndLaterSiblingsFirst)
{
    const MenuTree tree({{1, {{2, {{3}}}, {4}}}, {5, {{6}}}, {7}});
    CountingTools tools;

    tools.free_all(tree.First());

    EXPECT_THAT(tools.freed, ElementsAre(3, 4, 2, 6, 7, 5, 1));
}

TEST(SVqManipulatorsTrees, FreeingNullIsIgnored)
{
    CountingTools tools;

    tools.free_all(nullptr);

    EXPECT_THAT(tools.freed, IsEmpty());
}

TEST(SVqManipulatorsTrees, FreeingReallyDeletes)
{
    CVqMenuItem* root = Tools().create_item_mainroot(0);
    CVqMenuItem* popup = Tools().create_item_popup(1, 0, VQ_TEXT("a popup with a long label"));
    Tools().append_item(root, popup);
    Tools().append_item(popup, Tools().create_item_separator(2));
    Tools().append_item(root, Tools().create_item_separator(3));

    Tools().free_all(root);
}

// copy_items_tree --------------------------------------------------------------------------------------

TEST(SVqManipulatorsTrees, CopyingNullGivesMinusFour)
{
    CVqMenuItem item;

    EXPECT_EQ(Tools().copy_items_tree(nullptr, &item), -4);
    EXPECT_EQ(Tools().copy_items_tree(&item, nullptr), -4);
}

TEST(SVqManipulatorsTrees, CopyHasTheSameShapeAndItsOwnParents)
{
    const MenuTree tree({{1, {{2, {{3}}}, {4}}}, {5}});
    CountingTools tools;
    CVqMenuItem copy;

    EXPECT_EQ(tools.copy_items_tree(&copy, tree.Root()), 0);

    EXPECT_EQ(Shape(&copy), "0(1(2(3) 4) 5)");
    EXPECT_EQ(tools.Made(), 5u);
    EXPECT_EQ(copy.subItem()->parentItem(), &copy);
    EXPECT_EQ(copy.subItem()->nextItem()->parentItem(), &copy);
    EXPECT_EQ(copy.subItem()->subItem()->parentItem(), copy.subItem());
}

namespace {

int g_draw, g_measure, g_user;

}

TEST(SVqManipulatorsTrees, CopyTakesTheseFields)
{
    CVqMenuItem source;
    source.setRemoved(true);
    source.setDeleted(true);
    source.setId(4);
    source.setType(5);
    source.setStatus(6);
    source.setText(VQ_TEXT("text"));
    source.setCommand(VQ_TEXT("command"));
    source.setCol1(7);
    source.setCol2(8);
    source.setEnaBmpIndex(9);
    source.setMnemonic(VQ_TEXT('t'));
    source.setUserParam(&g_user);
    source.setDrawCallback(&g_draw);
    source.setMeasureCallback(&g_measure);
    CVqMenuItem copy;

    Tools().copy_items_tree(&copy, &source);

    EXPECT_TRUE(copy.removed());
    EXPECT_TRUE(copy.deleted());
    EXPECT_EQ(copy.id(), 4u);
    EXPECT_EQ(copy.type(), 5u);
    EXPECT_EQ(copy.status(), 6u);
    EXPECT_TRUE(copy.text() == VQ_TEXT("text"));
    EXPECT_TRUE(copy.command() == VQ_TEXT("command"));
    EXPECT_EQ(copy.col1(), 7u);
    EXPECT_EQ(copy.col2(), 8u);
    EXPECT_EQ(copy.enaBmpIndex(), 9);
    EXPECT_EQ(copy.mnemonic(), VQ_TEXT('t'));
    EXPECT_EQ(copy.userParam(), &g_user);
    EXPECT_EQ(copy.drawCallback(), &g_draw);
    EXPECT_EQ(copy.measureCallback(), &g_measure);
}

TEST(SVqManipulatorsTrees, CopyLeavesWidthImageSizeAndZoom)
{
    CVqMenuItem source;
    source.setLineWidth(3);
    source.setBmpSize({16, 16});
    source.setIgnoreAdditionalZoom(true);
    CVqMenuItem copy;
    copy.setLineWidth(2);

    Tools().copy_items_tree(&copy, &source);

    EXPECT_EQ(copy.lineWidth(), 2u);
    EXPECT_EQ(copy.bmpSize(), (CVqSizeBase<int>{0, 0}));
    EXPECT_FALSE(copy.ignoreAdditionalZoom());
}

TEST(SVqManipulatorsTrees, CopyClearsHandleTableAndChildrenAndKeepsItsPlace)
{
    CVqAccelerators table;
    CVqMenuItem neighbours[3];
    CVqMenuItem source;
    source.setMenu(5);
    source.setAccelerators(&table);
    CVqMenuItem copy;
    copy.setMenu(6);
    copy.setAccelerators(&table);
    copy.setParentItem(&neighbours[0]);
    copy.setNextItem(&neighbours[1]);
    copy.setSubItem(&neighbours[2]);

    Tools().copy_items_tree(&copy, &source);

    EXPECT_EQ(copy.menu(), 0u);
    EXPECT_EQ(copy.accelerators(), nullptr);
    EXPECT_EQ(copy.subItem(), nullptr);
    EXPECT_EQ(copy.parentItem(), &neighbours[0]);
    EXPECT_EQ(copy.nextItem(), &neighbours[1]);
}

TEST(SVqManipulatorsTrees, CopyWithoutMemoryStopsWithMinusThree)
{
    const MenuTree tree({{1, {{2}, {3}}}, {4}});
    CountingTools tools(2);
    CVqMenuItem copy;

    EXPECT_EQ(tools.copy_items_tree(&copy, tree.Root()), -3);

    EXPECT_EQ(Shape(&copy), "0"); // 1 was made, and lost with its child
    EXPECT_EQ(tools.Made(), 2u);
    EXPECT_THAT(tools.freed, IsEmpty());
}

// remove_accels ----------------------------------------------------------------------------------------

TEST(SVqManipulatorsTrees, KeysOfTheWholeChainLeaveTheTable)
{
    const MenuTree tree({{1}, {2, {{3}}}, {4}});
    CVqAccelerators table;
    for (const vq_uint32 id : {1u, 2u, 3u, 3u, 4u, 5u})
        table.AddAccelKey(id, 18, VQ_TEXT('A'), 0);

    Tools().remove_accels(tree[2], &table);

    EXPECT_THAT(IdsIn(table), ElementsAre(1, 5));
}

TEST(SVqManipulatorsTrees, RemovingKeysOfNullIsIgnored)
{
    const MenuTree tree({{1}});
    CVqAccelerators table;
    table.AddAccelKey(1, 18, VQ_TEXT('A'), 0);

    Tools().remove_accels(nullptr, &table);
    Tools().remove_accels(tree[1], nullptr);

    EXPECT_THAT(IdsIn(table), ElementsAre(1));
}
