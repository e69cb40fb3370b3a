#include "tests/AbstractGui/MenuTree.h"
#include "tests/support/CaptureMessages.h"

#include <QString>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

// Notes the items that it sees and ends the walk at one of them.
class Visitor final : public CVqAbstractMenu::IVqVisitorData
{
public:
    explicit Visitor(vq_uint32 end_at = 0) : m_end_at(end_at) { }

    bool Visit(CVqMenuItem* item) override
    {
        seen.push_back(item->id());
        return item->id() != m_end_at;
    }

    std::vector<vq_uint32> seen;

private:
    vq_uint32 m_end_at;
};

// Nothing is cached once an item was freed.
void ForgetTheLastSearch()
{
    Tools().freeMenuItem(Tools().allocMenuItem());
}

CVqMenuItem* ByCommand(const vq_wchar* command, CVqMenuItem* root)
{
    return Tools().find_item(CVqStringW(command), root);
}

}

// By identifier ----------------------------------------------------------------------------------------

TEST(SVqManipulatorsSearch, IdZeroFindsTheMainRoot)
{
    const MenuTree tree({{1}});

    EXPECT_EQ(Tools().find_item(0, tree.Root()), tree.Root());
}

TEST(SVqManipulatorsSearch, NullRootFindsNothing)
{
    EXPECT_EQ(Tools().find_item(0, nullptr), nullptr);
    EXPECT_EQ(ByCommand(VQ_TEXT("a"), nullptr), nullptr);
}

TEST(SVqManipulatorsSearch, EveryItemOfTheTreeIsFoundById)
{
    const MenuTree tree({{1, {{2, {{3}}}, {4}}}, {5}});

    for (const vq_uint32 id : {0u, 1u, 2u, 3u, 4u, 5u}) {
        SCOPED_TRACE(id);
        EXPECT_EQ(Tools().find_item(id, tree.Root()), tree[id]);
    }
    EXPECT_EQ(Tools().find_item(6, tree.Root()), nullptr);
}

TEST(SVqManipulatorsSearch, SearchCoversTheSubtreeAndTheFollowingSiblingsOfTheStart)
{
    const MenuTree tree({{1}, {2, {{3}}}, {4, {{5}}}});

    EXPECT_EQ(Tools().find_item(1, tree[2]), nullptr);
    EXPECT_EQ(Tools().find_item(3, tree[2]), tree[3]);
    EXPECT_EQ(Tools().find_item(5, tree[2]), tree[5]);
}

TEST(SVqManipulatorsSearch, AmongEqualIdsAChildComesBeforeAFollowingSibling)
{
    const MenuTree tree({{1, {{7}}}, {7}});
    ForgetTheLastSearch();

    EXPECT_EQ(Tools().find_item(7, tree.Root()), tree[1]->subItem());
}

// By command -------------------------------------------------------------------------------------------

TEST(SVqManipulatorsSearch, EveryItemOfTheTreeIsFoundByCommand)
{
    const MenuTree tree({{1, {{2}, {3}}}, {4, {{5}}}});
    const vq_wchar* commands[] = {VQ_TEXT("a"), VQ_TEXT("b"), VQ_TEXT("c"), VQ_TEXT("d"), VQ_TEXT("e")};
    for (vq_uint32 id = 1; id <= 5; ++id)
        tree[id]->setCommand(commands[id - 1]);

    for (vq_uint32 id = 1; id <= 5; ++id) {
        SCOPED_TRACE(id);
        EXPECT_EQ(ByCommand(commands[id - 1], tree.Root()), tree[id]);
    }
    EXPECT_EQ(ByCommand(VQ_TEXT("A"), tree.Root()), nullptr);
}

TEST(SVqManipulatorsSearch, AmongEqualCommandsASiblingComesBeforeAnEarlierChild)
{
    const MenuTree tree({{1, {{2}}}, {3}});
    tree[2]->setCommand(VQ_TEXT("Open"));
    tree[3]->setCommand(VQ_TEXT("Open"));
    ForgetTheLastSearch();

    EXPECT_EQ(ByCommand(VQ_TEXT("Open"), tree.First()), tree[3]);
}

