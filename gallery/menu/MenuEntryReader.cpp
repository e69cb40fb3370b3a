#include "gallery/menu/MenuEntryReader.h"

#include "gallery/menu/KeyText.h"
#include "gallery/menu/MenuImage.h"

#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr double g_max_id = 999999; // what lies above is for separators
constexpr int g_max_width = 200;    // pixels

struct TypeRow
{
    QString name;
    MenuEntryType type;
    QStringList members;
};

const std::vector<TypeRow>& type_rows()
{
    static const std::vector<TypeRow> rows = {
        {u"item"_s,
         MenuEntryType::Item,
         {u"id"_s, u"text"_s, u"command"_s, u"key"_s, u"keys"_s, u"image"_s, u"radio"_s, u"checked"_s,
          u"enabled"_s, u"mnemonic"_s}},
        {u"separator"_s, MenuEntryType::Separator, {}},
        {u"onecolor"_s, MenuEntryType::OneColor, {u"id"_s, u"color"_s, u"command"_s}},
        {u"twocolor"_s, MenuEntryType::TwoColor, {u"id"_s, u"color1"_s, u"color2"_s, u"command"_s}},
        {u"linewidth"_s, MenuEntryType::LineWidth, {u"id"_s, u"text"_s, u"width"_s, u"command"_s}},
        {u"popup"_s, MenuEntryType::Popup, {u"id"_s, u"text"_s, u"image"_s, u"items"_s}},
    };
    return rows;
}

const TypeRow& row_of(MenuEntryType type)
{
    return type_rows()[static_cast<size_t>(type)];
}

QString describe(const QJsonObject& object)
{
    for (const QString& member : {u"command"_s, u"text"_s})
        if (object.value(member).isString())
            return u"entry \"%1\""_s.arg(object.value(member).toString());
    return u"an entry"_s;
}

QString joined(const QString& path, const QString& member)
{
    return path.isEmpty() ? member : path + u'/' + member;
}

QString quoted(const QString& text)
{
    return u"\"%1\""_s.arg(text);
}

bool has_control_character(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c < u' '; });
}

bool is_whole(const QJsonValue& value, double low, double high)
{
    const double number = value.toDouble(low - 1);
    return number >= low && number <= high && number == static_cast<double>(static_cast<qint64>(number));
}

}

bool MenuEntryReader::Fail(const QString& path, const QString& reason)
{
    if (!failed())
        m_fault = {path, reason};
    return false;
}

bool MenuEntryReader::fail(const Source& source, const QString& member, const QString& rest)
{
    return Fail(joined(source.path, member), source.name + rest);
}

bool MenuEntryReader::CheckMembers(const QJsonObject& object, const QString& path, const QString& name,
                                   const QStringList& known)
{
    for (const QString& member : object.keys())
        if (!known.contains(member))
            return Fail(joined(path, member), name + u" has an unknown member "_s + quoted(member));
    return true;
}

std::vector<MenuEntry> MenuEntryReader::ReadPopups(const QJsonObject& file, const QString& member)
{
    if (!file.contains(member))
        return {};
    std::vector<MenuEntry> popups = read_entries(file.value(member), member, quoted(member));
    for (size_t i = 0; i < popups.size(); ++i)
        if (popups[i].type != MenuEntryType::Popup)
            Fail(u"%1/%2"_s.arg(member).arg(i), u"%1 holds popups only"_s.arg(quoted(member)));
    return popups;
}

std::vector<LonelyKey> MenuEntryReader::ReadLonelyKeys(const QJsonObject& file, const QString& member)
{
    std::vector<LonelyKey> keys;
    if (file.contains(member) && !file.value(member).isArray())
        Fail(member, u"%1 is not a list"_s.arg(quoted(member)));
    const QJsonArray array = file.value(member).toArray();
    for (qsizetype i = 0; i < array.size() && !failed(); ++i) {
        Source source;
        LonelyKey lonely;
        if (open(array.at(i), u"%1/%2"_s.arg(member).arg(i), source) && read_lonely(source, lonely))
            keys.push_back(lonely);
    }
    return keys;
}

bool MenuEntryReader::open(const QJsonValue& value, const QString& path, Source& source)
{
    if (!value.isObject())
        return Fail(path, u"\"%1\" is not an object"_s.arg(path));
    source = {value.toObject(), path, describe(value.toObject())};
    return true;
}

std::vector<MenuEntry> MenuEntryReader::read_entries(const QJsonValue& value, const QString& path,
                                                     const QString& owner)
{
    std::vector<MenuEntry> entries;
    if (!value.isArray())
        Fail(path, owner + u" is not a list"_s);
    const QJsonArray array = value.toArray();
    for (qsizetype i = 0; i < array.size() && !failed(); ++i) {
        Source source;
        MenuEntry entry;
        if (open(array.at(i), u"%1/%2"_s.arg(path).arg(i), source) && read_entry(source, entry))
            entries.push_back(std::move(entry));
    }
    check_radio_groups(entries, path);
    return entries;
}

bool MenuEntryReader::read_entry(const Source& source, MenuEntry& entry)
{
    if (!read_type(source, entry.type))
        return false;
    const QStringList known = row_of(entry.type).members + QStringList{u"type"_s};
    if (!CheckMembers(source.object, source.path, source.name, known))
        return false;
    if (entry.type == MenuEntryType::Separator)
        return true;
    return read_id(source, entry.id) && read_label(source, entry) && read_look(source, entry)
        && read_state(source, entry) && read_keys(source, entry) && read_items(source, entry);
}

