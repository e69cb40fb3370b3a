#include "AbstractGui/CVqMenuItem.h"

#include "tests/AbstractGui/MenuTree.h"
#include "tests/support/VirtualSlot.h"

#include <QString>

#include <gtest/gtest.h>

namespace {

CVqMenuItem MakeItem(vq_uint32 id)
{
    CVqMenuItem item;
    item.setId(id);
    return item;
}

std::string AsJson(const CVqMenuItem& item)
{
    CVqStringW out;
    item.getAsJSON(out);
    return out.ToQString().toStdString();
}

vq_wchar MnemonicBeside(vq_wchar sibling, const vq_wchar* text)
{
    CVqMenuItem first;
    first.setMnemonic(sibling);
    return _get_mnemonic(&first, CVqStringW(text));
}

}

TEST(CVqMenuItem, NewItemIsEnabledAndEmpty)
{
    const CVqMenuItem item;

    EXPECT_TRUE(item.text().IsEmpty());
    EXPECT_TRUE(item.command().IsEmpty());
    EXPECT_EQ(item.bmpSize(), (CVqSizeBase<int>{0, 0}));
    EXPECT_EQ(item.accelerators(), nullptr);
    EXPECT_EQ(item.parentItem(), nullptr);
    EXPECT_EQ(item.nextItem(), nullptr);
    EXPECT_EQ(item.subItem(), nullptr);
    EXPECT_EQ(item.drawCallback(), nullptr);
    EXPECT_EQ(item.measureCallback(), nullptr);
    EXPECT_EQ(item.userParam(), nullptr);
    EXPECT_EQ(item.menu(), 0u);
    EXPECT_EQ(item.id(), 0u);
    EXPECT_EQ(item.type(), 0u);
    EXPECT_EQ(item.status(), 1u);
    EXPECT_EQ(item.lineWidth(), 0u);
    EXPECT_EQ(item.col1(), 0u);
    EXPECT_EQ(item.col2(), 0u);
    EXPECT_EQ(item.enaBmpIndex(), -1);
    EXPECT_EQ(item.mnemonic(), 0);
    EXPECT_FALSE(item.removed());
    EXPECT_FALSE(item.deleted());
    EXPECT_FALSE(item.ignoreAdditionalZoom());
}

namespace {

int g_draw, g_measure, g_user;

void SetEveryField(CVqMenuItem& item, CVqAccelerators* table, CVqMenuItem* neighbours)
{
    item.setText(VQ_TEXT("&Open\aCtrl+O"));
    item.setCommand(VQ_TEXT("FileOpen"));
    item.setBmpSize({16, 24});
    item.setAccelerators(table);
    item.setParentItem(neighbours);
    item.setNextItem(neighbours + 1);
    item.setSubItem(neighbours + 2);
    item.setDrawCallback(&g_draw);
    item.setMeasureCallback(&g_measure);
    item.setUserParam(&g_user);
    item.setMenu(0xFEDCBA9876543210);
    item.setId(41);
    item.setType(5);
    item.setStatus(7);
    item.setLineWidth(3);
    item.setCol1(0xFF0000);
    item.setCol2(0x00FF00);
    item.setEnaBmpIndex(12);
    item.setMnemonic(VQ_TEXT('o'));
    item.setRemoved(true);
    item.setDeleted(true);
    item.setIgnoreAdditionalZoom(true);
}

void ExpectEveryField(const CVqMenuItem& item, CVqAccelerators* table, CVqMenuItem* neighbours)
{
    EXPECT_TRUE(item.text() == VQ_TEXT("&Open\aCtrl+O"));
    EXPECT_TRUE(item.command() == VQ_TEXT("FileOpen"));
    EXPECT_EQ(item.bmpSize(), (CVqSizeBase<int>{16, 24}));
    EXPECT_EQ(item.accelerators(), table);
    EXPECT_EQ(item.parentItem(), neighbours);
    EXPECT_EQ(item.nextItem(), neighbours + 1);
    EXPECT_EQ(item.subItem(), neighbours + 2);
    EXPECT_EQ(item.drawCallback(), &g_draw);
    EXPECT_EQ(item.measureCallback(), &g_measure);
    EXPECT_EQ(item.userParam(), &g_user);
    EXPECT_EQ(item.menu(), 0xFEDCBA9876543210u);
    EXPECT_EQ(item.id(), 41u);
    EXPECT_EQ(item.type(), 5u);
    EXPECT_EQ(item.status(), 7u);
    EXPECT_EQ(item.lineWidth(), 3u);
    EXPECT_EQ(item.col1(), 0xFF0000u);
    EXPECT_EQ(item.col2(), 0x00FF00u);
    EXPECT_EQ(item.enaBmpIndex(), 12);
    EXPECT_EQ(item.mnemonic(), VQ_TEXT('o'));
    EXPECT_TRUE(item.removed());
    EXPECT_TRUE(item.deleted());
    EXPECT_TRUE(item.ignoreAdditionalZoom());
}

}

