// A part of a ToolbarSetupPanel: the buttons of the chosen bar in a list, and what moves, adds and removes them.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.Control {
    id: part

    required property ToolbarSetup setup

    property string imageSource: ""

    readonly property QuickToolbar toolbar: setup?.toolbar ?? null
    readonly property QuickControl control: setup?.control ?? null

    /// Whether a row is being dragged.
    readonly property bool dragging: rows.before !== undefined

    /// Puts the row that is being dragged back where it was lifted.
    function putBack(): void {
        rows.putBack();
    }

    function addSeparator(): void {
        const added = setup.addSeparator(toolbar, control);
        if (added)
            setup.control = added;
    }

    function removeControl(): void {
        const row = rows.rowOf(control);
        if (setup.remove(control))
            setup.control = rows.controlAt(Math.min(row, rows.count - 1));
    }

    function handleKey(event: KeyEvent): void {
        const moves = (event.modifiers & (Qt.AltModifier | Qt.ControlModifier)) !== 0;
        event.accepted = true;
        if (moves && event.key === Qt.Key_Up)
            setup.step(control, -1, false);
        else if (moves && event.key === Qt.Key_Down)
            setup.step(control, 1, false);
        else if (event.key === Qt.Key_Space)
            (list.view.currentItem as ToolbarSetupRow)?.toggle();
        else if (event.key === Qt.Key_Delete)
            removeControl();
        else if (event.key === Qt.Key_Insert)
            addSeparator();
        else
            event.accepted = false;
    }

    focusPolicy: Qt.NoFocus

    ToolbarSetupRows {
        id: rows

        /// While a row is dragged: what stood behind it.
        property var before: undefined

        function putBack(): void {
            part.setup.move(part.control, part.toolbar, before);
            before = undefined;
        }

        // The end of the session cancels a drag, too, and has settled already what stays.
        function cancelDrag(): void {
            if (before !== undefined && part.setup.active)
                putBack();
            before = undefined;
        }

        function dragTo(place: point): void {
            const inside = list.view.contentItem.mapFromItem(list.view, place);
            const target = list.view.indexAt(1, Math.max(0, Math.min(inside.y, list.view.contentHeight - 1)));
            const row = rowOf(part.control);
            if (before === undefined || target < 0 || target === row)
                return;
            part.setup.move(part.control, part.toolbar, controlAt(target > row ? target + 1 : target));
        }

        setup: part.setup
        toolbar: part.toolbar
    }

    // The list follows the choice on the bars, and the other way round.
    Connections {
        target: part.setup

        function onControlChanged(): void {
            list.currentIndex = rows.rowOf(part.setup.control);
        }

        function onChanged(): void {
            list.currentIndex = rows.rowOf(part.setup.control);
        }
    }

    Connections {
        target: list.view

        function onCurrentIndexChanged(): void {
            if (list.view.activeFocus)
                part.setup.control = rows.controlAt(list.currentIndex);
        }

        function onActiveFocusChanged(): void {
            if (list.view.activeFocus && !part.control)
                part.setup.control = rows.controlAt(0);
        }
    }

    contentItem: Item {
        ToolbarSetupList {
            id: list

            objectName: "setupButtons"
            width: parent.width
            height: parent.height - tools.height - 8
            model: rows
            currentIndex: -1
            emptyText: qsTr("There are no buttons on this toolbar.")
            Accessible.name: qsTr("Buttons of the toolbar")

            onKeyPressed: event => part.handleKey(event)

            delegate: ToolbarSetupRow {
                imageSource: part.imageSource
                font: part.font
                palette: part.palette
                onPointedAt: {
                    part.setup.control = control;
                    list.view.forceActiveFocus(Qt.OtherFocusReason);
                }
                onToggled: part.setup.setShown(control, !shown)
                onLifted: rows.before = rows.controlAt(index + 1)
                onDraggedTo: place => rows.dragTo(place)
                onDropped: rows.before = undefined
                onCancelled: rows.cancelDrag()
            }
        }

        Row {
            id: tools

            anchors.left: parent.left
            anchors.bottom: parent.bottom
            spacing: 6

            ToolbarSetupTool {
                objectName: "setupUp"
                arrow: -1
                text: qsTr("Move up")
                enabled: list.currentIndex > 0
                font: part.font
                onClicked: part.setup.step(part.control, -1, false)
            }

            ToolbarSetupTool {
                objectName: "setupDown"
                arrow: 1
                text: qsTr("Move down")
                enabled: list.currentIndex >= 0 && list.currentIndex < rows.count - 1
                font: part.font
                onClicked: part.setup.step(part.control, 1, false)
            }

            ToolbarSetupTool {
                objectName: "setupSeparator"
                text: qsTr("Add separator")
                enabled: part.toolbar !== null
                font: part.font
                onClicked: part.addSeparator()
            }

            ToolbarSetupTool {
                objectName: "setupRemove"
                text: qsTr("Remove")
                enabled: part.control !== null && part.control.kind !== QuickControl.General
                font: part.font
                onClicked: part.removeControl()
            }
        }
    }
}
