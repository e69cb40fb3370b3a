#include "tests/offscreen/CornerScene.h"
#include "tests/offscreen/FramedView.h"
#include "tests/offscreen/PixelPainter.h"
#include "tests/offscreen/QmlFolder.h"
#include "tests/support/PictureCompare.h"

#include <QOpenGLFunctions>
#include <QQmlEngine>
#include <QQuickItem>

#include <gtest/gtest.h>

#include <memory>

namespace {

constexpr QSize g_left_size(60, 40);
constexpr QSize g_right_size(90, 30);

enum class Engines
{
    OneEach,
    OneForBoth,
};

}

class OffscreenSideBySide : public testing::TestWithParam<Engines>
{
protected:
    void SetUp() override
    {
        m_left->setColor(Qt::transparent);
        m_right->setColor(Qt::yellow);
        m_left->setSource(m_folder.Scene(CornerScene::Item(g_left_size)));
        m_right->setSource(m_folder.Scene(CornerScene::Item(g_right_size)));
    }

    std::unique_ptr<FramedView> MakeView()
    {
        return std::make_unique<FramedView>(GetParam() == Engines::OneForBoth ? &m_engine : nullptr);
    }

    static QImage LeftPicture() { return CornerScene::Picture(g_left_size, Qt::transparent); }
    static QImage RightPicture() { return CornerScene::Picture(g_right_size, Qt::yellow); }

    QmlFolder m_folder;
    QQmlEngine m_engine;
    std::unique_ptr<FramedView> m_left = MakeView();
    std::unique_ptr<FramedView> m_right = MakeView();
};

TEST_P(OffscreenSideBySide, EachKeepsItsPictureWhenTheyDrawInTurns)
{
    for (int turn = 0; turn < 5; ++turn) {
        EXPECT_TRUE(EqualPictures(m_left->grab(), LeftPicture()));
        EXPECT_TRUE(EqualPictures(m_right->grab(), RightPicture()));
    }
}

TEST_P(OffscreenSideBySide, EachDrawsItsOwnTimedFrame)
{
    ASSERT_TRUE(m_left->DrawDueFrames());
    ASSERT_TRUE(m_right->DrawDueFrames());

    EXPECT_EQ(m_left->Frames(), 1);
    EXPECT_EQ(m_right->Frames(), 1);
    EXPECT_TRUE(EqualPictures(m_left->Drawn(), LeftPicture()));
    EXPECT_TRUE(EqualPictures(m_right->Drawn(), RightPicture()));
}

TEST_P(OffscreenSideBySide, AChangeOfOneLeavesTheFrameOfTheOther)
{
    ASSERT_TRUE(m_left->DrawDueFrames());
    ASSERT_TRUE(m_right->DrawDueFrames());

    m_left->setColor(Qt::white);
    ASSERT_TRUE(m_left->DrawDueFrames());
    ASSERT_TRUE(m_right->DrawDueFrames());

    EXPECT_EQ(m_left->Frames(), 2);
    EXPECT_EQ(m_right->Frames(), 1);
    EXPECT_TRUE(EqualPictures(m_right->Drawn(), RightPicture()));
    EXPECT_TRUE(EqualPictures(m_left->Drawn(), CornerScene::Picture(g_left_size, Qt::white)));
}

TEST_P(OffscreenSideBySide, AResizeOfOneLeavesTheOther)
{
    m_left->grab();
    m_right->grab();

    m_left->resize(300, 200);

    EXPECT_TRUE(EqualPictures(m_right->Drawn(), RightPicture()));
    EXPECT_TRUE(
        EqualPictures(m_left->grab(), CornerScene::Picture({300, 200}, g_left_size, Qt::transparent)));
    EXPECT_TRUE(EqualPictures(m_right->grab(), RightPicture()));
}

TEST_P(OffscreenSideBySide, TheEndOfOneLeavesTheOther)
{
    m_left->grab();
    m_right->grab();

    m_left.reset();

    EXPECT_TRUE(EqualPictures(m_right->Drawn(), RightPicture()));
    m_right->setColor(Qt::white);
    EXPECT_TRUE(EqualPictures(m_right->grab(), CornerScene::Picture(g_right_size, Qt::white)));
}

