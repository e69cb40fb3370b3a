#include "gallery/menu/MenuFile.h"

#include "gallery/json/JsonFile.h"
#include "gallery/menu/MenuEntryReader.h"

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
    JsonFile file;
    file.Load(name);
    return take(file);
}

bool MenuFile::Parse(const QByteArray& json, const QString& name)
{
    JsonFile file;
    file.Parse(json, name);
    return take(file);
}

bool MenuFile::take(const JsonFile& file)
{
    m_error = file.Error();
    if (!m_error.isEmpty())
        return false;
    MenuEntryReader reader;
    MenuDocument document = read_document(file.Object(), reader);
    m_error = file.SentenceOn(reader.Fault());
    if (!m_error.isEmpty())
        return false;
    m_document = std::move(document);
    m_document.fingerprint = file.Fingerprint();
    return true;
}

}
