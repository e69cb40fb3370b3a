import QtQuick
import K7.Arbor.Gallery

// A scene that OffscreenQuickView draws without a window, shown as the pictures that it gives.
PageSheet {
    id: page

    readonly property list<size> sizes: [Qt.size(480, 300), Qt.size(240, 150), Qt.size(96, 60)]

    title: qsTr("A scene without a window")
    lead: qsTr("The scene below never gets a window. It is drawn into memory, a few milliseconds after it changes, and each frame is taken as a picture.")

    ChoiceRow {
        choices: page.sizes.map(size => size.width + " × " + size.height)
        current: page.sizes.findIndex(size => size.width === picture.sceneSize.width)
        onChosen: index => picture.sceneSize = page.sizes[index]
    }
    Flow {
        id: parts

        width: parent.width
        spacing: 32

        Rectangle {
            id: frame

            width: 512
            height: 332
            radius: Theme.radius
            color: Theme.desk
            border { color: Theme.line; width: 1 }

            OffscreenPicture {
                id: picture

                objectName: "offscreenPicture"
                anchors { fill: parent; margins: 16 }
                source: Qt.resolvedUrl("../LiveScene.qml")

                Accessible.role: Accessible.Graphic
                Accessible.name: qsTr("The scene")
            }
            Text {
                anchors { fill: parent; margins: 24 }
                text: picture.problem
                textFormat: Text.PlainText
                color: Theme.softInk
                font.pixelSize: Theme.text
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                wrapMode: Text.Wrap
            }
        }
        Column {
            width: parts.width > 860 ? parts.width - frame.width - parts.spacing : frame.width

            FactRow {
                name: qsTr("Source")
                value: picture.source
            }
            FactRow {
                name: qsTr("Size")
                value: picture.sceneSize.width + " × " + picture.sceneSize.height
            }
            FactRow {
                name: qsTr("Frames")
                value: picture.frames
            }
        }
    }
}
