#include "gallery/files/FileEdits.h"

#include "tests/gallery/files/FilesFolder.h"
#include "tests/qml/ChildProcess.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

class FileEdits : public testing::Test
{
protected:
    FileEdits()
    {
        m_files.Write(u"a.txt"_s, "a");
        m_files.Write(u"b.txt"_s, "b");
    }

    QString Path(const QString& name) const { return m_files.Path(name); }
    void TakeTrashAway()
    {
        m_edits.SetTrash([](const QString&) { return std::optional<QString>(); });
    }

    FilesFolder m_files;
    Gallery::FileEdits m_edits;
    QSignalSpy m_edited{&m_edits, &Gallery::FileEdits::edited};
};

}

TEST_F(FileEdits, ARenamedFileStaysInItsFolder)
{
    EXPECT_TRUE(m_edits.rename(Path(u"a.txt"_s), u"c.txt"_s));

    EXPECT_EQ(m_files.Read(u"c.txt"_s), "a");
    EXPECT_FALSE(m_files.Has(u"a.txt"_s));
    EXPECT_EQ(m_edits.Told(), u"a.txt is now c.txt."_s);
    EXPECT_EQ(m_edited.value(0).value(0), Path(u"c.txt"_s));
}

TEST_F(FileEdits, TheSameNameIsNoChange)
{
    EXPECT_TRUE(m_edits.rename(Path(u"a.txt"_s), u"a.txt"_s));

    EXPECT_EQ(m_edited.count(), 0);
    EXPECT_EQ(m_edits.Told(), QString());
}

TEST_F(FileEdits, ANameThatIsTakenIsRefused)
{
    EXPECT_FALSE(m_edits.rename(Path(u"a.txt"_s), u"b.txt"_s));

    EXPECT_EQ(m_files.Read(u"b.txt"_s), "b");
    EXPECT_TRUE(m_edits.HasFailed());
    EXPECT_EQ(m_edits.Told(), u"There is something else with the name b.txt."_s);
}

TEST_F(FileEdits, OtherCapitalsAreAnotherName)
{
    EXPECT_TRUE(m_edits.rename(Path(u"a.txt"_s), u"A.txt"_s));

    EXPECT_EQ(m_files.Read(u"A.txt"_s), "a");
}

TEST_F(FileEdits, WhatCannotBeANameIsRefused)
{
    m_files.MakeFolder(u"in"_s);

    EXPECT_FALSE(m_edits.rename(Path(u"a.txt"_s), u"in/a.txt"_s));
    EXPECT_EQ(m_edits.Told(), u"in/a.txt cannot be a name."_s);
    EXPECT_FALSE(m_edits.rename(Path(u"a.txt"_s), u".."_s));
    EXPECT_FALSE(m_edits.rename(Path(u"a.txt"_s), u" "_s));
    EXPECT_EQ(m_edits.Told(), u"A name needs at least one letter."_s);
    EXPECT_TRUE(m_files.Has(u"a.txt"_s));
}

TEST_F(FileEdits, AMissingFileCannotBeRenamed)
{
    EXPECT_FALSE(m_edits.rename(Path(u"x.txt"_s), u"y.txt"_s));

    EXPECT_EQ(m_edits.Told(), u"x.txt could not be renamed."_s);
}

TEST_F(FileEdits, RemovingPutsIntoTheTrash)
{
    m_edits.remove(Path(u"a.txt"_s));

    EXPECT_FALSE(m_files.Has(u"a.txt"_s));
    EXPECT_EQ(m_files.Trash(), QStringList{u"a.txt"_s});
    EXPECT_EQ(m_edits.Told(), u"a.txt is in the trash."_s);
    EXPECT_TRUE(m_edits.CanUndo());
    EXPECT_EQ(m_edited.count(), 1);
}

TEST_F(FileEdits, RemovalsAreTakenBackInTurn)
{
    m_edits.remove(Path(u"a.txt"_s));
    m_edits.remove(Path(u"b.txt"_s));

    m_edits.undo();
    EXPECT_EQ(m_files.Read(u"b.txt"_s), "b");
    EXPECT_EQ(m_edits.Told(), u"b.txt is back."_s);

    m_edits.undo();
    EXPECT_EQ(m_files.Read(u"a.txt"_s), "a");
    EXPECT_FALSE(m_edits.CanUndo());
    EXPECT_EQ(m_edited.last().value(0), Path(u"a.txt"_s));
}

