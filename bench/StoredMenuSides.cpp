#include "bench/StoredMenuSides.h"

#include "system/CVqLiteVariantR.h"
#include "system/CVqStringW.h"
#include "system/CVqVariant.h"
#include "system/VqVariantStorage.h"

#include <QBuffer>
#include <QCborArray>
#include <QCborMap>
#include <QDataStream>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>

#include <array>
#include <cstdlib>
#include <string>

using namespace Qt::StringLiterals;

namespace {

// Records: what the peers store of an item ---------------------------------------------------------------

template <class Text>
struct Names
{
    Text id;
    Text type;
    Text status;
    Text text;
    Text command;
    Text sub_menu;
    Text root;
    std::array<Text, 2> keys;
};

constexpr Names<QLatin1StringView> g_latin{
    "Id"_L1,      "Type"_L1,    "Status"_L1, "Text"_L1,
    "Command"_L1, "SubMenu"_L1, "Root"_L1,   {"AccelKey0"_L1, "AccelKey1"_L1}};

const Names<QString> g_wide{u"Id"_s,      u"Type"_s,    u"Status"_s, u"Text"_s,
                            u"Command"_s, u"SubMenu"_s, u"Root"_s,   {u"AccelKey0"_s, u"AccelKey1"_s}};

QString text_of(const CVqStringW& text)
{
    const auto view = text.View();
    return QString(reinterpret_cast<const QChar*>(view.data()), static_cast<qsizetype>(view.size()));
}

const vq_wchar* units_of(const QString& text)
{
    return reinterpret_cast<const vq_wchar*>(text.utf16());
}

QString label_of(BenchMenu& menu, const CVqMenuItem& item)
{
    std::array<vq_wchar, 512> label;
    menu.Manipulators().handle_mnemonics_and_split(label.data(), item.text(), item.mnemonic(),
                                                   VQ_TEXT("\a\t"));
    return QString(reinterpret_cast<const QChar*>(label.data()));
}

/// Calls `take` with the number and the packed value of each key.
template <class Take>
void for_each_key(const CVqAccelerators& table, vq_uint32 id, Take take)
{
    vq_uint32 flags = 0;
    vq_wchar key = 0;
    std::size_t number = 0;
    for (int index = 0; table.GetAccelKey(id, index, &flags, &key) == 0; ++number)
        take(number, int(key << 16 | flags));
}

/// What is read of an item before it is made.
struct Record
{
    vq_uint32 id = 0;
    vq_uint32 type = 0;
    vq_uint32 status = 0;
    QString text;
    QString command;
};

void take_key(BenchMenu& menu, vq_uint32 id, int packed)
{
    menu.Keys().AddAccelKey(id, vq_uint32(packed & 0xFFFF), vq_wchar(packed >> 16), 0);
}

CVqMenuItem* make_item(BenchMenu& menu, CVqMenuItem* parent, const Record& record, bool has_keys)
{
    auto& tools = menu.Manipulators();
    CVqMenuItem* item = tools.allocMenuItem();
    item->setId(record.id);
    item->setType(record.type);
    item->setStatus(record.status);
    item->setText(units_of(record.text));
    item->setCommand(units_of(record.command));
    if (record.type == CVqAbstractMenu::SenseItem)
        item->setAccelerators(&menu.Keys());
    if (has_keys) {
        std::array<vq_wchar, 512> texts{};
        menu.Keys().GetAllAccelKeys(record.id, texts.data(), VQ_TEXT(", "));
        tools.update_menustring(item, texts.data());
    }
    tools.append_item(parent, item);
    return item;
}

// Trees of maps and lists ---------------------------------------------------------------------------------

struct CborForm
{
    using Map = QCborMap;
    using List = QCborArray;
    static constexpr const Names<QLatin1StringView>& names() { return g_latin; }
    static qint64 number(vq_uint32 value) { return value; }
    static vq_uint32 number_of(const QCborValue& value) { return vq_uint32(value.toInteger()); }
    static QCborMap map_of(const QCborValue& value) { return value.toMap(); }
    static QCborArray list_of(const QCborValue& value) { return value.toArray(); }
};

struct JsonForm
{
    using Map = QJsonObject;
    using List = QJsonArray;
    static constexpr const Names<QLatin1StringView>& names() { return g_latin; }
    static qint64 number(vq_uint32 value) { return value; }
    static vq_uint32 number_of(const QJsonValue& value) { return vq_uint32(value.toInteger()); }
    static QJsonObject map_of(const QJsonValue& value) { return value.toObject(); }
    static QJsonArray list_of(const QJsonValue& value) { return value.toArray(); }
};

struct VariantForm
{
    using Map = QVariantMap;
    using List = QVariantList;
    static const Names<QString>& names() { return g_wide; }
    static vq_uint32 number(vq_uint32 value) { return value; }
    static vq_uint32 number_of(const QVariant& value) { return value.toUInt(); }
    static QVariantMap map_of(const QVariant& value) { return value.toMap(); }
    static QVariantList list_of(const QVariant& value) { return value.toList(); }
};

template <class Form>
typename Form::List list_of(BenchMenu& menu, const CVqMenuItem* first);

template <class Form>
typename Form::Map record_of(BenchMenu& menu, const CVqMenuItem& item)
{
    const auto& names = Form::names();
    typename Form::Map map;
    map.insert(names.id, Form::number(item.id()));
    map.insert(names.type, Form::number(item.type()));
    map.insert(names.status, Form::number(item.status()));
    if (item.type() != CVqAbstractMenu::SenseSeparator) {
        map.insert(names.text, label_of(menu, item));
        map.insert(names.command, text_of(item.command()));
    }
    for_each_key(menu.Keys(), item.id(),
                 [&](std::size_t number, int packed) { map.insert(names.keys[number], packed); });
    if (item.subItem())
        map.insert(names.sub_menu, list_of<Form>(menu, item.subItem()));
    return map;
}

template <class Form>
typename Form::List list_of(BenchMenu& menu, const CVqMenuItem* first)
{
    typename Form::List list;
    for (const CVqMenuItem* item = first; item; item = item->nextItem())
        list.append(record_of<Form>(menu, *item));
    return list;
}

template <class Form>
typename Form::Map tree_of(BenchMenu& menu)
{
    typename Form::Map tree;
    tree.insert(Form::names().root, list_of<Form>(menu, menu.Root().subItem()));
    return tree;
}

template <class Form>
void load_list(const typename Form::List& list, BenchMenu& menu, CVqMenuItem* parent)
{
    const auto& names = Form::names();
    for (const auto& value : list) {
        const auto map = Form::map_of(value);
        Record record;
        record.id = Form::number_of(map.value(names.id));
        record.type = Form::number_of(map.value(names.type));
        record.status = Form::number_of(map.value(names.status));
        record.text = map.value(names.text).toString();
        record.command = map.value(names.command).toString();
        bool has_keys = false;
        for (const auto& name : names.keys) {
            const auto key = map.constFind(name);
            if (key == map.constEnd())
                break;
            take_key(menu, record.id, int(Form::number_of(key.value())));
            has_keys = true;
        }
        CVqMenuItem* item = make_item(menu, parent, record, has_keys);
        load_list<Form>(Form::list_of(map.value(names.sub_menu)), menu, item);
    }
}

template <class Form>
void load_tree(const typename Form::Map& tree, BenchMenu& menu)
{
    load_list<Form>(Form::list_of(tree.value(Form::names().root)), menu, &menu.Root());
}

// An ini file ---------------------------------------------------------------------------------------------

void save_list(QSettings& out, const QString& name, BenchMenu& menu, const CVqMenuItem* first)
{
    out.beginWriteArray(name);
    int index = 0;
    for (const CVqMenuItem* item = first; item; item = item->nextItem()) {
        out.setArrayIndex(index++);
        out.setValue(g_wide.id, item->id());
        out.setValue(g_wide.type, item->type());
        out.setValue(g_wide.status, item->status());
        if (item->type() != CVqAbstractMenu::SenseSeparator) {
            out.setValue(g_wide.text, label_of(menu, *item));
            out.setValue(g_wide.command, text_of(item->command()));
        }
        for_each_key(menu.Keys(), item->id(),
                     [&](std::size_t number, int packed) { out.setValue(g_wide.keys[number], packed); });
        if (item->subItem())
            save_list(out, g_wide.sub_menu, menu, item->subItem());
    }
    out.endArray();
}

void load_list(QSettings& in, const QString& name, BenchMenu& menu, CVqMenuItem* parent)
{
    const int count = in.beginReadArray(name);
    for (int index = 0; index < count; ++index) {
        in.setArrayIndex(index);
        const Record record{in.value(g_wide.id).toUInt(), in.value(g_wide.type).toUInt(),
                            in.value(g_wide.status).toUInt(), in.value(g_wide.text).toString(),
                            in.value(g_wide.command).toString()};
        bool has_keys = false;
        for (const QString& key : g_wide.keys) {
            const QVariant packed = in.value(key);
            if (!packed.isValid())
                break;
            take_key(menu, record.id, packed.toInt());
            has_keys = true;
        }
        load_list(in, g_wide.sub_menu, menu, make_item(menu, parent, record, has_keys));
    }
    in.endArray();
}

// Ours ----------------------------------------------------------------------------------------------------

template <class Container>
QByteArray save_bytes(BenchMenu& menu)
{
    Container container;
    menu.Save(container);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    VQ_WriteCbor(buffer, container);
    return buffer.data();
}

template <class Container>
void load_bytes(const QByteArray& bytes, BenchMenu& menu)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    Container container;
    if (VQ_ReadCbor(buffer, container) != EVqStorageResult::Ok)
        std::abort();
    menu.Load(container);
}

}

