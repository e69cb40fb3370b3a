#include "gallery/Session.h"

#include "gallery/Pages.h"
#include "quick_backend/CVqQuickMenuItem.h"
#include "tests/gallery/RealMenu.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class SessionTest : public testing::Test
{
protected:
    vq_uint32 status_of(const QString& command)
    {
        vq_uint32 id = 0;
        vq_uint32 count = 1;
        vq_uint32 status = 0;
        m_session.Menu()->FindItemsByCommand(command.toStdU16String().c_str(), CVqAbstractMenu::SenseAny,
                                             0xFF00, &id, count);
        m_session.Menu()->GetIdStatus(id, status);
        return status;
    }

    Gallery::Session m_session{RealMenu()};
};

}

TEST_F(SessionTest, BeginsWithoutACommand)
{
    EXPECT_EQ(m_session.LastId(), 0u);
    EXPECT_TRUE(m_session.LastCommand().isEmpty());
    EXPECT_TRUE(m_session.LastKey().isEmpty());
    EXPECT_TRUE(m_session.LastTime().isEmpty());
}

TEST_F(SessionTest, AChosenCommandRunsAndIsTold)
{
    m_session.choose(u"ViewGrid"_s);

    EXPECT_TRUE(m_session.View()->grid);
    EXPECT_EQ(m_session.LastCommand(), u"ViewGrid"_s);
    EXPECT_NE(m_session.LastId(), 0u);
    EXPECT_TRUE(m_session.LastKey().isEmpty());
    EXPECT_EQ(status_of(u"ViewGrid"_s) & 2, 2u);
}

TEST_F(SessionTest, ACommandWithNothingBehindItIsToldAllTheSame)
{
    m_session.choose(u"FilePrint"_s);

    EXPECT_EQ(m_session.LastCommand(), u"FilePrint"_s);
}

TEST_F(SessionTest, AnUnknownCommandIsNotTold)
{
    m_session.choose(u"Nothing"_s);

    EXPECT_TRUE(m_session.LastCommand().isEmpty());
}

TEST_F(SessionTest, UndoIsDisabledUntilThereIsAStep)
{
    EXPECT_EQ(status_of(u"EditUndo"_s), 4u);

    m_session.choose(u"AdjustInvert"_s);

    EXPECT_EQ(status_of(u"EditUndo"_s), 1u);
    m_session.choose(u"EditUndo"_s);
    EXPECT_EQ(status_of(u"EditUndo"_s), 4u);
    EXPECT_EQ(status_of(u"EditRedo"_s), 1u);
}

TEST_F(SessionTest, ADisabledCommandDoesNotRun)
{
    m_session.choose(u"EditUndo"_s);

    EXPECT_TRUE(m_session.LastCommand().isEmpty());
}

TEST_F(SessionTest, SteppingTheZoomTakesTheMarkFromTheFixedZooms)
{
    ASSERT_EQ(status_of(u"ViewZoomFit"_s) & 2, 2u);

    m_session.choose(u"ViewZoomIn"_s);

    EXPECT_EQ(status_of(u"ViewZoomFit"_s) & 2, 0u);
    m_session.choose(u"ViewZoom(100)"_s);
    EXPECT_EQ(status_of(u"ViewZoom(100)"_s) & 2, 2u);
}

struct TimeRow
{
    const char* name;
    qint64 nanoseconds;
    const char16_t* text;
};

class SessionTimes : public SessionTest, public testing::WithParamInterface<TimeRow>
{ };

