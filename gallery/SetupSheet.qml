import QtQuick
import K7.Arbor.QuickBackend

// What the toolbars are customised with, over the page: it takes the keyboard and gives it back.
FocusScope {
    id: sheet

    required property ToolbarSetup setup
    required property ToolbarDragLayer dragLayer

    property Item before: null // who had the keyboard

    visible: setup.active
    onVisibleChanged: {
        if (visible) {
            before = Window.activeFocusItem;
            panel.forceActiveFocus(Qt.OtherFocusReason);
        } else {
            before?.forceActiveFocus(Qt.OtherFocusReason);
            before = null;
        }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.desk
        opacity: 0.7
    }
    MouseArea {
        anchors.fill: parent // the page below is not for now
        hoverEnabled: true
        onWheel: wheel => wheel.accepted = true
    }
    Rectangle {
        anchors { fill: panel; margins: -1 }
        radius: Theme.radius
        color: Theme.line
    }
    ToolbarSetupPanel {
        id: panel

        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width - 24)
        height: Math.min(Math.max(implicitHeight, 520), parent.height - 16)
        setup: sheet.setup
        dragLayer: sheet.dragLayer
        imageSource: "image://arbor/"
    }
}
