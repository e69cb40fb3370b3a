import QtQuick
import QtQuick.Shapes
import K7.Arbor

// The scale of a slider as a curve: positions to the right, values up, and where the slider stands.
Item {
    id: plot

    property real exponent: 1
    property real position: 0

    readonly property real value: GuiSupport.exponentialSlider_posToValue(position, exponent)
    readonly property var points: Array.from({ length: 65 }, (none, index) => plot.place(index / 64,
        GuiSupport.exponentialSlider_posToValue(index / 64, exponent)))

    function place(position: real, value: real): point {
        return Qt.point(position * frame.width, (1 - value) * frame.height);
    }

    implicitWidth: 260
    implicitHeight: 260

    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("Values over positions")

    Rectangle {
        id: frame

        anchors { fill: parent; bottomMargin: 20 }
        radius: Theme.radius
        color: Theme.field
        border { color: Theme.line; width: 1 }

        // From the middle of the scale to its value.
        Rectangle {
            x: frame.width / 2
            width: 1
            height: frame.height
            color: Theme.line
        }
        Rectangle {
            y: frame.height * (1 - GuiSupport.exponentialSlider_posToValue(0.5, plot.exponent))
            width: frame.width
            height: 1
            color: Theme.line
        }
        Shape {
            anchors.fill: parent
            preferredRendererType: Shape.CurveRenderer

            ShapePath {
                strokeColor: Theme.accent
                strokeWidth: 2
                fillColor: "transparent"
                capStyle: ShapePath.RoundCap
                joinStyle: ShapePath.RoundJoin

                PathPolyline {
                    path: plot.points
                }
            }
        }
        Rectangle {
            x: plot.position * frame.width - width / 2
            y: (1 - plot.value) * frame.height - height / 2
            width: 12
            height: 12
            radius: 6
            color: Theme.accent
            border { color: Theme.field; width: 2 }
        }
    }
    Text {
        anchors { horizontalCenter: frame.horizontalCenter; bottom: parent.bottom }
        text: qsTr("Position")
        color: Theme.softInk
        font.pixelSize: Theme.smallText
    }
    Text {
        x: 8
        y: 6
        text: qsTr("Value")
        color: Theme.softInk
        font.pixelSize: Theme.smallText
    }
}
