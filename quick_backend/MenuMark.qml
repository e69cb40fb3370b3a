// A check mark, a radio dot or the arrow of a popup row, drawn from rectangles so that it is sharp at any scale.
import QtQuick

Item {
    id: mark

    enum Shape {
        None,
        Check,
        Radio,
        Arrow
    }

    property int shape: MenuMark.None
    property color color: "black"
    property bool mirrored: false

    implicitWidth: 16
    implicitHeight: 16

    Rectangle {
        anchors.centerIn: parent
        visible: mark.shape === MenuMark.Radio
        width: 7
        height: 7
        radius: width / 2
        antialiasing: true
        color: mark.color
    }

    // Two edges of a rectangle, turned until they are a hook or a point.
    Item {
        readonly property bool isArrow: mark.shape === MenuMark.Arrow

        anchors.centerIn: parent
        anchors.horizontalCenterOffset: isArrow ? (mark.mirrored ? 1 : -1) : 0
        anchors.verticalCenterOffset: isArrow ? 0 : -1
        visible: isArrow || mark.shape === MenuMark.Check
        width: 5
        height: isArrow ? 5 : 9
        rotation: isArrow ? (mark.mirrored ? 135 : -45) : 45

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1.6
            antialiasing: true
            color: mark.color
        }

        Rectangle {
            x: parent.width - width
            width: 1.6
            height: parent.height
            antialiasing: true
            color: mark.color
        }
    }
}
