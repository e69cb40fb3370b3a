#include "tests/quick_backend/ProgressFixture.h"
#include "tests/support/ScopedCatalogue.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct Time
{
    std::string name;
    double seconds;
    unsigned int position;
    QString text;
};

class ProgressPanelTimes : public testing::TestWithParam<Time>
{ };

// At 100 steps: what has gone by, and what is left at that speed.
INSTANTIATE_TEST_SUITE_P(
    , ProgressPanelTimes,
    testing::Values(Time{"NoEstimateYet", 5, 0, u"0:05 elapsed"_s},
                    Time{"Seconds", 10, 50, u"0:10 elapsed \u00b7 about 10 s left"_s},
                    Time{"Minutes", 100, 25, u"1:40 elapsed \u00b7 about 5 min left"_s},
                    Time{"WholeHours", 3'600, 50, u"1:00:00 elapsed \u00b7 about 1 h left"_s},
                    Time{"HoursAndMinutes", 4'200, 50, u"1:10:00 elapsed \u00b7 about 1 h 10 min left"_s},
                    Time{"Done", 10, 100, u"0:10 elapsed \u00b7 almost done"_s}),
    [](const auto& row) { return row.param.name; });

QAccessibleInterface* accessible(QQuickItem* item)
{
    return QAccessible::queryAccessibleInterface(item);
}

/// A page of an application, with a panel that shows `view`.
std::unique_ptr<QObject> page_with_panel(QQmlEngine& engine, CVqQuickProgressView& view)
{
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport K7.Arbor.QuickBackend\n"
                      "Item { id: page; required property ProgressView view\n"
                      "ProgressPanel { view: page.view; width: 300 } }",
                      QUrl());
    std::unique_ptr<QObject> page(
        component.createWithInitialProperties({{u"view"_s, QVariant::fromValue(&view)}}));
    EXPECT_TRUE(page) << qPrintable(component.errorString());
    return page;
}

}

TEST_P(ProgressPanelTimes, ShowWhatHasGoneByAndWhatIsLeft)
{
    SteppedProgress progress;
    progress->SetPos(GetParam().position);
    progress.Clock().Step(GetParam().seconds * 1'000);
    progress->CheckCanceled();

    EXPECT_EQ(progress.Text("progressTimes"), GetParam().text);
}

TEST(ProgressPanel, TakesNoRoomForALabelThatIsNotThere)
{
    SteppedProgress progress;
    progress.Appear();
    const int without = progress.Window().height();

    progress->SetLabel(CVqStringW(VQ_TEXT("one.png")));
    progress.PassASecond();

    EXPECT_GT(progress.Window().height(), without);
}

TEST(ProgressPanel, TheBarIsFilledByItsPosition)
{
    SteppedProgress progress;
    progress->SetPos(25);
    progress.Appear();

    EXPECT_EQ(progress.Item("progressBarFill")->width(), progress.Item("progressBar")->width() / 4);
}

TEST(ProgressPanel, APieceWandersWhileTheNumberOfStepsIsUnknown)
{
    SteppedProgress progress;
    progress.Appear();

    progress->setRange(0);
    progress.PassASecond();

    EXPECT_TRUE(progress.Item("progressBar")->property("indeterminate").toBool());
    EXPECT_GT(progress.Item("progressBarFill")->width(), 0);
}

TEST(ProgressPanel, KeysThatWereBeingTypedDoNotPressTheButton)
{
    SteppedProgress progress;
    progress.Appear();
    progress.Window().requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&progress.Window()));

    QTest::keyClick(&progress.Window(), Qt::Key_Space);
    QTest::keyClick(&progress.Window(), Qt::Key_Return);
    EXPECT_FALSE(progress.View().IsCancelling());

    QTest::keyClick(&progress.Window(), Qt::Key_Tab);
    QTest::keyClick(&progress.Window(), Qt::Key_Space);
    EXPECT_TRUE(progress.View().IsCancelling());
}

