// Where the controls of one area lie. It gives the area its place, and handles its keys and what of the pointer is
// not for a single button: pointing at controls, disabled ones too, and the right button.
import QtQuick

Item {
    id: host

    required property ToolbarSession session

    property ToolbarArea area: null

    /// Looks for the area; null when it has its own.
    property ToolbarLooks looks: null

    /// Whether it lies in a popup: there the arrows walk over lines, and Tab walks, too.
    readonly property bool inPopup: area?.inPicker ?? false

    /// The control that has the keyboard, or null.
    readonly property QuickControl current: area ? area.controlOf(Window.activeFocusItem) : null

    // The control under the pointer, or null.
    property QuickControl pointed: null

    // Whether the control that has the keyboard was hidden.
    readonly property bool lost: visible && current?.item?.visible === false

    // The area, unless another host took it.
    readonly property ToolbarArea owned: area?.parent === host ? area : null

    // The area that is held, which it is let go of when another one comes.
    property ToolbarArea held: null

    /// Tab or Backtab was pressed.
    signal leaving(forward: bool)

    /// Escape was pressed.
    signal escaped

    /// Gives the keyboard to the control that had it last; false when nothing takes it.
    function enter(reason: int): bool {
        const entry = area ? area.entryControl() : null;
        return entry !== null && (focusLook(entry, reason) || step(entry, 1));
    }

    function focusLook(control: QuickControl, reason: int): bool {
        for (const child of control.item?.children ?? []) {
            const look = child as ToolbarLook;
            if (look)
                return look.takeFocus(reason);
        }
        return false;
    }

    // To the next control that takes the keyboard.
    function step(from: QuickControl, direction: int): bool {
        const first = area.nextControl(from, direction);
        let next = first;
        while (next) {
            if (focusLook(next, Qt.TabFocusReason))
                return true;
            next = area.nextControl(next, direction);
            if (next === first)
                return false;
        }
        return false;
    }

    // To the control beside the current one in the next line, or on when there is none.
    function stepAcross(direction: int): void {
        const item = current.item;
        const way = (area.vertical ? item.width : item.height) + 1;
        const x = item.x + item.width / 2 + (area.vertical ? direction * way : 0);
        const y = item.y + item.height / 2 + (area.vertical ? 0 : direction * way);
        const beside = area.controlAt(x, y);
        if (!beside || !focusLook(beside, Qt.TabFocusReason))
            step(current, direction);
    }

    function activate(control: QuickControl): void {
        const picker = control as QuickPicker;
        if (picker)
            picker.opened = true;
        else if (!session.customizing)
            session.trigger(control);
    }

    // Down on a horizontal toolbar, and what is Down for a vertical one.
    function open(control: QuickControl): bool {
        if (control as QuickPicker)
            activate(control);
        else if (control.dropDown && !session.customizing)
            session.openDropDown(control);
        else
            return false;
        return true;
    }

    function walk(x: int, y: int): bool {
        const along = area.vertical ? y : session.mirrored ? -x : x;
        const across = !area.vertical ? y : session.mirrored ? -x : x;
        if (along !== 0)
            return step(current, along);
        if (!inPopup)
            return across > 0 && open(current);
        stepAcross(area.vertical ? x : y);
        return true;
    }

    function handleKey(event: KeyEvent): bool {
        switch (event.key) {
        case Qt.Key_Tab:
            return leave(true);
        case Qt.Key_Backtab:
            return leave(false);
        case Qt.Key_Left:
            return walk(-1, 0);
        case Qt.Key_Right:
            return walk(1, 0);
        case Qt.Key_Up:
            return walk(0, -1);
        case Qt.Key_Down:
            return event.modifiers === Qt.AltModifier ? open(current) : walk(0, 1);
        case Qt.Key_Home:
            return step(null, 1);
        case Qt.Key_End:
            return step(null, -1);
        case Qt.Key_Menu:
        case Qt.Key_F10:
            session.openContextMenu(current);
            return true;
        case Qt.Key_Escape:
            escaped();
            return true;
        default:
            activate(current);
            return true;
        }
    }

    // In a popup that the pointer opened no control has the keyboard, until a key goes to the first.
    function begin(event: KeyEvent): bool {
        switch (event.key) {
        case Qt.Key_Tab:
        case Qt.Key_Down:
        case Qt.Key_Right:
        case Qt.Key_Left:
        case Qt.Key_Home:
            return inPopup && enter(Qt.TabFocusReason);
        default:
            return false;
        }
    }

    function leave(forward: bool): bool {
        if (inPopup)
            return step(current, forward ? 1 : -1);
        leaving(forward);
        return true;
    }

    function exchangeArea(): void {
        if (held && held !== area && held.parent === host) {
            held.parent = null;
            if (looks)
                held.looks = null;
        }
        held = area;
        if (!area)
            return;
        area.parent = host;
        if (looks)
            area.looks = looks;
    }

    function point(): void {
        const place = pointing.point.position;
        pointed = area && pointing.hovered && !session.customizing ? area.controlAt(place.x, place.y) : null;
    }

    function openContextMenu(x: real, y: real): void {
        const place = mapToItem(null, x, y);
        const control = area ? area.controlAt(x, y) : null;
        session.pressed();
        if (control)
            control.openContextMenu(place.x, place.y);
        else
            session.contextMenuRequested(place);
    }

    // What is hidden keeps the keyboard by itself.
    function replaceFocus(): void {
        if (lost && !enter(Qt.TabFocusReason))
            leaving(true);
    }

    objectName: "toolbarHost"
    implicitWidth: area?.implicitWidth ?? 0
    implicitHeight: area?.implicitHeight ?? 0

    LayoutMirroring.enabled: session.mirrored
    LayoutMirroring.childrenInherit: true

    Keys.onPressed: event => {
        if (current)
            event.accepted = session.takesKey(current, event) && handleKey(event);
        else
            event.accepted = begin(event);
    }

    Component.onCompleted: exchangeArea()
    Component.onDestruction: {
        area = null;
        exchangeArea();
    }
    onAreaChanged: exchangeArea()
    onLostChanged: Qt.callLater(replaceFocus)
    onPointedChanged: session.aimed(pointed)
    onCurrentChanged: {
        if (current)
            area.setEntryControl(current);
        session.aimed(current);
    }

    // Above the controls, since disabled ones have a context menu, too. Hosted items have their own.
    MouseArea {
        anchors.fill: parent
        z: 1
        acceptedButtons: Qt.RightButton
        onPressed: mouse => mouse.accepted = host.area?.controlAt(mouse.x, mouse.y)?.kind !== QuickControl.General
        onClicked: mouse => host.openContextMenu(mouse.x, mouse.y)
    }

    Binding {
        target: host.owned
        property: "width"
        value: host.width
        restoreMode: Binding.RestoreNone
    }

    Binding {
        target: host.owned
        property: "height"
        value: host.height
        restoreMode: Binding.RestoreNone
    }

    Binding {
        target: host.owned
        property: "mirrored"
        value: host.session.mirrored
        restoreMode: Binding.RestoreNone
    }

    HoverHandler {
        id: pointing

        onPointChanged: host.point()
        onHoveredChanged: host.point()
    }
}
