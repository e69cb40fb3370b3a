#pragma once

#include "gallery/json/JsonFields.h"
#include "gallery/menu/MenuEntry.h"

#include <QHash>
#include <QJsonValue>

namespace Gallery {

/// Reads the entries of one menu file and keeps the first fault it meets.
///
/// One reader reads one file: it remembers identifiers and keys, which may stand only once in a file.
class MenuEntryReader : public JsonFields
{
public:
    MenuEntryReader();

    /// Popups inside popups beyond this depth are refused.
    static constexpr int MaxDepth = 8;

    /// Reads the popups of the member `member` of `file`. A missing member is an empty list.
    std::vector<MenuEntry> ReadPopups(const QJsonObject& file, const QString& member);

    /// Reads the keys without an entry from the member `member` of `file`.
    std::vector<LonelyKey> ReadLonelyKeys(const QJsonObject& file, const QString& member);

private:
    std::vector<MenuEntry> read_entries(const QJsonValue& value, const QString& path, const QString& owner);
    bool read_entry(const Source& source, MenuEntry& entry);
    bool read_label(const Source& source, MenuEntry& entry);
    bool read_look(const Source& source, MenuEntry& entry);
    bool read_state(const Source& source, MenuEntry& entry);
    bool read_items(const Source& source, MenuEntry& entry);
    bool check_radio_groups(const std::vector<MenuEntry>& entries, const QString& path);
    bool read_type(const Source& source, MenuEntryType& type);
    bool read_id(const Source& source, vq_uint32& id);
    bool read_color(const Source& source, const QString& member, vq_uint32& color);
    bool read_width(const Source& source, vq_uint32& width);
    bool read_keys(const Source& source, MenuEntry& entry);
    bool read_key_text(const Source& source, MenuEntry& entry);
    bool read_key_value(const Source& source, const QJsonValue& value, MenuEntry& entry);
    bool read_modifiers(const Source& source, const QJsonValue& value, vq_uint32& flags);
    bool claim_key(const Source& source, const QString& member, const MenuKey& key);
    bool read_lonely(const Source& source, LonelyKey& lonely);

    QHash<vq_uint32, QString> m_ids;     // id -> the entry's name
    QHash<quint64, QString> m_key_owner; // flags and key -> the entry's name
    int m_depth = 0;
};

}
