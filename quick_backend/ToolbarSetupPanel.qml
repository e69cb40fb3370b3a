// The dialog in which the bars of a ToolbarSetup are customised, as a panel for any window. It belongs to the session:
// show it while the setup is active.
//
//     ToolbarSetupPanel {
//         setup: theSetup                 // a ToolbarSetup
//         visible: theSetup.active
//         imageSource: "image://arbor/"   // optional
//         dragLayer: theDragLayer         // optional: commands are dragged onto the bars
//     }
//
// By keyboard: in the list of buttons Space shows and hides, Alt with an arrow key moves, Delete removes, Insert adds a
// separator; in the list of commands Enter adds. Escape cancels a drag, or else the session.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.Control {
    id: panel

    required property ToolbarSetup setup

    /// Where images come from, as that of a MenuBar.
    property string imageSource: ""

    property ToolbarDragLayer dragLayer: null

    readonly property QuickToolbar toolbar: setup?.toolbar ?? null
    readonly property QuickControl control: setup?.control ?? null
    readonly property bool hasCommands: (setup?.commandsOffered ?? false)

    /// Whether the lists stand one below the other.
    readonly property bool stacked: width < 560

    function addSeparator(): void {
        const added = setup.addSeparator(toolbar, control);
        if (added)
            setup.control = added;
    }

    // In front of the chosen button, where the user looks.
    function addCommand(row: int): void {
        const added = setup.addCommand(commands.commandAt(row), toolbar, control);
        if (added)
            setup.control = added;
    }

    function removeControl(): void {
        const row = rows.rowOf(control);
        if (setup.remove(control))
            setup.control = rows.controlAt(Math.min(row, rows.count - 1));
    }

    function focusButtons(): void {
        buttons.view.forceActiveFocus(Qt.OtherFocusReason);
    }

    objectName: "toolbarSetupPanel"
    padding: 16
    implicitWidth: 760
    implicitHeight: 480

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Accessible.role: Accessible.Dialog
    Accessible.name: title.text

    Keys.onEscapePressed: {
        if (rows.before !== undefined)
            rows.putBack();
        else if (dragLayer?.drag.lifted)
            dragLayer.drag.cancel();
        else
            setup.cancel();
    }

    background: Rectangle {
        color: panel.palette.window
    }

    ToolbarSetupRows {
        id: rows

        /// While a row is dragged: what stood behind it.
        property var before: undefined

        function putBack(): void {
            panel.setup.move(panel.control, panel.toolbar, before);
            before = undefined;
        }

        // The end of the session cancels a drag, too, and has settled already what stays.
        function cancelDrag(): void {
            if (before !== undefined && panel.setup.active)
                putBack();
            before = undefined;
        }

        function dragTo(place: point): void {
            const inside = buttons.view.contentItem.mapFromItem(buttons.view, place);
            const target = buttons.view.indexAt(1, Math.max(0, Math.min(inside.y, buttons.view.contentHeight - 1)));
            const row = rowOf(panel.control);
            if (before === undefined || target < 0 || target === row)
                return;
            panel.setup.move(panel.control, panel.toolbar, controlAt(target > row ? target + 1 : target));
        }

        setup: panel.setup
        toolbar: panel.toolbar
    }

    ToolbarCommandRows {
        id: commands

        setup: panel.setup
        toolbar: panel.toolbar
        filter: search.text
        onFilterChanged: commandList.currentIndex = 0
    }

    // The list follows the choice on the bars, and the other way round.
    Connections {
        target: panel.setup

        function onControlChanged(): void {
            buttons.currentIndex = rows.rowOf(panel.setup.control);
        }

        function onChanged(): void {
            buttons.currentIndex = rows.rowOf(panel.setup.control);
        }
    }

    contentItem: Item {
        id: content

        readonly property real gap: 16
        readonly property real half: panel.stacked ? width : (width - gap) / 2
        readonly property real listTop: tabs.y + tabs.height + 10
        readonly property real listBottom: footer.y - 14
        readonly property real columnHeight: panel.stacked ? (listBottom - listTop - gap) / 2 : listBottom - listTop

        Text {
            id: title

            objectName: "setupTitle"
            anchors.left: parent.left
            text: qsTr("Customise toolbars")
            textFormat: Text.PlainText
            color: panel.palette.windowText
            font {
                family: panel.font.family
                pixelSize: metrics.font.pixelSize + 3
                weight: Font.DemiBold
            }
            Accessible.ignored: true
        }

        ToolbarSetupTabs {
            id: tabs

            anchors.left: parent.left
            anchors.top: title.bottom
            anchors.topMargin: 10
            visible: titles.length > 1
            height: visible ? implicitHeight : 0
            titles: panel.setup?.titles ?? []
            current: panel.setup?.current ?? -1
            onPicked: index => panel.setup.current = index
        }

        ToolbarSetupList {
            id: buttons

            objectName: "setupButtons"
            anchors.left: parent.left
            y: content.listTop
            width: content.half
            height: content.columnHeight - tools.height - 8
            model: rows
            emptyText: qsTr("There are no buttons on this toolbar.")
            Accessible.name: qsTr("Buttons of the toolbar")

            onKeyPressed: event => handleKey(event)

            function handleKey(event: KeyEvent): void {
                const moves = (event.modifiers & (Qt.AltModifier | Qt.ControlModifier)) !== 0;
                event.accepted = true;
                if (moves && event.key === Qt.Key_Up)
                    panel.setup.step(panel.control, -1, false);
                else if (moves && event.key === Qt.Key_Down)
                    panel.setup.step(panel.control, 1, false);
                else if (event.key === Qt.Key_Space)
                    (buttons.view.currentItem as ToolbarSetupRow)?.toggle();
                else if (event.key === Qt.Key_Delete)
                    panel.removeControl();
                else if (event.key === Qt.Key_Insert)
                    panel.addSeparator();
                else
                    event.accepted = false;
            }

            Connections {
                target: buttons.view

                function onCurrentIndexChanged(): void {
                    if (buttons.view.activeFocus)
                        panel.setup.control = rows.controlAt(buttons.currentIndex);
                }

                function onActiveFocusChanged(): void {
                    if (buttons.view.activeFocus && !panel.control)
                        panel.setup.control = rows.controlAt(0);
                }
            }

            delegate: ToolbarSetupRow {
                width: (ListView.view?.width ?? 0) - buttons.scrollBarWidth
                imageSource: panel.imageSource
                font: panel.font
                palette: panel.palette
                onPointedAt: {
                    panel.setup.control = control;
                    panel.focusButtons();
                }
                onToggled: panel.setup.setShown(control, !shown)
                onLifted: rows.before = rows.controlAt(index + 1)
                onDraggedTo: place => rows.dragTo(place)
                onDropped: rows.before = undefined
                onCancelled: rows.cancelDrag()
            }
        }

        Row {
            id: tools

            anchors.left: parent.left
            anchors.top: buttons.bottom
            anchors.topMargin: 8
            spacing: 6

            ToolbarSetupTool {
                objectName: "setupUp"
                arrow: -1
                text: qsTr("Move up")
                enabled: buttons.currentIndex > 0
                font: panel.font
                onClicked: panel.setup.step(panel.control, -1, false)
            }

            ToolbarSetupTool {
                objectName: "setupDown"
                arrow: 1
                text: qsTr("Move down")
                enabled: buttons.currentIndex >= 0 && buttons.currentIndex < rows.count - 1
                font: panel.font
                onClicked: panel.setup.step(panel.control, 1, false)
            }

            ToolbarSetupTool {
                objectName: "setupSeparator"
                text: qsTr("Add separator")
                enabled: panel.toolbar !== null
                font: panel.font
                onClicked: panel.addSeparator()
            }

            ToolbarSetupTool {
                objectName: "setupRemove"
                text: qsTr("Remove")
                enabled: panel.control !== null && panel.control.kind !== QuickControl.General
                font: panel.font
                onClicked: panel.removeControl()
            }
        }

        Item {
            id: offer

            x: panel.mirrored || panel.stacked ? 0 : content.width - width
            y: panel.stacked ? content.listTop + content.columnHeight + content.gap : content.listTop
            width: content.half
            height: content.columnHeight
            visible: panel.hasCommands

            ToolbarSearchField {
                id: search

                objectName: "setupSearch"
                width: parent.width
                placeholderText: qsTr("Search commands")
                font: panel.font
                Keys.onEscapePressed: event => {
                    event.accepted = text !== "";
                    clear();
                }
                Keys.onDownPressed: commandList.view.forceActiveFocus(Qt.OtherFocusReason)
                onAccepted: panel.addCommand(commandList.currentIndex)
            }

            ToolbarSetupList {
                id: commandList

                objectName: "setupCommands"
                anchors.top: search.bottom
                anchors.topMargin: 8
                anchors.bottom: add.top
                anchors.bottomMargin: 8
                width: parent.width
                model: commands
                emptyText: search.text === "" ? qsTr("There are no commands.") : qsTr("No command matches.")
                Accessible.name: qsTr("Commands")

                Keys.onReturnPressed: panel.addCommand(currentIndex)
                Keys.onEnterPressed: panel.addCommand(currentIndex)

                delegate: ToolbarCommandRow {
                    width: (ListView.view?.width ?? 0) - commandList.scrollBarWidth
                    imageSource: panel.imageSource
                    dragLayer: panel.dragLayer
                    font: panel.font
                    palette: panel.palette
                    onPointedAt: {
                        commandList.currentIndex = index;
                        commandList.view.forceActiveFocus(Qt.MouseFocusReason);
                    }
                    onPicked: panel.addCommand(index)
                }
            }

            ToolbarSetupTool {
                id: add

                objectName: "setupAdd"
                anchors.bottom: parent.bottom
                anchors.left: parent.left
                text: qsTr("Add to the toolbar")
                enabled: commandList.currentIndex >= 0 && commands.count > 0
                font: panel.font
                onClicked: panel.addCommand(commandList.currentIndex)
            }
        }

        Item {
            id: footer

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            height: done.height

            ProgressButton {
                objectName: "setupReset"
                anchors.left: parent.left
                text: qsTr("Reset")
                font: panel.font
                Accessible.description: qsTr("All toolbars as they were delivered")
                onClicked: panel.setup.reset()
            }

            ProgressButton {
                objectName: "setupCancel"
                anchors.right: done.left
                anchors.rightMargin: 8
                text: qsTr("Cancel")
                font: panel.font
                onClicked: panel.setup.cancel()
            }

            ProgressButton {
                id: done

                objectName: "setupDone"
                anchors.right: parent.right
                text: qsTr("Done")
                font: panel.font
                onClicked: panel.setup.accept()
            }
        }
    }

    FontMetrics {
        id: metrics

        font: panel.font
    }
}
