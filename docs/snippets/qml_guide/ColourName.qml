import QtQuick
import K7.Arbor

// [snippet]
Rectangle {
    id: swatch

    property real argb: 0xff2f67a8
    readonly property string text: GuiSupport.makeHEX(argb) // "#2f67a8"

    function darken(): void {
        const [hue, saturation, lightness] = GuiSupport.HSLFromRGB(GuiSupport.redFromARGB(argb),
            GuiSupport.greenFromARGB(argb), GuiSupport.blueFromARGB(argb));
        const [red, green, blue] = GuiSupport.RGBFromHSL(hue, saturation, lightness / 2);
        argb = GuiSupport.makeARGB(255, red, green, blue);
    }

    color: text
}
// [end]
