#include "gallery/toolbar/ToolbarEntryReader.h"

#include "gallery/toolbar/ToolbarFile.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::ToolbarEntry;
using Gallery::ToolbarEntryType;
using Gallery::ToolbarFile;

namespace {

/// A file whose toolbar holds `controls` on line 3.
QByteArray with(const QByteArray& controls)
{
    return "{ \"format\": 1, \"toolbars\": [\n{ \"name\": \"bar\", \"text\": \"Bar\", \"controls\": [\n"
        + controls + "\n] } ] }";
}

ToolbarEntry read(const QByteArray& control)
{
    ToolbarFile file;
    EXPECT_TRUE(file.Parse(with(control), u"t.json"_s)) << file.Error().toStdString();
    return file.Document().bars.at(0).entries.at(0);
}

QString told(const QByteArray& json)
{
    ToolbarFile file;
    EXPECT_FALSE(file.Parse(json, u"t.json"_s));
    return file.Error();
}

QByteArray separators(int count)
{
    return QByteArray("{ \"type\": \"separator\" },").repeated(count).chopped(1);
}

struct BadControl
{
    const char* name;
    const char* control;
    const char* reason; // behind "t.json, line 3: "
};

class BadControls : public testing::TestWithParam<BadControl>
{ };

struct BadBar
{
    const char* name;
    const char* bars;
    const char* reason; // behind "t.json, line 2: "
};

class BadBars : public testing::TestWithParam<BadBar>
{ };

}

TEST(ToolbarEntryReader, AButtonIsNamedAfterItsCommand)
{
    const ToolbarEntry entry = read(R"x({ "command": "ViewZoom(100)" })x");

    EXPECT_EQ(entry.type, ToolbarEntryType::Button);
    EXPECT_EQ(entry.name, u"ViewZoom(100)"_s);
    EXPECT_EQ(entry.command, u"ViewZoom(100)"_s);
    EXPECT_EQ(entry.popup, 0u);
    EXPECT_EQ(entry.image, QString());
}

TEST(ToolbarEntryReader, AButtonMayHaveAnImageAndAPopup)
{
    const ToolbarEntry entry
        = read(R"({ "type": "button", "command": "C", "image": "copy", "popup": 1009 })");

    EXPECT_EQ(entry.image, u"copy"_s);
    EXPECT_EQ(entry.popup, 1009u);
}

TEST(ToolbarEntryReader, ATextButtonIsOne)
{
    EXPECT_EQ(read(R"({ "type": "text", "command": "C" })").type, ToolbarEntryType::TextButton);
}

TEST(ToolbarEntryReader, AnItemHasNameTextAndFile)
{
    const ToolbarEntry entry
        = read(R"({ "type": "item", "name": "zoom", "text": "Zoom", "file": "ZoomSlider" })");

    EXPECT_EQ(entry.type, ToolbarEntryType::Item);
    EXPECT_EQ(entry.name, u"zoom"_s);
    EXPECT_EQ(entry.text, u"Zoom"_s);
    EXPECT_EQ(entry.file, u"ZoomSlider"_s);
    EXPECT_EQ(entry.command, QString());
}

TEST(ToolbarEntryReader, ASeparatorNeedsNothing)
{
    EXPECT_EQ(read(R"({ "type": "separator" })").type, ToolbarEntryType::Separator);
}

TEST(ToolbarEntryReader, AToolbarIsHorizontalUnlessItSaysSo)
{
    ToolbarFile file;
    ASSERT_TRUE(file.Parse(R"({ "format": 1, "toolbars": [ { "name": "a", "text": "A", "controls": [] },
        { "name": "b", "text": "B", "vertical": true, "controls": [] } ] })",
                           u"t.json"_s));

    EXPECT_FALSE(file.Document().bars[0].vertical);
    EXPECT_TRUE(file.Document().bars[1].vertical);
    EXPECT_EQ(file.Document().bars[1].text, u"B"_s);
}

TEST(ToolbarEntryReader, AHundredControlsAreTheMost)
{
    ToolbarFile file;

    EXPECT_TRUE(file.Parse(with(separators(100)), u"t.json"_s)) << file.Error().toStdString();
    EXPECT_EQ(told(with(separators(101))), u"t.json, line 2: toolbar \"bar\" has more than 100 controls."_s);
}

