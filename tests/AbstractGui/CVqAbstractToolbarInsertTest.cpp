#include "tests/AbstractGui/ThreeControls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using OwnedControl = std::unique_ptr<RecordingControl>;

constexpr bool g_before = false;
constexpr bool g_after = true;

int insert(TestToolbar& bar, const IVqUIcontrol& anchor, IVqUIcontrol& control, vq_uint64& id, bool after)
{
    return after ? bar.InsertControlAfter(anchor, control, id) : bar.InsertControlBefore(anchor, control, id);
}

}

struct Insertion
{
    const char* name;
    EToolbarType type;
    char boundary; ///< A name, or 'p' for the picker.
    char anchor;
    bool after;
    const char* order;
    bool handed_over;
};

class CVqAbstractToolbarInsert : public testing::TestWithParam<Insertion>
{
protected:
    RecordingControl& Named(ThreeControls& three, char name)
    {
        switch (name) {
        case 'a':
            return three.a;
        case 'b':
            return three.b;
        case 'c':
            return three.c;
        default:
            return three.bar.ThePicker();
        }
    }
};

TEST_P(CVqAbstractToolbarInsert, StandsBesideItsAnchorAndGoesToThePickerBehindTheBoundary)
{
    const Insertion& row = GetParam();
    ThreeControls three(row.type);
    if (row.boundary != '-')
        three.bar.SetBoundary(Named(three, row.boundary));
    three.bar.m_bLayoutDirty = false;
    RecordingControl* control = three.bar.Make("x");
    vq_uint64 id = 0;

    EXPECT_EQ(insert(three.bar, Named(three, row.anchor), *control, id, row.after), 0);

    TestToolbar::Lines lines{"x.Set 160 1", "x.Set 162 1", "x.SetOrientation 0", "x.SetFlatStyle 0"};
    if (row.handed_over)
        lines.push_back("picker.Command 2308 x");
    EXPECT_EQ(three.bar.TakeCalls(), lines);
    EXPECT_EQ(three.bar.Order(), row.order);
    EXPECT_EQ(three.bar.GetControl(id), control);
    EXPECT_TRUE(three.bar.m_bLayoutDirty);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CVqAbstractToolbarInsert,
    testing::Values(
        Insertion{"BeforeOnTheToolbar", EToolbarType::Main, 'p', 'b', g_before, "a x b c |picker", false},
        Insertion{"AfterOnTheToolbar", EToolbarType::Main, 'p', 'b', g_after, "a b x c |picker", false},
        Insertion{"BeforeTheFirst", EToolbarType::Main, 'p', 'a', g_before, "x a b c |picker", false},
        Insertion{"AfterTheLastOnTheToolbar", EToolbarType::Main, 'p', 'c', g_after, "a b c x |picker",
                  false},
        Insertion{"BeforeAnEmptyPicker", EToolbarType::Main, 'p', 'p', g_before, "a b c x |picker", false},
        Insertion{"AfterAnEmptyPickerBreaksTheOrder", EToolbarType::Main, 'p', 'p', g_after,
                  "a b c |picker x", true},
        Insertion{"BeforeTheBoundaryStaysOnTheToolbar", EToolbarType::Main, 'b', 'b', g_before,
                  "a x |b c picker", false},
        Insertion{"AfterTheBoundaryFallsIntoThePicker", EToolbarType::Main, 'b', 'b', g_after,
                  "a |b x c picker", true},
        Insertion{"BeforeAnAnchorInThePicker", EToolbarType::Main, 'b', 'c', g_before, "a |b x c picker",
                  true},
        Insertion{"AfterAnAnchorInThePicker", EToolbarType::Main, 'b', 'c', g_after, "a |b c x picker", true},
        Insertion{"BeforeAPickerInUse", EToolbarType::Main, 'c', 'p', g_before, "a b |c x picker", true},
        Insertion{"AfterTheControlInFrontOfTheBoundary", EToolbarType::Main, 'b', 'a', g_after,
                  "a x |b c picker", false},
        Insertion{"AllInThePickerBeforeTheFirst", EToolbarType::Main, 'a', 'a', g_before, "x |a b c picker",
                  false},
        Insertion{"OtherTypesHaveNoPickerBefore", EToolbarType::Fixed, '-', 'a', g_before, "x a b c", false},
        Insertion{"OtherTypesHaveNoPickerAfter", EToolbarType::Fixed, '-', 'c', g_after, "a b c x", false},
        Insertion{"OtherTypesIgnoreABoundary", EToolbarType::Hosted, 'a', 'b', g_after, "|a b x c", false}),
    [](const auto& row) { return row.param.name; });

TEST(CVqAbstractToolbarInserting, ControlThatIsPresentIsRefused)
{
    for (const bool after : {g_before, g_after}) {
        ThreeControls three(EToolbarType::Main);
        vq_uint64 id = 42;

        EXPECT_EQ(insert(three.bar, three.a, three.c, id, after), -9);

        EXPECT_EQ(three.bar.Order(), "a b c |picker");
        EXPECT_THAT(three.bar.TakeCalls(), IsEmpty());
        EXPECT_EQ(id, 42u);
    }
}

TEST(CVqAbstractToolbarInserting, ForeignAnchorIsRefused)
{
    for (const bool after : {g_before, g_after}) {
        ThreeControls three(EToolbarType::Main);
        const OwnedControl anchor(three.bar.Make("anchor"));
        const OwnedControl control(three.bar.Make("x"));
        vq_uint64 id = 42;

        EXPECT_EQ(insert(three.bar, *anchor, *control, id, after), -9);

        EXPECT_EQ(three.bar.Order(), "a b c |picker");
        EXPECT_THAT(three.bar.TakeCalls(), IsEmpty());
        EXPECT_EQ(id, 42u);
    }
}

TEST(CVqAbstractToolbarInserting, ControlThatIsNotCreatedIsRefusedAndThePickerIsNotTold)
{
    for (const bool after : {g_before, g_after}) {
        ThreeControls three(EToolbarType::Main);
        three.bar.SetBoundary(three.a);
        three.bar.m_hWindow = 9;
        three.bar.m_bLayoutDirty = false;
        const OwnedControl control(three.bar.Make("x"));
        control->AnswerHandle(0);
        vq_uint64 id = 42;

        EXPECT_EQ(insert(three.bar, three.b, *control, id, after), -9);

        EXPECT_EQ(three.bar.Order(), "|a b c picker");
        EXPECT_THAT(three.bar.TakeCalls(), ElementsAre("x.Set 160 1", "x.Set 162 1", "x.CreateUI 9 = 0"));
        EXPECT_EQ(id, 42u);
        EXPECT_FALSE(three.bar.m_bLayoutDirty);
    }
}
