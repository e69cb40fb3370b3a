#include "AbstractGui/SVqControlStateInfo.h"
#include "AbstractGui/VqControlCodes.h"
#include "tests/AbstractGui/TestControl.h"

#include <gmock/gmock.h>

#include <string>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Three filled states, the first of them current.
class CVqAbstractControlCommands : public testing::Test
{
protected:
    CVqAbstractControlCommands() { m_control.FillStates(3); }

    int Command(unsigned code, vq_int64 index, SVqControlStateInfo* info = nullptr)
    {
        return m_control.Command(code, index, info);
    }

    /// The texts of the states in use.
    TestControl::Lines Texts()
    {
        TestControl::Lines texts;
        for (vq_uint32 i = 0; i < m_control.m_uiStateCount; ++i)
            texts.push_back(TestMenu::Plain(m_control.State(i).m_text));
        return texts;
    }

    TestControl m_control;
};

constexpr vq_int64 bad_indices[] = {3, 31, 32, 0xFFFFFFFF, -1, (vq_int64(1) << 32) + 3};

}

// Reading -------------------------------------------------------------------------------------------

TEST_F(CVqAbstractControlCommands, ReadGivesImageAndTexts)
{
    const auto before = m_control.Shown();
    SVqControlStateInfo info;

    EXPECT_EQ(Command(vq_control_read_state, 1, &info), 0);

    EXPECT_EQ(info.bitmap, 11);
    EXPECT_EQ(TestMenu::Plain(info.text), "text1");
    EXPECT_EQ(TestMenu::Plain(info.command), "command1");
    EXPECT_EQ(TestMenu::Plain(info.tooltip), "tooltip1");
    EXPECT_EQ(m_control.Shown(), before);
    EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
}

TEST_F(CVqAbstractControlCommands, ReadGivesTheControlsOwnTexts)
{
    SVqControlStateInfo info;

    Command(vq_control_read_state, 1, &info);

    EXPECT_EQ(info.text, m_control.State(1).m_text.GetString());
    EXPECT_EQ(info.command, m_control.State(1).m_command.GetString());
    EXPECT_EQ(info.tooltip, m_control.State(1).m_tooltip.GetString());
}

TEST_F(CVqAbstractControlCommands, ReadLeavesWhatAnEmptyStateHasNot)
{
    m_control.State(1) = SVqControlState();
    SVqControlStateInfo info{77, VQ_TEXT("a"), VQ_TEXT("b"), VQ_TEXT("c")};

    EXPECT_EQ(Command(vq_control_read_state, 1, &info), 0);

    EXPECT_EQ(info.bitmap, 77);
    EXPECT_EQ(TestMenu::Plain(info.text), "a");
    EXPECT_EQ(TestMenu::Plain(info.command), "b");
    EXPECT_EQ(TestMenu::Plain(info.tooltip), "c");
}

TEST_F(CVqAbstractControlCommands, ReadGivesImageZeroAndNoCodeOfThePool)
{
    SVqControlStateInfo info{77, nullptr, nullptr, nullptr};
    m_control.State(0).m_bitmap = -12;
    Command(vq_control_read_state, 0, &info);
    EXPECT_EQ(info.bitmap, 77);

    m_control.State(0).m_bitmap = 0;
    Command(vq_control_read_state, 0, &info);
    EXPECT_EQ(info.bitmap, 0);
}

TEST_F(CVqAbstractControlCommands, ReadAtABadIndexFailsAndTouchesNothing)
{
    for (const vq_int64 index : bad_indices) {
        SCOPED_TRACE(index);
        SVqControlStateInfo info{77, nullptr, nullptr, nullptr};

        EXPECT_EQ(Command(vq_control_read_state, index, &info), -9);

        EXPECT_EQ(info.bitmap, 77);
        EXPECT_EQ(info.text, nullptr);
    }
}

TEST_F(CVqAbstractControlCommands, ReadCountsTheLowBitsOfTheIndex)
{
    SVqControlStateInfo info;

    EXPECT_EQ(Command(vq_control_read_state, (vq_int64(1) << 32) + 2, &info), 0);

    EXPECT_EQ(info.bitmap, 12);
}

// Deleting ------------------------------------------------------------------------------------------

TEST_F(CVqAbstractControlCommands, DeleteMovesTheLaterStatesDown)
{
    m_control.setState(1);
    m_control.TakeSignals();

    EXPECT_EQ(Command(vq_control_delete_state, 0), 0);

    EXPECT_THAT(Texts(), ElementsAre("text1", "text2"));
    EXPECT_EQ(m_control.state(), 1);
    EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
}

TEST_F(CVqAbstractControlCommands, DeleteMovesAllFields)
{
    const auto second = TestControl::ShownState(m_control.State(1));

    Command(vq_control_delete_state, 0);

    EXPECT_EQ(TestControl::ShownState(m_control.State(0)), second);
}

TEST_F(CVqAbstractControlCommands, DeleteInTheMiddleLeavesTheEarlierStates)
{
    EXPECT_EQ(Command(vq_control_delete_state, 1), 0);

    EXPECT_THAT(Texts(), ElementsAre("text0", "text2"));
}

