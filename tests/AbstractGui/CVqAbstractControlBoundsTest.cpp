#include "AbstractGui/SVqControlStateInfo.h"
#include "AbstractGui/VqControlCodes.h"
#include "tests/AbstractGui/StoredMenus.h"
#include "tests/AbstractGui/TestControl.h"

#include <gmock/gmock.h>

#include <limits>
#include <string>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

// What a caller must not do, and what never leaves the room for states all the same.

namespace {

struct OutsideRow
{
    const char* name;
    int state;
};

void PrintTo(const OutsideRow& row, std::ostream* out)
{
    *out << row.name;
}

/// A control with all 32 states whose current state is none of them.
class CVqAbstractControlOutside : public testing::TestWithParam<OutsideRow>
{
protected:
    CVqAbstractControlOutside()
    {
        m_control.FillStates(32);
        m_control.m_iState = GetParam().state;
    }

    TestControl m_control;
};

const OutsideRow outside_rows[] = {
    {"BehindTheLast", 32},
    {"Largest", std::numeric_limits<int>::max()},
    {"MinusOne", -1},
    {"Least", std::numeric_limits<int>::min()},
};

/// A control whose derived class tells of more states than there is room for.
class CVqAbstractControlOverfull : public testing::Test
{
protected:
    CVqAbstractControlOverfull()
    {
        m_control.FillStates(32);
        m_control.m_uiStateCount = 33;
    }

    TestControl m_control;
};

}

TEST_P(CVqAbstractControlOutside, ReadsAsNoImageAndNoLabel)
{
    EXPECT_EQ(m_control.bitmap(), -1);
    EXPECT_EQ(m_control.label(), QString());
}

TEST_P(CVqAbstractControlOutside, SettersStoreNothingAndTellNothing)
{
    const auto before = m_control.Shown();

    m_control.setBitmap(99);
    m_control.setLabel(u"New"_s);

    EXPECT_EQ(m_control.Shown(), before);
    EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
}

TEST_P(CVqAbstractControlOutside, CanBeSetAndRead)
{
    m_control.setState(0);
    m_control.TakeSignals();

    m_control.setState(GetParam().state);

    EXPECT_EQ(m_control.state(), GetParam().state);
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("state", "bitmap", "label"));
}

TEST_P(CVqAbstractControlOutside, DeletingAStateMakesStateZeroTheCurrentOne)
{
    m_control.Command(vq_control_delete_state, 5, nullptr);

    EXPECT_EQ(m_control.state(), 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, CVqAbstractControlOutside, testing::ValuesIn(outside_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(CVqAbstractControlOverfull, GetGivesABadIndex)
{
    int bitmap = 4711;

    EXPECT_EQ(m_control.Get(vq_control_bitmap, 32, &bitmap), -17);
    EXPECT_EQ(bitmap, 4711);
}

TEST_F(CVqAbstractControlOverfull, SetChangesNothing)
{
    const auto before = m_control.Shown();
    CVqStringW text(VQ_TEXT("New"));

    EXPECT_EQ(m_control.Set(vq_control_command, 32, &text), 0);

    EXPECT_EQ(m_control.Shown(), before);
}

TEST_F(CVqAbstractControlOverfull, CommandsGiveABadIndex)
{
    const auto before = m_control.Shown();
    SVqControlStateInfo info;

    EXPECT_EQ(m_control.Command(vq_control_read_state, 32, &info), -9);
    EXPECT_EQ(m_control.Command(vq_control_write_state, 32, &info), -9);
    EXPECT_EQ(m_control.Command(vq_control_delete_state, 32, nullptr), -9);

    EXPECT_EQ(m_control.Shown(), before);
}

TEST_F(CVqAbstractControlOverfull, DeletingAStateLeavesThirtyOne)
{
    EXPECT_EQ(m_control.Command(vq_control_delete_state, 0, nullptr), 0);

    EXPECT_EQ(m_control.m_uiStateCount, 31u);
    EXPECT_EQ(TestMenu::Plain(m_control.State(30).m_text), "text31");
}

TEST_F(CVqAbstractControlOverfull, TooltipsReachTheThirtyTwo)
{
    CVqStringW text(VQ_TEXT("New"));

    m_control.SetDesriptionText(text);

    EXPECT_EQ(TestMenu::Plain(m_control.State(31).m_tooltip), "New");
}

TEST_F(CVqAbstractControlOverfull, SaveWritesTheThirtyTwo)
{
    CVqVariant tree;
    m_control.Save(tree);
    CVqLiteVariantR lite = LiteForm::Filled([&](CVqLiteVariantW& out) { m_control.Save(out); });
    lite.CurrentLevelBegin();

    EXPECT_FALSE(tree[VQ_TEXT("State31")].IsEmpty());
    EXPECT_TRUE(tree[VQ_TEXT("State32")].IsEmpty());
    EXPECT_TRUE(lite.IsValueSet(VQ_TEXT("State31")));
    EXPECT_FALSE(lite.IsValueSet(VQ_TEXT("State32")));
}

// Texts that are handed in may be those of the control ----------------------------------------------

TEST(CVqAbstractControlOwnTexts, TextsOfAStateCanChangePlaces)
{
    TestControl control;
    control.FillStates(1);
    control.State(0).m_text = VQ_TEXT("a text that is too long to lie inside of its string");
    control.State(0).m_tooltip = VQ_TEXT("another text that is too long to lie inside of its string");
    SVqControlStateInfo info;
    control.Command(vq_control_read_state, 0, &info);
    std::swap(info.text, info.tooltip);

    control.Command(vq_control_write_state, 0, &info);

    EXPECT_EQ(TestMenu::Plain(control.State(0).m_text),
              "another text that is too long to lie inside of its string");
    EXPECT_EQ(TestMenu::Plain(control.State(0).m_tooltip),
              "a text that is too long to lie inside of its string");
}

TEST(CVqAbstractControlOwnTexts, OwnTooltipCanBecomeThatOfAllStates)
{
    TestControl control;
    control.FillStates(3);

    control.SetDesriptionText(control.State(1).m_tooltip);

    EXPECT_EQ(TestMenu::Plain(control.State(0).m_tooltip), "tooltip1");
    EXPECT_EQ(TestMenu::Plain(control.State(2).m_tooltip), "tooltip1");
}
