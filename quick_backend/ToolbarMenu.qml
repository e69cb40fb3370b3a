// What opens by a right click on a bar of a ToolbarSetup, or by the key for context menus: hides the button, removes
// the separator, shows what is hidden, and opens the dialog. Lay it over the window; it draws nothing by itself.
//
//     ToolbarMenu {
//         anchors.fill: parent
//         setup: theSetup // a ToolbarSetup
//     }
pragma ComponentBehavior: Bound

import QtQuick
import QtQml.Models

Item {
    id: root

    property ToolbarSetup setup: null

    /// Whether it is open.
    readonly property alias opened: popup.visible

    /// Opens for a bar and one of its controls, or none, at a place of the window.
    function openAt(toolbar: QuickToolbar, control: QuickControl, x: real, y: real): void {
        popup.close();
        popup.toolbar = toolbar;
        popup.control = control?.kind === QuickControl.Picker ? null : control;
        const place = mapFromItem(null, x, y);
        popup.popup(place.x, place.y);
    }

    objectName: "toolbarMenu"

    Instantiator {
        model: root.setup ? root.setup.toolbars : []

        delegate: Connections {
            required property QuickToolbar modelData

            target: modelData

            function onContextMenuRequested(control: QuickControl, x: real, y: real): void {
                root.openAt(modelData, control, x, y);
            }
        }
    }

    WindowGuard {
        id: guard

        onWindowLeft: popup.close()
    }

    ToolbarMenuPopup {
        id: popup

        property QuickToolbar toolbar: null
        property QuickControl control: null

        readonly property bool isSeparator: control?.kind === QuickControl.Separator
        readonly property string label: control ? control.text || control.tooltip || control.name : ""

        onOpened: guard.watch(root)
        onClosed: guard.unwatch(root)

        ToolbarMenuItem {
            objectName: "toolbarMenuHide"
            text: qsTr("Hide “%1”").arg(popup.label)
            visible: popup.control !== null && !popup.isSeparator
            onTriggered: root.setup.setShown(popup.control, false)
        }

        ToolbarMenuItem {
            objectName: "toolbarMenuRemove"
            text: qsTr("Remove separator")
            visible: popup.isSeparator
            onTriggered: root.setup.remove(popup.control)
        }

        ToolbarMenuItem {
            objectName: "toolbarMenuShowAll"
            text: qsTr("Show hidden buttons")
            enabled: popup.visible && root.setup.hidesAny(popup.toolbar)
            onTriggered: root.setup.showAll(popup.toolbar)
        }

        ToolbarMenuItem {
            objectName: "toolbarMenuCustomise"
            text: qsTr("Customise...")
            enabled: !(root.setup?.active ?? false)
            onTriggered: root.setup.beginAt(popup.toolbar, popup.control)
        }
    }
}
