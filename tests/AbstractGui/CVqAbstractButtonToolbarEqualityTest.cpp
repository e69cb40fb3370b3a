#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "tests/AbstractGui/StoredMenus.h"

#include <string>
#include <utility>

namespace {

using Entries = Stored::Children;

struct Comparison
{
    const char* name;
    Entries left;
    Entries right;
    bool equal;
};

// One button of one state with these fields.
Entries state(Stored::Children fields)
{
    return {{VQ_TEXT("a00x"), Stored::Children{{VQ_TEXT("State0"), std::move(fields)}}}};
}

Entries command(const vq_wchar* value)
{
    return state({{VQ_TEXT("m_command"), value}, {VQ_TEXT("m_tooltip"), VQ_TEXT("")}});
}

Entries bitmap(int value)
{
    return state({{VQ_TEXT("m_bitmap"), value}, {VQ_TEXT("m_tooltip"), VQ_TEXT("")}});
}

Entries text(const vq_wchar* value)
{
    return state({{VQ_TEXT("m_text"), value}, {VQ_TEXT("m_tooltip"), VQ_TEXT("")}});
}

Entries no_field()
{
    return state({{VQ_TEXT("m_tooltip"), VQ_TEXT("")}});
}

Entries button(const vq_wchar* name, Stored::Children fields = {{VQ_TEXT("m_Width"), 1}})
{
    return {{name, std::move(fields)}};
}

// A state that differs from others by its number.
Stored numbered_state(const vq_wchar* name, int number)
{
    return {name, Stored::Children{{VQ_TEXT("m_bitmap"), number}}};
}

class CVqAbstractButtonToolbarEquality : public testing::TestWithParam<Comparison>
{ };

}

TEST_P(CVqAbstractButtonToolbarEquality, IsTheSameFromBothSidesAndChangesNothing)
{
    const Comparison& row = GetParam();
    CVqVariant left = TreeForm::Make(row.left);
    CVqVariant right = TreeForm::Make(row.right);

    EXPECT_EQ(CVqAbstractButtonToolbar::IsEqual(left, right), row.equal);
    EXPECT_EQ(CVqAbstractButtonToolbar::IsEqual(right, left), row.equal);

    EXPECT_EQ(TreeForm::Show(left), TreeForm::Show(TreeForm::Make(row.left)));
    EXPECT_EQ(TreeForm::Show(right), TreeForm::Show(TreeForm::Make(row.right)));
}

