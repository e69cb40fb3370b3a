#include "tests/AbstractGui/MenuTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using ByText = CVqAbstractMenu::SVqFindData;
using ByCommand = CVqAbstractMenu::SVqFindDataByCommand;

// Runs a search over a tree and gives the identifiers found.
template <typename Data>
std::vector<vq_uint32> Search(const MenuTree& tree, const vq_wchar* text, vq_uint32 type, vq_uint32 status,
                              vq_uint32 capacity = 100)
{
    std::vector<vq_uint32> ids(100);
    Data data(CVqStringW(text), CVqStringW(text), type, status, ids.data(), capacity);
    EXPECT_TRUE(Tools().visit_all(tree.First(), data));
    ids.resize(data.m_uiCount);
    return ids;
}

constexpr vq_uint32 any_status = 0xFF00;

}

TEST(SVqFindData, ConstructorFillsTheFieldsInOrder)
{
    vq_uint32 ids[3] = {};

    const ByText data(CVqStringW(VQ_TEXT("t")), CVqStringW(VQ_TEXT("c")), 2, 0x1205, ids, 3);

    EXPECT_TRUE(data.m_strText == VQ_TEXT("t"));
    EXPECT_TRUE(data.m_strCommand == VQ_TEXT("c"));
    EXPECT_EQ(data.m_uiType, 2u);
    EXPECT_EQ(data.m_uiStatus, 0x1205u);
    EXPECT_EQ(data.m_uiStatusMask, 0xEDu);
    EXPECT_EQ(data.m_puiIds, ids);
    EXPECT_EQ(data.m_uiCapacity, 3u);
    EXPECT_EQ(data.m_uiCount, 0u);
}

TEST(SVqFindData, MaskIsTheLowByteOfTheInvertedHighByte)
{
    const auto mask = [](vq_uint32 status) {
        return ByCommand(CVqStringW(), CVqStringW(), 9, status, nullptr, 0).m_uiStatusMask;
    };

    EXPECT_EQ(mask(0), 0xFFu);
    EXPECT_EQ(mask(0xFF00), 0u);
    EXPECT_EQ(mask(0xABCD0100), 0xFEu);
}

TEST(SVqFindData, ChildrenAreCollectedBeforeTheirParent)
{
    const MenuTree tree({{1, {{2}, {3}}}, {4}});

    EXPECT_THAT(Search<ByText>(tree, nullptr, 9, any_status), ElementsAre(2, 3, 1, 4));
}

TEST(SVqFindData, TextIsComparedWithTheWholeMenuString)
{
    const MenuTree tree({{1}, {2}, {3}});
    tree[1]->setText(VQ_TEXT("&Open\aCtrl+O"));
    tree[2]->setText(VQ_TEXT("&Open"));
    tree[3]->setText(VQ_TEXT("&OPEN"));

    EXPECT_THAT(Search<ByText>(tree, VQ_TEXT("&Open"), 9, any_status), ElementsAre(2));
}

TEST(SVqFindData, TextSearchIgnoresCommands)
{
    const MenuTree tree({{1}, {2}});
    tree[1]->setCommand(VQ_TEXT("Open"));
    tree[2]->setText(VQ_TEXT("Open"));

    EXPECT_THAT(Search<ByText>(tree, VQ_TEXT("Open"), 9, any_status), ElementsAre(2));
    EXPECT_THAT(Search<ByCommand>(tree, VQ_TEXT("Open"), 9, any_status), ElementsAre(1));
}

TEST(SVqFindData, TypeIsExactOrAny)
{
    const MenuTree tree({{1, {{2}}}, {3}});
    tree[3]->setType(CVqAbstractMenu::SenseSeparator);

    EXPECT_THAT(Search<ByText>(tree, nullptr, CVqAbstractMenu::SensePopup, any_status), ElementsAre(1));
    EXPECT_THAT(Search<ByText>(tree, nullptr, CVqAbstractMenu::SenseSeparator, any_status), ElementsAre(3));
    EXPECT_THAT(Search<ByCommand>(tree, nullptr, CVqAbstractMenu::SenseAccel, any_status), IsEmpty());
}

TEST(SVqFindData, StatusComparesTheBitsThatMatter)
{
    const MenuTree tree({{1}, {2}, {3}});
    tree[1]->setStatus(1);
    tree[2]->setStatus(3);
    tree[3]->setStatus(0x101);

    EXPECT_THAT(Search<ByText>(tree, nullptr, 9, 0x0001), ElementsAre(1, 3));
    EXPECT_THAT(Search<ByText>(tree, nullptr, 9, 0x0201), ElementsAre(1, 2, 3));
    EXPECT_THAT(Search<ByCommand>(tree, nullptr, 9, 0xFD02), ElementsAre(2));
}

TEST(SVqFindData, FullArrayCollectsNothingMoreAndTheWalkGoesOn)
{
    const MenuTree tree({{1}, {2}, {3}});

    EXPECT_THAT(Search<ByText>(tree, nullptr, 9, any_status, 2), ElementsAre(1, 2));
    EXPECT_THAT(Search<ByCommand>(tree, nullptr, 9, any_status, 0), IsEmpty());
}

TEST(SVqFindData, NullArrayHasNoRoom)
{
    const MenuTree tree({{1}});
    ByText by_text(CVqStringW(), CVqStringW(), 9, any_status, nullptr, 5);
    ByCommand by_command(CVqStringW(), CVqStringW(), 9, any_status, nullptr, 5);

    EXPECT_TRUE(by_text.Visit(tree[1]));
    EXPECT_TRUE(by_command.Visit(tree[1]));

    EXPECT_EQ(by_text.m_uiCount, 0u);
    EXPECT_EQ(by_command.m_uiCount, 0u);
}
