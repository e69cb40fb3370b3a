import QtQuick

// A button with a text. Tab reaches it, Space and Enter push it. A quiet one stands beside what matters more.
Rectangle {
    id: button

    property string text
    property bool quiet: false
    property list<int> ownKeys: [] // that the menu may have too
    readonly property color ground: quiet ? Theme.field : Theme.accent

    signal pushed

    implicitWidth: Math.max(96, label.implicitWidth + 32)
    implicitHeight: 34
    radius: Theme.radius
    color: tap.pressed ? Qt.darker(ground, 1.15) : !hover.hovered ? ground : quiet ? Theme.hover : Qt.lighter(ground, 1.1)
    border { color: !quiet ? Theme.ink : activeFocus ? Theme.accent : Theme.edge; width: activeFocus ? 2 : quiet ? 1 : 0 }
    opacity: enabled ? 1 : 0.5
    activeFocusOnTab: enabled

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: if (enabled) pushed()

    Keys.onShortcutOverride: event => event.accepted = !event.modifiers && [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter, ...ownKeys].includes(event.key)
    Keys.onSpacePressed: pushed()
    Keys.onReturnPressed: pushed()
    Keys.onEnterPressed: pushed()

    Text {
        id: label

        anchors.centerIn: parent
        text: button.text
        textFormat: Text.PlainText
        color: button.quiet ? Theme.ink : Theme.accentInk
        font { pixelSize: Theme.text; weight: button.quiet ? Font.Normal : Font.DemiBold }
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        id: tap

        onTapped: button.pushed()
    }
}
