#include "tests/AbstractGui/StoredControls.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gmock/gmock.h>

#include <string>

using testing::ElementsAre;
using testing::IsEmpty;

// What is loaded beside the states, in what both forms have in common.

namespace {

/// Translates each text as long as it lives.
class ScopedUpperCase : public QTranslator
{
public:
    ScopedUpperCase() { QCoreApplication::installTranslator(this); }
    ~ScopedUpperCase() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char*, const char* text, const char*, int) const override
    {
        return QString::fromUtf8(text).toUpper();
    }
};

template <class Form>
class CVqAbstractControlLoadFlags : public StoredControlFixture<Form>
{ };

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(CVqAbstractControlLoadFlags, Forms, FormName);

}

TYPED_TEST(CVqAbstractControlLoadFlags, MissingFlagsStay)
{
    this->m_control.m_bVisible = false;
    this->m_control.m_bTranslateTooltip = true;

    this->load({{VQ_TEXT("State0"), stored_state()}});

    EXPECT_FALSE(this->m_control.m_bVisible);
    EXPECT_TRUE(this->m_control.m_bTranslateTooltip);
}

TYPED_TEST(CVqAbstractControlLoadFlags, StoredFlagsAreTaken)
{
    this->m_control.m_bVisible = false;
    this->m_control.m_bTranslateTooltip = true;

    this->load({{VQ_TEXT("m_Visibility"), true}, {VQ_TEXT("TranslateTooltip"), 0}});

    EXPECT_TRUE(this->m_control.m_bVisible);
    EXPECT_FALSE(this->m_control.m_bTranslateTooltip);
}

TYPED_TEST(CVqAbstractControlLoadFlags, VisibilityIsAnyNumberButZero)
{
    this->m_control.m_bVisible = false;
    this->load({{VQ_TEXT("m_Visibility"), -2}});
    EXPECT_TRUE(this->m_control.m_bVisible);

    this->load({{VQ_TEXT("m_Visibility"), 0u}});
    EXPECT_FALSE(this->m_control.m_bVisible);
}

TYPED_TEST(CVqAbstractControlLoadFlags, MissingTypeIsZero)
{
    this->m_control.m_iType = 3;

    this->load({{VQ_TEXT("State0"), stored_state()}});

    EXPECT_EQ(this->m_control.type(), 0);
}

TYPED_TEST(CVqAbstractControlLoadFlags, OnlyAChangedVisibilityIsTold)
{
    const Stored::Children fields{
        {VQ_TEXT("State0"), stored_state({{VQ_TEXT("m_filename"), VQ_TEXT("a.png")}})},
        {VQ_TEXT("m_Visibility"), false},
        {VQ_TEXT("TranslateTooltip"), 1},
        {VQ_TEXT("type"), 3}};

    this->load(fields);
    EXPECT_THAT(this->m_control.TakeSignals(), ElementsAre("state"));

    this->load(fields);
    EXPECT_THAT(this->m_control.TakeSignals(), IsEmpty());
}

TYPED_TEST(CVqAbstractControlLoadFlags, VisibilityGoesThroughTheControlsOwnOperation)
{
    struct Watched : TestControl
    {
        void SetControlVisibility(bool visible) override { calls.push_back(visible ? "show" : "hide"); }

        Lines calls;
    };
    Watched control;

    load_control<TypeParam>(control, {{VQ_TEXT("m_Visibility"), true}});
    load_control<TypeParam>(control, {{VQ_TEXT("State0"), stored_state()}});

    EXPECT_THAT(control.calls, ElementsAre("show"));
}

TYPED_TEST(CVqAbstractControlLoadFlags, NothingIsTranslated)
{
    const ScopedUpperCase translator;
    this->m_control.m_bTranslateTooltip = true;
    this->m_control.FillStates(1);

    const std::string saved = saved_control<TypeParam>(this->m_control);
    this->load({{VQ_TEXT("State0"),
                 {{VQ_TEXT("m_command"), VQ_TEXT("command")},
                  {VQ_TEXT("m_text"), VQ_TEXT("text")},
                  {VQ_TEXT("m_tooltip"), VQ_TEXT("tooltip")}}},
                {VQ_TEXT("TranslateTooltip"), 1}});

    EXPECT_THAT(saved, testing::HasSubstr("m_command=command0 m_text=text0 m_tooltip=tooltip0"));
    EXPECT_THAT(TestControl::ShownState(this->m_control.State(0)),
                testing::IsSupersetOf({"text=text", "command=command", "tooltip=tooltip"}));
}
