// One row of a MenuPopup. All state comes from the roles of QuickMenuRows; `session` is set by the popup.
import QtQuick
import QtQuick.Templates as T

T.Control {
    id: row

    required property MenuSession session
    required property real rowHeight
    required property real separatorHeight

    required property int index
    required property int kind
    required property string styledLabel
    required property string keyText
    required property string accessibleName
    required property bool checked
    required property bool radio
    required property bool grayed
    required property bool shown
    required property color color1
    required property color color2
    required property int lineWidth
    required property int imageIndex
    required property QuickMenuRows submenu

    readonly property bool isSeparator: kind === QuickMenuRows.Separator
    readonly property bool isCurrent: ListView.isCurrentItem
    readonly property bool hasSample: kind === QuickMenuRows.OneColor || kind === QuickMenuRows.TwoColor
                                      || kind === QuickMenuRows.LineWidth
    readonly property color ink: isCurrent ? palette.highlightedText : palette.text
    readonly property real fade: grayed ? 0.42 : 1
    readonly property bool hasImage: session.imageSource !== "" && imageIndex >= 0

    /// The pointer moved over the row, or clicked it.
    signal pointedAt
    signal picked

    /// The pointer pressed the row, moved out of it, and was let go there; places of the window.
    signal draggedTo(place: point)
    signal droppedAt(place: point)

    objectName: "menuRow" + index
    width: ListView.view ? ListView.view.width : 0
    height: !shown ? 0 : isSeparator ? separatorHeight : rowHeight
    visible: shown
    enabled: !grayed && !isSeparator
    leftPadding: 6
    rightPadding: 6

    Accessible.role: isSeparator ? Accessible.Separator : Accessible.MenuItem
    Accessible.name: accessibleName
    Accessible.description: keyText
    Accessible.checkable: checked || radio
    Accessible.checked: checked
    Accessible.focusable: enabled
    Accessible.ignored: !shown
    Accessible.onPressAction: row.picked()

    background: Item {
        Rectangle {
            anchors.fill: parent
            visible: row.isCurrent && row.enabled
            radius: 4
            color: row.palette.highlight
        }

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            visible: row.isSeparator
            x: 4
            width: parent.width - 8
            height: 1
            color: Qt.alpha(row.palette.text, 0.18)
        }
    }

    contentItem: Item {
        visible: !row.isSeparator

        MenuMark {
            id: mark

            objectName: "menuMark"
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            shape: !row.checked || row.hasImage ? MenuMark.None : row.radio ? MenuMark.Radio : MenuMark.Check
            color: row.ink
            opacity: row.fade
        }

        // Mark and image share their column: a checked image lies on a plate.
        Rectangle {
            objectName: "imagePlate"
            anchors.centerIn: mark
            visible: row.hasImage && row.checked
            width: 22
            height: 22
            radius: 4
            color: Qt.alpha(row.ink, 0.12)
            border.color: Qt.alpha(row.ink, 0.4)
            opacity: row.fade
        }

        // The provider grays what is disabled; an image of one colour takes that of the text.
        Image {
            objectName: "menuImage"
            anchors.centerIn: mark
            width: 16
            height: 16
            sourceSize: Qt.size(16, 16)
            fillMode: Image.PreserveAspectFit
            source: !row.hasImage ? "" : row.session.imageSource + row.imageIndex + "?state="
                + (row.grayed ? "disabled" : row.isCurrent ? "selected" : "normal") + "&color="
                + encodeURIComponent(Qt.alpha(row.ink, row.fade))
        }

        MenuSample {
            id: sample
            objectName: "menuSample"

            anchors.left: mark.right
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            visible: row.hasSample
            opacity: row.fade
            width: !visible ? 0 : label.text === "" ? parent.width - x - 22 : 48
            kind: row.kind
            color1: row.color1
            color2: row.color2
            lineWidth: row.lineWidth
            ink: row.ink
        }

        Text {
            id: label

            objectName: "menuLabel"
            anchors.left: sample.visible ? sample.right : mark.right
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            text: row.styledLabel
            textFormat: Text.StyledText
            font: row.font
            color: row.ink
            opacity: row.fade
        }

        Text {
            anchors.right: arrow.left
            anchors.rightMargin: 4
            anchors.verticalCenter: parent.verticalCenter
            text: row.keyText
            textFormat: Text.PlainText
            font: row.font
            color: row.ink
            opacity: row.fade * (row.isCurrent ? 0.85 : 0.6)
        }

        MenuMark {
            id: arrow

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            shape: row.submenu ? MenuMark.Arrow : MenuMark.None
            mirrored: row.mirrored
            color: row.ink
            opacity: row.fade
        }
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onPositionChanged: mouse => {
            if (!row.session.pointerMoved(this, mouse.x, mouse.y))
                return;
            if (containsMouse)
                row.pointedAt();
            else
                row.draggedTo(mapToItem(null, mouse.x, mouse.y));
        }
        onReleased: mouse => {
            if (!containsMouse)
                row.droppedAt(mapToItem(null, mouse.x, mouse.y));
        }
        onClicked: row.picked()
    }
}
