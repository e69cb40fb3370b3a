#include "tests/AbstractGui/RefusingControl.h"
#include "tests/support/TestButtonToolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A button of two states.
struct Button
{
    TestButtonToolbar bar;
    vq_uint64 id = bar.AddButton(VQ_TEXT("a"));

    Button()
    {
        bar.SetStatesCountOnButton(id, 2);
        bar.Settle();
    }
};

}

// Texts --------------------------------------------------------------------------------------------------

TEST(CVqAbstractButtonToolbarTexts, AllThreeAreSentWithTheTooltipFirst)
{
    Button button;

    EXPECT_EQ(button.bar.SetTextsOnButton(button.id, 1, VQ_TEXT("tip"), VQ_TEXT("Open"), VQ_TEXT("cmd")), 0);

    EXPECT_THAT(
        button.bar.TakeCalls(),
        ElementsAre("a.Set 259 state 1 \"tip\"", "a.Set 258 state 1 \"Open\"", "a.Set 257 state 1 \"cmd\""));
}

TEST(CVqAbstractButtonToolbarTexts, NullTextsAreEmpty)
{
    Button button;

    EXPECT_EQ(button.bar.SetTextsOnButton(button.id, 0, nullptr, nullptr, nullptr), 0);

    EXPECT_THAT(button.bar.TakeCalls(),
                ElementsAre("a.Set 259 state 0 \"\"", "a.Set 258 state 0 \"\"", "a.Set 257 state 0 \"\""));
}

TEST(CVqAbstractButtonToolbarTexts, TooltipAndCommandAreSetAlone)
{
    Button button;

    EXPECT_EQ(button.bar.SetTooltipOnButton(button.id, 1, VQ_TEXT("tip")), 0);
    EXPECT_EQ(button.bar.SetCommandOnButton(button.id, 0, VQ_TEXT("cmd")), 0);

    EXPECT_THAT(button.bar.TakeCalls(),
                ElementsAre("a.Set 259 state 1 \"tip\"", "a.Set 257 state 0 \"cmd\""));
}

TEST(CVqAbstractButtonToolbarTexts, TextsAreReadByState)
{
    Button button;
    button.bar.SetTextsOnButton(button.id, 0, VQ_TEXT("tip"), VQ_TEXT("Open"), VQ_TEXT("cmd"));
    button.bar.SetTextsOnButton(button.id, 1, VQ_TEXT("tip1"), VQ_TEXT("Open1"), VQ_TEXT("cmd1"));
    CVqStringW tooltip;
    CVqStringW text;
    CVqStringW command;

    EXPECT_EQ(button.bar.GetTooltipOnButton(button.id, 1, tooltip), 0);
    EXPECT_EQ(button.bar.GetTextOnButton(button.id, 1, text), 0);
    EXPECT_EQ(button.bar.GetCommandOnButton(button.id, 1, command), 0);

    EXPECT_EQ(tooltip, VQ_TEXT("tip1"));
    EXPECT_EQ(text, VQ_TEXT("Open1"));
    EXPECT_EQ(command, VQ_TEXT("cmd1"));
}

TEST(CVqAbstractButtonToolbarTexts, BadStateGivesTheControlsResultWhenRead)
{
    Button button;
    CVqStringW text(VQ_TEXT("before"));

    EXPECT_EQ(button.bar.GetTooltipOnButton(button.id, 2, text), -17);
    EXPECT_EQ(button.bar.GetTextOnButton(button.id, 2, text), -17);
    EXPECT_EQ(button.bar.GetCommandOnButton(button.id, 2, text), -17);

    EXPECT_EQ(text, VQ_TEXT("before"));
}

