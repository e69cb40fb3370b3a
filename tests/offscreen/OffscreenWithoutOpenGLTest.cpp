#include "offscreen/OffscreenQuickView.h"
#include "tests/offscreen/ColourItem.h"
#include "tests/offscreen/FramedWindow.h"
#include "tests/offscreen/QmlFolder.h"

#include <QQmlEngine>

#include <gtest/gtest.h>

// The scene graph runs on the software back end here, on a platform without OpenGL and on one that has it.

TEST(OffscreenWithoutOpenGL, TheSceneGraphIsAnother)
{
    const OffscreenQuickWindow window;

    EXPECT_EQ(window.rendererInterface()->graphicsApi(), QSGRendererInterface::Software);
}

TEST(OffscreenWithoutOpenGL, AWindowGivesANullPicture)
{
    FramedWindow window({40, 20});
    const ColourItem item(window.contentItem(), {40, 20}, Qt::red);

    const QImage picture = window.grab();

    EXPECT_TRUE(picture.isNull());
}

TEST(OffscreenWithoutOpenGL, AWindowHasNoFrames)
{
    FramedWindow window({40, 20});
    ColourItem item(window.contentItem(), {40, 20}, Qt::red);

    item.SetColour(Qt::blue);
    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_EQ(window.Frames(), 0);
    EXPECT_EQ(item.Syncs(), 0);
}

TEST(OffscreenWithoutOpenGL, AWindowTakesSizes)
{
    FramedWindow window({40, 20});

    window.resize(30, 10);

    EXPECT_EQ(window.size(), QSize(30, 10));
    EXPECT_EQ(window.d_func()->fbo, nullptr);
}

TEST(OffscreenWithoutOpenGL, AViewLoadsItsSourceAndGivesANullPicture)
{
    QmlFolder folder;
    OffscreenQuickView view;

    view.setSource(folder.Scene("Rectangle { width: 50; height: 40; Text { text: 'x' } }"));
    const QImage picture = view.grab();

    EXPECT_EQ(view.status(), OffscreenQuickView::Ready);
    EXPECT_EQ(view.size(), QSize(50, 40));
    EXPECT_TRUE(picture.isNull());
}

TEST(OffscreenWithoutOpenGL, AViewWithADueFrameEndsAsWell)
{
    QmlFolder folder;
    QQmlEngine engine;
    {
        OffscreenQuickView view(&engine);
        view.setSource(folder.Scene("Rectangle { width: 50; height: 40 }"));
    }

    QCoreApplication::processEvents();

    EXPECT_EQ(QOpenGLContext::currentContext(), nullptr);
}
