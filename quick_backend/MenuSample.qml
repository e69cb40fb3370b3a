// What a colour or line-width item stands for: a swatch, a split swatch, or a line of that width.
import QtQuick

Item {
    id: sample

    required property int kind
    required property color color1
    required property color color2
    required property int lineWidth
    property color ink: "black"

    readonly property bool isLine: kind === QuickMenuRows.LineWidth
    readonly property color edge: Qt.alpha(ink, 0.35)

    implicitWidth: 96
    implicitHeight: 16

    Rectangle {
        anchors.fill: parent
        visible: !sample.isLine
        radius: 3
        color: sample.color1
        border.color: sample.edge

        // A rounded half would need a mask; a square one inside the frame looks the same.
        Rectangle {
            anchors {
                top: parent.top
                bottom: parent.bottom
                right: parent.right
                margins: 1
            }
            visible: sample.kind === QuickMenuRows.TwoColor
            width: parent.width / 2 - 1
            color: sample.color2
            radius: 2
        }
    }

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        visible: sample.isLine
        width: parent.width
        height: Math.max(1, Math.min(sample.lineWidth, sample.height))
        color: sample.ink
    }
}
