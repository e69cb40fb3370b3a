#include "gallery/render/PropertyText.h"

#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QUrl>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A root with a property of each kind.
class Root
{
public:
    Root()
    {
        QQmlComponent component(&m_engine);
        component.setData(R"(import QtQuick
            Text {
                property bool truth
                property int whole
                property var anything
                property url address
                property point place
                property Item other
                readonly property int fixed: 1
            })",
                          QUrl());
        m_object.reset(component.create());
        EXPECT_TRUE(m_object) << component.errorString().toStdString();
    }

    std::optional<QVariant> Read(const char* name, const char* text)
    {
        return Gallery::ReadPropertyText(*m_object, {QString::fromUtf8(name), QString::fromUtf8(text)},
                                         m_error);
    }

    const QString& Error() const { return m_error; }

private:
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_object;
    QString m_error;
};

struct GoodText
{
    const char* name;
    const char* property;
    const char* text;
    QVariant value;
};

struct BadText
{
    const char* name;
    const char* property;
    const char* text;
    const char* sentence;
};

}

class GoodTexts : public testing::TestWithParam<GoodText>
{ };

TEST_P(GoodTexts, BecomeAValueOfTheProperty)
{
    Root root;

    const std::optional<QVariant> value = root.Read(GetParam().property, GetParam().text);

    ASSERT_TRUE(value) << root.Error().toStdString();
    EXPECT_EQ(*value, GetParam().value);
    EXPECT_EQ(value->metaType(), GetParam().value.metaType());
}

INSTANTIATE_TEST_SUITE_P(
    PropertyText, GoodTexts,
    testing::Values(GoodText{"Text", "text", "42", u"42"_s}, GoodText{"EmptyText", "text", "", u""_s},
                    GoodText{"TextOutsideAscii", "text", "größer", u"größer"_s},
                    GoodText{"Number", "width", "-1.5", -1.5}, GoodText{"WholeNumber", "whole", "42", 42},
                    GoodText{"True", "truth", "true", true}, GoodText{"False", "truth", "false", false},
                    GoodText{"NamedColour", "color", "red", QColor(Qt::red)},
                    GoodText{"ColourWithAlpha", "color", "#80102030", QColor(16, 32, 48, 128)},
                    GoodText{"Key", "horizontalAlignment", "AlignRight", int(Qt::AlignRight)},
                    GoodText{"KeyBehindItsType", "horizontalAlignment", "Text.AlignRight",
                             int(Qt::AlignRight)},
                    GoodText{"Address", "address", "qrc:///a.png", QUrl(u"qrc:///a.png"_s)},
                    GoodText{"PartOfAValue", "font.pixelSize", "20", 20},
                    GoodText{"AnythingTrue", "anything", "true", true},
                    GoodText{"AnythingANumber", "anything", "2.5", 2.5},
                    GoodText{"AnythingAText", "anything", "hello", u"hello"_s}),
    [](const auto& row) { return row.param.name; });

class BadTexts : public testing::TestWithParam<BadText>
{ };

TEST_P(BadTexts, AreToldInOneSentence)
{
    Root root;

    EXPECT_FALSE(root.Read(GetParam().property, GetParam().text));
    EXPECT_EQ(root.Error(), QString::fromLatin1(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    PropertyText, BadTexts,
    testing::Values(
        BadText{"Unknown", "wdith", "1", "The root has no property \"wdith\"."},
        BadText{"UnknownPart", "font.wobble", "1", "The root has no property \"font.wobble\"."},
        BadText{"Handler", "onTextChanged", "1", "The root has no property \"onTextChanged\"."},
        BadText{"ReadOnly", "fixed", "2", "The property \"fixed\" can only be read."},
        BadText{"NoNumber", "width", "wide", "The property \"width\" takes a number, not \"wide\"."},
        BadText{"Fraction", "whole", "1.5", "The property \"whole\" takes a whole number, not \"1.5\"."},
        BadText{"NoTruth", "truth", "yes", "The property \"truth\" takes true or false, not \"yes\"."},
        BadText{"NoColour", "color", "redd", "The property \"color\" takes a colour, not \"redd\"."},
        BadText{"NoKey", "horizontalAlignment", "AlignLost",
                "The property \"horizontalAlignment\" takes a key of HAlignment, not \"AlignLost\"."},
        BadText{"NoTextForm", "place", "somewhere",
                "The property \"place\" takes a value of the type QPointF, not \"somewhere\"."}),
    [](const auto& row) { return row.param.name; });

TEST(PropertyText, AnObjectCannotBeWrittenAsAText)
{
    Root root;

    EXPECT_FALSE(root.Read("other", "parent"));
    EXPECT_TRUE(root.Error().startsWith(u"The property \"other\" takes a value of the type "_s));
}
