// What lies over the area of a bar while it is customised: it takes the pointer and the keyboard in place of the
// controls, lifts and drags them, and shows which one is chosen. Made by ToolbarDragLayer.
import QtQuick
import QtQuick.Templates as T

T.Control {
    id: pad

    required property ToolbarArea area
    required property ToolbarDrag drag

    readonly property ToolbarSetup setup: drag.setup
    readonly property QuickToolbar toolbar: drag.toolbarOf(area)
    readonly property string title: setup.titles[setup.toolbars.indexOf(toolbar)] ?? ""

    /// The chosen control, when it lies in this area.
    readonly property QuickControl chosen: isHere(setup.control) ? setup.control : null

    /// What is dragged, when it lies in this area.
    readonly property QuickControl lifted: isHere(drag.control) ? drag.control : null

    /// A control was lifted; `hold` is where it was taken hold of.
    signal pictureWanted(control: QuickControl, hold: point)

    /// A control went to another bar by keyboard, and the keyboard is to follow it.
    signal movedAway(control: QuickControl)

    function isHere(control: QuickControl): bool {
        return control?.item?.parent === area;
    }

    function labelOf(control: QuickControl): string {
        if (control.kind === QuickControl.Separator)
            return qsTr("Separator");
        return control.text || control.tooltip || control.name;
    }

    function choose(control: QuickControl): void {
        if (control)
            setup.control = control;
    }

    // The next control from `from`, passing over the picker; one pass at most.
    function neighbour(from: QuickControl, step: int): QuickControl {
        const next = area.nextControl(from, step);
        return next?.kind === QuickControl.Picker ? area.nextControl(next, step) : next;
    }

    function goOn(step: int, moves: bool): void {
        if (moves && chosen)
            setup.step(chosen, step, true);
        else
            choose(neighbour(chosen, step));
    }

    function moveToBar(step: int): void {
        const target = setup.toolbars[setup.toolbars.indexOf(toolbar) + step];
        if (chosen && target && setup.move(chosen, target, null))
            movedAway(setup.control);
    }

    function isWithin(item: Item, outer: Item): bool {
        while (item && item !== outer)
            item = item.parent;
        return item !== null;
    }

    function takeKeyboard(): void {
        if (!isWithin(Window.activeFocusItem, area))
            return;
        if (!chosen)
            choose(neighbour(null, 1));
        forceActiveFocus(Qt.OtherFocusReason);
    }

    function remove(): void {
        const control = chosen;
        if (!control)
            return;
        const next = neighbour(control, 1);
        if (setup.remove(control) && next !== control)
            choose(next);
    }

    // Along the bar the arrow keys choose and move, across it they move to another bar.
    function handleArrow(event: KeyEvent): void {
        const moves = (event.modifiers & (Qt.AltModifier | Qt.ControlModifier)) !== 0;
        const upright = event.key === Qt.Key_Up || event.key === Qt.Key_Down;
        const ahead = event.key === Qt.Key_Down || (event.key === Qt.Key_Right) !== (area.mirrored && !upright);
        const step = (upright ? event.key === Qt.Key_Down : ahead) ? 1 : -1;
        event.accepted = upright === area.vertical || moves;
        if (upright === area.vertical)
            goOn(step, moves);
        else if (moves)
            moveToBar(step);
    }

    function handleKey(event: KeyEvent): void {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Left:
        case Qt.Key_Right:
        case Qt.Key_Up:
        case Qt.Key_Down:
            return handleArrow(event);
        case Qt.Key_Home:
            return choose(neighbour(null, 1));
        case Qt.Key_End:
            return choose(neighbour(null, -1));
        case Qt.Key_Delete:
            return remove();
        case Qt.Key_Insert:
            if (chosen)
                setup.addSeparator(toolbar, chosen);
            return;
        case Qt.Key_Menu:
            return openMenu();
        case Qt.Key_Escape:
            event.accepted = drag.lifted;
            return drag.cancel();
        case Qt.Key_Tab:
        case Qt.Key_Backtab:
            return (parent as ToolbarHost).leaving(event.key === Qt.Key_Tab);
        default:
            event.accepted = false;
        }
    }

    function openMenu(): void {
        if (!chosen)
            return;
        const place = chosen.item.mapToItem(null, 0, chosen.item.height);
        chosen.openContextMenu(place.x, place.y);
    }

    objectName: "toolbarPad"
    parent: area.parent
    x: area.x
    y: area.y
    z: area.z + 1
    width: area.width
    height: area.height
    visible: area.visible && setup.active
    focusPolicy: Qt.NoFocus

    Accessible.role: Accessible.ToolBar
    Accessible.name: announced.text
    Accessible.description: qsTr("Arrow keys choose a button, with Alt they move it. Delete removes it, Insert adds a separator.")
    Accessible.focusable: true

    Keys.onPressed: event => handleKey(event)
    Keys.onShortcutOverride: event => event.accepted = true

    // The bar's own controls would take the keyboard as they do when nothing is customised.
    Connections {
        target: pad.Window.window

        function onActiveFocusItemChanged(): void {
            if (!pad.isWithin(pad.Window.activeFocusItem, pad.area))
                return;
            // Who gave it away has to see that it was taken.
            Qt.callLater(pad.takeKeyboard);
        }
    }

    ToolbarSetupRows {
        id: rows

        setup: pad.setup
        toolbar: pad.toolbar
    }

    QtObject {
        id: announced

        property string text: ""

        function update(): void {
            const place = rows.rowOf(pad.chosen);
            if (place < 0)
                text = qsTr("Customise %1").arg(pad.title);
            else
                text = qsTr("%1, %2 of %3 on %4").arg(pad.labelOf(pad.chosen)).arg(place + 1).arg(rows.count)
                    .arg(pad.title);
        }

        Component.onCompleted: update()
    }

    Connections {
        target: pad.setup

        function onControlChanged(): void {
            announced.update();
        }
    }

    Connections {
        target: rows

        function onDataChanged(): void {
            announced.update();
        }
    }

    background: Rectangle {
        radius: 5
        color: Qt.alpha(pad.palette.highlight, 0.06)
        border.color: Qt.alpha(pad.palette.highlight, 0.45)

        // What is lifted stays behind like a shadow of itself.
        Rectangle {
            visible: pad.lifted !== null
            x: pad.lifted?.item?.x ?? 0
            y: pad.lifted?.item?.y ?? 0
            width: pad.lifted?.item?.width ?? 0
            height: pad.lifted?.item?.height ?? 0
            radius: 4
            color: Qt.alpha(pad.palette.window, 0.72)
        }

        Rectangle {
            objectName: "toolbarChosen"
            visible: pad.chosen !== null && !pad.drag.lifted
            x: (pad.chosen?.item?.x ?? 0) - 1
            y: pad.chosen?.item?.y ?? 0
            width: (pad.chosen?.item?.width ?? 0) + 2
            height: pad.chosen?.item?.height ?? 0
            radius: 4
            color: Qt.alpha(pad.palette.highlight, 0.16)
            border.color: pad.palette.highlight
            border.width: pad.activeFocus ? 2 : 1
        }
    }

    contentItem: MouseArea {
        id: mouse

        property QuickControl held: null
        property point start: Qt.point(0, 0)

        function press(event: MouseEvent): void {
            const hit = pad.area.controlAt(event.x, event.y);
            const picker = hit as QuickPicker;
            pad.forceActiveFocus(Qt.MouseFocusReason);
            if (picker && event.button === Qt.LeftButton)
                picker.opened = !picker.opened;
            held = picker ? null : hit;
            start = Qt.point(event.x, event.y);
            pad.choose(held);
        }

        function openMenu(event: MouseEvent): void {
            const place = mapToItem(null, event.x, event.y);
            if (held)
                held.openContextMenu(place.x, place.y);
            else
                pad.toolbar.contextMenuRequested(null, place.x, place.y);
        }

        function drag(event: MouseEvent): void {
            const place = mapToItem(null, event.x, event.y);
            const distance = Math.abs(event.x - start.x) + Math.abs(event.y - start.y);
            if (pad.drag.lifted) {
                pad.drag.moveTo(place);
            } else if (held && distance >= Application.styleHints.startDragDistance) {
                pad.pictureWanted(held, held.item.mapFromItem(mouse, start));
                pad.drag.lift(held, place);
            }
        }

        acceptedButtons: Qt.LeftButton | Qt.RightButton
        preventStealing: true
        hoverEnabled: true
        cursorShape: pad.drag.lifted ? Qt.ClosedHandCursor : Qt.OpenHandCursor
        onPressed: event => press(event)
        onPositionChanged: event => {
            if (pressedButtons & Qt.LeftButton)
                drag(event);
        }
        onReleased: event => {
            if (event.button === Qt.RightButton)
                openMenu(event);
            else
                pad.drag.drop();
            held = null;
        }
        onCanceled: {
            pad.drag.cancel();
            held = null;
        }
    }
}
