pragma ComponentBehavior: Bound

import QtQuick

// A row of choices of which one holds. Tab reaches each, Space chooses it.
Row {
    id: row

    property list<string> choices
    property int current: 0

    signal chosen(index: int)

    spacing: 6

    Repeater {
        model: row.choices

        Rectangle {
            id: choice

            required property string modelData
            required property int index
            readonly property bool current: row.current === index

            objectName: "choice" + index
            implicitWidth: label.implicitWidth + 24
            implicitHeight: 30
            radius: Theme.radius
            color: current ? Theme.accentGround : hover.hovered ? Theme.hover : Theme.field
            border { color: activeFocus || current ? Theme.accent : Theme.line; width: activeFocus ? 2 : 1 }
            activeFocusOnTab: true

            Accessible.role: Accessible.RadioButton
            Accessible.name: modelData
            Accessible.focusable: true
            Accessible.checked: current
            Accessible.onPressAction: row.chosen(index)

            Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Space && !event.modifiers
            Keys.onSpacePressed: row.chosen(index)

            Text {
                id: label

                anchors.centerIn: parent
                text: choice.modelData
                textFormat: Text.PlainText
                color: choice.current ? Theme.accent : Theme.ink
                font { pixelSize: Theme.text; weight: choice.current ? Font.DemiBold : Font.Normal }
            }
            HoverHandler {
                id: hover
            }
            TapHandler {
                onTapped: row.chosen(choice.index)
            }
        }
    }
}
