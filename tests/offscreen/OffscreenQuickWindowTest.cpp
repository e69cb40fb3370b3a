#include "offscreen/OffscreenQuickWindow.h"

#include "tests/offscreen/ColourItem.h"
#include "tests/offscreen/FramedWindow.h"
#include "tests/offscreen/PixelPainter.h"
#include "tests/support/CaptureMessages.h"
#include "tests/support/PictureCompare.h"

#include <QMetaMethod>

#include <gtest/gtest.h>

namespace {

constexpr QSize g_size(40, 20);

/// A pixel in the middle, as it is stored.
QRgb pixel(const QImage& picture)
{
    return reinterpret_cast<const QRgb*>(picture.constScanLine(picture.height() / 2))[picture.width() / 2];
}

}

TEST(OffscreenQuickWindow, ANewWindowHasNoSizeAndNoParentAndIsNotShown)
{
    const OffscreenQuickWindow window;

    EXPECT_EQ(window.size(), QSize(0, 0));
    EXPECT_EQ(static_cast<const QObject&>(window).parent(), nullptr);
    EXPECT_EQ(window.transientParent(), nullptr);
    EXPECT_FALSE(window.isVisible());
}

TEST(OffscreenQuickWindow, ItsMetaObjectAddsOneSignal)
{
    const QMetaObject& meta = OffscreenQuickWindow::staticMetaObject;

    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 1);
    EXPECT_EQ(meta.method(meta.methodOffset()).methodSignature(), "sceneRendered()");
    EXPECT_EQ(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
    EXPECT_EQ(meta.superClass(), &QQuickWindow::staticMetaObject);
}

TEST(OffscreenQuickWindow, ConstructionLeavesNoContextCurrent)
{
    const OffscreenQuickWindow window;

    EXPECT_EQ(QOpenGLContext::currentContext(), nullptr);
}

TEST(OffscreenQuickWindow, ANewWindowAsksForNoFrame)
{
    const FramedWindow window;

    EXPECT_FALSE(window.d_func()->renderTimer.isActive());
    EXPECT_FALSE(window.d_func()->sceneDirty);
}

TEST(OffscreenQuickWindow, AChangeOfTheSceneBringsAFrame)
{
    FramedWindow window(g_size);

    const ColourItem item(window.contentItem(), g_size, Qt::red);
    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_EQ(window.Frames(), 1);
    EXPECT_TRUE(EqualPictures(window.Drawn(), PixelPainter::Blank(g_size, Qt::red)));
}

TEST(OffscreenQuickWindow, ABurstOfSceneChangesInOneTurnGivesOneSceneRendered)
{
    FramedWindow window(g_size);
    ColourItem item(window.contentItem(), g_size, Qt::red);
    ASSERT_TRUE(window.DrawDueFrames());

    for (int i = 0; i < 1000; ++i)
        item.SetColour(QColor(i % 256, 0, 0));
    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_EQ(window.Frames(), 2);
    EXPECT_EQ(item.Polishes(), 1);
    EXPECT_TRUE(EqualPictures(window.Drawn(), PixelPainter::Blank(g_size, QColor(999 % 256, 0, 0))));
}

TEST(OffscreenQuickWindow, ARepaintWithoutAChangeIsDrawnWithoutPolishAndSync)
{
    FramedWindow window(g_size);
    const ColourItem item(window.contentItem(), g_size, Qt::red);
    ASSERT_TRUE(window.DrawDueFrames());
    int syncs = 0, renders = 0;
    QObject::connect(&window, &QQuickWindow::afterSynchronizing, &window, [&] { ++syncs; });
    QObject::connect(&window, &QQuickWindow::afterRendering, &window, [&] { ++renders; });

    window.update();
    const bool dirty = window.d_func()->sceneDirty;
    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_FALSE(dirty);
    EXPECT_EQ(syncs, 0);
    EXPECT_EQ(renders, 1);
    EXPECT_EQ(window.Frames(), 2);
}

TEST(OffscreenQuickWindow, ARepaintBeforeAnyChangeIsDrawn)
{
    FramedWindow window(g_size);

    window.update();
    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_EQ(window.Frames(), 1);
    EXPECT_TRUE(EqualPictures(window.Drawn(), PixelPainter::Blank(g_size, Qt::white)));
}

TEST(OffscreenQuickWindow, ANewColourIsAChangeOfTheScene)
{
    FramedWindow window(g_size);
    window.update();
    ASSERT_TRUE(window.DrawDueFrames());

    window.setColor(Qt::blue);
    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_EQ(window.Frames(), 2);
    EXPECT_TRUE(EqualPictures(window.Drawn(), PixelPainter::Blank(g_size, Qt::blue)));
}

TEST(OffscreenQuickWindow, AChangeDuringTheDrawingWaitsForTheNextFrame)
{
    FramedWindow window(g_size);
    ColourItem item(window.contentItem(), g_size, Qt::red);
    const auto once = static_cast<Qt::ConnectionType>(Qt::DirectConnection | Qt::SingleShotConnection);
    QObject::connect(
        &window, &QQuickWindow::afterRendering, &window, [&] { item.SetColour(Qt::green); }, once);

    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_EQ(window.Frames(), 2);
    EXPECT_TRUE(EqualPictures(window.Drawn(), PixelPainter::Blank(g_size, Qt::green)));
}

