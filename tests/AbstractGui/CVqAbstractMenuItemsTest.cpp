#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/support/TestMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr vq_uint32 unknown = 999;

/// Popup 1 with commands 2 and 3; lonely accelerator 9. Identifier 5 is a command and a lonely accelerator.
class CVqAbstractMenuItems : public testing::Test
{
protected:
    CVqAbstractMenuItems()
    {
        m_menu.AppendPopup(1, 0, VQ_TEXT("&File"));
        m_menu.AppendMenuItem(2, 1, VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT("open"), 0);
        m_menu.AppendMenuItem(3, 1, VQ_TEXT("&Save"), VQ_TEXT("save"), 0);
        m_menu.AppendMenuItem(5, 1, VQ_TEXT("&Both"), VQ_TEXT("of the tree"), 0);
        m_menu.AppendLonelyAccel(9, 18, 0x4C, VQ_TEXT("lonely"));
        m_menu.AppendLonelyAccel(5, 18, 0x42, VQ_TEXT("of the lonely"));
        m_menu.TakeCalls();
    }

    TestMenu m_menu;
};

}

// Sense, parents, texts -----------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuItems, SenseIsTheType)
{
    auto sense = CVqAbstractMenu::SenseAny;

    EXPECT_EQ(m_menu.GetIdSense(1, sense), 0);
    EXPECT_EQ(sense, CVqAbstractMenu::SensePopup);
    EXPECT_EQ(m_menu.GetIdSense(2, sense), 0);
    EXPECT_EQ(sense, CVqAbstractMenu::SenseItem);
    EXPECT_EQ(m_menu.GetIdSense(9, sense), 0);
    EXPECT_EQ(sense, CVqAbstractMenu::SenseAccel);
    EXPECT_EQ(m_menu.GetIdSense(0, sense), 0);
    EXPECT_EQ(sense, CVqAbstractMenu::SenseMainRoot);
}

TEST_F(CVqAbstractMenuItems, SenseAsksTheLonelyAccelsFirst)
{
    auto sense = CVqAbstractMenu::SenseAny;

    m_menu.GetIdSense(5, sense);

    EXPECT_EQ(sense, CVqAbstractMenu::SenseAccel);
}

TEST_F(CVqAbstractMenuItems, SenseOfAnUnknownIdIsRefused)
{
    auto sense = CVqAbstractMenu::SenseAny;

    EXPECT_EQ(m_menu.GetIdSense(unknown, sense), -13);

    EXPECT_EQ(sense, CVqAbstractMenu::SenseAny);
}

TEST_F(CVqAbstractMenuItems, ParentPopupIsTheParentsId)
{
    vq_uint32 parent = 77;

    EXPECT_EQ(m_menu.GetIdParentPopup(3, parent), 0);
    EXPECT_EQ(parent, 1u);
    EXPECT_EQ(m_menu.GetIdParentPopup(1, parent), 0);
    EXPECT_EQ(parent, 0u);
}

TEST_F(CVqAbstractMenuItems, ParentPopupOfTheRootIsRefusedAsBadArgument)
{
    vq_uint32 parent = 77;

    EXPECT_EQ(m_menu.GetIdParentPopup(0, parent), -4);

    EXPECT_EQ(parent, 77u);
}

TEST_F(CVqAbstractMenuItems, ParentPopupOfAnUnknownIdIsNotFound)
{
    vq_uint32 parent = 77;

    EXPECT_EQ(m_menu.GetIdParentPopup(unknown, parent), -13);
    EXPECT_EQ(m_menu.GetIdParentPopup(9, parent), -13);
}

TEST_F(CVqAbstractMenuItems, ParentMenuStringIsTheParentsText)
{
    CVqStringW text;

    EXPECT_EQ(m_menu.GetIdParentMenuString(2, text), 0);

    EXPECT_EQ(TestMenu::Plain(text), "&File");
}

TEST_F(CVqAbstractMenuItems, ParentMenuStringWithoutParentOrItemIsNotFound)
{
    CVqStringW text(VQ_TEXT("kept"));

    EXPECT_EQ(m_menu.GetIdParentMenuString(0, text), -13);
    EXPECT_EQ(m_menu.GetIdParentMenuString(unknown, text), -13);

    EXPECT_EQ(TestMenu::Plain(text), "kept");
}

