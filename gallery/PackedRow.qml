pragma ComponentBehavior: Bound

import QtQuick
import K7.Arbor

// A number that holds a colour: what each of its bytes stands for, from the high one to the low one.
Item {
    id: row

    property string title
    property real number
    property string letters // A, R, G and B; "0" for a byte without meaning

    readonly property list<int> bytes: [GuiSupport.alphaFromARGB(number), GuiSupport.redFromARGB(number),
        GuiSupport.greenFromARGB(number), GuiSupport.blueFromARGB(number)]
    readonly property var tints: ({ A: Theme.softInk, R: Theme.red, G: Theme.green, B: Theme.blue })

    function hex(value: real, digits: int): string {
        return value.toString(16).toUpperCase().padStart(digits, "0");
    }

    width: parent ? parent.width : implicitWidth
    implicitWidth: 600
    implicitHeight: 38

    Accessible.role: Accessible.StaticText
    Accessible.name: title + ": 0x" + hex(number, 8)

    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: row.title
        textFormat: Text.PlainText
        color: Theme.ink
        font.pixelSize: Theme.text
    }
    Row {
        x: 170
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        Repeater {
            model: 4

            Rectangle {
                id: cell

                required property int index
                readonly property string letter: row.letters[index] ?? "0"
                readonly property bool meant: letter !== "0"

                width: 64
                height: 28
                radius: Theme.radius
                color: meant ? Theme.field : "transparent"
                border { color: Theme.line; width: 1 }

                Rectangle {
                    visible: cell.meant
                    x: 1
                    anchors.verticalCenter: parent.verticalCenter
                    width: 3
                    height: 18
                    color: row.tints[cell.letter] ?? "transparent"
                }
                Text {
                    x: 12
                    anchors.verticalCenter: parent.verticalCenter
                    text: cell.meant ? cell.letter : ""
                    color: Theme.softInk
                    font.pixelSize: Theme.smallText
                }
                Text {
                    anchors { right: parent.right; rightMargin: 12; verticalCenter: parent.verticalCenter }
                    text: row.hex(row.bytes[cell.index], 2)
                    color: cell.meant ? Theme.ink : Theme.softInk
                    font { pixelSize: Theme.text; features: { "tnum": 1 } }
                }
            }
        }
    }
    Text {
        anchors { left: parent.left; leftMargin: 470; verticalCenter: parent.verticalCenter }
        objectName: "hexNumber"
        text: "0x" + row.hex(row.number, 8)
        color: Theme.ink
        font { pixelSize: Theme.text; features: { "tnum": 1 } }
    }
    Text {
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        visible: row.width > 640
        text: row.number
        color: Theme.softInk
        font { pixelSize: Theme.text; features: { "tnum": 1 } }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.line
    }
}