TEST_P(SessionTimes, HaveTheUnitThatReadsBest)
{
    m_session.keyFired(7, u"Ctrl+S"_s, GetParam().nanoseconds);

    EXPECT_EQ(m_session.LastKey(), u"Ctrl+S"_s);
    EXPECT_EQ(m_session.LastTime(), QString::fromUtf16(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(Session, SessionTimes,
                         testing::Values(TimeRow{"Nanoseconds", 999, u"999 ns"},
                                         TimeRow{"Microseconds", 1000, u"1.0 µs"},
                                         TimeRow{"Tenths", 12340, u"12.3 µs"}),
                         [](const auto& row) { return row.param.name; });

TEST_F(SessionTest, ANewCommandForgetsTheKeyOfTheLastOne)
{
    m_session.keyFired(7, u"Ctrl+S"_s, 100);

    m_session.choose(u"FilePrint"_s);

    EXPECT_TRUE(m_session.LastKey().isEmpty());
}

TEST_F(SessionTest, LabelsAreWhatPeopleRead)
{
    EXPECT_EQ(m_session.label(u"Tool(wand)"_s), u"Magic Wand"_s);
    EXPECT_EQ(m_session.label(u"FileOpenRecent(4)"_s), u"R&D poster.png"_s);
}

TEST_F(SessionTest, ACommandWithoutAnEntryHasNoLabel)
{
    EXPECT_EQ(m_session.label(u"ViewPan(1,0)"_s), QString());
    EXPECT_EQ(m_session.label(u"Nothing"_s), QString());
    EXPECT_EQ(m_session.label(QString()), QString());
}

TEST_F(SessionTest, SwatchesAreTheColoursOfTheMenuOnce)
{
    const QStringList swatches = m_session.swatches();

    EXPECT_EQ(swatches.size(), 12);
    EXPECT_EQ(swatches.front(), u"#1b1b1f"_s);
    EXPECT_EQ(QSet<QString>(swatches.begin(), swatches.end()).size(), swatches.size());
}

TEST_F(SessionTest, TheContextMenuIsAskedForAtItsPlace)
{
    QPoint place;
    QObject::connect(m_session.Menu(), &CVqQuickMenu::contextMenuRequested,
                     [&place](CVqQuickMenuRows*, int x, int y) { place = {x, y}; });

    m_session.openContextMenu(30, 40);

    EXPECT_EQ(place, QPoint(30, 40));
}

TEST_F(SessionTest, BeginsWithTheFirstPage)
{
    EXPECT_EQ(m_session.Page(), u"PicturePage"_s);
    EXPECT_EQ(m_session.PageUrl(), Gallery::PageUrl(u"PicturePage"_s));
}

TEST_F(SessionTest, AnotherPageIsTold)
{
    int told = 0;
    QObject::connect(&m_session, &Gallery::Session::PageChanged, [&told] { ++told; });

    m_session.SetPage(u"ResourcesPage"_s);
    m_session.SetPage(u"ResourcesPage"_s);

    EXPECT_EQ(m_session.Page(), u"ResourcesPage"_s);
    EXPECT_EQ(told, 1);
}

TEST_F(SessionTest, AnUnknownPageChangesNothing)
{
    m_session.SetPage(u"WobblePage"_s);
    m_session.SetPage(QString());

    EXPECT_EQ(m_session.Page(), u"PicturePage"_s);
}

TEST_F(SessionTest, IsThatOfTheProgramWhileItLives)
{
    EXPECT_EQ(Gallery::Session::OfProgram(), &m_session);
    {
        Gallery::Session other(RealMenu());
        EXPECT_EQ(Gallery::Session::OfProgram(), &other);
    }

    EXPECT_EQ(Gallery::Session::OfProgram(), nullptr);
}

TEST_F(SessionTest, QuitIsHandedOn)
{
    bool asked = false;
    QObject::connect(&m_session, &Gallery::Session::QuitRequested, [&asked] { asked = true; });

    m_session.choose(u"FileQuit"_s);

    EXPECT_TRUE(asked);
}

TEST_F(SessionTest, AZoomOfItsOwnTakesTheMarkFromThePresets)
{
    m_session.zoomTo(73);

    EXPECT_DOUBLE_EQ(m_session.View()->zoom, 73);
    EXPECT_EQ(status_of(u"ViewZoomFit"_s) & 2, 0u);
}

TEST_F(SessionTest, ThePopupOfACommandIsOpened)
{
    int x = 0;
    const CVqQuickMenuRows* opened = nullptr;
    QObject::connect(m_session.Menu(), &CVqQuickMenu::contextMenuRequested,
                     [&](CVqQuickMenuRows* rows, int at, int) {
                         opened = rows;
                         x = at;
                     });

    m_session.openPopupOf(u"ColorForeground(#1b1b1f)"_s, 7, 8);

    ASSERT_TRUE(opened);
    EXPECT_EQ(opened->ItemAt(0)->parentItem()->id(), 1733u);
    EXPECT_EQ(x, 7);
}

TEST_F(SessionTest, TheToolbarsCanBeShownAndHidden)
{
    m_session.choose(u"ViewToolbar(text)"_s);

    EXPECT_FALSE(m_session.View()->text_bar);
    EXPECT_TRUE(m_session.View()->main_bar);
}
