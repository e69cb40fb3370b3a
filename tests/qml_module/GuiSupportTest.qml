import QtQuick
import K7.Arbor

StrictTestCase {
    name: "GuiSupport"

    // In all of it, so that "3" is no whole number with decimals.
    function matches(pattern: string, text: string): bool {
        return new RegExp("^(?:" + pattern + ")$").test(text);
    }

    function test_aColourBecomesAReference() {
        compare(GuiSupport.colorRef_fromColor("#80112233"), 0x332211);
        compare(GuiSupport.colorRef_fromColor(Qt.rgba(1, 0, 0, 1)), 0x0000ff);
    }

    function test_aReferenceBecomesAColour() {
        verify(Qt.colorEqual(GuiSupport.colorRef_toColor(0x332211), "#ff112233"));
    }

    function test_aReferenceAndAnRgbNumberChangeRedAndBlue() {
        compare(GuiSupport.colorRef_toRgb(0x332211), 0x112233);
        compare(GuiSupport.colorRef_fromRgb(0x112233), 0x332211);
    }

    function test_theComplementTurnsEachColourBitOver() {
        compare(GuiSupport.colorRef_complement(0), 0xffffff);
        compare(GuiSupport.colorRef_complement(0xff00ff), 0x00ff00);
    }

    function test_referencesTakeAnyNumber_data() {
        return [
            { tag: "above 31 bits", number: 0xff332211, rgb: 0x112233 },
            { tag: "above 32 bits", number: 0x7700332211, rgb: 0x112233 },
            { tag: "above 64 bits", number: 2 ** 70, rgb: 0 },
            { tag: "a fraction", number: 17.9, rgb: 0x110000 },
            { tag: "below 0", number: -1, rgb: 0xffffff },
            { tag: "a fraction below 0", number: -0.9, rgb: 0 },
            { tag: "not a number", number: NaN, rgb: 0 },
            { tag: "infinity", number: Infinity, rgb: 0 },
            { tag: "undefined", number: undefined, rgb: 0 }
        ];
    }
    function test_referencesTakeAnyNumber(row) {
        compare(GuiSupport.colorRef_toRgb(row.number), row.rgb);
        compare(GuiSupport.colorRef_fromRgb(row.number), row.rgb);
    }

    function test_aSliderGoesFromPositionToValueAndBack() {
        compare(GuiSupport.exponentialSlider_posToValue(0.5, 2), 0.25);
        compare(GuiSupport.exponentialSlider_valueToPos(0.25, 2), 0.5);
    }

    function test_theMiddleValueGivesTheExponent() {
        compare(GuiSupport.exponentialSlider_calculateBaseFromMiddle(0.5), 1);
        compare(GuiSupport.exponentialSlider_calculateBaseFromMiddle(0.25), 2);
    }

    function test_theMiddleValueStaysWithinItsLimits() {
        compare(GuiSupport.exponentialSlider_calculateBaseFromMiddle(0),
            GuiSupport.exponentialSlider_calculateBaseFromMiddle(0.05));
        compare(GuiSupport.exponentialSlider_calculateBaseFromMiddle(1),
            GuiSupport.exponentialSlider_calculateBaseFromMiddle(0.95));
    }

    function test_patternsOfWholeNumbersAreExpressionsOfScript() {
        verify(matches(GuiSupport.regexStr_int(), "-012"));
        verify(matches(GuiSupport.regexStr_intPos(), "012"));
        verify(!matches(GuiSupport.regexStr_intPos(), "-012"));
        verify(!matches(GuiSupport.regexStr_int(), "1.5"));
    }

    function test_patternsOfDecimalsAreExpressionsOfScript() {
        const point = Qt.locale().decimalPoint;
        verify(matches(GuiSupport.regexStr_float(), "-10" + point + "25"));
        verify(matches(GuiSupport.regexStr_floatPos(), "0" + point + "5"));
        verify(!matches(GuiSupport.regexStr_floatPos(), "-1"));
        verify(!matches(GuiSupport.regexStr_float(), "1:5"));
        verify(!matches(GuiSupport.regexStr_float(), "01"));
    }

    function test_aNumberBecomesHexText() {
        compare(GuiSupport.makeHEX(0xff0a0b0c), "#0a0b0c");
        compare(GuiSupport.makeHEX(0x7f0a0b0c), "#0a0b0c7f");
    }

    function test_hexTextKeepsTheLow32BitsOfANumber() {
        compare(GuiSupport.makeHEX(0x99ff0a0b0c), "#0a0b0c");
        compare(GuiSupport.makeHEX(-1), "#ffffff");
        compare(GuiSupport.makeHEX(NaN), "#00000000");
    }

    function test_hexTextBecomesANumberAbove31Bits() {
        compare(GuiSupport.makeARGB("#0a0b0c"), 0xff0a0b0c);
        compare(GuiSupport.makeARGB("0a0b0c7f"), 0x7f0a0b0c);
        compare(GuiSupport.makeARGB("#12345"), 0);
        compare(GuiSupport.makeARGB(""), 0);
    }

    function test_fourBytesMakeANumber() {
        compare(GuiSupport.makeARGB(0xff, 1, 2, 3), 0xff010203);
        compare(GuiSupport.makeABGR(0xff, 1, 2, 3), 0xff010203);
    }

    function test_aNumberHasFourBytesInEachLayout() {
        compare(GuiSupport.alphaFromARGB(0xf1020304), 0xf1);
        compare(GuiSupport.redFromARGB(0xf1020304), 2);
        compare(GuiSupport.greenFromARGB(0xf1020304), 3);
        compare(GuiSupport.blueFromARGB(0xf1020304), 4);
        compare(GuiSupport.alphaFromABGR(0xf1020304), 0xf1);
        compare(GuiSupport.blueFromABGR(0xf1020304), 2);
        compare(GuiSupport.greenFromABGR(0xf1020304), 3);
        compare(GuiSupport.redFromABGR(0xf1020304), 4);
    }

    function test_aColourIsTakenApartIntoHueSaturationAndLightness() {
        const [hue, saturation, lightness] = GuiSupport.HSLFromRGB(0, 255, 0);
        fuzzyCompare(hue, 1 / 3, 1e-6);
        compare(saturation, 1);
        compare(lightness, 0.5);
    }

    function test_aColourIsTakenApartIntoHueSaturationAndValue() {
        const [hue, saturation, value] = GuiSupport.HSVFromRGB(0, 0, 255);
        fuzzyCompare(hue, 2 / 3, 1e-6);
        compare(saturation, 1);
        compare(value, 1);
    }

    function test_blackHasNoNumberForItsSaturation() {
        const [hue, saturation, value] = GuiSupport.HSVFromRGB(0, 0, 0);
        compare(hue, 0);
        verify(Number.isNaN(saturation));
        compare(value, 0);
    }

    function test_aHueBelow0ReachesScript() {
        verify(GuiSupport.HSVFromRGB(255, 0, 1)[0] < 0);
        verify(GuiSupport.HSLFromRGB(255, 0, 1)[0] > 0.99);
    }

    function test_hueSaturationAndLightnessBecomeThreeBytes() {
        const [red, green, blue] = GuiSupport.RGBFromHSL(1 / 3, 1, 0.5);
        compare(red, 0);
        compare(green, 255);
        compare(blue, 0);
    }

    function test_hueSaturationAndValueBecomeThreeBytes() {
        const [red, green, blue] = GuiSupport.RGBFromHSV(2 / 3, 1, 1);
        compare(red, 0);
        compare(green, 0);
        compare(blue, 255);
    }

    function test_aHueFromFiveSixthsUpIsMagenta() {
        compare(GuiSupport.RGBFromHSL(0.9, 1, 0.5), [255, 0, 255]);
    }

    function test_conversionsAreListsWithTheOperationsOfArrays() {
        compare(GuiSupport.RGBFromHSV(0, 0, 1).map(channel => channel / 255), [1, 1, 1]);
        compare(GuiSupport.RGBFromHSL(0, 1, 0.5).length, 3);
    }

    function test_notANumberIsTakenFor0() {
        compare(GuiSupport.RGBFromHSL(NaN, 1, 0.5), [255, 0, 0]);
        compare(GuiSupport.RGBFromHSV(NaN, 1, 1), [255, 0, 0]);
    }

    function test_bytesAreTheLow8BitsOfANumber() {
        compare(GuiSupport.makeARGB(256 + 1, -1, 2.9, NaN), 0x01ff0200);
        compare(GuiSupport.HSLFromRGB(256, -1, 256), GuiSupport.HSLFromRGB(0, 255, 0));
    }

    function test_aPastelTintKeepsAlpha() {
        compare(GuiSupport.pastelARGB(0x80444444), 0x80bfbfbf);
        compare(GuiSupport.alphaFromARGB(GuiSupport.pastelARGB(0x80112233)), 0x80);
    }
}
