import QtQuick

// A sentence across the window that the user should read, until it is put away.
Rectangle {
    id: strip

    property string text

    signal cleared

    objectName: "noticeStrip"
    visible: text !== ""
    implicitHeight: Math.max(label.implicitHeight, button.height) + 16
    color: Theme.panel

    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Rectangle {
        width: 4
        height: parent.height
        color: Theme.danger
    }
    Text {
        id: label

        objectName: "noticeText"
        anchors { left: parent.left; leftMargin: 20; right: button.left; rightMargin: 16; verticalCenter: parent.verticalCenter }
        text: strip.text
        textFormat: Text.PlainText
        color: Theme.ink
        font.pixelSize: Theme.text
        wrapMode: Text.Wrap
    }
    PushButton {
        id: button

        objectName: "noticeButton"
        anchors { right: parent.right; rightMargin: 14; verticalCenter: parent.verticalCenter }
        quiet: true
        implicitHeight: 28
        text: qsTr("Close")
        onPushed: strip.cleared()
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.line
    }
}
