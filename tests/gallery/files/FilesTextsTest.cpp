#include <QFile>
#include <QRegularExpression>
#include <QTranslator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(FilesTexts, GermanHasEverySentenceOnEdits)
{
    static const QRegularExpression call(uR"x(\btr\(\s*"([^"]*)")x"_s);
    QTranslator german;
    ASSERT_TRUE(german.load(u":/i18n/gallery_de.qm"_s));
    QFile file(QStringLiteral(ARBOR_FILES_SOURCES "/FileEdits.cpp"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    int texts = 0;

    for (auto match = call.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext(); ++texts) {
        const QString text = match.next().captured(1);
        const QString translated = german.translate("Gallery::FileEdits", text.toUtf8().constData());
        EXPECT_FALSE(translated.isEmpty()) << text.toStdString();
        EXPECT_EQ(translated.count(u'%'), text.count(u'%')) << text.toStdString();
    }

    EXPECT_EQ(texts, 16);
}
