#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTranslator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString content(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

QSet<QString> matches(const QRegularExpression& call, const QString& text)
{
    QSet<QString> found;
    for (auto match = call.globalMatch(text); match.hasNext();)
        found << match.next().captured(1).replace(u"\\\""_s, u"\""_s);
    return found;
}

void expect_german(const char* context, const QSet<QString>& texts)
{
    QTranslator german;
    ASSERT_TRUE(german.load(u":/i18n/gallery_de.qm"_s));
    for (const QString& text : texts) {
        const QString translated = german.translate(context, text.toUtf8().constData());
        EXPECT_FALSE(translated.isEmpty()) << text.toStdString();
        EXPECT_EQ(translated.count(u'%'), text.count(u'%')) << text.toStdString();
    }
}

}

TEST(ResizeTexts, GermanHasEverySentence)
{
    static const QRegularExpression call(uR"x(translate\(\s*"Resize",\s*"((?:[^"\\]|\\.)*)")x"_s);
    QSet<QString> texts;
    const QDir folder(QStringLiteral(ARBOR_RESIZE_SOURCES));
    for (const QString& name : folder.entryList({u"*.cpp"_s}))
        texts += matches(call, content(folder.filePath(name)));

    EXPECT_EQ(texts.size(), 27);
    expect_german("Resize", texts);
}

TEST(ResizeTexts, GermanHasEveryTextOfThePage)
{
    static const QRegularExpression call(uR"x(qsTr\("([^"]*)"\))x"_s);

    const QSet<QString> texts = matches(call, content(u":/qt/qml/K7/Arbor/Gallery/pages/ResizePage.qml"_s));

    EXPECT_EQ(texts.size(), 6);
    expect_german("ResizePage", texts);
}
