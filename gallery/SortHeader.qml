import QtQuick

// The title of a column, by which its rows are sorted. A click, Space or Enter sorts by it, and turns the order round.
Item {
    id: header

    property string title
    property string spoken: title // for screen readers
    property bool current: false
    property bool descending: false
    property bool toRight: false // where the column's texts stand

    signal pushed

    implicitHeight: 24
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: !current ? qsTr("Sort by %1").arg(spoken) : descending ? qsTr("%1, sorted downwards").arg(spoken) : qsTr("%1, sorted upwards").arg(spoken)
    Accessible.focusable: true
    Accessible.onPressAction: pushed()

    Keys.onShortcutOverride: event => event.accepted = !event.modifiers && [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter].includes(event.key)
    Keys.onSpacePressed: pushed()
    Keys.onReturnPressed: pushed()
    Keys.onEnterPressed: pushed()

    Rectangle {
        anchors { fill: parent; leftMargin: -6; rightMargin: -6 }
        radius: Theme.radius
        color: hover.hovered ? Theme.hover : "transparent"
        border { color: Theme.accent; width: header.activeFocus ? 1.5 : 0 }
    }
    Row {
        anchors { left: header.toRight ? undefined : parent.left; right: header.toRight ? parent.right : undefined; verticalCenter: parent.verticalCenter }
        spacing: 4

        Text {
            text: header.title
            textFormat: Text.PlainText
            color: header.current ? Theme.ink : Theme.softInk
            font { pixelSize: Theme.smallText; weight: Font.DemiBold; capitalization: Font.AllUppercase; letterSpacing: 0.6 }
        }
        Text {
            visible: header.current
            text: header.descending ? "↓" : "↑"
            color: Theme.accent
            font { pixelSize: Theme.smallText; weight: Font.DemiBold }
        }
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        onTapped: header.pushed()
    }
}
