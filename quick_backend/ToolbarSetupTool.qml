// A small button below a list of a ToolbarSetupPanel: a text, or an arrow up or down.
import QtQuick
import QtQuick.Templates as T

T.Button {
    id: button

    /// 1 for an arrow down, -1 for one up, 0 for the text.
    property int arrow: 0

    implicitWidth: arrow === 0 ? label.implicitWidth + leftPadding + rightPadding : implicitHeight
    implicitHeight: Math.ceil(label.implicitHeight) + topPadding + bottomPadding
    horizontalPadding: arrow === 0 ? 10 : 0
    verticalPadding: 5
    hoverEnabled: true

    Accessible.name: text

    background: Rectangle {
        radius: 4
        color: Qt.alpha(button.palette.windowText, !button.enabled ? 0 : button.down ? 0.17 : button.hovered ? 0.09 : 0)
        border.color: button.visualFocus ? button.palette.highlight : Qt.alpha(button.palette.windowText, 0.2)
        border.width: button.visualFocus ? 2 : 1
    }

    contentItem: Item {
        opacity: button.enabled ? 1 : 0.42

        Text {
            id: label

            anchors.centerIn: parent
            visible: button.arrow === 0
            text: button.text
            textFormat: Text.PlainText
            font: button.font
            color: button.palette.windowText
        }

        MenuMark {
            anchors.centerIn: parent
            visible: button.arrow !== 0
            rotation: button.arrow * 90
            shape: MenuMark.Arrow
            color: button.palette.windowText
        }
    }
}
