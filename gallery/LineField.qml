import QtQuick

// A titled field for one line of text.
FocusScope {
    id: field

    property string title
    property alias text: input.text
    property alias validator: input.validator
    readonly property alias acceptable: input.acceptableInput // to the validator; right also while edited() is told
    property bool faulty: !acceptable // drawn as such
    property list<int> ownKeys: [] // beside those of editing, that the menu may have too

    signal accepted
    signal edited // by the user

    function selectAll(): void {
        input.selectAll();
    }

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
        border { color: field.faulty ? Theme.danger : input.activeFocus ? Theme.accent : Theme.edge; width: input.activeFocus ? 2 : 1 }

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
            onTextEdited: field.edited()
            Keys.onShortcutOverride: event => event.accepted = event.accepted || !event.modifiers && field.ownKeys.includes(event.key)

            Accessible.role: Accessible.EditableText
            Accessible.name: field.title
        }
    }
}
