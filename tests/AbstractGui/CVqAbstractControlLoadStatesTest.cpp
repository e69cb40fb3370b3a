#include "tests/AbstractGui/StoredControls.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

// States that are loaded, in what both forms have in common.

namespace {

template <class Form>
class CVqAbstractControlLoadStates : public StoredControlFixture<Form>
{ };

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(CVqAbstractControlLoadStates, Forms, FormName);

}

TYPED_TEST(CVqAbstractControlLoadStates, StateIsRead)
{
    this->m_pool.SetNextIndex(200);

    EXPECT_EQ(this->load({{VQ_TEXT("State0"),
                           {{VQ_TEXT("m_bitmap"), 5},
                            {VQ_TEXT("m_command"), VQ_TEXT("command")},
                            {VQ_TEXT("m_text"), VQ_TEXT("text")},
                            {VQ_TEXT("m_tooltip"), VQ_TEXT("tooltip")},
                            {VQ_TEXT("m_filename"), VQ_TEXT("file")},
                            {VQ_TEXT("m_resname"), VQ_TEXT("res")},
                            {VQ_TEXT("m_bkgcolor"), 0xFF000001u},
                            {VQ_TEXT("m_frgcolor"), 2u}}}}),
              0);

    EXPECT_THAT(TestControl::ShownState(this->m_control.State(0)),
                ElementsAre("bitmap=200", "text=text", "command=command", "tooltip=tooltip", "frgcolor=2",
                            "bkgcolor=4278190081", "additionalcolor=4294967295", "userValue=0"));
    EXPECT_EQ(this->m_control.m_uiStateCount, 1u);
}

TYPED_TEST(CVqAbstractControlLoadStates, StoredImageIndexIsNotRead)
{
    EXPECT_EQ(this->loaded({{VQ_TEXT("m_bitmap"), 5}}).m_bitmap, -1);
}

TYPED_TEST(CVqAbstractControlLoadStates, ImageIsAddedByItsNames)
{
    this->m_pool.TakeCalls();

    this->loaded({{VQ_TEXT("m_filename"), VQ_TEXT("a.png")}, {VQ_TEXT("m_resname"), VQ_TEXT("RES")}});

    EXPECT_THAT(this->m_pool.TakeCalls(), ElementsAre("AddImage a.png, RES, null = 101"));
    EXPECT_EQ(this->m_control.bitmap(), 101);
}

TYPED_TEST(CVqAbstractControlLoadStates, ImageWithoutAResourceIsAddedWithAnEmptyOne)
{
    this->m_pool.TakeCalls();

    this->loaded({{VQ_TEXT("m_filename"), VQ_TEXT("a.png")}});

    EXPECT_THAT(this->m_pool.TakeCalls(), ElementsAre("AddImage a.png, , null = 101"));
}

TYPED_TEST(CVqAbstractControlLoadStates, ResourceAloneGivesNoImage)
{
    this->m_control.State(0).m_bitmap = 5;
    this->m_pool.TakeCalls();

    EXPECT_EQ(this->loaded({{VQ_TEXT("m_resname"), VQ_TEXT("RES")}}).m_bitmap, -1);
    EXPECT_THAT(this->m_pool.TakeCalls(), IsEmpty());
}

TYPED_TEST(CVqAbstractControlLoadStates, ThePoolsCodeBecomesTheImage)
{
    this->m_pool.SetNextIndex(-13);

    EXPECT_EQ(this->loaded({{VQ_TEXT("m_filename"), VQ_TEXT("a.png")}}).m_bitmap, -13);
}

TYPED_TEST(CVqAbstractControlLoadStates, MissingColoursStay)
{
    this->m_control.FillStates(1);

    const SVqControlState& state = this->loaded({});

    EXPECT_EQ(state.m_frgcolor, 20u);
    EXPECT_EQ(state.m_bkgcolor, 30u);
}

