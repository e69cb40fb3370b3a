#include "tests/support/TestButtonToolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using testing::IsEmpty;

namespace {

enum class Place
{
    End,
    Before,
    After,
};

/// One of the operations that add a control, beside `anchor` or at the end.
struct Adder
{
    const char* name;
    Place place;
    const char* factory; ///< The line of its factory; null when it takes a control of the caller.
    const char* made;    ///< What the new control is called until it gets a name.
    vq_uint64 (*add)(CVqAbstractButtonToolbar& bar, vq_uint64 anchor, IVqUIcontrol* control,
                     const vq_wchar* name);
};

std::ostream& operator<<(std::ostream& out, const Adder& adder)
{
    return out << adder.name;
}

#define ADDER(operation, place, factory, made, ...)                                                          \
    Adder                                                                                                    \
    {                                                                                                        \
        #operation, place, factory, made,                                                                    \
            [](CVqAbstractButtonToolbar& bar, [[maybe_unused]] vq_uint64 anchor,                             \
               [[maybe_unused]] IVqUIcontrol* control,                                                       \
               const vq_wchar* name) { return bar.operation(__VA_ARGS__); }                                  \
    }

constexpr const char* g_button = "CreateControlButton 1";
constexpr const char* g_text = "CreateTextButton";
constexpr const char* g_separator = "CreateSeparator";

const Adder g_adders[] = {
    ADDER(AddButton, Place::End, g_button, "button", name),
    ADDER(InsertButtonBefore, Place::Before, g_button, "button", anchor, name),
    ADDER(InsertButtonAfter, Place::After, g_button, "button", anchor, name),
    ADDER(AddTextButton, Place::End, g_text, "text", name),
    ADDER(InsertTextButtonBefore, Place::Before, g_text, "text", anchor, name),
    ADDER(InsertTextButtonAfter, Place::After, g_text, "text", anchor, name),
    ADDER(AppendSeparator, Place::End, g_separator, "separator", name),
    ADDER(InsertSeparatorBefore, Place::Before, g_separator, "separator", anchor, name),
    ADDER(InsertSeparatorAfter, Place::After, g_separator, "separator", anchor, name),
    ADDER(AddGeneralControl, Place::End, nullptr, "general", control, name),
    ADDER(InsertGeneralControlBefore, Place::Before, nullptr, "general", anchor, control, name),
    ADDER(InsertGeneralControlAfter, Place::After, nullptr, "general", anchor, control, name),
};

#undef ADDER

std::string order_with(Place place, const std::string& control)
{
    switch (place) {
    case Place::End:
        return "a b c " + control + " |picker";
    case Place::Before:
        return "a " + control + " b c |picker";
    default:
        return "a b " + control + " c |picker";
    }
}

class CVqAbstractButtonToolbarAdder : public testing::TestWithParam<Adder>
{
protected:
    CVqAbstractButtonToolbarAdder()
    {
        m_bar.AddButton(VQ_TEXT("a"));
        m_anchor = m_bar.AddButton(VQ_TEXT("b"));
        m_bar.AddButton(VQ_TEXT("c"));
        m_bar.Settle();
    }

    bool TakesControl() const { return !GetParam().factory; }
    bool IsSeparator() const { return GetParam().factory == g_separator; }

    /// Calls the adder; a control of the caller's own is made for one that takes it.
    vq_uint64 Add(const vq_wchar* name)
    {
        if (TakesControl())
            m_control.reset(m_bar.Bar().Make("general"));
        const vq_uint64 id = GetParam().add(m_bar, m_anchor, m_control.get(), name);
        if (id != 0)
            m_control.release();
        return id;
    }

    /// The lines of a control that was made and added under this name.
    TestButtonToolbar::Lines LinesOf(const std::string& name, bool is_named) const
    {
        TestButtonToolbar::Lines lines;
        if (GetParam().factory)
            lines.push_back(GetParam().factory);
        if (is_named)
            lines.push_back(std::string(GetParam().made) + ".Set 262 \"" + name + "\"");
        for (const char* line : {".Set 160 1", ".Set 162 1", ".SetOrientation 0", ".SetFlatStyle 0"})
            lines.push_back(name + line);
        return lines;
    }

    TestButtonToolbar m_bar;
    vq_uint64 m_anchor = 0;
    std::unique_ptr<RecordingControl> m_control;
};

/// Only those that have an anchor.
class CVqAbstractButtonToolbarInserter : public CVqAbstractButtonToolbarAdder
{ };

std::vector<Adder> inserters()
{
    std::vector<Adder> found(std::begin(g_adders), std::end(g_adders));
    std::erase_if(found, [](const Adder& adder) { return adder.place == Place::End; });
    return found;
}

}

TEST_P(CVqAbstractButtonToolbarAdder, ControlIsMadeNamedAndPlaced)
{
    const vq_uint64 id = Add(VQ_TEXT("new"));

    EXPECT_EQ(m_bar.Bar().Order(), order_with(GetParam().place, "new"));
    EXPECT_EQ(m_bar.TakeCalls(), LinesOf("new", true));
    ASSERT_NE(id, 0u);
    EXPECT_EQ(m_bar.Control(id).Name(), "new");
    EXPECT_EQ(m_bar.Control(id).GetControlID(), id);
    EXPECT_EQ(m_bar.IsIDSeparator(id), IsSeparator());
}

