#pragma once

#include "tests/quick_backend/toolbar_setup/SetupWindow.h"

#include <string>

/// The panel in a session.
class SetupPanel : public testing::Test, protected SetupWindow
{
protected:
    explicit SetupPanel(const QByteArray& panel_properties = "width: 740") : SetupWindow(panel_properties)
    {
        setup->begin();
        Draw();
    }

    QQuickItem* Row(int row) { return Find(("setupRow" + std::to_string(row)).c_str()); }
    QQuickItem* Command(int row) { return Find(("commandRow" + std::to_string(row)).c_str()); }

    void ClickBox(int row)
    {
        Click(Part(Row(row), "setupBox"));
        Draw();
    }

    /// Gives the list of buttons the keyboard, at a row.
    void EnterAt(int row) { Click(Row(row)); }
};
