#include "gallery/files/Folder.h"

#include "tests/gallery/files/FilesFolder.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_longest_wait = 10000; // ms

class FolderInStep : public testing::Test
{
protected:
    QStringList Names()
    {
        QStringList names;
        for (int row = 0; row < m_folder.Rows()->rowCount(); ++row)
            names << m_folder.Rows()->index(row).data(Gallery::FolderModel::NameRole).toString();
        names.sort();
        return names;
    }

    bool Becomes(const QStringList& names)
    {
        return QTest::qWaitFor([this, &names] { return Names() == names; }, g_longest_wait);
    }

    FilesFolder m_files; // before the folder, which begins there
    Gallery::Folder m_folder;
};

}

TEST_F(FolderInStep, BeginsInTheUsersOwnFolder)
{
    EXPECT_EQ(m_folder.Path(), m_files.Path());
    EXPECT_TRUE(m_folder.IsThere());
}

TEST_F(FolderInStep, FilesComeAndGoByThemselves)
{
    m_files.Write(u"a.txt"_s);
    m_files.Write(u"b.txt"_s);
    EXPECT_TRUE(Becomes({u"a.txt"_s, u"b.txt"_s}));

    ASSERT_TRUE(QFile::remove(m_files.Path(u"a.txt"_s)));
    EXPECT_TRUE(Becomes({u"b.txt"_s}));
}

TEST_F(FolderInStep, AnotherFolderShowsAtOnce)
{
    m_files.MakeFolder(u"in"_s);
    m_files.Write(u"in/a.txt"_s);
    QSignalSpy paths(&m_folder, &Gallery::Folder::PathChanged);

    EXPECT_TRUE(m_folder.go(m_files.Path() + u"/./in/"_s));

    EXPECT_EQ(m_folder.Path(), m_files.Path(u"in"_s));
    EXPECT_EQ(Names(), QStringList{u"a.txt"_s});
    EXPECT_EQ(paths.count(), 1);
}

TEST_F(FolderInStep, WhatIsNoFolderChangesNothing)
{
    m_files.Write(u"a.txt"_s);

    EXPECT_FALSE(m_folder.go(m_files.Path(u"nowhere"_s)));
    EXPECT_FALSE(m_folder.go(m_files.Path(u"a.txt"_s)));
    EXPECT_FALSE(m_folder.go({}));

    EXPECT_EQ(m_folder.Path(), m_files.Path());
}

TEST_F(FolderInStep, WordsChooseNames)
{
    m_files.Write(u"a.png"_s);
    m_files.Write(u"b.txt"_s);
    QSignalSpy words(&m_folder, &Gallery::Folder::WordsChanged);

    m_folder.SetWords(u"*.png"_s);
    m_folder.SetWords(u"*.png"_s);

    EXPECT_EQ(Names(), QStringList{u"a.png"_s});
    EXPECT_EQ(words.count(), 1);
}

TEST_F(FolderInStep, AFolderThatIsGoneIsEmptyUntilItIsBack)
{
    m_folder.go(m_files.MakeFolder(u"in"_s));

    ASSERT_TRUE(QDir().rmdir(m_files.Path(u"in"_s)));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_folder.IsThere(); }, g_longest_wait));

    m_files.MakeFolder(u"in"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_folder.IsThere(); }, g_longest_wait));
    EXPECT_EQ(m_folder.Path(), m_files.Path(u"in"_s));
}

TEST_F(FolderInStep, NewsOfOtherFilesLeaveRowsAlone)
{
    m_files.Write(u"a.txt"_s);
    m_folder.refresh();
    QSignalSpy removals(m_folder.Rows(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy resets(m_folder.Rows(), &QAbstractItemModel::modelReset);

    m_files.Write(u"b.txt"_s);
    ASSERT_TRUE(Becomes({u"a.txt"_s, u"b.txt"_s}));

    EXPECT_EQ(removals.count() + resets.count(), 0);
}
