// The plate behind a button of a toolbar: framed, pointed at, pressed, on, and with the keyboard.
import QtQuick

Item {
    id: plate

    required property ToolbarSession session

    property bool framed: false
    property bool hovered: false
    property bool pressed: false
    property bool checked: false
    property bool focused: false
    property real fade: 1

    readonly property real shade: pressed ? 0.17 : hovered ? 0.09 : framed ? 0.04 : 0

    Rectangle {
        objectName: "plateGround"
        anchors.fill: parent
        radius: 4
        color: plate.checked ? Qt.alpha(plate.session.accent, plate.pressed ? 0.42 : plate.hovered ? 0.32 : 0.22)
                             : Qt.alpha(plate.session.ink, plate.shade)
        border.width: plate.checked || plate.framed ? 1 : 0
        border.color: plate.checked ? Qt.alpha(plate.session.accent, 0.75) : Qt.alpha(plate.session.ink, 0.24)
        opacity: plate.fade
    }

    Rectangle {
        objectName: "focusRing"
        anchors.fill: parent
        visible: plate.focused
        radius: 4
        color: "transparent"
        border.width: 2
        border.color: plate.session.accent
    }
}
