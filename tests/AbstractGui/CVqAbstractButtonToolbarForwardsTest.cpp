#include "tests/support/TestButtonToolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CVqAbstractButtonToolbarForwards, VisibilityIsTheToolbars)
{
    TestButtonToolbar bar;

    bar.SetVisibility(true);

    EXPECT_TRUE(bar.Bar().m_bVisible);
    EXPECT_TRUE(bar.GetVisibility());
}

TEST(CVqAbstractButtonToolbarForwards, FlatStyleIsTheToolbars)
{
    TestButtonToolbar bar;
    bar.AddButton(VQ_TEXT("a"));
    bar.Settle();

    bar.SetFlatStyle(true);

    EXPECT_THAT(bar.TakeCalls(), ElementsAre("a.SetFlatStyle 1", "picker.SetFlatStyle 1"));
}

TEST(CVqAbstractButtonToolbarForwards, BordersAreTheToolbars)
{
    TestButtonToolbar bar;

    bar.SetBorders({1, 2, 3, 4});
    bar.Enable3dBorders(9);

    EXPECT_EQ(bar.Bar().m_borders, (CVqRectBase<int>{1, 2, 3, 4}));
    EXPECT_EQ(bar.Bar().m_ui3dBorders, 9u);
}

TEST(CVqAbstractButtonToolbarForwards, EnlargeAndZoomAreTheToolbars)
{
    TestButtonToolbar bar;

    bar.EnableEnlargeToolbar(false);
    bar.SetAdditionalToolbarGuiZoom(1.5);

    EXPECT_FALSE(bar.Bar().IsToolbarEnlargeEnabled());
    EXPECT_FALSE(bar.IsToolbarEnlargeEnabled());
    EXPECT_EQ(bar.Bar().GetAdditionalToolbarGuiZoom(), 1.5);
    EXPECT_EQ(bar.GetAdditionalToolbarGuiZoom(), 1.5);
}

TEST(CVqAbstractButtonToolbarForwards, DragAndDropIsTheToolbars)
{
    TestButtonToolbar bar;

    bar.EnableToolbarDragDrop(true);

    EXPECT_TRUE(bar.Bar().IsToolbarDragDropEnabled());
    EXPECT_TRUE(bar.IsToolbarDragDropEnabled());
}

TEST(CVqAbstractButtonToolbarForwards, BackgroundIsTheToolbars)
{
    TestButtonToolbar bar;

    bar.SetToolbarBackgroundColor(0x102030, 0.0);

    EXPECT_EQ(bar.Bar().m_uiBackground, 0x00102030u);
}

TEST(CVqAbstractButtonToolbarForwards, TypeIsStoredAndPassedOnWithKeep)
{
    TestButtonToolbar bar;
    bar.EnableToolbarDragDrop(true);

    bar.ChangeToolbarType(EToolbarType::Fixed, true);
    EXPECT_EQ(bar.GetToolbarType(), EToolbarType::Fixed);
    EXPECT_EQ(bar.Bar().m_eType, EToolbarType::Fixed);
    EXPECT_EQ(bar.Bar().m_uiDragMode, 8u);

    bar.ChangeToolbarType(EToolbarType::Fixed, false);
    EXPECT_EQ(bar.Bar().m_uiDragMode, 0u);
}

TEST(CVqAbstractButtonToolbarForwards, OrientationIsStoredAndTurnsSeparatorsOnly)
{
    TestButtonToolbar bar;
    bar.AddButton(VQ_TEXT("a"));
    bar.AppendSeparator(nullptr);
    bar.Settle();

    bar.ChangeToolbarOrientation(EOrientation::Vertical);

    EXPECT_EQ(bar.m_eOrientation, EOrientation::Vertical);
    EXPECT_EQ(bar.Bar().m_eOrientation, EOrientation::Vertical);
    EXPECT_THAT(bar.TakeCalls(), ElementsAre("separator.SetOrientation 1"));
}

TEST(CVqAbstractButtonToolbarForwards, WithoutAToolbarTheDefaultsAreGivenAndNothingHappens)
{
    NoButtonToolbar bar;

    bar.SetVisibility(true);
    bar.SetFlatStyle(true);
    bar.SetBorders({1, 2, 3, 4});
    bar.Enable3dBorders(9);
    bar.EnableEnlargeToolbar(false);
    bar.SetAdditionalToolbarGuiZoom(2.0);
    bar.EnableToolbarDragDrop(true);
    bar.SetToolbarBackgroundColor(0x102030, 1.0);

    EXPECT_FALSE(bar.GetVisibility());
    EXPECT_TRUE(bar.IsToolbarEnlargeEnabled());
    EXPECT_EQ(bar.GetAdditionalToolbarGuiZoom(), 1.0);
    EXPECT_FALSE(bar.IsToolbarDragDropEnabled());
}

TEST(CVqAbstractButtonToolbarForwards, TypeAndOrientationAreStoredWithoutAToolbarToo)
{
    NoButtonToolbar bar;

    bar.ChangeToolbarType(EToolbarType::Hosted, true);
    bar.ChangeToolbarOrientation(EOrientation::Vertical);

    EXPECT_EQ(bar.GetToolbarType(), EToolbarType::Hosted);
    EXPECT_EQ(bar.m_eOrientation, EOrientation::Vertical);
}
