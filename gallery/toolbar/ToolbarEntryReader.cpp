#include "gallery/toolbar/ToolbarEntryReader.h"

#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr double g_max_popup = 999999; // identifiers of a menu file

struct TypeRow
{
    QString name;
    ToolbarEntryType type;
    QStringList members;
};

const std::vector<TypeRow>& type_rows()
{
    static const std::vector<TypeRow> rows = {
        {u"button"_s, ToolbarEntryType::Button, {u"command"_s, u"image"_s, u"popup"_s}},
        {u"text"_s, ToolbarEntryType::TextButton, {u"command"_s, u"image"_s, u"popup"_s}},
        {u"item"_s, ToolbarEntryType::Item, {u"name"_s, u"text"_s, u"file"_s}},
        {u"separator"_s, ToolbarEntryType::Separator, {}},
    };
    return rows;
}

bool is_letter_or_digit(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
}

/// What may be part of the key of a hidden button, and the name of a file.
bool is_plain_name(const QString& name)
{
    return std::all_of(name.begin(), name.end(), is_letter_or_digit);
}

}

ToolbarEntryReader::ToolbarEntryReader() : JsonFields(u"control"_s, u"a control"_s) { }

std::vector<ToolbarDescription> ToolbarEntryReader::ReadToolbars(const QJsonObject& file,
                                                                 const QString& member)
{
    std::vector<ToolbarDescription> bars;
    if (!file.value(member).isArray())
        Fail(member, u"\"%1\" is not a list"_s.arg(member));
    const QJsonArray array = file.value(member).toArray();
    for (qsizetype i = 0; i < array.size() && !Failed(); ++i) {
        ToolbarDescription bar;
        if (read_bar(array.at(i), u"%1/%2"_s.arg(member).arg(i), bar))
            bars.push_back(std::move(bar));
    }
    return bars;
}

bool ToolbarEntryReader::read_bar(const QJsonValue& value, const QString& path, ToolbarDescription& bar)
{
    Source source;
    if (!Open(value, path, source))
        return false;
    const QJsonValue name = source.object.value(u"name"_s);
    source.name = name.isString() ? u"toolbar \"%1\""_s.arg(name.toString()) : u"a toolbar"_s;
    return CheckMembers(source.object, path, source.name,
                        {u"name"_s, u"text"_s, u"vertical"_s, u"controls"_s})
        && read_bar_name(source, bar.name) && ReadText(source, u"text"_s, bar.text)
        && ReadFlag(source, u"vertical"_s, bar.vertical) && read_entries(source, bar.entries);
}

bool ToolbarEntryReader::read_bar_name(const Source& source, QString& name)
{
    if (!ReadText(source, u"name"_s, name))
        return false;
    if (!is_plain_name(name))
        return Fail(source, u"name"_s, u" has more than letters and digits in its name"_s);
    if (m_bars.contains(name))
        return Fail(source, u"name"_s, u" stands twice in the file"_s);
    m_bars.insert(name);
    return true;
}

bool ToolbarEntryReader::read_entries(const Source& bar, std::vector<ToolbarEntry>& entries)
{
    if (!bar.object.value(u"controls"_s).isArray())
        return Fail(bar, u"controls"_s, u" needs a list as \"controls\""_s);
    const QJsonArray array = bar.object.value(u"controls"_s).toArray();
    if (array.size() > MostControls)
        return Fail(bar, u"controls"_s, u" has more than %1 controls"_s.arg(MostControls));
    QSet<QString> names;
    for (qsizetype i = 0; i < array.size() && !Failed(); ++i) {
        Source source;
        ToolbarEntry entry;
        if (!Open(array.at(i), u"%1/controls/%2"_s.arg(bar.path).arg(i), source)
            || !read_entry(source, entry))
            return false;
        if (!entry.name.isEmpty() && names.contains(entry.name))
            return Fail(source, {}, u" stands twice on "_s + bar.name);
        names.insert(entry.name);
        entries.push_back(std::move(entry));
    }
    return !Failed();
}

bool ToolbarEntryReader::read_entry(const Source& source, ToolbarEntry& entry)
{
    if (!read_type(source, entry.type))
        return false;
    const QStringList known = type_rows()[static_cast<size_t>(entry.type)].members + QStringList{u"type"_s};
    if (!CheckMembers(source.object, source.path, source.name, known))
        return false;
    if (entry.type == ToolbarEntryType::Separator)
        return true;
    return entry.type == ToolbarEntryType::Item ? read_item(source, entry) : read_button(source, entry);
}

bool ToolbarEntryReader::read_type(const Source& source, ToolbarEntryType& type)
{
    const QJsonValue value = source.object.value(u"type"_s);
    if (value.isUndefined())
        return true;
    for (const TypeRow& row : type_rows()) {
        type = row.type;
        if (value.toString() == row.name)
            return true;
    }
    return Fail(source, u"type"_s, u" has the unknown type \"%1\""_s.arg(value.toVariant().toString()));
}

bool ToolbarEntryReader::read_button(const Source& source, ToolbarEntry& entry)
{
    if (!ReadText(source, u"command"_s, entry.command) || !ReadImage(source, entry.image))
        return false;
    entry.name = entry.command;
    return read_popup(source, entry.popup);
}

bool ToolbarEntryReader::read_item(const Source& source, ToolbarEntry& entry)
{
    if (!ReadText(source, u"name"_s, entry.name) || !ReadText(source, u"text"_s, entry.text)
        || !ReadText(source, u"file"_s, entry.file))
        return false;
    if (!is_plain_name(entry.file))
        return Fail(source, u"file"_s, u" has more than letters and digits in its \"file\""_s);
    if (m_items.contains(entry.name))
        return Fail(source, u"name"_s,
                    u" has the name \"%1\", which stands twice in the file"_s.arg(entry.name));
    m_items.insert(entry.name);
    return true;
}

bool ToolbarEntryReader::read_popup(const Source& source, vq_uint32& popup)
{
    const QJsonValue value = source.object.value(u"popup"_s);
    if (value.isUndefined())
        return true;
    if (!IsWholeNumber(value, 1, g_max_popup))
        return Fail(source, u"popup"_s, u" needs a \"popup\" from 1 to 999999"_s);
    popup = static_cast<vq_uint32>(value.toInteger());
    return true;
}

}
