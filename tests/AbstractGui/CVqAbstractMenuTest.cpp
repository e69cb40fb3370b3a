#include "AbstractGui/CVqAbstractMenu.h"

#include "tests/support/CaptureMessages.h"
#include "tests/support/TestMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

using testing::ElementsAre;

namespace {

/// Is never content with what it is told.
class GrumblingMenuBase : public RecordingMenuBase
{
public:
    int EnterMenu(vq_wchar character) override
    {
        RecordingMenuBase::EnterMenu(character);
        return -77;
    }
};

/// Remembers the arguments of TrackContextMenuEx().
class TrackingMenu : public TestMenu
{
public:
    int TrackContextMenuEx(vq_uint32 id, int x, int y, __vq_hwnd* window, vq_uint32* resultId,
                           const CVqRectBase<int>* rect, bool flag1, bool flag2) override
    {
        m_id = id;
        m_x = x;
        m_y = y;
        m_window = window;
        m_result_id = resultId;
        m_rect = rect;
        m_flags = {flag1, flag2};
        return 17;
    }

    vq_uint32 m_id = 0;
    int m_x = 0;
    int m_y = 0;
    __vq_hwnd* m_window = nullptr;
    vq_uint32* m_result_id = nullptr;
    const CVqRectBase<int>* m_rect = reinterpret_cast<const CVqRectBase<int>*>(this);
    std::pair<bool, bool> m_flags;
};

}

// Stubs ---------------------------------------------------------------------------------------------------

TEST(CVqAbstractMenu, TrackContextMenuExIsNotImplemented)
{
    TestMenu menu;

    EXPECT_EQ(menu.TrackContextMenuEx(1, 2, 3, nullptr, nullptr, nullptr, true, false), -2);
}

TEST(CVqAbstractMenu, TrackContextMenuIsNotImplemented)
{
    TestMenu menu;

    EXPECT_EQ(menu.TrackContextMenu(1, 2, 3, nullptr, nullptr, true, false), -2);
}

TEST(CVqAbstractMenu, TrackContextMenuCallsTheVirtualExFormWithANullRectangle)
{
    TrackingMenu menu;
    vq_uint32 result = 0;
    auto* window = reinterpret_cast<__vq_hwnd*>(&menu);

    EXPECT_EQ(menu.TrackContextMenu(5, 6, 7, window, &result, true, false), 17);

    EXPECT_EQ(menu.m_id, 5u);
    EXPECT_EQ(menu.m_x, 6);
    EXPECT_EQ(menu.m_y, 7);
    EXPECT_EQ(menu.m_window, window);
    EXPECT_EQ(menu.m_result_id, &result);
    EXPECT_EQ(menu.m_rect, nullptr);
    EXPECT_EQ(menu.m_flags, std::pair(true, false));
}

TEST(CVqAbstractMenu, ShowDisabledMenuButtonsIsNotImplemented)
{
    TestMenu menu;
    int value = 0;

    EXPECT_EQ(menu.ShowDisabledMenuButtons(true, &value), -2);
}

TEST(CVqAbstractMenu, CallCmdHandlerIsNotImplemented)
{
    TestMenu menu;

    EXPECT_EQ(menu.CallCmdHandler(1), -2);
}

TEST(CVqAbstractMenu, NoMenuBreakIsRecommended)
{
    TestMenu menu;

    EXPECT_FALSE(menu.IsMenuBreakRecommended(1, 40));
}

// The whole menu ------------------------------------------------------------------------------------------

TEST(CVqAbstractMenu, EnterMenuWithoutBackEndGivesMinusTwelve)
{
    TestMenu menu(TestMenu::BackEnd::None);

    EXPECT_EQ(menu.EnterMenu(VQ_TEXT('f')), -12);
}

TEST(CVqAbstractMenu, EnterMenuForwardsTheCharacter)
{
    TestMenu menu;

    EXPECT_EQ(menu.EnterMenu(VQ_TEXT('f')), 0);

    EXPECT_THAT(menu.TakeCalls(), ElementsAre("EnterMenu 102"));
}

TEST(CVqAbstractMenu, EnterMenuGivesZeroWhateverTheBackEndSays)
{
    TestMenu menu(TestMenu::BackEnd::None);
    menu.MenuBase() = new GrumblingMenuBase;

    EXPECT_EQ(menu.EnterMenu(VQ_TEXT('f')), 0);
}

