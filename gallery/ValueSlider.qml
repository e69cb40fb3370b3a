pragma ComponentBehavior: Bound

import QtQuick

// A slider between a title and a readout. The owner holds the value: it hears of moves, and sets what it makes of them.
// Left, Down, Right and Up go one step, Page Down and Page Up ten, Home and End to the ends.
Item {
    id: slider

    property string title
    property string readout
    property real value: 0
    property real minimumValue: 0
    property real maximumValue: 1
    property real stepSize: (maximumValue - minimumValue) / 100
    property list<color> shades: [] // seven for a painted track, from left to right; none for a plain one
    property real titleWidth: 96
    property real readoutWidth: 56

    readonly property bool painted: shades.length === 7
    readonly property real share: Math.max(0, Math.min(1, (value - minimumValue) / (maximumValue - minimumValue)))
    readonly property var steps: ({
        [Qt.Key_Left]: -1, [Qt.Key_Down]: -1, [Qt.Key_Right]: 1, [Qt.Key_Up]: 1,
        [Qt.Key_PageDown]: -10, [Qt.Key_PageUp]: 10, [Qt.Key_Home]: -Infinity, [Qt.Key_End]: Infinity
    })

    signal moved(value: real)

    function moveTo(wanted: real): void {
        slider.moved(Math.max(minimumValue, Math.min(maximumValue, wanted)));
    }

    function isOwn(event: KeyEvent): bool {
        return steps[event.key] !== undefined && !(event.modifiers & ~Qt.KeypadModifier);
    }

    implicitWidth: 400
    implicitHeight: 28
    activeFocusOnTab: true

    Accessible.role: Accessible.Slider
    Accessible.name: title
    Accessible.description: readout
    Accessible.focusable: true
    Accessible.onIncreaseAction: moveTo(value + stepSize)
    Accessible.onDecreaseAction: moveTo(value - stepSize)

    // The menu has some of these keys too.
    Keys.onShortcutOverride: event => event.accepted = slider.isOwn(event)
    Keys.onPressed: event => {
        if (slider.isOwn(event))
            slider.moveTo(slider.value + slider.steps[event.key] * slider.stepSize);
        else
            event.accepted = false;
    }

    Text {
        anchors.verticalCenter: parent.verticalCenter
        width: slider.titleWidth - Theme.space
        text: slider.title
        textFormat: Text.PlainText
        color: Theme.softInk
        font.pixelSize: Theme.text
        elide: Text.ElideRight
    }
    Text {
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        text: slider.readout
        textFormat: Text.PlainText
        color: Theme.ink
        font { pixelSize: Theme.text; features: { "tnum": 1 } }
    }
    Item {
        id: way

        readonly property real length: width - handle.width

        anchors { left: parent.left; leftMargin: slider.titleWidth; right: parent.right; rightMargin: slider.readoutWidth; top: parent.top; bottom: parent.bottom }

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            height: slider.painted ? 14 : 4
            radius: height / 2
            color: Theme.line
            gradient: slider.painted ? paint : null
            border { color: Theme.edge; width: slider.painted ? 1 : 0 }

            Gradient {
                id: paint

                orientation: Gradient.Horizontal

                GradientStop { position: 0; color: slider.shades[0] ?? "transparent" }
                GradientStop { position: 1 / 6; color: slider.shades[1] ?? "transparent" }
                GradientStop { position: 2 / 6; color: slider.shades[2] ?? "transparent" }
                GradientStop { position: 3 / 6; color: slider.shades[3] ?? "transparent" }
                GradientStop { position: 4 / 6; color: slider.shades[4] ?? "transparent" }
                GradientStop { position: 5 / 6; color: slider.shades[5] ?? "transparent" }
                GradientStop { position: 1; color: slider.shades[6] ?? "transparent" }
            }
        }
        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            visible: !slider.painted
            width: handle.x + handle.width / 2
            height: 4
            radius: 2
            color: Theme.accent
        }
        Rectangle {
            id: handle

            x: slider.share * way.length
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            radius: 10
            color: Theme.knob
            border { color: slider.activeFocus ? Theme.accent : Theme.edge; width: slider.activeFocus ? 3 : 1.5 }
        }
        MouseArea {
            anchors.fill: parent
            preventStealing: true
            onPressed: mouse => {
                slider.forceActiveFocus(Qt.MouseFocusReason);
                take(mouse.x);
            }
            onPositionChanged: mouse => take(mouse.x)

            function take(x: real): void {
                const share = (x - handle.width / 2) / way.length;
                slider.moveTo(slider.minimumValue + share * (slider.maximumValue - slider.minimumValue));
            }
        }
    }
}
