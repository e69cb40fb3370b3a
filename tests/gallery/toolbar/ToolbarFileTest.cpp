#include "gallery/toolbar/ToolbarFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::ToolbarFile;

namespace {

struct BadFile
{
    const char* name;
    const char* json;
    const char* sentence;
};

class BadToolbarFiles : public testing::TestWithParam<BadFile>
{ };

}

TEST(ToolbarFile, AGoodFileGivesItsToolbars)
{
    ToolbarFile file;

    ASSERT_TRUE(file.Parse(R"({ "format": 1, "toolbars": [
        { "name": "a", "text": "A", "controls": [ { "command": "EditUndo" } ] } ] })",
                           u"t.json"_s));

    ASSERT_EQ(file.Document().bars.size(), 1u);
    EXPECT_EQ(file.Document().bars[0].entries.at(0).command, u"EditUndo"_s);
    EXPECT_EQ(file.Error(), QString());
}

TEST(ToolbarFile, ABadFileLeavesTheDocument)
{
    ToolbarFile file;
    file.Parse(R"({ "format": 1, "toolbars": [ { "name": "a", "text": "A", "controls": [] } ] })",
               u"t.json"_s);

    EXPECT_FALSE(file.Parse("[", u"b.json"_s));

    EXPECT_EQ(file.Document().bars.size(), 1u);
    EXPECT_NE(file.Error(), QString());
}

TEST(ToolbarFile, LoadReadsWhatStandsOnDisk)
{
    const QTemporaryDir folder;
    QFile out(folder.filePath(u"t.json"_s));
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(R"({ "format": 1, "toolbars": [] })");
    out.close();
    ToolbarFile file;

    EXPECT_TRUE(file.Load(out.fileName()));
    EXPECT_FALSE(file.Load(folder.path()));
    EXPECT_EQ(file.Error(), folder.path() + u": it is a folder."_s);
}

TEST(ToolbarFile, TheShippedFileHasThreeToolbars)
{
    QStringList names;
    for (const Gallery::ToolbarDescription& bar : Gallery::FactoryToolbars().bars)
        names << bar.name;

    EXPECT_EQ(names, (QStringList{u"main"_s, u"tools"_s, u"text"_s}));
}

TEST_P(BadToolbarFiles, GiveOneSentenceWithFileLineAndReason)
{
    ToolbarFile file;

    EXPECT_FALSE(file.Parse(GetParam().json, u"t.json"_s));

    EXPECT_EQ(file.Error(), QString::fromUtf8(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    ToolbarFile, BadToolbarFiles,
    testing::Values(BadFile{"Empty", "", "t.json, line 1: illegal value."},
                    BadFile{"AnArray", "[ 1 ]", "t.json, line 1: the file is not an object."},
                    BadFile{"NoFormat", "{ \"toolbars\": [] }", "t.json, line 1: \"format\" is not 1."},
                    BadFile{"OtherFormat", "\n{ \"format\": 2, \"toolbars\": [] }",
                            "t.json, line 2: \"format\" is not 1."},
                    BadFile{"NoToolbars", "{ \"format\": 1 }", "t.json, line 1: \"toolbars\" is missing."},
                    BadFile{"UnknownMember", "{ \"format\": 1, \"toolbars\": [],\n \"bras\": [] }",
                            "t.json, line 2: the file has an unknown member \"bras\"."},
                    BadFile{"NoList", "{ \"format\": 1,\n\"toolbars\": {} }",
                            "t.json, line 2: \"toolbars\" is not a list."}),
    [](const auto& row) { return row.param.name; });
