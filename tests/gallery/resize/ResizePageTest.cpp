#include "tests/gallery/MainWindow.h"
#include "tests/gallery/resize/ImageFolder.h"

#include <QAccessible>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_longest_run = 60000; // ms

class ResizePage : public testing::Test
{
protected:
    ResizePage()
    {
        m_gallery.GetSession().SetPage(u"ResizePage"_s);
        EXPECT_TRUE(Item(u"startButton"_s));
        Item(u"inField"_s)->setProperty("text", m_folder.In());
        Item(u"outField"_s)->setProperty("text", m_folder.Out());
        Item(u"widthField"_s)->setProperty("text", u"10"_s);
    }

    QQuickItem* Item(const QString& name) { return m_gallery.Window().findChild<QQuickItem*>(name); }

    void WaitForEnd()
    {
        const Gallery::BatchResize* batch = m_gallery.GetSession().GetBatchResize();
        EXPECT_TRUE(QTest::qWaitFor([batch] { return !batch->IsRunning(); }, g_longest_run));
    }

    ImageFolder m_folder;
    MainWindow m_gallery;
};

}

TEST_F(ResizePage, TheCommandOfTheMenuOpensIt)
{
    m_gallery.GetSession().SetPage(u"PicturePage"_s);

    m_gallery.GetSession().choose(u"FileBatchResize"_s);

    EXPECT_EQ(m_gallery.GetSession().Page(), u"ResizePage"_s);
    EXPECT_EQ(m_gallery.GetSession().label(u"FileBatchResize"_s), u"Batch Resize..."_s);
}

TEST_F(ResizePage, TheButtonStartsARun)
{
    m_folder.ManyImages(2, {20, 20});
    Item(u"startButton"_s)->forceActiveFocus();

    QTest::keyClick(&m_gallery.Window(), Qt::Key_Space);
    WaitForEnd();

    EXPECT_TRUE(m_folder.OutIsWhole(10));
    EXPECT_EQ(m_folder.OutNames().size(), 2);
    EXPECT_EQ(Item(u"outcome"_s)->property("text"), u"Images resized: 2 of 2."_s);
}

TEST_F(ResizePage, AClickStartsARun)
{
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_gallery.Window()));
    m_gallery.Window().grabWindow(); // lays the page out
    const QQuickItem* button = Item(u"startButton"_s);
    const QPointF centre = button->mapToScene({button->width() / 2, button->height() / 2});

    QTest::mouseClick(&m_gallery.Window(), Qt::LeftButton, {}, centre.toPoint());

    EXPECT_EQ(Item(u"outcome"_s)->property("text"), u"There are no images in %1."_s.arg(m_folder.In()));
}

TEST_F(ResizePage, FailuresAreListed)
{
    m_folder.Write(u"a.png"_s, "text");
    m_folder.Write(u"b.png"_s, "text");
    Item(u"startButton"_s)->forceActiveFocus();

    QTest::keyClick(&m_gallery.Window(), Qt::Key_Space);
    WaitForEnd();

    EXPECT_EQ(Item(u"failures"_s)->property("count"), 2);
    EXPECT_EQ(Item(u"outcome"_s)->property("text"), u"Images resized: 0 of 2. Failed: 2."_s);
}

TEST_F(ResizePage, TheOutcomeStaysWhenAnotherPageWasShown)
{
    m_gallery.GetSession().GetBatchResize()->start(m_folder.In(), m_folder.Out(), u"0"_s);
    m_gallery.GetSession().SetPage(u"PicturePage"_s);

    m_gallery.GetSession().SetPage(u"ResizePage"_s);

    EXPECT_EQ(Item(u"outcome"_s)->property("text"),
              u"A width of 0 pixels leaves nothing: 1 is the smallest."_s);
}

TEST_F(ResizePage, FieldsAndButtonHaveNamesForScreenReaders)
{
    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(Item(u"startButton"_s));

    ASSERT_TRUE(button);
    EXPECT_EQ(button->role(), QAccessible::Button);
    EXPECT_EQ(button->text(QAccessible::Name), u"Start"_s);
}