INSTANTIATE_TEST_SUITE_P(
    Controls, CVqAbstractButtonToolbarEquality,
    testing::Values(Comparison{"BothEmpty", {}, {}, true},
                    Comparison{"CountsDiffer", button(VQ_TEXT("a00x")), {}, false},
                    Comparison{"SameName", button(VQ_TEXT("a00x")), button(VQ_TEXT("a00x")), true},
                    Comparison{"PrefixesDoNotCount", button(VQ_TEXT("a00x")), button(VQ_TEXT("zzzx")), true},
                    Comparison{"NamesDiffer", button(VQ_TEXT("a00x")), button(VQ_TEXT("a00y")), false},
                    Comparison{"NamesDifferInCase", button(VQ_TEXT("a00x")), button(VQ_TEXT("a00X")), false},
                    Comparison{"SeparatorAndButton", button(VQ_TEXT("a00")), button(VQ_TEXT("a00x")), false},
                    Comparison{"SeparatorsWhateverTheyHold",
                               button(VQ_TEXT("a00"), {numbered_state(VQ_TEXT("State0"), 1)}),
                               button(VQ_TEXT("b1")), true},
                    Comparison{"OrderDiffers",
                               {{VQ_TEXT("a00x"), Stored::Children{}}, {VQ_TEXT("a01y"), Stored::Children{}}},
                               {{VQ_TEXT("a00y"), Stored::Children{}}, {VQ_TEXT("a01x"), Stored::Children{}}},
                               false},
                    Comparison{"OtherFieldsDoNotCount", button(VQ_TEXT("a00x"), {{VQ_TEXT("m_Width"), 1}}),
                               button(VQ_TEXT("a00x"), {{VQ_TEXT("m_Width"), 2}}), true},
                    Comparison{"ToolbarNamesDiffer",
                               {{VQ_TEXT("ToolbarName"), VQ_TEXT("one")}},
                               {{VQ_TEXT("ToolbarName"), VQ_TEXT("two")}},
                               true},
                    Comparison{"ToolbarNameInOneOnly", {{VQ_TEXT("ToolbarName"), VQ_TEXT("one")}}, {}, false},
                    Comparison{"SecondControlDiffers",
                               {{VQ_TEXT("a00"), Stored::Children{}},
                                {VQ_TEXT("a01x"), Stored::Children{numbered_state(VQ_TEXT("State0"), 1)}}},
                               {{VQ_TEXT("a00"), Stored::Children{}},
                                {VQ_TEXT("a01x"), Stored::Children{numbered_state(VQ_TEXT("State0"), 2)}}},
                               false}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    States, CVqAbstractButtonToolbarEquality,
    testing::Values(
        Comparison{"StateInOneOnly", button(VQ_TEXT("a00x"), {numbered_state(VQ_TEXT("State0"), 1)}),
                   button(VQ_TEXT("a00x")), false},
        Comparison{"SecondStateInOneOnly",
                   button(VQ_TEXT("a00x"),
                          {numbered_state(VQ_TEXT("State0"), 1), numbered_state(VQ_TEXT("State1"), 1)}),
                   button(VQ_TEXT("a00x"), {numbered_state(VQ_TEXT("State0"), 1)}), false},
        Comparison{"SecondStateDiffers",
                   button(VQ_TEXT("a00x"),
                          {numbered_state(VQ_TEXT("State0"), 1), numbered_state(VQ_TEXT("State1"), 1)}),
                   button(VQ_TEXT("a00x"),
                          {numbered_state(VQ_TEXT("State0"), 1), numbered_state(VQ_TEXT("State1"), 2)}),
                   false},
        Comparison{"StatesBehindAGapDoNotCount",
                   button(VQ_TEXT("a00x"),
                          {numbered_state(VQ_TEXT("State0"), 1), numbered_state(VQ_TEXT("State2"), 1)}),
                   button(VQ_TEXT("a00x"),
                          {numbered_state(VQ_TEXT("State0"), 1), numbered_state(VQ_TEXT("State2"), 2)}),
                   true},
        Comparison{"OrderOfStatesDoesNotCount",
                   button(VQ_TEXT("a00x"),
                          {numbered_state(VQ_TEXT("State0"), 1), numbered_state(VQ_TEXT("State1"), 2)}),
                   button(VQ_TEXT("a00x"),
                          {numbered_state(VQ_TEXT("State1"), 2), numbered_state(VQ_TEXT("State0"), 1)}),
                   true}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Fields, CVqAbstractButtonToolbarEquality,
    testing::Values(Comparison{"NoFields", no_field(), no_field(), true},
                    Comparison{"SameCommand", command(VQ_TEXT("run")), command(VQ_TEXT("run")), true},
                    Comparison{"CommandsDiffer", command(VQ_TEXT("run")), command(VQ_TEXT("Run")), false},
                    Comparison{"EmptyCommandAndAnother", command(VQ_TEXT("")), command(VQ_TEXT("run")),
                               false},
                    Comparison{"CommandInOneOnly", command(VQ_TEXT("")), no_field(), false},
                    Comparison{"SameImage", bitmap(3), bitmap(3), true},
                    Comparison{"ImagesDiffer", bitmap(3), bitmap(-1), false},
                    Comparison{"ImageInOneOnly", bitmap(0), no_field(), false},
                    Comparison{"TextsDiffer", text(VQ_TEXT("Open")), text(VQ_TEXT("Oeffnen")), true},
                    Comparison{"BothTextsEmpty", text(VQ_TEXT("")), text(VQ_TEXT("")), true},
                    Comparison{"OneTextEmpty", text(VQ_TEXT("Open")), text(VQ_TEXT("")), false},
                    Comparison{"TextInOneOnly", text(VQ_TEXT("")), no_field(), false},
                    Comparison{"TooltipsDiffer", state({{VQ_TEXT("m_tooltip"), VQ_TEXT("one")}}),
                               state({{VQ_TEXT("m_tooltip"), VQ_TEXT("two")}}), true}),
    [](const auto& row) { return row.param.name; });
