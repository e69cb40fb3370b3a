#include "gallery/menu/MenuFile.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::MenuFile;

namespace {

QByteArray one_item()
{
    return R"({ "format": 1, "menu": [
      { "type": "popup", "id": 1, "text": "&File", "items": [
        { "id": 2, "text": "&Open", "command": "FileOpen" } ] } ] })";
}

struct BadFile
{
    const char* name;
    const char* json;
    const char* sentence;
};

}

TEST(MenuFile, AGoodFileGivesItsEntries)
{
    MenuFile file;

    ASSERT_TRUE(file.Parse(one_item(), u"a.json"_s));

    ASSERT_EQ(file.Document().menu.size(), 1u);
    ASSERT_EQ(file.Document().menu[0].items.size(), 1u);
    EXPECT_EQ(file.Document().menu[0].items[0].command, u"FileOpen"_s);
    EXPECT_TRUE(file.Error().isEmpty());
}

TEST(MenuFile, AnotherContentHasAnotherFingerprint)
{
    MenuFile one;
    MenuFile same;
    MenuFile other;
    ASSERT_TRUE(one.Parse(R"({ "format": 1, "menu": [] })", u"a.json"_s));
    ASSERT_TRUE(same.Parse(R"({ "format": 1, "menu": [] })", u"b.json"_s));
    ASSERT_TRUE(other.Parse(R"({ "format": 1, "menu": [], "keys": [] })", u"a.json"_s));

    EXPECT_FALSE(one.Document().fingerprint.isEmpty());
    EXPECT_EQ(one.Document().fingerprint, same.Document().fingerprint);
    EXPECT_NE(one.Document().fingerprint, other.Document().fingerprint);
}

TEST(MenuFile, ABadFileLeavesTheDocument)
{
    MenuFile file;
    file.Parse(one_item(), u"a.json"_s);

    EXPECT_FALSE(file.Parse("[", u"b.json"_s));

    EXPECT_EQ(file.Document().menu.size(), 1u);
    EXPECT_FALSE(file.Error().isEmpty());
}

TEST(MenuFile, AMissingFileIsToldWithoutALine)
{
    MenuFile file;

    EXPECT_FALSE(file.Load(u"nowhere.json"_s));

    EXPECT_EQ(file.Error(), u"nowhere.json: No such file or directory."_s);
}

TEST(MenuFile, AFolderIsNoFile)
{
    const QTemporaryDir folder;
    MenuFile file;

    EXPECT_FALSE(file.Load(folder.path()));

    EXPECT_EQ(file.Error(), folder.path() + u": it is a folder."_s);
}

TEST(MenuFile, LoadReadsWhatStandsOnDisk)
{
    const QTemporaryDir folder;
    QFile out(folder.filePath(u"menu.json"_s));
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(one_item());
    out.close();
    MenuFile file;

    EXPECT_TRUE(file.Load(out.fileName()));

    EXPECT_EQ(file.Document().menu.size(), 1u);
}

class BadFiles : public testing::TestWithParam<BadFile>
{ };

TEST_P(BadFiles, GiveOneSentenceWithFileLineAndReason)
{
    MenuFile file;

    EXPECT_FALSE(file.Parse(GetParam().json, u"m.json"_s));

    EXPECT_EQ(file.Error(), QString::fromUtf8(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    MenuFile, BadFiles,
    testing::Values(
        BadFile{"Empty", "", "m.json, line 1: illegal value."},
        BadFile{"CutShort", "{\n\"format\": 1,\n\"menu\": [", "m.json, line 3: unterminated array."},
        BadFile{"NoQuotes", "{\n format: 1 }", "m.json, line 2: unterminated object."},
        BadFile{"AnArray", "[ 1 ]", "m.json, line 1: the file is not an object."},
        BadFile{"CommaMissing", "{\n\"format\": 1,\n\"menu\": [ { \"type\": \"separator\" }\n{ } ] }",
                "m.json, line 4: missing value separator."},
        BadFile{"NoFormat", "{ \"menu\": [] }", "m.json, line 1: \"format\" is not 1."},
        BadFile{"OtherFormat", "\n{ \"format\": 2, \"menu\": [] }", "m.json, line 2: \"format\" is not 1."},
        BadFile{"NoMenu", "{ \"format\": 1 }", "m.json, line 1: \"menu\" is missing."},
        BadFile{"UnknownMember", "{ \"format\": 1, \"menu\": [], \"mneu\": [] }",
                "m.json, line 1: the file has an unknown member \"mneu\"."},
        BadFile{"MenuIsNoList", "{ \"format\": 1, \"menu\": 3 }", "m.json, line 1: \"menu\" is not a list."},
        BadFile{"MenuFurtherDownIsNoList", "{ \"format\": 1,\n\n\"menu\": 3 }",
                "m.json, line 3: \"menu\" is not a list."},
        BadFile{"KeysAreNoList", "{ \"format\": 1, \"menu\": [], \"keys\": {} }",
                "m.json, line 1: \"keys\" is not a list."}),
    [](const auto& row) { return row.param.name; });
