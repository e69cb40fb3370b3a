#include "tests/AbstractGui/MenuTree.h"

#include <gtest/gtest.h>

#include <random>

namespace {

CVqMenuItem* ByCommand(const vq_wchar* command, CVqMenuItem* root)
{
    return Tools().find_item(CVqStringW(command), root);
}

// Counts how often it is asked for its identifier.
class CountingItem final : public CVqMenuItem
{
public:
    vq_uint32 id() const override
    {
        ++asked;
        return CVqMenuItem::id();
    }

    mutable int asked = 0;
};

}

TEST(SVqMenuSearchCache, RepeatedSearchWalksNothing)
{
    CountingItem first;
    CVqMenuItem second;
    first.setId(1);
    second.setId(2);
    first.setNextItem(&second);
    Tools().find_item(2, &first);
    first.asked = 0;

    EXPECT_EQ(Tools().find_item(2, &first), &second);

    EXPECT_EQ(first.asked, 0);
}

TEST(SVqMenuSearchCache, ChangedIdMissesTheCacheAndWalks)
{
    const MenuTree tree({{1}, {2}, {3}});
    Tools().find_item(2, tree.Root());

    tree[2]->setId(20);

    EXPECT_EQ(Tools().find_item(2, tree.Root()), nullptr);
    EXPECT_EQ(Tools().find_item(20, tree.Root()), tree[2]);
}

TEST(SVqMenuSearchCache, CachedItemWinsOverAnEarlierOneWithItsNewId)
{
    const MenuTree tree({{1}, {2}});
    Tools().find_item(2, tree.Root());

    tree[2]->setId(1);

    EXPECT_EQ(Tools().find_item(1, tree.Root()), tree[2]);
    EXPECT_EQ(Tools().find_item(1, tree.First()), tree[1]);
}

TEST(SVqMenuSearchCache, BothSearchesShareTheCache)
{
    const MenuTree tree({{1}, {2}, {3}});
    tree[2]->setCommand(VQ_TEXT("Open"));
    tree[3]->setCommand(VQ_TEXT("Open"));

    Tools().find_item(3, tree.Root());
    EXPECT_EQ(ByCommand(VQ_TEXT("Open"), tree.Root()), tree[3]);

    ByCommand(VQ_TEXT("Open"), tree.First());
    tree[2]->setId(1);
    EXPECT_EQ(Tools().find_item(1, tree.First()), tree[2]);
}

TEST(SVqMenuSearchCache, CacheOfAnInnerRootWinsOverTheWalk)
{
    const MenuTree tree({{1, {{2}, {3}}}, {4}});
    Tools().find_item(3, tree[2]);

    tree[3]->setId(2);

    EXPECT_EQ(Tools().find_item(2, tree.Root()), tree[3]);
}

TEST(SVqMenuSearchCache, CacheOfALaterSiblingWinsOverTheWalk)
{
    const MenuTree tree({{1}, {2}, {3}});
    Tools().find_item(3, tree[2]);

    tree[3]->setId(2);

    EXPECT_EQ(Tools().find_item(2, tree.First()), tree[3]);
}

TEST(SVqMenuSearchCache, MissKeepsWhatWasFound)
{
    const MenuTree tree({{1}, {2}});
    Tools().find_item(2, tree.Root());

    Tools().find_item(99, tree.Root());
    tree[2]->setId(1);

    EXPECT_EQ(Tools().find_item(1, tree.Root()), tree[2]);
}

TEST(SVqMenuSearchCache, FreeingAnyItemClears)
{
    const MenuTree tree({{1}, {2}});
    Tools().find_item(2, tree.Root());
    tree[2]->setId(1);

    Tools().freeMenuItem(Tools().allocMenuItem());

    EXPECT_EQ(Tools().find_item(1, tree.Root()), tree[1]);
}

TEST(SVqMenuSearchCache, RemovingFromATreeWithOtherItemsClears)
{
    const MenuTree tree({{1}, {2}});
    Tools().find_item(2, tree.Root());
    tree[2]->setId(1);

    Tools().remove_item(99, tree.Root());

    EXPECT_EQ(Tools().find_item(1, tree.Root()), tree[1]);
}

