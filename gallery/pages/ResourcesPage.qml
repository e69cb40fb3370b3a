pragma ComponentBehavior: Bound

import QtQuick
import K7.Arbor.Gallery

// Where addresses of QML files lead: into the compiled resources, or to the files of the source tree.
PageSheet {
    id: page

    function placeName(place: int): string {
        switch (place) {
        case AddressLookup.Compiled:
            return qsTr("compiled in");
        case AddressLookup.OnDisk:
            return qsTr("file on disk");
        default:
            return qsTr("nothing there");
        }
    }

    title: qsTr("Where addresses lead")
    lead: lookup.developing
        ? qsTr("The developer's mode is on: the gallery's QML files are read from the source tree, and a page shows again as soon as one of them is saved.")
        : qsTr("The developer's mode is off: QML files are compiled in. Start the gallery with ORV_DEVELOP_RESOURCES set, and they are read from the source tree instead.")

    AddressLookup {
        id: lookup

        address: field.text
    }
    Column {
        width: parent.width
        spacing: 8

        Text {
            text: qsTr("Address")
            color: Theme.softInk
            font { pixelSize: Theme.smallText; weight: Font.DemiBold; capitalization: Font.AllUppercase; letterSpacing: 0.6 }
        }
        Rectangle {
            width: parent.width
            height: 36
            radius: Theme.radius
            color: Theme.field
            border { color: field.activeFocus ? Theme.accent : Theme.edge; width: field.activeFocus ? 2 : 1 }

            TextInput {
                id: field

                objectName: "addressField"
                anchors { fill: parent; leftMargin: 12; rightMargin: 12 }
                text: "qrc:///qt/qml/K7/Arbor/Gallery/pages/ResourcesPage.qml"
                focus: true
                activeFocusOnTab: true
                selectByMouse: true
                clip: true
                verticalAlignment: TextInput.AlignVCenter
                color: Theme.ink
                selectionColor: Theme.accent
                selectedTextColor: Theme.accentInk
                font.pixelSize: Theme.text

                Accessible.role: Accessible.EditableText
                Accessible.name: qsTr("Address")
            }
        }
        Row {
            spacing: 10

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: place.implicitWidth + 16
                height: 22
                radius: Theme.radius
                color: lookup.place === AddressLookup.Nothing ? Theme.hover : Theme.accentGround

                Text {
                    id: place

                    objectName: "placeName"
                    anchors.centerIn: parent
                    text: page.placeName(lookup.place)
                    color: lookup.place === AddressLookup.Nothing ? Theme.danger : Theme.accent
                    font { pixelSize: Theme.smallText + 1; weight: Font.DemiBold }
                }
            }
            Text {
                objectName: "lookupResult"
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, field.width - place.width - 20)
                text: lookup.result
                textFormat: Text.PlainText
                color: Theme.ink
                font.pixelSize: Theme.text
                elide: Text.ElideMiddle
            }
        }
    }
    Column {
        width: parent.width

        Text {
            bottomPadding: 4
            text: qsTr("The pages of this program")
            color: Theme.softInk
            font { pixelSize: Theme.smallText; weight: Font.DemiBold; capitalization: Font.AllUppercase; letterSpacing: 0.6 }
        }
        Repeater {
            model: Session.pages

            FactRow {
                id: row

                required property string modelData

                name: Session.titleOf(modelData)
                value: own.result

                AddressLookup {
                    id: own

                    address: "qrc:///qt/qml/K7/Arbor/Gallery/pages/" + row.modelData + ".qml"
                }
            }
        }
    }
}
