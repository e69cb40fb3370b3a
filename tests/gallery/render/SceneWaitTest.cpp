#include "gallery/render/SceneWait.h"

#include "offscreen/OffscreenQuickView.h"
#include "tests/gallery/PageFolder.h"
#include "tests/support/PictureCompare.h"

#include <QQuickItem>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Gallery::WaitForScene;

namespace {

QImage red(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    return image;
}

}

TEST(SceneWait, APictureThatComesLaterIsThere)
{
    const PageFolder folder;
    folder.Picture(u"red.png"_s, {40, 30}, Qt::red);
    OffscreenQuickView view;
    view.setSource(folder.Page(
        "import QtQuick\nImage { width: 40; height: 30; asynchronous: true; source: \"red.png\" }"));

    const bool complete = WaitForScene(view, 10s);

    EXPECT_TRUE(complete);
    EXPECT_TRUE(EqualPictures(view.grab(), red({40, 30})));
}

TEST(SceneWait, WhatALoaderBringsLaterIsThere)
{
    const PageFolder folder;
    folder.Picture(u"red.png"_s, {40, 30}, Qt::red);
    folder.Write(u"Part.qml"_s, "import QtQuick\nImage { asynchronous: true; source: \"red.png\" }");
    OffscreenQuickView view;
    view.setSource(folder.Page("import QtQuick\nItem { width: 40; height: 30; Loader { asynchronous: true; "
                               "source: \"Part.qml\" } }"));

    const bool complete = WaitForScene(view, 10s);

    EXPECT_TRUE(complete);
    EXPECT_TRUE(EqualPictures(view.grab(), red({40, 30})));
}

TEST(SceneWait, ASceneAtRestIsComplete)
{
    OffscreenQuickView view;
    view.resize(20, 20);

    EXPECT_TRUE(WaitForScene(view, 10s));
}

TEST(SceneWait, AnEndlessAnimationIsNotWaitedFor)
{
    const PageFolder folder;
    OffscreenQuickView view;
    view.setSource(folder.Page("import QtQuick\nRectangle { width: 40; height: 30; NumberAnimation on x { "
                               "from: 0; to: 9; loops: -1 } }"));

    EXPECT_TRUE(WaitForScene(view, 10s));
}

TEST(SceneWait, WhatNeverComesIsNotWaitedForForever)
{
    const PageFolder folder;
    OffscreenQuickView view;
    view.resize(20, 20);
    view.setSource(folder.Page("import QtQuick\nItem { Loader { id: loader; property int status: 2 } }"));
    ASSERT_TRUE(view.rootObject());

    EXPECT_FALSE(WaitForScene(view, 100ms));
}