TEST(ProgressPanel, ScreenReadersFindItsParts)
{
    SteppedProgress progress;
    progress->SetLabel(CVqStringW(VQ_TEXT("one.png")));
    progress->SetPos(25);
    progress.Appear();

    EXPECT_EQ(accessible(progress.Item("progressPanel"))->role(), QAccessible::Dialog);
    EXPECT_EQ(accessible(progress.Item("progressPanel"))->text(QAccessible::Name), u"Resize"_s);
    EXPECT_EQ(accessible(progress.Item("progressBar"))->role(), QAccessible::ProgressBar);
    EXPECT_EQ(accessible(progress.Item("progressBar"))->text(QAccessible::Name), u"Resize"_s);
    EXPECT_EQ(accessible(progress.Item("progressBar"))->text(QAccessible::Description), u"25%"_s);
    EXPECT_EQ(accessible(progress.Item("progressCancel"))->role(), QAccessible::Button);
    EXPECT_EQ(accessible(progress.Item("progressCancel"))->text(QAccessible::Name), u"Cancel"_s);
}

TEST(ProgressPanel, ScreenReadersReadTheLabelThatWasAnnounced)
{
    SteppedProgress progress;
    progress->SetLabel(CVqStringW(VQ_TEXT("one.png")));
    progress.Appear();

    progress->SetLabel(CVqStringW(VQ_TEXT("two.png")));
    progress.PassASecond();

    EXPECT_EQ(progress.Text("progressLabel"), u"two.png"_s);
    EXPECT_EQ(accessible(progress.Item("progressLabel"))->text(QAccessible::Name), u"one.png"_s);
}

TEST(ProgressPanel, StandsInAWindowOfTheApplicationToo)
{
    CVqQuickProgressView view([] { return 0.0; }, 100);
    view.SetLabel(CVqStringW(VQ_TEXT("one.png")));
    view.Start();
    QQmlEngine engine;

    const std::unique_ptr<QObject> page = page_with_panel(engine, view);

    ASSERT_TRUE(page);
    EXPECT_EQ(page->findChild<QQuickItem*>(u"progressLabel"_s)->property("text"), u"one.png"_s);
}

TEST(ProgressPanel, MayOutliveItsView)
{
    auto view = std::make_unique<CVqQuickProgressView>([] { return 0.0; }, 100);
    view->SetLabel(CVqStringW(VQ_TEXT("one.png")));
    view->Start();
    QQmlEngine engine;
    const std::unique_ptr<QObject> page = page_with_panel(engine, *view);
    ASSERT_TRUE(page);

    view.reset();

    EXPECT_EQ(page->findChild<QQuickItem*>(u"progressLabel"_s)->property("text"), QString());
    EXPECT_FALSE(page->findChild<QQuickItem*>(u"progressCancel"_s)->isEnabled());
}

TEST(ProgressPanel, SpeaksGerman)
{
    const ScopedCatalogue german(QStringLiteral(ARBOR_CATALOGUES "/arbor_de"));
    SteppedProgress progress;
    progress->SetPos(50);
    progress.Clock().Step(10'000);
    progress->CheckCanceled();

    EXPECT_EQ(progress.Text("progressCancel"), u"Abbrechen"_s);
    EXPECT_EQ(progress.Text("progressTimes"), u"0:10 vergangen \u00b7 noch etwa 10\u00a0s"_s);

    progress->Cancel();
    EXPECT_EQ(progress.Text("progressCancel"), u"Wird abgebrochen ..."_s);
}

TEST(ProgressPanel, SpeaksJapanese)
{
    const ScopedCatalogue japanese(QStringLiteral(ARBOR_CATALOGUES "/arbor_ja"));
    SteppedProgress progress;
    progress->SetPos(50);
    progress.Clock().Step(10'000);
    progress->CheckCanceled();

    EXPECT_EQ(progress.Text("progressCancel"), u"キャンセル"_s);
    EXPECT_EQ(progress.Text("progressTimes"), u"経過 0:10 \u00b7 残り約 10 秒"_s);
}
