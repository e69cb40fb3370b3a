#include "tests/gallery/ProgramRuns.h"

#include <QDir>
#include <QFile>
#include <QImage>

using namespace Qt::StringLiterals;

namespace {

/// Runs of the program itself that keep their menus in one folder.
class ArborGalleryStored : public ProgramRuns
{
protected:
    ProgramOutcome RunStored(const QStringList& arguments) const
    {
        return Run(QStringList{u"--data"_s, m_folder.path()} + arguments);
    }

    /// Presses `keys` on the page of keys, behind a search for the command "Print...".
    ProgramOutcome RunKeysPage(const QString& keys) const
    {
        return RunStored({u"--page"_s, u"KeysPage"_s, u"--keys"_s, u"P,r,i,n,t,Period,"_s + keys});
    }

    QString File() const { return m_folder.filePath(u"menus.cbor"_s); }

    QStringList Names() const { return QDir(m_folder.path()).entryList(QDir::Files, QDir::Name); }

    void Put(const QByteArray& bytes) const
    {
        QFile file(File());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// The pictures that a run takes of its window.
    QImage Picture(const QString& name, const QStringList& arguments = {}) const
    {
        const QTemporaryDir pictures;
        RunStored(arguments + QStringList{u"--screenshots"_s, pictures.path()});
        return QImage(pictures.filePath(name));
    }
};

/// The status line tells times, which differ.
QRect above_the_status_line()
{
    return {0, 0, 1180, 720};
}

QString damaged_sentence()
{
    return u"The stored menus cannot be read, so they were set aside as menus-damaged-1.cbor and the factory menus loaded.\n"_s;
}

}

TEST_F(ArborGalleryStored, StartsFromItsStoredMenus)
{
    RunStored({u"--keys"_s, u"F1"_s});
    ASSERT_EQ(Names(), QStringList{u"menus.cbor"_s});
    const QString before = Run({u"--print-menus"_s, File()}).lines.join(u'\n');

    const ProgramOutcome second = RunStored({u"--keys"_s, u"Ctrl+S,Alt+F,Esc,Left"_s});

    EXPECT_EQ(second.code, 0) << second.errors.toStdString();
    EXPECT_EQ(second.errors, QString());
    EXPECT_EQ(second.lines.value(0), u"Ctrl+S -> 1015 FileSave"_s);
    EXPECT_EQ(second.lines.value(1), u"Alt+F -> opens popup File"_s);
    EXPECT_EQ(Run({u"--print-menus"_s, File()}).lines.join(u'\n'), before);
}

TEST_F(ArborGalleryStored, ItsStoredMenusShowTheSameImages)
{
    const QImage factory = Picture(u"popup.png"_s);

    const QImage stored = Picture(u"popup.png"_s);

    ASSERT_FALSE(stored.isNull());
    EXPECT_EQ(stored.copy(above_the_status_line()), factory.copy(above_the_status_line()));
    EXPECT_TRUE(Run({u"--print-menus"_s, File()})
                    .lines.join(u'\n')
                    .contains(u"\"EnaBmpResName\", \"text\", \"COPY\""_s));
}

TEST_F(ArborGalleryStored, AnAssignedKeyIsKeptShownAndFires)
{
    const ProgramOutcome first = RunKeysPage(u"Enter,Ctrl+K,Ctrl+K"_s);
    EXPECT_EQ(first.lines.value(7), u"Ctrl+K -> Print... has the key Ctrl+K now."_s);
    EXPECT_EQ(first.lines.value(8), u"Ctrl+K -> 1035 FilePrint"_s);

    const ProgramOutcome second = RunStored({u"--keys"_s, u"Ctrl+K,Ctrl+P"_s});

    EXPECT_EQ(second.lines, (QStringList{u"Ctrl+K -> 1035 FilePrint"_s, u"Ctrl+P -> 1035 FilePrint"_s}));
    EXPECT_TRUE(RunStored({u"--print-keys"_s}).lines.contains(u"1035 FilePrint: Ctrl+P, Ctrl+K"_s));
}

TEST_F(ArborGalleryStored, AKeyThatWasTakenOverStaysTakenOver)
{
    const ProgramOutcome first = RunKeysPage(u"Enter,Ctrl+C,Left,Enter"_s);
    EXPECT_EQ(first.lines.value(7), u"Ctrl+C -> Ctrl+C is the key of Copy."_s);
    EXPECT_EQ(first.lines.value(9),
              u"Enter -> Print... has the key Ctrl+C now, which was taken from Copy."_s);

    const ProgramOutcome second = RunStored({u"--keys"_s, u"Ctrl+C,Ctrl+Insert"_s});

    EXPECT_EQ(second.lines, (QStringList{u"Ctrl+C -> 1035 FilePrint"_s, u"Ctrl+Insert -> 1105 EditCopy"_s}));
    EXPECT_TRUE(RunStored({u"--print-keys"_s}).lines.contains(u"1105 EditCopy: Ctrl+Insert"_s));
}

TEST_F(ArborGalleryStored, AKeyThatWasLeftStaysWhereItWas)
{
    RunKeysPage(u"Enter,Ctrl+C,Enter"_s);

    EXPECT_EQ(RunStored({u"--keys"_s, u"Ctrl+C"_s}).lines, QStringList{u"Ctrl+C -> 1105 EditCopy"_s});
}

TEST_F(ArborGalleryStored, AnAssignedKeyIsThereInGermanToo)
{
    RunKeysPage(u"Enter,Ctrl+K"_s);

    EXPECT_TRUE(RunStored({u"--locale"_s, u"de"_s, u"--print-keys"_s})
                    .lines.contains(u"1035 FilePrint: Strg+P, Strg+K"_s));
    EXPECT_EQ(RunStored({u"--locale"_s, u"de"_s, u"--keys"_s, u"Alt+B"_s}).lines,
              QStringList{u"Alt+B -> opens popup Bild"_s});
}

TEST_F(ArborGalleryStored, ADamagedFileIsSetAsideWithOneSentence)
{
    Put("broken");

    const ProgramOutcome result = RunStored({u"--keys"_s, u"Ctrl+S"_s});

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.errors, damaged_sentence());
    EXPECT_EQ(result.lines, QStringList{u"Ctrl+S -> 1015 FileSave"_s});
    EXPECT_EQ(Names(), (QStringList{u"menus-damaged-1.cbor"_s, u"menus.cbor"_s}));
}

