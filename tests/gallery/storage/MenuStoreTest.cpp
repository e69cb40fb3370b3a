#include "gallery/storage/MenuStore.h"

#include "tests/gallery/keys/KeyMenu.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using Gallery::MenuStore;
using Gallery::StoredMenu;

namespace {

class MenuStoreTest : public testing::Test
{
protected:
    MenuStoreTest() { KeyMenu(KeyDocument()).Menu().Save(m_stored.menu); }

    QStringList Names() const { return QDir(m_folder.path()).entryList(QDir::Files, QDir::Name); }

    void Damage()
    {
        QFile file(m_folder.filePath(u"menus.cbor"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("broken");
    }

    QTemporaryDir m_folder;
    MenuStore m_store{m_folder.path()};
    StoredMenu m_stored{u"abc"_s, u"en"_s, {}, {}};
};

}

TEST_F(MenuStoreTest, AnEmptyFolderHasNothing)
{
    EXPECT_EQ(m_store.Read(m_stored), MenuStore::Found::Nothing);
    EXPECT_EQ(m_stored.factory, u"abc"_s);
}

TEST_F(MenuStoreTest, WhatWasWrittenIsRead)
{
    EXPECT_EQ(m_store.Write(m_stored), QString());

    StoredMenu read;
    EXPECT_EQ(m_store.Read(read), MenuStore::Found::Menus);
    EXPECT_EQ(read.factory, u"abc"_s);
    EXPECT_EQ(Names(), QStringList{u"menus.cbor"_s});
}

TEST_F(MenuStoreTest, AFileThatIsNoneIsDamage)
{
    Damage();

    EXPECT_EQ(m_store.Read(m_stored), MenuStore::Found::Damage);
    EXPECT_EQ(m_stored.factory, u"abc"_s);
}

TEST_F(MenuStoreTest, AnotherTreeIsDamage)
{
    m_stored.menu = CVqVariant();
    m_store.Write(m_stored);

    EXPECT_EQ(m_store.Read(m_stored), MenuStore::Found::Damage);
}

TEST_F(MenuStoreTest, ALinkToNowhereIsDamage)
{
    QFile::link(m_folder.filePath(u"nowhere"_s), m_folder.filePath(u"menus.cbor"_s));

    EXPECT_EQ(m_store.Read(m_stored), MenuStore::Found::Damage);
}

TEST_F(MenuStoreTest, WhatIsSetAsideStaysAsItIs)
{
    Damage();

    EXPECT_EQ(m_store.SetAside(), u"menus-damaged-1.cbor"_s);

    EXPECT_EQ(Names(), QStringList{u"menus-damaged-1.cbor"_s});
    QFile file(m_folder.filePath(u"menus-damaged-1.cbor"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "broken");
}

TEST_F(MenuStoreTest, NothingIsSetAsideOverAnother)
{
    for (const QString& name : {u"menus-damaged-1.cbor"_s, u"menus-damaged-2.cbor"_s}) {
        Damage();
        EXPECT_EQ(m_store.SetAside(), name);
    }
}

TEST_F(MenuStoreTest, WithoutAFileNothingIsSetAside)
{
    EXPECT_EQ(m_store.SetAside(), QString());
}

TEST_F(MenuStoreTest, AFolderThatCannotBeMadeIsTold)
{
    Damage();

    EXPECT_EQ(MenuStore(m_folder.filePath(u"menus.cbor"_s)).Write(m_stored), u"the folder cannot be made"_s);
}
