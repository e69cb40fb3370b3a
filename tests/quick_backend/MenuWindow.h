#pragma once

#include "quick_backend/CVqQuickMenu.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

/// A window with a menu bar, a text field and a context menu, as an application would write it, and the menu
/// that they show. Keys and clicks go the whole way through the window.
class MenuWindow
{
public:
    explicit MenuWindow(const QByteArray& bar_properties = {}) : m_component(&m_engine)
    {
        m_menu.SetCmdHandler([this](vq_uint32 id) { m_fired.push_back(id); });
        m_component.setData(Source(bar_properties), QUrl());
        const QVariantMap properties{{QStringLiteral("theMenu"), QVariant::fromValue(&m_menu)}};
        m_object.reset(m_component.createWithInitialProperties(properties));
        EXPECT_TRUE(m_object) << qPrintable(m_component.errorString());
        Window().requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
        ParkPointer();
    }

    ~MenuWindow() { ParkPointer(); }

    CVqQuickMenu& Menu() { return m_menu; }
    QQmlEngine& Engine() { return m_engine; }
    QQuickWindow& Window() { return *qobject_cast<QQuickWindow*>(m_object.get()); }
    const std::vector<vq_uint32>& Fired() const { return m_fired; }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&Window(), key, modifiers);
    }

    void Type(char letter, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&Window(), letter, modifiers);
    }

    void PressAltAlone()
    {
        QTest::keyPress(&Window(), Qt::Key_Alt);
        QTest::keyRelease(&Window(), Qt::Key_Alt);
    }

    /// Lays out and draws what is due.
    void Settle()
    {
        QCoreApplication::processEvents();
        Window().grabWindow();
    }

    void Click(const QQuickItem* item) { QTest::mouseClick(&Window(), Qt::LeftButton, {}, Centre(item)); }

    void Hover(const QQuickItem* item)
    {
        QTest::mouseMove(&Window(), Centre(item) + QPoint(1, 0));
        QTest::mouseMove(&Window(), Centre(item));
    }

    /// Presses the button over an item; DragTo() moves the pointer with it held, LetGo() releases it.
    void PressOn(const QQuickItem* item) { QTest::mousePress(&Window(), Qt::LeftButton, {}, Centre(item)); }
    void DragTo(const QQuickItem* item) { Hover(item); }
    void LetGo(const QQuickItem* item) { QTest::mouseRelease(&Window(), Qt::LeftButton, {}, Centre(item)); }

    /// What is drawn at a place of an item.
    QColor ColorAt(const QQuickItem* item, const QPointF& place)
    {
        const QImage picture = Window().grabWindow();
        return picture.pixelColor((item->mapToScene(place) * picture.devicePixelRatio()).toPoint());
    }

    void ClickAt(const QPoint& position) { QTest::mouseClick(&Window(), Qt::LeftButton, {}, position); }

    /// The visible item of that object name, or null.
    QQuickItem* Find(const QString& name)
    {
        Settle();
        return FindBelow(Window().contentItem(), name);
    }

    QQuickItem* BarItem(int row) { return Find(QStringLiteral("menuBarItem%1").arg(row)); }

    /// Row `row` of the popup opened last.
    QQuickItem* Row(int row)
    {
        Settle();
        const auto lists = OpenLists();
        return lists.empty() ? nullptr : FindBelow(lists.back(), QStringLiteral("menuRow%1").arg(row));
    }

    /// The visible lists of rows, outermost first.
    std::vector<QQuickItem*> OpenLists()
    {
        std::vector<QQuickItem*> lists;
        Collect(Window().contentItem(), QStringLiteral("menuRows"), lists);
        return lists;
    }

    /// Labels of the current bar item and of the current row of each open popup: "File/Recent/two". A popup
    /// without a current row adds an empty name; nothing open gives the empty text.
    std::string Path()
    {
        const int bar_row = Find(QStringLiteral("menuBar"))->property("currentIndex").toInt();
        QString path = bar_row < 0 ? QString() : Label(Menu().Rows(), bar_row);
        for (QQuickItem* list : OpenLists())
            path += u'/'
                + Label(list->property("model").value<CVqQuickMenuRows*>(),
                        list->property("currentIndex").toInt());
        return path.toStdString();
    }

