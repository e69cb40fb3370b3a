#include "gallery/resize/ResizeOptions.h"

#include "gallery/resize/ResizeWidth.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

/// What is wrong about --resize beside the other options; empty when nothing is.
QString why_not_together(const QCommandLineParser& parser)
{
    const QStringList rest = parser.positionalArguments();
    if (rest.isEmpty())
        return u"--resize wants two folders: --resize IN OUT."_s;
    if (rest.size() > 1)
        return u"--resize wants two folders, and \"%1\" is one more."_s.arg(rest.at(1));
    if (!parser.isSet(u"width"_s))
        return u"--resize wants --width with a number of pixels."_s;
    for (const QString& name : parser.optionNames())
        if (!QStringList{u"resize"_s, u"width"_s, u"locale"_s}.contains(name))
            return u"--resize goes without --%1."_s.arg(name);
    return {};
}

}

void DescribeResizeOptions(QCommandLineParser& parser)
{
    parser.addOptions({
        {u"resize"_s,
         u"Scales the images of the folder IN into the folder OUT, without a window, and ends. Wants --width."_s,
         u"IN OUT"_s},
        {u"width"_s,
         u"Their width in pixels, 1 to %1; images that are no wider stay as they are."_s.arg(
             g_longest_image_side),
         u"N"_s},
    });
}

std::optional<ResizeJob> ReadResizeJob(const QCommandLineParser& parser, QString& error)
{
    const QStringList rest = parser.positionalArguments();
    if (!parser.isSet(u"resize"_s)) {
        if (!rest.isEmpty())
            error = u"\"%1\" is no option."_s.arg(rest.constFirst());
        else if (parser.isSet(u"width"_s))
            error = u"--width goes with --resize."_s;
        return error.isEmpty() ? std::optional(ResizeJob()) : std::nullopt;
    }
    error = why_not_together(parser);
    if (!error.isEmpty())
        return {};
    const std::optional<int> width = ParseResizeWidth(parser.value(u"width"_s), error);
    return width ? std::optional(ResizeJob{parser.value(u"resize"_s), rest.constFirst(), *width})
                 : std::nullopt;
}

}