TEST_F(CVqAbstractMenuItems, MenuStringIsTheWholeText)
{
    CVqStringW text;

    EXPECT_EQ(m_menu.GetIdMenuString(2, text), 0);

    EXPECT_EQ(TestMenu::Plain(text), "&Open|Ctrl+O");
}

TEST_F(CVqAbstractMenuItems, MenuStringOfALonelyAccelIsNotFound)
{
    CVqStringW text;

    EXPECT_EQ(m_menu.GetIdMenuString(9, text), -13);
}

// Commands ------------------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuItems, CommandAsksTheLonelyAccelsFirst)
{
    CVqStringW command;

    EXPECT_EQ(m_menu.GetIdCommand(5, command), 0);
    EXPECT_EQ(TestMenu::Plain(command), "of the lonely");
    EXPECT_EQ(m_menu.GetIdCommand(2, command), 0);
    EXPECT_EQ(TestMenu::Plain(command), "open");
    EXPECT_EQ(m_menu.GetIdCommand(unknown, command), -13);
}

TEST_F(CVqAbstractMenuItems, CommandFromRootAsksTheTreeFirst)
{
    CVqStringW command;

    EXPECT_EQ(m_menu.GetIdCommandFromRoot(5, command), 0);
    EXPECT_EQ(TestMenu::Plain(command), "of the tree");
    EXPECT_EQ(m_menu.GetIdCommandFromRoot(9, command), 0);
    EXPECT_EQ(TestMenu::Plain(command), "lonely");
    EXPECT_EQ(m_menu.GetIdCommandFromRoot(unknown, command), -13);
}

TEST_F(CVqAbstractMenuItems, SetCommandAsksTheLonelyAccelsFirst)
{
    EXPECT_EQ(m_menu.SetIdCommand(5, VQ_TEXT("new")), 0);

    EXPECT_EQ(TestMenu::Plain(m_menu.Item(5)->command()), "of the tree");
    CVqStringW command;
    m_menu.GetIdCommand(5, command);
    EXPECT_EQ(TestMenu::Plain(command), "new");
}

TEST_F(CVqAbstractMenuItems, SetCommandReachesTheTree)
{
    EXPECT_EQ(m_menu.SetIdCommand(2, VQ_TEXT("new")), 0);
    EXPECT_EQ(TestMenu::Plain(m_menu.Item(2)->command()), "new");

    EXPECT_EQ(m_menu.SetIdCommand(2, nullptr), 0);
    EXPECT_TRUE(m_menu.Item(2)->command().IsEmpty());
}

TEST_F(CVqAbstractMenuItems, SetCommandOfAnUnknownIdIsRefused)
{
    EXPECT_EQ(m_menu.SetIdCommand(unknown, VQ_TEXT("new")), -13);
}

// User parameter and callbacks ----------------------------------------------------------------------------

TEST_F(CVqAbstractMenuItems, UserParamAsksTheLonelyAccelsFirst)
{
    int value = 0;
    void* param = nullptr;

    EXPECT_EQ(m_menu.SetUserParam(5, &value), 0);

    EXPECT_EQ(m_menu.Item(5)->userParam(), nullptr);
    EXPECT_EQ(m_menu.GetUserParam(5, &param), 0);
    EXPECT_EQ(param, &value);
}

TEST_F(CVqAbstractMenuItems, UserParamReachesTheTree)
{
    int value = 0;
    void* param = nullptr;

    EXPECT_EQ(m_menu.SetUserParam(2, &value), 0);

    EXPECT_EQ(m_menu.GetUserParam(2, &param), 0);
    EXPECT_EQ(param, &value);
    EXPECT_EQ(m_menu.Item(2)->userParam(), &value);
}

TEST_F(CVqAbstractMenuItems, UserParamIntoANullPointerStoresNothingAndGivesZero)
{
    EXPECT_EQ(m_menu.GetUserParam(2, nullptr), 0);
}

TEST_F(CVqAbstractMenuItems, UserParamOfAnUnknownIdIsRefused)
{
    void* param = &m_menu;

    EXPECT_EQ(m_menu.GetUserParam(unknown, &param), -13);
    EXPECT_EQ(m_menu.GetUserParam(unknown, nullptr), -13);
    EXPECT_EQ(m_menu.SetUserParam(unknown, nullptr), -13);

    EXPECT_EQ(param, &m_menu);
}

