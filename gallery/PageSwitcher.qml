pragma ComponentBehavior: Bound

import QtQuick

// The slim row of pages. Tab reaches it; Left, Right, Home and End change the page, Enter and Down lead into it.
Rectangle {
    id: switcher

    readonly property list<int> ownKeys: [Qt.Key_Left, Qt.Key_Right, Qt.Key_Home, Qt.Key_End, Qt.Key_Down,
        Qt.Key_Return, Qt.Key_Enter]

    signal entered

    function show(index: int): void {
        Session.page = Session.pages[Math.max(0, Math.min(index, Session.pages.length - 1))];
    }

    objectName: "pageSwitcher"
    color: Theme.window
    implicitHeight: 34
    activeFocusOnTab: true

    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Pages")

    // The menu has some of these keys too.
    Keys.onShortcutOverride: event => event.accepted = ownKeys.includes(event.key) && !event.modifiers
    Keys.onLeftPressed: switcher.show(tabs.currentIndex - 1)
    Keys.onRightPressed: switcher.show(tabs.currentIndex + 1)
    Keys.onDownPressed: switcher.entered()
    Keys.onReturnPressed: switcher.entered()
    Keys.onEnterPressed: switcher.entered()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home)
            switcher.show(0);
        else if (event.key === Qt.Key_End)
            switcher.show(Session.pages.length - 1);
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.line
    }
    ListView {
        id: tabs

        anchors { fill: parent; leftMargin: 6; rightMargin: 6 }
        orientation: ListView.Horizontal
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentWidth > width
        clip: true
        keyNavigationEnabled: false
        highlightMoveDuration: 0
        model: Session.pages
        currentIndex: Session.pages.indexOf(Session.page)

        delegate: Item {
            id: tab

            required property string modelData
            required property int index
            readonly property bool current: Session.page === modelData

            objectName: "tab" + modelData
            width: label.implicitWidth + 24
            height: tabs.height

            Accessible.role: Accessible.PageTab
            Accessible.name: label.text
            Accessible.focusable: true
            Accessible.focused: current && switcher.activeFocus
            Accessible.selectable: true
            Accessible.selected: current
            Accessible.onPressAction: switcher.show(index)

            Rectangle {
                anchors { fill: parent; margins: 4; bottomMargin: 5 }
                radius: Theme.radius
                color: hover.hovered && !tab.current ? Theme.hover : "transparent"
                border { color: Theme.accent; width: tab.current && switcher.activeFocus ? 1.5 : 0 }
            }
            Text {
                id: label

                anchors { centerIn: parent; verticalCenterOffset: -1 }
                text: Session.titleOf(tab.modelData)
                color: tab.current ? Theme.ink : Theme.softInk
                font { pixelSize: Theme.text; weight: tab.current ? Font.DemiBold : Font.Normal }
            }
            Rectangle {
                anchors { bottom: parent.bottom; horizontalCenter: parent.horizontalCenter }
                visible: tab.current
                width: label.implicitWidth
                height: 2
                color: Theme.accent
            }
            HoverHandler {
                id: hover
            }
            TapHandler {
                onTapped: switcher.show(tab.index)
            }
        }
    }
}
