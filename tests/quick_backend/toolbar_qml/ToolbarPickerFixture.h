#pragma once

#include "tests/quick_backend/toolbar_qml/ToolbarWindow.h"

/// Eight buttons, of which two or three have room.
class ToolbarPickerFixture : public testing::Test
{
protected:
    explicit ToolbarPickerFixture(const QByteArray& properties = "width: 130",
                                  EOrientation orientation = EOrientation::Horizontal)
        : window(properties, orientation)
    {
        for (const char* name : {"a", "b", "c", "d", "e", "f", "g", "h"})
            buttons.push_back(&window.AddButton(name));
        window.FocusField("before");
    }

    /// The opened popup, or null.
    QQuickItem* Panel()
    {
        window.Settle();
        QQuickItem* area = window.Picker().Area();
        return area && area->window() && area->isVisible() ? area : nullptr;
    }

    QQuickItem* Look() { return window.Find("look:"); }
    void Open() { window.Click(Look()); }

    void OpenByKeyboard()
    {
        window.Press(Qt::Key_Tab);
        window.Press(Qt::Key_End);
        window.Press(Qt::Key_Space);
    }

    CVqQuickButton& Last() { return *buttons.back(); }

    /// The first button that lies in the picker.
    std::string First()
    {
        for (const CVqQuickButton* button : buttons)
            if (button->IsInPicker())
                return button->Name().toStdString();
        return "";
    }

    ToolbarWindow window;
    std::vector<CVqQuickButton*> buttons;
};
