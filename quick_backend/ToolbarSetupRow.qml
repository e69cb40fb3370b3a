// A row of a ToolbarSetupPanel: one button of the bar, with a box that shows and hides it. It can be dragged up and
// down.
import QtQuick
import QtQuick.Templates as T

T.Control {
    id: row

    required property int index
    required property string label
    required property int imageIndex
    required property bool separator
    required property bool shown
    required property bool locked
    required property string keyText
    required property QuickControl control

    property string imageSource: ""

    readonly property bool isCurrent: ListView.isCurrentItem
    readonly property bool canHide: !separator && !locked
    readonly property bool isStrong: isCurrent && ListView.view.activeFocus
    readonly property color ink: isStrong ? palette.highlightedText : palette.text
    readonly property real fade: shown && !locked ? 1 : 0.55

    signal pointedAt
    signal toggled

    /// The row is dragged from lifted() on, to places of the list, until it is let go or the drag is cancelled.
    signal lifted
    signal draggedTo(place: point)
    signal dropped
    signal cancelled

    objectName: "setupRow" + index
    width: ListView.view?.width ?? 0
    implicitHeight: Math.max(28, Math.ceil(name.implicitHeight) + 10)
    leftPadding: 6
    rightPadding: 8
    z: mouse.dragging ? 1 : 0

    Accessible.role: separator ? Accessible.Separator : Accessible.CheckBox
    Accessible.name: separator ? name.text : label
    Accessible.description: locked ? qsTr("Not available") : keyText
    Accessible.checkable: canHide
    Accessible.checked: shown && !locked
    Accessible.focusable: true
    Accessible.selected: isCurrent
    Accessible.onToggleAction: toggle()
    Accessible.onPressAction: toggle()

    function toggle(): void {
        if (canHide)
            toggled();
    }

    background: Rectangle {
        radius: 4
        color: row.isStrong ? row.palette.highlight
            : row.isCurrent ? Qt.alpha(row.palette.highlight, 0.2)
            : Qt.alpha(row.palette.text, mouse.containsMouse ? 0.07 : 0)
    }

    contentItem: Item {
        Rectangle {
            id: box

            objectName: "setupBox"
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            visible: !row.separator
            width: 16
            height: 16
            radius: 4
            color: "transparent"
            border.color: Qt.alpha(row.ink, row.locked ? 0.3 : 0.6)

            MenuMark {
                anchors.centerIn: parent
                shape: row.shown && !row.locked ? MenuMark.Check : MenuMark.None
                color: row.ink
            }
        }

        Image {
            id: image

            anchors.left: box.right
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            width: 16
            height: 16
            sourceSize: Qt.size(16, 16)
            fillMode: Image.PreserveAspectFit
            source: row.imageSource === "" || row.imageIndex < 0 ? "" : row.imageSource + row.imageIndex + "?state="
                + (row.isStrong ? "selected" : "normal") + "&color=" + encodeURIComponent(Qt.alpha(row.ink, row.fade))
        }

        Text {
            id: name

            anchors.left: image.right
            anchors.leftMargin: 8
            anchors.right: keys.left
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            text: row.separator ? qsTr("Separator") : row.label
            textFormat: Text.PlainText
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font: row.font
            color: row.ink
            opacity: row.separator ? 0.6 : row.fade
        }

        Rectangle {
            anchors.left: name.left
            anchors.leftMargin: name.contentWidth + 10
            anchors.right: keys.left
            anchors.verticalCenter: parent.verticalCenter
            visible: row.separator
            height: 1
            color: Qt.alpha(row.ink, 0.25)
        }

        Text {
            id: keys

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: row.keyText
            textFormat: Text.PlainText
            font: row.font
            color: row.ink
            opacity: row.fade * (row.isStrong ? 0.85 : 0.6)
        }
    }

    MouseArea {
        id: mouse

        property bool dragging: false

        /// Whether it was dragged since it was pressed; still so when the click comes.
        property bool moved: false
        property point start: Qt.point(0, 0)

        anchors.fill: parent
        hoverEnabled: true
        preventStealing: true
        cursorShape: dragging ? Qt.ClosedHandCursor : Qt.ArrowCursor
        onPressed: event => {
            start = Qt.point(event.x, event.y);
            moved = false;
            row.pointedAt();
        }
        onPositionChanged: event => {
            if (!pressed)
                return;
            if (!dragging && Math.abs(event.y - start.y) >= Application.styleHints.startDragDistance) {
                dragging = true;
                moved = true;
                row.lifted();
            }
            if (dragging)
                row.draggedTo(mapToItem(row.ListView.view, event.x, event.y));
        }
        onReleased: {
            if (dragging)
                row.dropped();
            dragging = false;
        }
        onCanceled: {
            if (dragging)
                row.cancelled();
            dragging = false;
        }
        onClicked: event => {
            if (!moved && (row.mirrored ? event.x > row.width - 30 : event.x < 30))
                row.toggle();
        }
        onDoubleClicked: event => {
            if (row.mirrored ? event.x <= row.width - 30 : event.x >= 30)
                row.toggle();
        }
    }
}
