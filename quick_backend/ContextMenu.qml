// Opens popups of a menu as context menus: one that the menu asks for with TrackContextMenu(), or one by its
// identifier with openAt(). Lay it over the part of the window that it belongs to; it draws nothing by itself.
//
//     ContextMenu {
//         id: contextMenu
//         anchors.fill: parent
//         menu: theMenu // a QuickMenu
//     }
//     TapHandler {
//         acceptedButtons: Qt.RightButton
//         onTapped: point => contextMenu.openAt(40, point.position.x, point.position.y)
//     }
import QtQuick

Item {
    id: context

    property QuickMenu menu: null

    property alias imageSource: shared.imageSource
    property alias hoverDelay: shared.hoverDelay

    /// Whether a popup is open.
    readonly property bool opened: popup.visible

    /// Opens the popup `popupId` at a place in this item, in logical pixels. Gives the code of TrackContextMenu().
    function openAt(popupId: int, x: real, y: real): int {
        const place = mapToGlobal(x, y);
        return menu ? menu.track(popupId, Math.round(place.x), Math.round(place.y)) : -12;
    }

    /// Puts everything away and gives the focus back.
    function leave(): void {
        if (!popup.visible)
            return;
        popup.close();
        menu.tracking = false;
        if (shared.formerFocus)
            shared.formerFocus.forceActiveFocus(Qt.PopupFocusReason);
    }

    objectName: "contextMenu"

    Connections {
        target: context.menu

        function onContextMenuRequested(rows: QuickMenuRows, x: int, y: int): void {
            context.leave();
            const place = context.mapFromGlobal(x, y);
            anchor.x = place.x;
            anchor.y = place.y;
            shared.formerFocus = context.Window.activeFocusItem;
            popup.show(anchor, rows, false);
            context.menu.tracking = popup.visible;
        }
    }

    MenuSession {
        id: shared

        property Item formerFocus: null

        menu: context.menu
        mirrored: context.LayoutMirroring.enabled
        onDismissed: context.leave()
        onBackedOut: context.leave()
        onDragged: place => popup.dragTo(place)
        onDropped: place => {
            if (!popup.drop(place))
                context.leave();
        }
        onPicked: itemId => {
            context.leave();
            context.menu.trigger(itemId);
        }
    }

    Item {
        id: anchor
    }

    MenuPopup {
        id: popup

        session: shared
    }
}
