#include "system/VqText.h"
#include "system/VqTranslation.h"
#include "translations/key_names.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <utility>

namespace {

/// A text and its comment.
using Source = std::pair<std::string, std::string>;

const QString sources_root = QStringLiteral(ARBOR_SOURCES);

QString content_of(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

std::set<Source> table()
{
    std::set<Source> rows;
    for (const SVqTranslationSource& row : vq_key_names)
        rows.emplace(row.source, row.comment);
    return rows;
}

/// The literals of calls, and of the rows of the table of key labels that are not written as they stand.
std::set<Source> literals_in(const QString& code)
{
    static const QRegularExpression wanted(QStringLiteral(
        R"x((?:VQ_GetTranslation\(|VqAccelTranslation\(|Row\{\d+,)\s*VQ_TEXT\("([^"]*)"\)(?:,\s*VQ_TEXT\("([^"]*)"\))?(?!,\s*literal))x"));
    std::set<Source> found;
    for (auto match = wanted.globalMatch(code); match.hasNext();) {
        const auto call = match.next();
        found.emplace(call.captured(1).toStdString(), call.captured(2).toStdString());
    }
    return found;
}

std::set<Source> literals_in_sources()
{
    std::set<Source> found;
    for (const char* folder : {"AbstractGui", "qml", "offscreen", "quick_backend", "gallery"}) {
        QDirIterator files(sources_root + u'/' + QLatin1StringView(folder),
                           {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            found.merge(literals_in(content_of(files.next())));
    }
    return found;
}

QStringList catalogues()
{
    return QDir(sources_root + QStringLiteral("/translations")).entryList({QStringLiteral("*.ts")});
}

std::map<Source, QString> entries_of(const QString& catalogue)
{
    std::map<Source, QString> entries;
    Source source;
    QXmlStreamReader xml(content_of(sources_root + QStringLiteral("/translations/") + catalogue));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"source")
            source = {xml.readElementText().toStdString(), ""};
        else if (xml.name() == u"comment")
            source.second = xml.readElementText().toStdString();
        else if (xml.name() == u"translation")
            entries[source] = xml.readElementText();
    }
    EXPECT_FALSE(xml.hasError());
    return entries;
}

QString shown(const vq_wchar* text, const vq_wchar* comment)
{
    const auto answer = VqView(VQ_GetTranslation(text, comment, "AbstractGui\\CVqAbstractMenu"));
    return QString(reinterpret_cast<const QChar*>(answer.data()), static_cast<qsizetype>(answer.size()));
}

/// Installs a built catalogue for the time of its scope.
class Language
{
public:
    explicit Language(const QString& name)
    {
        EXPECT_TRUE(m_translator.load(QStringLiteral(ARBOR_CATALOGUES "/arbor_") + name));
        QCoreApplication::installTranslator(&m_translator);
    }

private:
    QTranslator m_translator;
};

}

TEST(KeyNames, TheTableHoldsEveryLiteralOfTheSourcesAndNoOther)
{
    EXPECT_EQ(literals_in_sources(), table());
}

TEST(KeyNames, EveryCatalogueTranslatesTheTable)
{
    ASSERT_EQ(catalogues(), (QStringList{QStringLiteral("arbor_de.ts"), QStringLiteral("arbor_ja.ts")}));
    for (const QString& catalogue : catalogues()) {
        SCOPED_TRACE(catalogue.toStdString());
        std::set<Source> translated;
        for (const auto& [source, text] : entries_of(catalogue)) {
            EXPECT_FALSE(text.isEmpty()) << source.first;
            translated.insert(source);
        }
        EXPECT_EQ(translated, table());
    }
}

TEST(KeyNames, NamesThatParsingAsksForAreLowerCaseWordsInEveryCatalogue)
{
    for (const QString& catalogue : catalogues()) {
        SCOPED_TRACE(catalogue.toStdString());
        auto entries = entries_of(catalogue);
        for (const Source& name :
             {Source("ctrl", ""), Source("alt", "keyboard key"), Source("shift", "keyboard key")}) {
            const QString text = entries[name];
            EXPECT_EQ(text, text.toLower());
            EXPECT_FALSE(text.contains(u'+') || text.contains(u' ') || text.isEmpty());
        }
    }
}

TEST(KeyNames, ModifiersAreReadAsTheyAreShownInEveryCatalogue)
{
    for (const QString& catalogue : catalogues()) {
        SCOPED_TRACE(catalogue.toStdString());
        auto entries = entries_of(catalogue);
        EXPECT_EQ(entries[Source("Ctrl", "")].toLower(), entries[Source("ctrl", "")]);
        EXPECT_EQ(entries[Source("Alt", "keyboard key")].toLower(), entries[Source("alt", "keyboard key")]);
        EXPECT_EQ(entries[Source("Shift", "keyboard key")].toLower(),
                  entries[Source("shift", "keyboard key")]);
    }
}

TEST(KeyNames, GermanNamesShow)
{
    const Language german(QStringLiteral("de"));

    EXPECT_EQ(shown(VQ_TEXT("Ctrl"), nullptr), QStringLiteral("Strg"));
    EXPECT_EQ(shown(VQ_TEXT("Shift"), VQ_TEXT("keyboard key")), QStringLiteral("Umschalt"));
    EXPECT_EQ(shown(VQ_TEXT("PageUp"), VQ_TEXT("PageUp keyboard key")), QStringLiteral("Bild auf"));
}

TEST(KeyNames, AnEntryWithoutACommentAnswersForAnyComment)
{
    const Language german(QStringLiteral("de"));

    EXPECT_EQ(shown(VQ_TEXT("Ctrl"), VQ_TEXT("no such comment")), QStringLiteral("Strg"));
}

TEST(KeyNames, JapaneseNamesShow)
{
    const Language japanese(QStringLiteral("ja"));

    EXPECT_EQ(shown(VQ_TEXT("Space"), VQ_TEXT("Space keyboard key")),
              QStringLiteral("\u30B9\u30DA\u30FC\u30B9"));
    EXPECT_EQ(shown(VQ_TEXT("Ctrl"), nullptr), QStringLiteral("Ctrl"));
}
