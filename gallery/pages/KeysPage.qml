import QtQuick
import K7.Arbor.Gallery

// The keys of all commands: choose one, press a key, and see whose it was.
PageSheet {
    id: page

    readonly property KeyEditor editor: Session.keyEditor

    title: qsTr("Keys")
    lead: qsTr("Choose a command and press the key that it is to have. If another command has that key, you are asked first. Your keys are kept for the next time.")

    Row {
        width: parent.width
        height: Math.max(400, page.room)
        spacing: 28

        Column {
            width: parent.width - panel.width - parent.spacing
            height: parent.height
            spacing: 12

            LineField {
                id: field

                objectName: "searchField"
                width: parent.width
                title: qsTr("Search by command, menu or key")
                text: page.editor.commands.filter
                focus: true
                ownKeys: [Qt.Key_Up, Qt.Key_Down, Qt.Key_PageUp, Qt.Key_PageDown]
                onTextChanged: page.editor.commands.filter = text
                onAccepted: panel.capture(field)
                Keys.onUpPressed: list.move(-1)
                Keys.onDownPressed: list.move(1)
                Keys.onPressed: event => {
                    event.accepted = event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown;
                    if (event.accepted)
                        list.move(event.key === Qt.Key_PageUp ? -list.pageRows : list.pageRows);
                }
            }
            CommandList {
                id: list

                width: parent.width
                height: parent.height - field.height - parent.spacing
                editor: page.editor
                onChosen: panel.capture(list)
            }
        }
        KeyPanel {
            id: panel

            width: 300
            height: parent.height
            editor: page.editor
            home: list
        }
    }
}
