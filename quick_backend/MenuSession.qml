// What the parts of one open menu share: MenuBar and ContextMenu have one each and hand it to their popups.
import QtQuick

QtObject {
    id: session

    property QuickMenu menu: null

    /// Where images come from, such as "image://arbor/". Behind it come the index of an image, the state of its row
    /// and the colour of its text: "7?state=disabled&color=%236b22252b". Empty: no images.
    property string imageSource: ""

    /// Milliseconds that the pointer rests on a row before the popup below it opens or the last one closes.
    property int hoverDelay: 180

    property bool mirrored: false

    readonly property MenuPressGuard guard: MenuPressGuard {
        onPressedOutside: session.dismissed()
        onWindowLeft: session.dismissed()
    }

    property point pointer: Qt.point(-1, -1)
    property bool pointerKnown: false

    /// Whether the pointer itself moved. Things that open or scroll under a resting pointer report a position
    /// too, which must not take the keyboard's place.
    function pointerMoved(item: Item, x: real, y: real): bool {
        const now = item.mapToItem(null, x, y);
        const moved = pointerKnown && Math.abs(now.x - pointer.x) + Math.abs(now.y - pointer.y) > 0.5;
        pointer = now;
        pointerKnown = true;
        return moved;
    }

    /// Put everything away.
    signal dismissed

    /// Right (1) or left (-1) was pressed with nowhere to go in the popups.
    signal stepped(direction: int)

    /// The first popup was left with Escape.
    signal backedOut

    /// The pointer moved with its button held since it pressed a row or an item of the bar, and the button was
    /// let go somewhere else; places of the window.
    signal dragged(place: point)
    signal dropped(place: point)

    /// A command was chosen: put everything away, then run it.
    signal picked(itemId: int)
}
