#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTranslator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString g_compiled = u":/qt/qml/K7/Arbor/Gallery"_s;

QString content(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

QStringList texts_in(const QString& qml)
{
    static const QRegularExpression call(uR"x(qsTr\("([^"]*)"\))x"_s);
    QStringList texts;
    for (auto match = call.globalMatch(qml); match.hasNext();)
        texts << match.next().captured(1);
    return texts;
}

}

TEST(QmlTexts, GermanHasEveryTextOfEveryFile)
{
    QTranslator german;
    ASSERT_TRUE(german.load(u":/i18n/gallery_de.qm"_s));
    int texts = 0;

    for (const QString& folder : {g_compiled, g_compiled + u"/pages"_s}) {
        for (const QFileInfo& file : QDir(folder).entryInfoList({u"*.qml"_s})) {
            for (const QString& text : texts_in(content(file.filePath()))) {
                const QString translated
                    = german.translate(file.baseName().toUtf8().constData(), text.toUtf8().constData());
                EXPECT_EQ(translated.count(u'%'), text.count(u'%')) << text.toStdString();
                EXPECT_FALSE(translated.isEmpty())
                    << file.fileName().toStdString() << ": " << text.toStdString();
                ++texts;
            }
        }
    }
    EXPECT_GT(texts, 50);
}
