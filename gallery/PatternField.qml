import QtQuick

// A field that takes what a pattern allows, with the pattern below it.
Column {
    id: field

    property string title
    property string pattern
    property alias text: line.text

    spacing: 4

    LineField {
        id: line

        objectName: field.objectName + "Line"
        width: parent.width
        title: field.title
        validator: RegularExpressionValidator {
            regularExpression: new RegExp(field.pattern)
        }
    }
    Text {
        width: parent.width
        text: field.pattern
        textFormat: Text.PlainText
        color: Theme.softInk
        font { family: "monospace"; pixelSize: Theme.smallText }
        wrapMode: Text.WrapAnywhere
    }
}
