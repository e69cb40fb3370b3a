#include "gallery/json/JsonFile.h"

#include "gallery/json/JsonLines.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace Gallery {

bool JsonFile::Load(const QString& name)
{
    m_name = name;
    if (QFileInfo(name).isDir())
        return fail(0, u"it is a folder"_s);
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return fail(0, file.errorString());
    return Parse(file.readAll(), name);
}

bool JsonFile::Parse(const QByteArray& json, const QString& name)
{
    m_name = name;
    QJsonParseError error;
    const QJsonDocument parsed = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return fail(JsonLines::LineAt(json, error.offset), error.errorString());
    if (!parsed.isObject())
        return fail(1, u"the file is not an object"_s);
    m_json = json;
    m_object = parsed.object();
    m_error.clear();
    return true;
}

QString JsonFile::Fingerprint() const
{
    const QByteArray hash = QCryptographicHash::hash(m_json, QCryptographicHash::Sha256).toHex();
    return m_json.isEmpty() ? QString() : QString::fromLatin1(hash);
}

QString JsonFile::SentenceOn(const JsonFault& fault) const
{
    return fault.reason.isEmpty() ? QString() : sentence(JsonLines(m_json).LineOf(fault.path), fault.reason);
}

QString JsonFile::sentence(int line, const QString& reason) const
{
    const QString place = line > 0 ? u"%1, line %2"_s.arg(m_name).arg(line) : m_name;
    return u"%1: %2."_s.arg(place, reason);
}

bool JsonFile::fail(int line, const QString& reason)
{
    m_json.clear();
    m_object = {};
    m_error = sentence(line, reason);
    return false;
}

}
