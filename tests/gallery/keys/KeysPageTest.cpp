#include "gallery/keys/KeyEditor.h"
#include "gallery/script/KeyScript.h"
#include "tests/gallery/MainWindow.h"

#include <QAccessible>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class KeysPage : public testing::Test
{
protected:
    KeysPage()
    {
        m_gallery.GetSession().SetPage(u"KeysPage"_s);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_gallery.Window()));
        EXPECT_TRUE(Item(u"commandList"_s));
        Lay();
    }

    QQuickItem* Item(const QString& name) { return Below(m_gallery.Window().contentItem(), name); }

    /// The first item of that name below another one. Rows are children of what shows them alone.
    static QQuickItem* Below(QQuickItem* item, const QString& name)
    {
        if (item->objectName() == name)
            return item;
        for (QQuickItem* child : item->childItems())
            if (QQuickItem* found = Below(child, name))
                return found;
        return nullptr;
    }

    Gallery::KeyEditor& Editor() { return *m_gallery.GetSession().GetKeyEditor(); }

    /// Presses keys one after the other; what was told of the last.
    QString Press(const QStringList& keys)
    {
        Gallery::KeyScript script(m_gallery.GetSession(), m_gallery.Window());
        QString line;
        for (const QString& key : keys)
            line = script.Press(*Gallery::ParseKeyPress(key)).section(u" -> "_s, 1);
        return line;
    }

    void Lay() { m_gallery.Window().grabWindow(); }

    void Click(const QQuickItem* item, const QPointF& place)
    {
        QTest::mouseClick(&m_gallery.Window(), Qt::LeftButton, {}, item->mapToScene(place).toPoint());
    }

    void Click(const QQuickItem* item) { Click(item, {item->width() / 2, item->height() / 2}); }

    MainWindow m_gallery;
};

QAccessibleInterface* accessible(QQuickItem* item)
{
    return QAccessible::queryAccessibleInterface(item);
}

}

TEST_F(KeysPage, TheCommandOfTheMenuOpensIt)
{
    m_gallery.GetSession().SetPage(u"PicturePage"_s);

    m_gallery.GetSession().choose(u"EditShortcuts"_s);

    EXPECT_EQ(m_gallery.GetSession().Page(), u"KeysPage"_s);
}

TEST_F(KeysPage, BeginsInTheSearchWithTheFirstCommand)
{
    EXPECT_EQ(Editor().Command(), u"FileNew"_s);
    EXPECT_EQ(Item(u"commandLabel"_s)->property("text"), u"New..."_s);

    Press({u"B"_s});

    EXPECT_EQ(Item(u"searchField"_s)->property("text"), u"b"_s);
}

TEST_F(KeysPage, TypingFindsCommands)
{
    Press({u"f"_s, u"i"_s, u"t"_s, u"Space"_s, u"w"_s});

    EXPECT_EQ(Editor().Command(), u"ViewZoomFit"_s);
    EXPECT_EQ(Item(u"commandList"_s)->property("count"), 1);
}

TEST_F(KeysPage, ArrowsInTheSearchChooseACommand)
{
    Press({u"Down"_s, u"Down"_s, u"Up"_s, u"Down"_s});

    EXPECT_EQ(Editor().Command(), Editor().Commands()->commandAt(2));
    EXPECT_EQ(m_gallery.GetSession().LastCommand(), QString());
}

TEST_F(KeysPage, PageKeysInTheSearchGoFurther)
{
    Press({u"PageDown"_s});

    EXPECT_GT(Editor().Commands()->rowOf(Editor().Command()), 5);
    Press({u"PageUp"_s, u"PageUp"_s});
    EXPECT_EQ(Editor().Command(), u"FileNew"_s);
}

TEST_F(KeysPage, TheListIsReachedWithTabAndHasItsOwnKeys)
{
    Press({u"Tab"_s, u"End"_s});
    EXPECT_EQ(Editor().Command(), Editor().Commands()->commandAt(Editor().Commands()->Count() - 1));

    Press({u"Home"_s, u"Down"_s});
    EXPECT_EQ(Editor().Command(), Editor().Commands()->commandAt(1));
    EXPECT_EQ(m_gallery.GetSession().LastCommand(), QString());
}

