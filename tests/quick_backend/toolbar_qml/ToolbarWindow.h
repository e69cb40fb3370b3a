#pragma once

#include "AbstractGui/VqControlCodes.h"
#include "quick_backend/toolbar/CVqQuickButton.h"
#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar/CVqQuickItemControl.h"
#include "quick_backend/toolbar/CVqQuickPicker.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"
#include "quick_backend/toolbar/CVqQuickToolbarArea.h"
#include "quick_backend/toolbar/SVqUiEvent.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

/// A window with a field, a toolbar and another field, in this order of Tab, as an application would write
/// it, and the toolbar that shows there. Keys and clicks go the whole way through the window; what arrives at
/// the controls is noted.
class ToolbarWindow
{
public:
    explicit ToolbarWindow(const QByteArray& bar_properties = {},
                           EOrientation orientation = EOrientation::Horizontal, const QByteArray& beside = {})
        : m_toolbar(
              std::make_unique<CVqQuickButtonToolbar>(VQ_TEXT("main"), EToolbarType::Main, orientation)),
          m_component(&m_engine)
    {
        Noted() = &m_events;
        m_component.setData(Source(bar_properties, beside), QUrl());
        const QVariantMap properties{{QStringLiteral("theToolbar"), QVariant::fromValue(m_toolbar.get())}};
        m_object.reset(m_component.createWithInitialProperties(properties));
        EXPECT_TRUE(m_object) << qPrintable(m_component.errorString());
        Window().requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
        ParkPointer();
    }

    ~ToolbarWindow() { ParkPointer(); }

    CVqQuickButtonToolbar& Toolbar() { return *m_toolbar; }
    void EndToolbar() { m_toolbar.reset(); }
    QQuickWindow& Window() { return *qobject_cast<QQuickWindow*>(m_object.get()); }
    QQuickItem* Bar() { return Find("toolbar"); }

    // Controls -------------------------------------------------------------------------------------------

    /// A button that shows its text, "Open" for "open", with its events noted.
    CVqQuickButton& AddButton(const char* name)
    {
        const QString id = QString::fromLatin1(name);
        return AddButton(name, id.left(1).toUpper() + id.mid(1));
    }

    CVqQuickButton& AddButton(const char* name, const QString& text)
    {
        const CVqStringW id = CVqStringW::FromQString(QString::fromLatin1(name));
        auto& button = dynamic_cast<CVqQuickButton&>(*m_toolbar->ControlFromId(m_toolbar->AddButton(id)));
        CVqStringW label = CVqStringW::FromQString(text);
        button.Set(vq_control_text, 0, &label);
        button.SetHandler(&Note);
        return button;
    }

    CVqQuickControl& AddSeparator()
    {
        return dynamic_cast<CVqQuickControl&>(*m_toolbar->ControlFromId(m_toolbar->AppendSeparator(nullptr)));
    }

    /// A control that hosts an item of this QML text.
    CVqQuickItemControl& AddGeneral(const char* name, const QByteArray& qml)
    {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport QtQuick.Templates as T\n" + qml, QUrl());
        auto* content = qobject_cast<QQuickItem*>(component.create(m_engine.rootContext()));
        EXPECT_TRUE(content) << qPrintable(component.errorString());
        auto* control = new CVqQuickItemControl(content);
        control->SetHandler(&Note);
        const CVqStringW id = CVqStringW::FromQString(QString::fromLatin1(name));
        EXPECT_NE(m_toolbar->AddGeneralControl(control, id), 0u);
        return *control;
    }

    CVqQuickPicker& Picker() { return *m_toolbar->Toolbar().Picker(); }

    static void SetTooltip(CVqQuickControl& control, const char* text)
    {
        CVqStringW tooltip = CVqStringW::FromQString(QString::fromLatin1(text));
        control.Set(vq_control_tooltip, 0, &tooltip);
    }

    static void SetDropDown(CVqQuickControl& control)
    {
        vq_uint32 popup = 7;
        control.Set(vq_control_value, 0, &popup);
    }

    static void Check(CVqQuickControl& control, bool checked)
    {
        vq_int32 value = checked ? 1 : 0;
        control.Set(vq_control_check, 0, &value);
    }

    /// What came to the controls: "open triggered", "open drop-down at 10,36", "open context menu at 10,36".
    const std::vector<std::string>& Events()
    {
        Settle();
        return m_events;
    }

