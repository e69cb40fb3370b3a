#include "AbstractGui/CVqAbstractControl.h"

#include "AbstractGui/VqControlCodes.h"
#include "tests/AbstractGui/TestBitmapPool.h"
#include "tests/AbstractGui/TestControl.h"

#include <QPointer>

#include <gmock/gmock.h>

#include <cstdlib>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class CVqAbstractControlTest : public testing::Test
{
protected:
    TestBitmapPool& m_pool = TestBitmapPool::Fresh();
    TestControl m_control;
};

bool handle_event(IVqUIcontrol*, SVqUiEvent&)
{
    return true;
}

bool handle_other_event(IVqUIcontrol*, SVqUiEvent&)
{
    return false;
}

int paint(vq_uint64, CVqRectBase<int>, IVqUIcontrol*, void*)
{
    return 0;
}

}

// A new control -----------------------------------------------------------------------------------

TEST_F(CVqAbstractControlTest, NewOneHasOneEmptyState)
{
    EXPECT_EQ(m_control.state(), 0);
    EXPECT_EQ(m_control.m_uiStateCount, 1u);
    EXPECT_EQ(m_control.bitmap(), -1);
    EXPECT_EQ(m_control.label(), QString());
    EXPECT_TRUE(m_control.IsEnabled());
    EXPECT_TRUE(m_control.GetControlVisibility());
}

TEST_F(CVqAbstractControlTest, NewOneHoldsItsStartValues)
{
    EXPECT_THAT(m_control.Shown(),
                ElementsAre("type=0", "state=0", "count=1", "name=", "width=0", "height=0", "orientation=0",
                            "style=0", "flags=0", "value=0", "visible=1", "translate=0", "0.bitmap=-1",
                            "0.text=", "0.command=", "0.tooltip=", "0.frgcolor=4294967295",
                            "0.bkgcolor=4294967295", "0.additionalcolor=4294967295", "0.userValue=0"));
    EXPECT_EQ(m_control.m_pHandler, nullptr);
    EXPECT_EQ(m_control.m_pPaintCallback, nullptr);
    EXPECT_EQ(m_control.m_pPaintData, nullptr);
    EXPECT_EQ(m_control.m_pSizeCallback, nullptr);
    EXPECT_EQ(m_control.m_pSizeData, nullptr);
    EXPECT_EQ(m_control.m_dZoom, 1.0);
}

TEST_F(CVqAbstractControlTest, HasRoomForThirtyTwoStatesEachEmpty)
{
    EXPECT_EQ(CVqAbstractControl::MaxStates, 32u);
    for (vq_uint32 i = 0; i < CVqAbstractControl::MaxStates; ++i)
        EXPECT_EQ(TestControl::ShownState(m_control.State(i)), TestControl::ShownState(SVqControlState()));
}

TEST_F(CVqAbstractControlTest, TakesItsTypeWhenItIsMade)
{
    EXPECT_EQ(CVqAbstractControl(3).type(), 3);
    EXPECT_EQ(CVqAbstractControl().type(), 0);
}

TEST_F(CVqAbstractControlTest, HasNoParent)
{
    EXPECT_EQ(m_control.parent(), nullptr);
}

TEST_F(CVqAbstractControlTest, IsAnObjectFirstAndAControlSecond)
{
    const auto* start = reinterpret_cast<const char*>(static_cast<const CVqAbstractControl*>(&m_control));

    EXPECT_EQ(reinterpret_cast<const char*>(static_cast<const QObject*>(&m_control)), start);
    EXPECT_EQ(reinterpret_cast<const char*>(static_cast<const IVqUIcontrol*>(&m_control)),
              start + sizeof(QObject));
}

TEST_F(CVqAbstractControlTest, EachOneAsksThePoolForThePickersImage)
{
    m_pool.TakeCalls();
    m_pool.SetNextIndex(7);

    const TestControl first;
    const TestControl second;

    EXPECT_THAT(m_pool.TakeCalls(),
                ElementsAre("AddImage k7_tile_assets.dll, PICKER_BR, null = 7",
                            "AddImage k7_tile_assets.dll, PICKER_BR, null = 8"));
    EXPECT_EQ(first.m_iPickerImage, 7);
    EXPECT_EQ(second.m_iPickerImage, 8);
}

TEST_F(CVqAbstractControlTest, PickersImageMayBeACode)
{
    m_pool.SetNextIndex(-13);

    EXPECT_EQ(TestControl().m_iPickerImage, -13);
}

// A pool cannot be taken back, so this is asked in a process that never had one.
TEST(CVqAbstractControlWithoutPool, PickersImageIsThePoolsCode)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");

    EXPECT_EXIT(std::_Exit(TestControl().m_iPickerImage == -12 ? 0 : 1), testing::ExitedWithCode(0), "");
}

// Handler and callbacks ---------------------------------------------------------------------------

