#include "gallery/menu/MenuFile.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::MenuEntry;
using Gallery::MenuFile;
using Gallery::MenuKey;

namespace {

/// A file whose popup holds one item with `members` on line 3, and `keys` on line 5.
QByteArray with(const QByteArray& members, const QByteArray& keys = {})
{
    return "{ \"format\": 1, \"menu\": [\n{ \"type\": \"popup\", \"id\": 1, \"text\": \"&File\", \"items\": "
           "[\n"
           "{ \"id\": 2, \"text\": \"A\", \"command\": \"CmdA\", "
        + members + " } ] } ],\n\"keys\": [\n" + keys + "] }";
}

MenuEntry read(const QByteArray& members)
{
    MenuFile file;
    EXPECT_TRUE(file.Parse(with(members), u"m.json"_s)) << file.Error().toStdString();
    return file.Document().menu.at(0).items.at(0);
}

struct BadKey
{
    const char* name;
    const char* members;
    const char* keys;
    const char* sentence;
};

}

TEST(MenuEntryReaderKeys, AKeyTextGivesTextAndKey)
{
    const MenuEntry entry = read(R"("key": "Ctrl+Shift+S")");

    EXPECT_EQ(entry.key_text, u"Ctrl+Shift+S"_s);
    EXPECT_EQ(entry.text_key, (MenuKey{22, 0x53}));
    EXPECT_TRUE(entry.keys.isEmpty());
}

TEST(MenuEntryReaderKeys, FlagsAndValueGiveKeysThatNoTextCarries)
{
    const MenuEntry entry = read(
        R"("keys": [{ "flags": ["Ctrl"], "key": 188 }, { "flags": ["Ctrl", "Alt", "Shift"], "key": 187 }])");

    EXPECT_EQ(entry.keys, (QList<MenuKey>{{18, 188}, {23, 187}}));
    EXPECT_FALSE(entry.text_key);
}

TEST(MenuEntryReaderKeys, AKeyWithoutAnEntryMayHaveAText)
{
    MenuFile file;

    ASSERT_TRUE(file.Parse(
        with("\"key\": \"F2\"", R"({ "id": 9, "text": "Pan Left", "command": "Pan", "key": "Left" },
        { "id": 10, "command": "Compare", "key": "Right" })"),
        u"m.json"_s));

    EXPECT_EQ(file.Document().keys[0].text, u"Pan Left"_s);
    EXPECT_EQ(file.Document().keys[1].text, QString());
}

TEST(MenuEntryReaderKeys, AKeyWithoutAnEntryHasACommand)
{
    MenuFile file;

    ASSERT_TRUE(file.Parse(with("\"key\": \"F2\"", R"({ "id": 9, "command": "Pan", "key": "Left" },
        { "id": 10, "command": "Compare", "keys": [{ "flags": [], "key": 220 }] })"),
                           u"m.json"_s));

    ASSERT_EQ(file.Document().keys.size(), 2u);
    EXPECT_EQ(file.Document().keys[0].command, u"Pan"_s);
    EXPECT_EQ(file.Document().keys[0].key, (MenuKey{16, 37}));
    EXPECT_EQ(file.Document().keys[1].key, (MenuKey{16, 220}));
}

class BadKeys : public testing::TestWithParam<BadKey>
{ };

TEST_P(BadKeys, AreToldWithTheirLineAndEntry)
{
    MenuFile file;

    EXPECT_FALSE(file.Parse(with(GetParam().members, GetParam().keys), u"m.json"_s));

    EXPECT_EQ(file.Error(), QString::fromUtf8(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    MenuEntryReaderKeys, BadKeys,
    testing::Values(
        BadKey{"NoKey", R"("key": "Ctrl++")", "",
               "m.json, line 3: entry \"CmdA\" has the key text \"Ctrl++\", which names no key."},
        BadKey{"AList", R"("key": "Ctrl+A,Ctrl+B")", "",
               "m.json, line 3: entry \"CmdA\" has the key text \"Ctrl+A,Ctrl+B\", which names no key."},
        BadKey{"NumberAsText", R"("key": 65)", "", "m.json, line 3: entry \"CmdA\" needs a text as \"key\"."},
        BadKey{"KeysAreNoList", R"("keys": 65)", "",
               "m.json, line 3: entry \"CmdA\" needs a list as \"keys\"."},
        BadKey{"ValueTooLarge", R"("keys": [{ "flags": [], "key": 255 }])", "",
               "m.json, line 3: entry \"CmdA\" needs a \"key\" from 1 to 254 in each of its \"keys\"."},
        BadKey{"ValueMissing", R"("keys": [{ "flags": [] }])", "",
               "m.json, line 3: entry \"CmdA\" needs a \"key\" from 1 to 254 in each of its \"keys\"."},
        BadKey{"FlagsMissing", R"("keys": [{ "key": 65 }])", "",
               "m.json, line 3: entry \"CmdA\" needs a list as \"flags\" in each of its \"keys\"."},
        BadKey{"UnknownMemberOfAKey", R"("keys": [{ "flags": [], "key": 65, "kye": 66 }])", "",
               "m.json, line 3: entry \"CmdA\" has an unknown member \"kye\"."},
        BadKey{"AKeyThatIsNoObject", R"("keys": [65])", "",
               "m.json, line 3: entry \"CmdA\" needs a \"key\" from 1 to 254 in each of its \"keys\"."},
        BadKey{"UnknownFlag", R"("keys": [{ "flags": ["Meta"], "key": 65 }])", "",
               "m.json, line 3: entry \"CmdA\" has a flag other than \"Alt\", \"Ctrl\" and \"Shift\"."},
        BadKey{"TwiceInOneEntry", R"("key": "Ctrl+A", "keys": [{ "flags": ["Ctrl"], "key": 65 }])", "",
               "m.json, line 3: entry \"CmdA\" has the key Ctrl+A, which entry \"CmdA\" has already."},
        BadKey{"HeldByAnEntry", R"("key": "Left")", R"({ "id": 9, "command": "Pan", "key": "Left" })",
               "m.json, line 5: entry \"Pan\" has the key Left, which entry \"CmdA\" has already."},
        BadKey{"LonelyWithoutAKey", R"("key": "F2")", R"({ "id": 9, "command": "Pan" })",
               "m.json, line 5: entry \"Pan\" needs one key."},
        BadKey{"LonelyWithTwoKeys", R"("key": "F2")",
               R"({ "id": 9, "command": "Pan", "key": "F3", "keys": [{ "flags": [], "key": 220 }] })",
               "m.json, line 5: entry \"Pan\" needs one key."},
        BadKey{"LonelyWithAnImage", R"("key": "F2")", R"({ "id": 9, "command": "Pan", "image": "P" })",
               "m.json, line 5: entry \"Pan\" has an unknown member \"image\"."},
        BadKey{"LonelyWithAnIdInUse", R"("key": "F2")", R"({ "id": 2, "command": "Pan", "key": "F3" })",
               "m.json, line 5: entry \"Pan\" has the id 2, which entry \"CmdA\" has already."}),
    [](const auto& row) { return row.param.name; });
