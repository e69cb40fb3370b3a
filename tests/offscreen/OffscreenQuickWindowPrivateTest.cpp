#include "offscreen/OffscreenQuickWindowPrivate.h"

#include "tests/offscreen/ColourItem.h"
#include "tests/offscreen/FramedWindow.h"

#include <QMetaMethod>

#include <gmock/gmock.h>

#include <algorithm>

using testing::ElementsAre;

namespace {

constexpr QSize g_size(40, 20);

bool call(FramedWindow& window, const char* slot)
{
    return QMetaObject::invokeMethod(window.d_func(), slot);
}

}

TEST(OffscreenQuickWindowPrivate, ItsMetaObjectHasFourSlotsInOrder)
{
    const OffscreenQuickWindow window;
    const QMetaObject& meta = OffscreenQuickWindowPrivate::staticMetaObject;
    std::vector<std::string> slots_found;

    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        slots_found.push_back(meta.method(i).methodSignature().toStdString());

    EXPECT_THAT(slots_found,
                ElementsAre("sceneGraphInitialized()", "sceneGraphInvalidated()", "renderRequested()",
                            "sceneChanged()"));
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        EXPECT_EQ(meta.method(i).methodType(), QMetaMethod::Slot);
}

TEST(OffscreenQuickWindowPrivate, ItsFieldsLieInOrder)
{
    FramedWindow window;
    OffscreenQuickWindowPrivate& d = *window.d_func();

    const std::vector<const void*> fields{&d.context,     &d.surface, &d.renderControl, &d.fbo, &d.sceneDirty,
                                          &d.renderTimer, &d.q};

    EXPECT_TRUE(std::is_sorted(fields.begin(), fields.end(), std::less<>()));
}

TEST(OffscreenQuickWindowPrivate, WhatItOwnsHasNoParent)
{
    FramedWindow window;
    const OffscreenQuickWindowPrivate& d = *window.d_func();

    EXPECT_EQ(d.parent(), nullptr);
    EXPECT_EQ(d.context->parent(), nullptr);
    EXPECT_EQ(d.surface->parent(), nullptr);
    EXPECT_EQ(d.renderControl->parent(), nullptr);
}

TEST(OffscreenQuickWindowPrivate, TheWindowTookItsRenderControl)
{
    FramedWindow window;
    const OffscreenQuickWindowPrivate& d = *window.d_func();

    EXPECT_EQ(d.q, &window);
    EXPECT_EQ(d.renderControl->window(), &window);
}

TEST(OffscreenQuickWindowPrivate, BothFormsOfTheWindowsAccessGiveIt)
{
    FramedWindow window;

    EXPECT_EQ(std::as_const(window).d_func(), window.d_func());
}

TEST(OffscreenQuickWindowPrivate, TheTimerIsASingleShotOfFiveMilliseconds)
{
    FramedWindow window;
    const QTimer& timer = window.d_func()->renderTimer;

    EXPECT_TRUE(timer.isSingleShot());
    EXPECT_EQ(timer.interval(), 5);
}

TEST(OffscreenQuickWindowPrivate, TheContextHasDepthAndStencil)
{
    FramedWindow window;
    const QOpenGLContext& context = *window.d_func()->context;

    EXPECT_TRUE(context.isValid());
    EXPECT_GE(context.format().depthBufferSize(), 16);
    EXPECT_GE(context.format().stencilBufferSize(), 8);
}

TEST(OffscreenQuickWindowPrivate, TheSurfaceHasTheFormatThatTheContextReallyGot)
{
    FramedWindow window;
    const OffscreenQuickWindowPrivate& d = *window.d_func();

    EXPECT_TRUE(d.surface->isValid());
    EXPECT_EQ(d.surface->requestedFormat(), d.context->format());
}

TEST(OffscreenQuickWindowPrivate, TheSceneGraphDrawsWithTheContext)
{
    FramedWindow window(g_size);
    const QSGRendererInterface& renderer = *window.rendererInterface();

    const void* used = renderer.getResource(&window, QSGRendererInterface::OpenGLContextResource);

    EXPECT_EQ(used, window.d_func()->context.get());
}

