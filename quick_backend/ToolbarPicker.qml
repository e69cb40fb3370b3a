// The look of a picker: a button that opens the popup with what did not fit.
pragma ComponentBehavior: Bound

import QtQuick

ToolbarLook {
    id: look

    readonly property QuickPicker picker: control as QuickPicker
    readonly property bool opened: picker?.opened ?? false

    // Whether the popup is being opened by the pointer.
    property bool byPointer: false

    function toggle(): void {
        picker.opened = !opened;
    }

    Accessible.role: Accessible.ButtonMenu
    Accessible.onPressAction: toggle()

    onOpenedChanged: {
        session.pressed();
        if (opened)
            popup.show(byPointer);
        else
            popup.close();
    }

    background: ToolbarPlate {
        session: look.session
        framed: !(look.control?.flat ?? true)
        hovered: pointing.hovered || look.opened
        pressed: mouse.pressed && mouse.containsMouse
        focused: look.activeFocus
        fade: look.fade
    }

    contentItem: Item {
        // Two points that show where the toolbar would go on. They mirror themselves.
        Repeater {
            model: 2

            MenuMark {
                required property int index

                readonly property int shift: Math.round((index * 5 - 2) * look.zoom)
                readonly property bool down: look.control?.vertical ?? false

                LayoutMirroring.enabled: false
                LayoutMirroring.childrenInherit: true
                x: Math.round((parent.width - width) / 2) + (down ? 0 : look.session.mirrored ? 1 - shift : shift)
                y: Math.round((parent.height - height) / 2) + (down ? shift : 0)
                shape: MenuMark.Arrow
                mirrored: look.session.mirrored && !down
                rotation: down ? 90 : 0
                scale: look.zoom
                color: look.session.ink
                opacity: look.fade
            }
        }

        MouseArea {
            id: mouse

            anchors.fill: parent
            onPressed: {
                look.byPointer = true;
                look.toggle();
                look.byPointer = false;
            }
        }
    }

    HoverHandler {
        id: pointing
    }

    Connections {
        target: look.session

        function onUsed(): void {
            popup.close();
        }

        function onWindowLeft(): void {
            if (!look.session.customizing)
                popup.close();
        }
    }

    ToolbarPopup {
        id: popup

        session: look.session
        toolbarArea: look.parent?.parent ?? null
        area: look.picker?.area ?? null
        palette: look.palette
        font: look.font
        onVisibleChanged: {
            if (!visible && look.picker)
                look.picker.opened = false;
        }
    }
}