INSTANTIATE_TEST_SUITE_P(Engines, OffscreenSideBySide, testing::Values(Engines::OneEach, Engines::OneForBoth),
                         [](const auto& row) {
                             return row.param == Engines::OneEach ? "OneEach" : "OneForBoth";
                         });

/// A context that has nothing to do with the views, current with a picture of its own.
class OffscreenForeignContext : public testing::Test
{
protected:
    void SetUp() override
    {
        m_surface.create();
        ASSERT_TRUE(m_context.create());
        ASSERT_TRUE(m_context.makeCurrent(&m_surface));
        m_target = std::make_unique<QOpenGLFramebufferObject>(50, 30);
        ASSERT_TRUE(m_target->bind());
        Fill({0, 0, 50, 30}, Qt::yellow);
        Fill({0, 0, 20, 10}, Qt::red);
        Fill({40, 20, 10, 10}, Qt::transparent);
    }

    void TearDown() override
    {
        m_context.makeCurrent(&m_surface);
        m_target.reset();
        m_context.doneCurrent();
    }

    // Rows count from below, as OpenGL has it.
    void Fill(const QRect& area, const QColor& colour)
    {
        QOpenGLFunctions* gl = m_context.functions();
        gl->glEnable(GL_SCISSOR_TEST);
        gl->glScissor(area.x(), area.y(), area.width(), area.height());
        gl->glClearColor(colour.redF(), colour.greenF(), colour.blueF(), colour.alphaF());
        gl->glClear(GL_COLOR_BUFFER_BIT);
    }

    static QImage Expected()
    {
        QImage picture = PixelPainter::Blank({50, 30}, Qt::yellow);
        PixelPainter::Cover(picture, {0, 20, 20, 10}, 0xffff0000);
        for (int y = 0; y < 10; ++y)
            for (int x = 40; x < 50; ++x)
                picture.setPixel(x, y, 0);
        return picture;
    }

    QImage Read()
    {
        m_context.makeCurrent(&m_surface);
        return m_target->toImage();
    }

    QOffscreenSurface m_surface;
    QOpenGLContext m_context;
    std::unique_ptr<QOpenGLFramebufferObject> m_target;
    QmlFolder m_folder;
};

TEST_F(OffscreenForeignContext, KeepsItsPixelsWhenAViewDraws)
{
    FramedView view;
    view.setSource(m_folder.Scene(CornerScene::Item(g_left_size)));

    view.grab();
    ASSERT_TRUE(view.DrawDueFrames());

    EXPECT_TRUE(EqualPictures(Read(), Expected()));
}

TEST_F(OffscreenForeignContext, KeepsItsPixelsWhenAViewIsResizedAndGoes)
{
    {
        FramedView view;
        view.setSource(m_folder.Scene(CornerScene::Item(g_left_size)));
        view.grab();
        m_context.makeCurrent(&m_surface);
        view.resize(500, 300);
        m_context.makeCurrent(&m_surface);
    }

    EXPECT_TRUE(EqualPictures(Read(), Expected()));
}

TEST_F(OffscreenForeignContext, KeepsItsStateSoThatItDrawsOn)
{
    FramedView view;
    view.setSource(m_folder.Scene(CornerScene::Item(g_left_size)));
    view.grab();

    m_context.makeCurrent(&m_surface);
    m_context.functions()->glClearColor(0, 0, 1, 1);
    m_context.functions()->glScissor(0, 0, 50, 30);
    m_context.functions()->glClear(GL_COLOR_BUFFER_BIT);

    EXPECT_TRUE(EqualPictures(Read(), PixelPainter::Blank({50, 30}, Qt::blue)));
}

TEST_F(OffscreenForeignContext, ThatIsCurrentLeavesTheViewsPicture)
{
    FramedView view;
    view.setColor(Qt::transparent);
    view.setSource(m_folder.Scene(CornerScene::Item(g_left_size)));

    m_context.makeCurrent(&m_surface);
    const QImage grabbed = view.grab();
    m_context.makeCurrent(&m_surface);
    ASSERT_TRUE(view.DrawDueFrames());

    const QImage expected = CornerScene::Picture(g_left_size, Qt::transparent);
    EXPECT_TRUE(EqualPictures(grabbed, expected));
    EXPECT_TRUE(EqualPictures(view.Drawn(), expected));
}
