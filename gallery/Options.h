#pragma once

#include "gallery/render/RenderJob.h"
#include "gallery/resize/ResizeJob.h"
#include "gallery/script/ScriptStep.h"
#include "gallery/storage/MenuHome.h"

#include <QStringList>

namespace Gallery {

/// What the command line asks for.
struct Options
{
    QList<ScriptStep> keys;  ///< Keys and mouse, one after the other.
    QString screenshots;     ///< Folder for pictures; empty for none.
    QString demo;            ///< Folder for pictures of the tour; empty for none.
    QString locale;          ///< "de" or "en" for labels and key names, "ja" for key names alone.
    QString menus;           ///< A menu file in place of the built-in one; empty for none.
    QString toolbars;        ///< A toolbar file in place of the built-in one; empty for none.
    QString qml;             ///< A copy of gallery/ for the developer's mode; empty for the source tree.
    QString data;            ///< The folder in which menus and toolbars are kept; empty for the user's own.
    QString print_stored;    ///< Stored menus or toolbars, printed instead of a window; empty for none.
    bool rtl = false;        ///< The window is laid out from right to left.
    bool print_keys = false; ///< The keys of the menu are printed instead of a window.
    QString page;            ///< The page that the window opens with; empty for the first.
    RenderJob render;        ///< A picture that is wanted instead of a window; without a file for none.
    ResizeJob resize;        ///< Images that are to be scaled instead of a window; without folders for none.

    /// The window is only there to be scripted: the program ends by itself.
    bool IsScript() const { return !keys.isEmpty() || !screenshots.isEmpty() || !demo.isEmpty(); }

    /// Where this run keeps its menus and toolbars: in `data`, or else in the user's data folder. Without
    /// `data` nothing is kept by a script, which should do the same each time, and by a run with a menu or
    /// toolbars of its own.
    MenuHome Home() const;
};

/// What became of a command line.
struct OptionsResult
{
    Options options;
    int exit_code = -1; ///< -1: go on. 0: `message` is what was asked for. 2: `message` says what is wrong.
    QString message;    ///< One sentence, or the help.
};

/// Reads `arguments`, of which the first is the program's name. Needs an application object for the help.
OptionsResult ParseOptions(const QStringList& arguments);

}
