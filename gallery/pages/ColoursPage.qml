import QtQuick
import K7.Arbor
import K7.Arbor.Gallery

// One colour in every form that GuiSupport knows: text, hue sliders, relatives, and numbers in four layouts.
PageSheet {
    title: qsTr("Colours")
    lead: qsTr("One colour as text, by its hue, and as a number in the layouts that programs pass around. Change it anywhere: everything else follows.")

    ColourMix {
        id: mix

        // No binding: it would write into the field while somebody types.
        onHexChanged: if (!hexField.activeFocus) hexField.text = hex
    }
    Row {
        id: upper

        width: parent.width
        spacing: 40

        Column {
            id: looks

            width: 250
            spacing: 16

            ColourCard {
                objectName: "colourCard"
                width: parent.width
                swatchHeight: 104
                title: qsTr("Colour")
                hex: mix.hex
                color: mix.color
            }
            Row {
                width: parent.width
                spacing: 12

                ColourCard {
                    objectName: "pastelCard"
                    width: (parent.width - parent.spacing) / 2
                    title: qsTr("Pastel")
                    color: mix.colorOf(mix.pastel)
                    choosable: true
                    onChosen: mix.take(mix.pastel)
                }
                ColourCard {
                    objectName: "complementCard"
                    width: (parent.width - parent.spacing) / 2
                    title: qsTr("Complement")
                    color: mix.colorOf(mix.complement)
                    choosable: true
                    onChosen: mix.take(mix.complement)
                }
            }
            LineField {
                id: hexField

                objectName: "hexField"
                width: parent.width
                title: qsTr("As text")
                focus: true
                validator: RegularExpressionValidator {
                    regularExpression: /#?(?:[0-9a-fA-F]{6}|[0-9a-fA-F]{8})/
                }
                onEdited: if (acceptable) mix.take(GuiSupport.makeARGB(text))
                onAccepted: text = mix.hex
                onActiveFocusChanged: if (!activeFocus) text = mix.hex
                Component.onCompleted: text = mix.hex
            }
        }
        Column {
            width: parent.width - looks.width - parent.spacing
            spacing: 4

            ColourSliders {
                prefix: "hsl"
                title: qsTr("Hue, saturation, lightness")
                names: [qsTr("Hue"), qsTr("Saturation"), qsTr("Lightness")]
                parts: mix.hsl
                convert: (hue, saturation, lightness) => GuiSupport.RGBFromHSL(hue, saturation, lightness)
                onMoved: parts => mix.takeHsl(parts)
            }
            ColourSliders {
                prefix: "hsv"
                title: qsTr("Hue, saturation, value")
                names: [qsTr("Hue"), qsTr("Saturation"), qsTr("Value")]
                parts: mix.hsv
                convert: (hue, saturation, value) => GuiSupport.RGBFromHSV(hue, saturation, value)
                onMoved: parts => mix.takeHsv(parts)
            }
            ValueSlider {
                objectName: "alpha"
                width: parent.width
                title: qsTr("Opacity")
                value: mix.alpha / 255
                stepSize: 1 / 255
                readout: Math.round(100 * value) + " %"
                onMoved: value => mix.takeAlpha(value)
            }
        }
    }
    PanelSection {
        title: qsTr("Packed into numbers")

        Column {
            width: parent.width

            PackedRow {
                objectName: "argbRow"
                title: "ARGB"
                letters: "ARGB"
                number: mix.argb
            }
            PackedRow {
                objectName: "abgrRow"
                title: "ABGR"
                letters: "ABGR"
                number: GuiSupport.makeABGR(mix.alpha, mix.blue, mix.green, mix.red)
            }
            PackedRow {
                objectName: "referenceRow"
                title: qsTr("Colour reference")
                letters: "0BGR"
                number: mix.reference
            }
            PackedRow {
                objectName: "rgbRow"
                title: qsTr("RGB number")
                letters: "0RGB"
                number: GuiSupport.colorRef_toRgb(mix.reference)
            }
        }
    }
}
