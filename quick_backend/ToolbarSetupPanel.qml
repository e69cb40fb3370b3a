// The dialog in which the bars of a ToolbarSetup are customised, as a panel for any window. It belongs to the session:
// show it while the setup is active.
//
//     ToolbarSetupPanel {
//         setup: theSetup                 // a ToolbarSetup
//         visible: theSetup.active        // with panels in several windows: && theSetup.window === Window.window
//         imageSource: "image://arbor/"   // optional
//         dragLayer: theDragLayer         // optional: commands are dragged onto the bars
//     }
//
// It takes the keyboard when it shows. When it goes, the keyboard is back at who had it, or at the setup's opener when
// that is another part of the application; an opener in another window has its window in front again.
//
// By keyboard: in the list of buttons Space shows and hides, Alt with an arrow key moves, Delete removes, Insert adds a
// separator; in the list of commands Enter adds. Escape cancels a drag, or else the session.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.Control {
    id: panel

    required property ToolbarSetup setup

    /// Where images come from, as that of a MenuBar.
    property string imageSource: ""

    property ToolbarDragLayer dragLayer: null

    /// Whether the lists stand one below the other.
    readonly property bool stacked: width < 560

    // Comes late: a menu in which the session was begun has closed by then and given the keyboard back.
    function takeKeyboard(): void {
        if (!visible)
            return;
        const opener = setup.opener;
        const had = (opener ?? panel).Window.activeFocusItem;
        if (!former.item)
            former.item = opener && !former.isWithin(had, opener) ? opener : had;
        if (opener)
            show(Window.window, opener.Window.window);
        forceActiveFocus(Qt.OtherFocusReason);
    }

    function giveKeyboardBack(): void {
        if (visible || !former.item)
            return;
        if (Window.active)
            show(former.item.Window.window, Window.window);
        former.giveBack(panel);
    }

    // Brings `window`, of QML or C++, before the one that is used now.
    function show(window: var, present: var): void {
        if (window && window !== present)
            window.requestActivate();
    }

    objectName: "toolbarSetupPanel"
    padding: 16
    implicitWidth: 760
    implicitHeight: 480

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Accessible.role: Accessible.Dialog
    Accessible.name: title.text

    Keys.onEscapePressed: {
        if (buttons.dragging)
            buttons.putBack();
        else if (dragLayer?.drag.lifted)
            dragLayer.drag.cancel();
        else
            setup.cancel();
    }

    onVisibleChanged: Qt.callLater(visible ? takeKeyboard : giveKeyboardBack)

    background: Rectangle {
        color: panel.palette.window
    }

    contentItem: Item {
        id: content

        readonly property real gap: 16
        readonly property real half: panel.stacked ? width : (width - gap) / 2
        readonly property real listTop: tabs.y + tabs.height + 10
        readonly property real listBottom: footer.y - 14
        readonly property real columnHeight: panel.stacked ? (listBottom - listTop - gap) / 2 : listBottom - listTop

        Text {
            id: title

            objectName: "setupTitle"
            anchors.left: parent.left
            text: qsTr("Customise toolbars")
            textFormat: Text.PlainText
            color: panel.palette.windowText
            font {
                family: panel.font.family
                pixelSize: metrics.font.pixelSize + 3
                weight: Font.DemiBold
            }
            Accessible.ignored: true
        }

        ToolbarSetupTabs {
            id: tabs

            anchors.left: parent.left
            anchors.top: title.bottom
            anchors.topMargin: 10
            visible: titles.length > 1
            height: visible ? implicitHeight : 0
            titles: panel.setup?.titles ?? []
            current: panel.setup?.current ?? -1
            onPicked: index => panel.setup.current = index
        }

        ToolbarSetupButtons {
            id: buttons

            anchors.left: parent.left
            y: content.listTop
            width: content.half
            height: content.columnHeight
            setup: panel.setup
            imageSource: panel.imageSource
            font: panel.font
            palette: panel.palette
        }

        ToolbarSetupCommands {
            anchors.right: parent.right
            y: panel.stacked ? content.listTop + content.columnHeight + content.gap : content.listTop
            width: content.half
            height: content.columnHeight
            visible: panel.setup?.commandsOffered ?? false
            setup: panel.setup
            imageSource: panel.imageSource
            dragLayer: panel.dragLayer
            font: panel.font
            palette: panel.palette
        }

        Item {
            id: footer

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            height: done.height

            ProgressButton {
                objectName: "setupReset"
                anchors.left: parent.left
                text: qsTr("Reset")
                font: panel.font
                Accessible.description: qsTr("All toolbars as they were delivered")
                onClicked: panel.setup.reset()
            }

            ProgressButton {
                objectName: "setupCancel"
                anchors.right: done.left
                anchors.rightMargin: 8
                text: qsTr("Cancel")
                font: panel.font
                onClicked: panel.setup.cancel()
            }

            ProgressButton {
                id: done

                objectName: "setupDone"
                anchors.right: parent.right
                text: qsTr("Done")
                font: panel.font
                onClicked: panel.setup.accept()
            }
        }
    }

    FormerFocus {
        id: former
    }

    FontMetrics {
        id: metrics

        font: panel.font
    }
}
