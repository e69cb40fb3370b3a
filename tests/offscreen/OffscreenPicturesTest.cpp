#include "offscreen/OffscreenQuickView.h"
#include "tests/offscreen/CornerScene.h"
#include "tests/offscreen/FramedView.h"
#include "tests/offscreen/QmlFolder.h"
#include "tests/support/PictureCompare.h"

#include <QQuickItem>

#include <gtest/gtest.h>

#include <memory>

using View = OffscreenQuickView;

namespace {

struct PictureCase
{
    std::string m_name;
    QSize m_size;
    QColor m_colour;
};

std::vector<PictureCase> all_cases()
{
    const std::pair<const char*, QColor> colours[]
        = {{"Transparent", Qt::transparent}, {"White", Qt::white}, {"Opaque", QColor(0, 255, 255)}};
    std::vector<PictureCase> cases;
    for (const QSize size : {QSize(1, 1), QSize(200, 100), QSize(1920, 1080), QSize(4096, 4096)}) {
        for (const auto& [name, colour] : colours) {
            const std::string sizes = std::to_string(size.width()) + "x" + std::to_string(size.height());
            cases.push_back({"Of" + sizes + name, size, colour});
        }
    }
    return cases;
}

}

class OffscreenPictures : public testing::TestWithParam<PictureCase>
{
protected:
    QmlFolder m_folder;
    FramedView m_view;
};

TEST_P(OffscreenPictures, GrabShowsARootWithTheSizeOfTheView)
{
    const auto& [name, size, colour] = GetParam();
    m_view.setColor(colour);
    m_view.setResizeMode(View::SizeRootObjectToView);
    m_view.setSource(m_folder.Scene(CornerScene::Item()));
    m_view.resize(size);

    const QImage picture = m_view.grab();

    EXPECT_TRUE(EqualPictures(picture, CornerScene::Picture(size, colour)));
}

TEST_P(OffscreenPictures, GrabShowsAViewWithTheSizeOfTheRoot)
{
    const auto& [name, size, colour] = GetParam();
    m_view.setColor(colour);
    m_view.setSource(m_folder.Scene(CornerScene::Item(size)));

    const QImage picture = m_view.grab();

    EXPECT_TRUE(EqualPictures(picture, CornerScene::Picture(size, colour)));
}

TEST_P(OffscreenPictures, TheTimedFrameShowsTheSame)
{
    const auto& [name, size, colour] = GetParam();
    m_view.setColor(colour);
    m_view.setSource(m_folder.Scene(CornerScene::Item(size)));

    ASSERT_TRUE(m_view.DrawDueFrames());

    EXPECT_EQ(m_view.Frames(), 1);
    EXPECT_TRUE(EqualPictures(m_view.Drawn(), CornerScene::Picture(size, colour)));
}

INSTANTIATE_TEST_SUITE_P(Sizes, OffscreenPictures, testing::ValuesIn(all_cases()),
                         [](const auto& row) { return row.param.m_name; });

class OffscreenPicture : public testing::Test
{
protected:
    OffscreenPicture() { m_view.setColor(Qt::transparent); }

    QmlFolder m_folder;
    FramedView m_view;
};

TEST_F(OffscreenPicture, OfANewWindowIsWhiteAsQtHasIt)
{
    View view;
    view.setSource(m_folder.Scene(CornerScene::Item({20, 10})));

    EXPECT_TRUE(EqualPictures(view.grab(), CornerScene::Picture({20, 10}, Qt::white)));
}

TEST_F(OffscreenPicture, IsOpaqueWhereTheSceneIsAndPremultipliedWhereItIsNot)
{
    m_view.setSource(m_folder.Scene(CornerScene::Item({20, 10})));

    const QImage picture = m_view.grab();

    EXPECT_EQ(picture.format(), QImage::Format_ARGB32_Premultiplied);
    const auto* first = reinterpret_cast<const QRgb*>(picture.constScanLine(0));
    const auto* last = reinterpret_cast<const QRgb*>(picture.constScanLine(9));
    EXPECT_EQ(first[0], 0xffff0000);
    EXPECT_EQ(last[0], 0x80000080);
    EXPECT_EQ(first[12], 0u);
}

TEST_F(OffscreenPicture, IsThatOfTheSceneAsItIsNow)
{
    m_view.setSource(m_folder.Scene(CornerScene::Item({20, 10})));
    m_view.grab();

    m_view.rootObject()->setSize({40, 20});
    const QImage picture = m_view.grab();

    EXPECT_TRUE(EqualPictures(picture, CornerScene::Picture({20, 10}, {40, 20}, Qt::transparent)));
}

TEST_F(OffscreenPicture, FollowsTheColourOfTheWindow)
{
    m_view.setSource(m_folder.Scene(CornerScene::Item({20, 10})));
    m_view.grab();

    m_view.setColor(Qt::yellow);

    EXPECT_TRUE(EqualPictures(m_view.grab(), CornerScene::Picture({20, 10}, Qt::yellow)));
}

TEST_F(OffscreenPicture, OfAnotherSourceHasNothingOfTheFirst)
{
    m_view.setSource(m_folder.Scene("Rectangle { color: 'red'; width: 20; height: 10 }"));
    m_view.grab();

    m_view.setSource(m_folder.Scene(CornerScene::Item({20, 10})));

    EXPECT_TRUE(EqualPictures(m_view.grab(), CornerScene::Picture({20, 10}, Qt::transparent)));
}

TEST_F(OffscreenPicture, OfAnEmptySourceIsTheColourOfTheWindow)
{
    m_view.setSource(m_folder.Scene(CornerScene::Item({20, 10})));
    m_view.grab();

    m_view.setSource(QUrl());

    EXPECT_TRUE(EqualPictures(m_view.grab(), CornerScene::Picture({20, 10}, {0, 0}, Qt::transparent)));
}

TEST_F(OffscreenPicture, IsTheSameHoweverOftenItIsTaken)
{
    m_view.setSource(m_folder.Scene(CornerScene::Item({20, 10})));
    const QImage expected = CornerScene::Picture({20, 10}, Qt::transparent);

    EXPECT_TRUE(EqualPictures(m_view.grab(), expected));
    EXPECT_TRUE(EqualPictures(m_view.grab(), expected));
    ASSERT_TRUE(m_view.DrawDueFrames());
    EXPECT_TRUE(EqualPictures(m_view.grab(), expected));
}

TEST_F(OffscreenPicture, ABurstOfAThousandChangesDrawsOneFrame)
{
    m_view.setSource(m_folder.Scene("Rectangle { width: 20; height: 10 }"));
    ASSERT_TRUE(m_view.DrawDueFrames());
    const int frames = m_view.Frames();

    for (int red = 0; red < 1000; ++red)
        m_view.rootObject()->setProperty("color", QColor(red % 256, 0, 0));
    ASSERT_TRUE(m_view.DrawDueFrames());

    EXPECT_EQ(m_view.Frames(), frames + 1);
    EXPECT_TRUE(
        EqualPictures(m_view.Drawn(), CornerScene::Picture({20, 10}, {0, 0}, QColor(999 % 256, 0, 0))));
}
