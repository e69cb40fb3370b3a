#include "docs/snippets/progress_guide.h"

#include "quick_backend/CVqQuickProgressView.h"
#include "quick_backend/CVqQuickProgressWnd.h"

#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_longest_wait = 5'000; // ms

const QStringList g_files{u"one.png"_s, u"two.png"_s};

}

TEST(ProgressGuide, TheLoopWorksOnEachFile)
{
    QStringList done;

    EXPECT_TRUE(work_through(g_files, [&](const QString& file) { done += file; }));
    EXPECT_EQ(done, g_files);
}

TEST(ProgressGuide, TheThreadTellsOfItsLastFile)
{
    CVqQuickProgressWnd progress(VQ_TEXT("Batch resize"), 2, 0);
    const std::unique_ptr<QThread> thread(
        QThread::create([&] { work_on_a_thread(progress, g_files, [](const QString&) { }); }));

    thread->start();

    EXPECT_TRUE(QTest::qWaitFor([&] { return progress.View()->Fraction() == 1; }, g_longest_wait));
    EXPECT_EQ(progress.View()->Label(), u"two.png"_s);
    EXPECT_TRUE(thread->wait(g_longest_wait));
}

TEST(ProgressGuide, TheThreadEndsWhenTheUserCancels)
{
    CVqQuickProgressWnd progress(VQ_TEXT("Batch resize"), 2, 0);
    QStringList done;
    progress.Cancel();

    work_on_a_thread(progress, g_files, [&](const QString& file) { done += file; });

    EXPECT_EQ(done, QStringList());
}
