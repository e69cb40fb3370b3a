#include "gallery/storage/PrintMenus.h"

#include "gallery/storage/StoredMenu.h"
#include "gallery/storage/StoredTree.h"
#include "gallery/storage/TreeStore.h"
#include "system/CVqLiteVariantR.h"
#include "system/VqVariantStorage.h"
#include "tests/gallery/keys/KeyMenu.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using Gallery::PrintedMenus;

namespace {

class PrintMenus : public testing::Test
{
protected:
    QTemporaryDir m_folder;
};

}

TEST_F(PrintMenus, AMenuIsReadableJson)
{
    CVqVariant menu;
    KeyMenu(KeyDocument()).Menu().Save(menu);
    Gallery::WriteStoredTree(m_folder.filePath(u"a.cbor"_s), menu);

    const PrintedMenus printed = Gallery::PrintMenus(m_folder.filePath(u"a.cbor"_s));

    EXPECT_EQ(printed.error, QString());
    EXPECT_TRUE(printed.text.startsWith(u"[\"\", \"level\", ["_s));
    EXPECT_TRUE(printed.text.endsWith(u']'));
    EXPECT_TRUE(printed.text.contains(u"\"Text\", \"text\", \"&Print...\""_s)) << printed.text.toStdString();
    EXPECT_TRUE(QJsonDocument::fromJson(printed.text.toUtf8()).isArray());
}

TEST_F(PrintMenus, AMenuInTheLightweightFormIsReadableJsonToo)
{
    CVqLiteVariantR menu;
    KeyMenu(KeyDocument()).Menu().Save(menu);
    QFile file(m_folder.filePath(u"a.cbor"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(VQ_WriteCbor(file, menu), EVqStorageResult::Ok);
    file.close();

    const PrintedMenus printed = Gallery::PrintMenus(file.fileName());

    EXPECT_EQ(printed.error, QString());
    EXPECT_TRUE(printed.text.contains(u"\"CVqMenu\", \"level\", ["_s)) << printed.text.toStdString();
    EXPECT_TRUE(printed.text.contains(u"\"Text\", \"text\", \"&Print...\""_s)) << printed.text.toStdString();
}

TEST_F(PrintMenus, AFileWithMoreLevelsThanJsonTakesGivesOneSentence)
{
    CVqVariant tree;
    CVqVariant* level = &tree;
    for (int i = 0; i < 1500; ++i)
        level = &level->Append(CVqVariant());
    const QString file = m_folder.filePath(u"a.cbor"_s);
    ASSERT_EQ(Gallery::WriteStoredTree(file, tree), QString());

    const PrintedMenus printed = Gallery::PrintMenus(file);

    EXPECT_EQ(printed.error, file + u": it has too many levels."_s);
    EXPECT_EQ(printed.text, QString());
}

TEST_F(PrintMenus, AFileThatIsNoneGivesOneSentence)
{
    const PrintedMenus printed = Gallery::PrintMenus(m_folder.path());

    EXPECT_EQ(printed.error, m_folder.path() + u": it is a folder."_s);
    EXPECT_EQ(printed.text, QString());
}

TEST_F(PrintMenus, KeysAreThoseThatTheMenuShows)
{
    QString notice;

    const QStringList lines = Gallery::PrintKeys(KeyDocument(), {}, notice);

    EXPECT_EQ(lines,
              (QStringList{u"2 Save: Ctrl+S, F12"_s, u"91 Save: Shift+F12"_s, u"3 Print: Ctrl+P"_s,
                           u"90 Pan: Left"_s}));
    EXPECT_EQ(notice, QString());
}

TEST_F(PrintMenus, KeysAreThoseOfTheFolder)
{
    Gallery::StoredMenu stored{KeyDocument().fingerprint, u"en"_s, {}, {}};
    KeyMenu menu(KeyDocument());
    menu.Menu().SetIdAccelKey(3, KeyOf::CtrlK.flags, KeyOf::CtrlK.key, false);
    menu.Menu().Save(stored.menu);
    Gallery::TreeStore(m_folder.path(), u"menus"_s).Write(ToTree(stored));
    QString notice;

    const QStringList lines = Gallery::PrintKeys(KeyDocument(), {m_folder.path()}, notice);

    EXPECT_TRUE(lines.contains(u"3 Print: Ctrl+K"_s)) << lines.join(u'\n').toStdString();
}

TEST_F(PrintMenus, PrintingKeysWritesNothing)
{
    QString notice;

    Gallery::PrintKeys(KeyDocument(), {m_folder.path()}, notice);

    EXPECT_TRUE(QDir(m_folder.path()).isEmpty());
}
