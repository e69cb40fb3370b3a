// Who had the keyboard before something opened, and gets it back when that closes.
import QtQuick

QtObject {
    id: former

    /// Null when nobody gets it back.
    property Item item: null

    function isWithin(inner: Item, outer: Item): bool {
        while (inner && inner !== outer)
            inner = inner.parent;
        return inner !== null;
    }

    /// Gives it back when `closed` is gone, unless somebody else took it: what is hidden, or lies around one of the
    /// two, is nobody.
    function giveBack(closed: Item): void {
        const target = item;
        const now = target?.Window.activeFocusItem ?? null;
        item = null;
        if (target && (!now?.visible || isWithin(target, now) || isWithin(closed, now)))
            target.forceActiveFocus(Qt.PopupFocusReason);
    }
}
