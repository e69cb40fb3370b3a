// A toolbar in a window. Give it the toolbar and a place: its size by itself shows every control, and what does not
// fit into a smaller one goes into the picker.
//
//     Toolbar {
//         toolbar: theToolbar           // a QuickToolbar
//         imageSource: "image://arbor/" // optional
//         width: parent.width
//     }
//
// A QuickToolbar shows in one Toolbar at a time: in the one that took it last.
//
// Tab gives it the keyboard and takes it away; arrows, Home and End walk over the controls, Space and Enter press
// them, Down opens what hangs from them, Shift+F10 their context menu.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.Pane {
    id: bar

    property QuickToolbar toolbar: null

    property alias imageSource: shared.imageSource

    /// Milliseconds before a tooltip shows.
    property alias tipDelay: tip.restDelay

    /// Where the controls lie, or null.
    readonly property ToolbarArea area: toolbar ? toolbar.area : null

    readonly property bool vertical: area?.vertical ?? false

    /// The edge with a line, towards the rest of the window.
    property int lineEdge: !vertical ? Qt.BottomEdge : mirrored ? Qt.LeftEdge : Qt.RightEdge

    // The keyboard is here, but at none of the controls: Tab came, or the control that had it went.
    readonly property bool waits: Window.activeFocusItem === bar

    // The control that had the keyboard when it left.
    property QuickControl formerControl: null

    function placeFocus(): void {
        if (waits && !host.enter(Qt.TabFocusReason))
            leave(focusReason !== Qt.BacktabFocusReason);
    }

    // A hosted item that Tab came to from elsewhere gives the keyboard to the control that had it last.
    function redirectFocus(): void {
        const item = Window.activeFocusItem as T.Control;
        const byTab = item?.focusReason === Qt.TabFocusReason || item?.focusReason === Qt.BacktabFocusReason;
        const entry = formerControl ?? area?.nextControl(null, 1) ?? null;
        if (byTab && entry && host.current && host.current !== entry)
            host.focusLook(entry, Qt.TabFocusReason);
    }

    function leave(forward: bool): void {
        let next = bar.nextItemInFocusChain(forward);
        while (next && next !== bar && holds(next))
            next = next.nextItemInFocusChain(forward);
        if (next && next !== bar)
            next.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    function holds(item: Item): bool {
        while (item && item !== bar)
            item = item.parent;
        return item === bar;
    }

    objectName: "toolbar"
    implicitWidth: host.implicitWidth + leftPadding + rightPadding
    implicitHeight: host.implicitHeight + topPadding + bottomPadding
    focusPolicy: Qt.TabFocus

    Accessible.role: Accessible.ToolBar
    Accessible.name: toolbar?.name ?? ""

    onWaitsChanged: {
        if (waits)
            Qt.callLater(placeFocus);
    }
    onActiveFocusChanged: {
        if (activeFocus)
            Qt.callLater(redirectFocus);
        else
            formerControl = area?.entryControl() ?? null;
    }

    background: Rectangle {
        color: shared.ground

        Rectangle {
            readonly property bool lies: bar.lineEdge === Qt.TopEdge || bar.lineEdge === Qt.BottomEdge

            x: bar.lineEdge === Qt.RightEdge ? parent.width - 1 : 0
            y: bar.lineEdge === Qt.BottomEdge ? parent.height - 1 : 0
            width: lies ? parent.width : 1
            height: lies ? 1 : parent.height
            color: Qt.alpha(shared.ink, 0.12)
        }
    }

    contentItem: ToolbarHost {
        id: host

        session: shared
        area: bar.area
        looks: lookSet
        onLeaving: forward => bar.leave(forward)
    }

    Component {
        id: buttonLook

        ToolbarButton {
            session: shared
        }
    }

    ToolbarLooks {
        id: lookSet

        button: buttonLook
        textButton: buttonLook
        separator: Component {
            ToolbarSeparator {
                session: shared
            }
        }
        picker: Component {
            ToolbarPicker {
                session: shared
            }
        }
        general: Component {
            ToolbarGeneral {
                session: shared
            }
        }
    }

    ToolbarSession {
        id: shared

        mirrored: bar.mirrored
        customizing: bar.area?.customizing ?? false
        ink: bar.palette.windowText
        accent: bar.palette.highlight
        ground: bar.area?.background.valid ? bar.area.background : bar.palette.window
        onAimed: control => tip.aim(control)
        onPressed: tip.dismiss()
        onWindowLeft: tip.dismiss()
        onContextMenuRequested: place => bar.toolbar.contextMenuRequested(null, place.x, place.y)
    }

    ToolbarTip {
        id: tip

        session: shared
        font: bar.font
        palette: bar.palette
        // One that is still to come goes with the window, too.
        onTargetChanged: target ? shared.guard.watch(bar) : shared.guard.unwatch(bar)
    }
}
