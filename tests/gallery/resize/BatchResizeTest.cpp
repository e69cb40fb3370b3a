#include "gallery/resize/BatchResize.h"

#include "tests/gallery/resize/ImageFolder.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_longest_run = 60000; // ms

/// A window of the program, of the name `name`; null while there is none.
QWindow* window_of(const QString& name)
{
    for (QWindow* window : QGuiApplication::topLevelWindows())
        if (window->objectName() == name)
            return window;
    return nullptr;
}

class BatchResizeTest : public testing::Test
{
protected:
    void Start(const QString& width = u"10"_s) { m_batch.start(m_folder.In(), m_folder.Out(), width); }

    void WaitForEnd()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !m_batch.IsRunning(); }, g_longest_run));
    }

    ImageFolder m_folder;
    Gallery::BatchResize m_batch;
};

}

TEST_F(BatchResizeTest, BeginsWithoutAnOutcome)
{
    EXPECT_FALSE(m_batch.IsRunning());
    EXPECT_EQ(m_batch.Outcome(), QString());
    EXPECT_FALSE(m_batch.HasFailed());
}

TEST_F(BatchResizeTest, ARunIsToldAtItsEnd)
{
    m_folder.ManyImages(3, {20, 20});
    const QSignalSpy changes(&m_batch, &Gallery::BatchResize::Changed);

    Start();
    EXPECT_TRUE(m_batch.IsRunning());
    WaitForEnd();

    EXPECT_EQ(m_batch.Outcome(), u"Images resized: 3 of 3."_s);
    EXPECT_FALSE(m_batch.HasFailed());
    EXPECT_EQ(changes.size(), 2);
    EXPECT_EQ(m_folder.OutNames().size(), 3);
    EXPECT_TRUE(m_folder.OutIsWhole(10));
}

TEST_F(BatchResizeTest, WhatFailedIsListedWithItsReason)
{
    m_folder.ManyImages(1, {20, 20});
    m_folder.Write(u"text.png"_s, "text");

    Start();
    WaitForEnd();

    EXPECT_EQ(m_batch.Outcome(), u"Images resized: 1 of 2. Failed: 1."_s);
    EXPECT_TRUE(m_batch.HasFailed());
    EXPECT_EQ(m_batch.FailedNames(), QStringList{u"text.png"_s});
    EXPECT_EQ(m_batch.Reasons(), QStringList{u"it is no image, whatever its name says"_s});
}

TEST_F(BatchResizeTest, AnotherRunForgetsTheLastOne)
{
    m_folder.Write(u"text.png"_s, "text");
    Start();
    WaitForEnd();
    m_folder.Image(u"text.png"_s, {20, 20});

    Start();
    WaitForEnd();

    EXPECT_FALSE(m_batch.HasFailed());
    EXPECT_TRUE(m_batch.FailedNames().isEmpty());
}

TEST_F(BatchResizeTest, WhatCannotBeginIsToldAtOnce)
{
    Start(u"0"_s);

    EXPECT_FALSE(m_batch.IsRunning());
    EXPECT_TRUE(m_batch.HasFailed());
    EXPECT_EQ(m_batch.Outcome(), u"A width of 0 pixels leaves nothing: 1 is the smallest."_s);
}

TEST_F(BatchResizeTest, AMissingFolderIsToldAtOnce)
{
    m_batch.start({}, m_folder.Out(), u"10"_s);

    EXPECT_EQ(m_batch.Outcome(), u"There is no folder to take images from."_s);
}

TEST_F(BatchResizeTest, AFolderWithoutImagesIsNoFailure)
{
    Start();

    EXPECT_FALSE(m_batch.IsRunning());
    EXPECT_FALSE(m_batch.HasFailed());
    EXPECT_EQ(m_batch.Outcome(), u"There are no images in %1."_s.arg(m_folder.In()));
}

TEST_F(BatchResizeTest, WhileOneRunsThereIsNoOther)
{
    m_folder.ManyImages(20, {400, 400});

    Start();
    Start(u"0"_s);

    EXPECT_EQ(m_batch.Outcome(), QString());
    WaitForEnd();
    EXPECT_TRUE(m_folder.OutIsWhole(10));
}

TEST_F(BatchResizeTest, CancelledItLeavesWholeImagesOnly)
{
    m_folder.ManyImages(900, {800, 600});

    Start();
    m_batch.Cancel();
    WaitForEnd();

    EXPECT_TRUE(m_batch.Outcome().startsWith(u"Cancelled. Images resized: "_s))
        << m_batch.Outcome().toStdString();
    EXPECT_LT(m_folder.OutNames().size(), 900);
    EXPECT_TRUE(m_folder.OutIsWhole(10));
}

TEST_F(BatchResizeTest, LongWorkShowsAWindowThatEscCancels)
{
    m_folder.ManyImages(900, {1600, 1200});

    Start();
    EXPECT_TRUE(QTest::qWaitFor([] { return window_of(u"progressWindow"_s) != nullptr; }, g_longest_run));
    QWindow* const window = window_of(u"progressWindow"_s);
    ASSERT_TRUE(window);
    EXPECT_TRUE(window->title().startsWith(u"Resizing images"_s)) << window->title().toStdString();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window));
    QTest::keyClick(window, Qt::Key_Escape);
    WaitForEnd();

    EXPECT_FALSE(window_of(u"progressWindow"_s));
    EXPECT_TRUE(m_batch.Outcome().startsWith(u"Cancelled. "_s)) << m_batch.Outcome().toStdString();
    EXPECT_TRUE(m_folder.OutIsWhole(10));
}

TEST_F(BatchResizeTest, ItsEndWaitsForTheImageInHand)
{
    m_folder.ManyImages(900, {800, 600});
    {
        Gallery::BatchResize batch;
        batch.start(m_folder.In(), m_folder.Out(), u"10"_s);
    }

    EXPECT_LT(m_folder.OutNames().size(), 900);
    EXPECT_TRUE(m_folder.OutIsWhole(10));
}
