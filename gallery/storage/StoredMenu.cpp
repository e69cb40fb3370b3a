#include "gallery/storage/StoredMenu.h"

namespace Gallery {

namespace {

constexpr vq_uint32 g_format = 1;
constexpr vq_wchar g_format_name[] = VQ_TEXT("Format");
constexpr vq_wchar g_factory_name[] = VQ_TEXT("Factory");
constexpr vq_wchar g_language_name[] = VQ_TEXT("Language");
constexpr vq_wchar g_menu_name[] = VQ_TEXT("Menu");
constexpr vq_wchar g_own_keys_name[] = VQ_TEXT("OwnKeys");
constexpr vq_wchar g_id_name[] = VQ_TEXT("Id");
constexpr vq_wchar g_command_name[] = VQ_TEXT("Command");
constexpr vq_wchar g_key_name[] = VQ_TEXT("Key");
constexpr int g_key_shift = 16; // flags below, the key above

CVqVariant text_node(const QString& text, const vq_wchar* name)
{
    return {CVqStringW::FromQString(text), name};
}

QString text_in(const CVqVariant& level, const vq_wchar* name)
{
    return level[name].GetCVqStringW(nullptr).ToQString();
}

CVqVariant to_tree(const OwnKeys& own)
{
    CVqVariant level;
    level.Append(CVqVariant(own.id, g_id_name));
    level.Append(text_node(own.command, g_command_name));
    for (const MenuKey& key : own.keys)
        level.Append(CVqVariant(vq_uint32(key.key) << g_key_shift | (key.flags & 0xFFFF), g_key_name));
    return level;
}

OwnKeys own_keys_in(const CVqVariant& level)
{
    OwnKeys own{level[g_id_name].GetVq_uint32(nullptr), text_in(level, g_command_name), {}};
    for (int i = 0; i < level.GetCount(); ++i) {
        const CVqVariant& child = *level.IndexPtr(i);
        const vq_uint32 packed = child.GetVq_uint32(nullptr);
        if (child.GetName() == g_key_name)
            own.keys << MenuKey{packed & 0xFFFF, static_cast<vq_wchar>(packed >> g_key_shift)};
    }
    return own;
}

}

CVqVariant ToTree(const StoredMenu& stored)
{
    CVqVariant tree;
    tree.Append(CVqVariant(g_format, g_format_name));
    tree.Append(text_node(stored.factory, g_factory_name));
    tree.Append(text_node(stored.language, g_language_name));
    tree.Append(stored.menu).SetName(g_menu_name);
    CVqVariant own_keys;
    own_keys.SetName(g_own_keys_name);
    for (const OwnKeys& own : stored.own_keys)
        own_keys.Append(to_tree(own));
    if (!own_keys.IsEmpty())
        tree.Append(own_keys);
    return tree;
}

std::optional<StoredMenu> FromTree(const CVqVariant& tree)
{
    const CVqVariant& menu = tree[g_menu_name];
    if (tree[g_format_name].GetVq_uint32(nullptr) != g_format || menu.GetCount() == 0)
        return std::nullopt;
    StoredMenu stored{text_in(tree, g_factory_name), text_in(tree, g_language_name), menu, {}};
    const CVqVariant& own_keys = tree[g_own_keys_name];
    for (int i = 0; i < own_keys.GetCount(); ++i)
        stored.own_keys << own_keys_in(*own_keys.IndexPtr(i));
    return stored;
}

}
