#include "quick_backend/images/VqImageAddress.h"

#include <QColor>
#include <QUrlQuery>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

std::optional<quint32> parse_index(QStringView text)
{
    // The conversion also takes signs and blanks.
    const bool has_digits_only
        = std::ranges::all_of(text, [](QChar unit) { return unit >= u'0' && unit <= u'9'; });
    bool is_number = false;
    const quint32 index = text.toUInt(&is_number);
    return has_digits_only && is_number ? std::optional(index) : std::nullopt;
}

bool set_mode(QIcon::Mode& mode, const QString& name)
{
    static const QStringList names{u"normal"_s, u"disabled"_s, u"active"_s, u"selected"_s};
    const qsizetype found = names.indexOf(name);
    mode = QIcon::Mode(std::max<qsizetype>(found, 0));
    return found >= 0;
}

bool set_colour(std::optional<QRgb>& colour, const QString& name)
{
    const QColor parsed = QColor::fromString(name);
    colour = parsed.rgba();
    return parsed.isValid();
}

bool set_item(SVqImageAddress& address, const QString& key, const QString& value)
{
    if (key == "state"_L1)
        return set_mode(address.mode, value);
    if (key == "color"_L1)
        return set_colour(address.colour, value);
    return key == "revision"_L1;
}

}

std::optional<SVqImageAddress> VqParseImageAddress(const QString& text)
{
    const qsizetype mark = text.indexOf(u'?');
    const auto index = parse_index(QStringView(text).first(mark < 0 ? text.size() : mark));
    if (!index)
        return {};
    SVqImageAddress address{*index, QIcon::Normal, {}};
    const auto items = QUrlQuery(mark < 0 ? QString() : text.sliced(mark + 1)).queryItems(QUrl::FullyDecoded);
    for (const auto& [key, value] : items) {
        if (!set_item(address, key, value))
            return {};
    }
    return address;
}