private:
    /// Into a corner where no menu opens: the pointer of the platform outlives its window.
    void ParkPointer()
    {
        QTest::mouseMove(&Window(), {398, 298});
        QCoreApplication::processEvents();
    }

    static QByteArray Source(const QByteArray& bar_properties)
    {
        return R"(
            import QtQuick
            import K7.Arbor.QuickBackend
            Window {
                id: window
                required property QuickMenu theMenu
                width: 400; height: 300; visible: true
                MenuBar { menu: window.theMenu; width: parent.width; hoverDelay: 0; )"
            + bar_properties + R"( }
                TextInput { objectName: "field"; y: 200; width: 200; height: 30 }
                ContextMenu { anchors.fill: parent; menu: window.theMenu; hoverDelay: 0 }
            })";
    }

    static QString Label(const CVqQuickMenuRows* rows, int row)
    {
        return rows->data(rows->index(row), CVqQuickMenuRows::LabelRole).toString();
    }

    static QPoint Centre(const QQuickItem* item)
    {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }

    static void Collect(QQuickItem* below, const QString& name, std::vector<QQuickItem*>& found)
    {
        if (!below->isVisible())
            return;
        if (below->objectName() == name)
            found.push_back(below);
        const QList<QQuickItem*> children = below->childItems();
        for (QQuickItem* child : children)
            Collect(child, name, found);
    }

    static QQuickItem* FindBelow(QQuickItem* below, const QString& name)
    {
        std::vector<QQuickItem*> found;
        Collect(below, name, found);
        return found.empty() ? nullptr : found.front();
    }

    CVqQuickMenu m_menu;
    QQmlEngine m_engine;
    QQmlComponent m_component;
    std::unique_ptr<QObject> m_object;
    std::vector<vq_uint32> m_fired;
};

/// File (1): Open (2, Ctrl+O), Save (3, grayed), separator (4), Recent (5): one (6), More (7): deep (8)
/// Edit (10): Undo (11, Ctrl+Z), Copy (12), Cut (13)
/// Help (20): About (21)
inline void FillMenu(CVqQuickMenu& menu)
{
    menu.AppendPopup(1, 0, VQ_TEXT("&File"));
    menu.AppendMenuItem(2, 1, VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT("FileOpen"), 0);
    menu.AppendMenuItem(3, 1, VQ_TEXT("&Save"), VQ_TEXT("FileSave"), 0);
    menu.EnableId(3, false);
    menu.AppendSeparator(4, 1);
    menu.AppendPopup(5, 1, VQ_TEXT("&Recent"));
    menu.AppendMenuItem(6, 5, VQ_TEXT("&one"), VQ_TEXT("One"), 0);
    menu.AppendPopup(7, 5, VQ_TEXT("&More"));
    menu.AppendMenuItem(8, 7, VQ_TEXT("&deep"), VQ_TEXT("Deep"), 0);
    menu.AppendPopup(10, 0, VQ_TEXT("&Edit"));
    menu.AppendMenuItem(11, 10, VQ_TEXT("&Undo\aCtrl+Z"), VQ_TEXT("Undo"), 0);
    menu.AppendMenuItem(12, 10, VQ_TEXT("&Copy"), VQ_TEXT("Copy"), 0);
    menu.AppendMenuItem(13, 10, VQ_TEXT("C&ut"), VQ_TEXT("Cut"), 0);
    menu.AppendPopup(20, 0, VQ_TEXT("&Help"));
    menu.AppendMenuItem(21, 20, VQ_TEXT("&About"), VQ_TEXT("About"), 0);
}