TYPED_TEST(CVqAbstractControlLoadStates, FieldsThatAreNotStoredStay)
{
    this->m_control.FillStates(1);

    const SVqControlState& state = this->loaded({});

    EXPECT_EQ(state.m_additionalcolor, 40u);
    EXPECT_EQ(state.m_userValue, 50u);
}

TYPED_TEST(CVqAbstractControlLoadStates, StatesEndAtTheFirstMissingNumber)
{
    EXPECT_EQ(this->load({{VQ_TEXT("State0"), stored_state()},
                          {VQ_TEXT("State1"), stored_state()},
                          {VQ_TEXT("State3"), stored_state()}}),
              0);

    EXPECT_EQ(this->m_control.m_uiStateCount, 2u);
}

TYPED_TEST(CVqAbstractControlLoadStates, StatesMayStandInAnyOrder)
{
    EXPECT_EQ(this->load({{VQ_TEXT("State2"), stored_state({{VQ_TEXT("m_bkgcolor"), 2u}})},
                          {VQ_TEXT("other"), 1},
                          {VQ_TEXT("State0"), stored_state({{VQ_TEXT("m_bkgcolor"), 0u}})},
                          {VQ_TEXT("State1"), stored_state({{VQ_TEXT("m_bkgcolor"), 1u}})}}),
              0);

    EXPECT_EQ(this->m_control.m_uiStateCount, 3u);
    for (const vq_uint32 number : {0u, 1u, 2u})
        EXPECT_EQ(this->m_control.State(number).m_bkgcolor, number);
}

TYPED_TEST(CVqAbstractControlLoadStates, StateNumberHasNoLeadingZero)
{
    EXPECT_EQ(this->load({{VQ_TEXT("State00"), stored_state()}}), -9);

    EXPECT_EQ(this->m_control.m_uiStateCount, 0u);
}

TYPED_TEST(CVqAbstractControlLoadStates, FewerStatesThanBeforeLeaveTheOtherRecords)
{
    this->m_control.FillStates(3);
    const auto third = TestControl::ShownState(this->m_control.State(2));

    this->load({{VQ_TEXT("State0"), stored_state()}});

    EXPECT_EQ(this->m_control.m_uiStateCount, 1u);
    EXPECT_EQ(TestControl::ShownState(this->m_control.State(2)), third);
}

TYPED_TEST(CVqAbstractControlLoadStates, CurrentStateStaysAndMayLieAboveTheCount)
{
    this->m_control.FillStates(3);
    this->m_control.m_iState = 2;

    EXPECT_EQ(this->load({{VQ_TEXT("State0"), stored_state()}}), 0);

    EXPECT_EQ(this->m_control.state(), 2);
}

// Missing texts -----------------------------------------------------------------------------------

TYPED_TEST(CVqAbstractControlLoadStates, StateWithoutItsLabelCountsAndIsReadAllTheSame)
{
    EXPECT_EQ(this->load({{VQ_TEXT("State0"),
                           {{VQ_TEXT("m_command"), VQ_TEXT("command")},
                            {VQ_TEXT("m_tooltip"), VQ_TEXT("tooltip")},
                            {VQ_TEXT("m_filename"), VQ_TEXT("a.png")},
                            {VQ_TEXT("m_bkgcolor"), 1u},
                            {VQ_TEXT("m_frgcolor"), 2u}}},
                          {VQ_TEXT("State1"), stored_state()},
                          {VQ_TEXT("TranslateTooltip"), 1}}),
              -9);

    EXPECT_EQ(this->m_control.m_uiStateCount, 2u);
    EXPECT_TRUE(this->m_control.m_bTranslateTooltip);
    EXPECT_THAT(TestControl::ShownState(this->m_control.State(0)),
                ElementsAre("bitmap=101", "text=", "command=command", "tooltip=tooltip", "frgcolor=2",
                            "bkgcolor=1", "additionalcolor=4294967295", "userValue=0"));
}

