#include "AbstractGui/CVqAbstractToolbar.h"

#include "tests/support/TestToolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

bool take_event(IVqUIcontrol*, SVqUiEvent&)
{
    return true;
}

}

// Construction -------------------------------------------------------------------------------------------

TEST(CVqAbstractToolbar, NewToolbarHasTheStartValues)
{
    TestToolbar bar;
    CVqRectBase<int> borders;
    EOrientation orientation = EOrientation::Vertical;

    bar.GetBorders(borders);
    EXPECT_EQ(bar.GetOrientation(orientation), 0);

    EXPECT_EQ(bar.m_hWindow, 0u);
    EXPECT_EQ(orientation, EOrientation::Horizontal);
    EXPECT_EQ(borders, (CVqRectBase<int>{2, 2, 2, 2}));
    EXPECT_EQ(bar.m_eType, EToolbarType::Main);
    EXPECT_EQ(bar.m_hHost, 0u);
    EXPECT_EQ(bar.m_ui3dBorders, 0u);
    EXPECT_EQ(bar.m_uiDragMode, 0u);
    EXPECT_FALSE(bar.GetToolbarVisibility());
    EXPECT_FALSE(bar.IsToolbarDragDropEnabled());
    EXPECT_TRUE(bar.IsToolbarEnlargeEnabled());
    EXPECT_EQ(bar.GetAdditionalToolbarGuiZoom(), 1.0);
    EXPECT_EQ(bar.m_size, (CVqSizeBase<int>{0, 0}));
    EXPECT_TRUE(bar.GetName().IsEmpty());
    EXPECT_EQ(bar.m_pControls, nullptr);
    EXPECT_EQ(bar.m_pControlIds, nullptr);
    EXPECT_EQ(bar.m_pBoundary, nullptr);
    EXPECT_EQ(bar.m_uiBackground, 0xFFFFFFFFu);
    EXPECT_EQ(bar.m_pCallback, nullptr);
    EXPECT_EQ(bar.m_pCallbackData, nullptr);
    EXPECT_FALSE(bar.m_bLayoutDirty);
}

TEST(CVqAbstractToolbar, CopiesShareListMapAndBoundaryAndCopyTheName)
{
    TestToolbar bar(EToolbarType::Main);
    bar.Add("open");
    bar.m_size = {3, 4};

    CVqAbstractToolbar plain(bar);
    TestToolbar copy;
    copy = bar;

    EXPECT_EQ(copy.m_pControls, bar.m_pControls);
    EXPECT_EQ(copy.m_pControlIds, bar.m_pControlIds);
    EXPECT_EQ(copy.m_pBoundary, bar.m_pBoundary);
    EXPECT_EQ(copy.m_size, (CVqSizeBase<int>{3, 4}));
    EXPECT_EQ(copy.GetName(), bar.GetName());
    EXPECT_NE(plain.GetName().GetString(), bar.GetName().GetString());
    EXPECT_EQ(plain.GetFirstNode(), bar.GetFirstNode());
    copy.m_pControls = nullptr; // or both would delete it
}

TEST(CVqAbstractToolbar, DestructorFreesNoControl)
{
    TestToolbar bar(EToolbarType::Main);
    bar.Add("open");

    std::make_unique<CVqAbstractToolbar>(bar).reset();

    EXPECT_THAT(bar.TakeCalls(), IsEmpty());
    EXPECT_EQ(bar.Order(), "open |picker");
}

// Fields -------------------------------------------------------------------------------------------------

TEST(CVqAbstractToolbar, CallbackIsStoredAndToldToThePicker)
{
    TestToolbar bar(EToolbarType::Main);
    int data = 0;

    EXPECT_EQ(bar.SetCallback(take_event, &data), 0);

    EXPECT_EQ(bar.m_pCallback, take_event);
    EXPECT_EQ(bar.m_pCallbackData, &data);
    EXPECT_THAT(bar.TakeCalls(), ElementsAre("picker.Set 2307"));
    EXPECT_EQ(bar.ThePicker().m_callback, take_event);
    EXPECT_EQ(bar.ThePicker().m_callback_data, &data);
}

