#include "tests/support/ProcessLoad.h"

#include <QObject>
#include <QThread>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

TEST(ProcessLoad, ANewObjectCountsUntilItGoes)
{
    const qint64 before = LiveQObjects();

    auto object = std::make_unique<QObject>();
    EXPECT_EQ(LiveQObjects(), before + 1);

    object.reset();
    EXPECT_EQ(LiveQObjects(), before);
}

TEST(ProcessLoad, ChildrenGoWithTheirParent)
{
    const qint64 before = LiveQObjects();
    auto parent = std::make_unique<QObject>();
    new QObject(parent.get());
    new QObject(parent.get());
    EXPECT_EQ(LiveQObjects(), before + 3);

    parent.reset();

    EXPECT_EQ(LiveQObjects(), before);
}

TEST(ProcessLoad, ObjectsOfOtherThreadsCountToo)
{
    std::unique_ptr<QObject> object;
    const std::unique_ptr<QThread> thread(QThread::create([&] { object = std::make_unique<QObject>(); }));
    thread->start();
    thread->wait();
    const qint64 before = LiveQObjects();

    object.reset();

    EXPECT_EQ(LiveQObjects(), before - 1);
}

TEST(ProcessLoad, ResidentMemoryGrowsWithWhatIsWritten)
{
    const qint64 before = ResidentBytes();

    const std::vector<char> written(64 << 20, 'x');

    EXPECT_GT(before, 0);
    EXPECT_GE(ResidentBytes() - before, 60 << 20);
    EXPECT_EQ(written.back(), 'x');
}
