#include "tests/offscreen/ColourItem.h"
#include "tests/offscreen/FramedWindow.h"
#include "tests/offscreen/PixelPainter.h"
#include "tests/support/PictureCompare.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace {

constexpr QSize g_size(40, 20);
constexpr QSize g_other_size(30, 50);

/// Does something the first time that it is polished.
class PolishedItem : public ColourItem
{
public:
    PolishedItem(QQuickItem* parent, std::function<void()> work)
        : ColourItem(parent, {100, 100}, Qt::red), m_work(std::move(work))
    {
        polish();
    }

protected:
    void updatePolish() override
    {
        if (m_work)
            std::exchange(m_work, nullptr)();
    }

private:
    std::function<void()> m_work;
};

}

// What code that runs while a frame is drawn, or when it is told, may do with the window.

TEST(OffscreenQuickWindowHandlers, APolishMayResizeTheWindowThatIsGrabbed)
{
    FramedWindow window(g_size);
    const PolishedItem item(window.contentItem(), [&] { window.resize(g_other_size); });

    const QImage picture = window.grab();

    EXPECT_TRUE(EqualPictures(picture, PixelPainter::Blank(g_other_size, Qt::red)));
    EXPECT_TRUE(window.IsCurrent());
}

TEST(OffscreenQuickWindowHandlers, APolishMayResizeTheWindowInATimedFrame)
{
    FramedWindow window(g_size);
    const PolishedItem item(window.contentItem(), [&] { window.resize(g_other_size); });

    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_TRUE(EqualPictures(window.Drawn(), PixelPainter::Blank(g_other_size, Qt::red)));
}

TEST(OffscreenQuickWindowHandlers, AFrameMayBeGrabbedWhenItIsToldAndBringsNoOther)
{
    FramedWindow window(g_size);
    const ColourItem item(window.contentItem(), g_size, Qt::red);
    QImage picture;
    QObject::connect(&window, &OffscreenQuickWindow::sceneRendered, &window,
                     [&] { picture = window.grab(); });

    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_EQ(window.Frames(), 1);
    EXPECT_TRUE(EqualPictures(picture, PixelPainter::Blank(g_size, Qt::red)));
}

TEST(OffscreenQuickWindowHandlers, AWindowMayBeResizedWhenAFrameIsTold)
{
    FramedWindow window(g_size);
    const ColourItem item(window.contentItem(), g_other_size, Qt::red);
    QObject::connect(
        &window, &OffscreenQuickWindow::sceneRendered, &window, [&] { window.resize(g_other_size); },
        Qt::SingleShotConnection);

    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_TRUE(EqualPictures(window.grab(), PixelPainter::Blank(g_other_size, Qt::red)));
}

TEST(OffscreenQuickWindowHandlers, AWindowMayEndWhenAFrameIsTold)
{
    auto window = std::make_unique<FramedWindow>(g_size);
    window->update();
    QObject::connect(window.get(), &OffscreenQuickWindow::sceneRendered, [&] { window.reset(); });

    const bool is_gone = QTest::qWaitFor([&] { return !window; }, 20'000);

    EXPECT_TRUE(is_gone);
    EXPECT_EQ(QOpenGLContext::currentContext(), nullptr);
}
