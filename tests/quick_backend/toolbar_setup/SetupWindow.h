#pragma once

#include "tests/quick_backend/toolbar_setup/SetupBars.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTest>

/// The bars of SetupBars in a window of an application, with all that customises them. Keys and clicks go the
/// whole way through the window.
class SetupWindow : public SetupBars
{
public:
    explicit SetupWindow(const QByteArray& panel_properties = "width: 740") : m_component(&m_engine)
    {
        m_component.setData(Source(panel_properties), QUrl());
        m_object.reset(m_component.createWithInitialProperties(
            {{QStringLiteral("first"), QVariant::fromValue(&first)},
             {QStringLiteral("second"), QVariant::fromValue(&second)},
             {QStringLiteral("setup"), QVariant::fromValue(setup.get())}}));
        EXPECT_TRUE(m_object) << qPrintable(m_component.errorString());
        Window().requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
        ParkPointer();
        Draw();
    }

    ~SetupWindow()
    {
        setup->cancel();
        ParkPointer();
        m_object.reset();
    }

    QQuickWindow& Window() { return *qobject_cast<QQuickWindow*>(m_object.get()); }

    /// Lays out and draws what is due.
    void Draw()
    {
        QCoreApplication::processEvents();
        Window().grabWindow();
        QCoreApplication::processEvents();
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&Window(), key, modifiers);
        Draw();
    }

    void Click(const QQuickItem* item, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(&Window(), button, {}, On(item, 0.5));
        Draw();
    }

    /// Presses, moves and holds on.
    void Drag(QPoint from, QPoint to)
    {
        QTest::mouseMove(&Window(), from);
        QTest::mousePress(&Window(), Qt::LeftButton, {}, from);
        QTest::mouseMove(&Window(), from + (to - from) / 2);
        QTest::mouseMove(&Window(), to);
        Draw();
    }

    void LetGo(QPoint place)
    {
        QTest::mouseRelease(&Window(), Qt::LeftButton, {}, place);
        Draw();
    }

    void DragAndDrop(QPoint from, QPoint to)
    {
        Drag(from, to);
        LetGo(to);
    }

    /// A place of the window: a part of the way from the beginning of an item to its end.
    static QPoint On(const QQuickItem* item, qreal part)
    {
        return item->mapToScene({item->width() * part, item->height() * part}).toPoint();
    }

    static QPoint On(CVqQuickControl* control, qreal part) { return On(control->Item(), part); }

    /// The first visible item of that object name, or null.
    QQuickItem* Find(const char* name) { return Part(Window().contentItem(), name); }

    /// The same in an item.
    static QQuickItem* Part(QQuickItem* of, const char* name)
    {
        return FindBelow(of, QString::fromLatin1(name));
    }

    static QAccessibleInterface* Accessible(QQuickItem* item)
    {
        return QAccessible::queryAccessibleInterface(item);
    }

    static QString NameOf(QQuickItem* item) { return Accessible(item)->text(QAccessible::Name); }

    /// A place beside all bars.
    const QPoint beside{300, 120};

private:
    void ParkPointer()
    {
        QTest::mouseMove(&Window(), {798, 598});
        QCoreApplication::processEvents();
    }

    static QByteArray Source(const QByteArray& panel_properties)
    {
        return R"(
            import QtQuick
            import K7.Arbor.QuickBackend
            Window {
                id: window
                required property QuickToolbar first
                required property QuickToolbar second
                required property ToolbarSetup setup
                width: 800; height: 600; visible: true
                Toolbar { objectName: "firstBar"; toolbar: window.first; width: parent.width }
                Toolbar { objectName: "secondBar"; toolbar: window.second; y: 60; height: 200 }
                TextInput { objectName: "field"; x: 200; y: 70; width: 100; height: 20; activeFocusOnTab: true }
                ToolbarSetupPanel {
                    x: 60; y: 150; height: 450
                    setup: window.setup
                    visible: window.setup.active
                    dragLayer: layer
                    )"
            + panel_properties + R"(
                }
                ToolbarDragLayer { id: layer; anchors.fill: parent; setup: window.setup }
                ToolbarMenu { anchors.fill: parent; setup: window.setup }
            })";
    }

    static QQuickItem* FindBelow(QQuickItem* below, const QString& name)
    {
        if (!below->isVisible())
            return nullptr;
        if (below->objectName() == name)
            return below;
        const QList<QQuickItem*> children = below->childItems();
        for (QQuickItem* child : children)
            if (QQuickItem* found = FindBelow(child, name))
                return found;
        return nullptr;
    }

    QQmlEngine m_engine;
    QQmlComponent m_component;
    std::unique_ptr<QObject> m_object;
};