TEST_F(CVqAbstractControlTest, SetHandlerGivesThePreviousOne)
{
    EXPECT_EQ(m_control.SetHandler(handle_event), nullptr);
    EXPECT_EQ(m_control.SetHandler(handle_other_event), &handle_event);
    EXPECT_EQ(m_control.GetHandler(), &handle_other_event);
    EXPECT_EQ(m_control.SetHandler(nullptr), &handle_other_event);
    EXPECT_EQ(m_control.GetHandler(), nullptr);
}

TEST_F(CVqAbstractControlTest, SetPaintCallbackKeepsBoth)
{
    EXPECT_EQ(m_control.SetPaintCallback(paint, this), 0);
    EXPECT_EQ(m_control.m_pPaintCallback, &paint);
    EXPECT_EQ(m_control.m_pPaintData, this);
}

// What only a concrete control does ---------------------------------------------------------------

TEST_F(CVqAbstractControlTest, WhatNeedsAWidgetDoesNothing)
{
    m_control.FillStates(2);
    const auto before = m_control.Shown();

    EXPECT_EQ(m_control.CreateUI(5), 0u);
    EXPECT_EQ(m_control.GetWindowHandle(), 0u);
    EXPECT_EQ(m_control.SetControlPos({1, 2, 3, 4}), 0);
    m_control.SetBoldText(true);
    m_control.SetUnderlineText(true);
    m_control.DestroyUI();

    EXPECT_EQ(m_control.Shown(), before);
    EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
}

TEST_F(CVqAbstractControlTest, MarkToDeleteItselfDeletesAtOnce)
{
    const QPointer<TestControl> control = new TestControl;

    static_cast<IVqUIcontrol*>(control.data())->MarkToDeleteItself();

    EXPECT_TRUE(control.isNull());
}

// Tooltips ----------------------------------------------------------------------------------------

TEST_F(CVqAbstractControlTest, SetDesriptionTextReachesAllStatesBelowTheCount)
{
    m_control.FillStates(3);
    m_control.m_uiStateCount = 2;
    CVqStringW text(VQ_TEXT("new"));

    m_control.SetDesriptionText(text);

    EXPECT_EQ(TestMenu::Plain(m_control.State(0).m_tooltip), "new");
    EXPECT_EQ(TestMenu::Plain(m_control.State(1).m_tooltip), "new");
    EXPECT_EQ(TestMenu::Plain(m_control.State(2).m_tooltip), "tooltip2");
    EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
}

TEST_F(CVqAbstractControlTest, GetDesriptionTextIsThatOfStateZero)
{
    m_control.FillStates(3);
    m_control.setState(2);
    CVqStringW text;

    m_control.GetDesriptionText(text);

    EXPECT_EQ(TestMenu::Plain(text), "tooltip0");
}

TEST_F(CVqAbstractControlTest, GetDesriptionTextAlsoWorksWithoutAnyState)
{
    m_control.FillStates(1);
    m_control.m_uiStateCount = 0;
    CVqStringW text;

    m_control.GetDesriptionText(text);

    EXPECT_EQ(TestMenu::Plain(text), "tooltip0");
}

// Identifier --------------------------------------------------------------------------------------

TEST_F(CVqAbstractControlTest, IdentifierIsTheAddressOfTheName)
{
    CVqStringW name(VQ_TEXT("Open"));
    m_control.Set(vq_control_name, 0, &name);

    const auto* text = reinterpret_cast<const vq_wchar*>(m_control.GetControlID());

    EXPECT_EQ(text, m_control.m_strName.GetString());
    EXPECT_EQ(TestMenu::Plain(text), "Open");
}

TEST_F(CVqAbstractControlTest, IdentifierReadsAsTheNewNameAfterARename)
{
    CVqStringW longer(VQ_TEXT("a name that does not fit into the place of a short one"));

    const vq_uint64 before = m_control.GetControlID();
    m_control.Set(vq_control_name, 0, &longer);

    EXPECT_NE(m_control.GetControlID(), before);
    EXPECT_EQ(TestMenu::Plain(reinterpret_cast<const vq_wchar*>(m_control.GetControlID())),
              TestMenu::Plain(longer));
}

TEST_F(CVqAbstractControlTest, UnnamedControlsHaveIdentifiersOfTheirOwn)
{
    TestControl other;

    EXPECT_NE(m_control.GetControlID(), 0u);
    EXPECT_NE(m_control.GetControlID(), other.GetControlID());
    EXPECT_EQ(*reinterpret_cast<const vq_wchar*>(m_control.GetControlID()), 0);
}

TEST_F(CVqAbstractControlTest, ControlsOfOneNameHaveIdentifiersOfTheirOwn)
{
    TestControl other;
    CVqStringW name(VQ_TEXT("Open"));

    m_control.Set(vq_control_name, 0, &name);
    other.Set(vq_control_name, 0, &name);

    EXPECT_NE(m_control.GetControlID(), other.GetControlID());
}
