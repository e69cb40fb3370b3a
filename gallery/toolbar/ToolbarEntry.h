#pragma once

#include "system/VqTypes.h"

#include <QString>

#include <vector>

namespace Gallery {

enum class ToolbarEntryType
{
    Button,
    TextButton,
    Item, ///< A control of its own: a QML file.
    Separator,
};

/// One control of a toolbar file.
struct ToolbarEntry
{
    ToolbarEntryType type = ToolbarEntryType::Button;
    QString name;        ///< Of the control: the command, or that of an item. Empty for a separator.
    QString command;     ///< What a button runs: that of an entry of the menu. Empty for an item.
    QString text;        ///< Of an item, in the language of the file; buttons have that of the menu.
    QString image;       ///< Name of an icon; empty: a button has the menu's, a text button none.
    QString file;        ///< An item's QML file in gallery/, without .qml.
    vq_uint32 popup = 0; ///< The popup of the menu that the button's arrow opens; 0 for none.
};

/// One toolbar of a toolbar file.
struct ToolbarDescription
{
    QString name; ///< Letters and digits; part of the keys of hidden buttons.
    QString text; ///< What people call it, in the language of the file.
    bool vertical = false;
    std::vector<ToolbarEntry> entries;
};

/// All of a toolbar file.
struct ToolbarDocument
{
    std::vector<ToolbarDescription> bars;
};

}
