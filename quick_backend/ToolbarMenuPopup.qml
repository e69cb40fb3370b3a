// The popup of a ToolbarMenu.
import QtQuick
import QtQuick.Templates as T

T.Menu {
    id: menu

    property real widest: 0

    objectName: "toolbarMenuPopup"
    implicitWidth: Math.max(160, widest + leftPadding + rightPadding)
    implicitHeight: list.contentHeight + topPadding + bottomPadding
    margins: 4
    onAboutToShow: {
        widest = 0;
        for (let i = 0; i < count; ++i)
            widest = Math.max(widest, itemAt(i).implicitWidth);
    }
    padding: 4

    background: MenuPanel {
        color: menu.palette.base
        ink: menu.palette.text
    }

    contentItem: ListView {
        id: list

        model: menu.contentModel
        currentIndex: menu.currentIndex
        interactive: false
    }
}
