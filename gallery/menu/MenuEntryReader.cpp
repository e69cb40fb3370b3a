#include "gallery/menu/MenuEntryReader.h"

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

QString quoted(const QString& text)
{
    return u"\"%1\""_s.arg(text);
}

}

MenuEntryReader::MenuEntryReader() : JsonFields(u"entry"_s, u"an entry"_s) { }

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
    for (qsizetype i = 0; i < array.size() && !Failed(); ++i) {
        Source source;
        LonelyKey lonely;
        if (Open(array.at(i), u"%1/%2"_s.arg(member).arg(i), source) && read_lonely(source, lonely))
            keys.push_back(lonely);
    }
    return keys;
}

std::vector<MenuEntry> MenuEntryReader::read_entries(const QJsonValue& value, const QString& path,
                                                     const QString& owner)
{
    std::vector<MenuEntry> entries;
    if (!value.isArray())
        Fail(path, owner + u" is not a list"_s);
    const QJsonArray array = value.toArray();
    for (qsizetype i = 0; i < array.size() && !Failed(); ++i) {
        Source source;
        MenuEntry entry;
        if (Open(array.at(i), u"%1/%2"_s.arg(path).arg(i), source) && read_entry(source, entry))
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
    return (!members.contains(u"text"_s) || ReadText(source, u"text"_s, entry.text))
        && (!members.contains(u"command"_s) || ReadText(source, u"command"_s, entry.command));
}

bool MenuEntryReader::read_look(const Source& source, MenuEntry& entry)
{
    switch (entry.type) {
    case MenuEntryType::Item:
    case MenuEntryType::Popup:
        return ReadImage(source, entry.image);
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
    if (!ReadFlag(source, u"checked"_s, checked) || !ReadFlag(source, u"enabled"_s, entry.enabled)
        || !ReadFlag(source, u"mnemonic"_s, entry.mnemonic))
        return false;
    if (source.object.contains(u"radio"_s) && !ReadText(source, u"radio"_s, entry.radio))
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
        return Fail(source, {}, u" lies deeper than %1 popups"_s.arg(MaxDepth));
    ++m_depth;
    entry.items = read_entries(source.object.value(u"items"_s), source.path + u"/items"_s,
                               u"\"items\" of "_s + source.name);
    --m_depth;
    return !Failed();
}

bool MenuEntryReader::check_radio_groups(const std::vector<MenuEntry>& entries, const QString& path)
{
    QStringList groups;
    bool interrupted = true;
    for (size_t i = 0; i < entries.size() && !Failed(); ++i) {
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
    return !Failed();
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
    return Fail(source, u"type"_s, u" has the unknown type "_s + quoted(value.toVariant().toString()));
}

bool MenuEntryReader::read_id(const Source& source, vq_uint32& id)
{
    const QJsonValue value = source.object.value(u"id"_s);
    if (!IsWholeNumber(value, 1, g_max_id))
        return Fail(source, u"id"_s, u" needs an \"id\" from 1 to 999999"_s);
    id = static_cast<vq_uint32>(value.toInteger());
    if (m_ids.contains(id))
        return Fail(source, u"id"_s, u" has the id %1, which %2 has already"_s.arg(id).arg(m_ids.value(id)));
    m_ids.insert(id, source.name);
    return true;
}

bool MenuEntryReader::read_color(const Source& source, const QString& member, vq_uint32& color)
{
    const QString text = source.object.value(member).toString();
    bool number = false;
    const uint rgb = text.mid(1).toUInt(&number, 16);
    if (text.size() != 7 || text.front() != u'#' || !number)
        return Fail(source, member, u" needs a colour such as \"#3f6fb5\" as "_s + quoted(member));
    color = (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16;
    return true;
}

bool MenuEntryReader::read_width(const Source& source, vq_uint32& width)
{
    const QJsonValue value = source.object.value(u"width"_s);
    if (!IsWholeNumber(value, 1, g_max_width))
        return Fail(source, u"width"_s, u" needs a \"width\" from 1 to %1"_s.arg(g_max_width));
    width = static_cast<vq_uint32>(value.toInteger());
    return true;
}

}
