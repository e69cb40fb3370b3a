#include "quick_backend/CVqQuickProgressWnd.h"

#include "tests/quick_backend/ProgressFixture.h"

#include <QQmlEngine>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_longest_wait = 5'000; // ms

CVqStringW text(const char16_t* characters)
{
    return CVqStringW::FromQString(QString::fromUtf16(characters));
}

}

// Appearing ----------------------------------------------------------------------------------------------

TEST(CVqQuickProgressWnd, ShowsNothingBeforeTheDelayIsOver)
{
    SteppedProgress progress;
    progress.Clock().Step(499);

    progress->SetPos(40);
    progress->SetLabel(text(u"one.png"));
    progress->CheckCanceled();

    EXPECT_EQ(progress->Window(), nullptr);
    EXPECT_EQ(progress->GetHandle(), nullptr);
}

TEST(CVqQuickProgressWnd, AppearsWithTheFirstPositionAfterTheDelay)
{
    SteppedProgress progress;
    progress.Clock().Step(500);

    progress->SetPos(40);

    ASSERT_TRUE(progress->Window());
    EXPECT_TRUE(progress->Window()->isVisible());
    EXPECT_EQ(progress->GetHandle(), reinterpret_cast<__vq_hwnd*>(progress->Window()->winId()));
}

TEST(CVqQuickProgressWnd, AppearsWithTheFirstLabelAfterTheDelay)
{
    SteppedProgress progress;
    progress.Clock().Step(500);

    progress->SetLabel(text(u"one.png"));

    EXPECT_TRUE(progress->Window());
}

TEST(CVqQuickProgressWnd, AppearsWhenWorkWithoutStepsAsksWhetherItIsCancelled)
{
    SteppedProgress progress;
    progress.Clock().Step(500);

    progress->CheckCanceled();

    EXPECT_TRUE(progress->Window());
}

TEST(CVqQuickProgressWnd, AppearsByItselfWhileTheEventLoopRuns)
{
    SteppedProgress progress;
    progress.Clock().Step(490);
    QSignalSpy elapsed(&progress.Wnd(), &CVqQuickProgressWnd::delayElapsed);

    progress->setDelay(10);
    progress.Clock().Step(10);

    EXPECT_TRUE(elapsed.wait(g_longest_wait));
    EXPECT_TRUE(progress->Window());
}

TEST(CVqQuickProgressWnd, WorkThatEndsSoonerShowsNothing)
{
    int appeared = 0;
    {
        SteppedProgress progress;
        QObject::connect(&progress.Wnd(), &CVqQuickProgressWnd::delayElapsed, [&] { ++appeared; });
        for (int step = 0; step < 100; ++step) {
            progress.Clock().Step(4.9);
            progress->IncrementPos();
            progress->CheckCanceled();
        }
    }

    EXPECT_EQ(appeared, 0);
    EXPECT_TRUE(QGuiApplication::topLevelWindows().isEmpty());
}

TEST(CVqQuickProgressWnd, DelayElapsedComesOnceAndWithTheWindow)
{
    SteppedProgress progress;
    QList<bool> shown;
    QObject::connect(&progress.Wnd(), &CVqQuickProgressWnd::delayElapsed,
                     [&] { shown += progress->Window() && progress->Window()->isVisible(); });
    progress.Clock().Step(500);

    for (int step = 0; step < 10; ++step) {
        progress->IncrementPos();
        progress.PassASecond();
    }

    EXPECT_EQ(shown, QList<bool>{true});
}

TEST(CVqQuickProgressWnd, SettingTheDelayCountsItFromThen)
{
    SteppedProgress progress;
    progress.Clock().Step(400);

    progress->setDelay(300);

    progress.Clock().Step(299);
    progress->SetPos(1);
    EXPECT_EQ(progress->Window(), nullptr);

    progress.Clock().Step(1);
    progress->SetPos(2);
    EXPECT_TRUE(progress->Window());
}

TEST(CVqQuickProgressWnd, SettingTheDelayOfAWindowThatShowsLeavesItThere)
{
    SteppedProgress progress;
    progress.Appear();
    const QQuickWindow* const window = progress->Window();
    const QSignalSpy elapsed(&progress.Wnd(), &CVqQuickProgressWnd::delayElapsed);

    progress->setDelay(10);
    progress.PassASecond();

    EXPECT_EQ(progress->Window(), window);
    EXPECT_TRUE(elapsed.isEmpty());
}

