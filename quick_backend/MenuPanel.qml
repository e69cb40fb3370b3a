// The panel behind the rows of a popup: a frame with a soft shadow.
import QtQuick

Rectangle {
    id: panel

    property color ink: "black"

    radius: 6
    border.color: Qt.alpha(ink, 0.22)

    Repeater {
        model: 5

        Rectangle {
            required property int index

            z: -1
            anchors.fill: parent
            anchors.margins: -index - 1
            anchors.topMargin: -index + 1
            radius: 7 + index
            color: "transparent"
            border.width: 1.5
            border.color: Qt.rgba(0, 0, 0, 0.09 - index * 0.016)
        }
    }
}
