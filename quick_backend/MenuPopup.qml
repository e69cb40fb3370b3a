// The popup of a menu: a list of MenuRow that scrolls where the window is too low, its keys, and the popups below
// it. Made by MenuBar, ContextMenu and other MenuPopups; show(anchor, rows, byKeyboard) opens it.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.Popup {
    id: popup

    required property MenuSession session

    /// The popup that this one opened from, or null.
    property T.Popup parentPopup: null

    /// What is shown; null while closed, so that a closed popup follows no model.
    property QuickMenuRows rows: null

    /// What screen readers call it: the name of what it opens from. Set before it is shown.
    property string title: ""

    property alias currentIndex: list.currentIndex

    readonly property real rowHeight: Math.ceil(metrics.height) + 10
    readonly property real separatorHeight: 9
    readonly property real edge: 4
    readonly property bool hasOpenChild: child !== null && child.visible

    property MenuPopup child: null
    property size columns: Qt.size(0, 0)
    readonly property real scrollBarWidth: implicitHeight > height ? scrollBar.implicitWidth : 0
    readonly property real besideText: 2 * 6 + 16 + 8 + 4 + 16

    objectName: "menuPopup"
    focus: true
    margins: edge
    padding: edge
    closePolicy: T.Popup.NoAutoClose
    implicitWidth: Math.max(160, besideText + columns.width + (columns.height > 0 ? 28 + columns.height : 0))
        + scrollBarWidth + 2 * edge
    implicitHeight: list.implicitHeight + 2 * edge
    height: parent ? Math.min(implicitHeight, parent.Window.height - 2 * edge) : implicitHeight

    /// Opens below or beside `anchor`. With `byKeyboard` the first row that can be picked is current.
    function show(anchor: Item, shownRows: QuickMenuRows, byKeyboard: bool): void {
        if (!anchor || !shownRows || shownRows.commandCount === 0)
            return close();
        if (child)
            child.close();
        rows = shownRows;
        measure();
        parent = anchor;
        place(anchor);
        open();
        session.guard.watch(background);
        list.currentIndex = byKeyboard ? rows.next(-1, 1) : -1;
        list.forceActiveFocus(Qt.PopupFocusReason);
    }

    function measure(): void {
        const widths = rows.textColumns(popup.font);
        columns = Qt.size(Math.ceil(widths.width), Math.ceil(widths.height));
    }

    // A bar's popup hangs below its item, one of a popup beside its row, where there is room.
    function place(anchor: Item): void {
        if (!parentPopup) {
            x = session.mirrored ? anchor.width - implicitWidth : 0;
            y = anchor.height;
            return;
        }
        const left = -implicitWidth;
        const right = anchor.width;
        const start = anchor.mapToItem(null, 0, 0).x;
        const fitsRight = start + right + implicitWidth <= anchor.Window.width - edge;
        const fitsLeft = start + left >= edge;
        x = session.mirrored ? (fitsLeft || !fitsRight ? left : right) : (fitsRight || !fitsLeft ? right : left);
        y = -edge;
    }

    function openChild(row: int, byKeyboard: bool): void {
        hoverTimer.stop();
        list.currentIndex = row;
        list.positionViewAtIndex(row, ListView.Contain);
        if (!child)
            child = Qt.createComponent("MenuPopup.qml").createObject(popup.contentItem, {
                session: popup.session,
                parentPopup: popup,
                font: Qt.binding(() => popup.font),
                palette: Qt.binding(() => popup.palette)
            });
        child.title = (list.itemAtIndex(row) as MenuRow)?.accessibleName ?? "";
        child.show(list.itemAtIndex(row), rows.submenuAt(row), byKeyboard);
    }

    function pick(row: int, byKeyboard: bool): void {
        if (row < 0)
            return;
        if (rows.submenuAt(row))
            openChild(row, byKeyboard);
        else
            session.picked(rows.idAt(row));
    }

    function point(row: int): void {
        if (list.currentIndex === row)
            return;
        list.currentIndex = row;
        hoverTimer.restart();
    }

    function covers(place: point): bool {
        return visible && background.contains(background.mapFromItem(null, place));
    }

    // The row at a place of the window that can be picked, or -1.
    function rowAt(place: point): int {
        const inside = list.contentItem.mapFromItem(null, place);
        const row = list.indexAt(inside.x, inside.y);
        return row >= 0 && rows.next(row - 1, 1) === row ? row : -1;
    }

    /// The pointer moved with its button held; gives whether it is over this popup or one below it.
    function dragTo(place: point): bool {
        if (child && child.dragTo(place))
            return true;
        const row = covers(place) ? rowAt(place) : -1;
        if (row >= 0)
            point(row);
        return covers(place);
    }

    /// The button was let go; gives whether that was over this popup or one below it.
    function drop(place: point): bool {
        if (child && child.drop(place))
            return true;
        const inside = covers(place);
        if (inside)
            pick(rowAt(place), false);
        return inside;
    }

    function move(step: int): void {
        const from = list.currentIndex < 0 && step < 0 ? rows.count : list.currentIndex;
        list.currentIndex = rows.next(from, step);
    }

    function turnPage(step: int): void {
        const page = Math.max(1, Math.floor(list.height / rowHeight) - 1);
        const target = Math.max(0, Math.min(rows.count - 1, list.currentIndex + step * page));
        const row = rows.next(target - step, step);
        const wrapped = step > 0 ? row < list.currentIndex : row > list.currentIndex;
        list.currentIndex = wrapped ? rows.next(step > 0 ? rows.count : -1, -step) : row;
    }

    function goForward(): void {
        if (list.currentIndex >= 0 && rows.submenuAt(list.currentIndex))
            openChild(list.currentIndex, true);
        else
            session.stepped(1);
    }

    function goBack(): void {
        if (parentPopup)
            close();
        else
            session.stepped(-1);
    }

    function leaveLevel(): void {
        if (parentPopup)
            close();
        else
            session.backedOut();
    }

    function pickLetter(letter: string): void {
        const row = rows.byMnemonic(letter, list.currentIndex);
        if (row < 0)
            return;
        list.currentIndex = row;
        if (rows.isUniqueMnemonic(letter))
            pick(row, true);
    }

    function letterOf(event: KeyEvent): string {
        if (event.text.length > 0 && event.text.charCodeAt(0) > 32)
            return event.text;
        return event.key > 32 && event.key < 0x10000 ? String.fromCharCode(event.key) : "";
    }

    function handleKey(event: KeyEvent): void {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Down:
        case Qt.Key_Tab:
            return move(1);
        case Qt.Key_Up:
        case Qt.Key_Backtab:
            return move(-1);
        case Qt.Key_Home:
            list.currentIndex = rows.next(-1, 1);
            return;
        case Qt.Key_End:
            list.currentIndex = rows.next(rows.count, -1);
            return;
        case Qt.Key_PageDown:
            return turnPage(1);
        case Qt.Key_PageUp:
            return turnPage(-1);
        case Qt.Key_Right:
            return session.mirrored ? goBack() : goForward();
        case Qt.Key_Left:
            return session.mirrored ? goForward() : goBack();
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space:
            return pick(list.currentIndex, true);
        case Qt.Key_Escape:
            return leaveLevel();
        case Qt.Key_Alt:
        case Qt.Key_F10:
            return session.dismissed();
        default:
            return pickLetter(letterOf(event));
        }
    }

    onClosed: {
        hoverTimer.stop();
        session.guard.unwatch(background);
        if (child)
            child.close();
        rows = null;
    }

    FontMetrics {
        id: metrics

        font: popup.font
    }

    Timer {
        id: hoverTimer

        interval: popup.session.hoverDelay
        onTriggered: {
            if (popup.rows.submenuAt(list.currentIndex))
                popup.openChild(list.currentIndex, false);
            else if (popup.child)
                popup.child.close();
        }
    }

    Connections {
        target: popup.rows

        function onShapeChanged(): void {
            if (!popup.rows || popup.rows.commandCount === 0)
                popup.close();
            else
                popup.measure();
        }
    }

    background: MenuPanel {
        color: popup.palette.base
        ink: popup.palette.text
    }

    contentItem: ListView {
        id: list

        objectName: "menuRows"
        implicitHeight: popup.rows ? popup.rows.commandCount * popup.rowHeight + popup.rows.separatorCount * popup.separatorHeight : 0
        model: popup.rows
        currentIndex: -1
        focus: true
        clip: contentHeight > height
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        highlightMoveDuration: 0
        reuseItems: true
        Keys.onPressed: event => popup.handleKey(event)
        Keys.onShortcutOverride: event => event.accepted = true

        Accessible.role: Accessible.PopupMenu
        Accessible.name: popup.title

        LayoutMirroring.enabled: popup.session.mirrored
        LayoutMirroring.childrenInherit: true

        delegate: MenuRow {
            width: list.width - popup.scrollBarWidth
            session: popup.session
            rowHeight: popup.rowHeight
            separatorHeight: popup.separatorHeight
            font: popup.font
            onPointedAt: popup.point(index)
            onPicked: popup.pick(index, false)
            onDraggedTo: place => popup.session.dragged(place)
            onDroppedAt: place => popup.session.dropped(place)
        }

        T.ScrollBar.vertical: T.ScrollBar {
            id: scrollBar

            implicitWidth: 8
            padding: 1
            minimumSize: 0.08
            visible: size < 1

            contentItem: Rectangle {
                radius: width / 2
                color: Qt.alpha(popup.palette.text, scrollBar.pressed ? 0.5 : 0.28)
            }
        }
    }
}
