import QtQuick

// Takes the next key, and shows the modifiers that are held meanwhile.
FocusScope {
    id: field

    /// What the key is for.
    property string label

    signal taken(flags: int, key: int)
    signal canceled

    implicitHeight: 64
    onVisibleChanged: unknown.visible = false

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: Theme.field
        border { color: Theme.accent; width: 2 }
    }
    KeyCapture {
        id: capture

        objectName: "keyCapture"
        anchors.fill: parent
        focus: true
        onPressed: (flags, key) => field.taken(flags, key)
        onUnknownPressed: unknown.visible = true
        onCanceled: field.canceled()

        Accessible.role: Accessible.EditableText
        Accessible.name: qsTr("Press the key for %1").arg(field.label)
        Accessible.focusable: true
    }
    Column {
        anchors.centerIn: parent
        spacing: 4

        Text {
            objectName: "heldText"
            anchors.horizontalCenter: parent.horizontalCenter
            text: capture.held === "" ? qsTr("Press the key") : capture.held
            textFormat: Text.PlainText
            color: Theme.accent
            font { pixelSize: Theme.text + 2; weight: Font.DemiBold }
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: !unknown.visible
            text: qsTr("Esc leaves all as it is")
            color: Theme.softInk
            font.pixelSize: Theme.smallText
        }
        Text {
            id: unknown

            anchors.horizontalCenter: parent.horizontalCenter
            visible: false
            text: qsTr("Menus do not know that key")
            color: Theme.danger
            font.pixelSize: Theme.smallText
        }
    }
}
