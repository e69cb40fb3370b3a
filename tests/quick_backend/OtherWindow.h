#pragma once

#include <QQuickWindow>
#include <QTest>

#include <gtest/gtest.h>

/// A window that takes the focus from the one under test, as one that the user goes on in.
class OtherWindow
{
public:
    OtherWindow()
    {
        m_window.setGeometry(900, 0, 100, 100);
        m_window.show();
        m_window.requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    QQuickWindow& Window() { return m_window; }

private:
    QQuickWindow m_window;
};
