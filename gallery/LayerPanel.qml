pragma ComponentBehavior: Bound

import QtQuick

// The layer in hand, and what can be done with the rows of a list.
Column {
    id: panel

    property LayerList.LayerItem row // null without one
    property list<string> kinds
    property bool movable: true
    property int index: -1
    property int count: 0

    signal kindChosen(kind: string)
    signal percentChosen(percent: int)
    signal insertAsked
    signal appendAsked
    signal renameAsked
    signal removeAsked
    signal shiftAsked(step: int)
    signal clearAsked
    signal beginAsked

    spacing: 12

    PanelSection {
        title: panel.row ? panel.row.name : qsTr("No row in hand")
        enabled: panel.row !== null
        opacity: enabled ? 1 : 0.5

        ValueSlider {
            objectName: "percentSlider"
            width: parent.width
            titleWidth: 62
            title: qsTr("Opacity")
            maximumValue: 100
            stepSize: 1
            value: panel.row ? panel.row.percent : 0
            readout: panel.row ? panel.row.percent + " %" : ""
            onMoved: value => panel.percentChosen(Math.round(value))
        }
        ChoiceRow {
            objectName: "kindChoice"
            choices: panel.kinds
            current: panel.row ? panel.kinds.indexOf(panel.row.kind) : -1
            onChosen: index => panel.kindChosen(panel.kinds[index])
        }
    }
    Grid {
        id: rowButtons

        columns: 2
        spacing: 8

        Button {
            objectName: "renameButton"
            enabled: panel.row !== null
            text: qsTr("Rename")
            onPushed: panel.renameAsked()
        }
        Button {
            objectName: "removeButton"
            enabled: panel.row !== null
            text: qsTr("Remove")
            onPushed: panel.removeAsked()
        }
        Button {
            objectName: "upButton"
            enabled: panel.movable && panel.index > 0
            text: qsTr("Up")
            onPushed: panel.shiftAsked(-1)
        }
        Button {
            objectName: "downButton"
            enabled: panel.movable && panel.index >= 0 && panel.index < panel.count - 1
            text: qsTr("Down")
            onPushed: panel.shiftAsked(1)
        }
        Button {
            objectName: "insertButton"
            text: qsTr("Insert above")
            onPushed: panel.insertAsked()
        }
        Button {
            objectName: "appendButton"
            text: qsTr("Insert at the end")
            onPushed: panel.appendAsked()
        }
        Button {
            objectName: "clearButton"
            text: qsTr("Clear")
            onPushed: panel.clearAsked()
        }
        Button {
            objectName: "beginButton"
            text: qsTr("Begin again")
            onPushed: panel.beginAsked()
        }
    }

    component Button: PushButton {
        width: (panel.width - rowButtons.spacing) / 2
        quiet: true
    }
}
