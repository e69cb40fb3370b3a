#include "quick_backend/CVqQuickProgressView.h"

#include "tests/support/SteppedClock.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_longest_wait = 5'000; // ms

class CVqQuickProgressViewTest : public testing::Test
{
protected:
    /// Lets a second go by; the properties are up to date afterwards.
    void PassASecond()
    {
        clock.Step(1'000);
        view.ProcessEvents();
    }

    void Label(const char16_t* text) { view.SetLabel(CVqStringW::FromQString(QString::fromUtf16(text))); }

    SteppedClock clock;
    CVqQuickProgressView view{[this] { return clock.Now(); }, 100};
};

}

TEST_F(CVqQuickProgressViewTest, NothingFollowsBeforeStart)
{
    view.SetPos(50);
    Label(u"one.png");
    PassASecond();

    EXPECT_EQ(view.Fraction(), 0);
    EXPECT_EQ(view.Label(), QString());
}

TEST_F(CVqQuickProgressViewTest, StartShowsWhatWasToldBefore)
{
    view.SetPos(50);
    Label(u"one.png");
    view.SetTitle(CVqStringW(VQ_TEXT("Resize")));

    view.Start();

    EXPECT_EQ(view.Fraction(), 0.5);
    EXPECT_EQ(view.Label(), u"one.png"_s);
    EXPECT_EQ(view.Title(), u"Resize"_s);
}

TEST_F(CVqQuickProgressViewTest, ManyStepsWithinAFrameAreOneChange)
{
    view.Start();
    const QSignalSpy fractions(&view, &CVqQuickProgressView::fractionChanged);
    const QSignalSpy labels(&view, &CVqQuickProgressView::labelChanged);

    for (unsigned int step = 1; step <= 50; ++step) {
        view.SetPos(step);
        view.SetLabel(CVqStringW::FromQString(QString::number(step)));
        view.ProcessEvents();
    }

    EXPECT_EQ(fractions.size(), 1);
    EXPECT_EQ(labels.size(), 1);
}

TEST_F(CVqQuickProgressViewTest, AFrameLaterTheNextChangeFollows)
{
    view.Start();
    view.SetPos(1);
    view.ProcessEvents();
    view.SetPos(2);

    clock.Step(32);
    view.ProcessEvents();
    EXPECT_EQ(view.Fraction(), 0.01);

    clock.Step(1);
    view.ProcessEvents();
    EXPECT_EQ(view.Fraction(), 0.02);
}

TEST_F(CVqQuickProgressViewTest, FollowsByItselfWhileTheEventLoopRuns)
{
    view.Start();
    QSignalSpy published(&view, &CVqQuickProgressView::published);

    view.SetPos(7);

    EXPECT_EQ(view.Fraction(), 0);
    EXPECT_TRUE(published.wait(g_longest_wait));
    EXPECT_EQ(view.Fraction(), 0.07);
}

