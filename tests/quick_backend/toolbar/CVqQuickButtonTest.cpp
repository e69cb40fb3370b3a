#include "quick_backend/toolbar/CVqQuickButton.h"

#include "tests/quick_backend/toolbar/CoreBar.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QSize text_size(const QString& text)
{
    const QFontMetricsF metrics(QGuiApplication::font());
    return {int(std::ceil(metrics.horizontalAdvance(text))), int(std::ceil(metrics.height()))};
}

class CVqQuickButtonTest : public testing::Test
{
protected:
    void ShowText(const char* text) { SetText(button, vq_control_text, text); }
    void ShowImage() { SetInt(button, vq_control_bitmap, 3); }

    CVqQuickButton button;
};

}

TEST_F(CVqQuickButtonTest, IsAButton)
{
    EXPECT_EQ(button.GetKind(), CVqQuickControl::Button);
    EXPECT_EQ(button.type(), CVqQuickControl::Button);
}

TEST_F(CVqQuickButtonTest, IsAsLargeAsAnImageWithoutContent)
{
    EXPECT_FALSE(button.ShowsImage());
    EXPECT_FALSE(button.ShowsText());
    EXPECT_EQ(WantedSize(button), QSize(24 + 10, 24 + 10));
}

TEST_F(CVqQuickButtonTest, ShowsItsImageAlone)
{
    ShowImage();
    ShowText("Open the newest picture");

    EXPECT_TRUE(button.ShowsImage());
    EXPECT_FALSE(button.ShowsText());
    EXPECT_EQ(WantedSize(button), QSize(34, 34));
}

TEST_F(CVqQuickButtonTest, ShowsItsTextWithoutAnImage)
{
    ShowText("Open the newest picture");

    const QSize text = text_size(u"Open the newest picture"_s);
    EXPECT_TRUE(button.ShowsText());
    EXPECT_EQ(WantedSize(button), QSize(text.width() + 10, std::max(text.height(), 24) + 10));
}

TEST_F(CVqQuickButtonTest, IsNeverNarrowerThanAnImage)
{
    ShowText("i");

    EXPECT_EQ(WantedSize(button).width(), 34);
}

TEST_F(CVqQuickButtonTest, ShowsTextBesideItsImageWhenTold)
{
    ShowImage();
    ShowText("Open");
    const QSignalSpy told(&button, &CVqQuickControl::lookChanged);

    button.SetTextBesideImage(true);
    button.SetTextBesideImage(true);

    EXPECT_TRUE(button.IsTextBesideImage());
    EXPECT_TRUE(button.ShowsText());
    EXPECT_TRUE(button.ShowsImage());
    EXPECT_EQ(told.count(), 1);
}

TEST_F(CVqQuickButtonTest, PutsTextBehindAndBeforeItsImageInOneRow)
{
    ShowImage();
    ShowText("Open");
    button.SetTextBesideImage(true);
    const QSize text = text_size(u"Open"_s);

    for (const auto place : {CVqQuickControl::TextBehind, CVqQuickControl::TextBefore}) {
        button.SetTextAlign(place);

        EXPECT_EQ(WantedSize(button), QSize(24 + 5 + text.width() + 10, std::max(text.height(), 24) + 10))
            << place;
    }
}

TEST_F(CVqQuickButtonTest, PutsTextBelowAndAboveItsImageInOneColumn)
{
    ShowImage();
    ShowText("Open the newest picture");
    button.SetTextBesideImage(true);
    const QSize text = text_size(u"Open the newest picture"_s);

    for (const auto place : {CVqQuickControl::TextBelow, CVqQuickControl::TextAbove}) {
        button.SetTextAlign(place);

        EXPECT_EQ(WantedSize(button), QSize(text.width() + 10, 24 + 5 + text.height() + 10)) << place;
    }
}

TEST_F(CVqQuickButtonTest, KeepsNoRoomForATextThatIsEmpty)
{
    ShowImage();
    button.SetTextBesideImage(true);

    EXPECT_FALSE(button.ShowsText());
    EXPECT_EQ(WantedSize(button), QSize(34, 34));
}

TEST_F(CVqQuickButtonTest, KeepsRoomForTheArrowOfADropDown)
{
    ShowImage();

    SetInt(button, vq_control_value, 9);

    EXPECT_EQ(WantedSize(button), QSize(34 + 14, 34));
}

TEST_F(CVqQuickButtonTest, GrowsWithItsZoom)
{
    ShowImage();
    SetInt(button, vq_control_value, 9);

    SetZoom(button, 1.5);

    EXPECT_EQ(WantedSize(button), QSize(72, 51));
}

TEST_F(CVqQuickButtonTest, IsTheSameInAVerticalToolbar)
{
    ShowText("Open the newest picture");
    const QSize before = WantedSize(button);

    button.SetOrientation(EOrientation::Vertical);

    EXPECT_EQ(WantedSize(button), before);
}

TEST_F(CVqQuickButtonTest, FollowsTheTextOfItsState)
{
    ShowText("Open the newest picture");
    EXPECT_EQ(WantedSize(button).width(), text_size(u"Open the newest picture"_s).width() + 10);

    ShowText("Close the newest picture and all others");

    EXPECT_EQ(WantedSize(button).width(),
              text_size(u"Close the newest picture and all others"_s).width() + 10);
}

TEST_F(CVqQuickButtonTest, FollowsTheFontOfTheApplication)
{
    const QFont before = QGuiApplication::font();
    ShowText("Open the newest picture");
    const QSize small = WantedSize(button);
    QFont large = before;
    large.setPointSizeF(before.pointSizeF() * 3);

    QGuiApplication::setFont(large);
    const QSize grown = WantedSize(button);
    const QSize text = text_size(u"Open the newest picture"_s);
    QGuiApplication::setFont(before);

    EXPECT_EQ(grown, QSize(text.width() + 10, std::max(text.height(), 24) + 10));
    EXPECT_GT(grown.width(), small.width());
    EXPECT_EQ(WantedSize(button), small);
}

TEST_F(CVqQuickButtonTest, ShowsNothingOfAStateThatIsNotInUse)
{
    ShowImage();
    ShowText("Open the newest picture");
    button.SetTextBesideImage(true);

    SetInt(button, vq_control_state_count, 0);

    EXPECT_FALSE(button.ShowsImage());
    EXPECT_FALSE(button.ShowsText());
    EXPECT_EQ(WantedSize(button), QSize(34, 34));
}
