// The popup of a picker, with the controls that did not fit. It keeps within the window and scrolls where that is
// too low.
import QtQuick
import QtQuick.Templates as T

T.Popup {
    id: popup

    required property ToolbarSession session

    /// The controls that it shows.
    property ToolbarArea area: null

    /// Where the toolbar lies to which it belongs.
    property Item toolbarArea: null

    readonly property Item anchor: parent

    readonly property real distance: 2

    /// Opens beside the toolbar. With `byPointer` no control has the keyboard, else the one that had it last.
    function show(byPointer: bool): void {
        former.item = anchor.Window.activeFocusItem;
        place();
        open();
        session.guard.watch(background);
        if (byPointer)
            host.forceActiveFocus(Qt.PopupFocusReason);
        else
            host.enter(Qt.PopupFocusReason);
    }

    // Below a horizontal toolbar and beside a vertical one, on the side where there is room.
    function place(): void {
        if (!anchor || !toolbarArea)
            return;
        const start = toolbarArea.mapToItem(null, 0, 0);
        const offset = anchor.mapFromItem(toolbarArea, 0, 0);
        if (area?.vertical) {
            x = offset.x + fitting(start.x, toolbarArea.width, implicitWidth, anchor.Window.width, session.mirrored);
            y = anchor.height - implicitHeight;
        } else {
            x = session.mirrored ? 0 : anchor.width - implicitWidth;
            y = offset.y + fitting(start.y, toolbarArea.height, implicitHeight, anchor.Window.height, false);
        }
    }

    // Where it begins, seen from the toolbar, which begins at `start` of the window and is `length` long.
    function fitting(start: real, length: real, own: real, room: real, backward: bool): real {
        const behind = length + distance;
        const before = -own - distance;
        const fitsBehind = start + behind + own <= room - margins;
        const fitsBefore = start + before >= margins;
        return backward ? (fitsBefore || !fitsBehind ? before : behind) : (fitsBehind || !fitsBefore ? behind : before);
    }

    function scrollTo(control: QuickControl): void {
        if (!control)
            return;
        const item = control.item;
        view.contentY = Math.max(Math.min(view.contentY, item.y), item.y + item.height - view.height);
        view.contentX = Math.max(Math.min(view.contentX, item.x), item.x + item.width - view.width);
    }

    objectName: "toolbarPopup"
    focus: true
    modal: !session.customizing
    dim: false
    margins: 4
    padding: 2
    // While the toolbar is customised it stays open, for buttons that are dragged out and in; also when the window is
    // left, which the picker sees to.
    closePolicy: session.customizing ? T.Popup.CloseOnEscape : T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    implicitWidth: Math.min(host.implicitWidth + 2 * padding, (anchor?.Window.width ?? Infinity) - 2 * margins)
    implicitHeight: Math.min(host.implicitHeight + 2 * padding, (anchor?.Window.height ?? Infinity) - 2 * margins)

    onImplicitWidthChanged: place()
    onImplicitHeightChanged: place()

    onClosed: {
        session.guard.unwatch(background);
        former.giveBack(null);
    }

    FormerFocus {
        id: former
    }

    background: MenuPanel {
        color: popup.session.ground
        ink: popup.session.ink
    }

    contentItem: Flickable {
        id: view

        contentWidth: host.width
        contentHeight: host.height
        clip: interactive
        interactive: contentHeight > height || contentWidth > width
        boundsBehavior: Flickable.StopAtBounds

        ToolbarHost {
            id: host

            width: implicitWidth
            height: implicitHeight
            session: popup.session
            area: popup.area
            onEscaped: popup.close()
            onCurrentChanged: popup.scrollTo(current)

            Accessible.role: Accessible.ToolBar
            Accessible.name: (popup.parent as ToolbarPicker)?.Accessible.name ?? ""
        }
    }
}
