#include "quick_backend/CVqQuickWindowGuard.h"

#include <QCloseEvent>
#include <QFocusEvent>
#include <QMouseEvent>
#include <QQuickWindow>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

namespace {

class CVqQuickWindowGuardTest : public testing::Test
{
protected:
    CVqQuickWindowGuardTest() { item->setParentItem(window.contentItem()); }

    void LoseFocus()
    {
        QFocusEvent event(QEvent::FocusOut);
        QCoreApplication::sendEvent(&window, &event);
    }

    CVqQuickWindowGuard guard;
    QQuickWindow window;
    std::unique_ptr<QQuickItem> item = std::make_unique<QQuickItem>();
    QSignalSpy left{&guard, &CVqQuickWindowGuard::windowLeft};
};

}

TEST_F(CVqQuickWindowGuardTest, TheWindowLosingTheFocusIsToldAndGoesOn)
{
    QFocusEvent event(QEvent::FocusOut);

    EXPECT_FALSE(guard.eventFilter(&window, &event));

    EXPECT_EQ(left.size(), 1);
}

TEST_F(CVqQuickWindowGuardTest, TheWindowGoingAwayIsTold)
{
    QCloseEvent close;
    QEvent hide(QEvent::Hide);

    EXPECT_FALSE(guard.eventFilter(&window, &close));
    EXPECT_FALSE(guard.eventFilter(&window, &hide));

    EXPECT_EQ(left.size(), 2);
}

TEST_F(CVqQuickWindowGuardTest, OtherEventsGoOn)
{
    QFocusEvent focus(QEvent::FocusIn);
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                      {});

    EXPECT_FALSE(guard.eventFilter(&window, &focus));
    EXPECT_FALSE(guard.eventFilter(&window, &press));

    EXPECT_EQ(left.size(), 0);
}

TEST_F(CVqQuickWindowGuardTest, WatchesTheWindowWhileItHasItems)
{
    guard.watch(item.get());
    guard.watch(item.get());
    guard.watch(nullptr);
    LoseFocus();
    EXPECT_EQ(left.size(), 1);

    guard.unwatch(item.get());
    LoseFocus();
    EXPECT_EQ(left.size(), 1);
}

TEST_F(CVqQuickWindowGuardTest, WatchesUntilTheLastItemGoes)
{
    QQuickItem other(window.contentItem());
    guard.watch(item.get());
    guard.watch(&other);

    guard.unwatch(item.get());
    LoseFocus();

    EXPECT_EQ(left.size(), 1);
}

TEST_F(CVqQuickWindowGuardTest, AnItemThatDiedDoesNotEndTheWatchOverOthers)
{
    QQuickItem other(window.contentItem());
    guard.watch(item.get());
    item.reset();

    guard.watch(&other);
    LoseFocus();

    EXPECT_EQ(left.size(), 1);
}
