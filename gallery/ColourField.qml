import QtQuick

// The colours of the brush on a toolbar. A click, Space or Enter opens the colours to choose from.
Item {
    id: field

    readonly property ViewState view: Session.view

    function open(): void {
        const place = mapToGlobal(0, height);
        Session.openPopupOf("ColorForeground(#1b1b1f)", Math.round(place.x), Math.round(place.y));
    }

    objectName: "colourField"
    implicitWidth: 34
    implicitHeight: 34
    activeFocusOnTab: true

    Accessible.role: Accessible.ButtonMenu
    Accessible.name: qsTr("Foreground colour: %1").arg(view.foreground.toString().toUpperCase())
    Accessible.focusable: true
    Accessible.onPressAction: field.open()

    Keys.onShortcutOverride: event => event.accepted = !event.modifiers && [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter].includes(event.key)
    Keys.onSpacePressed: open()
    Keys.onReturnPressed: open()
    Keys.onEnterPressed: open()

    Rectangle {
        anchors { fill: parent; margins: 1 }
        radius: Theme.radius
        color: hover.hovered ? Theme.hover : "transparent"
        border { color: Theme.accent; width: field.activeFocus ? 2 : 0 }
    }
    Rectangle {
        x: 13
        y: 13
        width: 16
        height: 16
        radius: 3
        color: field.view.background
        border { color: Theme.edge; width: 1 }
    }
    Rectangle {
        x: 5
        y: 5
        width: 17
        height: 17
        radius: 3
        color: field.view.foreground
        border { color: Theme.edge; width: 1 }
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        onTapped: field.open()
    }
}
