import QtQuick

// A key, as menus print it, on a small plate.
Rectangle {
    id: chip

    property string text

    implicitWidth: label.implicitWidth + 14
    implicitHeight: 20
    radius: Theme.radius
    color: Theme.accentGround

    Text {
        id: label

        anchors.centerIn: parent
        text: chip.text
        textFormat: Text.PlainText
        color: Theme.accent
        font { pixelSize: Theme.smallText + 1; weight: Font.DemiBold }
    }
}