TEST(CVqQuickProgressWnd, WithoutADelayItAppearsWithTheFirstPosition)
{
    CVqQuickProgressWnd progress(VQ_TEXT("Resize"), 100, 0);
    EXPECT_EQ(progress.Window(), nullptr);

    progress.SetPos(0);

    EXPECT_TRUE(progress.Window());
}

TEST(CVqQuickProgressWnd, TheLongestDelayWaits)
{
    CVqQuickProgressWnd progress(VQ_TEXT("Resize"), 100, std::numeric_limits<unsigned int>::max());

    progress.SetPos(1);
    QCoreApplication::processEvents();

    EXPECT_EQ(progress.Window(), nullptr);
}

TEST(CVqQuickProgressWnd, WhatWasSetBeforeShowsWhenItAppears)
{
    SteppedProgress progress;
    progress->SetLabel(text(u"one.png"));
    progress->SetPos(25);

    progress.Appear();

    EXPECT_EQ(progress.Window().title(), u"Resize"_s);
    EXPECT_EQ(progress.Text("progressTitle"), u"Resize"_s);
    EXPECT_EQ(progress.Text("progressLabel"), u"one.png"_s);
    EXPECT_EQ(progress.Item("progressBar")->property("value").toDouble(), 0.25);
}

TEST(CVqQuickProgressWnd, GoesAwayWithItsEnd)
{
    {
        SteppedProgress progress;
        progress.Appear();
        ASSERT_EQ(QGuiApplication::topLevelWindows().size(), 1);
    }

    EXPECT_TRUE(QGuiApplication::topLevelWindows().isEmpty());
}

TEST(CVqQuickProgressWnd, IsMadeByAnEngineThatIsHandedIn)
{
    QQmlEngine engine;
    SteppedProgress progress;
    progress->SetEngine(&engine);

    progress.Appear();

    EXPECT_EQ(qmlEngine(&progress.Window()), &engine);
}

// What it shows ------------------------------------------------------------------------------------------

TEST(CVqQuickProgressWnd, ANewTitleShows)
{
    SteppedProgress progress;
    progress.Appear();

    progress->setTitle(VQ_TEXT("Convert"));
    progress.PassASecond();

    EXPECT_EQ(progress.Window().title(), u"Convert"_s);
}

TEST(CVqQuickProgressWnd, TheCounterShowsInTheTitle)
{
    SteppedProgress progress(true, 2);
    progress.Appear();

    progress->SetPos(3);
    progress.PassASecond();

    EXPECT_EQ(progress.Window().title(), u"Resize (3/100)"_s);
}

TEST(CVqQuickProgressWnd, ANewTitleShowsWithoutTheCounterUntilTheNextPosition)
{
    SteppedProgress progress(true, 2);
    progress->SetPos(3);
    progress.Appear();

    progress->setTitle(VQ_TEXT("Convert"));
    progress.PassASecond();
    EXPECT_EQ(progress.Window().title(), u"Convert"_s);

    progress->IncrementPos();
    progress.PassASecond();
    EXPECT_EQ(progress.Window().title(), u"Convert (4/100)"_s);
}

TEST(CVqQuickProgressWnd, TheSameRangeBeginsTheBarAnewToo)
{
    SteppedProgress progress;
    progress->SetPos(80);
    progress.Appear();

    progress->setRange(100);
    progress->SetPos(10);
    progress.PassASecond();

    EXPECT_EQ(progress.View().Fraction(), 0.1);
}

TEST(CVqQuickProgressWnd, ANewRangeBeginsTheBarAnew)
{
    SteppedProgress progress;
    progress->SetPos(80);
    progress.Appear();

    progress->setRange(200);
    progress->SetPos(10);
    progress.PassASecond();

    EXPECT_EQ(progress.View().Fraction(), 0.05);
}

TEST(CVqQuickProgressWnd, TheEstimateOfTheLabelCountsFromItsMakingWhateverTheClockSays)
{
    CVqQuickProgressWnd progress(VQ_TEXT("Resize"), 100, 0, true, 1, [now = 7e9]() mutable {
        now += 1'000;
        return now;
    });

    progress.SetPos(2);
    progress.CheckCanceled();

    EXPECT_TRUE(progress.View()->Label().contains(u"minute"_s)) << progress.View()->Label().toStdString();
}
