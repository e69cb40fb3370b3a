#pragma once

#include "arbor_qml_support_export.h"
#include "system/VqTypes.h"

#include <QColor>
#include <QObject>
#include <QString>

#include <tuple>

/// What QML lacks for colours, sliders and number fields. Holds no data: each result depends on the arguments
/// alone, and for the two float patterns on the system locale. Any thread.
///
/// Colours as numbers, from the high byte to the low one:
///
/// | Layout          | Bits 31-24   | Bits 23-16 | Bits 15-8 | Bits 7-0 |
/// |-----------------|--------------|------------|-----------|----------|
/// | ARGB            | alpha        | red        | green     | blue     |
/// | ABGR            | alpha        | blue       | green     | red      |
/// | colour reference| 0            | blue       | green     | red      |
/// | RGB number      | any, dropped | red        | green     | blue     |
///
/// A `double` that carries a colour loses its fraction and all but the low 32 bits; not-a-number and infinity
/// are 0. Hue, saturation, lightness and value run from 0 to 1 and are computed in single precision.
class ARBOR_QML_SUPPORT_EXPORT CVqGuiSupport : public QObject
{
    Q_OBJECT

public:
    /// Makes sure that the tuples of the results are known to the meta-type system, by the names
    /// "std::tuple<float,float,float>" and "std::tuple<uchar,uchar,uchar>".
    CVqGuiSupport();
    ~CVqGuiSupport() override;

    /// The colour reference of `color`, without its alpha.
    Q_INVOKABLE int colorRef_fromColor(const QColor& color) const;
    /// The opaque colour of a colour reference.
    Q_INVOKABLE QColor colorRef_toColor(double colorRef) const;
    /// The RGB number of a colour reference; bits 31-24 become 0.
    Q_INVOKABLE int colorRef_toRgb(double colorRef) const;
    /// The colour reference of an RGB number; bits 31-24 become 0.
    Q_INVOKABLE int colorRef_fromRgb(double rgb) const;
    /// The colour reference with each of the 24 colour bits turned over.
    Q_INVOKABLE int colorRef_complement(double colorRef) const;

    /// The position, from 0 to 1, of a slider whose scale is value = position to the power `exp`.
    Q_INVOKABLE double exponentialSlider_valueToPos(double normValue, double exp) const;
    /// The value, from 0 to 1, at a position of that slider.
    Q_INVOKABLE double exponentialSlider_posToValue(double normPos, double exp) const;
    /// The exponent with which the slider's middle shows `normMiddleValue`, which is kept within 0.05 to
    /// 0.95.
    Q_INVOKABLE double exponentialSlider_calculateBaseFromMiddle(double normMiddleValue) const;

    /// The pattern of a number with an optional sign and decimals behind the system locale's decimal point,
    /// which is asked for on each call. Only a full stop in the decimal point is escaped.
    Q_INVOKABLE QString regexStr_float() const;
    /// regexStr_float() without a sign.
    Q_INVOKABLE QString regexStr_floatPos() const;
    /// The pattern of a whole number with an optional sign.
    Q_INVOKABLE QString regexStr_int() const;
    /// The pattern of a whole number without a sign.
    Q_INVOKABLE QString regexStr_intPos() const;

    /// "#rrggbb" for alpha 255, otherwise "#rrggbbaa" with alpha last, in lower case. makeARGB() reads both.
    Q_INVOKABLE QString makeHEX(vq_uint32 argb);
    /// Hue, saturation and value. Two results to know of: a red with more blue than green has a hue between
    /// -1/6 and 0, and black has a saturation that is not a number.
    Q_INVOKABLE std::tuple<float, float, float> HSVFromRGB(vq_uint8 red, vq_uint8 green, vq_uint8 blue);
    /// Hue, saturation and lightness. Greys have hue and saturation 0.
    Q_INVOKABLE std::tuple<float, float, float> HSLFromRGB(vq_uint8 red, vq_uint8 green, vq_uint8 blue);
    /// Red, green and blue. Arguments are clamped to 0 to 1, and not-a-number is 0. Two results to know of: a
    /// hue from 5/6 up gives as much blue as red, and hue 1 gives grey.
    Q_INVOKABLE std::tuple<vq_uint8, vq_uint8, vq_uint8> RGBFromHSV(float hue, float saturation, float value);
    /// As RGBFromHSV(), for lightness in place of value.
    Q_INVOKABLE std::tuple<vq_uint8, vq_uint8, vq_uint8> RGBFromHSL(float hue, float saturation,
                                                                    float lightness);
    /// The pastel tint of a colour, with its alpha: its hue with saturation 0.4 and lightness 0.75, and
    /// 0xBFBFBF for each grey.
    Q_INVOKABLE vq_uint32 pastelARGB(vq_uint32 argb);

    // Bytes of colours, taken out and put together by the table above.

    Q_INVOKABLE vq_uint8 redFromABGR(vq_uint32 abgr);
    Q_INVOKABLE vq_uint8 greenFromABGR(vq_uint32 abgr);
    Q_INVOKABLE vq_uint8 blueFromABGR(vq_uint32 abgr);
    Q_INVOKABLE vq_uint8 alphaFromABGR(vq_uint32 abgr);
    Q_INVOKABLE vq_uint8 redFromARGB(vq_uint32 argb);
    Q_INVOKABLE vq_uint8 greenFromARGB(vq_uint32 argb);
    Q_INVOKABLE vq_uint8 blueFromARGB(vq_uint32 argb);
    Q_INVOKABLE vq_uint8 alphaFromARGB(vq_uint32 argb);
    Q_INVOKABLE vq_uint32 makeABGR(vq_uint8 a, vq_uint8 b, vq_uint8 g, vq_uint8 r);
    Q_INVOKABLE vq_uint32 makeARGB(vq_uint8 a, vq_uint8 r, vq_uint8 g, vq_uint8 b);
    /// The colour that makeHEX() wrote: 6 or 8 hexadecimal digits, in any case, behind a "#" or not; 6 give
    /// an opaque colour. 0 for anything else. The digits are read as QString::toUInt() does, so blanks at the
    /// ends, a plus sign and "0x" may stand for some of them.
    Q_INVOKABLE vq_uint32 makeARGB(const QString& hex);
};
