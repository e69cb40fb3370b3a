import QtQuick
import K7.Arbor

// One colour, seen as bytes, by hue, saturation and lightness, and by hue, saturation and value. Sliders stay where they
// were put: only the two views that were not touched are worked out again.
QtObject {
    id: mix

    property real argb: 0xff2f67a8
    property list<real> hsl: mix.hslOf(argb)
    property list<real> hsv: mix.hsvOf(argb)

    readonly property int alpha: GuiSupport.alphaFromARGB(argb)
    readonly property int red: GuiSupport.redFromARGB(argb)
    readonly property int green: GuiSupport.greenFromARGB(argb)
    readonly property int blue: GuiSupport.blueFromARGB(argb)
    readonly property color color: mix.colorOf(argb)
    readonly property string hex: GuiSupport.makeHEX(argb)
    readonly property int reference: GuiSupport.colorRef_fromColor(color)
    readonly property real pastel: GuiSupport.pastelARGB(argb)
    readonly property real complement: mix.packed(mix.bytesOf(GuiSupport.colorRef_toRgb(GuiSupport.colorRef_complement(reference))))

    function take(number: real): void {
        argb = number;
        hsl = hslOf(number);
        hsv = hsvOf(number);
    }

    function takeHsl(parts: list<real>): void {
        argb = packed(GuiSupport.RGBFromHSL(parts[0], parts[1], parts[2]));
        hsl = parts;
        hsv = hsvOf(argb);
    }

    function takeHsv(parts: list<real>): void {
        argb = packed(GuiSupport.RGBFromHSV(parts[0], parts[1], parts[2]));
        hsv = parts;
        hsl = hslOf(argb);
    }

    function takeAlpha(share: real): void {
        argb = GuiSupport.makeARGB(Math.round(255 * share), red, green, blue);
    }

    function packed(rgb: list<int>): real {
        return GuiSupport.makeARGB(alpha, rgb[0], rgb[1], rgb[2]);
    }

    function bytesOf(number: real): list<int> {
        return [GuiSupport.redFromARGB(number), GuiSupport.greenFromARGB(number), GuiSupport.blueFromARGB(number)];
    }

    function hslOf(number: real): list<real> {
        const [r, g, b] = bytesOf(number);
        return GuiSupport.HSLFromRGB(r, g, b);
    }

    // A slider has no place for a hue below 0, nor for the saturation of black, which is no number.
    function hsvOf(number: real): list<real> {
        const [r, g, b] = bytesOf(number);
        const [hue, saturation, value] = GuiSupport.HSVFromRGB(r, g, b);
        return [hue < 0 ? hue + 1 : hue, Number.isNaN(saturation) ? 0 : saturation, value];
    }

    function colorOf(number: real): color {
        return Qt.alpha(GuiSupport.colorRef_toColor(GuiSupport.colorRef_fromRgb(number)), GuiSupport.alphaFromARGB(number) / 255);
    }
}