void FillBenchMenu(BenchMenu& menu)
{
    static const QStringList verbs
        = u"Open Rotate Adjust Convert Export Select Sharpen Measure"_s.split(u' ');
    static const QStringList nouns = u"image layer mask channel selection palette histogram"_s.split(u' ');
    vq_uint32 id = 1000;
    for (vq_uint32 popup = 1; popup <= 20; ++popup) {
        menu.AppendPopup(popup, 0, VQ_TEXT("&Popup"));
        for (int number = 0; number < 49; ++number, ++id) {
            if (number % 7 == 6) {
                menu.AppendSeparator(id, popup);
                continue;
            }
            const QString label = u"&%1 %2 %3..."_s.arg(verbs[id % 8], nouns[id % 7]).arg(id);
            const QString command = u"Command%1(1);"_s.arg(id);
            menu.AppendMenuItem(id, popup, units_of(label), units_of(command), 0);
            menu.AppendIdAccelKey(id, 16 + id % 8, vq_wchar('A' + id / 8 % 26), false);
            if (number % 10 == 0)
                menu.AppendIdAccelKey(id, 16 + id % 8, vq_wchar(112 + id / 8 % 24), false);
        }
    }
}

QByteArray LiteSide::Save(BenchMenu& menu)
{
    return save_bytes<CVqLiteVariantR>(menu);
}