TEST(CVqMenuItem, EachSetterIsReadBackByItsGetter)
{
    CVqAccelerators table;
    CVqMenuItem neighbours[3];
    CVqMenuItem item;

    SetEveryField(item, &table, neighbours);

    ExpectEveryField(item, &table, neighbours);
}

TEST(CVqMenuItem, CopyConstructorCopiesEveryFieldAndSharesNeighbours)
{
    CVqAccelerators table;
    CVqMenuItem neighbours[3];
    CVqMenuItem item;
    SetEveryField(item, &table, neighbours);

    const CVqMenuItem copy(item);

    ExpectEveryField(copy, &table, neighbours);
    EXPECT_NE(copy.text().GetString(), item.text().GetString());
}

TEST(CVqMenuItem, AssignmentCopiesEveryFieldAndSharesNeighbours)
{
    CVqAccelerators table;
    CVqMenuItem neighbours[3];
    CVqMenuItem item;
    SetEveryField(item, &table, neighbours);

    CVqMenuItem copy;
    copy = item;

    ExpectEveryField(copy, &table, neighbours);
}

TEST(CVqMenuItem, NullTextAndCommandReadAsEmpty)
{
    CVqMenuItem item;
    item.setText(VQ_TEXT("a"));
    item.setCommand(VQ_TEXT("b"));

    item.setText(nullptr);
    item.setCommand(nullptr);

    EXPECT_TRUE(item.text().IsEmpty());
    EXPECT_TRUE(item.command().IsEmpty());
}

// pos --------------------------------------------------------------------------------------------------

TEST(CVqMenuItem, PositionWithoutParentIsZero)
{
    const MenuTree tree({{1}, {2}});
    tree[2]->setParentItem(nullptr);

    EXPECT_EQ(tree[2]->pos(), 0);
}

TEST(CVqMenuItem, PositionOfTheFirstChildIsZero)
{
    const MenuTree tree({{1}, {2}});

    EXPECT_EQ(tree[1]->pos(), 0);
}

TEST(CVqMenuItem, PositionAfterOneRemovedAndOneDeletedSiblingIsZero)
{
    const MenuTree tree({{1}, {2}, {3}});
    tree[1]->setRemoved(true);
    tree[2]->setDeleted(true);

    EXPECT_EQ(tree[3]->pos(), 0);
}

TEST(CVqMenuItem, PositionAfterOneVisibleSiblingIsOne)
{
    const MenuTree tree({{1}, {2}});

    EXPECT_EQ(tree[2]->pos(), 1);
}

TEST(CVqMenuItem, PositionCountsItselfNeitherVisibleNorHidden)
{
    const MenuTree tree({{1}, {2}, {3}, {4}});
    tree[3]->setRemoved(true);

    EXPECT_EQ(tree[3]->pos(), 2);
    EXPECT_EQ(tree[4]->pos(), 2);
}

// safeId -----------------------------------------------------------------------------------------------

TEST(CVqMenuItem, SafeIdOfALoneItemIsAboveItsIdAndTheSeed)
{
    EXPECT_EQ(MakeItem(5).safeId(0), 6u);
    EXPECT_EQ(MakeItem(5).safeId(100), 100u);
}

TEST(CVqMenuItem, SafeIdOfTheHighestIdWrapsAndLosesToTheSeed)
{
    EXPECT_EQ(MakeItem(0xFFFFFFFF).safeId(7), 7u);
}

TEST(CVqMenuItem, SafeIdComparesAsUnsigned)
{
    EXPECT_EQ(MakeItem(0x80000000).safeId(1), 0x80000001u);
}

TEST(CVqMenuItem, SafeIdCoversSubtreesAndFollowingSiblingsOnly)
{
    const MenuTree tree({{90}, {1, {{20, {{30}}}}}, {2, {{40}}}});

    EXPECT_EQ(tree[1]->safeId(0), 41u);
    EXPECT_EQ(tree[20]->safeId(0), 31u);
    EXPECT_EQ(tree.Root()->safeId(0), 91u);
}

// Zoom -------------------------------------------------------------------------------------------------

TEST(CVqMenuItem, RecursiveZoomReachesSubtreeAndFollowingSiblings)
{
    const MenuTree tree({{1}, {2, {{3, {{4}}}}}, {5, {{6}}}});

    tree[2]->setIgnoreAdditionalZoomRecursive(true);

    EXPECT_FALSE(tree.Root()->ignoreAdditionalZoom());
    EXPECT_FALSE(tree[1]->ignoreAdditionalZoom());
    for (const vq_uint32 id : {2u, 3u, 4u, 5u, 6u}) {
        SCOPED_TRACE(id);
        EXPECT_TRUE(tree[id]->ignoreAdditionalZoom());
    }
}

