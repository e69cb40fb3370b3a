#pragma once

#include "gallery/Session.h"
#include "tests/gallery/RealMenu.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <memory>

/// A window with the real menu and nothing else, for what is driven by keys.
class GalleryWindow
{
public:
    GalleryWindow()
    {
        QQmlComponent component(&m_engine);
        component.setData(R"(import QtQuick
            import K7.Arbor.QuickBackend
            Window {
                id: window
                required property QuickMenu menu
                width: 640; height: 480; visible: true
                MenuBar { width: parent.width; menu: window.menu }
                ContextMenu { anchors.fill: parent; menu: window.menu }
            })",
                          QUrl());
        m_window.reset(qobject_cast<QQuickWindow*>(component.createWithInitialProperties(
            {{QStringLiteral("menu"), QVariant::fromValue(m_session.Menu())}})));
        EXPECT_TRUE(m_window) << component.errorString().toStdString();
        m_window->requestActivate();
    }

    Gallery::Session& GetSession() { return m_session; }
    QQuickWindow& Window() { return *m_window; }

private:
    Gallery::Session m_session{RealMenu()};
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};