TEST_F(ArborGalleryStored, ADamagedFileIsToldOnTheScreen)
{
    const QImage calm = Picture(u"main.png"_s);
    Put("broken");

    const QImage told = Picture(u"main.png"_s);

    ASSERT_EQ(told.size(), calm.size());
    EXPECT_EQ(calm.copy(0, 0, 1180, 27), told.copy(0, 0, 1180, 27)); // the menu bar
    EXPECT_NE(calm.copy(0, 102, 1180, 30), told.copy(0, 102, 1180, 30));
}

TEST_F(ArborGalleryStored, ACutFileIsDamagedToo)
{
    RunStored({u"--keys"_s, u"F1"_s});
    QFile file(File());
    ASSERT_TRUE(file.resize(file.size() / 2));

    EXPECT_EQ(RunStored({u"--keys"_s, u"Ctrl+S"_s}).errors, damaged_sentence());
}

TEST_F(ArborGalleryStored, AFolderThatCannotBeMadeGivesOneSentenceAndTheKeysHold)
{
    Put("a file where the folder should be");

    const ProgramOutcome result = Run({u"--data"_s, File(), u"--page"_s, u"KeysPage"_s, u"--keys"_s,
                                       u"P,r,i,n,t,Period,Enter,Ctrl+K,Ctrl+K"_s});

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(
        result.errors,
        u"The menus cannot be stored in %1 (the folder cannot be made), so keys that you change last until the program ends.\n"_s
            .arg(File()));
    EXPECT_EQ(result.lines.value(8), u"Ctrl+K -> 1035 FilePrint"_s);
}

TEST_F(ArborGalleryStored, ScriptsLeaveTheUsersFolderAlone)
{
    Run({u"--keys"_s, u"Ctrl+S"_s});
    Run({u"--print-keys"_s});

    EXPECT_TRUE(QDir(m_users.path()).isEmpty());
}

TEST_F(ArborGalleryStored, PrintedKeysAreThoseOfTheUsersFolder)
{
    RunKeysPage(u"Enter,Ctrl+K"_s);
    const QString folder = m_users.filePath(u"arbor_gallery"_s);
    ASSERT_TRUE(QDir().mkpath(folder) && QFile::copy(File(), folder + u"/menus.cbor"_s));

    EXPECT_TRUE(Run({u"--print-keys"_s}).lines.contains(u"1035 FilePrint: Ctrl+P, Ctrl+K"_s));
}

TEST_F(ArborGalleryStored, StoredMenusArePrintedAsJson)
{
    RunStored({u"--keys"_s, u"F1"_s});

    const ProgramOutcome result = Run({u"--print-menus"_s, File()});

    EXPECT_EQ(result.code, 0) << result.errors.toStdString();
    EXPECT_EQ(result.lines.constFirst(), u"[\"\", \"level\", ["_s);
    EXPECT_EQ(result.lines.constLast(), u"]]"_s);
}

TEST_F(ArborGalleryStored, AFileThatIsNoneIsNotPrinted)
{
    Put("\xFF");

    const ProgramOutcome result = Run({u"--print-menus"_s, File()});

    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.errors, File() + u": it is not in the stored form.\n"_s);
    EXPECT_EQ(result.lines, QStringList{QString()});
}