TEST(CVqMenuItem, RecursiveZoomAlsoClears)
{
    const MenuTree tree({{1, {{2}}}, {3}});
    tree[1]->setIgnoreAdditionalZoomRecursive(true);

    tree[1]->setIgnoreAdditionalZoomRecursive(false);

    EXPECT_FALSE(tree[1]->ignoreAdditionalZoom());
    EXPECT_FALSE(tree[2]->ignoreAdditionalZoom());
    EXPECT_FALSE(tree[3]->ignoreAdditionalZoom());
}

// getAsJSON --------------------------------------------------------------------------------------------

TEST(CVqMenuItem, JsonLineOfANewItem)
{
    EXPECT_EQ(
        AsJson(CVqMenuItem()),
        "{m_strText:,m_strCommand:,m_hMenu:0,m_uiId:0,m_uiType:0,m_uiStatus:1,m_uiLineWidth:0,m_uiCol1:0,"
        "m_uiCol2:0,m_iEnaBmpIndex:-1,m_cMnemonic:0,m_bRemoved:0,m_bDeleted:0,}");
}

TEST(CVqMenuItem, JsonLineNeitherQuotesNorEscapesAndCutsTheHandle)
{
    CVqAccelerators table;
    CVqMenuItem neighbours[3];
    CVqMenuItem item;
    SetEveryField(item, &table, neighbours);
    item.setText(VQ_TEXT("a\"b,{\\"));
    item.setMenu(0x1234567880000001);
    item.setCol1(0xFFFFFFFF);

    EXPECT_EQ(
        AsJson(item),
        "{m_strText:a\"b,{\\,m_strCommand:FileOpen,m_hMenu:-2147483647,m_uiId:41,m_uiType:5,m_uiStatus:7,"
        "m_uiLineWidth:3,m_uiCol1:-1,m_uiCol2:65280,m_iEnaBmpIndex:12,m_cMnemonic:111,m_bRemoved:1,"
        "m_bDeleted:1,}");
}

TEST(CVqMenuItem, JsonLineIsAppended)
{
    CVqStringW out(VQ_TEXT("    "));

    CVqMenuItem().getAsJSON(out);

    EXPECT_TRUE(out.Left(15) == VQ_TEXT("    {m_strText:"));
}

// _get_mnemonic ----------------------------------------------------------------------------------------

TEST(GetMnemonic, EmptyTextGivesNone)
{
    const CVqMenuItem first;

    EXPECT_EQ(_get_mnemonic(&first, CVqStringW()), 0);
    EXPECT_EQ(_get_mnemonic(nullptr, CVqStringW()), 0);
}

TEST(GetMnemonic, WithoutSiblingsTheFirstMarkWins)
{
    EXPECT_EQ(_get_mnemonic(nullptr, CVqStringW(VQ_TEXT("&File &As"))), VQ_TEXT('F'));
}

TEST(GetMnemonic, TextWithoutMarksGivesNone)
{
    EXPECT_EQ(_get_mnemonic(nullptr, CVqStringW(VQ_TEXT("File"))), 0);
}

TEST(GetMnemonic, SiblingWithAnotherLetterLeavesTheMark)
{
    EXPECT_EQ(MnemonicBeside(VQ_TEXT('e'), VQ_TEXT("&File")), VQ_TEXT('F'));
}

TEST(GetMnemonic, SiblingWithTheOtherCaseIsPassedOverInTheSecondWalk)
{
    EXPECT_EQ(MnemonicBeside(VQ_TEXT('f'), VQ_TEXT("&File")), VQ_TEXT('F'));
}

TEST(GetMnemonic, CaseOfTheSiblingIsIgnoredToo)
{
    EXPECT_EQ(MnemonicBeside(VQ_TEXT('F'), VQ_TEXT("&fi&le")), VQ_TEXT('l'));
}

TEST(GetMnemonic, SiblingWithTheSameCaseLeavesNone)
{
    EXPECT_EQ(MnemonicBeside(VQ_TEXT('F'), VQ_TEXT("&File")), 0);
}

TEST(GetMnemonic, LaterMarkThatIsFreeInAnyCaseBeatsAnEarlierOneFreeInItsCase)
{
    EXPECT_EQ(MnemonicBeside(VQ_TEXT('f'), VQ_TEXT("&Fi&le")), VQ_TEXT('l'));
}

