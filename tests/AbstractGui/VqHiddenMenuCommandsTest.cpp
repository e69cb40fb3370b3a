#include "AbstractGui/VqHiddenMenuCommands.h"

#include <gtest/gtest.h>

#include <string>

// The store lives as long as the process, so each test has an owner name of its own.

namespace {

bool hidden(const vq_wchar* name, const vq_wchar* command)
{
    return VQ_IsMenuCommandSetAsHidden(name, command);
}

int set_hidden(const vq_wchar* name, const vq_wchar* command, bool value = true)
{
    return VQ_SetMenuCommandAsHidden(name, command, value);
}

struct SameKeyRow
{
    const char* m_name;
    const vq_wchar* m_set;
    const vq_wchar* m_asked;
};

void PrintTo(const SameKeyRow& row, std::ostream* out)
{
    *out << row.m_name;
}

}

TEST(VqHiddenMenuCommands, UnknownOwnerIsNotHidden)
{
    EXPECT_FALSE(hidden(VQ_TEXT("Nobody"), VQ_TEXT("Open")));
}

TEST(VqHiddenMenuCommands, UnknownCommandIsNotHidden)
{
    set_hidden(VQ_TEXT("UnknownCommand"), VQ_TEXT("Open"));

    EXPECT_FALSE(hidden(VQ_TEXT("UnknownCommand"), VQ_TEXT("Close")));
}

TEST(VqHiddenMenuCommands, SettingHidesTheCommandForItsOwnerOnly)
{
    const int result = set_hidden(VQ_TEXT("OneOwner"), VQ_TEXT("Open"));

    EXPECT_EQ(result, 0);
    EXPECT_TRUE(hidden(VQ_TEXT("OneOwner"), VQ_TEXT("Open")));
    EXPECT_FALSE(hidden(VQ_TEXT("OtherOwner"), VQ_TEXT("Open")));
}

TEST(VqHiddenMenuCommands, FalseAfterTrueMakesTheQueryFalse)
{
    set_hidden(VQ_TEXT("FalseAfterTrue"), VQ_TEXT("Open"), true);

    EXPECT_EQ(set_hidden(VQ_TEXT("FalseAfterTrue"), VQ_TEXT("Open"), false), 0);

    EXPECT_FALSE(hidden(VQ_TEXT("FalseAfterTrue"), VQ_TEXT("Open")));
}

TEST(VqHiddenMenuCommands, NullNameIsRefused)
{
    EXPECT_EQ(set_hidden(nullptr, VQ_TEXT("RefusedByNull")), -9);
}

TEST(VqHiddenMenuCommands, NullNameWithNullCommandIsRefused)
{
    EXPECT_EQ(set_hidden(nullptr, nullptr), -9);
}

TEST(VqHiddenMenuCommands, NullNameInAQuestionReadsAsEmpty)
{
    set_hidden(VQ_TEXT(""), VQ_TEXT("OfNobody"));

    EXPECT_TRUE(hidden(nullptr, VQ_TEXT("OfNobody")));
}

TEST(VqHiddenMenuCommands, NullCommandInAQuestionReadsAsEmpty)
{
    set_hidden(VQ_TEXT("EmptyCommand"), VQ_TEXT(""));

    EXPECT_TRUE(hidden(VQ_TEXT("EmptyCommand"), nullptr));
}

TEST(VqHiddenMenuCommands, NullCommandSetsAllStoredCommandsOfTheOwner)
{
    set_hidden(VQ_TEXT("AllOfOwner"), VQ_TEXT("Open"), true);
    set_hidden(VQ_TEXT("AllOfOwner"), VQ_TEXT("Close"), false);
    set_hidden(VQ_TEXT("AllOfOwnerTwo"), VQ_TEXT("Open"), false);

    EXPECT_EQ(set_hidden(VQ_TEXT("AllOfOwner"), nullptr, true), 0);

    EXPECT_TRUE(hidden(VQ_TEXT("AllOfOwner"), VQ_TEXT("Open")));
    EXPECT_TRUE(hidden(VQ_TEXT("AllOfOwner"), VQ_TEXT("Close")));
    EXPECT_FALSE(hidden(VQ_TEXT("AllOfOwnerTwo"), VQ_TEXT("Open")));
}

TEST(VqHiddenMenuCommands, NullCommandOnAnEmptyStoreAddsNoneAndGivesZero)
{
    EXPECT_EQ(set_hidden(VQ_TEXT("AddsNone"), nullptr), 0);

    EXPECT_FALSE(hidden(VQ_TEXT("AddsNone"), VQ_TEXT("")));
    EXPECT_FALSE(hidden(VQ_TEXT("AddsNone"), VQ_TEXT("Open")));
}

TEST(VqHiddenMenuCommands, NullCommandKeepsACommandSetToFalseInTheStore)
{
    set_hidden(VQ_TEXT("StaysInStore"), VQ_TEXT("Open"), false);

    set_hidden(VQ_TEXT("StaysInStore"), nullptr, true);

    EXPECT_TRUE(hidden(VQ_TEXT("StaysInStore"), VQ_TEXT("Open")));
}

TEST(VqHiddenMenuCommands, NullCommandDoesNotReachAnOwnerWithABlank)
{
    set_hidden(VQ_TEXT("Blank Owner"), VQ_TEXT("Open"), true);

    EXPECT_EQ(set_hidden(VQ_TEXT("Blank Owner"), nullptr, false), 0);

    EXPECT_TRUE(hidden(VQ_TEXT("Blank Owner"), VQ_TEXT("Open")));
}

