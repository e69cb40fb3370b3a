#include "AbstractGui/SVqControlStateInfo.h"
#include "quick_backend/toolbar/IVqQuickControlOwner.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqVariant.h"
#include "tests/AbstractGui/StoredMenus.h"
#include "tests/quick_backend/toolbar/CoreBar.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Owner final : IVqQuickControlOwner
{
    void ControlChanged(CVqQuickControl&) override { ++changes; }
    void ControlEvent(CVqQuickControl&, SVqUiEvent&) override { }

    int changes = 0;
};

class CVqQuickControlChangesTest : public testing::Test
{
protected:
    CVqQuickControlChangesTest() { button.SetOwner(&owner); }

    Owner owner;
    CVqQuickButton button;
};

}

TEST_F(CVqQuickControlChangesTest, TellsLookAndOwnerOnceOfEachChange)
{
    const std::vector<std::pair<const char*, std::function<void()>>> changes = {
        {"text", [this] { SetText(button, vq_control_text, "text"); }},
        {"tooltip", [this] { SetText(button, vq_control_tooltip, "tip"); }},
        {"command", [this] { SetText(button, vq_control_command, "Run()"); }},
        {"image", [this] { SetInt(button, vq_control_bitmap, 3); }},
        {"name", [this] { SetText(button, vq_control_name, "name"); }},
        {"check", [this] { SetInt(button, vq_control_check, 1); }},
        {"drop-down", [this] { SetInt(button, vq_control_value, 5); }},
        {"zoom", [this] { SetZoom(button, 2); }},
        {"enlarge", [this] { SetInt(button, vq_control_enlarge, 0); }},
        {"state count", [this] { SetInt(button, vq_control_state_count, 3); }},
        {"disabled", [this] { button.Enable(false); }},
        {"flat", [this] { button.SetFlatStyle(true); }},
        {"text place", [this] { button.SetTextAlign(0x20); }},
        {"hidden", [this] { button.SetControlVisibility(false); }},
        {"hidden in the store", [this] { button.SetListedAsHidden(true); }},
        {"hidden with its command", [this] { button.SetHiddenByCommand(true); }},
        {"in the picker", [this] { button.SetInPicker(true); }},
        {"key", [this] { button.SetKeyText(u"Ctrl+O"_s); }},
        {"vertical", [this] { button.SetOrientation(EOrientation::Vertical); }},
        {"size", [this] { button.SetControlSize({10, 10}); }},
        {"deleted state", [this] { button.Command(vq_control_delete_state, 0, nullptr); }},
        {"no state", [this] { button.Command(vq_control_clear_states, 0, nullptr); }},
    };
    for (const auto& [name, change] : changes) {
        const QSignalSpy told(&button, &CVqQuickControl::lookChanged);
        owner.changes = 0;

        change();

        EXPECT_EQ(told.count(), 1) << name;
        EXPECT_EQ(owner.changes, 1) << name;
    }
}

TEST_F(CVqQuickControlChangesTest, TellsNothingWhenAllStaysAsItIs)
{
    const QSignalSpy told(&button, &CVqQuickControl::lookChanged);

    button.Enable(true);
    button.SetFlatStyle(false);
    button.SetTextAlign(0);
    button.SetControlVisibility(true);
    button.SetListedAsHidden(false);
    button.SetHiddenByCommand(false);
    button.SetInPicker(false);
    button.SetCheckable(false);
    button.SetKeyText({});
    button.SetOrientation(EOrientation::Horizontal);
    button.SetControlSize({0, 0});
    SetZoom(button, 1);
    SetInt(button, vq_control_enlarge, 1);
    SetInt(button, vq_control_state_count, 1);

    EXPECT_EQ(told.count(), 0);
}

TEST_F(CVqQuickControlChangesTest, TellsOnceOfAWrittenState)
{
    const QSignalSpy told(&button, &CVqQuickControl::lookChanged);
    SVqControlStateInfo info{4, VQ_TEXT("text"), nullptr, nullptr};

    EXPECT_EQ(button.Command(vq_control_write_state, 0, &info), 0);

    EXPECT_EQ(told.count(), 1);
    EXPECT_EQ(button.Text(), u"text"_s);
}

TEST_F(CVqQuickControlChangesTest, TellsNothingWhenAStateIsRead)
{
    const QSignalSpy told(&button, &CVqQuickControl::lookChanged);
    SVqControlStateInfo info{};

    EXPECT_EQ(button.Command(vq_control_read_state, 0, &info), 0);

    EXPECT_EQ(told.count(), 0);
}

TEST_F(CVqQuickControlChangesTest, ShowsWhatATreeLoadsAtOnce)
{
    CVqQuickButton stored;
    SetText(stored, vq_control_text, "stored");
    CVqVariant tree;
    stored.Save(tree);
    const QSignalSpy told(&button, &CVqQuickControl::lookChanged);

    EXPECT_EQ(button.Load(tree), 0);

    EXPECT_GE(told.count(), 1);
    EXPECT_GE(owner.changes, 1);
    EXPECT_EQ(button.Text(), u"stored"_s);
}

TEST_F(CVqQuickControlChangesTest, ShowsWhatAStreamLoadsAtOnce)
{
    CVqQuickButton stored;
    SetText(stored, vq_control_text, "stored");
    CVqLiteVariantR stream = LiteForm::Filled([&](CVqLiteVariantW& out) { stored.Save(out); });
    stream.CurrentLevelBegin();
    const QSignalSpy told(&button, &CVqQuickControl::lookChanged);

    EXPECT_EQ(button.Load(stream), 0);

    EXPECT_GE(told.count(), 1);
    EXPECT_GE(owner.changes, 1);
    EXPECT_EQ(button.Text(), u"stored"_s);
}

TEST_F(CVqQuickControlChangesTest, TellsNothingOfWhatItRefuses)
{
    const QSignalSpy told(&button, &CVqQuickControl::lookChanged);
    vq_int32 value = 0;

    button.Set(99, 0, &value);
    button.Command(99, 0, nullptr);

    EXPECT_EQ(told.count(), 0);
    EXPECT_EQ(owner.changes, 0);
}
