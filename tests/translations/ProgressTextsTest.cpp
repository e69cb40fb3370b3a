#include "tests/translations/Catalogues.h"
#include "translations/progress_texts.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString g_context = u"DelayedProgressWndBase"_s;

std::set<Source> table()
{
    std::set<Source> rows;
    for (const char* text : vq_progress_texts)
        rows.emplace(text, "");
    return rows;
}

/// What a formatter takes for conversions, each up to its letter: it lets blanks and digits stand in between.
QStringList conversions_of(const QString& text)
{
    static const QRegularExpression conversion(u"%[^a-zA-Z%]*(?:[a-zA-Z%]|$)"_s);
    QStringList found;
    for (auto match = conversion.globalMatch(text); match.hasNext();)
        found.append(match.next().captured());
    return found;
}

}

TEST(ProgressTexts, TheTableHoldsEveryLiteralOfTheSourcesAndNoOther)
{
    EXPECT_EQ(LiteralsIn(QString()), table());
}

TEST(ProgressTexts, EveryCatalogueTranslatesTheTable)
{
    ExpectTranslated(g_context, table());
}

TEST(ProgressTexts, FormatsKeepTheirConversionsInEveryCatalogue)
{
    for (const auto& [name, catalogue] : Catalogues()) {
        for (const auto& [source, text] : EntriesOf(catalogue, g_context)) {
            SCOPED_TRACE(name + ": " + source.first);
            EXPECT_EQ(conversions_of(text), conversions_of(QString::fromStdString(source.first)));
        }
    }
}

TEST(ProgressTexts, AConversionThatATranslationChangesIsSeen)
{
    EXPECT_EQ(conversions_of(u"Progress: %3.2f%%"_s), (QStringList{u"%3.2f"_s, u"%%"_s}));
    EXPECT_EQ(conversions_of(u"%d %"_s), (QStringList{u"%d"_s, u"%"_s}));
    EXPECT_EQ(conversions_of(u"% d %s"_s), (QStringList{u"% d"_s, u"%s"_s}));
    EXPECT_EQ(conversions_of(u"%ld"_s), QStringList{u"%l"_s});
}
