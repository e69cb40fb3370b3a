#pragma once

#include "quick_backend/CVqQuickProgressView.h"
#include "quick_backend/CVqQuickProgressWnd.h"
#include "tests/support/SteppedClock.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QRasterWindow>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

/// A window of the application that counts the presses and keys that reach it.
class CountingWindow : public QRasterWindow
{
public:
    CountingWindow()
    {
        setGeometry(20, 20, 300, 200);
        show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(this));
    }

    int Presses() const { return m_presses; }
    int Keys() const { return m_keys; }

protected:
    void mousePressEvent(QMouseEvent*) override { ++m_presses; }
    void keyPressEvent(QKeyEvent*) override { ++m_keys; }

private:
    int m_presses = 0;
    int m_keys = 0;
};

/// A progress window "Resize" of 100 steps that appears after 500 ms of a clock that the test steps.
class SteppedProgress
{
public:
    explicit SteppedProgress(bool suppress_others = true, int flags = 0)
        : m_wnd(VQ_TEXT("Resize"), 100, 500, suppress_others, flags, [this] { return m_clock.Now(); })
    { }

    CVqQuickProgressWnd* operator->() { return &m_wnd; }
    CVqQuickProgressWnd& Wnd() { return m_wnd; }
    CVqQuickProgressView& View() { return *m_wnd.View(); }
    SteppedClock& Clock() { return m_clock; }
    QQuickWindow& Window() { return *m_wnd.Window(); }

    /// Lets the delay go by.
    void Appear()
    {
        m_clock.Step(500);
        m_wnd.CheckCanceled();
        ASSERT_TRUE(m_wnd.Window());
        EXPECT_TRUE(QTest::qWaitForWindowExposed(m_wnd.Window()));
    }

    /// Lets a second go by, as work does that asks whether it is cancelled. Gives whether it is.
    bool PassASecond()
    {
        m_clock.Step(1'000);
        return m_wnd.CheckCanceled();
    }

    QQuickItem* Item(const char* name) { return Window().findChild<QQuickItem*>(QLatin1StringView(name)); }
    QString Text(const char* name) { return Item(name)->property("text").toString(); }

    void Click(const char* name)
    {
        const QQuickItem* item = Item(name);
        const QPointF centre = item->mapToScene({item->width() / 2, item->height() / 2});
        QTest::mouseClick(&Window(), Qt::LeftButton, {}, centre.toPoint());
    }

private:
    SteppedClock m_clock;
    CVqQuickProgressWnd m_wnd;
};
