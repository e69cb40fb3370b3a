// A row of a ToolbarMenu; takes no room while it is not visible.
import QtQuick
import QtQuick.Templates as T

T.MenuItem {
    id: item

    readonly property color ink: highlighted && enabled ? palette.highlightedText : palette.text

    implicitWidth: visible ? label.implicitWidth + leftPadding + rightPadding : 0
    implicitHeight: visible ? Math.ceil(label.implicitHeight) + topPadding + bottomPadding : 0
    leftPadding: 30
    rightPadding: 22
    topPadding: 5
    bottomPadding: 5

    activeFocusOnTab: visible && enabled

    background: Rectangle {
        radius: 4
        color: item.palette.highlight
        visible: item.highlighted && item.enabled
    }

    contentItem: Text {
        id: label

        text: item.text
        textFormat: Text.PlainText
        font: item.font
        color: item.ink
        opacity: item.enabled ? 1 : 0.42
        verticalAlignment: Text.AlignVCenter
    }
}
