pragma ComponentBehavior: Bound

import QtQuick

// A small scene that never stands still, for showing how scenes are drawn: discs on their way round a sun.
Item {
    id: scene

    readonly property real unit: Math.min(width, height) / 100

    property real turn

    NumberAnimation on turn {
        from: 0
        to: 1
        duration: 12000
        loops: Animation.Infinite
    }
    Rectangle {
        anchors.fill: parent
        radius: 4 * scene.unit
        gradient: Gradient {
            GradientStop { position: 0; color: "#16263f" }
            GradientStop { position: 1; color: "#35608f" }
        }
    }
    Rectangle {
        anchors.centerIn: parent
        width: 16 * scene.unit
        height: width
        radius: width / 2
        color: "#f2c14e"
    }
    Repeater {
        model: [
            { way: 18, size: 5, speed: 5, color: "#f4f5f7" },
            { way: 28, size: 8, speed: 3, color: "#8fc7e8" },
            { way: 40, size: 11, speed: 2, color: "#e5815b" }
        ]

        Item {
            id: orbit

            required property var modelData

            anchors.centerIn: parent
            width: 2 * modelData.way * scene.unit
            height: width
            rotation: 360 * scene.turn * modelData.speed

            Rectangle {
                anchors.fill: parent
                radius: width / 2
                color: "transparent"
                border { color: "#40ffffff"; width: Math.max(1, 0.4 * scene.unit) }
                antialiasing: true
            }
            Rectangle {
                anchors { horizontalCenter: parent.right; verticalCenter: parent.verticalCenter }
                width: orbit.modelData.size * scene.unit
                height: width
                radius: width / 2
                color: orbit.modelData.color
                antialiasing: true
            }
        }
    }
}
