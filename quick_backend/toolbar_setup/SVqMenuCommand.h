#pragma once

#include <QString>

/// A command of a menu, as it is offered for a bar.
struct SVqMenuCommand
{
    QString m_label;   ///< Plain, without marks and key.
    QString m_path;    ///< The popups above it and the label: "File > Open".
    QString m_command; ///< What a button runs.
    QString m_key;     ///< Its keys; may be empty.
    int m_image = -1;  ///< Index in the image pool, or -1.
};
