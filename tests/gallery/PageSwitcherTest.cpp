#include "gallery/script/Screenshots.h"
#include "tests/gallery/MainWindow.h"

#include <QAccessible>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

class PageSwitcher : public testing::Test
{
protected:
    PageSwitcher() { Gallery::WaitForFrame(m_gallery.Window()); }

    void Press(int key)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&m_gallery.Window(), &press);
    }

    /// The item of that name; tabs are children of no object that the window knows.
    QQuickItem* Item(const QString& name)
    {
        QList<QQuickItem*> open{m_gallery.Window().contentItem()};
        while (!open.isEmpty() && open.constFirst()->objectName() != name)
            open << open.takeFirst()->childItems();
        return open.value(0);
    }

    QString Page() { return m_gallery.GetSession().Page(); }

    MainWindow m_gallery;
};

}

TEST_F(PageSwitcher, TabReachesItBehindTheMainBar)
{
    for (int i = 0; i < 2; ++i) {
        Press(Qt::Key_Tab);
        QCoreApplication::processEvents();
    }

    EXPECT_TRUE(Item(u"pageSwitcher"_s)->hasActiveFocus());
}

TEST_F(PageSwitcher, ArrowsHomeAndEndChangeThePage)
{
    Item(u"pageSwitcher"_s)->forceActiveFocus();

    Press(Qt::Key_Right);
    EXPECT_EQ(Page(), Gallery::PageNames().at(1));
    Press(Qt::Key_End);
    EXPECT_EQ(Page(), Gallery::PageNames().last());
    Press(Qt::Key_Right);
    EXPECT_EQ(Page(), Gallery::PageNames().last());
    Press(Qt::Key_Left);
    EXPECT_EQ(Page(), Gallery::PageNames().at(Gallery::PageNames().size() - 2));
    Press(Qt::Key_Home);
    EXPECT_EQ(Page(), Gallery::PageNames().first());
}

TEST_F(PageSwitcher, ItsKeysRunNoCommand)
{
    Item(u"pageSwitcher"_s)->forceActiveFocus();

    Press(Qt::Key_Right);

    EXPECT_EQ(m_gallery.GetSession().LastCommand(), QString());
}

TEST_F(PageSwitcher, EnterLeadsIntoThePage)
{
    Item(u"pageSwitcher"_s)->forceActiveFocus();

    Press(Qt::Key_Return);

    EXPECT_TRUE(Item(u"pageHolder"_s)->hasActiveFocus());
}

TEST_F(PageSwitcher, EachTabHasANameAndARole)
{
    for (const QString& name : Gallery::PageNames()) {
        QAccessibleInterface* tab = QAccessible::queryAccessibleInterface(Item(u"tab"_s + name));

        ASSERT_TRUE(tab) << name.toStdString();
        EXPECT_EQ(tab->role(), QAccessible::PageTab);
        EXPECT_EQ(tab->text(QAccessible::Name), Gallery::PageTitle(name));
    }
}
