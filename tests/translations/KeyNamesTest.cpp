#include "system/VqText.h"
#include "system/VqTranslation.h"
#include "tests/support/ScopedCatalogue.h"
#include "tests/translations/Catalogues.h"
#include "translations/key_names.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString g_context = u"AbstractGui\\CVqAbstractMenu"_s;

std::set<Source> table()
{
    std::set<Source> rows;
    for (const SVqTranslationSource& row : vq_key_names)
        rows.emplace(row.source, row.comment);
    return rows;
}

std::set<Source> literals_in_sources()
{
    std::set<Source> found;
    for (const char* folder : {"AbstractGui", "qml", "offscreen", "quick_backend", "gallery"})
        found.merge(LiteralsIn(QLatin1StringView(folder)));
    return found;
}

QString shown(const vq_wchar* text, const vq_wchar* comment)
{
    const auto answer = VqView(VQ_GetTranslation(text, comment, "AbstractGui\\CVqAbstractMenu"));
    return QString(reinterpret_cast<const QChar*>(answer.data()), static_cast<qsizetype>(answer.size()));
}

}

TEST(KeyNames, TheTableHoldsEveryLiteralOfTheSourcesAndNoOther)
{
    EXPECT_EQ(literals_in_sources(), table());
}

TEST(KeyNames, EveryCatalogueTranslatesTheTable)
{
    ExpectTranslated(g_context, table());
}

TEST(KeyNames, NamesThatParsingAsksForAreLowerCaseWordsInEveryCatalogue)
{
    for (const auto& [name, catalogue] : Catalogues()) {
        SCOPED_TRACE(name);
        auto entries = EntriesOf(catalogue, g_context);
        for (const Source& modifier :
             {Source("ctrl", ""), Source("alt", "keyboard key"), Source("shift", "keyboard key")}) {
            const QString text = entries[modifier];
            EXPECT_EQ(text, text.toLower());
            EXPECT_FALSE(text.contains(u'+') || text.contains(u' ') || text.isEmpty());
        }
    }
}

TEST(KeyNames, ModifiersAreReadAsTheyAreShownInEveryCatalogue)
{
    for (const auto& [name, catalogue] : Catalogues()) {
        SCOPED_TRACE(name);
        auto entries = EntriesOf(catalogue, g_context);
        EXPECT_EQ(entries[Source("Ctrl", "")].toLower(), entries[Source("ctrl", "")]);
        EXPECT_EQ(entries[Source("Alt", "keyboard key")].toLower(), entries[Source("alt", "keyboard key")]);
        EXPECT_EQ(entries[Source("Shift", "keyboard key")].toLower(),
                  entries[Source("shift", "keyboard key")]);
    }
}

TEST(KeyNames, GermanNamesShow)
{
    const ScopedCatalogue german(CompiledCatalogue(u"de"_s));

    EXPECT_EQ(shown(VQ_TEXT("Ctrl"), nullptr), u"Strg"_s);
    EXPECT_EQ(shown(VQ_TEXT("Shift"), VQ_TEXT("keyboard key")), u"Umschalt"_s);
    EXPECT_EQ(shown(VQ_TEXT("PageUp"), VQ_TEXT("PageUp keyboard key")), u"Bild auf"_s);
}

TEST(KeyNames, AnEntryWithoutACommentAnswersForAnyComment)
{
    const ScopedCatalogue german(CompiledCatalogue(u"de"_s));

    EXPECT_EQ(shown(VQ_TEXT("Ctrl"), VQ_TEXT("no such comment")), u"Strg"_s);
}

TEST(KeyNames, JapaneseNamesShow)
{
    const ScopedCatalogue japanese(CompiledCatalogue(u"ja"_s));

    EXPECT_EQ(shown(VQ_TEXT("Space"), VQ_TEXT("Space keyboard key")), u"\u30B9\u30DA\u30FC\u30B9"_s);
    EXPECT_EQ(shown(VQ_TEXT("Ctrl"), nullptr), u"Ctrl"_s);
}
