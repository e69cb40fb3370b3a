#include "tests/gallery/ProgramRuns.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// Runs of the program itself that keep their toolbars in one folder, driven by keys and mouse.
class ArborGalleryToolbars : public ProgramRuns
{
protected:
    /// What each step did, in the order of the steps.
    QStringList Drive(const QStringList& steps) const
    {
        const ProgramOutcome outcome = Run({u"--data"_s, m_folder.path(), u"--keys"_s, steps.join(u',')});
        EXPECT_EQ(outcome.code, 0);
        EXPECT_EQ(outcome.errors, QString());
        EXPECT_EQ(outcome.lines.size(), steps.size());
        QStringList told;
        for (const QString& line : outcome.lines)
            told << line.section(u" -> "_s, 1);
        return told;
    }

    /// Whether a button shows on its toolbar in the next run.
    bool Shows(const QString& button) const
    {
        return Drive({u"@click "_s + button}).value(0) != u"nothing to see"_s;
    }

    /// The stored toolbars for people; empty when there are none.
    QString Printed() const
    {
        const ProgramOutcome outcome = Run({u"--print-toolbars"_s, m_folder.filePath(u"toolbars.cbor"_s)});
        return outcome.code == 0 ? outcome.lines.join(u'\n') : QString();
    }
};

/// From the context menu of a button to the dialog.
QStringList begin()
{
    return {u"@right main/EditCut"_s, u"@click toolbarMenuCustomise"_s};
}

/// Hides Cut, moves Paste to the front, adds Sepia and a separator, each in front of the last.
QStringList changes()
{
    return {u"@right main/EditCut"_s,
            u"@click toolbarMenuHide"_s,
            u"@drag main/EditPaste main/FileNew:10"_s,
            u"@click setupSearch"_s,
            u"S"_s,
            u"e"_s,
            u"p"_s,
            u"i"_s,
            u"a"_s,
            u"Enter"_s,
            u"@click setupSeparator"_s};
}

}

TEST_F(ArborGalleryToolbars, ButtonsRunTheCommandsOfTheMenu)
{
    const QStringList told = Drive({u"@click main/FileSave"_s, u"@click tools/Tool(crop)"_s,
                                    u"@click text/ViewGrid"_s, u"@click main/EditUndo"_s});

    EXPECT_EQ(told,
              (QStringList{u"1015 FileSave"_s, u"1706 Tool(crop)"_s, u"1814 ViewGrid"_s, u"no command"_s}));
}

TEST_F(ArborGalleryToolbars, AnArrowOpensItsPopup)
{
    EXPECT_EQ(Drive({u"@click main/FileOpen:90"_s}), QStringList{u"opens popup Open Recent"_s});
}

TEST_F(ArborGalleryToolbars, TheColourFieldOpensTheColours)
{
    EXPECT_EQ(Drive({u"@click colourField"_s}), QStringList{u"opens popup Foreground Colour"_s});
}

TEST_F(ArborGalleryToolbars, TheirPlacesAreMirroredFromRightToLeft)
{
    const ProgramOutcome outcome
        = Run({u"--rtl"_s, u"--keys"_s, u"@click main/FileSave,@click main/FileOpen:10"_s});

    EXPECT_EQ(outcome.lines,
              (QStringList{u"@click main/FileSave -> 1015 FileSave"_s,
                           u"@click main/FileOpen:10 -> opens popup Open Recent"_s}));
}

TEST_F(ArborGalleryToolbars, TheKeyOfTheToolStripHidesTheTools)
{
    EXPECT_EQ(Drive({u"F5"_s, u"@click tools/Tool(crop)"_s, u"F5"_s, u"@click tools/Tool(crop)"_s}),
              (QStringList{u"1831 ViewToolStrip"_s, u"nothing to see"_s, u"1831 ViewToolStrip"_s,
                           u"1706 Tool(crop)"_s}));
}

TEST_F(ArborGalleryToolbars, OtherPagesHaveTheMainBarAlone)
{
    const ProgramOutcome outcome
        = Run({u"--page"_s, u"ListsPage"_s, u"--keys"_s,
               u"@click tools/Tool(crop),@click text/ViewGrid,@click main/FileSave"_s});

    EXPECT_EQ(outcome.lines,
              (QStringList{u"@click tools/Tool(crop) -> nothing to see"_s,
                           u"@click text/ViewGrid -> nothing to see"_s,
                           u"@click main/FileSave -> 1015 FileSave"_s}));
}

TEST_F(ArborGalleryToolbars, NothingIsStoredBeforeSomethingIsChanged)
{
    Drive({u"@click main/FileSave"_s});

    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList{u"menus.cbor"_s});
}

TEST_F(ArborGalleryToolbars, CustomisedToolbarsAreAsTheyWereLeft)
{
    Drive(begin() + changes() + QStringList{u"@click setupDone"_s});

    const QString printed = Printed();
    EXPECT_FALSE(Shows(u"main/EditCut"_s));
    EXPECT_EQ(Drive({u"@click main/AdjustSepia"_s}), QStringList{u"1503 AdjustSepia"_s});
    EXPECT_EQ(Drive({u"@click main/EditPaste"_s}), QStringList{u"1107 EditPaste"_s});
    for (const QString& name :
         {u"\"a00\""_s, u"\"a01AdjustSepia\""_s, u"\"a02EditPaste\""_s, u"\"a03FileNew\""_s})
        EXPECT_TRUE(printed.contains(name)) << name.toStdString();
    EXPECT_EQ(printed.count(u"\"Separator\", \"text\""_s), 8);
    EXPECT_EQ(Printed(), printed);
}

