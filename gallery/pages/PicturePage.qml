import QtQuick
import QtQuick.Layouts
import K7.Arbor.Gallery

// The picture with its side panel: what most commands of the menu work on.
FocusScope {
    implicitWidth: 1180
    implicitHeight: 664

    RowLayout {
        anchors.fill: parent
        spacing: 0

        PictureArea {
            id: canvas

            Layout.fillWidth: true
            Layout.fillHeight: true
            document: Session.document
            view: Session.view
            desk: Theme.desk
            rulerColor: Theme.window
            rulerInk: Theme.softInk
            clip: true
            focus: true

            Accessible.role: Accessible.Graphic
            Accessible.name: qsTr("Picture")

            TapHandler {
                acceptedButtons: Qt.RightButton
                onTapped: point => {
                    const place = canvas.mapToGlobal(point.position);
                    Session.openContextMenu(Math.round(place.x), Math.round(place.y));
                }
            }
        }
        SidePanel {
            Layout.fillHeight: true
            visible: Session.view.sidePanel
        }
    }
}
