#include "AbstractGui/VqHiddenToolbarButtons.h"

#include "tests/AbstractGui/HiddenButtonObserver.h"

#include <gmock/gmock.h>

#include <string>

using testing::ElementsAre;

// The stores live as long as the process, so each test has toolbar names of its own.

namespace {

using Text = std::basic_string<vq_wchar>;

constexpr bool g_personal = false;
constexpr bool g_system = true;

bool hidden(const vq_wchar* toolbar, const vq_wchar* button)
{
    return VQ_IsToolbarButtonSetAsHidden(toolbar, button);
}

int set_hidden(const vq_wchar* toolbar, const vq_wchar* button, bool value, bool system)
{
    return VQ_SetToolbarButtonAsHidden(toolbar, button, value, system);
}

}

TEST(VqHiddenToolbarButtons, UnknownToolbarHasNoHiddenButton)
{
    EXPECT_FALSE(hidden(VQ_TEXT("Nobody"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, PersonalSettingHidesTheButtonOfItsToolbarOnly)
{
    const int result = set_hidden(VQ_TEXT("OneBar"), VQ_TEXT("Open"), true, g_personal);

    EXPECT_EQ(result, 0);
    EXPECT_TRUE(hidden(VQ_TEXT("OneBar"), VQ_TEXT("Open")));
    EXPECT_FALSE(hidden(VQ_TEXT("OneBar"), VQ_TEXT("Close")));
    EXPECT_FALSE(hidden(VQ_TEXT("OtherBar"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, SystemSettingHidesTheButtonOfItsToolbarOnly)
{
    const int result = set_hidden(VQ_TEXT("OneSystemBar"), VQ_TEXT("Open"), true, g_system);

    EXPECT_EQ(result, 0);
    EXPECT_TRUE(hidden(VQ_TEXT("OneSystemBar"), VQ_TEXT("Open")));
    EXPECT_FALSE(hidden(VQ_TEXT("OneSystemBar"), VQ_TEXT("Close")));
    EXPECT_FALSE(hidden(VQ_TEXT("OtherSystemBar"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, NullToolbarIsRefusedInBothStores)
{
    EXPECT_EQ(set_hidden(nullptr, VQ_TEXT("Open"), true, g_personal), -9);
    EXPECT_EQ(set_hidden(nullptr, VQ_TEXT("Open"), true, g_system), -9);
    EXPECT_EQ(set_hidden(nullptr, nullptr, true, g_personal), -9);
}

TEST(VqHiddenToolbarButtons, RefusedNullToolbarStoresNothing)
{
    set_hidden(nullptr, VQ_TEXT("Refused"), true, g_personal);
    set_hidden(nullptr, VQ_TEXT("Refused"), true, g_system);

    EXPECT_FALSE(hidden(VQ_TEXT(""), VQ_TEXT("Refused")));
}

TEST(VqHiddenToolbarButtons, NullToolbarInAQuestionReadsAsEmpty)
{
    set_hidden(VQ_TEXT(""), VQ_TEXT("OfNobody"), true, g_personal);

    EXPECT_TRUE(hidden(nullptr, VQ_TEXT("OfNobody")));
}

TEST(VqHiddenToolbarButtons, NullButtonInAQuestionReadsAsEmpty)
{
    set_hidden(VQ_TEXT("EmptyButton"), VQ_TEXT(""), true, g_personal);

    EXPECT_TRUE(hidden(VQ_TEXT("EmptyButton"), nullptr));
}

TEST(VqHiddenToolbarButtons, FalseAfterTrueMakesTheQueryFalse)
{
    set_hidden(VQ_TEXT("FalseAfterTrue"), VQ_TEXT("Open"), true, g_personal);

    set_hidden(VQ_TEXT("FalseAfterTrue"), VQ_TEXT("Open"), false, g_personal);

    EXPECT_FALSE(hidden(VQ_TEXT("FalseAfterTrue"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, EntrySetToFalseStaysInTheStore)
{
    set_hidden(VQ_TEXT("StaysInStore"), VQ_TEXT("Open"), false, g_personal);

    set_hidden(VQ_TEXT("StaysInStore"), nullptr, true, g_personal);

    EXPECT_TRUE(hidden(VQ_TEXT("StaysInStore"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, QuestionStoresNothing)
{
    hidden(VQ_TEXT("Asked"), VQ_TEXT("Open"));

    set_hidden(VQ_TEXT("Asked"), nullptr, true, g_personal);
    set_hidden(VQ_TEXT("Asked"), nullptr, true, g_system);

    EXPECT_FALSE(hidden(VQ_TEXT("Asked"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, SystemFalseAndPersonalTrueIsTrue)
{
    set_hidden(VQ_TEXT("FalseAndTrue"), VQ_TEXT("Open"), false, g_system);
    set_hidden(VQ_TEXT("FalseAndTrue"), VQ_TEXT("Open"), true, g_personal);

    EXPECT_TRUE(hidden(VQ_TEXT("FalseAndTrue"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, SystemTrueAndPersonalFalseIsTrue)
{
    set_hidden(VQ_TEXT("TrueAndFalse"), VQ_TEXT("Open"), true, g_system);
    set_hidden(VQ_TEXT("TrueAndFalse"), VQ_TEXT("Open"), false, g_personal);

    EXPECT_TRUE(hidden(VQ_TEXT("TrueAndFalse"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, PersonalSettingUnderASuffixedNameIsNotFound)
{
    set_hidden(VQ_TEXT("Suffixed#2"), VQ_TEXT("Open"), true, g_personal);

    EXPECT_FALSE(hidden(VQ_TEXT("Suffixed#2"), VQ_TEXT("Open")));
    EXPECT_FALSE(hidden(VQ_TEXT("Suffixed"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, PersonalSettingUnderASuffixedNameKeepsTheSuffixInItsKey)
{
    set_hidden(VQ_TEXT("Kept#2"), VQ_TEXT("Open"), false, g_personal);
    set_hidden(VQ_TEXT("Kept"), VQ_TEXT("Open"), false, g_personal);

    set_hidden(VQ_TEXT("Kept#2"), nullptr, true, g_personal);

    EXPECT_FALSE(hidden(VQ_TEXT("Kept"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, PersonalSettingUnderThePlainNameIsFoundForEverySuffix)
{
    set_hidden(VQ_TEXT("Plain"), VQ_TEXT("Open"), true, g_personal);

    EXPECT_TRUE(hidden(VQ_TEXT("Plain"), VQ_TEXT("Open")));
    EXPECT_TRUE(hidden(VQ_TEXT("Plain#"), VQ_TEXT("Open")));
    EXPECT_TRUE(hidden(VQ_TEXT("Plain#2"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, NameIsCutAtItsFirstHashMark)
{
    set_hidden(VQ_TEXT("TwoMarks"), VQ_TEXT("Open"), true, g_personal);

    EXPECT_TRUE(hidden(VQ_TEXT("TwoMarks#2#3"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, HashMarkInTheButtonIsKept)
{
    set_hidden(VQ_TEXT("MarkInButton"), VQ_TEXT("Open#1"), true, g_personal);

    EXPECT_TRUE(hidden(VQ_TEXT("MarkInButton"), VQ_TEXT("Open#1")));
    EXPECT_FALSE(hidden(VQ_TEXT("MarkInButton"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, SystemSettingTakesTheFullName)
{
    set_hidden(VQ_TEXT("Full#2"), VQ_TEXT("Open"), true, g_system);

    EXPECT_TRUE(hidden(VQ_TEXT("Full#2"), VQ_TEXT("Open")));
    EXPECT_FALSE(hidden(VQ_TEXT("Full"), VQ_TEXT("Open")));
    EXPECT_FALSE(hidden(VQ_TEXT("Full#3"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, SystemSettingUnderThePlainNameIsNotFoundForASuffix)
{
    set_hidden(VQ_TEXT("PlainSystem"), VQ_TEXT("Open"), true, g_system);

    EXPECT_FALSE(hidden(VQ_TEXT("PlainSystem#2"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, NullButtonSetsAllStoredButtonsOfTheToolbar)
{
    set_hidden(VQ_TEXT("All"), VQ_TEXT("Open"), true, g_personal);
    set_hidden(VQ_TEXT("All"), VQ_TEXT("Close"), false, g_personal);
    set_hidden(VQ_TEXT("AllTwo"), VQ_TEXT("Open"), false, g_personal);

    EXPECT_EQ(set_hidden(VQ_TEXT("All"), nullptr, true, g_personal), 0);

    EXPECT_TRUE(hidden(VQ_TEXT("All"), VQ_TEXT("Open")));
    EXPECT_TRUE(hidden(VQ_TEXT("All"), VQ_TEXT("Close")));
    EXPECT_FALSE(hidden(VQ_TEXT("AllTwo"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, NullButtonSetsTheStoredButtonsOfTheSystemStoreToo)
{
    set_hidden(VQ_TEXT("AllSystem#2"), VQ_TEXT("Open"), false, g_system);

    EXPECT_EQ(set_hidden(VQ_TEXT("AllSystem#2"), nullptr, true, g_system), 0);

    EXPECT_TRUE(hidden(VQ_TEXT("AllSystem#2"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, NullButtonLeavesTheOtherStoreAlone)
{
    set_hidden(VQ_TEXT("InSystem"), VQ_TEXT("Open"), true, g_system);
    set_hidden(VQ_TEXT("InPersonal"), VQ_TEXT("Open"), true, g_personal);

    set_hidden(VQ_TEXT("InSystem"), nullptr, false, g_personal);
    set_hidden(VQ_TEXT("InPersonal"), nullptr, false, g_system);

    EXPECT_TRUE(hidden(VQ_TEXT("InSystem"), VQ_TEXT("Open")));
    EXPECT_TRUE(hidden(VQ_TEXT("InPersonal"), VQ_TEXT("Open")));
}

TEST(VqHiddenToolbarButtons, NullButtonOnAToolbarWithoutEntriesChangesNothingButTellsTheObservers)
{
    const HiddenButtonObserver observer;

    EXPECT_EQ(set_hidden(VQ_TEXT("NoEntries"), nullptr, true, g_personal), 0);

    EXPECT_FALSE(hidden(VQ_TEXT("NoEntries"), VQ_TEXT("")));
    EXPECT_FALSE(hidden(VQ_TEXT("NoEntries"), VQ_TEXT("Open")));
    EXPECT_THAT(observer.m_changes,
                ElementsAre(HiddenButtonChange{VQ_TEXT("NoEntries"), std::nullopt, true, false}));
}

TEST(VqHiddenToolbarButtons, PairsThatMakeTheSameKeyAreTheSameEntry)
{
    set_hidden(VQ_TEXT("At"), VQ_TEXT("b@c"), true, g_personal);

    EXPECT_TRUE(hidden(VQ_TEXT("At@b"), VQ_TEXT("c")));
}

TEST(VqHiddenToolbarButtons, NamesCountAsTheyAre)
{
    set_hidden(VQ_TEXT("As They Are"), VQ_TEXT("_Zoom In(1);"), true, g_personal);

    EXPECT_TRUE(hidden(VQ_TEXT("As They Are"), VQ_TEXT("_Zoom In(1);")));
    EXPECT_FALSE(hidden(VQ_TEXT("As_They_Are"), VQ_TEXT("_Zoom In(1);")));
    EXPECT_FALSE(hidden(VQ_TEXT("As They Are"), VQ_TEXT("Zoom_In")));
    EXPECT_FALSE(hidden(VQ_TEXT("as they are"), VQ_TEXT("_Zoom In(1);")));
}

TEST(VqHiddenToolbarButtons, LongNamesAreKeptWhole)
{
    const Text toolbar(10'000, VQ_TEXT('t'));
    const Text button(10'000, VQ_TEXT('b'));
    const Text other = button + VQ_TEXT('c');

    set_hidden(toolbar.c_str(), button.c_str(), true, g_personal);

    EXPECT_TRUE(hidden(toolbar.c_str(), button.c_str()));
    EXPECT_FALSE(hidden(toolbar.c_str(), other.c_str()));
}
