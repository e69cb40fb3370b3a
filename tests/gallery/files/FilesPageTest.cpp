#include "gallery/files/FileEdits.h"
#include "gallery/files/WriteCheck.h"
#include "tests/gallery/PageFixture.h"
#include "tests/gallery/files/FilesFolder.h"

#include <QDateTime>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_longest_wait = 10000; // ms

// Made before the page, which begins in it.
struct FilledFolder
{
    FilledFolder()
    {
        m_files.Write(u"Boats.png"_s, QByteArray(3000, 'x'));
        m_files.Write(u"harbour.png"_s, QByteArray(10, 'x'));
        m_files.Write(u"notes.txt"_s, QByteArray(200, 'x'));
        m_files.MakeFolder(u"old"_s);
        m_files.Write(u"old/first.png"_s);
    }

    FilesFolder m_files;
};

class FilesPage : protected FilledFolder, public PageFixture
{
protected:
    FilesPage() : PageFixture(u"FilesPage"_s) { Focus(u"fileListView"_s); }

    /// The view settles it when it lays its rows out.
    QString InHand()
    {
        m_gallery.Window().grabWindow();
        return Property(u"fileList"_s, "path").toString().section(u'/', -1);
    }
    int Count() { return Property(u"fileList"_s, "count").toInt(); }

    void TypeName(const QString& name)
    {
        Press(Qt::Key_A, Qt::ControlModifier);
        for (const QChar letter : name)
            QTest::keyClick(&m_gallery.Window(), letter.toLatin1());
    }

    Gallery::FileEdits& Edits() { return *m_gallery.Window().findChild<Gallery::FileEdits*>(u"fileEdits"_s); }
    Gallery::WriteCheck& Check()
    {
        return *m_gallery.Window().findChild<Gallery::WriteCheck*>(u"writeCheck"_s);
    }
};

}

TEST_F(FilesPage, BeginsInTheUsersOwnFolderWithFoldersFirst)
{
    EXPECT_EQ(Text(u"pathField"_s), m_files.Path());
    EXPECT_EQ(Count(), 4);
    EXPECT_EQ(InHand(), u"old"_s);
}

TEST_F(FilesPage, TheKeyboardBeginsInTheList)
{
    Focus(u"pageHolder"_s);

    EXPECT_TRUE(HasFocus(u"fileListView"_s));
}

TEST_F(FilesPage, ArrowsGoThroughTheFiles)
{
    Press(Qt::Key_Down);
    EXPECT_EQ(InHand(), u"Boats.png"_s);
    Press(Qt::Key_End);
    EXPECT_EQ(InHand(), u"notes.txt"_s);
    Press(Qt::Key_Home);
    EXPECT_EQ(InHand(), u"old"_s);
}

TEST_F(FilesPage, EnterOpensAFolderAndBackspaceGoesUpToIt)
{
    Press(Qt::Key_Return);
    EXPECT_EQ(Text(u"pathField"_s), m_files.Path(u"old"_s));
    EXPECT_EQ(InHand(), u"first.png"_s);

    Press(Qt::Key_Backspace);
    EXPECT_EQ(Text(u"pathField"_s), m_files.Path());
    EXPECT_EQ(InHand(), u"old"_s);
}

TEST_F(FilesPage, ADoubleClickOpensAFolderAndTheButtonGoesUp)
{
    const QQuickItem* row = Item(u"file:old"_s);
    const QPoint place = row->mapToScene({80, row->height() / 2}).toPoint();
    QTest::mouseDClick(&m_gallery.Window(), Qt::LeftButton, {}, place);
    EXPECT_EQ(Text(u"pathField"_s), m_files.Path(u"old"_s));

    Click(u"upButton"_s);
    EXPECT_EQ(Text(u"pathField"_s), m_files.Path());
}

TEST_F(FilesPage, AClickTakesAFileInHand)
{
    Focus(u"wordsField"_s);

    Click(u"file:notes.txt"_s);

    EXPECT_EQ(InHand(), u"notes.txt"_s);
    EXPECT_TRUE(HasFocus(u"fileListView"_s));
}

TEST_F(FilesPage, ATypedPathOpensWithEnter)
{
    Type(u"pathField"_s, m_files.Path(u"old"_s));
    Press(Qt::Key_Return);

    EXPECT_EQ(InHand(), u"first.png"_s);
    EXPECT_TRUE(HasFocus(u"fileListView"_s));
}

