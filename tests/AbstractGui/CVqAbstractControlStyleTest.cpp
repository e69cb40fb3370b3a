#include "tests/AbstractGui/TestControl.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class CVqAbstractControlStyle : public testing::Test
{
protected:
    TestControl m_control;
};

}

TEST_F(CVqAbstractControlStyle, DisablingSetsBitTwoAndTells)
{
    m_control.m_uiFlags = TestControl::Checked;

    EXPECT_EQ(m_control.Enable(false), 0);

    EXPECT_FALSE(m_control.IsEnabled());
    EXPECT_EQ(m_control.m_uiFlags, 5u);
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("state"));
}

TEST_F(CVqAbstractControlStyle, EnablingClearsBitTwoAndTells)
{
    m_control.m_uiFlags = TestControl::Checked | TestControl::Disabled;

    EXPECT_EQ(m_control.Enable(true), 0);

    EXPECT_TRUE(m_control.IsEnabled());
    EXPECT_EQ(m_control.m_uiFlags, 1u);
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("state"));
}

TEST_F(CVqAbstractControlStyle, EnablingAnEnabledOneTellsNothing)
{
    EXPECT_EQ(m_control.Enable(true), 0);

    EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
}

TEST_F(CVqAbstractControlStyle, DisablingADisabledOneTellsNothing)
{
    m_control.m_uiFlags = TestControl::Disabled;

    EXPECT_EQ(m_control.Enable(false), 0);

    EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
}

TEST_F(CVqAbstractControlStyle, HidingTellsOnce)
{
    m_control.SetControlVisibility(false);
    m_control.SetControlVisibility(false);

    EXPECT_FALSE(m_control.GetControlVisibility());
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("state"));
}

TEST_F(CVqAbstractControlStyle, ShowingTellsOnce)
{
    m_control.m_bVisible = false;

    m_control.SetControlVisibility(true);
    m_control.SetControlVisibility(true);

    EXPECT_TRUE(m_control.GetControlVisibility());
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("state"));
}

TEST_F(CVqAbstractControlStyle, FlatStyleIsBitZeroOfTheStyle)
{
    m_control.m_uiStyle = 0xFFFFFFFE;
    m_control.SetFlatStyle(true);
    EXPECT_EQ(m_control.m_uiStyle, 0xFFFFFFFF);

    m_control.SetFlatStyle(false);
    EXPECT_EQ(m_control.m_uiStyle, 0xFFFFFFFE);
}

TEST_F(CVqAbstractControlStyle, TextAlignReplacesBitsFourAndFive)
{
    m_control.m_uiStyle = 0xFFFFFFEF;
    EXPECT_EQ(m_control.SetTextAlign(0x10), 0);
    EXPECT_EQ(m_control.m_uiStyle, 0xFFFFFFDF);

    EXPECT_EQ(m_control.SetTextAlign(0), 0);
    EXPECT_EQ(m_control.m_uiStyle, 0xFFFFFFCF);
}

TEST_F(CVqAbstractControlStyle, TextAlignDropsTheOtherBits)
{
    EXPECT_EQ(m_control.SetTextAlign(0xFFFFFFFF), 0);

    EXPECT_EQ(m_control.m_uiStyle, 0x30u);
}

TEST_F(CVqAbstractControlStyle, OrientationIsKept)
{
    EXPECT_EQ(m_control.SetOrientation(EOrientation::Vertical), 0);

    EXPECT_EQ(m_control.m_eOrientation, EOrientation::Vertical);
    EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
}
