import QtQuick
import K7.Arbor.QuickBackend

// What the toolbars are customised with, over the page.
Item {
    id: sheet

    required property ToolbarSetup setup
    required property ToolbarDragLayer dragLayer

    visible: setup.active

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
