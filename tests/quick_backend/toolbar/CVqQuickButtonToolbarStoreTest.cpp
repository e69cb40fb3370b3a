#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "tests/quick_backend/toolbar/QuickBarFixture.h"

#include <memory>

namespace {

class CVqQuickButtonToolbarStoreTest : public QuickBarFixture
{
protected:
    static void Hide(const vq_wchar* toolbar, const vq_wchar* button, bool hidden = true)
    {
        VQ_SetToolbarButtonAsHidden(toolbar, button, hidden, false);
    }

    static void HideInSystem(const vq_wchar* toolbar, const vq_wchar* button, bool hidden = true)
    {
        VQ_SetToolbarButtonAsHidden(toolbar, button, hidden, true);
    }

    static bool IsShown(CVqQuickButtonToolbar& of, vq_uint64 id)
    {
        return static_cast<CVqQuickControl*>(of.ControlFromId(id))->IsShown();
    }
};

}

TEST_F(CVqQuickButtonToolbarStoreTest, AHiddenButtonGoesAtOnceAndComesBackAtOnce)
{
    const vq_uint64 id = Add(VQ_TEXT("open"));

    Hide(VQ_TEXT("bar"), VQ_TEXT("open"));
    EXPECT_FALSE(Control(id).IsShown());
    EXPECT_TRUE(Control(id).GetControlVisibility());

    Hide(VQ_TEXT("bar"), VQ_TEXT("open"), false);
    EXPECT_TRUE(Control(id).IsShown());
}

TEST_F(CVqQuickButtonToolbarStoreTest, OnlyTheNamedButtonOfTheNamedToolbarGoes)
{
    Add(VQ_TEXT("open"));
    Add(VQ_TEXT("save"));

    Hide(VQ_TEXT("bar"), VQ_TEXT("open"));
    Hide(VQ_TEXT("other"), VQ_TEXT("save"));

    EXPECT_EQ(Order(), "(open) save");
}

TEST_F(CVqQuickButtonToolbarStoreTest, TheSystemStoreHidesAtOnceToo)
{
    const vq_uint64 id = Add(VQ_TEXT("open"));

    HideInSystem(VQ_TEXT("bar"), VQ_TEXT("open"));

    EXPECT_FALSE(Control(id).IsShown());
}

TEST_F(CVqQuickButtonToolbarStoreTest, WhatBothStoresHideComesBackWhenBothShowIt)
{
    const vq_uint64 id = Add(VQ_TEXT("open"));
    HideInSystem(VQ_TEXT("bar"), VQ_TEXT("open"));
    Hide(VQ_TEXT("bar"), VQ_TEXT("open"));

    HideInSystem(VQ_TEXT("bar"), VQ_TEXT("open"), false);
    EXPECT_FALSE(Control(id).IsShown());

    Hide(VQ_TEXT("bar"), VQ_TEXT("open"), false);
    EXPECT_TRUE(Control(id).IsShown());
}

TEST_F(CVqQuickButtonToolbarStoreTest, InstancesShareThePersonalSettingOfThePlainName)
{
    CVqQuickButtonToolbar second(VQ_TEXT("bar#2"));
    const vq_uint64 id = second.AddButton(VQ_TEXT("open"));

    Hide(VQ_TEXT("bar#2"), VQ_TEXT("open"));
    EXPECT_TRUE(IsShown(second, id));

    Hide(VQ_TEXT("bar"), VQ_TEXT("open"));
    EXPECT_FALSE(IsShown(second, id));
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("bar#2"), nullptr, false, false);
}

TEST_F(CVqQuickButtonToolbarStoreTest, ASystemSettingIsOfOneInstance)
{
    CVqQuickButtonToolbar second(VQ_TEXT("bar#2"));
    const vq_uint64 first_id = Add(VQ_TEXT("open"));
    const vq_uint64 second_id = second.AddButton(VQ_TEXT("open"));

    HideInSystem(VQ_TEXT("bar#2"), VQ_TEXT("open"));

    EXPECT_TRUE(Control(first_id).IsShown());
    EXPECT_FALSE(IsShown(second, second_id));
    HideInSystem(VQ_TEXT("bar#2"), nullptr, false);
}

TEST_F(CVqQuickButtonToolbarStoreTest, ANullButtonReachesAllThatTheStoreHolds)
{
    Add(VQ_TEXT("open"));
    Add(VQ_TEXT("save"));
    Add(VQ_TEXT("never stored"));
    Hide(VQ_TEXT("bar"), VQ_TEXT("open"));
    Hide(VQ_TEXT("bar"), VQ_TEXT("save"), false);

    Hide(VQ_TEXT("bar"), nullptr);
    EXPECT_EQ(Order(), "(open) (save) never stored");

    Hide(VQ_TEXT("bar"), nullptr, false);
    EXPECT_EQ(Order(), "open save never stored");
}

