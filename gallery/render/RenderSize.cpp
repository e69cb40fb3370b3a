#include "gallery/render/RenderSize.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_longest_side = 16384; // pixels; what graphics cards draw into at once

QString empty_sentence(const QString& size)
{
    return u"A picture of %1 pixels is empty: each side has 1 at least."_s.arg(size);
}

QString large_sentence(const QString& size)
{
    return u"A picture of %1 pixels is too large: each side has %2 at most."_s.arg(size).arg(g_longest_side);
}

}

QString WhyNoRenderSize(const QSize& size)
{
    const QString text = u"%1x%2"_s.arg(size.width()).arg(size.height());
    if (size.isEmpty())
        return empty_sentence(text);
    return qMax(size.width(), size.height()) > g_longest_side ? large_sentence(text) : QString();
}

std::optional<QSize> ParseRenderSize(const QString& text, QString& error)
{
    static const QRegularExpression pattern(u"\\A([0-9]+)x([0-9]+)\\z"_s);
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch()) {
        error = u"--size wants WIDTHxHEIGHT in pixels, such as 800x600, not \"%1\"."_s.arg(text);
        return {};
    }
    bool width_fits = false;
    bool height_fits = false;
    const QSize size(match.captured(1).toInt(&width_fits), match.captured(2).toInt(&height_fits));
    error = width_fits && height_fits ? WhyNoRenderSize(size) : large_sentence(text);
    return error.isEmpty() ? std::optional(size) : std::nullopt;
}

}
