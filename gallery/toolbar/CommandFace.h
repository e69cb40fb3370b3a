#pragma once

#include <QString>

class CVqAbstractMenu;

namespace Gallery {

/// What a toolbar shows of a command: what the menu's first entry with that command has.
struct CommandFace
{
    bool found = false; ///< False: no entry has the command.
    QString text;       ///< The entry's label, "100 %".
    QString tip;        ///< The same as it reads away from its popup: "Zoom: 100 %".
    int image = -1;     ///< Index in the image pool.
};

CommandFace FaceOf(CVqAbstractMenu& menu, const QString& command);

}
