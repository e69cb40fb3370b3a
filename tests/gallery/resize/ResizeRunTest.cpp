#include "gallery/resize/ResizeRun.h"

#include "gallery/resize/IResizeSteps.h"
#include "tests/gallery/resize/ImageFolder.h"

using namespace Qt::StringLiterals;
using Gallery::ResizeFailure;
using Gallery::ResizeReport;

namespace {

/// Writes down what it is told, and cancels when it is asked for the `cancel_at`th time.
class RecordingSteps : public Gallery::IResizeSteps
{
public:
    explicit RecordingSteps(int cancel_at = 0) : m_left(cancel_at) { }

    void SetPos(unsigned int position) override { calls << u"at %1"_s.arg(position); }
    void SetLabel(const QString& label) override { calls << label; }

    bool CheckCanceled() override
    {
        calls << u"canceled?"_s;
        return --m_left == 0;
    }

    QStringList calls;

private:
    int m_left;
};

class ResizeRunTest : public testing::Test
{
protected:
    ResizeReport Run(RecordingSteps& steps)
    {
        QString error;
        const auto plan = Gallery::PlanResize({m_folder.In(), m_folder.Out(), 10}, error);
        EXPECT_TRUE(plan) << error.toStdString();
        return Gallery::RunResize(*plan, steps);
    }

    ImageFolder m_folder;
};

}

TEST_F(ResizeRunTest, EachImageIsAStepThatBeginsWithItsName)
{
    m_folder.Image(u"a.png"_s, {20, 20});
    m_folder.Image(u"b.jpg"_s, {20, 20});
    RecordingSteps steps;

    const ResizeReport report = Run(steps);

    EXPECT_EQ(steps.calls,
              (QStringList{u"canceled?"_s, u"a.png"_s, u"at 1"_s, u"canceled?"_s, u"b.jpg"_s, u"at 2"_s}));
    EXPECT_EQ(report.images, 2);
    EXPECT_EQ(report.done, 2);
    EXPECT_FALSE(report.canceled);
    EXPECT_EQ(m_folder.OutNames(), (QStringList{u"a.png"_s, u"b.jpg"_s}));
    EXPECT_TRUE(m_folder.OutIsWhole(10));
}

TEST_F(ResizeRunTest, WhatFailsIsListedAndTheRestIsDone)
{
    m_folder.Image(u"a.png"_s, {20, 20});
    m_folder.Write(u"b.png"_s, "text");
    m_folder.Write(u"c.jpg"_s, ImageBytes(RedAndBlue({20, 20}), "jpeg").chopped(9));
    m_folder.Image(u"d.png"_s, {20, 20});
    RecordingSteps steps;

    const ResizeReport report = Run(steps);

    EXPECT_EQ(report.done, 2);
    EXPECT_EQ(report.failures,
              (QList<ResizeFailure>{{u"b.png"_s, u"it is no image, whatever its name says"_s},
                                    {u"c.jpg"_s, u"it is cut off"_s}}));
    EXPECT_EQ(steps.calls.last(), u"at 4"_s);
    EXPECT_EQ(m_folder.OutNames(), (QStringList{u"a.png"_s, u"d.png"_s}));
}

TEST_F(ResizeRunTest, CancelledInTheMiddleThereAreWholeFilesOnly)
{
    m_folder.ManyImages(5, {40, 40});
    RecordingSteps steps(3);

    const ResizeReport report = Run(steps);

    EXPECT_TRUE(report.canceled);
    EXPECT_EQ(report.done, 2);
    EXPECT_EQ(report.images, 5);
    EXPECT_EQ(m_folder.OutNames(), (QStringList{u"000.png"_s, u"001.png"_s}));
    EXPECT_TRUE(m_folder.OutIsWhole(10));
    EXPECT_EQ(steps.calls.last(), u"canceled?"_s);
}
