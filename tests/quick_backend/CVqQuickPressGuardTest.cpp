#include "quick_backend/CVqQuickPressGuard.h"

#include <QMouseEvent>
#include <QQuickWindow>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

namespace {

class CVqQuickPressGuardTest : public testing::Test
{
protected:
    CVqQuickPressGuardTest()
    {
        item->setParentItem(window.contentItem());
        item->setPosition({10, 10});
        item->setSize({50, 20});
    }

    /// Whether the press was eaten.
    bool Press(const QPointF& position)
    {
        QMouseEvent event(QEvent::MouseButtonPress, position, position, Qt::LeftButton, Qt::LeftButton, {});
        return guard.eventFilter(&window, &event);
    }

    CVqQuickPressGuard guard;
    QQuickWindow window;
    std::unique_ptr<QQuickItem> item = std::make_unique<QQuickItem>();
    QSignalSpy outside{&guard, &CVqQuickPressGuard::pressedOutside};
};

}

TEST_F(CVqQuickPressGuardTest, APressInsideGoesOn)
{
    guard.watch(item.get());

    EXPECT_FALSE(Press({30, 20}));
    EXPECT_EQ(outside.size(), 0);
}

TEST_F(CVqQuickPressGuardTest, APressOutsideIsEatenAndTold)
{
    guard.watch(item.get());

    EXPECT_TRUE(Press({5, 5}));
    EXPECT_EQ(outside.size(), 1);
}

TEST_F(CVqQuickPressGuardTest, AHiddenItemIsNoInside)
{
    guard.watch(item.get());
    item->setVisible(false);

    EXPECT_TRUE(Press({30, 20}));
}

TEST_F(CVqQuickPressGuardTest, TheWindowLosingTheFocusIsNoPress)
{
    QSignalSpy left{&guard, &CVqQuickWindowGuard::windowLeft};
    guard.watch(item.get());
    QFocusEvent event(QEvent::FocusOut);

    EXPECT_FALSE(guard.eventFilter(&window, &event));

    EXPECT_EQ(left.size(), 1);
    EXPECT_EQ(outside.size(), 0);
}

TEST_F(CVqQuickPressGuardTest, OtherEventsGoOn)
{
    guard.watch(item.get());
    QMouseEvent event(QEvent::MouseMove, QPointF(5, 5), QPointF(5, 5), Qt::NoButton, {}, {});

    EXPECT_FALSE(guard.eventFilter(&window, &event));
    EXPECT_EQ(outside.size(), 0);
}

TEST_F(CVqQuickPressGuardTest, AnItemThatDiesIsForgotten)
{
    guard.watch(item.get());
    item.reset();

    EXPECT_TRUE(Press({30, 20}));
    guard.unwatch(nullptr);
}
