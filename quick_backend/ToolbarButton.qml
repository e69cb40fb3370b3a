// The look of a button: image, text or both on a plate, and the arrow of what hangs from it.
import QtQuick

ToolbarLook {
    id: look

    readonly property QuickButton button: control as QuickButton
    readonly property bool hasArrow: control?.dropDown ?? false
    readonly property int arrowWidth: hasArrow ? Math.round(14 * zoom) : 0
    readonly property bool checked: control?.checked ?? false

    /// Whether the text has no room to be shown in full.
    readonly property bool truncated: face.truncated

    Accessible.role: control?.checkable ? Accessible.CheckBox : Accessible.Button
    Accessible.checkable: control?.checkable ?? false
    Accessible.checked: checked
    Accessible.onPressAction: press()
    Accessible.onToggleAction: press()

    function press(): void {
        if (!session.customizing)
            session.trigger(control);
    }

    background: ToolbarPlate {
        session: look.session
        framed: !(look.control?.flat ?? true)
        hovered: pointing.hovered
        pressed: mouse.pressed && mouse.containsMouse
        checked: look.checked
        focused: look.activeFocus
        fade: look.fade
    }

    contentItem: Item {
        ToolbarFace {
            id: face

            readonly property int padding: Math.round(5 * look.zoom)

            x: (look.session.mirrored ? look.arrowWidth : 0) + padding
            y: padding
            width: parent.width - look.arrowWidth - 2 * padding
            height: parent.height - 2 * padding
            button: look.button
            session: look.session
            fade: look.fade
        }

        MouseArea {
            id: mouse

            x: look.session.mirrored ? look.arrowWidth : 0
            width: parent.width - look.arrowWidth
            height: parent.height
            enabled: !look.session.customizing
            onPressed: look.session.pressed()
            onClicked: look.press()
        }

        ToolbarArrow {
            id: arrow

            x: look.session.mirrored ? 0 : parent.width - width
            visible: look.hasArrow
            width: look.arrowWidth
            height: parent.height
            button: look.button
            session: look.session
            fade: look.fade
            divided: pointing.hovered || look.checked || !(look.control?.flat ?? true)
        }
    }

    HoverHandler {
        id: pointing

        enabled: !look.session.customizing
    }
}