TEST_P(CVqAbstractButtonToolbarAdder, NewControlIsRememberedAndSeparatorsAreDirty)
{
    const vq_uint64 id = Add(VQ_TEXT("new"));

    EXPECT_EQ(m_bar.m_uiCachedId, id);
    EXPECT_EQ(m_bar.m_pCachedControl, &m_bar.Control(id));
    EXPECT_TRUE(m_bar.m_bSeparatorsDirty);
}

TEST_P(CVqAbstractButtonToolbarAdder, NullNameIsTheEmptyOneAndLeavesASeparatorItsOwn)
{
    const std::string name = IsSeparator() ? "separator" : "";

    Add(nullptr);

    EXPECT_EQ(m_bar.TakeCalls(), LinesOf(name, !IsSeparator()));
}

TEST_P(CVqAbstractButtonToolbarAdder, EmptyNameIsGivenButLeavesASeparatorItsOwn)
{
    const std::string name = IsSeparator() ? "separator" : "";

    Add(VQ_TEXT(""));

    EXPECT_EQ(m_bar.TakeCalls(), LinesOf(name, !IsSeparator()));
}

TEST_P(CVqAbstractButtonToolbarAdder, FactoryThatGivesNullAddsNothing)
{
    m_bar.FailFactories();

    EXPECT_EQ(GetParam().add(m_bar, m_anchor, nullptr, VQ_TEXT("new")), 0u);

    EXPECT_EQ(m_bar.Bar().Order(), "a b c |picker");
    EXPECT_TRUE(m_bar.m_bSeparatorsDirty);
    EXPECT_EQ(m_bar.m_uiCachedId, 0u);
    EXPECT_EQ(m_bar.m_pCachedControl, nullptr);
}

TEST_P(CVqAbstractButtonToolbarAdder, ControlThatTheToolbarRefusesIsRememberedUnderZero)
{
    m_bar.AnswerHandles(0);
    m_bar.Bar().m_hWindow = 9;
    m_control.reset(m_bar.Bar().Make("general"));
    m_control->AnswerHandle(0);

    EXPECT_EQ(GetParam().add(m_bar, m_anchor, m_control.get(), VQ_TEXT("new")), 0u);

    EXPECT_EQ(m_bar.Bar().Order(), "a b c |picker");
    auto* refused = static_cast<RecordingControl*>(m_bar.ControlFromId(0));
    ASSERT_NE(refused, nullptr);
    EXPECT_EQ(refused->Name(), "new");
    if (!TakesControl())
        m_control.reset(refused);
}

TEST_P(CVqAbstractButtonToolbarAdder, ControlThatTheToolbarRefusesGoesWhenZeroIsRemoved)
{
    m_bar.AnswerHandles(0);
    m_bar.Bar().m_hWindow = 9;
    RecordingControl* control = TakesControl() ? m_bar.Bar().Make("general") : nullptr;
    if (control)
        control->AnswerHandle(0);
    GetParam().add(m_bar, m_anchor, control, VQ_TEXT("new"));

    EXPECT_EQ(m_bar.RemoveButton(0), 0);

    EXPECT_EQ(m_bar.TakeCalls().back(), "new.Delete");
    EXPECT_EQ(m_bar.ControlFromId(0), nullptr);
    EXPECT_EQ(m_bar.Bar().Order(), "a b c |picker");
}

TEST_P(CVqAbstractButtonToolbarInserter, UnknownAnchorAddsNothingAndAsksNoFactory)
{
    m_control.reset(m_bar.Bar().Make("general"));

    for (const vq_uint64 anchor : {vq_uint64(0), vq_uint64(4711)}) {
        m_bar.FindButton(VQ_TEXT("c"));
        m_bar.Settle();

        EXPECT_EQ(GetParam().add(m_bar, anchor, m_control.get(), VQ_TEXT("new")), 0u);

        EXPECT_THAT(m_bar.TakeCalls(), IsEmpty());
        EXPECT_EQ(m_bar.m_pCachedControl, nullptr);
        EXPECT_TRUE(m_bar.m_bSeparatorsDirty);
    }
}

TEST_P(CVqAbstractButtonToolbarAdder, WithoutAToolbarNothingIsAddedButSeparatorsAreDirtyAndTheCacheIsClear)
{
    NoButtonToolbar bar;
    bar.m_uiCachedId = 5;
    bar.m_pCachedControl = &m_bar.Control(m_anchor);

    EXPECT_EQ(GetParam().add(bar, m_anchor, bar.m_pCachedControl, VQ_TEXT("new")), 0u);

    EXPECT_TRUE(bar.m_bSeparatorsDirty);
    EXPECT_EQ(bar.m_uiCachedId, 0u);
    EXPECT_EQ(bar.m_pCachedControl, nullptr);
    EXPECT_THAT(m_bar.TakeCalls(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(All, CVqAbstractButtonToolbarAdder, testing::ValuesIn(g_adders),
                         [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(All, CVqAbstractButtonToolbarInserter, testing::ValuesIn(inserters()),
                         [](const auto& row) { return row.param.name; });

TEST(CVqAbstractButtonToolbarAdders, ButtonWithoutAToolbarIsNoneButSeparatorsAreDirtyAndTheCacheIsClear)
{
    NoButtonToolbar bar;
    bar.m_uiCachedId = 5;

    EXPECT_EQ(bar.AddButton(VQ_TEXT("open")), 0u);

    EXPECT_TRUE(bar.m_bSeparatorsDirty);
    EXPECT_EQ(bar.m_uiCachedId, 0u);
}