bool MenuEntryReader::read_label(const Source& source, MenuEntry& entry)
{
    const QStringList& members = row_of(entry.type).members;
    return (!members.contains(u"text"_s) || read_text(source, u"text"_s, entry.text))
        && (!members.contains(u"command"_s) || read_text(source, u"command"_s, entry.command));
}

bool MenuEntryReader::read_look(const Source& source, MenuEntry& entry)
{
    switch (entry.type) {
    case MenuEntryType::Item:
    case MenuEntryType::Popup:
        return read_image(source, entry.image);
    case MenuEntryType::OneColor:
        return read_color(source, u"color"_s, entry.color1);
    case MenuEntryType::TwoColor:
        return read_color(source, u"color1"_s, entry.color1) && read_color(source, u"color2"_s, entry.color2);
    case MenuEntryType::LineWidth:
        return read_width(source, entry.width);
    default:
        return true;
    }
}

bool MenuEntryReader::read_state(const Source& source, MenuEntry& entry)
{
    bool checked = false;
    if (!read_flag(source, u"checked"_s, checked) || !read_flag(source, u"enabled"_s, entry.enabled)
        || !read_flag(source, u"mnemonic"_s, entry.mnemonic))
        return false;
    if (source.object.contains(u"radio"_s) && !read_text(source, u"radio"_s, entry.radio))
        return false;
    if (source.object.contains(u"checked"_s) || !entry.radio.isEmpty())
        entry.checked = checked;
    return true;
}

bool MenuEntryReader::read_items(const Source& source, MenuEntry& entry)
{
    if (entry.type != MenuEntryType::Popup)
        return true;
    if (m_depth == MaxDepth)
        return fail(source, {}, u" lies deeper than %1 popups"_s.arg(MaxDepth));
    ++m_depth;
    entry.items = read_entries(source.object.value(u"items"_s), source.path + u"/items"_s,
                               u"\"items\" of "_s + source.name);
    --m_depth;
    return !failed();
}

bool MenuEntryReader::check_radio_groups(const std::vector<MenuEntry>& entries, const QString& path)
{
    QStringList groups;
    bool interrupted = true;
    for (size_t i = 0; i < entries.size() && !failed(); ++i) {
        const QString& group = entries[i].radio;
        if (!group.isEmpty() && groups.contains(group) && (interrupted || groups.back() != group))
            return Fail(
                u"%1/%2/radio"_s.arg(path).arg(i),
                u"entry \"%1\" stands apart from its radio group \"%2\""_s.arg(entries[i].command, group));
        if (!group.isEmpty())
            groups << group;
        if (entries[i].type != MenuEntryType::Separator)
            interrupted = group.isEmpty();
    }
    return !failed();
}

bool MenuEntryReader::read_type(const Source& source, MenuEntryType& type)
{
    const QJsonValue value = source.object.value(u"type"_s);
    if (value.isUndefined())
        return true;
    for (const TypeRow& row : type_rows()) {
        type = row.type;
        if (value.toString() == row.name)
            return true;
    }
    return fail(source, u"type"_s, u" has the unknown type "_s + quoted(value.toVariant().toString()));
}

bool MenuEntryReader::read_id(const Source& source, vq_uint32& id)
{
    const QJsonValue value = source.object.value(u"id"_s);
    if (!is_whole(value, 1, g_max_id))
        return fail(source, u"id"_s, u" needs an \"id\" from 1 to 999999"_s);
    id = static_cast<vq_uint32>(value.toInteger());
    if (m_ids.contains(id))
        return fail(source, u"id"_s, u" has the id %1, which %2 has already"_s.arg(id).arg(m_ids.value(id)));
    m_ids.insert(id, source.name);
    return true;
}

bool MenuEntryReader::read_text(const Source& source, const QString& member, QString& text)
{
    text = source.object.value(member).toString();
    if (text.isEmpty())
        return fail(source, member, u" needs a text as "_s + quoted(member));
    if (has_control_character(text))
        return fail(source, member, u" has a control character in "_s + quoted(member));
    return true;
}

bool MenuEntryReader::read_flag(const Source& source, const QString& member, bool& flag)
{
    const QJsonValue value = source.object.value(member);
    if (!value.isUndefined() && !value.isBool())
        return fail(source, member, u" needs true or false as "_s + quoted(member));
    flag = value.toBool(flag);
    return true;
}

bool MenuEntryReader::read_image(const Source& source, QString& image)
{
    if (!source.object.contains(u"image"_s))
        return true;
    if (!read_text(source, u"image"_s, image))
        return false;
    return HasMenuImage(image)
        || fail(source, u"image"_s, u" has the image %1, which the icons do not have"_s.arg(quoted(image)));
}

bool MenuEntryReader::read_color(const Source& source, const QString& member, vq_uint32& color)
{
    const QString text = source.object.value(member).toString();
    bool number = false;
    const uint rgb = text.mid(1).toUInt(&number, 16);
    if (text.size() != 7 || text.front() != u'#' || !number)
        return fail(source, member, u" needs a colour such as \"#3f6fb5\" as "_s + quoted(member));
    color = (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16;
    return true;
}

bool MenuEntryReader::read_width(const Source& source, vq_uint32& width)
{
    const QJsonValue value = source.object.value(u"width"_s);
    if (!is_whole(value, 1, g_max_width))
        return fail(source, u"width"_s, u" needs a \"width\" from 1 to %1"_s.arg(g_max_width));
    width = static_cast<vq_uint32>(value.toInteger());
    return true;
}

}