TEST_F(ArborGalleryToolbars, AButtonThatWasDraggedToAnotherToolbarIsThereInTheNextRun)
{
    Drive(begin() + QStringList{u"@drag main/EditCopy text/ViewGrid:10"_s, u"@click setupDone"_s});

    EXPECT_FALSE(Shows(u"main/EditCopy"_s));
    EXPECT_EQ(Drive({u"@click text/EditCopy"_s}), QStringList{u"1105 EditCopy"_s});
}

TEST_F(ArborGalleryToolbars, AfterAResetTheFactoryToolbarsAreThereInTheNextRun)
{
    Drive(begin() + changes() + QStringList{u"@click setupDone"_s});
    ASSERT_FALSE(Shows(u"main/EditCut"_s));

    Drive({u"@right main/EditCopy"_s, u"@click toolbarMenuCustomise"_s, u"@click setupReset"_s,
           u"@click setupDone"_s});

    EXPECT_EQ(Drive({u"@click main/EditCut"_s, u"@click main/AdjustSepia"_s}),
              (QStringList{u"1104 EditCut"_s, u"nothing to see"_s}));
    EXPECT_EQ(Printed().count(u"\"level\""_s), 4); // the file and three names, without a record
}

TEST_F(ArborGalleryToolbars, WhatIsCancelledIsAsItWas)
{
    const QStringList told
        = Drive(begin() + changes() + QStringList{u"@click setupCancel"_s, u"@click main/EditCut"_s});

    EXPECT_EQ(told.last(), u"1104 EditCut"_s);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList{u"menus.cbor"_s});
}

TEST_F(ArborGalleryToolbars, TheKeyboardCustomisesToo)
{
    Drive(begin()
          + QStringList{u"@click main/EditCopy"_s, u"Alt+Left"_s, u"Insert"_s, u"End"_s, u"Home"_s,
                        u"Delete"_s, u"@click setupDone"_s});

    EXPECT_FALSE(Shows(u"main/FileNew"_s));
    EXPECT_GE(Printed().indexOf(u"EditCopy\""_s), 0);
    EXPECT_LT(Printed().indexOf(u"EditCopy\""_s), Printed().indexOf(u"EditCut\""_s));
    EXPECT_EQ(Printed().count(u"\"Separator\", \"text\""_s), 8);
}

TEST_F(ArborGalleryToolbars, AButtonThatWasHiddenByARightClickStaysHidden)
{
    Drive({u"@right text/ViewGuides"_s, u"@click toolbarMenuHide"_s});

    EXPECT_FALSE(Shows(u"text/ViewGuides"_s));
    EXPECT_TRUE(Shows(u"text/ViewGrid"_s));
}

TEST_F(ArborGalleryToolbars, ADamagedFileIsSetAsideWithOneSentence)
{
    QFile file(m_folder.filePath(u"toolbars.cbor"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("broken");
    file.close();

    const ProgramOutcome outcome
        = Run({u"--data"_s, m_folder.path(), u"--keys"_s, u"@click main/FileSave"_s});

    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(
        outcome.errors,
        u"The stored toolbars cannot be read, so they were set aside as toolbars-damaged-1.cbor and the factory toolbars loaded.\n"_s);
    EXPECT_EQ(outcome.lines, QStringList{u"@click main/FileSave -> 1015 FileSave"_s});
}

TEST_F(ArborGalleryToolbars, ABadToolbarFileGivesOneSentenceAndTwo)
{
    QFile file(m_folder.filePath(u"bad.json"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{ \"format\": 1,\n\"toolbars\": 3 }");
    file.close();

    const ProgramOutcome outcome = Run({u"--toolbars"_s, file.fileName(), u"--keys"_s, u"F1"_s});

    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.errors, file.fileName() + u", line 2: \"toolbars\" is not a list.\n"_s);
}

TEST_F(ArborGalleryToolbars, OtherToolbarsAreShown)
{
    QFile file(m_folder.filePath(u"bars.json"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"({ "format": 1, "toolbars": [ { "name": "main", "text": "Main", "controls": [
        { "command": "AdjustSepia" } ] } ] })");
    file.close();

    const ProgramOutcome outcome = Run({u"--toolbars"_s, file.fileName(), u"--keys"_s,
                                        u"@click main/AdjustSepia,@click tools/Tool(crop)"_s});

    EXPECT_EQ(outcome.lines,
              (QStringList{u"@click main/AdjustSepia -> 1503 AdjustSepia"_s,
                           u"@click tools/Tool(crop) -> nothing to see"_s}));
    EXPECT_EQ(outcome.errors, QString());
}

TEST_F(ArborGalleryToolbars, ScriptsLeaveTheUsersFolderAlone)
{
    Run({u"--keys"_s, u"@right main/EditCut,@click toolbarMenuHide"_s});

    EXPECT_TRUE(QDir(m_users.path()).isEmpty());
}
