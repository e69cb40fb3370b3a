#include "AbstractGui/VqAccelFlags.h"
#include "gallery/menu/KeyText.h"
#include "gallery/menu/MenuEntryReader.h"

#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_last_key = 0xFE; // the highest virtual-key value in use

struct Modifier
{
    QString name;
    vq_uint32 flag;
};

vq_uint32 modifier_flag(const QString& name)
{
    static const Modifier modifiers[]
        = {{u"Alt"_s, vq_accel_alt}, {u"Ctrl"_s, vq_accel_ctrl}, {u"Shift"_s, vq_accel_shift}};
    for (const Modifier& modifier : modifiers)
        if (modifier.name == name)
            return modifier.flag;
    return 0;
}

quint64 owner_key(const MenuKey& key)
{
    return quint64(key.flags) << 16 | key.key;
}

}

bool MenuEntryReader::read_keys(const Source& source, MenuEntry& entry)
{
    if (source.object.contains(u"key"_s) && !read_key_text(source, entry))
        return false;
    const QJsonValue keys = source.object.value(u"keys"_s);
    if (!keys.isUndefined() && !keys.isArray())
        return Fail(source, u"keys"_s, u" needs a list as \"keys\""_s);
    const QJsonArray array = keys.toArray();
    return std::all_of(array.begin(), array.end(),
                       [&](const QJsonValue& value) { return read_key_value(source, value, entry); });
}

bool MenuEntryReader::read_key_text(const Source& source, MenuEntry& entry)
{
    if (!ReadText(source, u"key"_s, entry.key_text))
        return false;
    entry.text_key = ParseKeyText(entry.key_text);
    if (!entry.text_key)
        return Fail(source, u"key"_s, u" has the key text \"%1\", which names no key"_s.arg(entry.key_text));
    return claim_key(source, u"key"_s, *entry.text_key);
}

bool MenuEntryReader::read_key_value(const Source& source, const QJsonValue& value, MenuEntry& entry)
{
    const QJsonObject object = value.toObject();
    if (!CheckMembers(object, source.path + u"/keys"_s, source.name, {u"flags"_s, u"key"_s}))
        return false;
    const int number = object.value(u"key"_s).toInt();
    MenuKey key{vq_accel_virtual_key, static_cast<vq_wchar>(number)};
    if (number < 1 || number > g_last_key)
        return Fail(source, u"keys"_s,
                    u" needs a \"key\" from 1 to %1 in each of its \"keys\""_s.arg(g_last_key));
    if (!read_modifiers(source, object.value(u"flags"_s), key.flags))
        return false;
    entry.keys.append(key);
    return claim_key(source, u"keys"_s, key);
}

bool MenuEntryReader::read_modifiers(const Source& source, const QJsonValue& value, vq_uint32& flags)
{
    if (!value.isArray())
        return Fail(source, u"keys"_s, u" needs a list as \"flags\" in each of its \"keys\""_s);
    for (const QJsonValue& name : value.toArray()) {
        const vq_uint32 flag = modifier_flag(name.toString());
        if (flag == 0)
            return Fail(source, u"keys"_s, u" has a flag other than \"Alt\", \"Ctrl\" and \"Shift\""_s);
        flags |= flag;
    }
    return true;
}

bool MenuEntryReader::claim_key(const Source& source, const QString& member, const MenuKey& key)
{
    const QString owner = m_key_owner.value(owner_key(key));
    if (!owner.isEmpty())
        return Fail(source, member, u" has the key %1, which %2 has already"_s.arg(PrintKey(key), owner));
    m_key_owner.insert(owner_key(key), source.name);
    return true;
}

bool MenuEntryReader::read_lonely(const Source& source, LonelyKey& lonely)
{
    MenuEntry entry;
    if (!CheckMembers(source.object, source.path, source.name,
                      {u"id"_s, u"text"_s, u"command"_s, u"key"_s, u"keys"_s})
        || !read_id(source, lonely.id)
        || (source.object.contains(u"text"_s) && !ReadText(source, u"text"_s, lonely.text))
        || !ReadText(source, u"command"_s, lonely.command) || !read_keys(source, entry))
        return false;
    if (entry.keys.size() + (entry.text_key ? 1 : 0) != 1)
        return Fail(source, {}, u" needs one key"_s);
    lonely.key = entry.text_key ? *entry.text_key : entry.keys.front();
    return true;
}

}
