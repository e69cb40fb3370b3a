import QtQuick

// A name and what stands behind it, in a column of such rows.
Item {
    id: row

    property string name
    property string value
    property int nameWidth: 110

    width: parent ? parent.width : implicitWidth
    implicitWidth: nameWidth + text.implicitWidth
    implicitHeight: text.implicitHeight + 14

    Accessible.role: Accessible.StaticText
    Accessible.name: name + ": " + value

    Text {
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        text: row.name
        textFormat: Text.PlainText
        color: Theme.softInk
        font.pixelSize: Theme.text
    }
    Text {
        id: text

        anchors { left: parent.left; leftMargin: row.nameWidth; right: parent.right; verticalCenter: parent.verticalCenter }
        text: row.value
        textFormat: Text.PlainText
        color: Theme.ink
        font.pixelSize: Theme.text
        elide: Text.ElideMiddle
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.line
    }
}
