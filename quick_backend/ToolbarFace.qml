// Image and text of a button. Sizes are those that QuickButton reckons with for its natural size: an image of 24
// logical pixels, 5 between image and text, times the zoom.
import QtQuick

Item {
    id: face

    required property QuickButton button
    required property ToolbarSession session

    property real fade: 1

    /// Whether the text has no room to be shown in full.
    readonly property bool truncated: text.visible && text.truncated

    readonly property real zoom: button?.zoom ?? 1
    readonly property int side: Math.round(24 * zoom)
    readonly property int place: button?.textPlace ?? QuickControl.TextBehind
    readonly property bool stacked: place === QuickControl.TextBelow || place === QuickControl.TextAbove
    readonly property bool textFirst: place === QuickControl.TextAbove
        || (place === QuickControl.TextBefore) !== (session.mirrored && !stacked)

    readonly property int imageLength: image.visible ? side : 0
    readonly property int gap: image.visible && text.visible ? Math.round(5 * zoom) : 0
    readonly property int textLength: !text.visible ? 0 : stacked ? text.height : text.width
    readonly property int start: Math.round(((stacked ? height : width) - imageLength - gap - textLength) / 2)
    readonly property int imageStart: textFirst ? start + textLength + gap : start
    readonly property int textStart: textFirst ? start : start + imageLength + gap

    function middle(whole: real, part: real): int {
        return Math.round((whole - part) / 2);
    }

    Image {
        id: image

        objectName: "toolbarImage"
        visible: face.button?.showsImage ?? false
        x: face.stacked ? face.middle(face.width, width) : face.imageStart
        y: face.stacked ? face.imageStart : face.middle(face.height, height)
        width: face.side
        height: face.side
        sourceSize: Qt.size(face.side, face.side)
        fillMode: Image.PreserveAspectFit
        source: face.session.imageAddress(face.button?.imageIndex ?? -1, face.fade)
    }

    Text {
        id: text

        // A little of the room around it, so that a text that came out a pixel wider is not cut.
        readonly property real room: face.width + 4 - (face.stacked ? 0 : face.imageLength + face.gap)

        objectName: "toolbarText"
        visible: face.button?.showsText ?? false
        x: face.stacked ? face.middle(face.width, width) : face.textStart
        y: face.stacked ? face.textStart : face.middle(face.height, height)
        width: Math.max(0, Math.min(Math.ceil(implicitWidth), room))
        text: face.button?.text ?? ""
        textFormat: Text.PlainText
        font: face.session.fontAt(face.zoom)
        color: face.session.ink
        opacity: face.fade
        elide: Text.ElideRight
        maximumLineCount: 1
    }
}