TEST_F(CVqAbstractControlCommands, DeletingTheLastOfThreeWhileItIsCurrentGoesBackToTheFirst)
{
    m_control.setState(2);
    m_control.TakeSignals();

    EXPECT_EQ(Command(vq_control_delete_state, 2), 0);

    EXPECT_EQ(m_control.state(), 0);
    EXPECT_THAT(Texts(), ElementsAre("text0", "text1"));
    EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
}

TEST_F(CVqAbstractControlCommands, DeletingTheFirstWhileTheLastIsCurrentGoesBackToTheFirst)
{
    m_control.setState(2);

    Command(vq_control_delete_state, 0);

    EXPECT_EQ(m_control.state(), 0);
}

TEST_F(CVqAbstractControlCommands, DeletingTheOnlyStateLeavesNone)
{
    TestControl control;

    EXPECT_EQ(control.Command(vq_control_delete_state, 0, nullptr), 0);

    EXPECT_EQ(control.m_uiStateCount, 0u);
    EXPECT_EQ(control.state(), 0);
    EXPECT_THAT(control.TakeSignals(), IsEmpty());
}

TEST_F(CVqAbstractControlCommands, DeletingFromNoneFails)
{
    Command(vq_control_clear_states, 0);

    EXPECT_EQ(Command(vq_control_delete_state, 0), -9);
    EXPECT_EQ(m_control.m_uiStateCount, 0u);
}

TEST_F(CVqAbstractControlCommands, DeleteAtABadIndexFailsAndDeletesNothing)
{
    for (const vq_int64 index : bad_indices) {
        SCOPED_TRACE(index);

        EXPECT_EQ(Command(vq_control_delete_state, index), -9);

        EXPECT_THAT(Texts(), ElementsAre("text0", "text1", "text2"));
    }
}

TEST_F(CVqAbstractControlCommands, DeleteWorksOnAllThirtyTwo)
{
    m_control.FillStates(32);

    EXPECT_EQ(Command(vq_control_delete_state, 31), 0);
    EXPECT_EQ(Command(vq_control_delete_state, 0), 0);

    EXPECT_EQ(Texts().size(), 30u);
    EXPECT_EQ(Texts().front(), "text1");
    EXPECT_EQ(Texts().back(), "text30");
}

// Writing -------------------------------------------------------------------------------------------

TEST_F(CVqAbstractControlCommands, WriteTakesImageAndTextsAndTellsOfTheImageOnly)
{
    const auto before = m_control.Shown();
    SVqControlStateInfo info{77, VQ_TEXT("a"), VQ_TEXT("b"), VQ_TEXT("")};

    EXPECT_EQ(Command(vq_control_write_state, 1, &info), 0);

    EXPECT_THAT(m_control.ChangesSince(before),
                ElementsAre("1.bitmap=77", "1.text=a", "1.command=b", "1.tooltip="));
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("bitmap"));
}

TEST_F(CVqAbstractControlCommands, WriteWithoutTextsChangesTheImageOnly)
{
    const auto before = m_control.Shown();
    SVqControlStateInfo info{-1, nullptr, nullptr, nullptr};

    EXPECT_EQ(Command(vq_control_write_state, 1, &info), 0);

    EXPECT_THAT(m_control.ChangesSince(before), ElementsAre("1.bitmap=-1"));
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("bitmap"));
}

TEST_F(CVqAbstractControlCommands, WriteOfTheSameTellsAllTheSame)
{
    SVqControlStateInfo info{11, nullptr, nullptr, nullptr};

    EXPECT_EQ(Command(vq_control_write_state, 1, &info), 0);

    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("bitmap"));
}

TEST_F(CVqAbstractControlCommands, WriteCopiesTheTexts)
{
    vq_wchar text[] = VQ_TEXT("New");
    SVqControlStateInfo info{11, text, nullptr, nullptr};

    Command(vq_control_write_state, 1, &info);
    text[0] = VQ_TEXT('X');

    EXPECT_EQ(TestMenu::Plain(m_control.State(1).m_text), "New");
}

TEST_F(CVqAbstractControlCommands, WriteAtABadIndexFailsAndTellsNothing)
{
    const auto before = m_control.Shown();
    SVqControlStateInfo info{77, VQ_TEXT("a"), VQ_TEXT("b"), VQ_TEXT("c")};
    for (const vq_int64 index : bad_indices) {
        SCOPED_TRACE(index);

        EXPECT_EQ(Command(vq_control_write_state, index, &info), -9);

        EXPECT_EQ(m_control.Shown(), before);
        EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
    }
}

// Clearing ------------------------------------------------------------------------------------------

TEST_F(CVqAbstractControlCommands, ClearLeavesRecordsAndCurrentState)
{
    m_control.setState(2);
    m_control.TakeSignals();
    const auto third = TestControl::ShownState(m_control.State(2));

    EXPECT_EQ(Command(vq_control_clear_states, 99), 0);

    EXPECT_EQ(m_control.m_uiStateCount, 0u);
    EXPECT_EQ(m_control.state(), 2);
    EXPECT_EQ(TestControl::ShownState(m_control.State(2)), third);
    EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
}

TEST_F(CVqAbstractControlCommands, AfterClearEachIndexIsBad)
{
    Command(vq_control_clear_states, 0);
    CVqStringW text;

    EXPECT_EQ(m_control.Get(vq_control_text, 0, &text), -17);
    EXPECT_EQ(m_control.Set(vq_control_text, 0, &text), 0);
    EXPECT_EQ(TestMenu::Plain(m_control.State(0).m_text), "text0");
}