TEST_F(CVqQuickProgressViewTest, TheTimesMoveOnWhileTheWorkSaysNothing)
{
    view.Start();
    clock.Step(3'000);
    QSignalSpy times(&view, &CVqQuickProgressView::timesChanged);

    EXPECT_TRUE(times.wait(g_longest_wait));
    EXPECT_EQ(view.SecondsElapsed(), 3);
}

TEST_F(CVqQuickProgressViewTest, APositionThatGoesBackIsHeld)
{
    view.Start();
    view.SetPos(60);
    PassASecond();

    view.SetPos(20);
    PassASecond();

    EXPECT_EQ(view.Fraction(), 0.6);
}

TEST_F(CVqQuickProgressViewTest, APositionPastTheRangeFillsTheBar)
{
    view.Start();
    view.SetPos(4'294'967'295u);
    PassASecond();

    EXPECT_EQ(view.Fraction(), 1);
}

TEST_F(CVqQuickProgressViewTest, ANewRunBeginsAtNothing)
{
    view.Start();
    view.SetPos(60);
    PassASecond();
    PassASecond();
    ASSERT_GT(view.SecondsLeft(), 0);

    view.StartRun(1'000);
    PassASecond();
    EXPECT_EQ(view.Fraction(), 0);
    EXPECT_EQ(view.SecondsLeft(), -1);

    view.SetPos(10);
    PassASecond();
    EXPECT_EQ(view.Fraction(), 0.01);
}

TEST_F(CVqQuickProgressViewTest, ARangeOfNothingIsIndeterminate)
{
    view.Start();
    view.StartRun(0);
    view.SetPos(5);
    PassASecond();

    EXPECT_TRUE(view.IsIndeterminate());
    EXPECT_EQ(view.Fraction(), 0);
}

TEST_F(CVqQuickProgressViewTest, TheElapsedTimeCountsFromItsMaking)
{
    clock.Step(2'600);
    view.Start();

    EXPECT_EQ(view.SecondsElapsed(), 2);
}

TEST_F(CVqQuickProgressViewTest, TheEstimateCountsFromItsMaking)
{
    clock.Step(10'000);
    view.SetPos(25);

    view.Start();

    EXPECT_EQ(view.SecondsLeft(), 30);
}

TEST_F(CVqQuickProgressViewTest, LongWorkHasARightEstimateWhateverTheLabelSays)
{
    view.StartRun(3'610'000'000u);
    clock.Step(1'000'000);
    view.SetPos(10'000'000);
    Label(u"Time remaining: 12 seconds");

    view.Start();

    EXPECT_EQ(view.SecondsLeft(), 360'000);
    EXPECT_EQ(view.Label(), u"Time remaining: 12 seconds"_s);
}

TEST_F(CVqQuickProgressViewTest, ALabelIsAnnouncedAtOnceAndTheNextOnesEveryFiveSeconds)
{
    Label(u"0");
    view.Start();
    const QSignalSpy announcements(&view, &CVqQuickProgressView::announcementChanged);
    EXPECT_EQ(view.Announcement(), u"0"_s);

    for (int second = 1; second <= 12; ++second) {
        view.SetLabel(CVqStringW::FromQString(QString::number(second)));
        PassASecond();
    }

    EXPECT_EQ(view.Label(), u"12"_s);
    EXPECT_EQ(announcements.size(), 2);
    EXPECT_EQ(view.Announcement(), u"10"_s);
}

TEST_F(CVqQuickProgressViewTest, TheLastLabelIsAnnouncedWithoutAnyFurtherCall)
{
    Label(u"first");
    view.Start();
    Label(u"last");
    QSignalSpy announcements(&view, &CVqQuickProgressView::announcementChanged);

    clock.Step(5'000);

    EXPECT_TRUE(announcements.wait(g_longest_wait));
    EXPECT_EQ(view.Announcement(), u"last"_s);
}

TEST_F(CVqQuickProgressViewTest, ALabelThatIsTakenAwayIsNotAnnounced)
{
    Label(u"first");
    view.Start();
    Label(u"");
    clock.Step(10'000);
    view.ProcessEvents();

    EXPECT_EQ(view.Label(), QString());
    EXPECT_EQ(view.Announcement(), u"first"_s);
}

TEST_F(CVqQuickProgressViewTest, CancelAsksForTheEnd)
{
    const QSignalSpy requests(&view, &CVqQuickProgressView::cancelRequested);

    view.cancel();

    EXPECT_EQ(requests.size(), 1);
}

TEST_F(CVqQuickProgressViewTest, CancelDoesNothingWhileCancelling)
{
    const QSignalSpy requests(&view, &CVqQuickProgressView::cancelRequested);
    const QSignalSpy changes(&view, &CVqQuickProgressView::cancellingChanged);
    view.SetCancelling(true);
    view.SetCancelling(true);

    view.cancel();

    EXPECT_EQ(requests.size(), 0);
    EXPECT_EQ(changes.size(), 1);
}

TEST_F(CVqQuickProgressViewTest, LetsQtProcessWhatWaitsFromStartOn)
{
    int processed = 0;
    const auto post = [&] { QMetaObject::invokeMethod(&view, [&] { ++processed; }, Qt::QueuedConnection); };
    post();
    view.ProcessEvents();
    EXPECT_EQ(processed, 0);

    view.Start();
    PassASecond();
    EXPECT_EQ(processed, 1);
}

TEST_F(CVqQuickProgressViewTest, LetsQtProcessEventsOnceAFrame)
{
    view.Start();
    int processed = 0;

    for (int call = 0; call < 100; ++call) {
        QMetaObject::invokeMethod(&view, [&] { ++processed; }, Qt::QueuedConnection);
        view.ProcessEvents();
    }

    EXPECT_EQ(processed, 1);
}

TEST_F(CVqQuickProgressViewTest, DoesNotProcessEventsWithinItself)
{
    view.Start();
    int depth = 0;
    QObject::connect(&view, &CVqQuickProgressView::eventsAsked, [&] {
        ++depth;
        view.ProcessEvents();
    });

    view.ProcessEvents();

    EXPECT_EQ(depth, 1);
}
