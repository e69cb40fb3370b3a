#include "gallery/resize/TerminalProgress.h"

#include "IVqProgressView.h"
#include "tests/support/SteppedClock.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class NotingView : public IVqProgressView
{
public:
    explicit NotingView(QStringList& calls) : m_calls(calls) { }

    void SetPos(unsigned int position) override { m_calls << u"at %1"_s.arg(position); }
    void SetLabel(const CVqStringW& label) override { m_calls << label.ToQString(); }
    void SetTitle(const CVqStringW&) override { m_calls << u"title"_s; }
    void ProcessEvents() override { m_calls << u"events"_s; }

private:
    QStringList& m_calls;
};

class TerminalProgress : public testing::Test
{
protected:
    QStringList m_calls;
    SteppedClock m_clock;
    Gallery::TerminalProgress m_progress{10, 250, [this] { return new NotingView(m_calls); },
                                         [this] { return m_clock.Now(); }};
};

}

TEST_F(TerminalProgress, ShortWorkShowsNothing)
{
    m_progress.SetPos(1);
    m_clock.Set(249);
    m_progress.SetLabel(VQ_TEXT("a.png"));

    EXPECT_TRUE(m_calls.isEmpty());
    EXPECT_FALSE(m_progress.CheckCanceled());
}

TEST_F(TerminalProgress, AfterTheDelayItShowsWithThePositionSoFar)
{
    int elapsed = 0;
    QObject::connect(&m_progress, &Gallery::TerminalProgress::delayElapsed, [&elapsed] { ++elapsed; });
    m_progress.SetPos(3);
    m_clock.Set(250);
    m_progress.SetLabel(VQ_TEXT("d.png"));
    m_progress.SetPos(4);

    EXPECT_EQ(m_calls, (QStringList{u"at 3"_s, u"d.png"_s, u"at 4"_s}));
    EXPECT_EQ(elapsed, 1);
}

TEST_F(TerminalProgress, ACheckLetsTheViewLiveAndTellsOfACancel)
{
    m_clock.Set(250);
    m_progress.SetPos(1);
    m_calls.clear();

    EXPECT_FALSE(m_progress.CheckCanceled());
    EXPECT_EQ(m_calls, QStringList{u"events"_s});
    m_progress.CancelProgress();
    EXPECT_TRUE(m_progress.CheckCanceled());
}