TEST_F(FilesPage, ATypedPathThatIsNoFolderIsTold)
{
    Type(u"pathField"_s, u"/nowhere"_s);
    Press(Qt::Key_Return);

    EXPECT_EQ(Text(u"toldText"_s), u"There is no folder /nowhere that can be read."_s);
    EXPECT_TRUE(Property(u"pathField"_s, "faulty").toBool());
    EXPECT_EQ(Count(), 4);
}

TEST_F(FilesPage, TypedWordsChooseNames)
{
    Type(u"wordsField"_s, u"*.png"_s);
    EXPECT_EQ(Count(), 2);

    Type(u"wordsField"_s, u"our"_s);
    EXPECT_EQ(Count(), 1);

    Press(Qt::Key_Down);
    EXPECT_TRUE(HasFocus(u"fileListView"_s));
    EXPECT_EQ(InHand(), u"harbour.png"_s);
}

TEST_F(FilesPage, HeadersSortAndTurnTheOrderRound)
{
    Click(u"sizeHeader"_s);
    Press(Qt::Key_Home);
    EXPECT_EQ(InHand(), u"old"_s);
    Press(Qt::Key_Down);
    EXPECT_EQ(InHand(), u"harbour.png"_s);

    Focus(u"sizeHeader"_s);
    Press(Qt::Key_Space);
    Focus(u"fileListView"_s);
    Press(Qt::Key_Home);
    EXPECT_EQ(InHand(), u"Boats.png"_s);
}

TEST_F(FilesPage, SortingKeepsTheFileInHand)
{
    Press(Qt::Key_End);

    Click(u"nameHeader"_s);

    EXPECT_EQ(InHand(), u"notes.txt"_s);
    EXPECT_EQ(Property(u"fileListView"_s, "currentIndex"), 0);
}

TEST_F(FilesPage, F2ChangesANameInItsPlace)
{
    Press(Qt::Key_End);

    Press(Qt::Key_F2);
    EXPECT_TRUE(HasFocus(u"rowNameInput"_s));
    EXPECT_EQ(Text(u"rowNameInput"_s, "selectedText"), u"notes"_s);
    TypeName(u"apples.txt"_s);
    Press(Qt::Key_Return);

    EXPECT_TRUE(m_files.Has(u"apples.txt"_s));
    EXPECT_EQ(InHand(), u"apples.txt"_s);
    EXPECT_TRUE(HasFocus(u"fileListView"_s));
    EXPECT_EQ(Text(u"toldText"_s), u"notes.txt is now apples.txt."_s);
}

TEST_F(FilesPage, EscapeLeavesTheName)
{
    Press(Qt::Key_End);
    Press(Qt::Key_F2);
    TypeName(u"x"_s);

    Press(Qt::Key_Escape);

    EXPECT_TRUE(m_files.Has(u"notes.txt"_s));
    EXPECT_TRUE(HasFocus(u"fileListView"_s));
    Press(Qt::Key_Home);
    EXPECT_EQ(InHand(), u"old"_s);
}

TEST_F(FilesPage, ARefusedNameStaysToBeMended)
{
    Press(Qt::Key_End);
    Press(Qt::Key_F2);
    TypeName(u"harbour.png"_s);

    Press(Qt::Key_Return);

    EXPECT_TRUE(HasFocus(u"rowNameInput"_s));
    EXPECT_EQ(Text(u"toldText"_s), u"There is something else with the name harbour.png."_s);
}

TEST_F(FilesPage, DeletePutsIntoTheTrashAndTheNextFileIsInHand)
{
    Press(Qt::Key_Down);

    Press(Qt::Key_Delete);

    EXPECT_EQ(m_files.Trash(), QStringList{u"Boats.png"_s});
    EXPECT_EQ(InHand(), u"harbour.png"_s);
    EXPECT_EQ(m_gallery.GetSession().LastCommand(), QString());
}

TEST_F(FilesPage, UndoBringsTheFileBackInHand)
{
    Press(Qt::Key_Down);
    Press(Qt::Key_Delete);

    Press(Qt::Key_Z, Qt::ControlModifier);

    EXPECT_EQ(InHand(), u"Boats.png"_s);
    EXPECT_EQ(m_files.Trash(), QStringList());
    EXPECT_EQ(m_gallery.GetSession().LastCommand(), QString());
}

