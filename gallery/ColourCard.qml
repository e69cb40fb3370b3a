import QtQuick

// A colour with its name and its number. One that can be chosen is a button: a click, Space or Enter chooses it.
Item {
    id: card

    property string title
    property string hex
    property color color
    property bool choosable: false
    property real swatchHeight: 44

    signal chosen

    function isOwn(key: int): bool {
        return choosable && [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter].includes(key);
    }

    implicitWidth: 120
    implicitHeight: caption.y + caption.height
    activeFocusOnTab: choosable

    Accessible.role: choosable ? Accessible.Button : Accessible.Graphic
    Accessible.name: title + ": " + hex
    Accessible.focusable: choosable
    Accessible.onPressAction: if (choosable) card.chosen()

    Keys.onShortcutOverride: event => event.accepted = !event.modifiers && card.isOwn(event.key)
    Keys.onPressed: event => {
        event.accepted = card.isOwn(event.key);
        if (event.accepted)
            card.chosen();
    }

    Rectangle {
        width: parent.width
        height: card.swatchHeight
        radius: Theme.radius
        color: Theme.field
        border { color: card.activeFocus ? Theme.accent : Theme.edge; width: card.activeFocus ? 2 : 1 }

        // Squares of two greys show through what is not opaque.
        Image {
            objectName: "squares"
            anchors { fill: parent; margins: 4 }
            fillMode: Image.Tile
            horizontalAlignment: Image.AlignLeft
            verticalAlignment: Image.AlignTop
            visible: card.color.a < 1
            source: "squares.png"
        }
        Rectangle {
            objectName: "swatch"
            anchors { fill: parent; margins: 4 }
            color: card.color
        }
    }
    Row {
        id: caption

        y: card.swatchHeight + 5
        spacing: 6

        Text {
            text: card.title
            textFormat: Text.PlainText
            color: hover.hovered && card.choosable ? Theme.accent : Theme.ink
            font { pixelSize: Theme.text; weight: Font.DemiBold }
        }
        Text {
            text: card.hex
            textFormat: Text.PlainText
            color: Theme.softInk
            font.pixelSize: Theme.text
        }
    }
    HoverHandler {
        id: hover

        enabled: card.choosable
        cursorShape: Qt.PointingHandCursor
    }
    TapHandler {
        enabled: card.choosable
        onTapped: {
            card.forceActiveFocus(Qt.MouseFocusReason);
            card.chosen();
        }
    }
}
