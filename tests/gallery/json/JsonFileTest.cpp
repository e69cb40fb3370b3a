#include "gallery/json/JsonFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::JsonFile;

TEST(JsonFile, AnObjectIsRead)
{
    JsonFile file;

    EXPECT_TRUE(file.Parse(R"({ "a": 1 })", u"m.json"_s));

    EXPECT_EQ(file.Object().value(u"a"_s).toInt(), 1);
    EXPECT_EQ(file.Error(), QString());
    EXPECT_EQ(file.Fingerprint().size(), 64);
}

TEST(JsonFile, AFailureLeavesNothing)
{
    JsonFile file;
    file.Parse(R"({ "a": 1 })", u"m.json"_s);

    EXPECT_FALSE(file.Parse("[ 1 ]", u"n.json"_s));

    EXPECT_TRUE(file.Object().isEmpty());
    EXPECT_EQ(file.Fingerprint(), QString());
    EXPECT_EQ(file.Error(), u"n.json, line 1: the file is not an object."_s);
}

TEST(JsonFile, BadJsonIsToldWithItsLine)
{
    JsonFile file;

    EXPECT_FALSE(file.Parse("{\n\"a\": [", u"m.json"_s));

    EXPECT_EQ(file.Error(), u"m.json, line 2: unterminated array."_s);
}

TEST(JsonFile, AMissingFileIsTold)
{
    JsonFile file;

    EXPECT_FALSE(file.Load(u"nowhere.json"_s));

    EXPECT_EQ(file.Error(), u"nowhere.json: No such file or directory."_s);
}

TEST(JsonFile, AFolderIsNoFile)
{
    const QTemporaryDir folder;
    JsonFile file;

    EXPECT_FALSE(file.Load(folder.path()));

    EXPECT_EQ(file.Error(), folder.path() + u": it is a folder."_s);
}

TEST(JsonFile, WhatStandsOnDiskIsRead)
{
    const QTemporaryDir folder;
    QFile out(folder.filePath(u"a.json"_s));
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(R"({ "a": 1 })");
    out.close();
    JsonFile file;

    EXPECT_TRUE(file.Load(out.fileName()));

    EXPECT_EQ(file.Object().size(), 1);
}

TEST(JsonFile, AFaultIsTurnedIntoASentenceWithItsLine)
{
    JsonFile file;
    file.Parse("{\n\"a\": [\n1, 2 ] }", u"m.json"_s);

    EXPECT_EQ(file.SentenceOn({u"a/1"_s, u"two is too many"_s}), u"m.json, line 3: two is too many."_s);
    EXPECT_EQ(file.SentenceOn({}), QString());
}
