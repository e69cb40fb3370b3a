#include "tests/gallery/MainWindow.h"

#include <QAccessible>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A folder with stored menus that cannot be read.
class DamagedFolder
{
public:
    DamagedFolder()
    {
        QFile file(m_folder.filePath(u"menus.cbor"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("broken");
    }

    Gallery::MenuHome Home() const { return {m_folder.path(), u"en"_s}; }

private:
    QTemporaryDir m_folder;
};

QQuickItem* item(MainWindow& gallery, const QString& name)
{
    return gallery.Window().findChild<QQuickItem*>(name);
}

}

TEST(NoticeStrip, IsNotThereWhileAllIsWell)
{
    MainWindow gallery;

    EXPECT_FALSE(item(gallery, u"noticeStrip"_s)->isVisible());
}

TEST(NoticeStrip, TellsOfADamagedFileOnTheScreen)
{
    const DamagedFolder folder;
    MainWindow gallery(u"en"_s, folder.Home());

    EXPECT_TRUE(item(gallery, u"noticeStrip"_s)->isVisible());
    EXPECT_EQ(
        item(gallery, u"noticeText"_s)->property("text"),
        u"The stored menus cannot be read, so they were set aside as menus-damaged-1.cbor and the factory menus loaded."_s);
}

TEST(NoticeStrip, IsGermanInGerman)
{
    const DamagedFolder folder;
    MainWindow gallery(u"de"_s, folder.Home());

    EXPECT_TRUE(item(gallery, u"noticeText"_s)
                    ->property("text")
                    .toString()
                    .startsWith(u"Die gespeicherten Menüs "_s));
}

TEST(NoticeStrip, ItsButtonPutsItAwayAndThePageGetsTheKeyboard)
{
    const DamagedFolder folder;
    MainWindow gallery(u"en"_s, folder.Home());
    item(gallery, u"noticeButton"_s)->forceActiveFocus();

    QTest::keyClick(&gallery.Window(), Qt::Key_Space);

    EXPECT_FALSE(item(gallery, u"noticeStrip"_s)->isVisible());
    EXPECT_EQ(gallery.GetSession().Notice(), QString());
    EXPECT_TRUE(item(gallery, u"pageHolder"_s)->hasActiveFocus()
                || item(gallery, u"pageHolder"_s)->isAncestorOf(gallery.Window().activeFocusItem()));
}

TEST(NoticeStrip, IsAnAlertForScreenReaders)
{
    const DamagedFolder folder;
    MainWindow gallery(u"en"_s, folder.Home());
    QAccessibleInterface* strip = QAccessible::queryAccessibleInterface(item(gallery, u"noticeStrip"_s));

    ASSERT_TRUE(strip);
    EXPECT_EQ(strip->role(), QAccessible::AlertMessage);
    EXPECT_EQ(strip->text(QAccessible::Name), gallery.GetSession().Notice());
}
