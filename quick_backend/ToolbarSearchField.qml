// The search field of a ToolbarSetupPanel.
import QtQuick
import QtQuick.Templates as T

T.TextField {
    id: field

    implicitHeight: Math.ceil(contentHeight) + topPadding + bottomPadding
    leftPadding: 10
    rightPadding: 10
    topPadding: 7
    bottomPadding: 7
    color: palette.text
    selectionColor: palette.highlight
    selectedTextColor: palette.highlightedText
    selectByMouse: true
    horizontalAlignment: TextInput.AlignLeft
    verticalAlignment: TextInput.AlignVCenter

    Accessible.name: placeholderText

    background: Rectangle {
        radius: 6
        color: field.palette.base
        border.color: field.activeFocus ? field.palette.highlight : Qt.alpha(field.palette.text, 0.22)
        border.width: field.activeFocus ? 2 : 1
    }

    Text {
        x: field.leftPadding
        width: field.width - field.leftPadding - field.rightPadding
        height: field.height
        visible: field.length === 0 && field.preeditText === ""
        text: field.placeholderText
        textFormat: Text.PlainText
        elide: Text.ElideRight
        font: field.font
        color: field.palette.text
        opacity: 0.5
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
