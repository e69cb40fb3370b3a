import QtQuick

// The zoom of the picture on a toolbar: a slider, each step as far as the one before; upright, the percentage alone.
Item {
    id: field

    property bool vertical: false

    readonly property real smallest: Math.log2(5)
    readonly property real largest: Math.log2(800)

    implicitWidth: vertical ? 34 : 170
    implicitHeight: 34

    ValueSlider {
        objectName: "zoomSlider"
        anchors { fill: parent; leftMargin: 6; rightMargin: 6 }
        visible: !field.vertical
        titleWidth: 0
        title: ""
        readout: Math.round(Session.view.scale) + " %"
        readoutWidth: 50
        minimumValue: field.smallest
        maximumValue: field.largest
        value: Math.log2(Math.max(1, Session.view.scale))
        Accessible.name: qsTr("Zoom")
        onMoved: wanted => Session.zoomTo(Math.round(Math.pow(2, wanted)))
    }
    Text {
        anchors.centerIn: parent
        visible: field.vertical
        text: Math.round(Session.view.scale) + "%"
        textFormat: Text.PlainText
        color: Theme.ink
        font { pixelSize: Theme.smallText; features: { "tnum": 1 } }
    }
}