TEST(OffscreenQuickWindow, DestroyingTheWindowWithTheTimerRunningFiresNoFurtherFrame)
{
    FramedWindow other(g_size);
    int frames = 0;
    {
        FramedWindow window(g_size);
        QObject::connect(&window, &OffscreenQuickWindow::sceneRendered, &other, [&] { ++frames; });
        const ColourItem item(window.contentItem(), g_size, Qt::red);
        ASSERT_TRUE(window.d_func()->renderTimer.isActive());
    }

    other.update();
    ASSERT_TRUE(other.DrawDueFrames());

    EXPECT_EQ(frames, 0);
}

TEST(OffscreenQuickWindow, GrabRightAfterASceneChangeGivesTheNewScene)
{
    FramedWindow window(g_size);
    ColourItem item(window.contentItem(), g_size, Qt::red);
    ASSERT_TRUE(window.DrawDueFrames());

    item.SetColour(Qt::green);
    const QImage picture = window.grab();

    EXPECT_TRUE(EqualPictures(picture, PixelPainter::Blank(g_size, Qt::green)));
    EXPECT_EQ(window.Frames(), 1);
}

TEST(OffscreenQuickWindow, TheTimedPassStillRunsAfterGrabAndSyncsOnceMore)
{
    FramedWindow window(g_size);
    const ColourItem item(window.contentItem(), g_size, Qt::red);
    int syncs = 0;
    QObject::connect(&window, &QQuickWindow::afterSynchronizing, &window, [&] { ++syncs; });

    window.grab();
    const int grab_syncs = syncs;
    const bool dirty = window.d_func()->sceneDirty;
    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_EQ(grab_syncs, 1);
    EXPECT_TRUE(dirty);
    EXPECT_EQ(syncs, 2);
    EXPECT_EQ(window.Frames(), 1);
    EXPECT_FALSE(window.d_func()->sceneDirty);
}

TEST(OffscreenQuickWindow, GrabWithoutAChangeNeitherPolishesNorSyncs)
{
    FramedWindow window(g_size);
    const ColourItem item(window.contentItem(), g_size, Qt::red);
    ASSERT_TRUE(window.DrawDueFrames());
    int syncs = 0;
    QObject::connect(&window, &QQuickWindow::afterSynchronizing, &window, [&] { ++syncs; });

    const QImage picture = window.grab();

    EXPECT_EQ(syncs, 0);
    EXPECT_FALSE(window.d_func()->renderTimer.isActive());
    EXPECT_TRUE(EqualPictures(picture, PixelPainter::Blank(g_size, Qt::red)));
}

TEST(OffscreenQuickWindow, GrabOfANewWindowShowsItsColour)
{
    OffscreenQuickWindow window;

    window.resize(g_size);

    EXPECT_TRUE(EqualPictures(window.grab(), PixelPainter::Blank(g_size, Qt::white)));
}

TEST(OffscreenQuickWindow, GrabOfAWindowWithoutASizeIsOneTransparentPixel)
{
    FramedWindow window;
    const ColourItem item(window.contentItem(), g_size, Qt::red);

    const QImage picture = window.grab();

    EXPECT_TRUE(EqualPictures(picture, PixelPainter::Blank({1, 1}, Qt::transparent)));
}

TEST(OffscreenQuickWindow, AWindowWithoutASizeStillTellsItsFrames)
{
    FramedWindow window;
    const ColourItem item(window.contentItem(), g_size, Qt::red);

    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_EQ(window.Frames(), 1);
}

TEST(OffscreenQuickWindow, AHalfTransparentItemOnATransparentWindowIsPremultiplied)
{
    OffscreenQuickWindow window;
    window.resize(g_size);
    const ColourItem item(window.contentItem(), g_size, QColor(255, 0, 0, 128));

    window.setColor(Qt::transparent);
    const QImage picture = window.grab();

    EXPECT_EQ(picture.format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(pixel(picture), 0x80800000);
}

// Qt clears with the colour as it is.
TEST(OffscreenQuickWindow, AHalfTransparentColourOfTheWindowIsNotPremultiplied)
{
    OffscreenQuickWindow window;
    window.resize(g_size);

    window.setColor(QColor(255, 0, 0, 128));

    EXPECT_EQ(pixel(window.grab()), 0x80ff0000);
}

TEST(OffscreenQuickWindow, ASizeThatOpenGLDoesNotHaveGivesANullPicture)
{
    const CaptureMessages complaints(QtDebugMsg);
    FramedWindow window(g_size);

    window.resize(1'000'000, 10);
    window.update();
    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_TRUE(window.grab().isNull());
    EXPECT_EQ(window.Frames(), 1);
}

TEST(OffscreenQuickWindow, ARealSizeAfterSuchASizeDrawsAgain)
{
    const CaptureMessages complaints(QtDebugMsg);
    FramedWindow window(g_size);
    window.resize(1'000'000, 10);

    window.resize(g_size);

    EXPECT_TRUE(EqualPictures(window.grab(), PixelPainter::Blank(g_size, Qt::white)));
}
