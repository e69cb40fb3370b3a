#include "offscreen/OffscreenQuickView.h"
#include "tests/offscreen/CornerScene.h"
#include "tests/offscreen/FramedView.h"
#include "tests/offscreen/QmlFolder.h"
#include "tests/support/PictureCompare.h"

#include <QQuickItem>

#include <gtest/gtest.h>

using View = OffscreenQuickView;

namespace {

struct Resizes
{
    const char* m_name;
    std::vector<QSize> m_sizes;
};

const Resizes g_resizes[] = {
    {"Growing", {{1, 1}, {20, 10}, {200, 100}, {640, 480}}},
    {"Shrinking", {{640, 480}, {200, 100}, {20, 10}, {1, 1}}},
    {"SameSize", {{200, 100}, {200, 100}, {200, 100}}},
    {"Turning", {{200, 100}, {100, 200}, {200, 100}}},
    {"OneSideAtATime", {{200, 100}, {201, 100}, {201, 99}, {3, 99}, {3, 500}}},
    {"ThroughNothing", {{200, 100}, {0, 0}, {200, 100}, {0, 50}, {200, 100}}},
};

}

class OffscreenPictureResizes : public testing::TestWithParam<Resizes>
{
protected:
    OffscreenPictureResizes() { m_view.setColor(Qt::transparent); }

    QmlFolder m_folder;
    FramedView m_view;
};

TEST_P(OffscreenPictureResizes, ShowARootWithTheSizeOfTheViewAfterEach)
{
    m_view.setResizeMode(View::SizeRootObjectToView);
    m_view.setSource(m_folder.Scene(CornerScene::Item()));

    for (const QSize size : GetParam().m_sizes) {
        m_view.resize(size);
        if (!size.isEmpty()) {
            EXPECT_TRUE(EqualPictures(m_view.grab(), CornerScene::Picture(size, Qt::transparent)));
        }
    }
}

TEST_P(OffscreenPictureResizes, ShowARootOfItsOwnSizeAfterEach)
{
    m_view.setSource(m_folder.Scene(CornerScene::Item({150, 120})));

    for (const QSize size : GetParam().m_sizes) {
        m_view.resize(size);
        if (!size.isEmpty()) {
            EXPECT_TRUE(
                EqualPictures(m_view.grab(), CornerScene::Picture(size, {150, 120}, Qt::transparent)));
        }
    }
}

TEST_P(OffscreenPictureResizes, ShowInTheTimedFrameAfterEach)
{
    m_view.setResizeMode(View::SizeRootObjectToView);
    m_view.setSource(m_folder.Scene(CornerScene::Item()));

    for (const QSize size : GetParam().m_sizes) {
        m_view.resize(size);
        m_view.rootObject()->update();
        m_view.update();
        ASSERT_TRUE(m_view.DrawDueFrames());
        if (!size.isEmpty()) {
            EXPECT_TRUE(EqualPictures(m_view.Drawn(), CornerScene::Picture(size, Qt::transparent)));
        }
    }
}

TEST_P(OffscreenPictureResizes, ShowTheLastSizeAfterAllInOneTurn)
{
    m_view.setResizeMode(View::SizeRootObjectToView);
    m_view.setSource(m_folder.Scene(CornerScene::Item()));

    for (const QSize size : GetParam().m_sizes)
        m_view.resize(size);

    const QSize last = GetParam().m_sizes.back();
    EXPECT_TRUE(EqualPictures(m_view.grab(), CornerScene::Picture(last, Qt::transparent)));
}

INSTANTIATE_TEST_SUITE_P(Sequences, OffscreenPictureResizes, testing::ValuesIn(g_resizes),
                         [](const auto& row) { return row.param.m_name; });

TEST(OffscreenPictureSizedToRoot, FollowsTheRootOnAChangeOfMode)
{
    QmlFolder folder;
    View view;
    view.setColor(Qt::transparent);
    view.setResizeMode(View::SizeRootObjectToView);
    view.resize(200, 100);
    view.setSource(folder.Scene(CornerScene::Item({50, 40})));
    EXPECT_TRUE(EqualPictures(view.grab(), CornerScene::Picture({200, 100}, {50, 40}, Qt::transparent)));

    view.setResizeMode(View::SizeViewToRootObject);

    EXPECT_TRUE(EqualPictures(view.grab(), CornerScene::Picture({50, 40}, Qt::transparent)));
}
