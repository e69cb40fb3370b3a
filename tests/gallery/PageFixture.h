#pragma once

#include "tests/gallery/MainWindow.h"

#include <QAccessible>
#include <QTest>

/// A page in the window of the program, driven by keys and by the mouse.
class PageFixture : public testing::Test
{
protected:
    explicit PageFixture(const QString& page)
    {
        m_gallery.GetSession().SetPage(page);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_gallery.Window()));
        m_gallery.Window().grabWindow(); // lays the page out
    }

    /// Also one that a repeater made, which is nobody's child but in the scene.
    QQuickItem* Item(const QString& name)
    {
        QList<QQuickItem*> open{m_gallery.Window().contentItem()};
        while (!open.isEmpty() && open.first()->objectName() != name)
            open << open.takeFirst()->childItems();
        EXPECT_FALSE(open.isEmpty()) << name.toStdString();
        return open.value(0);
    }

    QVariant Property(const QString& name, const char* property) { return Item(name)->property(property); }
    QString Text(const QString& name, const char* property = "text")
    {
        return Property(name, property).toString();
    }

    void Focus(const QString& name) { Item(name)->forceActiveFocus(Qt::TabFocusReason); }
    bool HasFocus(const QString& name) { return Item(name)->hasActiveFocus(); }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&m_gallery.Window(), key, modifiers);
    }

    /// In place of what the field holds.
    void Type(const QString& field, const QString& text)
    {
        Focus(field);
        Press(Qt::Key_A, Qt::ControlModifier);
        for (const QChar letter : text)
            QTest::keyClick(&m_gallery.Window(), letter.toLatin1());
    }

    /// At a share of the item's width, in the middle of its height.
    void Click(const QString& name, double share = 0.5)
    {
        QTest::mouseClick(&m_gallery.Window(), Qt::LeftButton, {}, At(name, share));
    }

    void Drag(const QString& name, double from, double to)
    {
        QTest::mousePress(&m_gallery.Window(), Qt::LeftButton, {}, At(name, from));
        QTest::mouseMove(&m_gallery.Window(), At(name, to));
        QTest::mouseRelease(&m_gallery.Window(), Qt::LeftButton, {}, At(name, to));
    }

    QAccessibleInterface* Accessible(const QString& name)
    {
        return QAccessible::queryAccessibleInterface(Item(name));
    }

    MainWindow m_gallery;

private:
    QPoint At(const QString& name, double share)
    {
        const QQuickItem* item = Item(name);
        return item->mapToScene({item->width() * share, item->height() / 2}).toPoint();
    }
};
