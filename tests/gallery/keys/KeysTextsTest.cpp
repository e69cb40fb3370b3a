#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct TextRow
{
    const char* name;
    const char* context;
    QString file;
    int texts;
};

QString content(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// The texts of all qsTr() and tr() calls; one may be written as several literals in a row.
QSet<QString> texts_in(const QString& source)
{
    static const QRegularExpression call(uR"x(\b(?:qsTr|tr)\(\s*"((?:[^"]|"\s*")*)")x"_s);
    static const QRegularExpression seam(uR"x("\s*")x"_s);
    QSet<QString> texts;
    for (auto match = call.globalMatch(source); match.hasNext();)
        texts << match.next().captured(1).remove(seam);
    return texts;
}

QString compiled(const QString& name)
{
    return u":/qt/qml/K7/Arbor/Gallery/"_s + name;
}

QString written(const QString& name)
{
    return QStringLiteral(ARBOR_GALLERY_SOURCES "/") + name;
}

class KeysTexts : public testing::TestWithParam<TextRow>
{ };

}

TEST_P(KeysTexts, AreInGermanToo)
{
    QTranslator german;
    ASSERT_TRUE(german.load(u":/i18n/gallery_de.qm"_s));

    const QSet<QString> texts = texts_in(content(GetParam().file));

    EXPECT_EQ(texts.size(), GetParam().texts);
    for (const QString& text : texts) {
        const QString translated = german.translate(GetParam().context, text.toUtf8().constData());
        EXPECT_FALSE(translated.isEmpty()) << text.toStdString();
        EXPECT_EQ(translated.count(u'%'), text.count(u'%')) << text.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Gallery, KeysTexts,
    testing::Values(TextRow{"Page", "KeysPage", compiled(u"pages/KeysPage.qml"_s), 3},
                    TextRow{"List", "CommandList", compiled(u"CommandList.qml"_s), 2},
                    TextRow{"Field", "KeyField", compiled(u"KeyField.qml"_s), 4},
                    TextRow{"Panel", "KeyPanel", compiled(u"KeyPanel.qml"_s), 12},
                    TextRow{"Strip", "NoticeStrip", compiled(u"NoticeStrip.qml"_s), 1},
                    TextRow{"Editor", "Gallery::KeyEditor", written(u"keys/KeyEditor.cpp"_s), 9},
                    TextRow{"Keeper", "Gallery::MenuKeeper", written(u"storage/MenuKeeper.cpp"_s), 3}),
    [](const auto& row) { return row.param.name; });
