#include "gallery/Options.h"

#include <QStandardPaths>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::Options;
using Gallery::OptionsResult;
using Gallery::ParseOptions;

namespace {

OptionsResult parse(const QStringList& arguments)
{
    return ParseOptions(QStringList{u"arbor_gallery"_s} + arguments);
}

struct BadRow
{
    const char* name;
    QStringList arguments;
    const char* sentence;
};

}

TEST(Options, WithoutArgumentsTheWindowStays)
{
    const OptionsResult result = parse({});

    EXPECT_EQ(result.exit_code, -1);
    EXPECT_FALSE(result.options.IsScript());
    EXPECT_EQ(result.options.locale, u"en"_s);
    EXPECT_TRUE(result.options.menus.isEmpty());
    EXPECT_TRUE(result.options.qml.isEmpty());
}

TEST(Options, AllAreTaken)
{
    const OptionsResult result = parse({u"--keys"_s, u"Ctrl+S,Alt+F"_s, u"--screenshots"_s, u"out"_s,
                                        u"--locale"_s, u"de"_s, u"--menus"_s, u"my.json"_s, u"--qml"_s,
                                        u"copy"_s, u"--demo"_s, u"tour"_s, u"--page"_s, u"OffscreenPage"_s});

    EXPECT_EQ(result.exit_code, -1);
    EXPECT_EQ(result.options.keys.size(), 2);
    EXPECT_EQ(result.options.screenshots, u"out"_s);
    EXPECT_EQ(result.options.locale, u"de"_s);
    EXPECT_EQ(result.options.menus, u"my.json"_s);
    EXPECT_EQ(result.options.qml, u"copy"_s);
    EXPECT_EQ(result.options.demo, u"tour"_s);
    EXPECT_EQ(result.options.page, u"OffscreenPage"_s);
    EXPECT_EQ(result.options.render.file, QString());
}

TEST(Options, APictureOfAFileIsTaken)
{
    const OptionsResult result = parse({u"--render"_s, u"a.qml"_s, u"--out"_s, u"a.png"_s, u"--size"_s,
                                        u"8x6"_s, u"--set"_s, u"a=b"_s, u"--locale=de"_s});

    EXPECT_EQ(result.exit_code, -1);
    EXPECT_FALSE(result.options.IsScript());
    EXPECT_EQ(result.options.render.file, u"a.qml"_s);
    EXPECT_EQ(result.options.render.out, u"a.png"_s);
    EXPECT_EQ(result.options.render.size, QSize(8, 6));
    EXPECT_EQ(result.options.render.values, (QList<Gallery::RenderValue>{{u"a"_s, u"b"_s}}));
}

TEST(Options, KeysPicturesAndTourAreScripts)
{
    EXPECT_TRUE(parse({u"--keys=F1"_s}).options.IsScript());
    EXPECT_TRUE(parse({u"--screenshots=out"_s}).options.IsScript());
    EXPECT_TRUE(parse({u"--demo=out"_s}).options.IsScript());
}

TEST(Options, ToolbarsAndRightToLeftAreTaken)
{
    const OptionsResult result = parse({u"--toolbars"_s, u"bars.json"_s, u"--rtl"_s});

    EXPECT_EQ(result.exit_code, -1);
    EXPECT_EQ(result.options.toolbars, u"bars.json"_s);
    EXPECT_TRUE(result.options.rtl);
    EXPECT_FALSE(parse({}).options.rtl);
}

TEST(Options, KeysMayHoldStepsOfTheMouse)
{
    const OptionsResult result = parse({u"--keys"_s, u"Ctrl+S,@drag main/EditCut main/FileNew"_s});

    EXPECT_EQ(result.exit_code, -1);
    ASSERT_EQ(result.options.keys.size(), 2);
    EXPECT_EQ(std::get<Gallery::MouseStep>(result.options.keys[1]).to, u"main/FileNew"_s);
}

TEST(Options, JapaneseIsALocale)
{
    const OptionsResult result = parse({u"--locale=ja"_s});

    EXPECT_EQ(result.exit_code, -1);
    EXPECT_EQ(result.options.locale, u"ja"_s);
}

TEST(Options, HelpNamesEveryOptionAndEndsWithZero)
{
    const OptionsResult result = parse({u"--help"_s});

    EXPECT_EQ(result.exit_code, 0);
    for (const QString& option :
         {u"--keys"_s, u"--screenshots"_s, u"--demo"_s, u"--locale"_s, u"--menus"_s, u"--page"_s, u"--qml"_s,
          u"--data"_s, u"--print-menus"_s, u"--print-keys"_s, u"--render"_s, u"--out"_s, u"--size"_s,
          u"--set"_s, u"--toolbars"_s, u"--rtl"_s, u"--print-toolbars"_s})
        EXPECT_TRUE(result.message.contains(option)) << option.toStdString();
}

