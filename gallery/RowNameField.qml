import QtQuick

// The name of a row while it is changed in its place. Enter takes it; Esc, and going elsewhere, leave the old one.
Rectangle {
    id: field

    property string name
    property int chosen: name.length // letters that are selected at the beginning

    signal taken(name: string)
    signal canceled

    implicitHeight: 26
    radius: Theme.radius
    color: Theme.field
    border { color: Theme.accent; width: 1.5 }
    Component.onCompleted: {
        input.forceActiveFocus(Qt.OtherFocusReason);
        input.select(0, chosen);
    }

    TextInput {
        id: input

        objectName: "rowNameInput"
        anchors { fill: parent; leftMargin: 6; rightMargin: 6 }
        text: field.name
        selectByMouse: true
        clip: true
        verticalAlignment: TextInput.AlignVCenter
        color: Theme.ink
        selectionColor: Theme.accent
        selectedTextColor: Theme.accentInk
        font.pixelSize: Theme.text
        onAccepted: field.taken(text)
        onActiveFocusChanged: if (!activeFocus) field.canceled()

        Accessible.role: Accessible.EditableText
        Accessible.name: qsTr("New name of %1").arg(field.name)

        Keys.onShortcutOverride: event => event.accepted = event.accepted || event.key === Qt.Key_Escape
        Keys.onEscapePressed: field.canceled()
        // The rows stay where they are.
        Keys.onUpPressed: event => event.accepted = true
        Keys.onDownPressed: event => event.accepted = true
        Keys.onTabPressed: event => event.accepted = true
        Keys.onBacktabPressed: event => event.accepted = true
    }
}
