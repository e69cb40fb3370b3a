#include "tests/AbstractGui/StoredControls.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <type_traits>

using namespace Qt::StringLiterals;

// Random controls go through either form into other random controls. What comes back is worked out here:
//
// - from the stored one: name, number of states, their label, tooltip and two colours, their command as long
// as
//   it has no doubled parentheses, size, visibility, translation of tooltips, and in the lightweight form the
//   type, which the tree form sets to 0;
// - made anew: image indexes; an image without a file name is lost;
// - kept from the one that loads: the current state, flags, style, orientation, value, zoom, and of each
// state
//   the third colour and the user value.

namespace {

constexpr unsigned controls = 300;
constexpr int sources = 4; // images 0 to 3, of which 3 has no file
constexpr int first_image = 500;

QString pick_text(std::mt19937& random, unsigned pieces_at_most)
{
    static constexpr std::array<const char16_t*, 12> pieces{
        u"Run", u"(", u")", u"\"", u"(\"", u"\")", u"((", u"))", u" ", u"&", u"\u00e4", u"\U0001F600"};
    QString text;
    for (unsigned i = random() % (pieces_at_most + 1); i > 0; --i)
        text += QString::fromUtf16(pieces[random() % pieces.size()]);
    return text;
}

/// Fills a control; equal seeds fill equally on every platform.
void fill(TestControl& control, unsigned seed)
{
    std::mt19937 random(seed);
    const auto number = [&] { return static_cast<vq_uint32>(random()); };
    control.m_strName = CVqStringW::FromQString(pick_text(random, 5));
    control.m_uiStateCount = 1 + number() % 32;
    for (vq_uint32 i = 0; i < CVqAbstractControl::MaxStates; ++i)
        control.State(i) = {static_cast<int>(number() % 7) - 2, // also a code, and an image that there is not
                            CVqStringW::FromQString(pick_text(random, 5)),
                            CVqStringW::FromQString(pick_text(random, 9)),
                            CVqStringW::FromQString(pick_text(random, 5)),
                            number(),
                            number(),
                            number(),
                            number()};
    control.m_size = {static_cast<int>(number()), static_cast<int>(number())};
    control.m_bVisible = number() % 2 == 0;
    control.m_bTranslateTooltip = number() % 2 == 0;
    control.m_iType = static_cast<int>(number());
    control.m_iState = static_cast<int>(number() % 40);
    control.m_uiFlags = number();
    control.m_uiStyle = number();
    control.m_uiValue = number();
    control.m_eOrientation = static_cast<EOrientation>(number() % 3);
    control.m_dZoom = number() % 5;
}

TestBitmapPool& use_images()
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    for (int index = 0; index < sources; ++index)
        pool.SetSource(static_cast<vq_uint32>(index), index == 3 ? VQ_TEXT("") : VQ_TEXT("file"),
                       VQ_TEXT("res"));
    return pool;
}

QString command_after(const CVqStringW& command)
{
    return command.ToQString()
        .replace(u"(\""_s, u"(("_s)
        .replace(u"\")"_s, u"))"_s)
        .replace(u"(("_s, u"(\""_s)
        .replace(u"))"_s, u"\")"_s);
}

template <class Form>
void copy_through(TestControl& source, TestControl& target);

template <>
void copy_through<LiteForm>(TestControl& source, TestControl& target)
{
    auto stored = LiteForm::Filled([&](CVqLiteVariantW& out) { source.Save(out); });
    stored.CurrentLevelBegin();
    EXPECT_EQ(target.Load(stored), 0);
}

template <>
void copy_through<TreeForm>(TestControl& source, TestControl& target)
{
    CVqVariant stored;
    source.Save(stored);
    EXPECT_EQ(target.Load(stored), 0);
}

/// Turns a control that is filled like the one that loads into what that one must become.
void take_what_is_stored(TestControl& expected, TestControl& source, bool with_type)
{
    expected.m_strName = source.m_strName;
    expected.m_uiStateCount = source.m_uiStateCount;
    expected.m_size = source.m_size;
    expected.m_bVisible = source.m_bVisible;
    expected.m_bTranslateTooltip = source.m_bTranslateTooltip;
    expected.m_iType = with_type ? source.m_iType : 0;
    int next_image = first_image;
    for (vq_uint32 i = 0; i < source.m_uiStateCount; ++i) {
        const SVqControlState& from = source.State(i);
        SVqControlState& to = expected.State(i);
        const bool has_file = from.m_bitmap >= 0 && from.m_bitmap < sources - 1;
        to.m_bitmap = has_file ? next_image++ : -1;
        to.m_text = from.m_text;
        to.m_command = CVqStringW::FromQString(command_after(from.m_command));
        to.m_tooltip = from.m_tooltip;
        to.m_frgcolor = from.m_frgcolor;
        to.m_bkgcolor = from.m_bkgcolor;
    }
}

template <class Form>
class StoredControlRoundTrip : public testing::Test
{ };

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(StoredControlRoundTrip, Forms, FormName);

}

TYPED_TEST(StoredControlRoundTrip, RandomControlsComeBackAsTold)
{
    TestBitmapPool& pool = use_images();
    for (unsigned seed = 0; seed < controls; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TestControl source;
        TestControl target;
        TestControl expected;
        fill(source, seed);
        fill(target, seed + controls);
        fill(expected, seed + controls);
        take_what_is_stored(expected, source, std::is_same_v<TypeParam, LiteForm>);
        const bool visibility_changes = target.m_bVisible != source.m_bVisible;
        pool.SetNextIndex(first_image);

        copy_through<TypeParam>(source, target);

        ASSERT_EQ(target.Shown(), expected.Shown());
        ASSERT_EQ(target.m_dZoom, expected.m_dZoom);
        ASSERT_EQ(target.TakeSignals().size(), visibility_changes ? 1u : 0u);
    }
}

TYPED_TEST(StoredControlRoundTrip, WhatWasLoadedIsSavedAlike)
{
    TestBitmapPool::Fresh(); // without sources, so that images play no part
    for (unsigned seed = 0; seed < controls; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TestControl source;
        TestControl once;
        TestControl twice;
        fill(source, seed);
        copy_through<TypeParam>(source, once);

        copy_through<TypeParam>(once, twice);

        ASSERT_EQ(saved_control<TypeParam>(twice), saved_control<TypeParam>(once));
    }
}
