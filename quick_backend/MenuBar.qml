// The menu bar of a window. Give it the menu and a width; the height is its own, and where the window is too narrow
// the items go on in a further line.
//
//     MenuBar {
//         menu: theMenu              // a QuickMenu
//         imageSource: "image://arbor/" // optional
//         width: parent.width
//     }
//
// It handles the keys of its window: the keys of the menu's tables, Alt with a mnemonic, Alt alone and F10.
// `keys.fired(id, keyText, nanoseconds)` tells of each command that a key ran.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.Pane {
    id: bar

    property QuickMenu menu: null

    property alias imageSource: shared.imageSource
    property alias hoverDelay: shared.hoverDelay

    /// The item that is open or has the keyboard, or -1.
    readonly property int currentIndex: internal.currentIndex

    /// Whether the bar has the keyboard or a popup is open.
    readonly property bool active: internal.active

    /// Whether a popup is open.
    readonly property bool opened: popup.visible

    /// The key filter of the window.
    readonly property MenuKeys keys: MenuKeys {
        menu: bar.menu
        window: bar.Window.window
        opensBar: true
        onMnemonicPressed: row => bar.openRow(row, true)
        onBarRequested: bar.enter()
    }

    /// Gives the bar the keyboard.
    function enter(): void {
        if (menu)
            select(menu.rows.next(-1, 1));
    }

    /// Opens the popup of a row of the bar, or runs its command.
    function openRow(row: int, byKeyboard: bool): void {
        const submenu = menu.rows.submenuAt(row);
        if (!submenu)
            return shared.picked(menu.rows.idAt(row));
        select(row);
        popup.title = (items.itemAt(row) as MenuBarItem)?.accessibleName ?? "";
        popup.show(items.itemAt(row), submenu, byKeyboard);
        if (!popup.visible)
            select(row);
    }

    /// Puts everything away and gives the focus back.
    function leave(): void {
        if (!internal.active)
            return;
        popup.close();
        internal.active = false;
        internal.currentIndex = -1;
        shared.guard.unwatch(bar);
        menu.tracking = false;
        giveFocusBack();
    }

    function giveFocusBack(): void {
        const former = internal.formerFocus;
        internal.formerFocus = null;
        if (former)
            former.forceActiveFocus(Qt.MenuBarFocusReason);
        else
            bar.focus = false;
    }

    function select(row: int): void {
        if (row < 0)
            return;
        if (!internal.active) {
            internal.active = true;
            internal.formerFocus = bar.Window.activeFocusItem;
            shared.guard.watch(bar);
            menu.tracking = true;
        }
        internal.currentIndex = row;
        if (!popup.visible)
            items.itemAt(row).forceActiveFocus(Qt.MenuBarFocusReason);
    }

    function step(direction: int): void {
        const row = menu.rows.next(internal.currentIndex, direction);
        if (row < 0)
            return;
        if (!popup.visible)
            return select(row);
        if (menu.rows.submenuAt(row))
            return openRow(row, true);
        popup.close();
        select(row);
    }

    function press(row: int): void {
        if (popup.visible && internal.currentIndex === row)
            leave();
        else
            openRow(row, false);
    }

    function point(row: int): void {
        if (!internal.active || internal.currentIndex === row)
            return;
        if (popup.visible && menu.rows.submenuAt(row))
            openRow(row, false);
        else if (!popup.visible)
            select(row);
    }

    function dragTo(place: point): void {
        if (popup.dragTo(place))
            return;
        const inside = flow.mapFromItem(null, place);
        const under = flow.childAt(inside.x, inside.y) as MenuBarItem;
        if (under?.enabled)
            point(under.index);
    }

    // Let go over the bar a popup stays open, as after a click; elsewhere it goes.
    function drop(place: point): void {
        if (!popup.drop(place) && !bar.contains(bar.mapFromItem(null, place)))
            leave();
    }

    function pickLetter(letter: string): void {
        const row = menu.rows.byMnemonic(letter, internal.currentIndex);
        if (row < 0)
            return;
        if (menu.rows.isUniqueMnemonic(letter))
            openRow(row, true);
        else
            select(row);
    }

    function handleKey(event: KeyEvent): void {
        if (!internal.active || popup.visible)
            return;
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Right:
        case Qt.Key_Tab:
            return step(shared.mirrored && event.key === Qt.Key_Right ? -1 : 1);
        case Qt.Key_Left:
        case Qt.Key_Backtab:
            return step(shared.mirrored && event.key === Qt.Key_Left ? 1 : -1);
        case Qt.Key_Home:
            return select(menu.rows.next(-1, 1));
        case Qt.Key_End:
            return select(menu.rows.next(menu.rows.count, -1));
        case Qt.Key_Down:
        case Qt.Key_Up:
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space:
            return openRow(internal.currentIndex, true);
        case Qt.Key_Escape:
        case Qt.Key_Alt:
        case Qt.Key_F10:
            return leave();
        default:
            return pickLetter(popup.letterOf(event));
        }
    }

    objectName: "menuBar"
    implicitHeight: Math.ceil(metrics.height) + 10 + topPadding + bottomPadding
    height: flow.implicitHeight + topPadding + bottomPadding
    padding: 2
    focusPolicy: Qt.NoFocus

    Accessible.role: Accessible.MenuBar
    Keys.onPressed: event => handleKey(event)
    Keys.onShortcutOverride: event => event.accepted = internal.active
    onMenuChanged: leave()

    background: Rectangle {
        color: bar.palette.window

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Qt.alpha(bar.palette.windowText, 0.12)
        }
    }

    contentItem: Flow {
        id: flow

        LayoutMirroring.enabled: bar.mirrored
        LayoutMirroring.childrenInherit: true

        Repeater {
            id: items

            model: bar.menu ? bar.menu.rows : null

            delegate: MenuBarItem {
                session: shared
                isCurrent: bar.currentIndex === index
                font: bar.font
                onPointedAt: bar.point(index)
                onPressed: bar.press(index)
                onDraggedTo: place => bar.dragTo(place)
                onDroppedAt: place => bar.drop(place)
            }
        }
    }

    QtObject {
        id: internal

        property bool active: false
        property int currentIndex: -1
        property Item formerFocus: null
    }

    FontMetrics {
        id: metrics

        font: bar.font
    }

    Connections {
        target: bar.menu

        function onEntered(letter: string): void {
            bar.enter();
            if (letter !== "")
                bar.pickLetter(letter);
        }
    }

    // Rows are known by their place, so a bar that changes puts everything away.
    Connections {
        target: bar.menu ? bar.menu.rows : null

        function onRowsInserted(): void {
            bar.leave();
        }

        function onRowsRemoved(): void {
            bar.leave();
        }
    }

    MenuSession {
        id: shared

        menu: bar.menu
        mirrored: bar.mirrored
        onDismissed: bar.leave()
        onStepped: direction => bar.step(direction)
        onDragged: place => bar.dragTo(place)
        onDropped: place => bar.drop(place)
        onBackedOut: {
            popup.close();
            bar.select(bar.currentIndex);
        }
        onPicked: itemId => {
            bar.leave();
            bar.menu.trigger(itemId);
        }
    }

    MenuPopup {
        id: popup

        session: shared
        font: bar.font
        palette: bar.palette
    }
}