TEST(GetMnemonic, EverySiblingOfTheChainCounts)
{
    const MenuTree tree({{1}, {2}});
    tree[1]->setMnemonic(VQ_TEXT('A'));
    tree[2]->setMnemonic(VQ_TEXT('B'));

    EXPECT_EQ(_get_mnemonic(tree[1], CVqStringW(VQ_TEXT("&A&B&C"))), VQ_TEXT('C'));
    EXPECT_EQ(_get_mnemonic(tree[2], CVqStringW(VQ_TEXT("&A&B&C"))), VQ_TEXT('A'));
}

TEST(GetMnemonic, DoubledAmpersandMarksWhatFollows)
{
    EXPECT_EQ(_get_mnemonic(nullptr, CVqStringW(VQ_TEXT("&&x"))), VQ_TEXT('x'));
    EXPECT_EQ(_get_mnemonic(nullptr, CVqStringW(VQ_TEXT("R&&D &E"))), VQ_TEXT('D'));
}

TEST(GetMnemonic, WalkGoesOnBehindATakenCharacter)
{
    EXPECT_EQ(MnemonicBeside(VQ_TEXT('A'), VQ_TEXT("&A&B")), VQ_TEXT('B'));
}

TEST(GetMnemonic, AmpersandAtTheEndEndsTheWalk)
{
    EXPECT_EQ(_get_mnemonic(nullptr, CVqStringW(VQ_TEXT("File&"))), 0);
    EXPECT_EQ(_get_mnemonic(nullptr, CVqStringW(VQ_TEXT("&"))), 0);
    EXPECT_EQ(_get_mnemonic(nullptr, CVqStringW(VQ_TEXT("&&"))), 0);
    EXPECT_EQ(MnemonicBeside(0, VQ_TEXT("File&")), 0);
}

TEST(GetMnemonic, MarksBehindTheLabelCountToo)
{
    EXPECT_EQ(_get_mnemonic(nullptr, CVqStringW(VQ_TEXT("File\aCtrl+&X"))), VQ_TEXT('X'));
}

// Slots ------------------------------------------------------------------------------------------------

TEST(CVqMenuItem, OperationsKeepTheirSlots)
{
    using Item = CVqMenuItem;
    const std::size_t slots[] = {VirtualSlot(&Item::pos),
                                 VirtualSlot(&Item::safeId),
                                 VirtualSlot(&Item::getAsJSON),
                                 VirtualSlot(&Item::text),
                                 VirtualSlot(&Item::setText),
                                 VirtualSlot(&Item::command),
                                 VirtualSlot(&Item::setCommand),
                                 VirtualSlot(&Item::bmpSize),
                                 VirtualSlot(&Item::setBmpSize),
                                 VirtualSlot(&Item::accelerators),
                                 VirtualSlot(&Item::setAccelerators),
                                 VirtualSlot(&Item::parentItem),
                                 VirtualSlot(&Item::setParentItem),
                                 VirtualSlot(&Item::nextItem),
                                 VirtualSlot(&Item::setNextItem),
                                 VirtualSlot(&Item::subItem),
                                 VirtualSlot(&Item::setSubItem),
                                 VirtualSlot(&Item::drawCallback),
                                 VirtualSlot(&Item::setDrawCallback),
                                 VirtualSlot(&Item::measureCallback),
                                 VirtualSlot(&Item::setMeasureCallback),
                                 VirtualSlot(&Item::userParam),
                                 VirtualSlot(&Item::setUserParam),
                                 VirtualSlot(&Item::menu),
                                 VirtualSlot(&Item::setMenu),
                                 VirtualSlot(&Item::id),
                                 VirtualSlot(&Item::setId),
                                 VirtualSlot(&Item::type),
                                 VirtualSlot(&Item::setType),
                                 VirtualSlot(&Item::status),
                                 VirtualSlot(&Item::setStatus),
                                 VirtualSlot(&Item::lineWidth),
                                 VirtualSlot(&Item::setLineWidth),
                                 VirtualSlot(&Item::col1),
                                 VirtualSlot(&Item::setCol1),
                                 VirtualSlot(&Item::col2),
                                 VirtualSlot(&Item::setCol2),
                                 VirtualSlot(&Item::enaBmpIndex),
                                 VirtualSlot(&Item::setEnaBmpIndex),
                                 VirtualSlot(&Item::mnemonic),
                                 VirtualSlot(&Item::setMnemonic),
                                 VirtualSlot(&Item::removed),
                                 VirtualSlot(&Item::setRemoved),
                                 VirtualSlot(&Item::deleted),
                                 VirtualSlot(&Item::setDeleted),
                                 VirtualSlot(&Item::ignoreAdditionalZoom),
                                 VirtualSlot(&Item::setIgnoreAdditionalZoom),
                                 VirtualSlot(&Item::setIgnoreAdditionalZoomRecursive)};

    for (std::size_t i = 0; i < std::size(slots); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(slots[i], i + 2); // the destructor's two stand in front
    }
}
