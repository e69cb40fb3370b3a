import QtQuick
import K7.Arbor

Item {
    id: slider

    property real position: 0.5
    readonly property alias exponent: scale.exponent
    readonly property alias width500: scale.pixels

    // [snippet]
    // From 0 to 500 pixels, with 50 in the middle.
    QtObject {
        id: scale

        readonly property real exponent: GuiSupport.exponentialSlider_calculateBaseFromMiddle(50 / 500)
        readonly property real pixels: 500 * GuiSupport.exponentialSlider_posToValue(slider.position, exponent)
    }
    // [end]
}
