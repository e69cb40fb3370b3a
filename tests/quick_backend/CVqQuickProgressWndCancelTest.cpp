#include "quick_backend/CVqQuickProgressWnd.h"
#include "tests/quick_backend/ProgressFixture.h"

namespace {

void count(void* calls)
{
    ++*static_cast<int*>(calls);
}

void raise(bool* flag)
{
    *flag = true;
}

}

TEST(CVqQuickProgressWndCancel, CancellingCallsTheCallbacksOnce)
{
    SteppedProgress progress;
    int calls = 0;
    bool aborted = false;
    progress->SetCustomCancelCallback(count, &calls);
    progress->SetCustomAbortCallback(raise, &aborted);
    progress.Appear();

    progress->Cancel();
    progress->Cancel();
    progress.View().cancel();

    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(aborted);
    EXPECT_TRUE(progress->CheckCanceled());
}

TEST(CVqQuickProgressWndCancel, WhoeverHearsOfItMayAskAndCancelAgain)
{
    SteppedProgress progress;
    int calls = 0;
    progress->SetCustomCancelCallback(count, &calls);
    progress.Appear();
    QList<bool> cancelled;
    QObject::connect(&progress.View(), &CVqQuickProgressView::cancellingChanged, [&] {
        cancelled += progress.PassASecond();
        progress->Cancel();
    });

    progress->Cancel();

    EXPECT_EQ(cancelled, QList<bool>{true});
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(progress->IsCanceled());
}

TEST(CVqQuickProgressWndCancel, AProgramThatCancelsShowsItAndCallsNobody)
{
    SteppedProgress progress;
    int calls = 0;
    progress->SetCustomCancelCallback(count, &calls);
    progress.Appear();

    progress->CancelProgress();
    progress.PassASecond();
    progress.View().cancel();

    EXPECT_TRUE(progress.View().IsCancelling());
    EXPECT_EQ(calls, 0);
}

TEST(CVqQuickProgressWndCancel, WithFlag16NoEventsAreProcessed)
{
    SteppedProgress progress(true, 16);
    int processed = 0;
    QMetaObject::invokeMethod(&progress.Wnd(), [&] { ++processed; }, Qt::QueuedConnection);
    progress.Clock().Step(500);
    progress->SetPos(1);

    progress.PassASecond();

    EXPECT_TRUE(progress->Window());
    EXPECT_EQ(processed, 0);
}