TEST(CVqAbstractMenu, EnableFixedLeftColumnWidthIsStored)
{
    TestMenu menu;

    EXPECT_EQ(menu.EnableFixedLeftColumnWidth(true), 0);
    EXPECT_TRUE(menu.HasFixedLeftColumnWidth());

    EXPECT_EQ(menu.EnableFixedLeftColumnWidth(false), 0);
    EXPECT_FALSE(menu.HasFixedLeftColumnWidth());
}

TEST(CVqAbstractMenu, GetSafeIdOfOneOnAnEmptyMenuIsOne)
{
    TestMenu menu;

    EXPECT_EQ(menu.GetSafeId(1), 1u);
}

TEST(CVqAbstractMenu, GetSafeIdIsAboveEveryIdentifierInTheTree)
{
    TestMenu menu;
    menu.AppendPopup(10, 0, VQ_TEXT("File"));
    menu.AppendMenuItem(40, 10, VQ_TEXT("Open"), VQ_TEXT("open"), 0);
    menu.AppendPopup(20, 0, VQ_TEXT("Edit"));

    EXPECT_EQ(menu.GetSafeId(1), 41u);
    EXPECT_EQ(menu.GetSafeId(100), 100u);
}

TEST(CVqAbstractMenu, GetSafeIdLeavesLonelyAccelsOut)
{
    TestMenu menu;
    menu.AppendLonelyAccel(50, 18, 0x41, VQ_TEXT("lonely"));

    EXPECT_EQ(menu.GetSafeId(1), 1u);
}

TEST(CVqAbstractMenu, GetSafeIdWithoutRootIsTheSeed)
{
    CVqAbstractMenu menu;

    EXPECT_EQ(menu.GetSafeId(0), 0u);
    EXPECT_EQ(menu.GetSafeId(7), 7u);
}

TEST(CVqAbstractMenu, RootIsGiven)
{
    TestMenu menu;

    EXPECT_EQ(menu.getRootMenuItem(), menu.Root());
}

TEST(CVqAbstractMenu, IgnoringAdditionalZoomReachesTheWholeTree)
{
    TestMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("File"));
    menu.AppendMenuItem(2, 1, VQ_TEXT("Open"), VQ_TEXT("open"), 0);
    menu.AppendPopup(3, 0, VQ_TEXT("Edit"));

    menu.setIgnoreAdditionalBitmapZoomRecursive(true);

    EXPECT_TRUE(menu.Root()->ignoreAdditionalZoom());
    EXPECT_TRUE(menu.Item(1)->ignoreAdditionalZoom());
    EXPECT_TRUE(menu.Item(2)->ignoreAdditionalZoom());
    EXPECT_TRUE(menu.Item(3)->ignoreAdditionalZoom());
}

TEST(CVqAbstractMenu, IgnoringAdditionalZoomWithoutRootDoesNothing)
{
    CVqAbstractMenu menu;

    menu.setIgnoreAdditionalBitmapZoomRecursive(true);
}

TEST(CVqAbstractMenu, ManipulatorsAreTheProcessWideOnes)
{
    CVqAbstractMenu menu;

    EXPECT_EQ(&menu.Manipulators(), &CVqAbstractMenu::SVqManipulators::Instance());
}

// Printing ------------------------------------------------------------------------------------------------

TEST(CVqAbstractMenu, PrintAllInWritesTheItemAndItsSubtree)
{
    TestMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("File"));
    menu.AppendMenuItem(2, 1, VQ_TEXT("Open"), VQ_TEXT("open"), 0);
    menu.AppendPopup(3, 0, VQ_TEXT("Edit"));
    const CaptureMessages debug(QtDebugMsg);

    EXPECT_EQ(menu.PrintAllIn(1), 0);

    ASSERT_EQ(debug.Texts().size(), 2);
    EXPECT_TRUE(debug.Texts().at(0).contains(QStringLiteral("m_strText:File")));
    EXPECT_TRUE(debug.Texts().at(1).contains(QStringLiteral("m_strText:Open")));
}

TEST(CVqAbstractMenu, PrintAllInWritesTheWholeTreeForAnUnknownId)
{
    TestMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("File"));
    menu.AppendPopup(3, 0, VQ_TEXT("Edit"));
    const CaptureMessages debug(QtDebugMsg);

    EXPECT_EQ(menu.PrintAllIn(99), 0);

    EXPECT_EQ(debug.Texts().size(), 3);
}

TEST(CVqAbstractMenu, PrintAllInWithoutRootWritesNothing)
{
    CVqAbstractMenu menu;
    const CaptureMessages debug(QtDebugMsg);

    EXPECT_EQ(menu.PrintAllIn(1), 0);

    EXPECT_TRUE(debug.Texts().isEmpty());
}
