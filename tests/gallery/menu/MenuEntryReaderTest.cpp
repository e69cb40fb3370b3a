#include "gallery/menu/MenuFile.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::MenuEntry;
using Gallery::MenuEntryType;
using Gallery::MenuFile;

namespace {

/// A file whose popup holds `entry` on line 3.
QByteArray with(const QByteArray& entry)
{
    return "{ \"format\": 1, \"menu\": [\n{ \"type\": \"popup\", \"id\": 1, \"text\": \"&File\", \"items\": "
           "[\n"
        + entry + "\n] } ] }";
}

MenuEntry read(const QByteArray& entry)
{
    MenuFile file;
    EXPECT_TRUE(file.Parse(with(entry), u"m.json"_s)) << file.Error().toStdString();
    return file.Document().menu.at(0).items.at(0);
}

struct BadEntry
{
    const char* name;
    const char* entry;
    const char* reason; // behind "m.json, line 3: "
};

QByteArray nested(int depth)
{
    QByteArray entry = "{ \"type\": \"separator\" }";
    for (int i = depth; i > 0; --i)
        entry = "{ \"type\": \"popup\", \"id\": " + QByteArray::number(100 + i) + ", \"text\": \"P"
            + QByteArray::number(i) + "\", \"items\": [ " + entry + " ] }";
    return entry;
}

}

TEST(MenuEntryReader, AnItemHasDefaults)
{
    const MenuEntry entry = read(R"({ "id": 7, "text": "&Open", "command": "FileOpen" })");

    EXPECT_EQ(entry.type, MenuEntryType::Item);
    EXPECT_EQ(entry.id, 7u);
    EXPECT_EQ(entry.text, u"&Open"_s);
    EXPECT_EQ(entry.command, u"FileOpen"_s);
    EXPECT_FALSE(entry.text_key);
    EXPECT_FALSE(entry.checked);
    EXPECT_TRUE(entry.enabled);
    EXPECT_TRUE(entry.mnemonic);
}

TEST(MenuEntryReader, AnItemTakesItsStates)
{
    const MenuEntry entry = read(
        R"({ "id": 7, "text": "A", "command": "A", "checked": true, "enabled": false, "mnemonic": false })");

    EXPECT_EQ(entry.checked, true);
    EXPECT_FALSE(entry.enabled);
    EXPECT_FALSE(entry.mnemonic);
}

TEST(MenuEntryReader, AMemberOfARadioGroupIsUnmarkedUnlessItSaysSo)
{
    const MenuEntry entry = read(R"({ "id": 7, "text": "A", "command": "A", "radio": "group" })");

    EXPECT_EQ(entry.radio, u"group"_s);
    EXPECT_EQ(entry.checked, false);
}

TEST(MenuEntryReader, ASeparatorNeedsNothing)
{
    EXPECT_EQ(read(R"({ "type": "separator" })").type, MenuEntryType::Separator);
}