    // Input ----------------------------------------------------------------------------------------------

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&Window(), key, modifiers);
        Settle();
    }

    void Click(const QQuickItem* item, Qt::MouseButton button = Qt::LeftButton)
    {
        ClickAt(Centre(item), button);
    }

    void ClickAt(const QPoint& place, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(&Window(), button, {}, place);
        Settle();
    }

    void Hover(const QQuickItem* item)
    {
        QTest::mouseMove(&Window(), Centre(item) + QPoint(1, 0));
        QTest::mouseMove(&Window(), Centre(item));
        Settle();
    }

    /// Into a corner where nothing is: the pointer of the platform outlives its window.
    void ParkPointer()
    {
        QTest::mouseMove(&Window(), {398, 298});
        Settle();
    }

    void FocusField(const char* name)
    {
        Find(name)->forceActiveFocus();
        Settle();
    }

    // What shows -----------------------------------------------------------------------------------------

    /// Lays out and draws what is due, and delivers events.
    void Settle()
    {
        QCoreApplication::processEvents();
        Window().grabWindow();
        QCoreApplication::processEvents();
    }

    /// The visible item of that object name, or null.
    QQuickItem* Find(const char* name)
    {
        Settle();
        return FindBelow(Window().contentItem(), QString::fromLatin1(name));
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

    /// The visible part of a control's look of that object name, or null.
    QQuickItem* Part(const CVqQuickControl& control, const char* name)
    {
        Settle();
        return FindBelow(control.Item(), QString::fromLatin1(name));
    }

    QQuickItem* Look(const CVqQuickControl& control)
    {
        Settle();
        return FindBelow(control.Item(), QStringLiteral("look:") + control.Name());
    }

    /// The name of the control, or of the item beside the toolbar, that has the keyboard.
    std::string Focus()
    {
        Settle();
        QQuickItem* item = Window().activeFocusItem();
        if (!item)
            return "";
        for (CVqQuickToolbarArea* area : {m_toolbar->Area(), Picker().Area()})
            if (CVqQuickControl* control = area->controlOf(item))
                return control->GetKind() == CVqQuickControl::Picker ? "picker"
                                                                     : control->Name().toStdString();
        return item->objectName().toStdString();
    }

    /// Where an item lies in the window.
    static QRectF Place(const QQuickItem* item)
    {
        return {item->mapToScene({0, 0}), QSizeF(item->width(), item->height())};
    }

    static QPoint Centre(const QQuickItem* item) { return Place(item).center().toPoint(); }

    /// What is drawn at a place of an item.
    QColor ColorAt(const QQuickItem* item, const QPointF& place)
    {
        Settle();
        const QImage picture = Window().grabWindow();
        return picture.pixelColor((item->mapToScene(place) * picture.devicePixelRatio()).toPoint());
    }

    template <class Value>
    Value Of(const char* name, const char* property)
    {
        const QQuickItem* item = Find(name);
        EXPECT_TRUE(item) << name;
        return item ? item->property(property).value<Value>() : Value();
    }

    void SetBar(const char* property, const QVariant& value)
    {
        QQuickItem* bar = Bar();
        EXPECT_TRUE(QQmlProperty::write(bar, QString::fromLatin1(property), value, qmlContext(bar)));
        Settle();
    }

    QQmlEngine& Engine() { return m_engine; }

private:
    static std::vector<std::string>*& Noted()
    {
        static std::vector<std::string>* events = nullptr;
        return events;
    }

    static bool Note(IVqUIcontrol* control, SVqUiEvent& event)
    {
        std::string text = dynamic_cast<CVqQuickControl*>(control)->Name().toStdString();
        const QPoint place = event.m_place.toPoint();
        const std::string at = " at " + std::to_string(place.x()) + "," + std::to_string(place.y());
        switch (event.m_kind) {
        case SVqUiEvent::EKind::Triggered:
            text += " triggered";
            break;
        case SVqUiEvent::EKind::DropDown:
            text += " drop-down" + at;
            break;
        case SVqUiEvent::EKind::ContextMenu:
            text += " context menu" + at;
            break;
        case SVqUiEvent::EKind::Drag:
            text += " drag";
            break;
        }
        Noted()->push_back(text);
        return true;
    }

    static QByteArray Source(const QByteArray& bar_properties, const QByteArray& beside)
    {
        return R"(
            import QtQuick
            import K7.Arbor.QuickBackend
            Window {
                id: window
                required property QuickToolbar theToolbar
                width: 400; height: 300; visible: true
                palette { window: "#f0f0f0"; windowText: "#202020"; highlight: "#2060c0" }
                TextInput { objectName: "before"; activeFocusOnTab: true; y: 200; width: 100; height: 30 }
                Toolbar { toolbar: window.theToolbar; tipDelay: 0; )"
            + bar_properties + R"( }
                TextInput { objectName: "after"; activeFocusOnTab: true; y: 240; width: 100; height: 30 }
            )"
            + beside + "}";
    }

    std::unique_ptr<CVqQuickButtonToolbar> m_toolbar;
    QQmlEngine m_engine;
    QQmlComponent m_component;
    std::unique_ptr<QObject> m_object;
    std::vector<std::string> m_events;
};