TEST(VqHiddenMenuCommands, NullCommandReachesAnOwnerWithABlankByItsStoredName)
{
    set_hidden(VQ_TEXT("Stored Owner"), VQ_TEXT("Open"), true);

    set_hidden(VQ_TEXT("Stored_Owner"), nullptr, false);

    EXPECT_FALSE(hidden(VQ_TEXT("Stored Owner"), VQ_TEXT("Open")));
}

TEST(VqHiddenMenuCommands, FileOpenOfMainHasTheKeyMainAtFileOpen)
{
    set_hidden(VQ_TEXT("Main"), VQ_TEXT("_File Open(1);"));

    // The store cannot be read; what shows of the key is which other texts make it too.
    EXPECT_TRUE(hidden(VQ_TEXT("Main"), VQ_TEXT("File_Open")));
    EXPECT_FALSE(hidden(VQ_TEXT("Main"), VQ_TEXT("FileOpen")));
    EXPECT_FALSE(hidden(VQ_TEXT("Main"), VQ_TEXT("File_Open1")));
}

TEST(VqHiddenMenuCommands, NameAndCommandMeetAtTheFirstAt)
{
    set_hidden(VQ_TEXT("At"), VQ_TEXT("b@c"));

    EXPECT_TRUE(hidden(VQ_TEXT("At@b"), VQ_TEXT("c")));
}

TEST(VqHiddenMenuCommands, LongNameAndCommandAreKeptWhole)
{
    const std::basic_string<vq_wchar> name(10'000, VQ_TEXT('n'));
    const std::basic_string<vq_wchar> command(10'000, VQ_TEXT('c'));
    const std::basic_string<vq_wchar> other = command + VQ_TEXT('d');

    set_hidden(name.c_str(), command.c_str());

    EXPECT_TRUE(hidden(name.c_str(), command.c_str()));
    EXPECT_FALSE(hidden(name.c_str(), other.c_str()));
}

TEST(VqHiddenMenuCommands, CaseCounts)
{
    set_hidden(VQ_TEXT("Case"), VQ_TEXT("Open"));

    EXPECT_FALSE(hidden(VQ_TEXT("Case"), VQ_TEXT("open")));
    EXPECT_FALSE(hidden(VQ_TEXT("case"), VQ_TEXT("Open")));
}

class VqHiddenMenuCommandsSameKey : public testing::TestWithParam<SameKeyRow>
{ };

TEST_P(VqHiddenMenuCommandsSameKey, OneCommandHidesTheOther)
{
    const std::string narrow = "Same" + std::string(GetParam().m_name);
    const std::basic_string<vq_wchar> owner(narrow.begin(), narrow.end());

    set_hidden(owner.c_str(), GetParam().m_set);

    EXPECT_TRUE(hidden(owner.c_str(), GetParam().m_asked));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, VqHiddenMenuCommandsSameKey,
    testing::Values(SameKeyRow{"ArgumentsInBrackets", VQ_TEXT("Zoom(1)"), VQ_TEXT("Zoom(2)")},
                    SameKeyRow{"TextBehindSemicolon", VQ_TEXT("Zoom;Fit"), VQ_TEXT("Zoom;")},
                    SameKeyRow{"SemicolonAheadOfBracket", VQ_TEXT("Zoom;Fit(1)"), VQ_TEXT("Zoom")},
                    SameKeyRow{"BracketAheadOfSemicolon", VQ_TEXT("Zoom(a;b)"), VQ_TEXT("Zoom")},
                    SameKeyRow{"UnderscoreInFront", VQ_TEXT("_Zoom"), VQ_TEXT("Zoom")},
                    SameKeyRow{"BlankAndUnderscoreInside", VQ_TEXT("Zoom In Now"), VQ_TEXT("Zoom_In_Now")},
                    SameKeyRow{"SecondUnderscoreInFrontStays", VQ_TEXT("__Zoom"), VQ_TEXT("_ Zoom")},
                    SameKeyRow{"OnlyArguments", VQ_TEXT("(1)"), VQ_TEXT("")},
                    SameKeyRow{"OnlyUnderscoreAndArguments", VQ_TEXT("_;"), VQ_TEXT("")}),
    [](const auto& row) { return std::string(row.param.m_name); });

class VqHiddenMenuCommandsOtherKey : public testing::TestWithParam<SameKeyRow>
{ };

TEST_P(VqHiddenMenuCommandsOtherKey, OneCommandLeavesTheOtherAlone)
{
    const std::string narrow = "Other" + std::string(GetParam().m_name);
    const std::basic_string<vq_wchar> owner(narrow.begin(), narrow.end());

    set_hidden(owner.c_str(), GetParam().m_set);

    EXPECT_FALSE(hidden(owner.c_str(), GetParam().m_asked));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, VqHiddenMenuCommandsOtherKey,
    testing::Values(SameKeyRow{"UnderscoreInside", VQ_TEXT("Zoom_In"), VQ_TEXT("ZoomIn")},
                    SameKeyRow{"BlankInFrontIsKept", VQ_TEXT(" Zoom"), VQ_TEXT("Zoom")},
                    SameKeyRow{"TwoUnderscoresInFront", VQ_TEXT("__Zoom"), VQ_TEXT("_Zoom")},
                    SameKeyRow{"TabIsNoBlank", VQ_TEXT("Zoom\tIn"), VQ_TEXT("Zoom In")}),
    [](const auto& row) { return std::string(row.param.m_name); });