TEST(SVqManipulatorsSearch, AmongEqualCommandsTheSubtreeOfTheLastSiblingComesFirst)
{
    const MenuTree tree({{1, {{2}}}, {3, {{4}}}, {5}});
    tree[2]->setCommand(VQ_TEXT("Open"));
    tree[4]->setCommand(VQ_TEXT("Open"));
    ForgetTheLastSearch();

    EXPECT_EQ(ByCommand(VQ_TEXT("Open"), tree.First()), tree[4]);
}

TEST(SVqManipulatorsSearch, EmptyCommandFindsAnItemWithoutOne)
{
    const MenuTree tree({{1}, {2}});
    tree[1]->setCommand(VQ_TEXT("Open"));
    ForgetTheLastSearch();

    EXPECT_EQ(ByCommand(VQ_TEXT(""), tree.First()), tree[2]);
}

// visit_all, visit_one ---------------------------------------------------------------------------------

TEST(SVqManipulatorsSearch, VisitingShowsChildrenBeforeTheirParent)
{
    const MenuTree tree({{1, {{2, {{3}}}, {4}}}, {5}});
    Visitor visitor;

    EXPECT_TRUE(Tools().visit_all(tree.First(), visitor));

    EXPECT_THAT(visitor.seen, ElementsAre(3, 2, 4, 1, 5));
}

TEST(SVqManipulatorsSearch, VisitingStopsWhereTheVisitorSaysSo)
{
    const MenuTree tree({{1, {{2}, {3}}}, {4}});
    Visitor at_child(2);
    Visitor at_parent(1);

    EXPECT_FALSE(Tools().visit_all(tree.First(), at_child));
    EXPECT_FALSE(Tools().visit_all(tree.First(), at_parent));

    EXPECT_THAT(at_child.seen, ElementsAre(2));
    EXPECT_THAT(at_parent.seen, ElementsAre(2, 3, 1));
}

TEST(SVqManipulatorsSearch, VisitingOneLevelDoesNotDescend)
{
    const MenuTree tree({{1, {{2}}}, {3}, {4}});
    Visitor visitor(3);

    EXPECT_FALSE(Tools().visit_one(tree.First(), visitor));

    EXPECT_THAT(visitor.seen, ElementsAre(1, 3));
}

TEST(SVqManipulatorsSearch, VisitingNothingGivesTrue)
{
    Visitor visitor;

    EXPECT_TRUE(Tools().visit_all(nullptr, visitor));
    EXPECT_TRUE(Tools().visit_one(nullptr, visitor));
}

// print_all --------------------------------------------------------------------------------------------

namespace {

// What the debug stream makes of an empty text and a line.
QString Printed(int level, vq_uint32 id, int type)
{
    return u" \"%1{m_strText:,m_strCommand:,m_hMenu:0,m_uiId:%2,m_uiType:%3,m_uiStatus:1,m_uiLineWidth:0,"
           "m_uiCol1:0,m_uiCol2:0,m_iEnaBmpIndex:-1,m_cMnemonic:0,m_bRemoved:0,m_bDeleted:0,}\""_s
               .arg(QString(4 * level, u' '))
               .arg(id)
               .arg(type);
}

}

TEST(SVqManipulatorsSearch, PrintingFromDepthZeroLeavesTheSiblingsOfTheStart)
{
    const MenuTree tree({{1, {{2, {{3}}}, {4}}}, {5}});
    const CaptureMessages debug(QtDebugMsg);

    Tools().print_all(tree[1], 0);

    const QStringList lines{Printed(0, 1, 7), Printed(1, 2, 7), Printed(2, 3, 2), Printed(1, 4, 2)};
    EXPECT_EQ(debug.Texts(), lines);
}

TEST(SVqManipulatorsSearch, PrintingFromAnotherDepthTakesTheSiblingsAndIndents)
{
    const MenuTree tree({{1, {{2}}}, {3}});
    const CaptureMessages debug(QtDebugMsg);

    Tools().print_all(tree[1], 2);

    const QStringList lines{Printed(2, 1, 7), Printed(3, 2, 2), Printed(2, 3, 2)};
    EXPECT_EQ(debug.Texts(), lines);
}

TEST(SVqManipulatorsSearch, PrintingNullIsIgnored)
{
    const CaptureMessages debug(QtDebugMsg);

    Tools().print_all(nullptr, 0);

    EXPECT_TRUE(debug.Texts().isEmpty());
}
