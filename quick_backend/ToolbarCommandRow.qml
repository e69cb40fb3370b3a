// A row of a ToolbarSetupPanel: a command that can be added to the bar, and be dragged onto one.
import QtQuick
import QtQuick.Templates as T

T.Control {
    id: row

    required property int index
    required property string label
    required property string path
    required property int imageIndex
    required property string keyText
    required property string command

    property string imageSource: ""
    property ToolbarDragLayer dragLayer: null

    readonly property bool isCurrent: ListView.isCurrentItem
    readonly property bool isStrong: isCurrent && ListView.view.activeFocus
    readonly property color ink: isStrong ? palette.highlightedText : palette.text

    /// The popups above the command.
    readonly property string where: path.substring(0, path.length - label.length)

    signal pointedAt
    signal picked

    function styled(text: string): string {
        return text.replace(/&/g, "&amp;").replace(/</g, "&lt;").replace(/>/g, "&gt;").replace(/ /g, "&nbsp;");
    }

    objectName: "commandRow" + index
    width: ListView.view?.width ?? 0
    implicitHeight: Math.max(28, Math.ceil(name.implicitHeight) + 10)
    leftPadding: 6
    rightPadding: 8

    Accessible.role: Accessible.ListItem
    Accessible.name: path
    Accessible.description: keyText
    Accessible.focusable: true
    Accessible.selected: isCurrent
    Accessible.onPressAction: picked()

    background: Rectangle {
        radius: 4
        color: row.isStrong ? row.palette.highlight
            : row.isCurrent ? Qt.alpha(row.palette.highlight, 0.2)
            : Qt.alpha(row.palette.text, mouse.containsMouse ? 0.07 : 0)
    }

    contentItem: Item {
        Image {
            id: image

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            width: 16
            height: 16
            sourceSize: Qt.size(16, 16)
            fillMode: Image.PreserveAspectFit
            source: row.imageSource === "" || row.imageIndex < 0 ? "" : row.imageSource + row.imageIndex + "?state="
                + (row.isStrong ? "selected" : "normal") + "&color=" + encodeURIComponent(row.ink)
        }

        // One text, so that it is read in one direction.
        Text {
            id: name

            anchors.left: image.right
            anchors.leftMargin: 8
            anchors.right: keys.left
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            text: "<font color=\"" + Qt.alpha(row.ink, row.isStrong ? 0.8 : 0.55) + "\">" + row.styled(row.where)
                + "</font>" + row.styled(row.label)
            textFormat: Text.StyledText
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font: row.font
            color: row.ink
        }

        Text {
            id: keys

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: row.keyText
            textFormat: Text.PlainText
            font: row.font
            color: row.ink
            opacity: row.isStrong ? 0.85 : 0.6
        }
    }

    MouseArea {
        id: mouse

        property point start: Qt.point(0, 0)

        readonly property ToolbarDrag drag: row.dragLayer?.drag ?? null

        function follow(event: MouseEvent): void {
            const place = mapToItem(null, event.x, event.y);
            const distance = Math.abs(event.x - start.x) + Math.abs(event.y - start.y);
            if (drag.lifted)
                drag.moveTo(place);
            else if (distance >= Application.styleHints.startDragDistance)
                row.dragLayer.liftCommand(row.command, row.label, place);
        }

        anchors.fill: parent
        hoverEnabled: true
        preventStealing: drag !== null
        onPressed: event => {
            start = Qt.point(event.x, event.y);
            row.pointedAt();
        }
        onPositionChanged: event => {
            if (pressed && drag)
                follow(event);
        }
        onReleased: drag?.drop()
        onCanceled: drag?.cancel()
        onDoubleClicked: row.picked()
    }
}
