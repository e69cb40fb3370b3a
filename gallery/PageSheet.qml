import QtQuick

// The sheet that a page of text and controls lies on: a title, a sentence on what the page shows, and below them
// the page's own parts, one under the other. What does not fit is scrolled.
FocusScope {
    id: sheet

    property string title
    property string lead
    default property alias content: body.data

    /// The height that the page's own parts have without being scrolled.
    readonly property real room: height - 2 * column.y - body.y

    implicitWidth: 1180
    implicitHeight: 664

    Rectangle {
        anchors.fill: parent
        color: Theme.panel
    }
    Flickable {
        anchors.fill: parent
        contentHeight: column.height + 2 * column.y
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: column

            x: 40
            y: 32
            width: Math.min(sheet.width - 2 * x, 900)
            spacing: 24

            Column {
                width: parent.width
                spacing: 6

                Text {
                    width: parent.width
                    text: sheet.title
                    color: Theme.ink
                    font { pixelSize: Theme.title; weight: Font.DemiBold }
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                Text {
                    width: Math.min(parent.width, 680)
                    text: sheet.lead
                    textFormat: Text.PlainText
                    color: Theme.softInk
                    font.pixelSize: Theme.text
                    lineHeight: 1.25
                    wrapMode: Text.Wrap
                }
            }
            Column {
                id: body

                width: parent.width
                spacing: 24
            }
        }
    }
}
