pragma ComponentBehavior: Bound

import QtQuick
import K7.Arbor.Gallery

// Scales the images of a folder into another one, and lists what failed.
PageSheet {
    id: page

    readonly property BatchResize batch: Session.batchResize

    function start(): void {
        batch.start(inField.text, outField.text, widthField.text);
    }

    title: qsTr("Batch resize")
    lead: qsTr("Scales all images of a folder to a width and puts them into another folder. Images that are no wider stay as they are. Cancelling leaves only whole images behind.")

    LineField {
        id: inField

        objectName: "inField"
        width: parent.width
        title: qsTr("From the folder")
        focus: true
        onAccepted: page.start()
    }
    LineField {
        id: outField

        objectName: "outField"
        width: parent.width
        title: qsTr("Into the folder")
        onAccepted: page.start()
    }
    LineField {
        id: widthField

        objectName: "widthField"
        width: 160
        title: qsTr("Width in pixels")
        text: "1600"
        onAccepted: page.start()
    }
    PushButton {
        objectName: "startButton"
        text: qsTr("Start")
        enabled: !page.batch.running
        onPushed: page.start()
    }
    Column {
        width: parent.width
        spacing: 8
        visible: page.batch.outcome !== ""

        Text {
            objectName: "outcome"
            width: parent.width
            text: page.batch.outcome
            textFormat: Text.PlainText
            color: page.batch.failed ? Theme.danger : Theme.ink
            font { pixelSize: Theme.text; weight: Font.DemiBold }
            wrapMode: Text.Wrap

            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        ListView {
            objectName: "failures"
            width: parent.width
            height: Math.min(contentHeight, 290)
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            model: page.batch.failedNames

            delegate: FactRow {
                required property string modelData
                required property int index

                width: ListView.view.width
                nameWidth: 260
                name: modelData
                value: page.batch.reasons[index] ?? ""
            }
        }
    }
}
