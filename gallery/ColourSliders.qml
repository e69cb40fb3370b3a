pragma ComponentBehavior: Bound

import QtQuick

// Three sliders for a hue and two shares, each painted with the colours that its positions give.
PanelSection {
    id: sliders

    property list<string> names
    property list<real> parts
    property var convert // from the three parts to red, green and blue
    property string prefix

    readonly property list<real> sixths: [0, 1 / 6, 2 / 6, 3 / 6, 4 / 6, 5 / 6, 1]
    readonly property real lastHue: 359 / 360 // a full turn is where the hue began

    signal moved(parts: list<real>)

    function partsWith(index: int, value: real): list<real> {
        return [0, 1, 2].map(each => each === index ? value : parts[each]);
    }

    function shades(index: int): list<color> {
        return sixths.map(share => {
            const [hue, second, third] = partsWith(index, index === 0 ? Math.min(share, lastHue) : share);
            const [r, g, b] = convert(hue, second, third);
            return Qt.rgba(r / 255, g / 255, b / 255, 1);
        });
    }

    Repeater {
        model: sliders.names

        ValueSlider {
            required property int index
            required property string modelData
            readonly property bool isHue: index === 0

            objectName: sliders.prefix + index
            width: parent ? parent.width : 0
            title: modelData
            value: sliders.parts[index]
            maximumValue: isHue ? sliders.lastHue : 1
            stepSize: isHue ? 1 / 360 : 1 / 100
            readout: isHue ? Math.round(360 * value) + "°" : Math.round(100 * value) + " %"
            shades: sliders.shades(index)
            onMoved: value => sliders.moved(sliders.partsWith(index, value))
        }
    }
}
