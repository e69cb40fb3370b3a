// A list of a ToolbarSetupPanel: frame, scroll bar and a text for when it is empty. The current row has the keyboard.
import QtQuick
import QtQuick.Templates as T

T.Control {
    id: box

    property alias model: list.model
    property alias delegate: list.delegate
    property alias currentIndex: list.currentIndex
    property alias emptyText: empty.text
    readonly property alias view: list

    // The scroll bar stands beside the rows, at the end of their lines.
    readonly property real edge: 4
    readonly property real besideRows: edge + (scrollBar.visible ? scrollBar.width : 0)

    /// A key, before the list itself walks by it.
    signal keyPressed(event: KeyEvent)

    focusPolicy: Qt.NoFocus
    padding: edge
    leftPadding: mirrored ? besideRows : edge
    rightPadding: mirrored ? edge : besideRows

    Accessible.role: Accessible.List

    background: Rectangle {
        radius: 6
        color: box.palette.base
        border.color: list.activeFocus ? box.palette.highlight : Qt.alpha(box.palette.text, 0.22)
        border.width: list.activeFocus ? 2 : 1
    }

    contentItem: ListView {
        id: list

        activeFocusOnTab: true
        cacheBuffer: 0 // rows that are made ahead warn when the model shrinks meanwhile
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        keyNavigationEnabled: true
        Keys.onPressed: event => {
            event.accepted = false;
            box.keyPressed(event);
        }

        moveDisplaced: Transition {
            NumberAnimation {
                properties: "y"
                duration: 90
            }
        }

        T.ScrollBar.vertical: T.ScrollBar {
            id: scrollBar

            objectName: "setupScrollBar"
            parent: box
            x: box.mirrored ? box.edge : box.width - width - box.edge
            y: box.edge
            height: box.availableHeight
            implicitWidth: 8
            padding: 1
            minimumSize: 0.08
            visible: size < 1

            contentItem: Rectangle {
                radius: width / 2
                color: Qt.alpha(box.palette.text, scrollBar.pressed ? 0.5 : 0.28)
            }
        }

        Text {
            id: empty

            parent: list
            anchors.centerIn: parent
            width: Math.min(implicitWidth, list.width - 16)
            visible: list.count === 0
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            font: box.font
            color: box.palette.text
            opacity: 0.6
        }
    }
}
