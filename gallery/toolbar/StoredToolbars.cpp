#include "gallery/toolbar/StoredToolbars.h"

#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "system/CVqLiteVariantR.h"
#include "system/VqVariantStorage.h"

#include <QBuffer>

namespace Gallery {

namespace {

constexpr vq_uint32 g_format = 1;
constexpr int g_most_in_tree = 100;    // controls; names have two digits of an index in front
constexpr int g_most_in_stream = 1000; // controls; far more than fit on a screen
constexpr int g_prefix = 3;            // units in front of a name: a letter and two digits
constexpr vq_wchar g_format_name[] = VQ_TEXT("Format");
constexpr vq_wchar g_toolbar_name[] = VQ_TEXT("Toolbar");
constexpr vq_wchar g_name_name[] = VQ_TEXT("Name");
constexpr vq_wchar g_record_name[] = VQ_TEXT("Record");
constexpr vq_wchar g_hidden_name[] = VQ_TEXT("Hidden");
constexpr vq_wchar g_stream_name[]
    = VQ_TEXT("CVqAbstractButtonToolbar");                  // of what the lightweight form holds
constexpr vq_wchar g_owner_name[] = VQ_TEXT("ToolbarName"); // of no control, in the tree form

CVqVariant text_node(const QString& text, const vq_wchar* name)
{
    return {CVqStringW::FromQString(text), name};
}

/// The same bytes stand for both forms.
template <class From, class To>
bool convert(const From& from, To& to)
{
    QBuffer bytes;
    bytes.open(QIODevice::ReadWrite);
    if (VQ_WriteCbor(bytes, from) != EVqStorageResult::Ok)
        return false;
    bytes.seek(0);
    return VQ_ReadCbor(bytes, to) == EVqStorageResult::Ok;
}

bool has_prefix(const CVqStringW& name)
{
    const QString text = name.ToQString();
    return text.size() >= g_prefix && text[0] == u'a' && text[1].isDigit() && text[2].isDigit();
}

bool is_tree_record(const CVqVariant& record)
{
    int controls = 0;
    for (int i = 0; i < record.GetCount(); ++i) {
        const CVqStringW name = record.IndexPtr(i)->GetName();
        if (name == g_owner_name)
            continue;
        if (!has_prefix(name) || ++controls > g_most_in_tree)
            return false;
    }
    return record.GetCount() > 0;
}

bool load_stream(CVqAbstractButtonToolbar& bar, const CVqVariant& record)
{
    CVqLiteVariantR stream;
    return record[g_stream_name].GetCount() <= g_most_in_stream && convert(record, stream)
        && bar.Load(stream) == 0;
}

CVqVariant to_tree(const StoredToolbar& bar)
{
    CVqVariant level;
    level.SetName(g_toolbar_name);
    level.Append(text_node(bar.name, g_name_name));
    if (bar.record.GetCount() > 0)
        level.Append(bar.record).SetName(g_record_name);
    for (const QString& button : bar.hidden)
        level.Append(text_node(button, g_hidden_name));
    return level;
}

StoredToolbar bar_in(const CVqVariant& level)
{
    StoredToolbar bar;
    for (int i = 0; i < level.GetCount(); ++i) {
        const CVqVariant& child = *level.IndexPtr(i);
        if (child.GetName() == g_name_name)
            bar.name = child.GetCVqStringW(nullptr).ToQString();
        else if (child.GetName() == g_record_name)
            bar.record = child;
        else if (child.GetName() == g_hidden_name)
            bar.hidden << child.GetCVqStringW(nullptr).ToQString();
    }
    return bar;
}

}

CVqVariant SaveRecord(CVqAbstractButtonToolbar& bar)
{
    CVqVariant record;
    if (bar.GetButtonsCount() <= g_most_in_tree) {
        bar.Save(record, g_toolbar_name); // a name, so that an empty toolbar has a record too
        return record;
    }
    CVqLiteVariantR stream;
    bar.Save(stream);
    convert(stream, record);
    return record;
}

bool LoadRecord(CVqAbstractButtonToolbar& bar, const CVqVariant& record)
{
    if (record[g_stream_name].GetCount() > 0)
        return load_stream(bar, record);
    CVqVariant tree = record;
    return is_tree_record(tree) && bar.Load(tree, nullptr) == 0;
}

CVqVariant ToTree(const QList<StoredToolbar>& bars)
{
    CVqVariant tree;
    tree.Append(CVqVariant(g_format, g_format_name));
    for (const StoredToolbar& bar : bars)
        tree.Append(to_tree(bar));
    return tree;
}

std::optional<QList<StoredToolbar>> ToolbarsFromTree(const CVqVariant& tree)
{
    if (tree[g_format_name].GetVq_uint32(nullptr) != g_format)
        return std::nullopt;
    QList<StoredToolbar> bars;
    for (int i = 0; i < tree.GetCount(); ++i)
        if (tree.IndexPtr(i)->GetName() == g_toolbar_name)
            bars << bar_in(*tree.IndexPtr(i));
    return bars;
}

}
