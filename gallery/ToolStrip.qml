pragma ComponentBehavior: Bound

import QtQuick

// The strip of tools on the left; each button chooses the menu entry of its tool.
Rectangle {
    id: strip

    readonly property list<string> tools: ["move", "rectselect", "lasso", "wand", "crop", "eyedropper", "brush",
        "pencil", "eraser", "bucket", "gradient", "text", "shape", "hand", "zoom"]

    color: Theme.panel
    implicitWidth: 44

    Column {
        anchors { top: parent.top; topMargin: 6; horizontalCenter: parent.horizontalCenter }
        spacing: 2

        Repeater {
            model: strip.tools

            Rectangle {
                id: button

                required property string modelData
                readonly property bool current: Session.view.tool === modelData

                width: 34
                height: 34
                radius: Theme.radius
                color: current ? Theme.accentGround : hover.hovered ? Theme.hover : "transparent"

                Accessible.role: Accessible.RadioButton
                Accessible.name: Session.label("Tool(" + modelData + ")") || modelData
                Accessible.checked: current
                Accessible.onPressAction: Session.choose("Tool(" + modelData + ")")

                ToolIcon {
                    anchors.centerIn: parent
                    tool: button.modelData
                    color: button.current ? Theme.accent : Theme.ink
                }
                HoverHandler {
                    id: hover
                }
                TapHandler {
                    onTapped: Session.choose("Tool(" + button.modelData + ")")
                }
            }
        }
    }

    Rectangle {
        anchors { top: parent.top; bottom: parent.bottom; right: parent.right }
        width: 1
        color: Theme.line
    }
}
