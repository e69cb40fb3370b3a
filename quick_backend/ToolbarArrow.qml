// The part of a button that opens what hangs from it.
import QtQuick

Item {
    id: arrow

    required property QuickButton button
    required property ToolbarSession session

    property real fade: 1

    /// Whether a line divides it from the rest of the button.
    property bool divided: false

    readonly property bool hovered: pointing.hovered
    readonly property bool pressed: mouse.pressed && mouse.containsMouse

    objectName: "toolbarArrow"
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: session.nameOf(button)
    Accessible.onPressAction: session.openDropDown(button)

    Rectangle {
        anchors.fill: parent
        radius: 4
        color: Qt.alpha(arrow.session.ink, arrow.pressed ? 0.17 : arrow.hovered ? 0.09 : 0)
    }

    Rectangle {
        x: arrow.session.mirrored ? parent.width - 1 : 0
        y: 5
        visible: arrow.divided
        width: 1
        height: parent.height - 10
        color: Qt.alpha(arrow.session.ink, 0.2 * arrow.fade)
    }

    // Turned and placed by itself, so it must not be mirrored once more.
    MenuMark {
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true
        x: Math.round((parent.width - width) / 2)
        y: Math.round((parent.height - height) / 2)
        shape: MenuMark.Arrow
        color: arrow.session.ink
        opacity: 0.8 * arrow.fade
        rotation: 90
        scale: arrow.button?.zoom ?? 1
    }

    HoverHandler {
        id: pointing

        enabled: !arrow.session.customizing
    }

    MouseArea {
        id: mouse

        anchors.fill: parent
        enabled: !arrow.session.customizing
        onPressed: arrow.session.openDropDown(arrow.button)
    }
}
