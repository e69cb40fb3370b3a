pragma ComponentBehavior: Bound

import QtQuick

// The commands of a KeyEditor with their keys, one of which is in hand.
FocusScope {
    id: box

    required property KeyEditor editor

    /// Rows that PageUp and PageDown go.
    readonly property int pageRows: Math.max(1, Math.floor(list.height / list.rowHeight) - 1)

    /// The command in hand is to get a key.
    signal chosen

    /// Goes `step` rows further, no further than to an end.
    function move(step: int): void {
        list.currentIndex = Math.max(0, Math.min(list.currentIndex + step, list.count - 1));
    }

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: Theme.field
        border { color: list.activeFocus ? Theme.accent : Theme.line; width: list.activeFocus ? 2 : 1 }
    }
    ListView {
        id: list

        readonly property int rowHeight: 44
        readonly property list<int> ownKeys: [Qt.Key_Up, Qt.Key_Down, Qt.Key_Home, Qt.Key_End, Qt.Key_PageUp,
            Qt.Key_PageDown, Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space]

        objectName: "commandList"
        anchors { fill: parent; margins: 2 }
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        highlightMoveDuration: 0
        cacheBuffer: 0 // what is being made ahead is in the way when a filter takes it away
        model: box.editor.commands
        onCurrentIndexChanged: box.editor.command = box.editor.commands.commandAt(currentIndex)
        Component.onCompleted: currentIndex = Math.max(0, box.editor.commands.rowOf(box.editor.command))

        Accessible.role: Accessible.List
        Accessible.name: qsTr("Commands")

        Keys.onReturnPressed: box.chosen()
        Keys.onEnterPressed: box.chosen()
        Keys.onSpacePressed: box.chosen()
        Keys.onPressed: event => {
            event.accepted = true;
            if (event.key === Qt.Key_PageUp)
                box.move(-box.pageRows);
            else if (event.key === Qt.Key_PageDown)
                box.move(box.pageRows);
            else if (event.key === Qt.Key_Home)
                box.move(-count);
            else if (event.key === Qt.Key_End)
                box.move(count);
            else
                event.accepted = false;
        }

        delegate: CommandRow {}

        Connections {
            target: box.editor.commands

            function onFilterChanged(): void {
                const row = box.editor.commands.rowOf(box.editor.command);
                list.currentIndex = -1;
                list.currentIndex = Math.min(list.count - 1, Math.max(0, row));
            }
        }
    }
    Text {
        anchors { fill: parent; margins: 24 }
        visible: list.count === 0
        text: qsTr("No command has all these words.")
        color: Theme.softInk
        font.pixelSize: Theme.text
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
    Rectangle {
        anchors { right: parent.right; rightMargin: 4 }
        visible: list.contentHeight > list.height
        y: 4 + list.visibleArea.yPosition * (parent.height - 8)
        width: 5
        height: Math.max(24, list.visibleArea.heightRatio * (parent.height - 8))
        radius: 2.5
        color: Theme.edge
        opacity: 0.6
    }

    component CommandRow: Rectangle {
        id: row

        required property string label
        required property string place
        required property list<string> keys
        required property bool own
        required property int index
        readonly property bool current: ListView.isCurrentItem

        width: list.width
        height: list.rowHeight
        radius: Theme.radius
        color: current ? Theme.accentGround : hover.hovered ? Theme.hover : "transparent"

        Accessible.role: Accessible.ListItem
        Accessible.name: [label, ...keys].join(", ")
        Accessible.description: place
        Accessible.selectable: true
        Accessible.selected: current
        Accessible.onPressAction: list.currentIndex = index

        // The menu has some of these keys too, and it is the current row that the keyboard is in.
        Keys.onShortcutOverride: event => event.accepted = !event.modifiers && list.ownKeys.includes(event.key)

        Column {
            anchors { left: parent.left; leftMargin: 12; right: chips.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
            spacing: 1

            Text {
                width: parent.width
                text: row.label
                textFormat: Text.PlainText
                color: Theme.ink
                font { pixelSize: Theme.text; weight: row.own ? Font.DemiBold : Font.Normal }
                elide: Text.ElideRight
            }
            Text {
                width: parent.width
                visible: text !== ""
                text: row.place
                textFormat: Text.PlainText
                color: Theme.softInk
                font.pixelSize: Theme.smallText
                elide: Text.ElideMiddle
            }
        }
        Row {
            id: chips

            anchors { right: parent.right; rightMargin: 14; verticalCenter: parent.verticalCenter }
            spacing: 6

            Repeater {
                model: row.keys

                KeyChip {
                    required property string modelData

                    text: modelData
                    color: row.current ? Theme.field : Theme.accentGround
                }
            }
        }
        HoverHandler {
            id: hover
        }
        TapHandler {
            onTapped: {
                list.forceActiveFocus(Qt.MouseFocusReason);
                list.currentIndex = row.index;
            }
            onDoubleTapped: box.chosen()
        }
    }
}
