#pragma once

#include "gallery/menu/MenuEntry.h"

#include <QByteArray>

namespace Gallery {

class JsonFile;

/// Reads a menu file; data/README.md tells its format.
///
///     MenuFile file;
///     if (!file.Load(name))
///         std::fputs(qPrintable(file.Error()), stderr);
class MenuFile
{
public:
    /// Reads the file `name`. False: the file cannot be read or is not a menu file; Error() says why and
    /// Document() stays as it was.
    bool Load(const QString& name);

    /// Reads `json`, which came from the file `name`, as Load() does.
    bool Parse(const QByteArray& json, const QString& name);

    const MenuDocument& Document() const { return m_document; }

    /// One sentence with the file, the line where there is one, and the reason. Empty after a success.
    const QString& Error() const { return m_error; }

private:
    bool take(const JsonFile& file);

    MenuDocument m_document;
    QString m_error;
};

}
