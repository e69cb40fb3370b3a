pragma ComponentBehavior: Bound

import QtQuick
import K7.Arbor

// The layers of a list, one of which is in hand. Rows are carried by their handles, or with Alt and the arrows.
RowList {
    id: list

    required property SortFilterProxyModel layers
    property bool movable: true
    property bool renaming: false
    property int dropGap: -1 // the gap into which a carried row would fall, from 0; -1 while none is carried

    readonly property LayerItem row: currentItem as LayerItem

    signal renamed(name: string)
    signal moved(from: int, to: int)
    signal insertAsked
    signal removeAsked
    signal opacityAsked(step: int)

    function rename(): void {
        renaming = row !== null;
    }

    function shift(step: int): void {
        const to = currentIndex + step;
        if (movable && row !== null && to >= 0 && to < count)
            moved(currentIndex, to);
    }

    /// A row is carried to `y` of the list.
    function carry(y: real): void {
        dropGap = Math.max(0, Math.min(count, Math.round((y + contentY) / rowHeight)));
        view.positionViewAtIndex(Math.min(dropGap, count - 1), ListView.Contain);
    }

    /// Lets the row `from` go where it is.
    function drop(from: int): void {
        const to = dropGap > from ? dropGap - 1 : dropGap;
        const carried = dropGap >= 0;
        dropGap = -1;
        if (carried && to !== from)
            moved(from, to);
    }

    title: qsTr("Layers")
    model: layers
    ownKeys: [Qt.Key_F2, Qt.Key_Return, Qt.Key_Enter, Qt.Key_Delete, Qt.Key_Insert, Qt.Key_Left, Qt.Key_Right,
        Qt.Key_Up | Qt.AltModifier, Qt.Key_Down | Qt.AltModifier, ...(dropGap >= 0 ? [Qt.Key_Escape] : [])]
    onCurrentItemChanged: renaming = false
    onRenamingChanged: if (!renaming && activeFocus) view.forceActiveFocus(Qt.OtherFocusReason)
    onKeyPressed: event => {
        event.accepted = ownKeys.includes(codeOf(event));
        if (!event.accepted)
            return;
        switch (codeOf(event)) {
        case Qt.Key_Delete:
            return removeAsked();
        case Qt.Key_Insert:
            return insertAsked();
        case Qt.Key_Left:
            return opacityAsked(-5);
        case Qt.Key_Right:
            return opacityAsked(5);
        case Qt.Key_Up | Qt.AltModifier:
            return shift(-1);
        case Qt.Key_Down | Qt.AltModifier:
            return shift(1);
        case Qt.Key_Escape:
            dropGap = -1;
            return;
        default:
            return rename();
        }
    }

    delegate: LayerItem {}

    Rectangle {
        objectName: "dropLine"
        visible: list.dropGap >= 0
        x: 4
        y: 1 + list.dropGap * list.rowHeight - list.contentY
        z: 1
        width: parent.width - 8
        height: 2
        color: Theme.accent
    }

    component LayerItem: Rectangle {
        id: layer

        required property int number
        required property string name
        required property string kind
        required property int percent
        required property int index
        readonly property bool current: ListView.isCurrentItem

        objectName: "layer:" + name
        width: list.view.width
        height: list.rowHeight
        radius: Theme.radius
        color: current ? Theme.accentGround : hover.hovered ? Theme.hover : "transparent"

        Accessible.role: Accessible.ListItem
        Accessible.name: name
        Accessible.description: qsTr("Row %1, %2, %3 %").arg(number).arg(kind).arg(percent)
        Accessible.selectable: true
        Accessible.selected: current
        Accessible.onPressAction: list.currentIndex = index

        HoverHandler {
            id: hover
        }
        TapHandler {
            enabled: !field.active
            onTapped: list.take(layer.index)
            onDoubleTapped: list.rename()
        }
        MouseArea {
            objectName: "handle:" + layer.name
            width: 34
            height: parent.height
            visible: list.movable
            preventStealing: true
            cursorShape: pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor
            onPressed: list.take(layer.index)
            onPositionChanged: mouse => list.carry(layer.y - list.contentY + mouse.y)
            onReleased: list.drop(layer.index)
            onCanceled: list.dropGap = -1

            Grid {
                anchors.centerIn: parent
                columns: 2
                spacing: 3
                opacity: layer.current ? 1 : 0.45

                Repeater {
                    model: 6

                    Rectangle {
                        width: 3
                        height: 3
                        radius: 1.5
                        color: Theme.softInk
                    }
                }
            }
        }
        Text {
            id: numberText

            anchors { left: parent.left; leftMargin: 34; verticalCenter: parent.verticalCenter }
            width: 26
            text: layer.number
            color: Theme.softInk
            font { pixelSize: Theme.text; features: { "tnum": 1 } }
            horizontalAlignment: Text.AlignRight
        }
        Text {
            anchors { left: numberText.right; leftMargin: 16; right: kindText.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
            visible: !field.active
            text: layer.name
            textFormat: Text.PlainText
            color: Theme.ink
            font.pixelSize: Theme.text
            elide: Text.ElideRight
        }
        Loader {
            id: field

            anchors { left: numberText.right; leftMargin: 9; right: kindText.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
            active: layer.current && list.renaming
            onActiveChanged: if (!active) focus = false
            sourceComponent: RowNameField {
                name: layer.name
                onTaken: name => {
                    list.renaming = false;
                    list.renamed(name);
                }
                onCanceled: list.renaming = false
            }
        }
        Text {
            id: kindText

            anchors { right: percentText.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
            width: 100
            text: layer.kind
            textFormat: Text.PlainText
            color: Theme.softInk
            font.pixelSize: Theme.text
            elide: Text.ElideRight
        }
        Text {
            id: percentText

            anchors { right: parent.right; rightMargin: 18; verticalCenter: parent.verticalCenter }
            width: 48
            text: layer.percent + " %"
            color: Theme.ink
            font { pixelSize: Theme.text; features: { "tnum": 1 } }
            horizontalAlignment: Text.AlignRight
        }
    }
}
