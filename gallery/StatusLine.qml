pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

// The line at the bottom: the last command, the key that fired it, the time to find it; tool, size and zoom.
Rectangle {
    id: line

    readonly property ViewState view: Session.view
    readonly property string command: Session.lastCommand
    readonly property string label: Session.label(command)

    color: Theme.panel
    implicitHeight: 30

    Rectangle {
        width: parent.width
        height: 1
        color: Theme.line
    }

    RowLayout {
        anchors { fill: parent; leftMargin: 14; rightMargin: 14 }
        spacing: 10

        Text {
            objectName: "statusLabel"
            text: line.command === "" ? qsTr("Choose a command, or press its key.") : line.label || line.command
            textFormat: Text.PlainText
            color: line.command === "" ? Theme.softInk : Theme.ink
            font { pixelSize: Theme.text; weight: line.command === "" ? Font.Normal : Font.DemiBold }
        }
        KeyChip {
            objectName: "statusKey"
            visible: text !== ""
            text: Session.lastKey
        }
        Text {
            objectName: "statusCommand"
            visible: text !== ""
            text: line.label === "" ? "" : line.command
            textFormat: Text.PlainText
            color: Theme.softInk
            font.pixelSize: Theme.text
            elide: Text.ElideRight
            Layout.fillWidth: true
            Layout.maximumWidth: Math.ceil(implicitWidth)
        }
        Text {
            objectName: "statusTime"
            visible: Session.lastTime !== ""
            text: qsTr("found in %1").arg(Session.lastTime)
            textFormat: Text.PlainText
            color: Theme.softInk
            font.pixelSize: Theme.text
        }
        Item {
            Layout.fillWidth: true
        }
        Fact {
            objectName: "statusTool"
            visible: text !== ""
            text: Session.label("Tool(" + line.view.tool + ")")
        }
        Fact {
            objectName: "statusSize"
            text: Session.document.size.width + " × " + Session.document.size.height
        }
        Fact {
            objectName: "statusZoom"
            text: Math.round(line.view.scale) + " %"
        }
    }

    component Fact: Text {
        textFormat: Text.PlainText
        color: Theme.softInk
        font.pixelSize: Theme.text
        Layout.leftMargin: 8
    }
}
