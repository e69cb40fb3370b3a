#pragma once

#include "gallery/toolbar/ToolbarEntry.h"

#include <QByteArray>

namespace Gallery {

class JsonFile;

/// Reads a toolbar file; data/README.md tells its format.
///
///     ToolbarFile file;
///     if (!file.Load(name))
///         std::fputs(qPrintable(file.Error()), stderr);
class ToolbarFile
{
public:
    /// Reads the file `name`. False: the file cannot be read or is not a toolbar file; Error() says why and
    /// Document() stays as it was.
    bool Load(const QString& name);

    /// Reads `json`, which came from the file `name`, as Load() does.
    bool Parse(const QByteArray& json, const QString& name);

    const ToolbarDocument& Document() const { return m_document; }

    /// One sentence with the file, the line where there is one, and the reason. Empty after a success.
    const QString& Error() const { return m_error; }

private:
    bool take(const JsonFile& file);

    ToolbarDocument m_document;
    QString m_error;
};

/// The toolbars that the gallery ships, read once.
const ToolbarDocument& FactoryToolbars();

}
