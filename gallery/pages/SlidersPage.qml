pragma ComponentBehavior: Bound

import QtQuick
import K7.Arbor
import K7.Arbor.Gallery

// A slider whose scale gives small values more room, beside one that does not, and fields for numbers.
PageSheet {
    id: page

    readonly property int largest: 500
    readonly property list<real> middles: [0.5, 0.25, 0.1, 0.05]

    property real middle: 0.1
    property real share: 0.1 // the value, from 0 to 1
    readonly property real exponent: GuiSupport.exponentialSlider_calculateBaseFromMiddle(middle)
    readonly property real position: GuiSupport.exponentialSlider_valueToPos(share, exponent)
    readonly property string size: Math.round(share * largest)

    function decimals(number: real): string {
        return Number(number).toLocaleString(Qt.locale(), "f", 2);
    }

    function pixels(share: real): string {
        return qsTr("%1 px").arg(Math.round(share * largest));
    }

    function valueAt(position: real): real {
        return GuiSupport.exponentialSlider_posToValue(position, exponent);
    }

    // No bindings: they would write into a field while somebody types.
    onSizeChanged: if (!sizeField.activeFocus) sizeField.text = size
    onMiddleChanged: if (!middleField.activeFocus) middleField.text = decimals(middle)

    title: qsTr("Sliders")
    lead: qsTr("On an exponential scale small values get more room. Choose the value that stands in the middle: the slider keeps its value and moves to where that is now.")

    Row {
        width: parent.width
        spacing: 40

        Column {
            id: controls

            width: parent.width - curve.width - parent.spacing
            spacing: 16

            PanelSection {
                title: qsTr("Width of a brush")

                ValueSlider {
                    id: exponential

                    objectName: "exponentialSlider"
                    width: parent.width
                    title: qsTr("Exponential")
                    value: page.position
                    readout: page.pixels(page.share)
                    onMoved: value => page.share = page.valueAt(value)
                }
                Item {
                    id: marks

                    readonly property real begin: exponential.titleWidth + 10
                    readonly property real length: width - begin - exponential.readoutWidth - 10

                    width: parent.width
                    height: 18

                    Repeater {
                        model: [0, 0.25, 0.5, 0.75, 1]

                        Text {
                            required property real modelData

                            x: marks.begin + modelData * marks.length - width / 2
                            text: Math.round(page.valueAt(modelData) * page.largest)
                            color: modelData === 0.5 ? Theme.accent : Theme.softInk
                            font { pixelSize: Theme.smallText; weight: modelData === 0.5 ? Font.DemiBold : Font.Normal }
                        }
                    }
                }
                ValueSlider {
                    objectName: "evenSlider"
                    width: parent.width
                    title: qsTr("Even")
                    value: page.share
                    readout: page.pixels(page.share)
                    onMoved: value => page.share = value
                }
            }
            PanelSection {
                title: qsTr("Value in the middle")

                ChoiceRow {
                    objectName: "middleChoice"
                    choices: page.middles.map(share => page.pixels(share))
                    current: page.middles.indexOf(page.middle)
                    onChosen: index => page.middle = page.middles[index]
                }
            }
            Row {
                width: parent.width
                spacing: 16

                LineField {
                    id: middleField

                    objectName: "middleField"
                    width: (parent.width - parent.spacing) / 2
                    title: qsTr("Its share of the whole")
                    validator: RegularExpressionValidator {
                        regularExpression: new RegExp(GuiSupport.regexStr_floatPos())
                    }
                    onEdited: if (acceptable) page.middle = Math.max(0.05, Math.min(0.95, Number.fromLocaleString(Qt.locale(), text)))
                    onActiveFocusChanged: if (!activeFocus) text = page.decimals(page.middle)
                    Component.onCompleted: text = page.decimals(page.middle)
                }
                LineField {
                    id: sizeField

                    objectName: "sizeField"
                    width: (parent.width - parent.spacing) / 2
                    title: qsTr("Width in pixels")
                    validator: RegularExpressionValidator {
                        regularExpression: new RegExp(GuiSupport.regexStr_intPos())
                    }
                    onEdited: if (acceptable) page.share = Math.min(1, text / page.largest)
                    onActiveFocusChanged: if (!activeFocus) text = page.size
                    Component.onCompleted: text = page.size
                }
            }
        }
        Column {
            id: curve

            width: 260
            spacing: 8

            ScaleCurve {
                width: parent.width
                exponent: page.exponent
                position: page.position
            }
            Column {
                width: parent.width

                FactRow {
                    objectName: "positionFact"
                    name: qsTr("Position")
                    value: page.decimals(page.position)
                }
                FactRow {
                    objectName: "valueFact"
                    name: qsTr("Value")
                    value: page.decimals(page.share)
                }
                FactRow {
                    objectName: "exponentFact"
                    name: qsTr("Exponent")
                    value: page.decimals(page.exponent)
                }
            }
        }
    }
    Column {
        width: parent.width
        spacing: 12

        Text {
            width: parent.width
            text: qsTr("Fields that take numbers only: a pattern tells what can be typed.")
            textFormat: Text.PlainText
            color: Theme.ink
            font.pixelSize: Theme.text
            wrapMode: Text.Wrap
        }
        Row {
            id: fields

            readonly property real fieldWidth: (width - 3 * spacing) / 4

            width: parent.width
            spacing: 16

            PatternField {
                objectName: "intField"
                width: fields.fieldWidth
                title: qsTr("Whole")
                pattern: GuiSupport.regexStr_int()
                text: "-12"
            }
            PatternField {
                objectName: "intPosField"
                width: fields.fieldWidth
                title: qsTr("Whole, no sign")
                pattern: GuiSupport.regexStr_intPos()
                text: "12"
            }
            PatternField {
                objectName: "floatField"
                width: fields.fieldWidth
                title: qsTr("Decimal")
                pattern: GuiSupport.regexStr_float()
                text: page.decimals(-0.25)
            }
            PatternField {
                objectName: "floatPosField"
                width: fields.fieldWidth
                title: qsTr("Decimal, no sign")
                pattern: GuiSupport.regexStr_floatPos()
                text: page.decimals(0.25)
            }
        }
    }
}
