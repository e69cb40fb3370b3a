// The push button of a ProgressPanel.
import QtQuick
import QtQuick.Templates as T

T.Button {
    id: button

    implicitWidth: Math.max(96, content.implicitWidth + leftPadding + rightPadding)
    implicitHeight: content.implicitHeight + topPadding + bottomPadding
    horizontalPadding: 16
    verticalPadding: 7
    focusPolicy: Qt.TabFocus
    hoverEnabled: true

    Accessible.name: text

    background: Rectangle {
        radius: 5
        color: Qt.darker(button.palette.button, button.down ? 1.15 : button.hovered ? 1.06 : 1)
        border.color: button.visualFocus ? button.palette.highlight : Qt.alpha(button.palette.buttonText, 0.3)
        border.width: button.visualFocus ? 2 : 1
        opacity: button.enabled ? 1 : 0.6
    }

    contentItem: Text {
        id: content

        text: button.text
        textFormat: Text.PlainText
        font: button.font
        color: button.palette.active.buttonText
        opacity: button.enabled ? 1 : 0.7
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
}
