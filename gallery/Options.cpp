#include "gallery/Options.h"

#include "gallery/Pages.h"
#include "gallery/render/RenderOptions.h"
#include "gallery/resize/ResizeOptions.h"

#include <QCommandLineParser>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_bad_arguments = 2;
constexpr QLatin1StringView g_print_keys("print-keys"); // without a value, as the next one
constexpr QLatin1StringView g_rtl("rtl");
constexpr QLatin1StringView g_print_toolbars("print-toolbars");

void describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        u"Arbor Gallery: menus, keys and mnemonics in a small image application."_s);
    parser.addOptions({
        {u"keys"_s,
         u"Presses keys one after the other, such as \"Ctrl+Shift+S,Alt+F,Ctrl+Comma\", and prints the "
         u"command of each. "
         u"The mouse takes part as \"@click main/EditUndo\", \"@right NAME\" and \"@drag NAME NAME\"."_s,
         u"list"_s},
        {u"screenshots"_s, u"Writes pictures of the window and its menus into a folder."_s, u"folder"_s},
        {u"demo"_s,
         u"Presses a list of keys and mnemonics, prints what each did, and writes pictures into a folder."_s,
         u"folder"_s},
        {u"locale"_s, u"Language of labels and key names: de or en; ja for key names alone."_s, u"name"_s,
         u"en"_s},
        {QString(g_rtl), u"Lays the window out from right to left."_s},
        {u"menus"_s, u"Reads the menu from a file."_s, u"file"_s},
        {u"toolbars"_s, u"Reads the toolbars from a file."_s, u"file"_s},
        {u"qml"_s,
         u"Reads the gallery's QML files from a folder, and again when they change, with ORV_DEVELOP_RESOURCES set."_s,
         u"folder"_s},
        {u"data"_s, u"Keeps menus and toolbars, with what was changed of them, in a folder."_s, u"folder"_s},
        {u"print-menus"_s, u"Prints a file with stored menus as readable JSON."_s, u"file"_s},
        {QString(g_print_toolbars), u"Prints a file with stored toolbars as readable JSON."_s, u"file"_s},
        {QString(g_print_keys), u"Prints the commands with their keys."_s},
        {u"page"_s, u"Opens the window with a page: %1."_s.arg(PageNames().join(u", "_s)), u"name"_s},
        {{u"h"_s, u"help"_s}, u"Shows this help."_s},
    });
    DescribeRenderOptions(parser);
    DescribeResizeOptions(parser);
}

OptionsResult refuse(const QString& sentence)
{
    return {{}, g_bad_arguments, sentence};
}

/// The first option without its value; empty when all have one.
QString option_without_value(const QCommandLineParser& parser)
{
    for (const QString& name : parser.optionNames())
        if (name != g_print_keys && name != g_rtl && parser.value(name).isEmpty())
            return name;
    return {};
}

OptionsResult take(const QCommandLineParser& parser)
{
    for (const QString& other : {u"menus"_s, u"toolbars"_s, u"render"_s, u"resize"_s})
        if (parser.isSet(u"data"_s) && parser.isSet(other))
            return refuse(u"--data does not go with --%1."_s.arg(other));
    OptionsResult result;
    result.options.screenshots = parser.value(u"screenshots"_s);
    result.options.demo = parser.value(u"demo"_s);
    result.options.locale = parser.value(u"locale"_s);
    result.options.menus = parser.value(u"menus"_s);
    result.options.toolbars = parser.value(u"toolbars"_s);
    result.options.rtl = parser.isSet(g_rtl);
    result.options.qml = parser.value(u"qml"_s);
    result.options.data = parser.value(u"data"_s);
    const bool of_toolbars = parser.isSet(g_print_toolbars);
    result.options.print_stored = parser.value(of_toolbars ? QString(g_print_toolbars) : u"print-menus"_s);
    result.options.print_keys = parser.isSet(g_print_keys);
    result.options.page = parser.value(u"page"_s);
    if (!QStringList{u"de"_s, u"en"_s, u"ja"_s}.contains(result.options.locale))
        return refuse(
            u"There is no translation into \"%1\"; there are de, en and ja."_s.arg(result.options.locale));
    if (!result.options.page.isEmpty() && !PageNames().contains(result.options.page))
        return refuse(
            u"There is no page \"%1\"; there are %2."_s.arg(result.options.page, PageNames().join(u", "_s)));
    return result;
}

OptionsResult take_keys(const QCommandLineParser& parser, OptionsResult result)
{
    QString bad;
    if (!parser.isSet(u"keys"_s) || result.exit_code >= 0)
        return result;
    const std::optional<QList<ScriptStep>> keys = ParseScript(parser.value(u"keys"_s), bad);
    if (!keys)
        return refuse(u"\"%1\" names no key."_s.arg(bad));
    result.options.keys = *keys;
    return result;
}

OptionsResult take_render(const QCommandLineParser& parser, OptionsResult result)
{
    if (result.exit_code >= 0)
        return result;
    QString error;
    const std::optional<RenderJob> job = ReadRenderJob(parser, error);
    if (!job)
        return refuse(error);
    result.options.render = *job;
    return result;
}

OptionsResult take_resize(const QCommandLineParser& parser, OptionsResult result)
{
    if (result.exit_code >= 0)
        return result;
    QString error;
    const std::optional<ResizeJob> job = ReadResizeJob(parser, error);
    if (!job)
        return refuse(error);
    result.options.resize = *job;
    return result;
}

}

MenuHome Options::Home() const
{
    MenuHome home{data, locale};
    if (data.isEmpty() && menus.isEmpty() && toolbars.isEmpty() && !IsScript())
        home.folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return home;
}

OptionsResult ParseOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(arguments))
        return refuse(parser.errorText());
    if (parser.isSet(u"help"_s))
        return {{}, 0, parser.helpText()};
    const QString empty = option_without_value(parser);
    if (!empty.isEmpty())
        return refuse(u"Missing value after '--%1'."_s.arg(empty));
    return take_resize(parser, take_render(parser, take_keys(parser, take(parser))));
}

}
