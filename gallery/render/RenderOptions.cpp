#include "gallery/render/RenderOptions.h"

#include "gallery/render/RenderSize.h"
#include "gallery/render/RenderTarget.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

/// The options of `names` that are set.
QStringList set_of(const QCommandLineParser& parser, const QStringList& names)
{
    QStringList set;
    for (const QString& name : names)
        if (parser.isSet(name))
            set << name;
    return set;
}

/// What is wrong about the options beside each other; empty when nothing is.
QString why_not_together(const QCommandLineParser& parser)
{
    const QStringList own = set_of(parser, {u"size"_s, u"out"_s, u"set"_s});
    if (!parser.isSet(u"render"_s))
        return own.isEmpty() ? QString() : u"--%1 goes with --render."_s.arg(own.first());
    if (!parser.isSet(u"out"_s))
        return u"--render wants --out with the name of the picture."_s;
    const QStringList other = set_of(parser, {u"keys"_s, u"screenshots"_s, u"demo"_s, u"page"_s});
    return other.isEmpty() ? QString() : u"--render goes without --%1."_s.arg(other.first());
}

bool read_values(const QStringList& texts, RenderJob& job, QString& error)
{
    for (const QString& text : texts) {
        const qsizetype sign = text.indexOf(u'=');
        if (sign <= 0) {
            error = u"--set wants NAME=VALUE, not \"%1\"."_s.arg(text);
            return false;
        }
        job.values << RenderValue{text.first(sign), text.sliced(sign + 1)};
    }
    return true;
}

bool read_size(const QCommandLineParser& parser, RenderJob& job, QString& error)
{
    if (!parser.isSet(u"size"_s))
        return true;
    const std::optional<QSize> size = ParseRenderSize(parser.value(u"size"_s), error);
    job.size = size.value_or(QSize());
    return size.has_value();
}

}

void DescribeRenderOptions(QCommandLineParser& parser)
{
    parser.addOptions({
        {u"render"_s,
         u"Draws a QML file into a picture, without a window, and ends. FILE is a path, a \"qrc:///\" address or the name of a page."_s,
         u"FILE"_s},
        {u"out"_s, u"The picture that --render writes; its extension chooses the format."_s, u"file.png"_s},
        {u"size"_s, u"Its size in pixels, such as 800x600; without it the page has its own."_s,
         u"WIDTHxHEIGHT"_s},
        {u"set"_s, u"Gives a property of the page a value; may come more than once."_s, u"name=value"_s},
    });
}

std::optional<RenderJob> ReadRenderJob(const QCommandLineParser& parser, QString& error)
{
    RenderJob job;
    error = why_not_together(parser);
    if (!error.isEmpty())
        return {};
    if (!parser.isSet(u"render"_s))
        return job;
    job.file = parser.value(u"render"_s);
    job.out = parser.value(u"out"_s);
    if (!read_size(parser, job, error) || !read_values(parser.values(u"set"_s), job, error))
        return {};
    error = WhyNoRenderTarget(job.out);
    return error.isEmpty() ? std::optional(job) : std::nullopt;
}

}
