#include "gallery/toolbar/ToolbarFile.h"

#include <QFile>
#include <QRegularExpression>
#include <QTranslator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

bool is_german(const QTranslator& german, const char* context, const QString& text)
{
    return text.isEmpty() || !german.translate(context, text.toUtf8().constData()).isEmpty();
}

}

TEST(ToolbarTexts, GermanHasTheTextsOfTheFile)
{
    QTranslator german;
    ASSERT_TRUE(german.load(u":/i18n/gallery_de.qm"_s));

    for (const Gallery::ToolbarDescription& bar : Gallery::FactoryToolbars().bars) {
        EXPECT_TRUE(is_german(german, "Menu", bar.text)) << bar.text.toStdString();
        for (const Gallery::ToolbarEntry& entry : bar.entries)
            EXPECT_TRUE(is_german(german, "Menu", entry.text)) << entry.text.toStdString();
    }
}

TEST(ToolbarTexts, GermanHasTheSentencesOfTheKeeper)
{
    QTranslator german;
    ASSERT_TRUE(german.load(u":/i18n/gallery_de.qm"_s));
    QFile file(QStringLiteral(ARBOR_TOOLBAR_SOURCES "/ToolbarKeeper.cpp"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression call(uR"x(\btr\(\s*"((?:[^"]|"\s*")*)")x"_s);
    static const QRegularExpression seam(uR"x("\s*")x"_s);
    int sentences = 0;

    for (auto match = call.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext(); ++sentences) {
        const QString text = match.next().captured(1).remove(seam);
        const QString translated = german.translate("Gallery::ToolbarKeeper", text.toUtf8().constData());
        EXPECT_EQ(translated.count(u'%'), text.count(u'%')) << text.toStdString();
        EXPECT_FALSE(translated.isEmpty()) << text.toStdString();
    }
    EXPECT_EQ(sentences, 3);
}
