#include "gallery/files/WriteCheck.h"

#include "tests/gallery/files/FilesFolder.h"
#include "tests/qml/ChildProcess.h"

#include <QDateTime>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using Gallery::FolderWatch;
using Gallery::WriteCheck;

namespace {

constexpr int g_longest_wait = 10000; // ms

bool comes(const WriteCheck& check, WriteCheck::State state)
{
    return QTest::qWaitFor([&check, state] { return check.GetState() == state; }, g_longest_wait);
}

}

TEST(WriteCheck, NothingIsClosed)
{
    const WriteCheck check;

    EXPECT_EQ(check.GetState(), WriteCheck::Closed);
    EXPECT_EQ(check.Path(), QString());
}

TEST(WriteCheck, TheFirstPathIsAskedAboutAtOnce)
{
    const FilesFolder files;
    WriteCheck check;

    check.SetPath(files.Path());

    EXPECT_EQ(check.GetState(), WriteCheck::Open);
}

TEST(WriteCheck, AMissingFolderCanBeMade)
{
    const FilesFolder files;
    WriteCheck check;

    check.SetPath(files.Path(u"a/b/c"_s));

    EXPECT_EQ(check.GetState(), WriteCheck::Makeable);
    EXPECT_FALSE(files.Has(u"a"_s));
}

TEST(WriteCheck, WhatLiesBelowAFileIsClosed)
{
    const FilesFolder files;
    files.Write(u"a.txt"_s);
    WriteCheck check;

    check.SetPath(files.Path(u"a.txt/b"_s));

    EXPECT_EQ(check.GetState(), WriteCheck::Closed);
}

TEST(WriteCheck, FurtherPathsWaitUntilTheLastOfThemAndTheStateStaysMeanwhile)
{
    const FilesFolder files;
    files.Write(u"f"_s);
    WriteCheck check;
    check.SetPath(files.Path());
    QSignalSpy changes(&check, &WriteCheck::StateChanged);

    check.SetPath(files.Path(u"f/x"_s));
    EXPECT_EQ(check.GetState(), WriteCheck::Open);
    check.SetPath(files.Path(u"new"_s));

    EXPECT_TRUE(comes(check, WriteCheck::Makeable));
    EXPECT_EQ(changes.count(), 1);
}

TEST(WriteCheck, TheSamePathAgainIsNotTold)
{
    const FilesFolder files;
    WriteCheck check;
    check.SetPath(files.Path());
    QSignalSpy paths(&check, &WriteCheck::PathChanged);

    check.SetPath(files.Path());

    EXPECT_EQ(paths.count(), 0);
}

TEST(WriteCheck, FollowsTheFolderAsItComesAndGoes)
{
    const FilesFolder files;
    WriteCheck check;
    check.SetPath(files.Path(u"a"_s));
    ASSERT_EQ(check.GetState(), WriteCheck::Makeable);

    files.MakeFolder(u"a"_s);
    EXPECT_TRUE(comes(check, WriteCheck::Open));

    ASSERT_TRUE(QDir().rmdir(files.Path(u"a"_s)));
    EXPECT_TRUE(comes(check, WriteCheck::Makeable));

    files.Write(u"a"_s);
    EXPECT_TRUE(comes(check, WriteCheck::Closed));
}

TEST(WriteCheck, FilesThatComeAreNoReasonToAskAgain)
{
    const FilesFolder files;
    WriteCheck check;
    check.SetPath(files.Path());
    FolderWatch later; // hears of a change after the check has
    later.Watch(files.Path());
    QSignalSpy heard(&later, &FolderWatch::Changed);

    files.Write(u"a.txt"_s);
    const QDateTime written = QFileInfo(files.Path()).lastModified();
    ASSERT_TRUE(heard.wait(g_longest_wait));

    EXPECT_EQ(QFileInfo(files.Path()).lastModified(), written);
}

TEST(WriteCheck, AFolderThatOnlyItsReadersMayUseIsClosed)
{
    const FilesFolder files;
    const QString folder = files.MakeFolder(u"a"_s);
    ASSERT_TRUE(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));

    const std::string closed = in_child([&folder] {
        become_ordinary_user();
        WriteCheck check;
        check.SetPath(folder);
        return yes_or_no(check.GetState() == WriteCheck::Closed);
    });

    EXPECT_EQ(closed, "yes");
}

TEST(WriteCheck, OtherPermissionsAreNoticed)
{
    const FilesFolder files;
    const QString folder = files.MakeFolder(u"a"_s);

    const std::string noticed = in_child([&folder] {
        become_ordinary_user();
        WriteCheck check;
        check.SetPath(folder);
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
        const bool closed = comes(check, WriteCheck::Closed);
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return yes_or_no(closed && comes(check, WriteCheck::Open));
    });

    EXPECT_EQ(noticed, "yes");
}