TYPED_TEST(CVqAbstractControlLoadStates, EachMissingTextFailsAndKeepsWhatWasThere)
{
    for (const vq_wchar* missing : {VQ_TEXT("m_command"), VQ_TEXT("m_text"), VQ_TEXT("m_tooltip")}) {
        SCOPED_TRACE(TestMenu::Plain(missing));
        this->m_control.FillStates(1);
        this->m_control.State(0).m_command = VQ_TEXT("command((0))"); // not replaced when it is not read
        Stored::Children state;
        for (const vq_wchar* name : {VQ_TEXT("m_command"), VQ_TEXT("m_text"), VQ_TEXT("m_tooltip")})
            if (!VqEquals(name, missing))
                state.emplace_back(name, VQ_TEXT("new"));

        EXPECT_EQ(this->load({{VQ_TEXT("State0"), state}}), -9);

        const SVqControlState& loaded = this->m_control.State(0);
        const bool is_command = VqEquals(missing, VQ_TEXT("m_command"));
        const bool is_text = VqEquals(missing, VQ_TEXT("m_text"));
        EXPECT_EQ(TestMenu::Plain(loaded.m_command), is_command ? "command((0))" : "new");
        EXPECT_EQ(TestMenu::Plain(loaded.m_text), is_text ? "text0" : "new");
        EXPECT_EQ(TestMenu::Plain(loaded.m_tooltip), !is_command && !is_text ? "tooltip0" : "new");
    }
}

TYPED_TEST(CVqAbstractControlLoadStates, AFailureOfAnEarlierStateIsTheResult)
{
    EXPECT_EQ(this->load({{VQ_TEXT("State0"), {{VQ_TEXT("m_text"), VQ_TEXT("")}}},
                          {VQ_TEXT("State1"), stored_state()}}),
              -9);

    EXPECT_EQ(this->m_control.m_uiStateCount, 2u);
}

TYPED_TEST(CVqAbstractControlLoadStates, EmptyContainerFailsAndLeavesNoState)
{
    EXPECT_EQ(this->load({}), -9);

    EXPECT_EQ(this->m_control.m_uiStateCount, 0u);
}

TYPED_TEST(CVqAbstractControlLoadStates, WithoutStatesTheRestIsReadAllTheSame)
{
    EXPECT_EQ(this->load({{VQ_TEXT("m_Width"), 10},
                          {VQ_TEXT("m_Height"), 20},
                          {VQ_TEXT("m_Visibility"), false},
                          {VQ_TEXT("TranslateTooltip"), 1},
                          {VQ_TEXT("type"), 3}}),
              -9);

    EXPECT_EQ(this->m_control.m_size, (CVqSizeBase<int>{10, 20}));
    EXPECT_FALSE(this->m_control.m_bVisible);
    EXPECT_TRUE(this->m_control.m_bTranslateTooltip);
    EXPECT_EQ(this->m_control.type(), 3);
}

TYPED_TEST(CVqAbstractControlLoadStates, TheFirstThirtyTwoStatesAreKept)
{
    for (const int stored : {32, 33, 40}) {
        SCOPED_TRACE(stored);
        this->m_control.m_uiStateCount = 0;
        this->m_pool.TakeCalls();
        Stored::Children fields;
        for (int i = 0; i < stored; ++i)
            fields.emplace_back(
                CVqStringW(VQ_TEXT("State")).AddInt(i),
                stored_state({{VQ_TEXT("m_filename"), VQ_TEXT("a.png")}, {VQ_TEXT("m_bkgcolor"), i}}));

        EXPECT_EQ(this->load(fields), stored > 32 ? -9 : 0);

        EXPECT_EQ(this->m_control.m_uiStateCount, 32u);
        EXPECT_EQ(this->m_control.State(31).m_bkgcolor, 31u);
        EXPECT_EQ(this->m_pool.TakeCalls().size(), 32u);
    }
}