TEST_F(CVqQuickButtonToolbarStoreTest, ANewButtonRespectsTheStore)
{
    Hide(VQ_TEXT("bar"), VQ_TEXT("open"));

    Add(VQ_TEXT("open"));

    EXPECT_EQ(Order(), "(open)");
}

TEST_F(CVqQuickButtonToolbarStoreTest, ARenamedButtonRespectsTheStore)
{
    const vq_uint64 id = Add(VQ_TEXT("open"));
    Hide(VQ_TEXT("bar"), VQ_TEXT("save"));

    bar.SetButtonName(id, VQ_TEXT("save"));
    EXPECT_EQ(Order(), "(save)");

    bar.SetButtonName(id, VQ_TEXT("open"));
    EXPECT_EQ(Order(), "open");
}

TEST_F(CVqQuickButtonToolbarStoreTest, AButtonThatMovesToAnotherBarRespectsTheStoreThere)
{
    CVqQuickButtonToolbar other(VQ_TEXT("other"));
    Hide(VQ_TEXT("bar"), VQ_TEXT("open"));
    IVqUIcontrol& open = Control(Add(VQ_TEXT("open")));
    vq_uint64 id = 0;

    bar.Toolbar().RemoveControl(open);
    other.Toolbar().AddControl(open, id);

    EXPECT_TRUE(IsShown(other, id));
}

TEST_F(CVqQuickButtonToolbarStoreTest, AButtonHiddenByItselfStaysSoWhateverTheStoreSays)
{
    const vq_uint64 id = Add(VQ_TEXT("open"));
    bar.SetButtonVisibility(id, false);

    Hide(VQ_TEXT("bar"), VQ_TEXT("open"));
    Hide(VQ_TEXT("bar"), VQ_TEXT("open"), false);

    EXPECT_FALSE(Control(id).IsShown());
}

TEST_F(CVqQuickButtonToolbarStoreTest, ABarThatEndedIsNotToldAnyMore)
{
    auto ending = std::make_unique<CVqQuickButtonToolbar>(VQ_TEXT("ending"));
    ending->AddButton(VQ_TEXT("open"));

    ending.reset();

    EXPECT_EQ(VQ_SetToolbarButtonAsHidden(VQ_TEXT("ending"), VQ_TEXT("open"), true, false), 0);
}

// Separators -------------------------------------------------------------------------------------------

TEST_F(CVqQuickButtonToolbarStoreTest, SeparatorsAreTidiedInTheNextLayout)
{
    Add(VQ_TEXT("open"));
    bar.AppendSeparator(nullptr);
    bar.AppendSeparator(nullptr);
    Add(VQ_TEXT("save"));
    EXPECT_EQ(Order(), "open - - save");

    EXPECT_EQ(TidiedOrder(), "open - (-) save");
}

TEST_F(CVqQuickButtonToolbarStoreTest, AStoredChangeTidiesSeparators)
{
    Add(VQ_TEXT("new"));
    bar.AppendSeparator(nullptr);
    Add(VQ_TEXT("open"));
    bar.AppendSeparator(nullptr);
    Add(VQ_TEXT("save"));
    bar.Toolbar().Layout();

    Hide(VQ_TEXT("bar"), VQ_TEXT("open"));
    EXPECT_EQ(TidiedOrder(), "new - (open) (-) save");

    Hide(VQ_TEXT("bar"), VQ_TEXT("open"), false);
    EXPECT_EQ(TidiedOrder(), "new - open - save");
}

TEST_F(CVqQuickButtonToolbarStoreTest, AControlThatIsHiddenDirectlyTidiesSeparators)
{
    const vq_uint64 id = Add(VQ_TEXT("new"));
    bar.AppendSeparator(nullptr);
    Add(VQ_TEXT("open"));
    bar.Toolbar().Layout();

    Control(id).SetControlVisibility(false);

    EXPECT_EQ(TidiedOrder(), "(new) (-) open");
}

TEST_F(CVqQuickButtonToolbarStoreTest, ADeferredTidyingIsDoneInTheNextLayout)
{
    Add(VQ_TEXT("open"));
    const vq_uint64 separator = bar.AppendSeparator(nullptr);
    Add(VQ_TEXT("save"));
    bar.Toolbar().Layout();
    Control(separator).SetControlVisibility(false);
    EXPECT_EQ(TidiedOrder(), "open (-) save");

    EXPECT_EQ(bar.UpdateSeparators(true), 0);

    EXPECT_EQ(Order(), "open (-) save");
    EXPECT_EQ(TidiedOrder(), "open - save");
}