TEST_F(FilesPage, ButtonsRemoveAndTakeBack)
{
    Press(Qt::Key_End);

    Click(u"removeButton"_s);
    EXPECT_FALSE(m_files.Has(u"notes.txt"_s));

    Click(u"undoButton"_s);
    EXPECT_TRUE(m_files.Has(u"notes.txt"_s));
    EXPECT_EQ(InHand(), u"notes.txt"_s);
}

TEST_F(FilesPage, WithoutATrashItAsksAndEscapeKeepsTheFile)
{
    Edits().SetTrash([](const QString&) { return std::optional<QString>(); });
    Press(Qt::Key_End);

    Press(Qt::Key_Delete);
    EXPECT_TRUE(Item(u"removeQuestion"_s)->isVisible());
    EXPECT_TRUE(HasFocus(u"noButton"_s));
    Press(Qt::Key_Escape);

    EXPECT_TRUE(m_files.Has(u"notes.txt"_s));
    EXPECT_FALSE(Item(u"removeQuestion"_s)->isVisible());
    EXPECT_TRUE(HasFocus(u"fileListView"_s));
}

TEST_F(FilesPage, WithoutATrashTheAnswerRemovesForGood)
{
    Edits().SetTrash([](const QString&) { return std::optional<QString>(); });
    Press(Qt::Key_End);
    Press(Qt::Key_Delete);

    Press(Qt::Key_Left);
    Press(Qt::Key_Return);

    EXPECT_FALSE(m_files.Has(u"notes.txt"_s));
    EXPECT_FALSE(Property(u"undoButton"_s, "enabled").toBool());
    EXPECT_EQ(Text(u"toldText"_s), u"notes.txt is removed for good."_s);
}

TEST_F(FilesPage, FilesOfOthersComeByThemselvesAndTheRowInHandStays)
{
    Press(Qt::Key_End);

    m_files.Write(u"a.txt"_s);

    EXPECT_TRUE(QTest::qWaitFor([this] { return Count() == 5; }, g_longest_wait));
    EXPECT_EQ(InHand(), u"notes.txt"_s);
}

TEST_F(FilesPage, TheLightFollowsWhatIsTyped)
{
    EXPECT_EQ(Text(u"writeSentence"_s), u"Files can be written here."_s);

    Type(u"pathField"_s, m_files.Path(u"notes.txt/x"_s));
    EXPECT_TRUE(QTest::qWaitFor([this] { return Check().GetState() == Gallery::WriteCheck::Closed; },
                                g_longest_wait));
    EXPECT_EQ(Text(u"writeSentence"_s), u"Nothing can be written here."_s);

    Type(u"pathField"_s, m_files.Path(u"new"_s));
    EXPECT_TRUE(QTest::qWaitFor([this] { return Check().GetState() == Gallery::WriteCheck::Makeable; },
                                g_longest_wait));
    EXPECT_EQ(Text(u"writeSentence"_s), u"There is no such folder, but it can be made."_s);
}

TEST_F(FilesPage, FactsTellTheTimeOfTheLastChange)
{
    Press(Qt::Key_End);

    const QString changed
        = QFileInfo(m_files.Path(u"notes.txt"_s)).lastModified().toString(u"yyyy-MM-dd HH:mm"_s);
    EXPECT_TRUE(Text(u"factsText"_s).contains(changed)) << Text(u"factsText"_s).toStdString();
}

TEST_F(FilesPage, TabGoesFromTheTopToTheButtons)
{
    Focus(u"upButton"_s);

    for (const QString& next :
         {u"pathField"_s, u"wordsField"_s, u"nameHeader"_s, u"sizeHeader"_s, u"changedHeader"_s,
          u"fileListView"_s, u"renameButton"_s, u"removeButton"_s}) {
        Press(Qt::Key_Tab);
        EXPECT_TRUE(HasFocus(next)) << next.toStdString();
    }
}

TEST_F(FilesPage, RowsAndLightHaveNamesForScreenReaders)
{
    EXPECT_EQ(Accessible(u"fileListView"_s)->role(), QAccessible::List);
    EXPECT_EQ(Accessible(u"file:notes.txt"_s)->text(QAccessible::Name), u"notes.txt"_s);
    EXPECT_EQ(Accessible(u"writeLight"_s)->text(QAccessible::Name), u"Files can be written here."_s);
    EXPECT_EQ(Accessible(u"nameHeader"_s)->text(QAccessible::Name), u"Name, sorted upwards"_s);
}
