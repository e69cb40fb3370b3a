import QtQuick

// A titled field for one line of text.
FocusScope {
    id: field

    property string title
    property alias text: input.text

    signal accepted

    implicitWidth: 200
    implicitHeight: frame.y + frame.height

    Text {
        id: heading

        text: field.title
        textFormat: Text.PlainText
        color: Theme.softInk
        font { pixelSize: Theme.smallText; weight: Font.DemiBold; capitalization: Font.AllUppercase; letterSpacing: 0.6 }
    }
    Rectangle {
        id: frame

        anchors { top: heading.bottom; topMargin: Theme.space }
        width: parent.width
        height: 36
        radius: Theme.radius
        color: Theme.field
        border { color: input.activeFocus ? Theme.accent : Theme.edge; width: input.activeFocus ? 2 : 1 }

        TextInput {
            id: input

            anchors { fill: parent; leftMargin: 12; rightMargin: 12 }
            focus: true
            activeFocusOnTab: true
            selectByMouse: true
            clip: true
            verticalAlignment: TextInput.AlignVCenter
            color: Theme.ink
            selectionColor: Theme.accent
            selectedTextColor: Theme.accentInk
            font.pixelSize: Theme.text
            onAccepted: field.accepted()

            Accessible.role: Accessible.EditableText
            Accessible.name: field.title
        }
    }
}