TEST_F(KeysPage, AFreeKeyIsGivenAndFires)
{
    EXPECT_EQ(Press({u"Enter"_s, u"Ctrl+Shift+F9"_s}), u"New... has the key Ctrl+Shift+F9 now."_s);
    EXPECT_EQ(Item(u"toldText"_s)->property("text"), u"New... has the key Ctrl+Shift+F9 now."_s);

    EXPECT_EQ(Press({u"Ctrl+Shift+F9"_s}), u"1001 FileNew"_s);
}

TEST_F(KeysPage, WhileItWaitsForAKeyNoCommandRuns)
{
    Press({u"Enter"_s, u"Ctrl+S"_s});

    EXPECT_EQ(m_gallery.GetSession().LastCommand(), QString());
}

TEST_F(KeysPage, AKeyOfAnotherCommandIsAskedAndTakenOver)
{
    EXPECT_EQ(Press({u"Enter"_s, u"Ctrl+S"_s}), u"Ctrl+S is the key of Save."_s);
    QQuickItem* question = Item(u"question"_s);
    ASSERT_TRUE(question->isVisible());
    EXPECT_TRUE(Below(question, u"noButton"_s)->hasActiveFocus());

    EXPECT_EQ(Press({u"Left"_s, u"Enter"_s}), u"New... has the key Ctrl+S now, which was taken from Save."_s);

    EXPECT_FALSE(question->isVisible());
    EXPECT_EQ(Press({u"Ctrl+S"_s}), u"1001 FileNew"_s);
}

TEST_F(KeysPage, TheQuestionIsLeftWithEnterAndWithEsc)
{
    for (const QString& answer : {u"Enter"_s, u"Esc"_s}) {
        Press({u"Enter"_s, u"Ctrl+S"_s});

        EXPECT_EQ(Press({answer}), u"Save keeps the key Ctrl+S."_s);
    }
    EXPECT_EQ(Press({u"Ctrl+S"_s}), u"1015 FileSave"_s);
}

TEST_F(KeysPage, EscLeavesTheKeysAsTheyAre)
{
    Press({u"Enter"_s});
    ASSERT_TRUE(Item(u"keyCapture"_s)->hasActiveFocus());

    Press({u"Esc"_s, u"Ctrl+Shift+F9"_s});

    EXPECT_FALSE(Item(u"keyCapture"_s)->isVisible());
    EXPECT_EQ(Editor().KeyTexts(), QStringList{u"Ctrl+N"_s});
}

TEST_F(KeysPage, TabLeadsOutOfWaiting)
{
    Press({u"Enter"_s, u"Tab"_s});

    EXPECT_FALSE(Item(u"keyCapture"_s)->isVisible());
    EXPECT_EQ(Editor().KeyTexts(), QStringList{u"Ctrl+N"_s});
}

TEST_F(KeysPage, CtrlTabIsAKeyLikeAnyOther)
{
    EXPECT_EQ(Press({u"Enter"_s, u"Ctrl+Tab"_s}), u"Ctrl+Tab is the key of Next Image."_s);
}

TEST_F(KeysPage, ModifiersShowWhileTheyAreHeld)
{
    Press({u"Enter"_s});
    EXPECT_EQ(Item(u"heldText"_s)->property("text"), u"Press the key"_s);

    QTest::keyPress(&m_gallery.Window(), Qt::Key_Control);

    EXPECT_EQ(Item(u"heldText"_s)->property("text"), u"Ctrl+"_s);
}

TEST_F(KeysPage, AKeyIsRemovedWithItsButton)
{
    QQuickItem* button = Item(u"removeButton0"_s);
    EXPECT_EQ(accessible(button)->text(QAccessible::Name), u"Remove Ctrl+N"_s);

    Click(button);

    EXPECT_EQ(Editor().KeyTexts(), QStringList());
    EXPECT_EQ(Press({u"Ctrl+N"_s}), u"no command"_s);
}

