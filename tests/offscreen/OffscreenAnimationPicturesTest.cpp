#include "tests/offscreen/FramedView.h"
#include "tests/offscreen/PixelPainter.h"
#include "tests/offscreen/QmlFolder.h"
#include "tests/support/PictureCompare.h"

#include <QAnimationDriver>
#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

namespace {

/// The time of all animations, while it lives. They begin and end in the event loop.
class SteppedTime : public QAnimationDriver
{
public:
    SteppedTime()
    {
        install();
        EXPECT_TRUE(QTest::qWaitFor([this] { return !isRunning(); }, 20'000)) << "others are still running";
    }

    ~SteppedTime() override
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !isRunning(); }, 20'000)) << "animations go on";
        uninstall();
    }

    /// True once an animation runs; false when that takes too long.
    bool Begin()
    {
        return QTest::qWaitFor([this] { return isRunning(); }, 20'000);
    }

    void StepTo(qint64 milliseconds)
    {
        m_elapsed = milliseconds;
        advance();
    }

    qint64 elapsed() const override { return m_elapsed; }

private:
    qint64 m_elapsed = 0;
};

// A blue bar of 10 pixels, such as the scene's.
QImage bar_at(int x)
{
    QImage image = PixelPainter::Blank({120, 20}, Qt::transparent);
    PixelPainter::Cover(image, {x, 5, 10, 10}, 0xff0000ff);
    return image;
}

const QByteArray g_moving_bar = R"(
Item {
    width: 120; height: 20
    Rectangle {
        color: "blue"; y: 5; width: 10; height: 10
        NumberAnimation on x { from: 0; to: 100; duration: 1000 }
    }
})";

}

class OffscreenAnimationPictures : public testing::Test
{
protected:
    OffscreenAnimationPictures()
    {
        m_view.setColor(Qt::transparent);
        m_view.setSource(m_folder.Scene(g_moving_bar));
        EXPECT_TRUE(m_time.Begin());
    }

    SteppedTime m_time;
    QmlFolder m_folder;
    FramedView m_view;
};

TEST_F(OffscreenAnimationPictures, BeginAtTheBeginning)
{
    EXPECT_TRUE(EqualPictures(m_view.grab(), bar_at(0)));
}

TEST_F(OffscreenAnimationPictures, ShowEachTimeThatIsSteppedTo)
{
    for (const int time : {100, 250, 500, 990}) {
        m_time.StepTo(time);
        EXPECT_TRUE(EqualPictures(m_view.grab(), bar_at(time / 10)));
    }
}

TEST_F(OffscreenAnimationPictures, EndAtTheEnd)
{
    m_time.StepTo(5000);

    EXPECT_TRUE(EqualPictures(m_view.grab(), bar_at(100)));
}

TEST_F(OffscreenAnimationPictures, ComeInATimedFrameAfterAStep)
{
    ASSERT_TRUE(m_view.DrawDueFrames());
    const int frames = m_view.Frames();

    m_time.StepTo(400);
    ASSERT_TRUE(m_view.DrawDueFrames());

    EXPECT_EQ(m_view.Frames(), frames + 1);
    EXPECT_TRUE(EqualPictures(m_view.Drawn(), bar_at(40)));
}
