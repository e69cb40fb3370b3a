#pragma once

#include "gallery/json/JsonFields.h"

#include <QByteArray>

namespace Gallery {

/// A file that holds one JSON object, and sentences on what is wrong with it.
class JsonFile
{
public:
    /// Reads the file `name`. False: it cannot be read or is no such file; Error() says why.
    bool Load(const QString& name);

    /// Reads `json`, which came from the file `name`, as Load() does.
    bool Parse(const QByteArray& json, const QString& name);

    /// Empty after a failure.
    const QJsonObject& Object() const { return m_object; }

    /// Of the content: a file with another one is another file. Empty after a failure.
    QString Fingerprint() const;

    /// One sentence with the file, the line where there is one, and the reason. Empty after a success.
    const QString& Error() const { return m_error; }

    /// The same for a fault that somebody found in Object(); empty when there is none.
    QString SentenceOn(const JsonFault& fault) const;

private:
    QString sentence(int line, const QString& reason) const;
    bool fail(int line, const QString& reason);

    QString m_name;
    QByteArray m_json;
    QJsonObject m_object;
    QString m_error;
};

}
