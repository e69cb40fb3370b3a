#pragma once

#include "gallery/Pages.h"
#include "gallery/Session.h"
#include "gallery/Translations.h"
#include "gallery/live/LiveAddresses.h"
#include "quick_backend/CVqQuickBitmapPool.h"
#include "tests/gallery/QmlTypes.h"
#include "tests/gallery/RealMenu.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <gtest/gtest.h>

/// The window of the program, with the real menu.
class MainWindow
{
public:
    explicit MainWindow(const QString& locale = QStringLiteral("en"), const Gallery::MenuHome& home = {})
        : m_translations(locale), m_session(RealMenu(), home)
    {
        RegisterQmlTypes();
        m_pool.AddImageProvider(m_engine);
        m_engine.addUrlInterceptor(&m_addresses);
        m_engine.load(Gallery::GalleryUrl(QStringLiteral("Main.qml")));
        m_window = qobject_cast<QQuickWindow*>(m_engine.rootObjects().value(0));
        EXPECT_TRUE(m_window);
        m_window->requestActivate();
        m_window->grabWindow(); // lays everything out
    }

    Gallery::Session& GetSession() { return m_session; }
    QQuickWindow& Window() { return *m_window; }

private:
    Gallery::Translations m_translations;
    CVqQuickBitmapPool m_pool;
    Gallery::Session m_session;
    Gallery::LiveAddresses m_addresses;
    QQmlApplicationEngine m_engine;
    QQuickWindow* m_window = nullptr;
};