TEST(CVqAbstractToolbar, CallbackIsToldToNobodyOutsideTypeMain)
{
    TestToolbar bar(EToolbarType::Hosted);
    bar.Add("open");

    EXPECT_EQ(bar.SetCallback(take_event, nullptr), 0);

    EXPECT_THAT(bar.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractToolbar, VisibilityIsStored)
{
    TestToolbar bar(EToolbarType::Main);

    bar.SetToolbarVisibility(true);

    EXPECT_TRUE(bar.GetToolbarVisibility());
    EXPECT_THAT(bar.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractToolbar, BordersAreStored)
{
    TestToolbar bar(EToolbarType::Main);
    CVqRectBase<int> borders;

    bar.SetBorders({1, -2, 3, 4});
    bar.Enable3dBorders(9);
    bar.GetBorders(borders);

    EXPECT_EQ(borders, (CVqRectBase<int>{1, -2, 3, 4}));
    EXPECT_EQ(bar.m_ui3dBorders, 9u);
}

TEST(CVqAbstractToolbar, EnlargeAndZoomAreStoredAndNotToldToExistingControls)
{
    TestToolbar bar(EToolbarType::Main);
    bar.Add("open");

    bar.EnableEnlargeToolbar(false);
    bar.SetAdditionalToolbarGuiZoom(2.5);

    EXPECT_FALSE(bar.IsToolbarEnlargeEnabled());
    EXPECT_EQ(bar.GetAdditionalToolbarGuiZoom(), 2.5);
    EXPECT_THAT(bar.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractToolbar, DragAndDropSetsTheDragMode)
{
    TestToolbar bar(EToolbarType::Main);

    bar.EnableToolbarDragDrop(true);
    EXPECT_TRUE(bar.IsToolbarDragDropEnabled());
    EXPECT_EQ(bar.m_uiDragMode, 8u);

    bar.EnableToolbarDragDrop(false);
    EXPECT_FALSE(bar.IsToolbarDragDropEnabled());
    EXPECT_EQ(bar.m_uiDragMode, 0u);
}

struct TypeChange
{
    const char* name;
    bool drag_drop;
    unsigned mode_before;
    EToolbarType type;
    bool keep;
    unsigned mode_after;
};

class CVqAbstractToolbarTypeChange : public testing::TestWithParam<TypeChange>
{ };

TEST_P(CVqAbstractToolbarTypeChange, StoresTheTypeAndSetsTheDragMode)
{
    const TypeChange& row = GetParam();
    TestToolbar bar(EToolbarType::Hosted);
    bar.EnableToolbarDragDrop(row.drag_drop);
    bar.m_uiDragMode = row.mode_before;

    bar.ChangeToolbarType(row.type, row.keep);

    EXPECT_EQ(bar.m_eType, row.type);
    EXPECT_EQ(bar.m_uiDragMode, row.mode_after);
    EXPECT_EQ(bar.IsToolbarDragDropEnabled(), row.drag_drop);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CVqAbstractToolbarTypeChange,
    testing::Values(
        TypeChange{"FixedEndsDragging", true, 8, EToolbarType::Fixed, false, 0},
        TypeChange{"FixedButKeptDragsOn", true, 0, EToolbarType::Fixed, true, 8},
        TypeChange{"HostedDrags", true, 0, EToolbarType::Hosted, false, 8},
        TypeChange{"HostedKeptDrags", true, 0, EToolbarType::Hosted, true, 8},
        TypeChange{"WithoutDragAndDropFixedChangesNothing", false, 5, EToolbarType::Fixed, false, 5},
        TypeChange{"WithoutDragAndDropHostedChangesNothing", false, 5, EToolbarType::Hosted, true, 5}),
    [](const auto& row) { return row.param.name; });

// Background ---------------------------------------------------------------------------------------------

struct Background
{
    const char* name;
    unsigned color;
    double alpha;
    unsigned stored;
};

class CVqAbstractToolbarBackground : public testing::TestWithParam<Background>
{ };

TEST_P(CVqAbstractToolbarBackground, IsStoredWithItsAlpha)
{
    const Background& row = GetParam();
    TestToolbar bar;

    bar.SetToolbarBackgroundColor(row.color, row.alpha);

    EXPECT_EQ(bar.m_uiBackground, row.stored);
}

INSTANTIATE_TEST_SUITE_P(Rows, CVqAbstractToolbarBackground,
                         testing::Values(Background{"Opaque", 0x102030, 1.0, 0xFF102030},
                                         Background{"Clear", 0x102030, 0.0, 0x00102030},
                                         Background{"Half", 0x102030, 0.5, 0x80102030},
                                         Background{"AlphaOfTheColorDoesNotCount", 0x40102030, 1.0,
                                                    0xFF102030},
                                         Background{"WhiteWithAlphaBitsIsNone", 0xFFFFFFFF, 0.5, 0xFFFFFFFF},
                                         Background{"JustBelowNoneIsAColor", 0xFFFFFFFE, 0.0, 0x00FFFFFE},
                                         Background{"White", 0x00FFFFFF, 1.0, 0xFFFFFFFF}),
                         [](const auto& row) { return row.param.name; });
