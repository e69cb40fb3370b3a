#include "tests/AbstractGui/MenuTree.h"
#include "tests/support/CaptureMessages.h"
#include "tests/support/RecordingMenuBase.h"
#include "tests/support/SmallStack.h"

#include <QString>

#include <gtest/gtest.h>

namespace {

constexpr vq_uint32 siblings = 100'000;
constexpr vq_uint32 levels = 1'000;

class Counter final : public CVqAbstractMenu::IVqVisitorData
{
public:
    bool Visit(CVqMenuItem*) override
    {
        ++count;
        return true;
    }

    vq_uint32 count = 0;
};

CVqMenuItem* NewPopup(vq_uint32 id)
{
    CVqMenuItem* item = Tools().create_item_popup(id, 0, VQ_TEXT("&P"));
    item->setCommand(id % 2 == 0 ? VQ_TEXT("Even") : VQ_TEXT("Odd"));
    return item;
}

// A root with items 1, 2, 3, ... side by side, or each in the one before.
CVqMenuItem* WideTree()
{
    CVqMenuItem* root = Tools().create_item_mainroot(0);
    for (vq_uint32 id = 1; id <= siblings; ++id)
        Tools().append_item(root, NewPopup(id));
    return root;
}

CVqMenuItem* DeepTree()
{
    CVqMenuItem* root = Tools().create_item_mainroot(0);
    CVqMenuItem* parent = root;
    for (vq_uint32 id = 1; id <= levels; ++id) {
        CVqMenuItem* item = NewPopup(id);
        Tools().append_item(parent, item);
        parent = item;
    }
    return root;
}

struct Large
{
    const char* name;
    CVqMenuItem* (*make)();
    vq_uint32 count;
    int last_position;
};

class LargeMenuTrees : public testing::TestWithParam<Large>
{ };

}

INSTANTIATE_TEST_SUITE_P(Tree, LargeMenuTrees,
                         testing::Values(Large{"Wide", WideTree, siblings, siblings - 1},
                                         Large{"Deep", DeepTree, levels, 0}),
                         [](const auto& large) { return large.param.name; });

TEST_P(LargeMenuTrees, AreSearchedOnASmallStack)
{
    CVqMenuItem* root = GetParam().make();
    const vq_uint32 last = GetParam().count;

    run_in_small_stack([root, last] {
        CVqMenuItem* found = Tools().find_item(last, root);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->pos(), GetParam().last_position);
        EXPECT_EQ(Tools().find_item(last + 1, root), nullptr);
        EXPECT_EQ(Tools().find_item(CVqStringW(VQ_TEXT("Odd")), root), root->subItem());
        EXPECT_EQ(Tools().find_item(CVqStringW(VQ_TEXT("None")), root), nullptr);
    });

    Tools().free_all(root);
}

TEST_P(LargeMenuTrees, AreWalkedOnASmallStack)
{
    CVqMenuItem* root = GetParam().make();

    run_in_small_stack([root] {
        Counter counter;
        EXPECT_TRUE(Tools().visit_all(root, counter));
        EXPECT_EQ(counter.count, GetParam().count + 1);
        EXPECT_EQ(root->safeId(0), GetParam().count + 1);
        root->setIgnoreAdditionalZoomRecursive(true);
        Tools().check_seps(root->subItem(), true);
    });

    EXPECT_TRUE(Tools().find_item(GetParam().count, root)->ignoreAdditionalZoom());
    Tools().free_all(root);
}

TEST_P(LargeMenuTrees, ArePrintedOnASmallStack)
{
    CVqMenuItem* root = GetParam().make();
    qsizetype lines = 0;

    run_in_small_stack([root, &lines] {
        const CaptureMessages debug(QtDebugMsg);
        Tools().print_all(root, 0);
        lines = debug.Texts().size();
    });

    EXPECT_EQ(lines, qsizetype(GetParam().count) + 1);
    Tools().free_all(root);
}

TEST_P(LargeMenuTrees, AreCopiedAndFreedOnASmallStack)
{
    run_in_small_stack([] {
        CVqMenuItem* root = GetParam().make();
        CVqMenuItem* copy = Tools().create_item_mainroot(0);

        EXPECT_EQ(Tools().copy_items_tree(copy, root), 0);

        EXPECT_EQ(copy->safeId(0), GetParam().count + 1);
        Tools().free_all(root);
        Tools().free_all(copy);
    });
}

TEST_P(LargeMenuTrees, LoseAnItemOnASmallStack)
{
    CVqMenuItem* root = GetParam().make();
    const vq_uint32 last = GetParam().count;
    CVqAccelerators table;
    table.AddAccelKey(last, 18, VQ_TEXT('A'), 0);

    run_in_small_stack([root, last, &table] {
        Tools().remove_accels(root, &table);
        CVqMenuItem* removed = Tools().remove_item(last, root);
        ASSERT_NE(removed, nullptr);
        EXPECT_EQ(removed->id(), last);
        Tools().free_all(removed);
    });

    EXPECT_EQ(table.GetAccelsCount(), 0u);
    EXPECT_EQ(root->safeId(0), last);
    Tools().free_all(root);
}

TEST_P(LargeMenuTrees, AreMirroredOnASmallStack)
{
    CVqMenuItem* root = GetParam().make();
    RecordingMenuBase base;

    run_in_small_stack([root, &base] {
        EXPECT_EQ(Tools().create_all(&base, root->subItem()), 0);
        EXPECT_EQ(base.Calls()->size(), 2u * GetParam().count);
        Tools().destroy_all(&base, root->subItem());
    });

    EXPECT_EQ(base.Calls()->size(), 3u * GetParam().count);
    EXPECT_EQ(base.Calls()->back(), "DestroyItem 1");
    Tools().free_all(root);
}
