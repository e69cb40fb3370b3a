// The bar of a ProgressPanel: `value` from 0 to 1, or a piece that wanders while `indeterminate`.
import QtQuick
import QtQuick.Templates as T

T.ProgressBar {
    id: bar

    readonly property real pieceWidth: width / 4

    /// Where the wandering piece is, 0 to 1.
    property real place

    implicitWidth: 200
    implicitHeight: 8

    background: Rectangle {
        radius: height / 2
        color: Qt.alpha(bar.palette.windowText, 0.16)
    }

    contentItem: Item {
        clip: true

        Rectangle {
            objectName: "progressBarFill"
            x: bar.indeterminate ? (parent.width - width) * bar.place : bar.mirrored ? parent.width - width : 0
            width: bar.indeterminate ? bar.pieceWidth : bar.position * parent.width
            height: parent.height
            radius: height / 2
            visible: width > 0
            color: bar.palette.highlight
        }
    }

    SequentialAnimation on place {
        running: bar.indeterminate && bar.visible
        loops: Animation.Infinite

        NumberAnimation {
            to: 1
            duration: 1100
            easing.type: Easing.InOutSine
        }

        NumberAnimation {
            to: 0
            duration: 1100
            easing.type: Easing.InOutSine
        }
    }
}
