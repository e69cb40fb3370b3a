#include "gallery/storage/StoredTree.h"

#include "system/CVqVariant.h"
#include "tests/gallery/FileSizeLimit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::ReadStoredTree;
using Gallery::WriteStoredTree;

namespace {

CVqVariant nested_levels(int count)
{
    CVqVariant tree;
    CVqVariant* level = &tree;
    for (int i = 1; i < count; ++i)
        level = &level->Append(CVqVariant());
    level->Append(CVqVariant(5u, VQ_TEXT("Id")));
    return tree;
}

class StoredTree : public testing::Test
{
protected:
    StoredTree() { m_tree.Append(CVqVariant(5u, VQ_TEXT("Id"))); }

    QString Path(const QString& name) const { return m_folder.filePath(name); }

    void Put(const QString& name, const QByteArray& bytes)
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray Content(const QString& name)
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir m_folder;
    CVqVariant m_tree;
};

}

TEST_F(StoredTree, IsReadAsItWasWritten)
{
    EXPECT_EQ(WriteStoredTree(Path(u"a.cbor"_s), m_tree), QString());

    CVqVariant read;
    EXPECT_EQ(ReadStoredTree(Path(u"a.cbor"_s), read), QString());
    EXPECT_EQ(read[VQ_TEXT("Id")].GetVq_uint32(nullptr), 5u);
}

TEST_F(StoredTree, FoldersAreMade)
{
    EXPECT_EQ(WriteStoredTree(Path(u"x/y/a.cbor"_s), m_tree), QString());

    EXPECT_TRUE(QFile::exists(Path(u"x/y/a.cbor"_s)));
}

TEST_F(StoredTree, AFolderThatCannotBeMadeIsTold)
{
    Put(u"x"_s, "a file");

    EXPECT_EQ(WriteStoredTree(Path(u"x/a.cbor"_s), m_tree), u"the folder cannot be made"_s);
}

TEST_F(StoredTree, AFolderInPlaceOfTheFileIsNotWrittenOver)
{
    QDir(m_folder.path()).mkdir(u"a.cbor"_s);

    EXPECT_NE(WriteStoredTree(Path(u"a.cbor"_s), m_tree), QString());
}

TEST_F(StoredTree, ATreeWithTooManyLevelsLeavesTheFileThatIsThere)
{
    WriteStoredTree(Path(u"a.cbor"_s), m_tree);
    const QByteArray before = Content(u"a.cbor"_s);

    EXPECT_EQ(WriteStoredTree(Path(u"a.cbor"_s), nested_levels(4001)), u"it has too many levels"_s);

    EXPECT_EQ(Content(u"a.cbor"_s), before);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList{u"a.cbor"_s});
}

#ifdef Q_OS_UNIX
TEST_F(StoredTree, ATreeThatDoesNotFitOnTheDiskLeavesTheFileThatIsThere)
{
    WriteStoredTree(Path(u"a.cbor"_s), m_tree);
    const QByteArray before = Content(u"a.cbor"_s);
    QString reason;
    {
        const FileSizeLimit limit(1000);
        reason = WriteStoredTree(Path(u"a.cbor"_s), nested_levels(2000));
    }

    EXPECT_NE(reason, QString());
    EXPECT_EQ(Content(u"a.cbor"_s), before);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList{u"a.cbor"_s});
}
#endif

TEST_F(StoredTree, AMissingFileIsNotRead)
{
    EXPECT_EQ(ReadStoredTree(Path(u"a.cbor"_s), m_tree), u"No such file or directory"_s);
    EXPECT_EQ(m_tree.GetCount(), 1);
}

TEST_F(StoredTree, AFolderIsNotRead)
{
    EXPECT_EQ(ReadStoredTree(m_folder.path(), m_tree), u"it is a folder"_s);
}

#ifdef Q_OS_UNIX
TEST_F(StoredTree, ADeviceIsNotRead)
{
    EXPECT_EQ(ReadStoredTree(u"/dev/zero"_s, m_tree), u"it is not a file"_s);
}
#endif

TEST_F(StoredTree, AFileOfMoreThan16MiBIsNotRead)
{
    QFile file(Path(u"a.cbor"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize((16 << 20) + 1));

    EXPECT_EQ(ReadStoredTree(file.fileName(), m_tree), u"it is too large"_s);
}

TEST_F(StoredTree, ACutFileIsNotRead)
{
    WriteStoredTree(Path(u"a.cbor"_s), m_tree);
    Put(u"a.cbor"_s, Content(u"a.cbor"_s).chopped(1));

    EXPECT_EQ(ReadStoredTree(Path(u"a.cbor"_s), m_tree), u"it is cut short"_s);
}

TEST_F(StoredTree, AFileWithMoreBehindItIsNotRead)
{
    WriteStoredTree(Path(u"a.cbor"_s), m_tree);
    Put(u"a.cbor"_s, Content(u"a.cbor"_s) + '\0');

    EXPECT_EQ(ReadStoredTree(Path(u"a.cbor"_s), m_tree), u"there is more behind its end"_s);
}

TEST_F(StoredTree, AnotherKindOfFileIsNotRead)
{
    Put(u"a.cbor"_s, "\xFF\xD8\xFF"); // a JPEG begins so

    EXPECT_EQ(ReadStoredTree(Path(u"a.cbor"_s), m_tree), u"it is not in the stored form"_s);
}

TEST_F(StoredTree, AFileWithTooManyLevelsIsNotRead)
{
    Put(u"a.cbor"_s, QByteArray(5000, '\x81')); // lists in lists

    EXPECT_EQ(ReadStoredTree(Path(u"a.cbor"_s), m_tree), u"it has too many levels"_s);
    EXPECT_EQ(m_tree.GetCount(), 1);
}
