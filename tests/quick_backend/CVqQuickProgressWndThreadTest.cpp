#include "quick_backend/CVqQuickProgressWnd.h"
#include "tests/quick_backend/ProgressFixture.h"

#include <QThread>

#include <atomic>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_longest_wait = 5'000; // ms

}

TEST(CVqQuickProgressWndThread, AThreadPostsItsPositionsAndTheLastOneCounts)
{
    SteppedProgress progress;
    progress.Appear();
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        for (unsigned int step = 0; step <= 100'000; ++step)
            progress->PostPos(step / 1'000);
    }));

    thread->start();

    EXPECT_TRUE(QTest::qWaitFor([&] { return progress.View().Fraction() == 1; }, g_longest_wait));
    EXPECT_TRUE(thread->wait(g_longest_wait));
}

TEST(CVqQuickProgressWndThread, AThreadThatPostsWithoutAPauseLeavesTimeToOthers)
{
    SteppedProgress progress;
    std::atomic<bool> stop = false;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        while (!stop)
            progress->PostPos(50);
    }));
    thread->start();
    bool came = false;

    QMetaObject::invokeMethod(&progress.Wnd(), [&] { came = true; }, Qt::QueuedConnection);

    EXPECT_TRUE(QTest::qWaitFor([&] { return came; }, g_longest_wait));
    stop = true;
    EXPECT_TRUE(thread->wait(g_longest_wait));
}

TEST(CVqQuickProgressWndThread, AThreadPostsItsLabelsAndTheLastOneCounts)
{
    SteppedProgress progress;
    progress.Appear();
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        for (int file = 0; file <= 1'000; ++file)
            progress->PostLabel(QString::number(file));
    }));

    thread->start();

    EXPECT_TRUE(QTest::qWaitFor([&] { return progress.View().Label() == u"1000"_s; }, g_longest_wait));
    EXPECT_TRUE(thread->wait(g_longest_wait));
}

TEST(CVqQuickProgressWndThread, AThreadSeesThatTheUserHasCancelled)
{
    SteppedProgress progress;
    progress.Appear();
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        unsigned int step = 0;
        while (!progress->IsCanceled())
            progress->PostPos(++step);
    }));
    thread->start();

    progress->Cancel();

    EXPECT_TRUE(thread->wait(g_longest_wait));
}

TEST(CVqQuickProgressWndThread, AThreadSeesThatTheProgramHasCancelled)
{
    SteppedProgress progress;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        while (!progress->IsCanceled())
            progress->PostPos(1);
    }));
    thread->start();

    progress->CancelProgress();

    EXPECT_TRUE(QTest::qWaitFor([&] { return thread->isFinished(); }, g_longest_wait));
}

TEST(CVqQuickProgressWndThread, WhatIsPostedWhileTheWindowWaitsShowsWhenItAppears)
{
    SteppedProgress progress;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        progress->PostLabel(u"one.png"_s);
        progress->PostPos(25);
    }));
    thread->start();
    ASSERT_TRUE(thread->wait(g_longest_wait));
    progress.Clock().Step(500);

    EXPECT_TRUE(QTest::qWaitFor([&] { return progress.View().Fraction() == 0.25; }, g_longest_wait));
    EXPECT_EQ(progress.View().Label(), u"one.png"_s);
}

TEST(CVqQuickProgressWndThread, TheWindowMayEndBeforeItTakesWhatWasPosted)
{
    {
        SteppedProgress progress;
        progress.Appear();
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            progress->PostLabel(u"one.png"_s);
            progress->PostPos(25);
        }));
        thread->start();
        ASSERT_TRUE(thread->wait(g_longest_wait));
    }

    QCoreApplication::processEvents();

    EXPECT_TRUE(QGuiApplication::topLevelWindows().isEmpty());
}