TEST(Options, AnUnknownPageIsAnsweredWithThePagesThereAre)
{
    const OptionsResult result = parse({u"--page=WobblePage"_s});

    EXPECT_EQ(result.exit_code, 2);
    EXPECT_TRUE(result.message.startsWith(u"There is no page \"WobblePage\"; there are PicturePage, "_s));
}

TEST(Options, StoredMenusAndKeysArePrintedWithoutAScript)
{
    const OptionsResult menus = parse({u"--print-menus"_s, u"a.cbor"_s});
    const OptionsResult keys = parse({u"--print-keys"_s});

    EXPECT_EQ(menus.options.print_stored, u"a.cbor"_s);
    EXPECT_EQ(parse({u"--print-toolbars"_s, u"b.cbor"_s}).options.print_stored, u"b.cbor"_s);
    EXPECT_FALSE(menus.options.print_keys);
    EXPECT_EQ(keys.exit_code, -1);
    EXPECT_TRUE(keys.options.print_keys);
    EXPECT_FALSE(keys.options.IsScript());
}

TEST(Options, AWindowThatStaysOpenKeepsItsMenusInTheUsersFolder)
{
    const Gallery::MenuHome home = parse({u"--locale=de"_s}).options.Home();

    EXPECT_EQ(home.folder, QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    EXPECT_EQ(home.language, u"de"_s);
    EXPECT_TRUE(home.is_written);
}

TEST(Options, ScriptsAndOtherMenusKeepNone)
{
    for (const QString& option : {u"--keys=F1"_s, u"--screenshots=out"_s, u"--demo=out"_s,
                                  u"--menus=m.json"_s, u"--toolbars=b.json"_s})
        EXPECT_EQ(parse({option}).options.Home().folder, QString()) << option.toStdString();
}

TEST(Options, AScriptKeepsItsMenusWhereItIsTold)
{
    EXPECT_EQ(parse({u"--keys=F1"_s, u"--data=d"_s}).options.Home().folder, u"d"_s);
}

class BadArguments : public testing::TestWithParam<BadRow>
{ };

TEST_P(BadArguments, EndWithTwoAndOneSentence)
{
    const OptionsResult result = parse(GetParam().arguments);

    EXPECT_EQ(result.exit_code, 2);
    EXPECT_EQ(result.message, QString::fromLatin1(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    Options, BadArguments,
    testing::Values(
        BadRow{"UnknownOption", {u"--blur"_s}, "Unknown option 'blur'."},
        BadRow{"MissingValue", {u"--keys"_s}, "Missing value after '--keys'."},
        BadRow{"UnknownKey", {u"--keys=Ctrl+Wobble"_s}, "\"Ctrl+Wobble\" names no key."},
        BadRow{"UnknownLocale",
               {u"--locale=xx"_s},
               "There is no translation into \"xx\"; there are de, en and ja."},
        BadRow{"EmptyKeyInAList", {u"--keys=Ctrl+S,,Alt+F"_s}, "\"\" names no key."},
        BadRow{"CommaAsAKey", {u"--keys=Ctrl+,"_s}, "\"Ctrl+\" names no key."},
        BadRow{"EmptyKeys", {u"--keys"_s, u""_s}, "Missing value after '--keys'."},
        BadRow{"EmptyFolder", {u"--demo="_s}, "Missing value after '--demo'."},
        BadRow{"EmptyFile", {u"--menus"_s, u""_s}, "Missing value after '--menus'."},
        BadRow{"EmptyData", {u"--data="_s}, "Missing value after '--data'."},
        BadRow{"DataWithAMenu", {u"--data=d"_s, u"--menus=m.json"_s}, "--data does not go with --menus."},
        BadRow{"DataWithToolbars",
               {u"--data=d"_s, u"--toolbars=b.json"_s},
               "--data does not go with --toolbars."},
        BadRow{"DataWithAPicture",
               {u"--data=d"_s, u"--render=a.qml"_s, u"--out=a.png"_s},
               "--data does not go with --render."},
        BadRow{"DataWithResize",
               {u"--data=d"_s, u"--resize=in"_s, u"out"_s, u"--width=9"_s},
               "--data does not go with --resize."},
        BadRow{"PictureWithoutAFile", {u"--render="_s, u"--out=a.png"_s}, "Missing value after '--render'."},
        BadRow{"PictureOfNothing", {u"--out=a.png"_s}, "--out goes with --render."},
        BadRow{"Positional", {u"picture.png"_s}, "\"picture.png\" is no option."}),
    [](const auto& row) { return row.param.name; });
