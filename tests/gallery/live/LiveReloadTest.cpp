#include "gallery/live/LiveReload.h"

#include "gallery/script/WaitFor.h"
#include "tests/gallery/PageFolder.h"

#include <QDir>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class LiveReload : public testing::Test
{
protected:
    LiveReload()
    {
        m_folder.Write(u"a.qml"_s, "Item {}");
        m_live = std::make_unique<Gallery::LiveReload>(QStringList{m_folder.Path({})});
        QObject::connect(m_live.get(), &Gallery::LiveReload::Changed, [this] { ++m_told; });
    }

    /// Until the next change is told, or nothing is after all.
    void Wait(std::chrono::milliseconds longest = 20s)
    {
        Gallery::WaitFor(*m_live, &Gallery::LiveReload::Changed, longest);
    }

    PageFolder m_folder;
    std::unique_ptr<Gallery::LiveReload> m_live;
    int m_told = 0;
};

}

TEST_F(LiveReload, ASavedFileIsTold)
{
    m_folder.Write(u"a.qml"_s, "Text {}");
    Wait();

    EXPECT_EQ(m_told, 1);
}

TEST_F(LiveReload, ManyChangesAtOnceAreToldOnce)
{
    for (int i = 0; i < 100; ++i)
        m_folder.Write(u"a.qml"_s, QByteArray::number(i));
    m_folder.Write(u"b.qml"_s, "Item {}");
    Wait();

    EXPECT_EQ(m_told, 1);
}

TEST_F(LiveReload, AFileThatIsReplacedAgainAndAgainIsToldEachTime)
{
    for (int i = 1; i <= 3; ++i) {
        m_folder.Write(u"a.new"_s, "Text {}");
        ASSERT_TRUE(QFile::remove(m_folder.Path(u"a.qml"_s)));
        ASSERT_TRUE(QFile::rename(m_folder.Path(u"a.new"_s), m_folder.Path(u"a.qml"_s)));
        Wait();

        EXPECT_EQ(m_told, i);
    }
}

TEST_F(LiveReload, ANewFileIsToldAndWatched)
{
    m_folder.Write(u"b.qml"_s, "Item {}");
    Wait();
    EXPECT_EQ(m_told, 1);

    m_folder.Write(u"b.qml"_s, "Text {}");
    Wait();

    EXPECT_EQ(m_told, 2);
}

TEST_F(LiveReload, AFileThatIsGoneIsTold)
{
    ASSERT_TRUE(QFile::remove(m_folder.Path(u"a.qml"_s)));
    Wait();

    EXPECT_EQ(m_told, 1);
    EXPECT_EQ(m_live->Files(), QStringList());
}

// What does not come can only be waited for with a bound; a change comes after 50 ms.
TEST_F(LiveReload, FilesOfOtherKindsAreNotTold)
{
    m_folder.Write(u".a.qml.swp"_s, "x");
    Wait(200ms);
    EXPECT_EQ(m_told, 0);

    m_folder.Write(u"a.qml"_s, "Text {}");
    Wait();

    EXPECT_EQ(m_told, 1);
}

TEST_F(LiveReload, WithoutFoldersNothingIsWatched)
{
    const Gallery::LiveReload live({});

    EXPECT_EQ(live.Files(), QStringList());
}
