#include "tests/AbstractGui/WalkedBars.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using testing::ElementsAre;

// SetOrientation -----------------------------------------------------------------------------------------

struct Turn
{
    const char* name;
    EToolbarType type;
    const char* boundary; ///< Empty for none.
    TestToolbar::Lines lines;
};

class CVqAbstractToolbarSetOrientation : public testing::TestWithParam<Turn>
{ };

TEST_P(CVqAbstractToolbarSetOrientation, TurnsTheControlsThatItShows)
{
    const Turn& row = GetParam();
    WalkedBar bar(row.type == EToolbarType::InPicker ? EToolbarType::Main : row.type);
    const std::string boundary = row.boundary;
    bar.bar.m_pBoundary = boundary == "a" ? bar.bar.m_pControls->GetFirst()
        : boundary == "b"                 ? bar.bar.m_pControls->GetFirst()->GetNext()
        : boundary == "picker"            ? bar.bar.m_pControls->GetLast()
                                          : nullptr;
    TestToolbar shown(bar.bar);
    shown.m_eType = row.type;
    EOrientation orientation = EOrientation::Horizontal;

    EXPECT_EQ(shown.SetOrientation(EOrientation::Vertical), 0);

    EXPECT_EQ(bar.bar.TakeCalls(), row.lines);
    shown.GetOrientation(orientation);
    EXPECT_EQ(orientation, EOrientation::Vertical);
    shown.m_pControls = nullptr; // `bar` deletes it
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CVqAbstractToolbarSetOrientation,
    testing::Values(Turn{"MainWithEmptyPicker",
                         EToolbarType::Main,
                         "picker",
                         {"a.SetOrientation 1", "b.SetOrientation 1", "c.SetOrientation 1",
                          "picker.SetOrientation 1"}},
                    Turn{"MainSkipsWhatIsInThePicker",
                         EToolbarType::Main,
                         "b",
                         {"a.SetOrientation 1", "picker.SetOrientation 1"}},
                    Turn{"MainWithAllInThePicker", EToolbarType::Main, "a", {"picker.SetOrientation 1"}},
                    Turn{"InPickerTurnsWhatIsInItButNotThePicker",
                         EToolbarType::InPicker,
                         "b",
                         {"b.SetOrientation 1", "c.SetOrientation 1"}},
                    Turn{"InAnEmptyPickerNothingTurns", EToolbarType::InPicker, "picker", {}},
                    Turn{"OtherTypesTurnAll",
                         EToolbarType::Fixed,
                         "",
                         {"a.SetOrientation 1", "b.SetOrientation 1", "c.SetOrientation 1"}},
                    Turn{"OtherTypesStopAtABoundary", EToolbarType::Fixed, "b", {"a.SetOrientation 1"}}),
    [](const auto& row) { return row.param.name; });

TEST(CVqAbstractToolbarOrientation, IsStoredWithoutAListToo)
{
    TestToolbar bar;

    EXPECT_EQ(bar.SetOrientation(EOrientation::Vertical), -9);
    EXPECT_EQ(bar.m_eOrientation, EOrientation::Vertical);

    EXPECT_EQ(bar.ChangeToolbarOrientation(EOrientation::Horizontal), -9);
    EXPECT_EQ(bar.m_eOrientation, EOrientation::Horizontal);
}

TEST(CVqAbstractToolbarOrientation, NodesWithoutAControlAreSkipped)
{
    TestToolbar bar(EToolbarType::Fixed);
    bar.m_pControls->Append(nullptr);
    bar.Add("a");

    EXPECT_EQ(bar.SetOrientation(EOrientation::Vertical), 0);
    EXPECT_EQ(bar.ChangeToolbarOrientation(EOrientation::Vertical), 0);
    bar.SetFlatStyle(true);

    EXPECT_THAT(bar.TakeCalls(), ElementsAre("a.SetOrientation 1", "a.SetFlatStyle 1"));
}

// ChangeToolbarOrientation -------------------------------------------------------------------------------

TEST(CVqAbstractToolbarOrientation, ChangeTurnsSeparatorsOnly)
{
    WalkedBar bar(EToolbarType::Main);

    EXPECT_EQ(bar.bar.ChangeToolbarOrientation(EOrientation::Vertical), 0);

    EXPECT_THAT(bar.bar.TakeCalls(), ElementsAre("b.SetOrientation 1"));
    EXPECT_EQ(bar.bar.m_eOrientation, EOrientation::Vertical);
}

TEST(CVqAbstractToolbarOrientation, ChangeReachesSeparatorsInThePickerAndAPickerThatIsOne)
{
    WalkedBar bar(EToolbarType::Main);
    bar.a.AnswerSeparator(1);
    bar.bar.SetBoundary(bar.b);
    bar.bar.ThePicker().AnswerSeparator(1);

    bar.bar.ChangeToolbarOrientation(EOrientation::Vertical);

    EXPECT_THAT(bar.bar.TakeCalls(),
                ElementsAre("a.SetOrientation 1", "b.SetOrientation 1", "picker.SetOrientation 1"));
}

TEST(CVqAbstractToolbarOrientation, ChangeInAPickerStartsAtTheBoundary)
{
    PickedBar picked;
    picked.main.a.AnswerSeparator(1);

    EXPECT_EQ(picked.bar.ChangeToolbarOrientation(EOrientation::Vertical), 0);

    EXPECT_THAT(picked.main.bar.TakeCalls(), ElementsAre("b.SetOrientation 1"));
}

TEST(CVqAbstractToolbarOrientation, ChangeGoesByTheAnswerAndNotByItsResult)
{
    TestToolbar bar(EToolbarType::Fixed);
    bar.Add("a").AnswerSeparator(7, -9);

    bar.ChangeToolbarOrientation(EOrientation::Vertical);

    EXPECT_THAT(bar.TakeCalls(), ElementsAre("a.SetOrientation 1"));
}
