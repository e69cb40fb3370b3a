// One entry of a MenuBar. All state comes from the roles of QuickMenuRows; the bar decides what is current.
import QtQuick
import QtQuick.Templates as T

T.Control {
    id: item

    required property MenuSession session

    required property int index
    required property int kind
    required property string styledLabel
    required property string keyText
    required property string accessibleName
    required property bool grayed
    required property bool shown

    property bool isCurrent: false
    readonly property bool isSeparator: kind === QuickMenuRows.Separator

    /// The pointer moved over the item, or pressed it.
    signal pointedAt
    signal pressed

    /// The pointer pressed the item, moved out of it, and was let go there; places of the window.
    signal draggedTo(place: point)
    signal droppedAt(place: point)

    objectName: "menuBarItem" + index
    visible: shown
    enabled: !grayed && !isSeparator
    implicitWidth: isSeparator ? 9 : text.implicitWidth + leftPadding + rightPadding
    implicitHeight: text.implicitHeight + topPadding + bottomPadding
    horizontalPadding: 9
    verticalPadding: 5

    Accessible.role: isSeparator ? Accessible.Separator : Accessible.MenuItem
    Accessible.name: accessibleName
    Accessible.description: keyText
    Accessible.focusable: enabled
    Accessible.ignored: !shown
    Accessible.onPressAction: item.pressed()

    background: Rectangle {
        radius: 4
        color: item.isCurrent ? item.palette.highlight : Qt.alpha(item.palette.windowText, mouse.containsMouse ? 0.09 : 0)
    }

    contentItem: Text {
        id: text

        text: item.styledLabel
        textFormat: Text.StyledText
        font: item.font
        color: item.isCurrent ? item.palette.highlightedText : item.palette.windowText
        opacity: item.grayed ? 0.42 : 1
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    Rectangle {
        anchors.centerIn: parent
        visible: item.isSeparator
        width: 1
        height: parent.height - 8
        color: Qt.alpha(item.palette.windowText, 0.2)
    }

    MouseArea {
        id: mouse

        anchors.fill: parent
        hoverEnabled: true
        onPositionChanged: mouse => {
            if (!item.session.pointerMoved(this, mouse.x, mouse.y))
                return;
            if (containsMouse)
                item.pointedAt();
            else
                item.draggedTo(mapToItem(null, mouse.x, mouse.y));
        }
        onPressed: item.pressed()
        onReleased: mouse => {
            if (!containsMouse)
                item.droppedAt(mapToItem(null, mouse.x, mouse.y));
        }
    }
}
