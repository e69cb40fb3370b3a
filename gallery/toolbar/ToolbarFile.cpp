#include "gallery/toolbar/ToolbarFile.h"

#include "gallery/json/JsonFile.h"
#include "gallery/toolbar/ToolbarEntryReader.h"

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_format = 1;

ToolbarDocument read_document(const QJsonObject& file, ToolbarEntryReader& reader)
{
    reader.CheckMembers(file, {}, u"the file"_s, {u"format"_s, u"toolbars"_s});
    if (file.value(u"format"_s).toInt() != g_format)
        reader.Fail(u"format"_s, u"\"format\" is not %1"_s.arg(g_format));
    if (!file.contains(u"toolbars"_s))
        reader.Fail(QString(), u"\"toolbars\" is missing"_s);
    return {reader.ReadToolbars(file, u"toolbars"_s)};
}

}

bool ToolbarFile::Load(const QString& name)
{
    JsonFile file;
    file.Load(name);
    return take(file);
}

bool ToolbarFile::Parse(const QByteArray& json, const QString& name)
{
    JsonFile file;
    file.Parse(json, name);
    return take(file);
}

bool ToolbarFile::take(const JsonFile& file)
{
    m_error = file.Error();
    if (!m_error.isEmpty())
        return false;
    ToolbarEntryReader reader;
    ToolbarDocument document = read_document(file.Object(), reader);
    m_error = file.SentenceOn(reader.Fault());
    if (!m_error.isEmpty())
        return false;
    m_document = std::move(document);
    return true;
}

const ToolbarDocument& FactoryToolbars()
{
    static const ToolbarDocument document = [] {
        ToolbarFile file;
        file.Load(u":/gallery/toolbars.json"_s);
        return file.Document();
    }();
    return document;
}

}
