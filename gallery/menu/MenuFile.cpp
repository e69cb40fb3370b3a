#include "gallery/menu/MenuFile.h"

#include "gallery/menu/JsonLines.h"
#include "gallery/menu/MenuEntryReader.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_format = 1;

MenuDocument read_document(const QJsonObject& file, MenuEntryReader& reader)
{
    MenuDocument document;
    reader.CheckMembers(file, {}, u"the file"_s, {u"format"_s, u"menu"_s, u"context"_s, u"keys"_s});
    if (file.value(u"format"_s).toInt() != g_format)
        reader.Fail(u"format"_s, u"\"format\" is not %1"_s.arg(g_format));
    if (!file.contains(u"menu"_s))
        reader.Fail({}, u"\"menu\" is missing"_s);
    document.menu = reader.ReadPopups(file, u"menu"_s);
    document.context = reader.ReadPopups(file, u"context"_s);
    document.keys = reader.ReadLonelyKeys(file, u"keys"_s);
    return document;
}

}

bool MenuFile::Load(const QString& name)
{
    if (QFileInfo(name).isDir())
        return fail(name, 0, u"it is a folder"_s);
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return fail(name, 0, file.errorString());
    return Parse(file.readAll(), name);
}

bool MenuFile::Parse(const QByteArray& json, const QString& name)
{
    QJsonParseError error;
    const QJsonDocument parsed = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return fail(name, JsonLines::LineAt(json, error.offset), error.errorString());
    if (!parsed.isObject())
        return fail(name, 1, u"the file is not an object"_s);
    MenuEntryReader reader;
    MenuDocument document = read_document(parsed.object(), reader);
    if (!reader.Fault().reason.isEmpty())
        return fail(name, JsonLines(json).LineOf(reader.Fault().path), reader.Fault().reason);
    m_document = std::move(document);
    m_document.fingerprint
        = QString::fromLatin1(QCryptographicHash::hash(json, QCryptographicHash::Sha256).toHex());
    m_error.clear();
    return true;
}

bool MenuFile::fail(const QString& name, int line, const QString& reason)
{
    const QString place = line > 0 ? u"%1, line %2"_s.arg(name).arg(line) : name;
    m_error = u"%1: %2."_s.arg(place, reason);
    return false;
}

}
