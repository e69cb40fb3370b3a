#include "gallery/json/JsonLines.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::JsonLines;

TEST(JsonLines, TheWholeTextIsTheEmptyPath)
{
    EXPECT_EQ(JsonLines("\n\n{ }").LineOf(u""_s), 3);
}

TEST(JsonLines, ObjectsInArraysAreCountedFromZero)
{
    const JsonLines lines("{ \"menu\": [\n{},\n{ \"items\": [ 1,\n{} ] } ] }");

    EXPECT_EQ(lines.LineOf(u"menu/0"_s), 2);
    EXPECT_EQ(lines.LineOf(u"menu/1"_s), 3);
    EXPECT_EQ(lines.LineOf(u"menu/1/items/1"_s), 4);
}

TEST(JsonLines, MarksInsideTextsAreNoMarks)
{
    const JsonLines lines("{ \"a\": \"},{[\",\n \"b\": \"\\\"{\",\n \"c\": {} }");

    EXPECT_EQ(lines.LineOf(u"c"_s), 3);
}

TEST(JsonLines, AnEscapedBackslashEndsNoEscape)
{
    const JsonLines lines("{ \"a\": \"\\\\\",\n \"b\": {} }");

    EXPECT_EQ(lines.LineOf(u"b"_s), 2);
}

TEST(JsonLines, EveryValueHasItsLine)
{
    const JsonLines lines("{ \"a\": 1,\n\"b\":\n\"text\",\n\"c\": [\n[],\n [ true,\nnull ], {} ] }");

    EXPECT_EQ(lines.LineOf(u"a"_s), 1);
    EXPECT_EQ(lines.LineOf(u"b"_s), 3);
    EXPECT_EQ(lines.LineOf(u"c"_s), 4);
    EXPECT_EQ(lines.LineOf(u"c/0"_s), 5);
    EXPECT_EQ(lines.LineOf(u"c/1/0"_s), 6);
    EXPECT_EQ(lines.LineOf(u"c/1/1"_s), 7);
    EXPECT_EQ(lines.LineOf(u"c/2"_s), 7);
}

TEST(JsonLines, APathWithoutAValueHasTheLineOfTheInnermostValueOnTheWay)
{
    const JsonLines lines("{ \"a\": [\n{\n\"b\": 1 } ] }");

    EXPECT_EQ(lines.LineOf(u"a/0/c"_s), 2);
    EXPECT_EQ(lines.LineOf(u"a/7"_s), 1);
    EXPECT_EQ(lines.LineOf(u"x/y"_s), 1);
}

TEST(JsonLines, LineAtCountsTheBreaksBeforeTheByte)
{
    const QByteArray text("ab\ncd\n");

    EXPECT_EQ(JsonLines::LineAt(text, 0), 1);
    EXPECT_EQ(JsonLines::LineAt(text, 2), 1);
    EXPECT_EQ(JsonLines::LineAt(text, 3), 2);
}

TEST(JsonLines, LineAtOutsideTheTextGivesTheNearestLine)
{
    const QByteArray text("ab\ncd");

    EXPECT_EQ(JsonLines::LineAt(text, -1), 1);
    EXPECT_EQ(JsonLines::LineAt(text, 100), 2);
}
