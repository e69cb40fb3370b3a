#include "gallery/json/JsonFields.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::JsonFields;

namespace {

class JsonFieldsTest : public testing::Test
{
protected:
    static QJsonObject Object(const char* json) { return QJsonDocument::fromJson(json).object(); }

    JsonFields::Source Open(const char* json)
    {
        JsonFields::Source source;
        EXPECT_TRUE(m_fields.Open(Object(json), u"list/0"_s, source));
        return source;
    }

    QString Told() const { return m_fields.Fault().path + u": "_s + m_fields.Fault().reason; }

    JsonFields m_fields{u"thing"_s, u"a thing"_s};
};

}

TEST_F(JsonFieldsTest, AnObjectIsCalledByItsCommandOrItsText)
{
    EXPECT_EQ(Open(R"({ "text": "T", "command": "C" })").name, u"thing \"C\""_s);
    EXPECT_EQ(Open(R"({ "text": "T" })").name, u"thing \"T\""_s);
    EXPECT_EQ(Open("{}").name, u"a thing"_s);
}

TEST_F(JsonFieldsTest, WhatIsNoObjectIsTold)
{
    JsonFields::Source source;

    EXPECT_FALSE(m_fields.Open(QJsonValue(3), u"list/0"_s, source));

    EXPECT_EQ(Told(), u"list/0: \"list/0\" is not an object"_s);
}

TEST_F(JsonFieldsTest, TheFirstFaultIsKept)
{
    EXPECT_FALSE(m_fields.Fail(u"a"_s, u"one"_s));
    EXPECT_FALSE(m_fields.Fail(u"b"_s, u"two"_s));

    EXPECT_TRUE(m_fields.Failed());
    EXPECT_EQ(Told(), u"a: one"_s);
}

TEST_F(JsonFieldsTest, AnUnknownMemberIsTold)
{
    EXPECT_FALSE(m_fields.CheckMembers(Object(R"({ "a": 1, "b": 2 })"), u"p"_s, u"it"_s, {u"a"_s}));

    EXPECT_EQ(Told(), u"p/b: it has an unknown member \"b\""_s);
}

TEST_F(JsonFieldsTest, ATextIsTaken)
{
    QString text;

    EXPECT_TRUE(m_fields.ReadText(Open(R"({ "text": "T" })"), u"text"_s, text));

    EXPECT_EQ(text, u"T"_s);
}

TEST_F(JsonFieldsTest, AnEmptyTextIsTold)
{
    QString text;

    EXPECT_FALSE(m_fields.ReadText(Open(R"({ "command": "C", "text": "" })"), u"text"_s, text));

    EXPECT_EQ(Told(), u"list/0/text: thing \"C\" needs a text as \"text\""_s);
}

TEST_F(JsonFieldsTest, AControlCharacterIsTold)
{
    QString text;

    EXPECT_FALSE(m_fields.ReadText(Open(R"({ "command": "C", "text": "a\tb" })"), u"text"_s, text));

    EXPECT_EQ(Told(), u"list/0/text: thing \"C\" has a control character in \"text\""_s);
}

TEST_F(JsonFieldsTest, AMissingFlagLeavesTheValue)
{
    bool flag = true;

    EXPECT_TRUE(m_fields.ReadFlag(Open("{}"), u"flag"_s, flag));
    EXPECT_TRUE(flag);
    EXPECT_TRUE(m_fields.ReadFlag(Open(R"({ "flag": false })"), u"flag"_s, flag));
    EXPECT_FALSE(flag);
}

TEST_F(JsonFieldsTest, AFlagThatIsNoneIsTold)
{
    bool flag = true;

    EXPECT_FALSE(m_fields.ReadFlag(Open(R"({ "flag": 1 })"), u"flag"_s, flag));

    EXPECT_EQ(Told(), u"list/0/flag: a thing needs true or false as \"flag\""_s);
}

TEST_F(JsonFieldsTest, AnImageMayBeMissingButNotUnknown)
{
    QString image;

    EXPECT_TRUE(m_fields.ReadImage(Open("{}"), image));
    EXPECT_TRUE(m_fields.ReadImage(Open(R"({ "image": "copy" })"), image));
    EXPECT_EQ(image, u"copy"_s);
    EXPECT_FALSE(m_fields.ReadImage(Open(R"({ "image": "wobble" })"), image));
    EXPECT_EQ(Told(), u"list/0/image: a thing has the image \"wobble\", which the icons do not have"_s);
}

TEST(IsWholeNumber, TakesWholeNumbersWithinBounds)
{
    EXPECT_TRUE(Gallery::IsWholeNumber(1, 1, 9));
    EXPECT_TRUE(Gallery::IsWholeNumber(9, 1, 9));
    EXPECT_FALSE(Gallery::IsWholeNumber(0, 1, 9));
    EXPECT_FALSE(Gallery::IsWholeNumber(10, 1, 9));
    EXPECT_FALSE(Gallery::IsWholeNumber(1.5, 1, 9));
    EXPECT_FALSE(Gallery::IsWholeNumber(u"1"_s, 1, 9));
}
