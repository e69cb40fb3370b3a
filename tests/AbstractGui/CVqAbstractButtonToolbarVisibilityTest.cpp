#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "tests/support/TestButtonToolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A toolbar of one button "open"; the name of the toolbar is the test's own, since the stores outlive it.
struct HidingBar
{
    explicit HidingBar(const vq_wchar* name)
    {
        bar.Bar().CreateUI(0, EToolbarType::Main, name);
        id = bar.AddButton(VQ_TEXT("open"));
        bar.Settle();
    }

    TestButtonToolbar bar;
    vq_uint64 id = 0;
};

}

TEST(CVqAbstractButtonToolbarVisibility, SettingGoesThroughTheToolbarAndMakesSeparatorsDirty)
{
    HidingBar hiding(VQ_TEXT("SettingBar"));
    hiding.bar.Bar().m_bLayoutDirty = false;

    hiding.bar.SetButtonVisibility(hiding.id, false);

    EXPECT_THAT(hiding.bar.TakeCalls(), ElementsAre("open.SetControlVisibility 0"));
    EXPECT_TRUE(hiding.bar.m_bSeparatorsDirty);
    EXPECT_TRUE(hiding.bar.Bar().m_bLayoutDirty);
    EXPECT_FALSE(hiding.bar.GetButtonVisibility(hiding.id));
}

TEST(CVqAbstractButtonToolbarVisibility, UnknownButtonMakesSeparatorsDirtyAllTheSame)
{
    HidingBar hiding(VQ_TEXT("UnknownBar"));
    NoButtonToolbar none;

    hiding.bar.SetButtonVisibility(4711, false);
    none.SetButtonVisibility(4711, false);

    EXPECT_TRUE(hiding.bar.m_bSeparatorsDirty);
    EXPECT_TRUE(none.m_bSeparatorsDirty);
    EXPECT_THAT(hiding.bar.TakeCalls(), IsEmpty());
    EXPECT_FALSE(hiding.bar.GetButtonVisibility(4711));
    EXPECT_FALSE(none.GetButtonVisibility(4711));
}

struct HiddenSetting
{
    const char* name;
    const vq_wchar* toolbar; ///< The name of the live toolbar.
    const vq_wchar* owner;   ///< The name in the store.
    std::optional<bool> personal;
    std::optional<bool> system;
    bool visible;
};

class CVqAbstractButtonToolbarHidden : public testing::TestWithParam<HiddenSetting>
{ };

TEST_P(CVqAbstractButtonToolbarHidden, StoreHidesTheButtonAndLeavesTheControlAlone)
{
    const HiddenSetting& row = GetParam();
    HidingBar hiding(row.toolbar);
    if (row.personal)
        VQ_SetToolbarButtonAsHidden(row.owner, VQ_TEXT("open"), *row.personal, false);
    if (row.system)
        VQ_SetToolbarButtonAsHidden(row.owner, VQ_TEXT("open"), *row.system, true);

    EXPECT_EQ(hiding.bar.GetButtonVisibility(hiding.id), row.visible);

    EXPECT_TRUE(hiding.bar.Control(hiding.id).GetControlVisibility());
    EXPECT_THAT(hiding.bar.TakeCalls(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CVqAbstractButtonToolbarHidden,
    testing::Values(
        HiddenSetting{"NoSetting", VQ_TEXT("bar1"), VQ_TEXT("bar1"), {}, {}, true},
        HiddenSetting{"Personal", VQ_TEXT("bar2"), VQ_TEXT("bar2"), true, {}, false},
        HiddenSetting{"System", VQ_TEXT("bar3"), VQ_TEXT("bar3"), {}, true, false},
        HiddenSetting{"PersonalFalse", VQ_TEXT("bar4"), VQ_TEXT("bar4"), false, {}, true},
        HiddenSetting{"SystemFalseDoesNotDecide", VQ_TEXT("bar5"), VQ_TEXT("bar5"), true, false, false},
        HiddenSetting{"OfAnotherToolbar", VQ_TEXT("bar6"), VQ_TEXT("other6"), true, true, true},
        HiddenSetting{"PersonalOfAllInstances", VQ_TEXT("bar7#2"), VQ_TEXT("bar7"), true, {}, false},
        HiddenSetting{
            "PersonalOfOneInstanceIsNotFound", VQ_TEXT("bar8#2"), VQ_TEXT("bar8#2"), true, {}, true},
        HiddenSetting{"SystemOfOneInstance", VQ_TEXT("bar9#2"), VQ_TEXT("bar9#2"), {}, true, false},
        HiddenSetting{
            "SystemOfThePlainNameIsNotFound", VQ_TEXT("bar10#2"), VQ_TEXT("bar10"), {}, true, true}),
    [](const auto& row) { return row.param.name; });

TEST(CVqAbstractButtonToolbarVisibility, StoreIsAskedForTheNameThatTheButtonHasNow)
{
    HidingBar hiding(VQ_TEXT("RenamingBar"));
    const vq_wchar* name = VQ_TEXT("a longer name than before");
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("RenamingBar"), name, true, false);

    hiding.bar.SetButtonName(hiding.id, name);

    EXPECT_FALSE(hiding.bar.GetButtonVisibility(hiding.id));
}