TEST(CVqAbstractButtonToolbarTexts, UnknownButtonIsNoErrorWhenSetButOneWhenRead)
{
    Button button;
    CVqStringW text;

    EXPECT_EQ(button.bar.SetTextsOnButton(4711, 0, VQ_TEXT("tip"), VQ_TEXT("Open"), VQ_TEXT("cmd")), 0);
    EXPECT_EQ(button.bar.SetTooltipOnButton(4711, 0, VQ_TEXT("tip")), 0);
    EXPECT_EQ(button.bar.SetCommandOnButton(4711, 0, VQ_TEXT("cmd")), 0);
    EXPECT_EQ(button.bar.GetTooltipOnButton(4711, 0, text), -9);
    EXPECT_EQ(button.bar.GetTextOnButton(4711, 0, text), -9);
    EXPECT_EQ(button.bar.GetCommandOnButton(4711, 0, text), -9);

    EXPECT_THAT(button.bar.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractButtonToolbarTexts, MissingToolbarIsNoErrorWhenSetButOneWhenRead)
{
    NoButtonToolbar bar;
    CVqStringW text;

    EXPECT_EQ(bar.SetTextsOnButton(1, 0, VQ_TEXT("tip"), VQ_TEXT("Open"), VQ_TEXT("cmd")), 0);
    EXPECT_EQ(bar.SetTooltipOnButton(1, 0, VQ_TEXT("tip")), 0);
    EXPECT_EQ(bar.SetCommandOnButton(1, 0, VQ_TEXT("cmd")), 0);
    EXPECT_EQ(bar.GetTooltipOnButton(1, 0, text), -9);
    EXPECT_EQ(bar.GetTextOnButton(1, 0, text), -9);
    EXPECT_EQ(bar.GetCommandOnButton(1, 0, text), -9);
}

// Name, state count, alignment ---------------------------------------------------------------------------

TEST(CVqAbstractButtonToolbarStates, NameIsSetAndRead)
{
    Button button;
    CVqStringW name;

    EXPECT_EQ(button.bar.GetButtonName(button.id, name), 0);
    EXPECT_EQ(name, VQ_TEXT("a"));
    EXPECT_EQ(button.bar.SetButtonName(button.id, VQ_TEXT("b")), 0);

    EXPECT_EQ(button.bar.GetButtonName(button.id, name), 0);
    EXPECT_EQ(name, VQ_TEXT("b"));
}

TEST(CVqAbstractButtonToolbarStates, StateCountIsSetAndRead)
{
    Button button;
    unsigned count = 0;

    EXPECT_EQ(button.bar.SetStatesCountOnButton(button.id, 3), 0);
    EXPECT_EQ(button.bar.GetStatesCountOnButton(button.id, count), 0);

    EXPECT_EQ(count, 3u);
    EXPECT_THAT(button.bar.TakeCalls(), ElementsAre("a.Set 4 3"));
}

TEST(CVqAbstractButtonToolbarStates, UnknownButtonAndMissingToolbarFail)
{
    Button button;
    NoButtonToolbar none;
    CVqStringW name(VQ_TEXT("before"));
    unsigned count = 5;

    for (CVqAbstractButtonToolbar* each : {static_cast<CVqAbstractButtonToolbar*>(&button.bar),
                                           static_cast<CVqAbstractButtonToolbar*>(&none)}) {
        EXPECT_EQ(each->GetButtonName(4711, name), -9);
        EXPECT_EQ(each->SetButtonName(4711, VQ_TEXT("b")), -9);
        EXPECT_EQ(each->SetStatesCountOnButton(4711, 3), -9);
        EXPECT_EQ(each->GetStatesCountOnButton(4711, count), -9);
    }
    EXPECT_EQ(name, VQ_TEXT("before"));
    EXPECT_EQ(count, 5u);
}

TEST(CVqAbstractButtonToolbarStates, TextAlignIsTheControls)
{
    Button button;

    EXPECT_EQ(button.bar.SetButtonTextAlign(button.id, 16), 0);

    EXPECT_THAT(button.bar.TakeCalls(), ElementsAre("a.SetTextAlign 16"));
}

TEST(CVqAbstractButtonToolbarStates, ControlsResultIsGivenButNotWhenTextsOrImagesAreSet)
{
    TestButtonToolbar bar;
    const vq_uint64 id = bar.AddGeneralControl(new RefusingControl("x", bar.Bar().m_calls), VQ_TEXT("x"));
    CVqStringW text;
    unsigned count = 0;

    EXPECT_EQ(bar.SetButtonTextAlign(id, 16), RefusingControl::Result);
    EXPECT_EQ(bar.SetButtonName(id, VQ_TEXT("y")), RefusingControl::Result);
    EXPECT_EQ(bar.GetButtonName(id, text), RefusingControl::Result);
    EXPECT_EQ(bar.SetStatesCountOnButton(id, 2), RefusingControl::Result);
    EXPECT_EQ(bar.GetStatesCountOnButton(id, count), RefusingControl::Result);
    EXPECT_EQ(bar.GetTextOnButton(id, 0, text), RefusingControl::Result);
    EXPECT_EQ(bar.SetTextsOnButton(id, 0, nullptr, nullptr, nullptr), 0);
    EXPECT_EQ(bar.SetBitmapOnButton(id, 0, 7u), 0);
}

// A concrete class that overrides the codes sees what goes through them ----------------------------------

namespace {

/// Writes its codes down instead of sending them.
class CodeNotes final : public TestButtonToolbar
{
public:
    int Set(vq_uint64, unsigned code, vq_int64 index, void*) override { return Note("Set", code, index); }
    int Get(vq_uint64, unsigned code, vq_int64 index, void*) override { return Note("Get", code, index); }

    Lines m_notes;

private:
    int Note(const std::string& operation, unsigned code, vq_int64 index)
    {
        m_notes.push_back(operation + " " + std::to_string(code) + " " + std::to_string(index));
        return 4;
    }
};

}

TEST(CVqAbstractButtonToolbarOwnCodes, NameCountTextsAndImageGoThroughThem)
{
    CodeNotes bar;
    CVqStringW text;
    unsigned count = 0;

    EXPECT_EQ(bar.GetButtonName(5, text), 4);
    EXPECT_EQ(bar.SetButtonName(5, VQ_TEXT("a")), 4);
    EXPECT_EQ(bar.SetStatesCountOnButton(5, 2), 4);
    EXPECT_EQ(bar.GetStatesCountOnButton(5, count), 4);
    EXPECT_EQ(bar.GetTextOnButton(5, 1, text), 4);
    EXPECT_EQ(bar.GetTooltipOnButton(5, 1, text), 4);
    EXPECT_EQ(bar.GetCommandOnButton(5, 1, text), 4);
    EXPECT_EQ(bar.SetBitmapOnButton(5, 1, 7u), 0);
    EXPECT_EQ(bar.GetBitmap(5, 1), -1);

    EXPECT_THAT(bar.m_notes,
                ElementsAre("Get 262 0", "Set 262 0", "Set 4 0", "Get 4 0", "Get 258 1", "Get 259 1",
                            "Get 257 1", "Set 260 1", "Get 260 1"));
}

TEST(CVqAbstractButtonToolbarOwnCodes, CheckAndTextsThatAreSetGoPastThem)
{
    CodeNotes bar;
    const vq_uint64 id = bar.AddButton(VQ_TEXT("a"));
    bar.Settle();

    bar.SetCheck(id, true);
    bar.SetTextsOnButton(id, 0, nullptr, nullptr, nullptr);

    EXPECT_TRUE(bar.GetCheck(id));
    EXPECT_FALSE(bar.IsIDSeparator(id));
    EXPECT_THAT(bar.m_notes, IsEmpty());
    EXPECT_EQ(bar.TakeCalls().size(), 4u);
}

TEST(CVqAbstractButtonToolbarStates, TextAlignOfAnUnknownButtonIsNoErrorButAMissingToolbarIs)
{
    Button button;
    NoButtonToolbar none;

    EXPECT_EQ(button.bar.SetButtonTextAlign(4711, 16), 0);
    EXPECT_EQ(none.SetButtonTextAlign(4711, 16), -9);
}
