#include "tests/quick_backend/ProgressFixture.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {

void count(void* calls)
{
    ++*static_cast<int*>(calls);
}

/// Presses the button over the window's middle, and a key, while a progress window processes events.
void use_meanwhile(QWindow& window, SteppedProgress& progress)
{
    QMetaObject::invokeMethod(
        &window,
        [&window] {
            QTest::mouseClick(&window, Qt::LeftButton, {}, {window.width() / 2, window.height() / 2});
            QTest::keyClick(&window, Qt::Key_A);
        },
        Qt::QueuedConnection);
    progress.PassASecond();
}

class ScopedPalette
{
public:
    explicit ScopedPalette(const QPalette& palette) { QGuiApplication::setPalette(palette); }
    ScopedPalette(const ScopedPalette&) = delete;
    ScopedPalette& operator=(const ScopedPalette&) = delete;
    ~ScopedPalette() { QGuiApplication::setPalette(m_former); }

private:
    const QPalette m_former = QGuiApplication::palette();
};

struct Look
{
    std::string name;
    QColor ground;
    QColor ink;
    QColor accent;
};

class ProgressWindowLook : public testing::TestWithParam<Look>
{ };

INSTANTIATE_TEST_SUITE_P(, ProgressWindowLook,
                         testing::Values(Look{"Light", QColor(0xf4f5f7), QColor(0x22252b), QColor(0x2f67a8)},
                                         Look{"Dark", QColor(0x26282c), QColor(0xe6e8ec), QColor(0x6ea8e5)}),
                         [](const auto& row) { return row.param.name; });

QPalette palette_of(const Look& look)
{
    QPalette palette(look.ground);
    palette.setColor(QPalette::Window, look.ground);
    palette.setColor(QPalette::WindowText, look.ink);
    palette.setColor(QPalette::ButtonText, look.ink);
    palette.setColor(QPalette::Highlight, look.accent);
    return palette;
}

}

TEST_P(ProgressWindowLook, FollowsTheColoursOfTheApplication)
{
    const ScopedPalette palette(palette_of(GetParam()));
    SteppedProgress progress;
    progress->SetPos(50);
    progress.Appear();

    const QImage picture = progress.Window().grabWindow();

    const QQuickItem* bar = progress.Item("progressBar");
    const int middle = int(bar->mapToScene({0, bar->height() / 2}).y());
    EXPECT_EQ(picture.pixelColor(3, 3), GetParam().ground);
    EXPECT_EQ(picture.pixelColor(picture.width() / 2 - 10, middle), GetParam().accent);
    EXPECT_NE(picture.pixelColor(picture.width() / 2 + 10, middle), GetParam().ground);
    EXPECT_NE(picture.pixelColor(picture.width() / 2 + 10, middle), GetParam().accent);
}

TEST(ProgressWindow, TheCancelButtonCancelsOnceAndSaysSo)
{
    SteppedProgress progress;
    int calls = 0;
    progress->SetCustomCancelCallback(count, &calls);
    progress.Appear();

    progress.Click("progressCancel");
    EXPECT_EQ(progress.Text("progressCancel"), u"Cancelling..."_s);
    EXPECT_FALSE(progress.Item("progressCancel")->isEnabled());

    progress.Click("progressCancel");
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(progress->CheckCanceled());
}

TEST(ProgressWindow, EscapeCancelsOnce)
{
    SteppedProgress progress;
    int calls = 0;
    progress->SetCustomCancelCallback(count, &calls);
    progress.Appear();
    progress.Window().requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&progress.Window()));

    QTest::keyClick(&progress.Window(), Qt::Key_Escape);
    QTest::keyClick(&progress.Window(), Qt::Key_Escape);

    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(progress.View().IsCancelling());
}

TEST(ProgressWindow, ClosingItCancelsOnceAndLeavesItOpen)
{
    SteppedProgress progress;
    int calls = 0;
    progress->SetCustomCancelCallback(count, &calls);
    progress.Appear();

    progress.Window().close();
    progress.Window().close();

    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(progress.Window().isVisible());
}

TEST(ProgressWindow, AskedToQuitTheProgramStaysWithItsWindowsAndAllWorkIsCancelled)
{
    CountingWindow main;
    SteppedProgress outer;
    outer.Appear();
    SteppedProgress inner;
    inner.Appear();
    QEvent quit(QEvent::Quit);

    QCoreApplication::sendEvent(qApp, &quit);

    EXPECT_FALSE(quit.isAccepted());
    EXPECT_TRUE(main.isVisible());
    EXPECT_TRUE(outer.Window().isVisible());
    EXPECT_TRUE(outer.View().IsCancelling());
    EXPECT_TRUE(inner.View().IsCancelling());
}

TEST(ProgressWindow, WhileOthersAreSuppressedTheyGetNoPressesAndKeys)
{
    CountingWindow main;
    SteppedProgress progress(true);
    progress.Appear();

    use_meanwhile(main, progress);

    EXPECT_EQ(main.Presses(), 0);
    EXPECT_EQ(main.Keys(), 0);
}

TEST(ProgressWindow, WhileOthersAreNotSuppressedTheyGetPressesAndKeys)
{
    CountingWindow main;
    SteppedProgress progress(false);
    progress.Appear();

    use_meanwhile(main, progress);

    EXPECT_EQ(main.Presses(), 1);
    EXPECT_EQ(main.Keys(), 1);
}

TEST(ProgressWindow, OthersGetPressesAgainAfterItsEnd)
{
    CountingWindow main;
    {
        SteppedProgress progress(true);
        progress.Appear();
    }

    QTest::mouseClick(&main, Qt::LeftButton, {}, {50, 50});

    EXPECT_EQ(main.Presses(), 1);
}

TEST(ProgressWindow, ATightLoopSeesThePressOfTheButton)
{
    SteppedProgress progress;
    progress.Appear();
    QMetaObject::invokeMethod(
        &progress.Wnd(), [&] { progress.Click("progressCancel"); }, Qt::QueuedConnection);

    int rounds = 0;
    while (!progress.PassASecond() && rounds < 10)
        ++rounds;

    EXPECT_LT(rounds, 10);
}

TEST(ProgressWindow, ATightLoopIsDrawnAsItGoes)
{
    SteppedProgress progress;
    progress.Appear();
    const QSignalSpy frames(&progress.Window(), &QQuickWindow::frameSwapped);

    progress->SetPos(50);
    QElapsedTimer waited;
    waited.start();
    while (frames.isEmpty() && waited.elapsed() < 5'000)
        progress.PassASecond();

    EXPECT_FALSE(frames.isEmpty());
}

TEST(ProgressWindow, OneWithinAnotherStandsBeforeItAndBlocksIt)
{
    for (const bool suppress_others : {true, false}) {
        SCOPED_TRACE(suppress_others);
        SteppedProgress outer(suppress_others);
        outer.Appear();
        {
            SteppedProgress inner(suppress_others);
            inner.Appear();

            outer.Click("progressCancel");
            EXPECT_FALSE(outer.View().IsCancelling());
            EXPECT_EQ(inner.Window().transientParent(), &outer.Window());

            inner.Click("progressCancel");
            EXPECT_TRUE(inner.View().IsCancelling());
        }

        outer.Click("progressCancel");
        EXPECT_TRUE(outer.View().IsCancelling());
    }
}