TEST_F(KeysPage, FactoryKeysComeBackWithOneButtonForACommand)
{
    EXPECT_FALSE(Item(u"resetButton"_s)->isEnabled());
    Editor().remove(0);
    Lay();

    Click(Item(u"resetButton"_s));

    EXPECT_EQ(Editor().KeyTexts(), QStringList{u"Ctrl+N"_s});
    EXPECT_FALSE(Item(u"resetButton"_s)->isEnabled());
}

TEST_F(KeysPage, FactoryKeysForAllAreAskedFirst)
{
    Editor().remove(0);
    Lay();
    Click(Item(u"resetAllButton"_s));
    QQuickItem* question = Item(u"allQuestion"_s);
    ASSERT_TRUE(question->isVisible());
    EXPECT_EQ(Below(question, u"questionText"_s)->property("text"), u"Commands with keys of your own: 1."_s);

    Press({u"Enter"_s});
    EXPECT_FALSE(question->isVisible());
    EXPECT_EQ(Editor().OwnCount(), 1);
    Lay();
    Click(Item(u"resetAllButton"_s));
    Press({u"Left"_s, u"Enter"_s});

    EXPECT_EQ(Editor().OwnCount(), 0);
    EXPECT_FALSE(question->isVisible());
}

TEST_F(KeysPage, TheMouseDoesAllOfIt)
{
    Click(Item(u"commandList"_s), {100, 66}); // the second row
    EXPECT_EQ(Editor().Command(), u"FileSample(lake)"_s);
    Lay();

    Click(Item(u"captureButton"_s));
    Press({u"Ctrl+S"_s});
    Lay();
    Click(Below(Item(u"question"_s), u"yesButton"_s));

    EXPECT_EQ(Editor().KeyTexts(), QStringList{u"Ctrl+S"_s});
}

TEST_F(KeysPage, ADoubleClickWaitsForTheKey)
{
    QTest::mouseDClick(&m_gallery.Window(), Qt::LeftButton, {},
                       Item(u"commandList"_s)->mapToScene({100, 66}).toPoint());

    EXPECT_TRUE(Item(u"keyCapture"_s)->hasActiveFocus());
    EXPECT_EQ(accessible(Item(u"keyCapture"_s))->text(QAccessible::Name),
              u"Press the key for Lake at Dawn"_s);
}

TEST_F(KeysPage, ASearchWithoutAMatchHasNoCommand)
{
    Press({u"q"_s, u"q"_s, u"q"_s, u"Enter"_s});

    EXPECT_EQ(Editor().Command(), QString());
    EXPECT_FALSE(Item(u"keyCapture"_s)->isVisible());
}

TEST_F(KeysPage, ListAndFieldsHaveNamesForScreenReaders)
{
    EXPECT_EQ(accessible(Item(u"commandList"_s))->role(), QAccessible::List);
    EXPECT_EQ(accessible(Item(u"commandList"_s))->text(QAccessible::Name), u"Commands"_s);
    EXPECT_EQ(accessible(Item(u"captureButton"_s))->text(QAccessible::Name), u"Add a key"_s);
}

TEST(KeysPageStored, AnAssignedKeyIsThereInTheNextSession)
{
    const QTemporaryDir folder;
    const Gallery::MenuHome home{folder.path(), u"en"_s};
    {
        MainWindow gallery(u"en"_s, home);
        Gallery::KeyEditor* editor = gallery.GetSession().GetKeyEditor();
        editor->SetCommand(u"FilePrint"_s);
        editor->press(2, 'K');
    }

    MainWindow gallery(u"en"_s, home);

    Gallery::KeyScript script(gallery.GetSession(), gallery.Window());
    EXPECT_EQ(script.Press(*Gallery::ParseKeyPress(u"Ctrl+K"_s)), u"Ctrl+K -> 1035 FilePrint"_s);
}
