#include "tests/offscreen/CornerScene.h"
#include "tests/offscreen/FramedView.h"
#include "tests/offscreen/QmlFolder.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/ProcessLoad.h"
#include "tests/support/SmallStack.h"

#include <QCoreApplication>
#include <QQmlEngine>

#include <gtest/gtest.h>

namespace {

constexpr QSize g_size(400, 200);

// The sanitizers take some fifty times as long and keep what was freed for a while.
#if defined(ARBOR_TEST_ADDRESS_SANITIZER)
constexpr int g_first = 5;
constexpr int g_some = 15;
constexpr int g_many = 30;
constexpr bool g_memory_counts = false;
#else
constexpr int g_first = 20;
constexpr int g_some = 200;
constexpr int g_many = 1000;
constexpr bool g_memory_counts = true;
#endif

// A texture and a depth buffer of the size above left behind by each of some views would be four times as
// much.
constexpr qint64 g_bytes_allowed = 32 << 20;

}

class OffscreenQuickViewLife : public testing::Test
{
protected:
    // What is made once and kept, such as caches, is there after the first views.
    template <typename Work>
    void ExpectNoGrowth(int times, Work work)
    {
        const auto work_and_settle = [&] {
            work();
            // What Qt deletes later, such as the group of a context, goes in the event loop.
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        };
        for (int count = 0; count < g_first; ++count)
            work_and_settle();
        const qint64 objects = LiveQObjects();
        const qint64 bytes = ResidentBytes();

        for (int count = 0; count < times; ++count)
            work_and_settle();

        EXPECT_EQ(LiveQObjects(), objects);
        if (g_memory_counts) {
            EXPECT_LT(ResidentBytes() - bytes, g_bytes_allowed);
        }
    }

    QmlFolder m_folder;
    QUrl m_url = m_folder.Scene(CornerScene::Item(g_size));
};

TEST_F(OffscreenQuickViewLife, ManyViewsWithAnEngineEachLeaveNothingBehind)
{
    ExpectNoGrowth(g_many, [&] {
        OffscreenQuickView view;
        view.setSource(m_url);
        EXPECT_EQ(view.status(), OffscreenQuickView::Ready);
    });
}

TEST_F(OffscreenQuickViewLife, ViewsThatWereDrawnOnOneEngineLeaveNothingBehind)
{
    QQmlEngine engine;

    ExpectNoGrowth(g_some, [&] {
        OffscreenQuickView view(&engine);
        view.setSource(m_url);
        view.grab();
    });
}

TEST_F(OffscreenQuickViewLife, ManySourcesInOneViewLeaveNothingBehind)
{
    OffscreenQuickView view;

    ExpectNoGrowth(g_many, [&] {
        view.setSource(m_url);
        view.grab();
    });
}

TEST_F(OffscreenQuickViewLife, TheLastOfManyViewsHasItsPicture)
{
    QQmlEngine engine;
    QImage picture;

    for (int count = 0; count < 20; ++count) {
        OffscreenQuickView view(&engine);
        view.setColor(Qt::transparent);
        view.setSource(m_url);
        picture = view.grab();
    }

    EXPECT_TRUE(EqualPictures(picture, CornerScene::Picture(g_size, Qt::transparent)));
}

TEST_F(OffscreenQuickViewLife, AViewThatGoesWithAFrameDueDrawsNoMore)
{
    int frames = 0;
    {
        OffscreenQuickView view;
        QObject::connect(&view, &OffscreenQuickWindow::sceneRendered, [&] { ++frames; });
        view.setSource(m_url);
    }

    OffscreenQuickView witness;
    bool is_drawn = false;
    QObject::connect(&witness, &OffscreenQuickWindow::sceneRendered, [&] { is_drawn = true; });
    witness.setSource(m_url);
    EXPECT_TRUE(QTest::qWaitFor([&] { return is_drawn; }, 20'000));
    EXPECT_EQ(frames, 0);
}
