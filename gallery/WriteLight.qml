import QtQuick

// A light that tells whether files can be written into a folder, with a sentence that says the same.
Row {
    id: light

    required property WriteCheck check

    readonly property color glow: check.state === WriteCheck.Closed ? Theme.red : Theme.green

    spacing: 8

    Accessible.role: Accessible.Indicator
    Accessible.name: sentence.text

    Rectangle {
        objectName: "writeLamp"
        anchors.verticalCenter: parent.verticalCenter
        width: 12
        height: 12
        radius: 6
        // Made, but not yet there: a ring.
        color: light.check.state === WriteCheck.Makeable ? "transparent" : light.glow
        border { color: light.glow; width: 2 }
    }
    Text {
        id: sentence

        objectName: "writeSentence"
        anchors.verticalCenter: parent.verticalCenter
        text: switch (light.check.state) {
            case WriteCheck.Open: return qsTr("Files can be written here.");
            case WriteCheck.Makeable: return qsTr("There is no such folder, but it can be made.");
            default: return qsTr("Nothing can be written here.");
        }
        textFormat: Text.PlainText
        color: Theme.ink
        font.pixelSize: Theme.text
    }
}