void LiteSide::Load(const QByteArray& bytes, BenchMenu& menu)
{
    load_bytes<CVqLiteVariantR>(bytes, menu);
}

QByteArray TreeSide::Save(BenchMenu& menu)
{
    return save_bytes<CVqVariant>(menu);
}

void TreeSide::Load(const QByteArray& bytes, BenchMenu& menu)
{
    load_bytes<CVqVariant>(bytes, menu);
}

QByteArray CborSide::Save(BenchMenu& menu)
{
    return QCborValue(tree_of<CborForm>(menu)).toCbor();
}

void CborSide::Load(const QByteArray& bytes, BenchMenu& menu)
{
    load_tree<CborForm>(QCborValue::fromCbor(bytes).toMap(), menu);
}

QByteArray JsonSide::Save(BenchMenu& menu)
{
    return QJsonDocument(tree_of<JsonForm>(menu)).toJson(QJsonDocument::Compact);
}

void JsonSide::Load(const QByteArray& bytes, BenchMenu& menu)
{
    load_tree<JsonForm>(QJsonDocument::fromJson(bytes).object(), menu);
}

QByteArray StreamSide::Save(BenchMenu& menu)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << SaveTree(menu);
    return bytes;
}

void StreamSide::Load(const QByteArray& bytes, BenchMenu& menu)
{
    QDataStream in(bytes);
    QVariantMap tree;
    in >> tree;
    LoadTree(tree, menu);
}

QVariantMap StreamSide::SaveTree(BenchMenu& menu)
{
    return tree_of<VariantForm>(menu);
}

void StreamSide::LoadTree(const QVariantMap& tree, BenchMenu& menu)
{
    load_tree<VariantForm>(tree, menu);
}

void SettingsSide::Save(BenchMenu& menu, const QString& file)
{
    QSettings out(file, QSettings::IniFormat);
    out.clear();
    save_list(out, g_wide.root, menu, menu.Root().subItem());
    out.sync();
}

void SettingsSide::Load(const QString& file, BenchMenu& menu)
{
    QSettings in(file, QSettings::IniFormat);
    load_list(in, g_wide.root, menu, &menu.Root());
}
