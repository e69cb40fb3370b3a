#include <QQuickWindow>

#include <gtest/gtest.h>

namespace {

/// The choice that an application makes before its first window, and what keeps one test from the next: plain
/// windows leave the time of animations alone, and no compiled QML is kept in the user's cache.
class OpenGLEnvironment : public testing::Environment
{
public:
    void SetUp() override
    {
        qputenv("QSG_RENDER_LOOP", "basic");
        qputenv("QML_DISABLE_DISK_CACHE", "1");
        QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    }
};

const testing::Environment* const environment = testing::AddGlobalTestEnvironment(new OpenGLEnvironment);

}
