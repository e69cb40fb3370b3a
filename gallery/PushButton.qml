import QtQuick

// A button with a text. Tab reaches it, Space and Enter push it.
Rectangle {
    id: button

    property string text

    signal pushed

    implicitWidth: Math.max(96, label.implicitWidth + 32)
    implicitHeight: 34
    radius: Theme.radius
    color: tap.pressed ? Qt.darker(Theme.accent, 1.15) : hover.hovered ? Qt.lighter(Theme.accent, 1.1) : Theme.accent
    border { color: Theme.ink; width: activeFocus ? 2 : 0 }
    opacity: enabled ? 1 : 0.5
    activeFocusOnTab: enabled

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: if (enabled) pushed()

    Keys.onShortcutOverride: event => event.accepted = !event.modifiers && (event.key === Qt.Key_Space || event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
    Keys.onSpacePressed: pushed()
    Keys.onReturnPressed: pushed()
    Keys.onEnterPressed: pushed()

    Text {
        id: label

        anchors.centerIn: parent
        text: button.text
        textFormat: Text.PlainText
        color: Theme.accentInk
        font { pixelSize: Theme.text; weight: Font.DemiBold }
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        id: tap

        onTapped: button.pushed()
    }
}
