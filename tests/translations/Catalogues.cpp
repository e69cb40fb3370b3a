#include "tests/translations/Catalogues.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString g_sources = QStringLiteral(ARBOR_SOURCES);

QString content_of(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// The literals of calls, and of the rows of the table of key labels that are not written as they stand.
std::set<Source> literals_of(const QString& code)
{
    static const QRegularExpression wanted(
        uR"x((?:VQ_GetTranslation\(|VqAccelTranslation\(|Row\{\d+,)\s*VQ_TEXT\("([^"]*)"\)(?:,\s*VQ_TEXT\("([^"]*)"\))?(?!,\s*literal))x"_s);
    std::set<Source> found;
    for (auto match = wanted.globalMatch(code); match.hasNext();) {
        const auto call = match.next();
        found.emplace(call.captured(1).toStdString(), call.captured(2).toStdString());
    }
    return found;
}

}

std::map<std::string, QString> Catalogues()
{
    std::map<std::string, QString> paths;
    for (const QFileInfo& file : QDir(g_sources + u"/translations"_s).entryInfoList({u"*.ts"_s}))
        paths[file.completeBaseName().toStdString()] = file.filePath();
    return paths;
}

std::map<Source, QString> EntriesOf(const QString& catalogue, const QString& context)
{
    std::map<Source, QString> entries;
    QString name;
    Source source;
    QXmlStreamReader xml(content_of(catalogue));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name")
            name = xml.readElementText();
        else if (xml.name() == u"source")
            source = {xml.readElementText().toStdString(), ""};
        else if (xml.name() == u"comment")
            source.second = xml.readElementText().toStdString();
        else if (xml.name() == u"translation" && name == context)
            entries[source] = xml.readElementText();
    }
    EXPECT_FALSE(xml.hasError());
    return entries;
}

QStringList ContextsOf(const QString& catalogue)
{
    QStringList contexts;
    QXmlStreamReader xml(content_of(catalogue));
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"name")
            contexts.append(xml.readElementText());
    EXPECT_FALSE(xml.hasError());
    return contexts;
}

std::set<Source> LiteralsIn(const QString& folder)
{
    std::set<Source> found;
    QDirIterator files(g_sources + u'/' + folder, {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                       folder.isEmpty() ? QDirIterator::NoIteratorFlags : QDirIterator::Subdirectories);
    while (files.hasNext())
        found.merge(literals_of(content_of(files.next())));
    return found;
}

QString CompiledCatalogue(const QString& language)
{
    return QStringLiteral(ARBOR_CATALOGUES "/arbor_") + language;
}

void ExpectTranslated(const QString& context, const std::set<Source>& table)
{
    for (const auto& [name, catalogue] : Catalogues()) {
        SCOPED_TRACE(name);
        std::set<Source> translated;
        for (const auto& [source, text] : EntriesOf(catalogue, context)) {
            EXPECT_FALSE(text.isEmpty()) << source.first;
            translated.insert(source);
        }
        EXPECT_EQ(translated, table);
    }
}
