#include "tests/AbstractGui/StoredControls.h"

#include <gmock/gmock.h>

#include <string>

using testing::IsEmpty;

// What both forms have in common: saving, and how commands are stored.

namespace {

template <class Form>
class CVqAbstractControlPersistence : public StoredControlFixture<Form>
{
protected:
    std::string command_loaded_from(const vq_wchar* stored)
    {
        this->load({{VQ_TEXT("State0"),
                     {{VQ_TEXT("m_command"), stored},
                      {VQ_TEXT("m_text"), VQ_TEXT("")},
                      {VQ_TEXT("m_tooltip"), VQ_TEXT("")}}}});
        return TestMenu::Plain(this->m_control.State(0).m_command);
    }

    std::string command_saved_as(const vq_wchar* command)
    {
        this->m_control.State(0).m_command = command;
        const std::string shown = saved_control<Form>(this->m_control);
        const auto start = shown.find("m_command=") + 10;
        return shown.substr(start, shown.find(" m_text=") - start);
    }
};

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(CVqAbstractControlPersistence, Forms, FormName);

}

// Saving ------------------------------------------------------------------------------------------

TYPED_TEST(CVqAbstractControlPersistence, NewControlSavesItsEmptyState)
{
    EXPECT_THAT(saved_control<TypeParam>(this->m_control),
                testing::HasSubstr("State0(" + std::string(empty_state) + ")"));
}

TYPED_TEST(CVqAbstractControlPersistence, StatesBelowTheCountAreSavedInOrder)
{
    this->m_control.FillStates(3);
    this->m_control.m_uiStateCount = 2;

    EXPECT_THAT(saved_control<TypeParam>(this->m_control),
                testing::HasSubstr(
                    "State0(m_bitmap=10 m_command=command0 m_text=text0 m_tooltip=tooltip0 m_filename= "
                    "m_resname= m_bkgcolor=30 m_frgcolor=20) "
                    "State1(m_bitmap=11 m_command=command1 m_text=text1 m_tooltip=tooltip1 m_filename= "
                    "m_resname= m_bkgcolor=31 m_frgcolor=21) "));
    EXPECT_THAT(saved_control<TypeParam>(this->m_control), testing::Not(testing::HasSubstr("State2")));
}

TYPED_TEST(CVqAbstractControlPersistence, ImageIsSavedByTheNamesOfThePoolAsTheyAre)
{
    this->m_pool.SetModule(VQ_TEXT("/app/app.so"));
    this->m_pool.SetSource(0, VQ_TEXT("/app/img/a.png"), VQ_TEXT("RES"));
    this->m_control.State(0).m_bitmap = 0;

    EXPECT_THAT(saved_control<TypeParam>(this->m_control),
                testing::HasSubstr(
                    "m_bitmap=0 m_command= m_text= m_tooltip= m_filename=/app/img/a.png m_resname=RES "));
}

TYPED_TEST(CVqAbstractControlPersistence, ThePoolIsNotAskedWithoutAnImage)
{
    this->m_pool.SetSource(0xFFFFFFFF, VQ_TEXT("a"), VQ_TEXT("b"));
    this->m_pool.SetSource(static_cast<vq_uint32>(-12), VQ_TEXT("a"), VQ_TEXT("b"));

    EXPECT_THAT(saved_control<TypeParam>(this->m_control), testing::HasSubstr("m_filename= m_resname= "));
    this->m_control.State(0).m_bitmap = -12;
    EXPECT_THAT(saved_control<TypeParam>(this->m_control), testing::HasSubstr("m_filename= m_resname= "));
}

TYPED_TEST(CVqAbstractControlPersistence, SavingChangesNothing)
{
    this->m_control.FillStates(2);
    this->m_control.State(0).m_command = VQ_TEXT("Run(\"x\")");
    const auto before = this->m_control.Shown();

    saved_control<TypeParam>(this->m_control);

    EXPECT_EQ(this->m_control.Shown(), before);
    EXPECT_THAT(this->m_control.TakeSignals(), IsEmpty());
}

// Commands ----------------------------------------------------------------------------------------

TYPED_TEST(CVqAbstractControlPersistence, QuotedArgumentIsSavedInDoubledParentheses)
{
    EXPECT_EQ(this->command_saved_as(VQ_TEXT("Run(\"x\")")), "Run((x))");
    EXPECT_EQ(this->command_loaded_from(VQ_TEXT("Run((x))")), "Run(\"x\")");
}

TYPED_TEST(CVqAbstractControlPersistence, OtherQuotesAreSavedAsTheyAre)
{
    EXPECT_EQ(this->command_saved_as(VQ_TEXT("Run( \"x\" ) \"y\"")), "Run( \"x\" ) \"y\"");
}

TYPED_TEST(CVqAbstractControlPersistence, EachQuotedArgumentIsReplaced)
{
    EXPECT_EQ(this->command_saved_as(VQ_TEXT("A(\"x\") B(\"y\", \"z\")")), "A((x)) B((y\", \"z))");
    EXPECT_EQ(this->command_loaded_from(VQ_TEXT("A((x)) B((y\", \"z))")), "A(\"x\") B(\"y\", \"z\")");
}

TYPED_TEST(CVqAbstractControlPersistence, OpeningIsReplacedBeforeClosing)
{
    EXPECT_EQ(this->command_saved_as(VQ_TEXT("(\")")), "(()"); // the quote belongs to the opening one
    EXPECT_EQ(this->command_loaded_from(VQ_TEXT("(()")), "(\")");
}

TYPED_TEST(CVqAbstractControlPersistence, DoubledParenthesesOfItsOwnComeBackChanged)
{
    EXPECT_EQ(this->command_saved_as(VQ_TEXT("Run((1 + 2) * 3)")), "Run((1 + 2) * 3)");
    EXPECT_EQ(this->command_loaded_from(VQ_TEXT("Run((1 + 2) * 3)")), "Run(\"1 + 2) * 3)");
    EXPECT_EQ(this->command_loaded_from(VQ_TEXT("Run(1 + (2))")), "Run(1 + (2\")");
}

TYPED_TEST(CVqAbstractControlPersistence, TextsAreNotReplaced)
{
    const SVqControlState& state = this->loaded({{VQ_TEXT("m_tooltip"), VQ_TEXT("((b))")}});
    EXPECT_EQ(TestMenu::Plain(state.m_tooltip), "((b))");

    this->m_control.State(0).m_text = VQ_TEXT("(\"c\")");
    EXPECT_THAT(saved_control<TypeParam>(this->m_control), testing::HasSubstr("m_text=(\"c\") "));
}
