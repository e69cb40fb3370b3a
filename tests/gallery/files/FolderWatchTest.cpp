#include "gallery/files/FolderWatch.h"

#include "tests/gallery/files/FilesFolder.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using Gallery::FolderWatch;

namespace {

constexpr int g_longest_wait = 10000; // ms

class FolderWatchTells : public testing::Test
{
protected:
    FolderWatchTells() { EXPECT_TRUE(m_changes.isValid()); }

    FilesFolder m_files;
    FolderWatch m_watch;
    QSignalSpy m_changes{&m_watch, &FolderWatch::Changed};
};

}

TEST_F(FolderWatchTells, WhenAFileComes)
{
    m_watch.Watch(m_files.Path());

    m_files.Write(u"a.txt"_s);

    EXPECT_TRUE(m_changes.wait(g_longest_wait));
}

TEST_F(FolderWatchTells, ManyChangesAtOnceOnce)
{
    m_watch.Watch(m_files.Path());

    for (int i = 0; i < 20; ++i)
        m_files.Write(QString::number(i));

    EXPECT_TRUE(m_changes.wait(g_longest_wait));
    EXPECT_EQ(m_changes.count(), 1);
}

TEST_F(FolderWatchTells, WhenThePermissionsChange)
{
    m_watch.Watch(m_files.Path());

    ASSERT_TRUE(QFile::setPermissions(m_files.Path(), QFile::ReadOwner | QFile::ExeOwner));

    EXPECT_TRUE(m_changes.wait(g_longest_wait));
    EXPECT_TRUE(
        QFile::setPermissions(m_files.Path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

TEST_F(FolderWatchTells, WhenAFolderThatWasMissingComes)
{
    m_watch.Watch(m_files.Path(u"a/b"_s));

    m_files.MakeFolder(u"a/b"_s);
    ASSERT_TRUE(m_changes.wait(g_longest_wait));

    m_files.Write(u"a/b/c.txt"_s);
    EXPECT_TRUE(m_changes.wait(g_longest_wait));
}

TEST_F(FolderWatchTells, WhenTheFolderGoesAndWhenItIsBack)
{
    m_watch.Watch(m_files.MakeFolder(u"a"_s));

    ASSERT_TRUE(QDir().rmdir(m_files.Path(u"a"_s)));
    ASSERT_TRUE(m_changes.wait(g_longest_wait));

    m_files.MakeFolder(u"a"_s);
    EXPECT_TRUE(m_changes.wait(g_longest_wait));
}

TEST_F(FolderWatchTells, NothingOfTheFolderBefore)
{
    m_watch.Watch(m_files.MakeFolder(u"a"_s));
    m_watch.Watch(m_files.MakeFolder(u"b"_s));

    m_files.Write(u"a/one.txt"_s);

    FolderWatch other;
    QSignalSpy heard(&other, &FolderWatch::Changed);
    other.Watch(m_files.Path(u"a"_s));
    m_files.Write(u"a/two.txt"_s);
    EXPECT_TRUE(heard.wait(g_longest_wait));
    EXPECT_EQ(m_changes.count(), 0);
}
