#include "tests/offscreen/ColourItem.h"
#include "tests/offscreen/FramedWindow.h"
#include "tests/support/ProcessLoad.h"
#include "tests/support/SmallStack.h"

#include <QCoreApplication>
#include <QDir>

#include <gmock/gmock.h>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;

namespace {

/// What the process holds at a moment.
struct SHoldings
{
    qint64 objects = 0;
    qint64 files = 0;
    qint64 threads = 0;
    qint64 bytes = 0;
};

qint64 entries(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

SHoldings holdings()
{
    return {LiveQObjects(), entries(u"/proc/self/fd"_s), entries(u"/proc/self/task"_s), ResidentBytes()};
}

void live(int count)
{
    for (int i = 0; i < count; ++i) {
        {
            FramedWindow window({64, 48});
            new ColourItem(window.contentItem(), {64, 48}, Qt::red);
            window.grab();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the group of the context
    }
}

/// What the process holds more after `count` windows in a row that were drawn.
SHoldings more_after(int count)
{
    live(count / 20); // what is made once, and what the allocator holds on to
    const SHoldings before = holdings();
    live(count);
    const SHoldings after = holdings();
    testing::Test::RecordProperty("bytes", int(after.bytes - before.bytes));
    return {after.objects - before.objects, after.files - before.files, after.threads - before.threads,
            after.bytes - before.bytes};
}

}

TEST(OffscreenQuickWindowLife, ItEndsSceneGraphSurfaceContextAndBaseInThisOrder)
{
    auto window = std::make_unique<FramedWindow>(QSize(40, 20));
    OffscreenQuickWindowPrivate& d = *window->d_func();
    QOpenGLContext* const context = d.context.get();
    std::vector<std::string> ends;
    const auto note = [&](const std::string& what) {
        ends.push_back(what + (QOpenGLContext::currentContext() == context ? " while current" : ""));
    };
    const QObject listener;
    QObject::connect(window.get(), &QQuickWindow::sceneGraphInvalidated, &listener,
                     [&] { note(d.fbo ? "scene graph" : "scene graph and framebuffer"); });
    const auto on_end = [&](const QObject& object, const std::string& what) {
        QObject::connect(&object, &QObject::destroyed, &listener, [&note, what] { note(what); });
    };
    on_end(*d.renderControl, "render control");
    on_end(*d.surface, "surface");
    on_end(*d.context, "context");
    on_end(d.renderTimer, "timer");
    on_end(d, "private object");
    on_end(*window->contentItem(), "base");

    window.reset();

    EXPECT_THAT(ends,
                ElementsAre("scene graph and framebuffer while current", "render control while current",
                            "surface", "context", "timer", "private object", "base"));
}

TEST(OffscreenQuickWindowLife, AWindowWithoutAUsableContextEndsAsWell)
{
    auto window = std::make_unique<FramedWindow>(QSize(40, 20));
    new ColourItem(window->contentItem(), {10, 10}, Qt::red);
    window->grab();

    window->d_func()->surface->destroy();
    window.reset();

    EXPECT_EQ(QOpenGLContext::currentContext(), nullptr);
}

TEST(OffscreenQuickWindowLife, AnItemOfSomebodyElseMayOutliveTheWindow)
{
    auto window = std::make_unique<FramedWindow>(QSize(40, 20));
    ColourItem item(window->contentItem(), {10, 10}, Qt::red);
    item.setParent(nullptr);
    window->grab();

    window.reset();

    EXPECT_EQ(item.parentItem(), nullptr);
    EXPECT_EQ(item.window(), nullptr);
}

TEST(OffscreenQuickWindowLife, WindowsInARowLeaveNothingOfTheirOwnBehind)
{
    int alive = 0;
    const QObject listener;
    const auto count = [&](const QObject& object) {
        ++alive;
        QObject::connect(&object, &QObject::destroyed, &listener, [&alive] { --alive; });
    };

    for (int i = 0; i < 3; ++i) {
        FramedWindow window({64, 48});
        const OffscreenQuickWindowPrivate& d = *window.d_func();
        count(*d.context);
        count(*d.surface);
        count(*d.renderControl);
        count(d);
        window.grab();
    }

    EXPECT_EQ(alive, 0);
}

TEST(OffscreenQuickWindowLife, ManySizesUseTheSameFewTextureNames)
{
    FramedWindow window;
    GLuint highest = 0;

    for (int i = 0; i < 300; ++i) {
        window.resize(16 + i % 7, 16);
        window.grab();
        highest = std::max(highest, window.d_func()->fbo->texture());
    }

    EXPECT_LT(highest, 20u);
}

#if defined(ARBOR_TEST_ADDRESS_SANITIZER) // slow, and keeps what is freed for a while; it finds leaks itself
TEST(OffscreenQuickWindowLife, TwentyWindowsInARowLeaveNoObjectFileOrThreadBehind)
{
    const SHoldings more = more_after(20);

    EXPECT_EQ(more.objects, 0);
    EXPECT_EQ(more.files, 0);
    EXPECT_EQ(more.threads, 0);
}
#else
TEST(OffscreenQuickWindowLife, AThousandWindowsInARowLeaveNoObjectFileThreadOrMemoryBehind)
{
    const SHoldings more = more_after(1000);

    EXPECT_EQ(more.objects, 0);
    EXPECT_EQ(more.files, 0);
    EXPECT_EQ(more.threads, 0);
    EXPECT_LT(more.bytes, 1 << 20); // about a kilobyte a window
}
#endif
