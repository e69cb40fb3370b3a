#pragma once

#include "gallery/json/JsonFields.h"
#include "gallery/toolbar/ToolbarEntry.h"

#include <QSet>

namespace Gallery {

/// Reads the toolbars of one toolbar file and keeps the first fault it meets.
///
/// One reader reads one file: it remembers the names of toolbars and items, which may stand only once in it.
class ToolbarEntryReader : public JsonFields
{
public:
    /// Controls of one toolbar, separators included: what a stored toolbar holds in its tree form.
    static constexpr int MostControls = 100;

    ToolbarEntryReader();

    /// Reads the toolbars from the member `member` of `file`.
    std::vector<ToolbarDescription> ReadToolbars(const QJsonObject& file, const QString& member);

private:
    bool read_bar(const QJsonValue& value, const QString& path, ToolbarDescription& bar);
    bool read_bar_name(const Source& source, QString& name);
    bool read_entries(const Source& source, std::vector<ToolbarEntry>& entries);
    bool read_entry(const Source& source, ToolbarEntry& entry);
    bool read_type(const Source& source, ToolbarEntryType& type);
    bool read_button(const Source& source, ToolbarEntry& entry);
    bool read_item(const Source& source, ToolbarEntry& entry);
    bool read_popup(const Source& source, vq_uint32& popup);

    QSet<QString> m_bars;
    QSet<QString> m_items;
};

}
