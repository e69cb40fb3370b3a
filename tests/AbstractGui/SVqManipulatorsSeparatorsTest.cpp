#include "tests/AbstractGui/MenuTree.h"

#include <gtest/gtest.h>

namespace {

// A chain by letters: i item, r removed item, d deleted item, - separator, _ removed separator, x deleted
// separator.
class SeparatorChain
{
public:
    explicit SeparatorChain(const std::string& letters)
    {
        CVqMenuItem* last = nullptr;
        for (const char letter : letters) {
            CVqMenuItem* item = m_tree.New(static_cast<vq_uint32>(letter));
            const bool is_separator = letter == '-' || letter == '_' || letter == 'x';
            item->setType(is_separator ? CVqAbstractMenu::SenseSeparator : CVqAbstractMenu::SenseItem);
            item->setRemoved(letter == 'r' || letter == '_');
            item->setDeleted(letter == 'd' || letter == 'x');
            if (last)
                last->setNextItem(item);
            else
                m_tree.Root()->setSubItem(item);
            last = item;
        }
    }

    CVqMenuItem* First() const { return m_tree.First(); }

    // R for a removed entry, . for another.
    std::string Removed() const
    {
        std::string removed;
        for (const CVqMenuItem* item = First(); item; item = item->nextItem())
            removed += item->removed() ? 'R' : '.';
        return removed;
    }

private:
    MenuTree m_tree{{}};
};

struct Row
{
    const char* name;
    const char* chain;
    const char* flat;
    const char* recursive;
};

const Row rows[] = {
    {"NoSeparator", "ii", "..", ".."},
    {"LeadingIsHidden", "-i", "R.", "R."},
    {"LeadingRunIsHidden", "--i", "RR.", "RR."},
    {"BetweenItemsIsShown", "i-i", "...", "..."},
    {"HiddenBetweenItemsIsShownAgain", "i_i", "...", "..."},
    {"SecondOfARunIsHidden", "i--i", "..R.", "..R."},
    {"AllFurtherOfARunAreHidden", "i---i", "..RR.", "..RR."},
    {"EachRunKeepsItsFirst", "i--i--i", "..R..R.", "..R..R."},
    {"TrailingIsHiddenOnlyInTheRecursiveMode", "i-", "..", ".R"},
    {"HiddenTrailingIsShownAgainInOneLevel", "i_", "..", ".R"},
    {"TrailingRun", "i--", "..R", ".RR"},
    {"HiddenItemsDoNotEndARun", "i-rd-i", "..R.R.", "..R.R."},
    {"LeadingBehindHiddenItems", "rd-i", "R.R.", "R.R."},
    {"OnlySeparators", "--", "RR", "RR"},
    {"LoneSeparator", "-", "R", "R"},
    {"LoneRemovedSeparatorStaysHidden", "_", "R", "R"},
    {"DeletedSeparatorCountsInARun", "ix-i", "..R.", "..R."},
    {"DeletedSeparatorInFrontIsRemovedToo", "xi", "R.", "R."},
    {"DeletedSeparatorIsNoTrailingOne", "ix", "..", ".."},
    {"DeletedSeparatorAtTheEndHidesTheLastVisibleOne", "i-ix", "....", ".R.."},
    {"RemovedItemAtTheEnd", "i-r", "..R", ".RR"},
    {"RestoredFirstAndHiddenSecond", "i_-i", "..R.", "..R."},
};

class Separators : public testing::TestWithParam<Row>
{ };

}

TEST_P(Separators, AreTidiedInOneLevel)
{
    const SeparatorChain chain(GetParam().chain);

    Tools().check_seps(chain.First(), false);

    EXPECT_EQ(chain.Removed(), GetParam().flat);
}

TEST_P(Separators, AreTidiedRecursively)
{
    const SeparatorChain chain(GetParam().chain);

    Tools().check_seps(chain.First(), true);

    EXPECT_EQ(chain.Removed(), GetParam().recursive);
}

TEST_P(Separators, StayTidyInASecondPass)
{
    const SeparatorChain chain(GetParam().chain);
    Tools().check_seps(chain.First(), false);

    Tools().check_seps(chain.First(), false);

    EXPECT_EQ(chain.Removed(), GetParam().flat);
}

INSTANTIATE_TEST_SUITE_P(Chain, Separators, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(SVqManipulatorsSeparators, NullIsIgnored)
{
    Tools().check_seps(nullptr, false);
    Tools().check_seps(nullptr, true);
}

TEST(SVqManipulatorsSeparators, SecondOfTwoIsRestoredOnceAnItemStandsBetween)
{
    MenuTree tree({{1}, {2}, {3}, {4}});
    tree[2]->setType(CVqAbstractMenu::SenseSeparator);
    tree[3]->setType(CVqAbstractMenu::SenseSeparator);
    Tools().check_seps(tree.First(), false);
    EXPECT_TRUE(tree[3]->removed());

    Tools().insert_item_after(2, tree.Root(), tree.New(5));
    Tools().check_seps(tree.First(), false);

    EXPECT_FALSE(tree[3]->removed());
}

TEST(SVqManipulatorsSeparators, TrailingOneStaysVisibleAfterAppends)
{
    MenuTree tree({});
    Tools().append_item(tree.Root(), tree.New(1));
    CVqMenuItem* separator = tree.New(2);
    separator->setType(CVqAbstractMenu::SenseSeparator);

    Tools().append_item(tree.Root(), separator);

    EXPECT_FALSE(separator->removed());
}

TEST(SVqManipulatorsSeparators, LevelsBelowAreTidiedOnlyRecursively)
{
    const MenuTree tree({{1, {{2}, {3, {{4}, {5}}}}}, {6}});
    tree[2]->setType(CVqAbstractMenu::SenseSeparator);
    tree[5]->setType(CVqAbstractMenu::SenseSeparator);

    Tools().check_seps(tree.First(), false);
    EXPECT_FALSE(tree[2]->removed());
    EXPECT_FALSE(tree[5]->removed());

    Tools().check_seps(tree.First(), true);
    EXPECT_TRUE(tree[2]->removed());
    EXPECT_TRUE(tree[5]->removed());
}

TEST(SVqManipulatorsSeparators, HiddenPopupsAreEnteredLikeOthers)
{
    const MenuTree tree({{1, {{2}, {3}}}, {4, {{5}, {6}}}});
    tree[1]->setRemoved(true);
    tree[4]->setDeleted(true);
    tree[2]->setType(CVqAbstractMenu::SenseSeparator);
    tree[5]->setType(CVqAbstractMenu::SenseSeparator);

    Tools().check_seps(tree.First(), true);

    EXPECT_TRUE(tree[2]->removed());
    EXPECT_TRUE(tree[5]->removed());
}

TEST(SVqManipulatorsSeparators, ChildrenOfASeparatorAreNotEntered)
{
    const MenuTree tree({{1}, {2, {{3}}}, {4}});
    tree[2]->setType(CVqAbstractMenu::SenseSeparator);
    tree[3]->setType(CVqAbstractMenu::SenseSeparator);

    Tools().check_seps(tree.First(), true);

    EXPECT_FALSE(tree[3]->removed());
}