TEST(SVqMenuSearchCache, RemovingALoneItemKeepsTheCache)
{
    const MenuTree tree({{5}});
    CVqMenuItem* lone = tree[5];
    Tools().find_item(5, lone);

    EXPECT_EQ(Tools().remove_item(5, lone), lone);

    EXPECT_EQ(Tools().find_item(5, lone), lone);
}

TEST(SVqMenuSearchCache, ItemDeletedDirectlyIsNeverLookedAt)
{
    auto item = std::make_unique<CVqMenuItem>();
    CVqMenuItem root;
    root.setNextItem(item.get());
    item->setId(5);
    Tools().find_item(5, &root);

    root.setNextItem(nullptr);
    item.reset();

    EXPECT_EQ(Tools().find_item(5, &root), nullptr);
}

TEST(SVqMenuSearchCache, RootDeletedDirectlyLeavesNoAnswerForAnotherAtItsPlace)
{
    CVqMenuItem found;
    found.setId(5);
    alignas(CVqMenuItem) std::byte place[sizeof(CVqMenuItem)];
    auto* root = new (place) CVqMenuItem;
    root->setNextItem(&found);
    Tools().find_item(5, root);

    root->~CVqMenuItem();
    root = new (place) CVqMenuItem;

    EXPECT_EQ(Tools().find_item(5, root), nullptr);
    root->~CVqMenuItem();
}

// The rules as they are told, one call an item.
namespace {

class RecursiveSearch
{
public:
    CVqMenuItem* ById(vq_uint32 id, CVqMenuItem* root)
    {
        if (m_root == root && m_item && m_item->id() == id)
            return m_item;
        if (!root)
            return nullptr;
        if (root->id() == id)
            return Keep(root, root);
        if (CVqMenuItem* found = ById(id, root->subItem()))
            return Keep(root, found);
        CVqMenuItem* found = ById(id, root->nextItem());
        return found ? Keep(root, found) : nullptr;
    }

    CVqMenuItem* ByCommand(const CVqStringW& command, CVqMenuItem* root)
    {
        if (m_root == root && m_item && m_item->command() == command)
            return m_item;
        if (!root)
            return nullptr;
        if (root->command() == command)
            return Keep(root, root);
        if (CVqMenuItem* found = ByCommand(command, root->nextItem()))
            return Keep(root, found);
        CVqMenuItem* found = ByCommand(command, root->subItem());
        return found ? Keep(root, found) : nullptr;
    }

private:
    CVqMenuItem* Keep(CVqMenuItem* root, CVqMenuItem* found)
    {
        m_root = root;
        m_item = found;
        return found;
    }

    CVqMenuItem* m_root = nullptr;
    CVqMenuItem* m_item = nullptr;
};

std::vector<CVqMenuItem*> RandomTree(std::mt19937& random, MenuTree& tree, int count)
{
    std::vector<CVqMenuItem*> items{tree.Root()};
    for (int i = 0; i < count; ++i) {
        CVqMenuItem* item = tree.New(random() % 12);
        item->setCommand(VQ_TEXT("ABCDEFGH") + random() % 8);
        Tools().append_item(items[random() % items.size()], item);
        items.push_back(item);
    }
    return items;
}

}

class RandomSearches : public testing::TestWithParam<unsigned>
{ };

TEST_P(RandomSearches, AnswerAsTheRecursiveRulesDo)
{
    std::mt19937 random(GetParam());
    MenuTree tree({});
    const std::vector<CVqMenuItem*> items = RandomTree(random, tree, 30);
    Tools().freeMenuItem(Tools().allocMenuItem());
    RecursiveSearch rules;

    for (int i = 0; i < 500; ++i) {
        CVqMenuItem* root = items[random() % items.size()];
        const vq_uint32 id = random() % 12;
        const CVqStringW command(VQ_TEXT("ABCDEFGH") + random() % 8);
        if (random() % 3 == 0)
            items[random() % items.size()]->setId(id);
        if (random() % 2 == 0)
            ASSERT_EQ(Tools().find_item(id, root), rules.ById(id, root));
        else
            ASSERT_EQ(Tools().find_item(command, root), rules.ByCommand(command, root));
    }
}

INSTANTIATE_TEST_SUITE_P(Seed, RandomSearches, testing::Range(1u, 21u),
                         [](const auto& seed) { return "Seed" + std::to_string(seed.param); });