TEST(MenuEntryReader, ColoursHaveRedInTheLowestByte)
{
    const MenuEntry entry = read(
        R"({ "type": "twocolor", "id": 7, "color1": "#123456", "color2": "#FF0000", "command": "C" })");

    EXPECT_EQ(entry.type, MenuEntryType::TwoColor);
    EXPECT_EQ(entry.color1, 0x563412u);
    EXPECT_EQ(entry.color2, 0x0000FFu);
}

TEST(MenuEntryReader, OneColourAndLineWidthAreTaken)
{
    EXPECT_EQ(read(R"({ "type": "onecolor", "id": 7, "color": "#010203", "command": "C" })").color1,
              0x030201u);
    EXPECT_EQ(read(R"({ "type": "linewidth", "id": 7, "text": "5", "width": 5, "command": "C" })").width, 5u);
}

TEST(MenuEntryReader, ItemsAndPopupsTakeAnImage)
{
    EXPECT_EQ(read(R"({ "id": 7, "text": "A", "command": "C", "image": "copy" })").image, u"copy"_s);
    EXPECT_EQ(read(R"({ "type": "popup", "id": 7, "text": "A", "image": "zoom_in", "items": [] })").image,
              u"zoom_in"_s);
}

TEST(MenuEntryReader, PopupsNestDownToTheLimit)
{
    MenuFile file;

    EXPECT_TRUE(file.Parse(with(nested(7)), u"m.json"_s));
}

TEST(MenuEntryReader, PopupsBeyondTheLimitAreRefused)
{
    MenuFile file;

    EXPECT_FALSE(file.Parse(with(nested(8)), u"m.json"_s));

    EXPECT_EQ(file.Error(), u"m.json, line 3: entry \"P8\" lies deeper than 8 popups."_s);
}

TEST(MenuEntryReader, TheBarHoldsPopupsOnly)
{
    MenuFile file;

    EXPECT_FALSE(file.Parse(
        "{ \"format\": 1, \"menu\": [\n{ \"id\": 1, \"text\": \"A\", \"command\": \"A\" } ] }", u"m.json"_s));

    EXPECT_EQ(file.Error(), u"m.json, line 2: \"menu\" holds popups only."_s);
}

TEST(MenuEntryReader, ATwiceUsedIdNamesBothEntries)
{
    MenuFile file;

    EXPECT_FALSE(file.Parse(with(R"({ "id": 7, "text": "A", "command": "CmdA" },
                                    { "id": 7, "text": "B", "command": "CmdB" })"),
                            u"m.json"_s));

    EXPECT_EQ(file.Error(),
              u"m.json, line 4: entry \"CmdB\" has the id 7, which entry \"CmdA\" has already."_s);
}

TEST(MenuEntryReader, AFaultInAMemberIsToldWithItsOwnLine)
{
    MenuFile file;

    EXPECT_FALSE(file.Parse(with("{ \"id\": 7,\n\"text\": \"A\",\n\"command\": 3 }"), u"m.json"_s));

    EXPECT_EQ(file.Error(), u"m.json, line 5: entry \"A\" needs a text as \"command\"."_s);
}

TEST(MenuEntryReader, SeparatorsMayStandInARadioGroup)
{
    MenuFile file;

    EXPECT_TRUE(file.Parse(with(R"({ "id": 7, "text": "A", "command": "CmdA", "radio": "g" },
        { "type": "separator" }, { "id": 8, "text": "B", "command": "CmdB", "radio": "g" },
        { "id": 9, "text": "C", "command": "CmdC", "radio": "h" })"),
                           u"m.json"_s))
        << file.Error().toStdString();
}

class BrokenGroups : public testing::TestWithParam<const char*>
{ };

TEST_P(BrokenGroups, AreRefused)
{
    MenuFile file;
    const QByteArray group = "{ \"id\": 7, \"text\": \"A\", \"command\": \"CmdA\", \"radio\": \"g\" }, "
                             "{ \"id\": 8, \"text\": \"B\", \"command\": \"CmdB\""
        + QByteArray(GetParam())
        + " },\n{ \"id\": 9, \"text\": \"C\", \"command\": \"CmdC\", \"radio\": \"g\" }";

    EXPECT_FALSE(file.Parse(with(group), u"m.json"_s));

    EXPECT_EQ(file.Error(), u"m.json, line 4: entry \"CmdC\" stands apart from its radio group \"g\"."_s);
}

INSTANTIATE_TEST_SUITE_P(MenuEntryReader, BrokenGroups, testing::Values("", ", \"radio\": \"h\""),
                         [](const auto& row) { return row.index == 0 ? "ByAnEntry" : "ByAnotherGroup"; });

class BadEntries : public testing::TestWithParam<BadEntry>
{ };

TEST_P(BadEntries, AreToldWithTheirLineAndName)
{
    MenuFile file;

    EXPECT_FALSE(file.Parse(with(GetParam().entry), u"m.json"_s));

    EXPECT_EQ(file.Error(), u"m.json, line 3: "_s + QString::fromUtf8(GetParam().reason));
}

INSTANTIATE_TEST_SUITE_P(
    MenuEntryReader, BadEntries,
    testing::Values(
        BadEntry{"UnknownType", R"({ "type": "blob", "id": 7, "text": "A" })",
                 "entry \"A\" has the unknown type \"blob\"."},
        BadEntry{"TypeIsNoText", R"({ "type": 7, "id": 7, "text": "A" })",
                 "entry \"A\" has the unknown type \"7\"."},
        BadEntry{"UnknownMember", R"({ "id": 7, "text": "A", "command": "CmdA", "colour": 3 })",
                 "entry \"CmdA\" has an unknown member \"colour\"."},
        BadEntry{"MemberOfAnotherType", R"({ "type": "separator", "text": "A" })",
                 "entry \"A\" has an unknown member \"text\"."},
        BadEntry{"NoId", R"({ "text": "A", "command": "CmdA" })",
                 "entry \"CmdA\" needs an \"id\" from 1 to 999999."},
        BadEntry{"IdZero", R"({ "id": 0, "text": "A", "command": "CmdA" })",
                 "entry \"CmdA\" needs an \"id\" from 1 to 999999."},
        BadEntry{"IdTooLarge", R"({ "id": 1000000, "text": "A", "command": "CmdA" })",
                 "entry \"CmdA\" needs an \"id\" from 1 to 999999."},
        BadEntry{"IdWithAFraction", R"({ "id": 1.5, "text": "A", "command": "CmdA" })",
                 "entry \"CmdA\" needs an \"id\" from 1 to 999999."},
        BadEntry{"IdOfThePopup", R"({ "id": 1, "text": "A", "command": "CmdA" })",
                 "entry \"CmdA\" has the id 1, which entry \"&File\" has already."},
        BadEntry{"NoText", R"({ "id": 7, "command": "CmdA" })", "entry \"CmdA\" needs a text as \"text\"."},
        BadEntry{"NoCommand", R"({ "id": 7, "text": "A" })", "entry \"A\" needs a text as \"command\"."},
        BadEntry{"TextWithATab", R"({ "id": 7, "text": "A\tB", "command": "CmdA" })",
                 "entry \"CmdA\" has a control character in \"text\"."},
        BadEntry{"CheckedIsNoFlag", R"({ "id": 7, "text": "A", "command": "CmdA", "checked": "yes" })",
                 "entry \"CmdA\" needs true or false as \"checked\"."},
        BadEntry{"RadioIsNoText", R"({ "id": 7, "text": "A", "command": "CmdA", "radio": 1 })",
                 "entry \"CmdA\" needs a text as \"radio\"."},
        BadEntry{"ImageIsNoText", R"({ "id": 7, "text": "A", "command": "CmdA", "image": 1 })",
                 "entry \"CmdA\" needs a text as \"image\"."},
        BadEntry{"ImageThatIsNone", R"({ "id": 7, "text": "A", "command": "CmdA", "image": "coppy" })",
                 "entry \"CmdA\" has the image \"coppy\", which the icons do not have."},
        BadEntry{"ImageOfAColour",
                 R"({ "type": "onecolor", "id": 7, "color": "#010203", "command": "CmdA", "image": "copy" })",
                 "entry \"CmdA\" has an unknown member \"image\"."},
        BadEntry{"ColourWithoutHash",
                 R"({ "type": "onecolor", "id": 7, "color": "1234567", "command": "CmdA" })",
                 "entry \"CmdA\" needs a colour such as \"#3f6fb5\" as \"color\"."},
        BadEntry{"ColourOfLetters",
                 R"({ "type": "onecolor", "id": 7, "color": "#12345g", "command": "CmdA" })",
                 "entry \"CmdA\" needs a colour such as \"#3f6fb5\" as \"color\"."},
        BadEntry{"SecondColourMissing",
                 R"({ "type": "twocolor", "id": 7, "color1": "#123456", "command": "CmdA" })",
                 "entry \"CmdA\" needs a colour such as \"#3f6fb5\" as \"color2\"."},
        BadEntry{"WidthZero",
                 R"({ "type": "linewidth", "id": 7, "text": "0", "width": 0, "command": "CmdA" })",
                 "entry \"CmdA\" needs a \"width\" from 1 to 200."},
        BadEntry{"PopupWithoutItems", R"({ "type": "popup", "id": 7, "text": "More" })",
                 "\"items\" of entry \"More\" is not a list."}),
    [](const auto& row) { return row.param.name; });

TEST(MenuEntryReader, AnEntryThatIsNoObjectIsToldWithItsPath)
{
    MenuFile file;

    EXPECT_FALSE(file.Parse(with("12"), u"m.json"_s));

    EXPECT_EQ(file.Error(), u"m.json, line 3: \"menu/0/items/0\" is not an object."_s);
}
