import QtQuick

// A titled part of the side panel.
Column {
    id: section

    property string title
    default property alias content: body.data

    width: parent ? parent.width : 0
    spacing: Theme.space

    Text {
        width: parent.width
        horizontalAlignment: Text.AlignLeft
        text: section.title
        color: Theme.softInk
        font { pixelSize: Theme.smallText; weight: Font.DemiBold; capitalization: Font.AllUppercase; letterSpacing: 0.6 }
    }
    Column {
        id: body

        width: parent.width
        spacing: Theme.space
    }
    Item {
        width: 1
        height: Theme.space
    }
}
