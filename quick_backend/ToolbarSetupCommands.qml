// A part of a ToolbarSetupPanel: the commands of the menu in a list, with a field that finds them.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.Control {
    id: part

    required property ToolbarSetup setup

    property string imageSource: ""

    property ToolbarDragLayer dragLayer: null

    // In front of the chosen button, where the user looks.
    function addCommand(row: int): void {
        const added = setup.addCommand(commands.commandAt(row), setup.toolbar, setup.control);
        if (added)
            setup.control = added;
    }

    focusPolicy: Qt.NoFocus

    ToolbarCommandRows {
        id: commands

        setup: part.setup
        toolbar: part.setup?.toolbar ?? null
        filter: search.text
        onFilterChanged: list.currentIndex = 0
    }

    contentItem: Item {
        ToolbarSearchField {
            id: search

            objectName: "setupSearch"
            width: parent.width
            placeholderText: qsTr("Search commands")
            font: part.font
            Keys.onEscapePressed: event => {
                event.accepted = text !== "";
                clear();
            }
            Keys.onDownPressed: list.view.forceActiveFocus(Qt.OtherFocusReason)
            onAccepted: part.addCommand(list.currentIndex)
        }

        ToolbarSetupList {
            id: list

            objectName: "setupCommands"
            anchors.top: search.bottom
            anchors.topMargin: 8
            anchors.bottom: add.top
            anchors.bottomMargin: 8
            width: parent.width
            model: commands
            emptyText: search.text === "" ? qsTr("There are no commands.") : qsTr("No command matches.")
            Accessible.name: qsTr("Commands")

            Keys.onReturnPressed: part.addCommand(currentIndex)
            Keys.onEnterPressed: part.addCommand(currentIndex)

            delegate: ToolbarCommandRow {
                imageSource: part.imageSource
                dragLayer: part.dragLayer
                font: part.font
                palette: part.palette
                onPointedAt: {
                    list.currentIndex = index;
                    list.view.forceActiveFocus(Qt.MouseFocusReason);
                }
                onPicked: part.addCommand(index)
            }
        }

        ToolbarSetupTool {
            id: add

            objectName: "setupAdd"
            anchors.bottom: parent.bottom
            anchors.left: parent.left
            text: qsTr("Add to the toolbar")
            enabled: list.currentIndex >= 0 && commands.count > 0
            font: part.font
            onClicked: part.addCommand(list.currentIndex)
        }
    }
}
