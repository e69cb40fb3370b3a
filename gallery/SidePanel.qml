pragma ComponentBehavior: Bound

import QtQuick

// The panel on the right: histogram, colours, brush and layers of the picture.
Rectangle {
    id: panel

    readonly property Document document: Session.document
    readonly property ViewState view: Session.view
    readonly property string layerModeLabel: Session.label("LayerBlend(" + document.layerMode + ")")
        || document.layerMode

    color: Theme.panel
    implicitWidth: 224

    Rectangle {
        anchors { top: parent.top; bottom: parent.bottom; left: parent.left }
        width: 1
        color: Theme.line
    }

    Column {
        anchors { fill: parent; margins: 14; leftMargin: 15 }
        spacing: 4

        PanelSection {
            title: qsTr("Histogram")
            visible: panel.view.histogram

            Rectangle {
                width: parent.width
                height: 84
                radius: Theme.radius
                color: Theme.field
                border.color: Theme.line

                Row {
                    id: bars

                    anchors { fill: parent; margins: 3 }

                    Repeater {
                        model: panel.document.histogram

                        Item {
                            id: bar

                            required property real modelData

                            width: bars.width / 64
                            height: bars.height

                            Rectangle {
                                anchors.bottom: bar.bottom
                                width: bar.width
                                height: Math.sqrt(bar.modelData) * bar.height
                                color: Theme.softInk
                                opacity: 0.75
                            }
                        }
                    }
                }
            }
        }

        PanelSection {
            title: qsTr("Colours")
            visible: panel.view.colorPanel

            Item {
                width: parent.width
                height: 52

                Rectangle {
                    anchors { left: parent.left; leftMargin: 18 }
                    y: 16
                    width: 36
                    height: 36
                    radius: Theme.radius
                    color: panel.view.background
                    border { color: Theme.edge; width: 1 }
                }
                Rectangle {
                    anchors.left: parent.left
                    width: 36
                    height: 36
                    radius: Theme.radius
                    color: panel.view.foreground
                    border { color: Theme.edge; width: 1 }
                }
                Text {
                    anchors { left: parent.left; leftMargin: 70; verticalCenter: parent.verticalCenter }
                    text: panel.view.foreground.toString().toUpperCase()
                    color: Theme.ink
                    font.pixelSize: Theme.text
                }
            }
            Grid {
                columns: 6
                spacing: 6

                Repeater {
                    model: Session.swatches()

                    Rectangle {
                        id: swatch

                        required property string modelData

                        width: 27
                        height: 22
                        radius: 3
                        color: modelData
                        border { color: Theme.edge; width: 1 }

                        Accessible.role: Accessible.Button
                        Accessible.name: modelData

                        TapHandler {
                            onTapped: Session.choose("ColorForeground(" + swatch.modelData + ")")
                        }
                    }
                }
            }
        }

        PanelSection {
            title: qsTr("Brush")

            Item {
                width: parent.width
                height: 36

                Rectangle {
                    anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                    width: 132
                    height: Math.min(panel.view.brushWidth + 2, parent.height)
                    radius: height / 2
                    color: Theme.edge

                    Rectangle {
                        anchors { fill: parent; margins: 1 }
                        radius: height / 2
                        color: panel.view.foreground
                    }
                }
                Text {
                    anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                    text: panel.view.brushWidth + " px"
                    color: Theme.ink
                    font.pixelSize: Theme.text
                }
            }
        }

        PanelSection {
            title: qsTr("Layers")
            visible: panel.view.layerPanel

            LayerRow {
                objectName: "lightLayer"
                name: qsTr("Light")
                detail: panel.layerModeLabel + ", " + panel.document.layerOpacity + " %"
                shown: panel.document.layerVisible
                current: true
            }
            LayerRow {
                name: qsTr("Picture")
                detail: panel.document.size.width + " × " + panel.document.size.height
                shown: true
                current: false
            }
        }
    }
}
