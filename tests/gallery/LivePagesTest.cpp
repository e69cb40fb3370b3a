#include "gallery/PageHolder.h"
#include "gallery/live/LiveReload.h"
#include "gallery/script/WaitFor.h"
#include "tests/gallery/DeveloperMode.h"
#include "tests/gallery/MainWindow.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The window in the developer's mode, on a copy of its files.
class LivePages : public testing::Test
{
protected:
    LivePages() : m_live(Gallery::LiveFolders())
    {
        QObject::connect(&m_live, &Gallery::LiveReload::Changed, &m_gallery.GetSession(),
                         &Gallery::Session::AskReload);
    }

    const QmlCopy& Copy() const { return m_mode.Copy(); }

    Gallery::PageHolder& Holder()
    {
        return *m_gallery.Window().findChild<Gallery::PageHolder*>(u"pageHolder"_s);
    }

    void WaitForReload() { Gallery::WaitFor(Holder(), &Gallery::PageHolder::Loaded, 30s); }

    /// A page that is nothing but an item of that name.
    static QByteArray Named(const char* name)
    {
        return QByteArray("import QtQuick\nItem { objectName: '") + name + "' }\n";
    }

    QString Shown() { return Holder().Page() ? Holder().Page()->objectName() : QString(); }

    /// The texts of the items of that name that are there, each on a line.
    QStringList Texts(const QString& name)
    {
        QStringList texts;
        QList<QQuickItem*> open{m_gallery.Window().contentItem()};
        while (!open.isEmpty()) {
            QQuickItem* item = open.takeFirst();
            if (item->objectName() == name)
                texts << item->property("text").toString();
            open << item->childItems();
        }
        return texts;
    }

    DeveloperModeOnCopy m_mode;
    MainWindow m_gallery;
    Gallery::LiveReload m_live;
};

}

TEST_F(LivePages, AChangedPageShows)
{
    Copy().Write(u"pages/PicturePage.qml"_s, Named("changed"));
    WaitForReload();

    EXPECT_EQ(Shown(), u"changed"_s);
}

TEST_F(LivePages, AChangedTypeOfThePageShows)
{
    Copy().Write(u"SidePanel.qml"_s, "import QtQuick\nItem { objectName: 'otherPanel' }");
    WaitForReload();

    EXPECT_TRUE(Holder().findChild<QQuickItem*>(u"otherPanel"_s));
}

TEST_F(LivePages, AFileThatWasReplacedByRenamingShows)
{
    for (const char* name : {"first", "second", "third"}) {
        Copy().WriteByRename(u"pages/PicturePage.qml"_s, Named(name));
        WaitForReload();

        EXPECT_EQ(Shown(), QLatin1StringView(name));
    }
}

TEST_F(LivePages, ThePageAndTheStateOfTheSessionStay)
{
    m_gallery.GetSession().SetPage(u"ResourcesPage"_s);
    m_gallery.GetSession().choose(u"ViewGrid"_s);

    Copy().Write(u"pages/ResourcesPage.qml"_s, Named("changed"));
    WaitForReload();

    EXPECT_EQ(Shown(), u"changed"_s);
    EXPECT_EQ(m_gallery.GetSession().Page(), u"ResourcesPage"_s);
    EXPECT_TRUE(m_gallery.GetSession().View()->grid);
}

TEST_F(LivePages, ASyntaxErrorShowsWithFileLineAndText)
{
    Copy().Write(u"pages/PicturePage.qml"_s, "import QtQuick\nItem {\n    width: }\n");
    WaitForReload();
    QCoreApplication::processEvents();

    EXPECT_EQ(Texts(u"errorPlace"_s), QStringList{u"PicturePage.qml, line 3"_s});
    EXPECT_EQ(Texts(u"errorText"_s), QStringList{u"Expected token `;'"_s});
}

TEST_F(LivePages, TheNextGoodSaveHealsAnError)
{
    Copy().Write(u"pages/PicturePage.qml"_s, "import QtQuick\nItem {");
    WaitForReload();
    ASSERT_FALSE(Holder().Page());

    Copy().Write(u"pages/PicturePage.qml"_s, Named("healed"));
    WaitForReload();
    QCoreApplication::processEvents();

    EXPECT_EQ(Shown(), u"healed"_s);
    EXPECT_EQ(Texts(u"errorPlace"_s), QStringList());
}

TEST_F(LivePages, TheRestOfTheWindowGoesOnWorking)
{
    Copy().Write(u"pages/PicturePage.qml"_s, Named("changed"));
    WaitForReload();

    m_gallery.GetSession().choose(u"FileSaveAs"_s);
    EXPECT_EQ(Texts(u"statusCommand"_s), QStringList{u"FileSaveAs"_s});
    m_gallery.GetSession().SetPage(u"ResourcesPage"_s);
    EXPECT_EQ(Texts(u"placeName"_s), QStringList{u"file on disk"_s});
}

TEST(LivePagesOff, NothingIsWatchedWithoutTheDevelopersMode)
{
    const Gallery::LiveReload live(Gallery::LiveFolders());

    EXPECT_EQ(live.Files(), QStringList());
}
