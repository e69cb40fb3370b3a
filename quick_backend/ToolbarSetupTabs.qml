// Chooses the bar in a ToolbarSetupPanel: one tab a bar. The arrow keys walk over them.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.Control {
    id: tabs

    property list<string> titles
    property int current: -1

    signal picked(index: int)

    function step(direction: int): void {
        const next = current + (mirrored ? -direction : direction);
        if (next >= 0 && next < titles.length)
            picked(next);
    }

    objectName: "setupTabs"
    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight
    focusPolicy: Qt.TabFocus
    activeFocusOnTab: true

    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Toolbar")
    Accessible.focusable: true

    Keys.onLeftPressed: step(-1)
    Keys.onRightPressed: step(1)

    contentItem: Row {
        id: row

        LayoutMirroring.enabled: tabs.mirrored
        spacing: 2

        Repeater {
            model: tabs.titles

            delegate: T.AbstractButton {
                id: tab

                required property int index
                required property string modelData

                readonly property bool isCurrent: index === tabs.current

                objectName: "setupTab" + index
                implicitWidth: label.implicitWidth + 24
                implicitHeight: Math.ceil(label.implicitHeight) + 14
                text: modelData
                font: tabs.font
                palette: tabs.palette
                focusPolicy: Qt.NoFocus
                hoverEnabled: true
                onClicked: tabs.picked(index)

                Accessible.role: Accessible.PageTab
                Accessible.selected: isCurrent

                background: Rectangle {
                    radius: 4
                    color: Qt.alpha(tab.palette.windowText, tab.isCurrent ? 0.12 : tab.hovered ? 0.06 : 0)
                    border.width: tabs.visualFocus && tab.isCurrent ? 2 : 0
                    border.color: tab.palette.highlight

                    Rectangle {
                        anchors.bottom: parent.bottom
                        anchors.horizontalCenter: parent.horizontalCenter
                        visible: tab.isCurrent
                        width: parent.width - 16
                        height: 2
                        radius: 1
                        color: tab.palette.highlight
                    }
                }

                contentItem: Text {
                    id: label

                    text: tab.text
                    textFormat: Text.PlainText
                    font: tab.font
                    color: tab.palette.windowText
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }
            }
        }
    }
}
