import QtQuick

// A question with two answers. The keyboard begins at the one that changes nothing; Left and Right go from one to
// the other, Esc leaves all as it is.
FocusScope {
    id: box

    property string text
    property string yes
    property string no
    readonly property list<int> ownKeys: [Qt.Key_Left, Qt.Key_Right, Qt.Key_Escape]

    signal accepted
    signal declined

    implicitHeight: column.implicitHeight + 24

    Keys.onEscapePressed: declined()

    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: Theme.accentGround
    }
    Column {
        id: column

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 12 }
        spacing: 10

        Text {
            objectName: "questionText"
            width: parent.width
            text: box.text
            textFormat: Text.PlainText
            color: Theme.ink
            font { pixelSize: Theme.text; weight: Font.DemiBold }
            wrapMode: Text.Wrap
        }
        Row {
            spacing: Theme.space

            PushButton {
                id: yesButton

                objectName: "yesButton"
                implicitHeight: 30
                ownKeys: box.ownKeys
                text: box.yes
                KeyNavigation.right: noButton
                onPushed: box.accepted()
            }
            PushButton {
                id: noButton

                objectName: "noButton"
                implicitHeight: 30
                quiet: true
                ownKeys: box.ownKeys
                focus: true
                text: box.no
                KeyNavigation.left: yesButton
                onPushed: box.declined()
            }
        }
    }
}
