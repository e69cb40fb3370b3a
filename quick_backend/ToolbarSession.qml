// What the parts of one toolbar share: Toolbar has one and hands it to its looks.
import QtQuick

QtObject {
    id: session

    /// Where images come from, such as "image://arbor/". Behind it come the index of an image, the state of its
    /// button and the colour of its text: "7?state=disabled&color=%236b22252b". Empty: no images.
    property string imageSource: ""

    property bool mirrored: false

    /// Whether buttons are dragged instead of pressed.
    property bool customizing: false

    /// The colours of texts, of what is on, and of the ground.
    property color ink: "black"
    property color accent: "blue"
    property color ground: "white"

    /// Watches the window while a popup or a tooltip shows.
    readonly property WindowGuard guard: WindowGuard {
        onWindowLeft: session.windowLeft()
    }

    /// The window over which something is open lost the focus or went away.
    signal windowLeft

    /// A button was pressed, by the pointer or the keyboard.
    signal pressed

    /// A button ran what it stands for, so that a popup in which it lies has done its work.
    signal used

    /// The pointer or the keyboard came to a control, or to none.
    signal aimed(control: QuickControl)

    /// A context menu is wanted beside the controls, at a place of the window.
    signal contextMenuRequested(place: point)

    /// What people know the control as.
    function nameOf(control: QuickControl): string {
        if (!control)
            return "";
        return control.text || control.tooltip || (control as QuickPicker ? qsTr("More buttons") : control.name);
    }

    /// What a screen reader says behind the name: the tooltip, when it is not the name, and the key.
    function descriptionOf(control: QuickControl): string {
        if (!control)
            return "";
        const tooltip = control.tooltip === nameOf(control) ? "" : control.tooltip;
        return [tooltip, control.keyText].filter(text => text !== "").join(", ");
    }

    function imageAddress(index: int, fade: real): string {
        if (imageSource === "" || index < 0)
            return "";
        return imageSource + index + "?state=" + (fade < 1 ? "disabled" : "normal") + "&color="
            + encodeURIComponent(Qt.alpha(ink, fade));
    }

    /// The application's font, `zoom` times as large.
    function fontAt(zoom: real): font {
        const own = Application.font;
        if (zoom === 1)
            return own;
        const size = own.pointSize > 0 ? {
            pointSize: own.pointSize * zoom
        } : {
            pixelSize: Math.round(own.pixelSize * zoom)
        };
        return Qt.font(Object.assign({
            family: own.family,
            weight: own.weight,
            italic: own.italic
        }, size));
    }

    function trigger(control: QuickControl): void {
        pressed();
        used();
        control.trigger();
    }

    /// Opens what hangs from a control, below its look or, in a vertical toolbar, beside it.
    function openDropDown(control: QuickControl): void {
        pressed();
        const place = startOf(control, control.vertical && !control.inPicker);
        control.openDropDown(place.x, place.y);
    }

    function openContextMenu(control: QuickControl): void {
        pressed();
        const place = startOf(control, false);
        control.openContextMenu(place.x, place.y);
    }

    /// Whether a key is one of the toolbar's while `control` has the keyboard. A hosted item keeps its keys.
    function takesKey(control: QuickControl, event: KeyEvent): bool {
        const isPlain = (event.modifiers & ~Qt.KeypadModifier) === Qt.NoModifier;
        const isButton = control.kind !== QuickControl.General;
        switch (event.key) {
        case Qt.Key_Tab:
        case Qt.Key_Backtab:
        case Qt.Key_Menu:
            return true;
        case Qt.Key_F10:
            return event.modifiers === Qt.ShiftModifier;
        case Qt.Key_Escape:
            return control.inPicker;
        case Qt.Key_Down:
            return isButton && (isPlain || event.modifiers === Qt.AltModifier);
        case Qt.Key_Left:
        case Qt.Key_Right:
        case Qt.Key_Up:
        case Qt.Key_Home:
        case Qt.Key_End:
        case Qt.Key_Space:
        case Qt.Key_Return:
        case Qt.Key_Enter:
            return isButton && isPlain;
        default:
            return false;
        }
    }

    // Where a popup begins that hangs from a control; a place of the window.
    function startOf(control: QuickControl, beside: bool): point {
        const item = control.item;
        const farSide = beside !== mirrored;
        return item.mapToItem(null, farSide ? item.width : 0, beside ? 0 : item.height);
    }
}
