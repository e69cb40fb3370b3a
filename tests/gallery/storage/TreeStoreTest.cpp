#include "gallery/storage/TreeStore.h"

#include "system/CVqVariant.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::TreeStore;

namespace {

class TreeStoreTest : public testing::Test
{
protected:
    TreeStoreTest() { m_tree.Append(CVqVariant(7u, VQ_TEXT("Number"))); }

    QStringList Names() const { return QDir(m_folder.path()).entryList(QDir::Files, QDir::Name); }

    void Damage()
    {
        QFile file(m_folder.filePath(u"menus.cbor"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("broken");
    }

    QTemporaryDir m_folder;
    TreeStore m_store{m_folder.path(), u"menus"_s};
    CVqVariant m_tree;
};

}

TEST_F(TreeStoreTest, AnEmptyFolderHasNothing)
{
    EXPECT_EQ(m_store.Read(m_tree), TreeStore::Found::Nothing);
    EXPECT_EQ(m_tree.GetCount(), 1);
}

TEST_F(TreeStoreTest, WhatWasWrittenIsRead)
{
    EXPECT_EQ(m_store.Write(m_tree), QString());

    CVqVariant read;
    EXPECT_EQ(m_store.Read(read), TreeStore::Found::Tree);
    EXPECT_EQ(read[VQ_TEXT("Number")].GetVq_uint32(nullptr), 7u);
    EXPECT_EQ(Names(), QStringList{u"menus.cbor"_s});
}

TEST_F(TreeStoreTest, AFileThatIsNoneIsDamage)
{
    Damage();

    EXPECT_EQ(m_store.Read(m_tree), TreeStore::Found::Damage);
    EXPECT_EQ(m_tree.GetCount(), 1);
}

TEST_F(TreeStoreTest, ALinkToNowhereIsDamage)
{
    QFile::link(m_folder.filePath(u"nowhere"_s), m_folder.filePath(u"menus.cbor"_s));

    EXPECT_EQ(m_store.Read(m_tree), TreeStore::Found::Damage);
}

TEST_F(TreeStoreTest, WhatIsSetAsideStaysAsItIs)
{
    Damage();

    EXPECT_EQ(m_store.SetAside(), u"menus-damaged-1.cbor"_s);

    EXPECT_EQ(Names(), QStringList{u"menus-damaged-1.cbor"_s});
    QFile file(m_folder.filePath(u"menus-damaged-1.cbor"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "broken");
}

TEST_F(TreeStoreTest, NothingIsSetAsideOverAnother)
{
    for (const QString& name : {u"menus-damaged-1.cbor"_s, u"menus-damaged-2.cbor"_s}) {
        Damage();
        EXPECT_EQ(m_store.SetAside(), name);
    }
}

TEST_F(TreeStoreTest, WithAThousandFilesSetAsideNoOtherIs)
{
    for (int i = 1; i <= 1000; ++i) {
        QFile file(m_folder.filePath(u"menus-damaged-%1.cbor"_s.arg(i)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    Damage();

    EXPECT_EQ(m_store.SetAside(), QString());

    EXPECT_EQ(Names().size(), 1001);
}

TEST_F(TreeStoreTest, WithoutAFileNothingIsSetAside)
{
    EXPECT_EQ(m_store.SetAside(), QString());
}

TEST_F(TreeStoreTest, TwoFilesOfAFolderAreKeptApart)
{
    const TreeStore toolbars(m_folder.path(), u"toolbars"_s);
    m_store.Write(m_tree);

    EXPECT_EQ(toolbars.Read(m_tree), TreeStore::Found::Nothing);
    EXPECT_EQ(toolbars.Write(m_tree), QString());
    EXPECT_EQ(toolbars.SetAside(), u"toolbars-damaged-1.cbor"_s);
    EXPECT_EQ(Names(), (QStringList{u"menus.cbor"_s, u"toolbars-damaged-1.cbor"_s}));
}

TEST_F(TreeStoreTest, AFolderThatCannotBeMadeIsTold)
{
    Damage();

    EXPECT_EQ(TreeStore(m_folder.filePath(u"menus.cbor"_s), u"menus"_s).Write(m_tree),
              u"the folder cannot be made"_s);
}
