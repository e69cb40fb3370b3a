// The look of a separator: a line across the toolbar.
import QtQuick

ToolbarLook {
    id: look

    Accessible.role: Accessible.Separator
    Accessible.focusable: session.customizing

    background: ToolbarPlate {
        session: look.session
        focused: look.activeFocus
    }

    contentItem: Item {
        Rectangle {
            readonly property bool lies: look.control?.vertical ?? false

            objectName: "separatorLine"
            x: lies ? 4 : Math.round((parent.width - width) / 2)
            y: lies ? Math.round((parent.height - height) / 2) : 4
            width: lies ? parent.width - 8 : 1
            height: lies ? 1 : parent.height - 8
            color: Qt.alpha(look.session.ink, 0.2)
        }
    }
}
