import QtQuick

// One layer in the side panel.
Rectangle {
    id: row

    required property string name
    required property string detail
    required property bool shown
    required property bool current

    width: parent ? parent.width : 0
    height: 40
    radius: Theme.radius
    color: current ? Theme.accentGround : Theme.field
    border { color: current ? Theme.accent : Theme.line; width: 1 }

    Rectangle {
        anchors { left: parent.left; leftMargin: 12; verticalCenter: parent.verticalCenter }
        width: 10
        height: 10
        radius: 5
        color: row.shown ? Theme.accent : "transparent"
        border { color: row.shown ? Theme.accent : Theme.softInk; width: 1.5 }
    }
    Column {
        anchors { left: parent.left; leftMargin: 34; right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }

        Text {
            width: parent.width
            horizontalAlignment: Text.AlignLeft
            text: row.name
            elide: Text.ElideRight
            color: Theme.ink
            font.pixelSize: Theme.text
        }
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignLeft
            text: row.detail
            elide: Text.ElideRight
            color: Theme.softInk
            font.pixelSize: Theme.smallText
        }
    }
}