TEST_F(CVqAbstractMenuItems, CallbacksAreStoredInTheTree)
{
    int draw = 0;
    int measure = 0;

    EXPECT_EQ(m_menu.SetIdDrawCallback(5, &draw), 0);
    EXPECT_EQ(m_menu.SetIdMeasureCallback(5, &measure), 0);

    EXPECT_EQ(m_menu.Item(5)->drawCallback(), &draw);
    EXPECT_EQ(m_menu.Item(5)->measureCallback(), &measure);
    EXPECT_EQ(m_menu.LonelyAccels()->nextItem()->drawCallback(), nullptr);
}

TEST_F(CVqAbstractMenuItems, CallbacksOfALonelyAccelAreRefused)
{
    EXPECT_EQ(m_menu.SetIdDrawCallback(9, nullptr), -13);
    EXPECT_EQ(m_menu.SetIdMeasureCallback(9, nullptr), -13);
}

// Image ---------------------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuItems, BitmapIsStoredAndReadBack)
{
    vq_int32 index = 0;

    EXPECT_EQ(m_menu.GetIdBitmap(2, index), 0);
    EXPECT_EQ(index, -1);
    EXPECT_EQ(m_menu.SetIdBitmap(2, 12), 0);
    EXPECT_EQ(m_menu.GetIdBitmap(2, index), 0);
    EXPECT_EQ(index, 12);
    EXPECT_EQ(m_menu.GetIdBitmap(unknown, index), -13);
}

TEST_F(CVqAbstractMenuItems, BitmapMinusOneIsRefused)
{
    m_menu.SetIdBitmap(2, 12);

    EXPECT_EQ(m_menu.SetIdBitmap(2, -1), -4);

    EXPECT_EQ(m_menu.Item(2)->enaBmpIndex(), 12);
}

TEST_F(CVqAbstractMenuItems, BitmapOfAnUnknownIdIsRefusedAsBadArgument)
{
    EXPECT_EQ(m_menu.SetIdBitmap(unknown, 12), -4);
}

// Menu string ---------------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuItems, SetMenuStringWithKeyTextReplacesTheKeys)
{
    EXPECT_EQ(m_menu.SetIdMenuString(2, VQ_TEXT("&Load\aCtrl+L")), 0);

    EXPECT_EQ(m_menu.Text(2), "&Load|Ctrl+L");
    EXPECT_EQ(TestMenu::Keys(m_menu.MainTable()), "9:18+76 5:18+66 2:18+76");
}

TEST_F(CVqAbstractMenuItems, SetMenuStringWithoutKeyTextPutsTheFirstKeyBehind)
{
    EXPECT_EQ(m_menu.SetIdMenuString(2, VQ_TEXT("&Load")), 0);

    EXPECT_EQ(m_menu.Text(2), "&Load|Ctrl+O");
}

TEST_F(CVqAbstractMenuItems, SetMenuStringTellsTheBackEndWithTheTextInPlace)
{
    m_menu.SetIdMenuString(2, VQ_TEXT("&Load"));

    EXPECT_THAT(m_menu.TakeCalls(), ElementsAre("UpdateItemText 2 \"&Load|Ctrl+O\""));
}

TEST_F(CVqAbstractMenuItems, SetMenuStringOfAnUnknownIdChangesNoKeys)
{
    EXPECT_EQ(m_menu.SetIdMenuString(unknown, VQ_TEXT("&Load\aCtrl+L")), -13);

    EXPECT_EQ(TestMenu::Keys(m_menu.MainTable()), "2:18+79 9:18+76 5:18+66");
    EXPECT_THAT(m_menu.TakeCalls(), IsEmpty());
}

TEST_F(CVqAbstractMenuItems, SetMenuStringToNullReadsAsEmpty)
{
    EXPECT_EQ(m_menu.SetIdMenuString(3, nullptr), 0);

    EXPECT_EQ(m_menu.Text(3), "");
}

TEST(CVqAbstractMenuItemsWithoutBackEnd, SettersWork)
{
    TestMenu menu(TestMenu::BackEnd::None);
    menu.AppendMenuItem(2, 0, VQ_TEXT("Open"), VQ_TEXT("open"), 0);

    EXPECT_EQ(menu.SetIdMenuString(2, VQ_TEXT("Load")), 0);
    EXPECT_EQ(menu.SetIdStatus(2, 3), 0);

    EXPECT_EQ(menu.Text(2), "Load");
    EXPECT_EQ(menu.Item(2)->status(), 3u);
}
