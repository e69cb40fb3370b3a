#pragma once

#include "system/VqText.h"
#include "system/VqTypes.h"

#include <QList>
#include <QString>

#include <optional>
#include <vector>

namespace Gallery {

/// A key combination: modifiers, the bits of VqAccelFlags.h, and a virtual-key value.
struct MenuKey
{
    vq_uint32 flags = 0;
    vq_wchar key = 0;

    bool operator==(const MenuKey&) const = default;
};

enum class MenuEntryType
{
    Item,
    Separator,
    OneColor,
    TwoColor,
    LineWidth,
    Popup,
};

/// One entry of a menu file, with the defaults of what the file left out.
struct MenuEntry
{
    MenuEntryType type = MenuEntryType::Item;
    vq_uint32 id = 0; ///< 0 for a separator: the builder gives it one.
    QString text;     ///< Label with `&` marks, in the language of the file.
    QString command;
    QString image;                   ///< Name of an image in the icon module; empty for none.
    std::optional<MenuKey> text_key; ///< The key that stands as text in the file.
    QString key_text;                ///< That text, English names. Empty without one.
    QList<MenuKey> keys;             ///< Keys given with flags and value, in their order.
    QString radio;                   ///< Name of the radio group, empty outside one.
    std::optional<bool> checked;     ///< Set: the entry is a toggle, or a member of a radio group.
    bool enabled = true;
    bool mnemonic = true; ///< False: never gets a mnemonic.
    vq_uint32 color1 = 0; ///< 0x00BBGGRR
    vq_uint32 color2 = 0; ///< 0x00BBGGRR
    vq_uint32 width = 0;  ///< Pixels.
    std::vector<MenuEntry> items;
};

/// A key with a command and no entry in a menu.
struct LonelyKey
{
    vq_uint32 id = 0;
    QString text; ///< What people call the command; empty when the file does not tell.
    QString command;
    MenuKey key;
};

/// All of a menu file.
struct MenuDocument
{
    std::vector<MenuEntry> menu;    ///< The popups of the menu bar.
    std::vector<MenuEntry> context; ///< Context menus, each a popup.
    std::vector<LonelyKey> keys;
    QString fingerprint; ///< Of the file's content: a file with another one is another menu.
};

}
