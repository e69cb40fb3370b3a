#include "gallery/Options.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_bad_arguments = 2;

void describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        u"Arbor Gallery: menus, keys and mnemonics in a small image application."_s);
    parser.addOptions({
        {u"keys"_s,
         u"Presses keys one after the other, such as \"Ctrl+Shift+S,Alt+F,Ctrl+Comma\", and prints the command of each."_s,
         u"list"_s},
        {u"screenshots"_s, u"Writes pictures of the window and its menus into a folder."_s, u"folder"_s},
        {u"demo"_s,
         u"Presses a list of keys and mnemonics, prints what each did, and writes pictures into a folder."_s,
         u"folder"_s},
        {u"locale"_s, u"Language of labels and key names: de or en; ja for key names alone."_s, u"name"_s,
         u"en"_s},
        {u"menus"_s, u"Reads the menu from a file."_s, u"file"_s},
        {{u"h"_s, u"help"_s}, u"Shows this help."_s},
    });
}

OptionsResult refuse(const QString& sentence)
{
    return {{}, g_bad_arguments, sentence};
}

/// The first option without its value; empty when all have one.
QString option_without_value(const QCommandLineParser& parser)
{
    for (const QString& name : parser.optionNames())
        if (parser.value(name).isEmpty())
            return name;
    return {};
}

OptionsResult take(const QCommandLineParser& parser)
{
    OptionsResult result;
    result.options.screenshots = parser.value(u"screenshots"_s);
    result.options.demo = parser.value(u"demo"_s);
    result.options.locale = parser.value(u"locale"_s);
    result.options.menus = parser.value(u"menus"_s);
    if (!QStringList{u"de"_s, u"en"_s, u"ja"_s}.contains(result.options.locale))
        return refuse(
            u"There is no translation into \"%1\"; there are de, en and ja."_s.arg(result.options.locale));
    return result;
}

OptionsResult take_keys(const QCommandLineParser& parser, OptionsResult result)
{
    QString bad;
    if (!parser.isSet(u"keys"_s) || result.exit_code >= 0)
        return result;
    const std::optional<QList<KeyPress>> keys = ParseKeyPresses(parser.value(u"keys"_s), bad);
    if (!keys)
        return refuse(u"\"%1\" names no key."_s.arg(bad));
    result.options.keys = *keys;
    return result;
}

}

OptionsResult ParseOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(arguments))
        return refuse(parser.errorText());
    if (parser.isSet(u"help"_s))
        return {{}, 0, parser.helpText()};
    if (!parser.positionalArguments().isEmpty())
        return refuse(u"\"%1\" is no option."_s.arg(parser.positionalArguments().constFirst()));
    const QString empty = option_without_value(parser);
    if (!empty.isEmpty())
        return refuse(u"Missing value after '--%1'."_s.arg(empty));
    return take_keys(parser, take(parser));
}

}