TEST(OffscreenQuickWindowPrivate, TheFramebufferObjectIsATextureWithDepthAndStencil)
{
    FramedWindow window(g_size);
    const QOpenGLFramebufferObjectFormat format = window.d_func()->fbo->format();

    EXPECT_EQ(format.attachment(), QOpenGLFramebufferObject::CombinedDepthStencil);
    EXPECT_EQ(format.textureTarget(), GLenum(GL_TEXTURE_2D));
    EXPECT_EQ(format.internalTextureFormat(), GLenum(GL_RGBA8)); // what Qt takes without being told
    EXPECT_EQ(format.samples(), 0);
}

TEST(OffscreenQuickWindowPrivate, SceneGraphInvalidatedDropsTheFramebufferObject)
{
    FramedWindow window(g_size);
    ASSERT_TRUE(window.d_func()->makeCurrent());

    call(window, "sceneGraphInvalidated");

    EXPECT_EQ(window.d_func()->fbo, nullptr);
}

TEST(OffscreenQuickWindowPrivate, WithoutAFramebufferObjectThereIsNoPictureAndNoFrame)
{
    FramedWindow window(g_size);
    ASSERT_TRUE(window.d_func()->makeCurrent());
    call(window, "sceneGraphInvalidated");

    window.update();
    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_TRUE(window.grab().isNull());
    EXPECT_EQ(window.Frames(), 0);
}

TEST(OffscreenQuickWindowPrivate, SceneGraphInitializedMakesTheFramebufferObject)
{
    FramedWindow window(g_size);
    ASSERT_TRUE(window.d_func()->makeCurrent());
    call(window, "sceneGraphInvalidated");

    call(window, "sceneGraphInitialized");

    ASSERT_NE(window.d_func()->fbo, nullptr);
    EXPECT_EQ(window.d_func()->fbo->size(), g_size);
}

TEST(OffscreenQuickWindowPrivate, RenderRequestedStartsTheTimerAndLeavesTheSceneClean)
{
    FramedWindow window(g_size);
    ASSERT_TRUE(window.DrawDueFrames());

    call(window, "renderRequested");

    EXPECT_TRUE(window.d_func()->renderTimer.isActive());
    EXPECT_FALSE(window.d_func()->sceneDirty);
}

TEST(OffscreenQuickWindowPrivate, SceneChangedStartsTheTimerAndMakesTheSceneDirty)
{
    FramedWindow window(g_size);
    ASSERT_TRUE(window.DrawDueFrames());

    call(window, "sceneChanged");

    EXPECT_TRUE(window.d_func()->renderTimer.isActive());
    EXPECT_TRUE(window.d_func()->sceneDirty);
}

class OffscreenQuickWindowPrivateRequests : public testing::TestWithParam<const char*>
{ };

// A timer that is started anew gets another identifier.
TEST_P(OffscreenQuickWindowPrivateRequests, DoNotPutOffTheFrameThatIsDue)
{
    FramedWindow window(g_size);
    call(window, "renderRequested");
    const int timer = window.d_func()->renderTimer.timerId();

    call(window, GetParam());

    EXPECT_EQ(window.d_func()->renderTimer.timerId(), timer);
}

INSTANTIATE_TEST_SUITE_P(Each, OffscreenQuickWindowPrivateRequests,
                         testing::Values("renderRequested", "sceneChanged"),
                         [](const auto& row) { return std::string(row.param); });

TEST(OffscreenQuickWindowPrivate, AFramePolishesSynchronisesDrawsAndTells)
{
    FramedWindow window(g_size);
    ASSERT_TRUE(window.DrawDueFrames());
    std::vector<std::string> steps;
    ColourItem item(window.contentItem(), g_size, Qt::red);
    item.SetColour(Qt::blue);
    const auto record = [&](auto signal, const std::string& step) {
        QObject::connect(&window, signal, &window, [&, step] {
            steps.push_back(step + (item.Polishes() > 0 ? ", polished" : "")
                            + (window.d_func()->sceneDirty ? ", dirty" : ""));
        });
    };
    record(&QQuickWindow::beforeFrameBegin, "begin");
    record(&QQuickWindow::beforeSynchronizing, "sync");
    record(&QQuickWindow::beforeRendering, "render");
    record(&QQuickWindow::afterFrameEnd, "end");
    record(&OffscreenQuickWindow::sceneRendered, "told");

    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_THAT(steps,
                ElementsAre("begin, polished, dirty", "sync, polished, dirty", "render, polished",
                            "end, polished", "told, polished"));
}