TEST(ToolbarEntryReader, TheSameCommandMayStandOnTwoToolbars)
{
    ToolbarFile file;

    EXPECT_TRUE(file.Parse(R"({ "format": 1, "toolbars": [
        { "name": "a", "text": "A", "controls": [ { "command": "C" } ] },
        { "name": "b", "text": "B", "controls": [ { "command": "C" } ] } ] })",
                           u"t.json"_s))
        << file.Error().toStdString();
}

TEST_P(BadControls, AreToldWithTheirLine)
{
    EXPECT_EQ(told(with(GetParam().control)), u"t.json, line 3: "_s + QString::fromUtf8(GetParam().reason));
}

INSTANTIATE_TEST_SUITE_P(
    ToolbarEntryReader, BadControls,
    testing::Values(
        BadControl{"NoObject", "3", "\"toolbars/0/controls/0\" is not an object."},
        BadControl{"UnknownType", R"({ "type": "blob", "command": "C" })",
                   "control \"C\" has the unknown type \"blob\"."},
        BadControl{"UnknownMember", R"({ "command": "C", "comand": "D" })",
                   "control \"C\" has an unknown member \"comand\"."},
        BadControl{"NoCommand", "{}", "a control needs a text as \"command\"."},
        BadControl{"ControlCharacter", R"({ "command": "C\tD" })",
                   "control \"C\tD\" has a control character in \"command\"."},
        BadControl{"UnknownImage", R"({ "command": "C", "image": "wobble" })",
                   "control \"C\" has the image \"wobble\", which the icons do not have."},
        BadControl{"PopupThatIsNone", R"({ "command": "C", "popup": 0 })",
                   "control \"C\" needs a \"popup\" from 1 to 999999."},
        BadControl{"SeparatorWithACommand", R"({ "type": "separator", "command": "C" })",
                   "control \"C\" has an unknown member \"command\"."},
        BadControl{"ItemWithoutAName", R"({ "type": "item", "text": "T", "file": "F" })",
                   "control \"T\" needs a text as \"name\"."},
        BadControl{"ItemInAFolder", R"({ "type": "item", "name": "n", "text": "T", "file": "../F" })",
                   "control \"T\" has more than letters and digits in its \"file\"."},
        BadControl{"CommandTwice", R"({ "command": "C" }, { "type": "text", "command": "C" })",
                   "control \"C\" stands twice on toolbar \"bar\"."},
        BadControl{
            "ItemTwice",
            R"({ "type": "item", "name": "n", "text": "T", "file": "F" }, { "type": "item", "name": "n", "text": "U", "file": "F" })",
            "control \"U\" has the name \"n\", which stands twice in the file."}),
    [](const auto& row) { return row.param.name; });

TEST_P(BadBars, AreToldWithTheirLine)
{
    const QByteArray json = "{ \"format\": 1, \"toolbars\": [\n" + QByteArray(GetParam().bars) + " ] }";

    EXPECT_EQ(told(json), u"t.json, line 2: "_s + QString::fromUtf8(GetParam().reason));
}

INSTANTIATE_TEST_SUITE_P(
    ToolbarEntryReader, BadBars,
    testing::Values(
        BadBar{"NoObject", "3", "\"toolbars/0\" is not an object."},
        BadBar{"NoName", R"({ "text": "T", "controls": [] })", "a toolbar needs a text as \"name\"."},
        BadBar{"NoText", R"({ "name": "a", "controls": [] })", "toolbar \"a\" needs a text as \"text\"."},
        BadBar{"NoControls", R"({ "name": "a", "text": "A" })",
               "toolbar \"a\" needs a list as \"controls\"."},
        BadBar{"NameWithAMark", R"({ "name": "a#2", "text": "A", "controls": [] })",
               "toolbar \"a#2\" has more than letters and digits in its name."},
        BadBar{"UnknownMember", R"({ "name": "a", "text": "A", "upright": true, "controls": [] })",
               "toolbar \"a\" has an unknown member \"upright\"."},
        BadBar{"VerticalIsNoFlag", R"({ "name": "a", "text": "A", "vertical": 1, "controls": [] })",
               "toolbar \"a\" needs true or false as \"vertical\"."},
        BadBar{
            "Twice",
            R"({ "name": "a", "text": "A", "controls": [] }, { "name": "a", "text": "B", "controls": [] })",
            "toolbar \"a\" stands twice in the file."}),
    [](const auto& row) { return row.param.name; });
