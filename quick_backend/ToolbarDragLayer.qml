// Lets buttons be dragged over the bars of a window while a ToolbarSetup is active, and be moved by keyboard. Lay it
// over the window; it draws nothing else, and takes no events by itself.
//
//     ToolbarDragLayer {
//         anchors.fill: parent
//         setup: theSetup // a ToolbarSetup
//     }
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import QtQml.Models

T.Control {
    id: layer

    property ToolbarSetup setup: null

    /// For other places from which commands are dragged, such as a ToolbarSetupPanel.
    readonly property ToolbarDrag drag: ToolbarDrag {
        setup: layer.setup
    }

    /// Lifts a command that is not on a bar; what is dragged shows `label`. Gives whether it could be.
    function liftCommand(command: string, label: string, place: point): bool {
        internal.picture = "";
        internal.label = label;
        internal.hold = Qt.point(-12, -8);
        return drag.liftCommand(command, place);
    }

    // The picture comes with the next frame; what is dragged shows the name until then.
    function takePicture(control: QuickControl, hold: point): void {
        internal.picture = "";
        internal.label = control.text || control.tooltip || control.name;
        const item = drag.picturedItem(control);
        internal.hold = control.item.mapToItem(item ?? control.item, hold);
        internal.size = Qt.size((item ?? control.item).width, (item ?? control.item).height);
        item?.grabToImage(result => internal.picture = result.url);
    }

    objectName: "toolbarDragLayer"
    focusPolicy: Qt.NoFocus

    QtObject {
        id: internal

        property url picture: ""
        property string label: ""
        property point hold: Qt.point(0, 0)
        property size size: Qt.size(0, 0)

        signal focusWanted(control: QuickControl)
    }

    Instantiator {
        model: layer.drag.areas

        delegate: ToolbarSetupPad {
            id: pad

            required property ToolbarArea modelData

            area: modelData
            drag: layer.drag
            palette: layer.palette
            onPictureWanted: (control, hold) => layer.takePicture(control, hold)
            onMovedAway: control => internal.focusWanted(control)

            Connections {
                target: internal

                function onFocusWanted(control: QuickControl): void {
                    if (pad.chosen === control)
                        pad.forceActiveFocus(Qt.OtherFocusReason);
                }
            }
        }
    }

    // Over everything, popups too: places are those of the window.
    Item {
        parent: layer.Window.contentItem
        z: 2000000
        visible: layer.drag.lifted

        Rectangle {
            objectName: "toolbarMark"
            visible: layer.drag.mark.width > 0
            x: layer.drag.mark.x
            y: layer.drag.mark.y
            width: layer.drag.mark.width
            height: layer.drag.mark.height
            radius: 1
            color: layer.palette.highlight
        }

        Item {
            objectName: "toolbarLifted"
            x: layer.drag.place.x - internal.hold.x
            y: layer.drag.place.y - internal.hold.y
            opacity: layer.drag.removes ? 0.5 : 0.85

            Rectangle {
                width: picture.visible ? internal.size.width : name.width + 16
                height: picture.visible ? internal.size.height : name.height + 10
                visible: picture.visible || name.text !== ""
                radius: 4
                color: layer.palette.window
                border.color: Qt.alpha(layer.palette.windowText, 0.3)

                Image {
                    id: picture

                    objectName: "toolbarPicture"
                    anchors.fill: parent
                    visible: source.toString() !== ""
                    source: internal.picture
                }

                Text {
                    id: name

                    anchors.centerIn: parent
                    visible: !picture.visible
                    text: internal.label
                    textFormat: Text.PlainText
                    font: layer.font
                    color: layer.palette.windowText
                }
            }

            // Let go here it goes.
            Rectangle {
                objectName: "toolbarRemoves"
                visible: layer.drag.removes
                x: -8
                y: -8
                width: 16
                height: 16
                radius: 8
                color: "#c62828"

                Rectangle {
                    anchors.centerIn: parent
                    width: 8
                    height: 2
                    color: "white"
                }
            }
        }
    }
}
