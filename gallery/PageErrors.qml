pragma ComponentBehavior: Bound

import QtQuick

// Tells why the present page cannot be shown: each error with its file, line and text.
Rectangle {
    id: panel

    property var errors: []

    color: Theme.desk

    Accessible.role: Accessible.AlertMessage
    Accessible.name: heading.text

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 48, 720)
        height: Math.min(parent.height - 48, column.implicitHeight + 48)
        radius: Theme.radius * 2
        color: Theme.panel
        border { color: Theme.line; width: 1 }
        clip: true

        Rectangle {
            width: 4
            height: parent.height
            color: Theme.danger
        }
        Column {
            id: column

            anchors { fill: parent; margins: 24 }
            spacing: 14

            Text {
                id: heading

                width: parent.width
                text: qsTr("This page cannot be shown")
                color: Theme.ink
                font { pixelSize: Theme.title; weight: Font.DemiBold }
                wrapMode: Text.Wrap
            }
            Repeater {
                model: panel.errors

                Column {
                    id: error

                    required property var modelData
                    readonly property string file: modelData.file
                    readonly property string name: file.slice(file.lastIndexOf("/") + 1)

                    width: column.width
                    spacing: 3

                    Text {
                        objectName: "errorPlace"
                        text: error.modelData.line > 0 ? qsTr("%1, line %2").arg(error.name).arg(error.modelData.line)
                            : error.name
                        textFormat: Text.PlainText
                        color: Theme.danger
                        font { pixelSize: Theme.text; weight: Font.DemiBold }
                    }
                    Text {
                        objectName: "errorText"
                        width: parent.width
                        text: error.modelData.text
                        textFormat: Text.PlainText
                        color: Theme.ink
                        font.pixelSize: Theme.text
                        wrapMode: Text.Wrap
                    }
                    Text {
                        width: parent.width
                        text: error.file
                        textFormat: Text.PlainText
                        color: Theme.softInk
                        font.pixelSize: Theme.smallText
                        elide: Text.ElideMiddle
                    }
                }
            }
            Text {
                width: parent.width
                text: qsTr("Save the file again: the page comes back as soon as it loads.")
                color: Theme.softInk
                font.pixelSize: Theme.text
                wrapMode: Text.Wrap
            }
        }
    }
}