TEST_F(FileEdits, ATakenBackFileLeavesNothingInTheTrash)
{
    m_edits.remove(Path(u"a.txt"_s));
    ASSERT_EQ(m_files.TrashNotes(), QStringList{u"a.txt.trashinfo"_s});

    m_edits.undo();

    EXPECT_EQ(m_files.Trash(), QStringList());
    EXPECT_EQ(m_files.TrashNotes(), QStringList());
}

TEST_F(FileEdits, AFolderComesBackWithAllThatIsInIt)
{
    m_files.MakeFolder(u"in"_s);
    m_files.Write(u"in/c.txt"_s, "c");

    m_edits.remove(Path(u"in"_s));
    EXPECT_FALSE(m_files.Has(u"in"_s));
    m_edits.undo();

    EXPECT_EQ(m_files.Read(u"in/c.txt"_s), "c");
}

TEST_F(FileEdits, AFileDoesNotComeBackOverAnother)
{
    m_edits.remove(Path(u"a.txt"_s));
    m_files.Write(u"a.txt"_s, "new");

    m_edits.undo();

    EXPECT_EQ(m_files.Read(u"a.txt"_s), "new");
    EXPECT_EQ(m_edits.Told(), u"a.txt stays in the trash: something else has its name now."_s);
    EXPECT_TRUE(m_edits.CanUndo());
}

TEST_F(FileEdits, AnEmptiedTrashHasNothingToTakeBack)
{
    m_edits.remove(Path(u"a.txt"_s));
    ASSERT_TRUE(QFile::remove(m_files.TrashPath(u"a.txt"_s)));

    m_edits.undo();

    EXPECT_EQ(m_edits.Told(), u"a.txt is not in the trash any more."_s);
    EXPECT_FALSE(m_edits.CanUndo());
}

TEST_F(FileEdits, WithoutARemovalUndoDoesNothing)
{
    m_edits.undo();

    EXPECT_EQ(m_edits.Told(), QString());
}

TEST_F(FileEdits, AMissingFileCannotBeRemoved)
{
    m_edits.remove(Path(u"x.txt"_s));

    EXPECT_EQ(m_edits.Told(), u"x.txt is not there any more."_s);
    EXPECT_TRUE(m_edits.HasFailed());
}

TEST_F(FileEdits, WithoutATrashItAsksFirst)
{
    TakeTrashAway();

    m_edits.remove(Path(u"a.txt"_s));

    EXPECT_EQ(m_edits.Question(),
              u"There is no trash for a.txt. Remove it for good? That cannot be undone."_s);
    EXPECT_TRUE(m_files.Has(u"a.txt"_s));
}

TEST_F(FileEdits, RemovedForGoodCannotBeTakenBack)
{
    TakeTrashAway();
    m_edits.remove(Path(u"a.txt"_s));

    m_edits.removeForGood();

    EXPECT_FALSE(m_files.Has(u"a.txt"_s));
    EXPECT_FALSE(m_edits.CanUndo());
    EXPECT_EQ(m_edits.Told(), u"a.txt is removed for good."_s);
    EXPECT_EQ(m_edits.Question(), QString());
}

TEST_F(FileEdits, WithoutAQuestionNothingIsRemovedForGood)
{
    m_edits.removeForGood();

    EXPECT_EQ(m_edited.count(), 0);
}

TEST_F(FileEdits, TheQuestionCanBeDeclined)
{
    TakeTrashAway();
    m_edits.remove(Path(u"a.txt"_s));

    m_edits.keep();
    m_edits.removeForGood();

    EXPECT_TRUE(m_files.Has(u"a.txt"_s));
    EXPECT_EQ(m_edits.Question(), QString());
}

TEST_F(FileEdits, AFolderIsNeverRemovedForGood)
{
    TakeTrashAway();
    m_files.MakeFolder(u"in"_s);

    m_edits.remove(Path(u"in"_s));

    EXPECT_EQ(m_edits.Question(), QString());
    EXPECT_EQ(m_edits.Told(), u"in stays: there is no trash for it, and folders are not removed for good."_s);
    EXPECT_TRUE(m_files.Has(u"in"_s));
}

TEST_F(FileEdits, AFileInAClosedFolderStays)
{
    const QString folder = m_files.MakeFolder(u"in"_s);
    m_files.Write(u"in/c.txt"_s);
    ASSERT_TRUE(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));

    const std::string told = in_child([this] {
        become_ordinary_user();
        m_edits.remove(Path(u"in/c.txt"_s));
        return m_edits.Told().toStdString();
    });

    EXPECT_EQ(told, "c.txt stays: nothing can be changed in its folder.");
    EXPECT_TRUE(m_files.Has(u"in/c.txt"_s));
    EXPECT_TRUE(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}
