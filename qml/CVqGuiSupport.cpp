#include "qml/CVqGuiSupport.h"

#include "system/VqNumber.h"

#include <QLocale>

#include <algorithm>
#include <bit>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr vq_uint8 byte_at(vq_uint32 number, int shift)
{
    return static_cast<vq_uint8>(number >> shift);
}

/// `first` becomes the high byte.
constexpr vq_uint32 pack(vq_uint8 first, vq_uint8 second, vq_uint8 third, vq_uint8 fourth)
{
    return vq_uint32(first) << 24 | vq_uint32(second) << 16 | vq_uint32(third) << 8 | fourth;
}

/// The same both ways: from a colour reference to an RGB number and back.
int with_red_and_blue_swapped(vq_uint32 number)
{
    return static_cast<int>(pack(0, byte_at(number, 0), byte_at(number, 8), byte_at(number, 16)));
}

/// Reads up to eight characters as QString::toUInt() does to base 16, which takes blanks, a sign and "0x" as
/// well. Plain digits are read here, in a quarter of its time.
bool read_number(QStringView text, vq_uint32& number)
{
    bool is_plain = true;
    for (const QChar character : text) {
        const unsigned int unit = character.unicode();
        is_plain &= (unit - '0' < 10) | ((unit | 0x20) - 'a' < 6); // no branch: random digits mislead one
        number = number << 4 | ((unit & 15) + (unit >> 6) * 9);
    }
    if (!is_plain)
        number = text.toUInt(&is_plain, 16);
    return is_plain;
}

/// `pattern` with the system locale's decimal point in place of %1.
QString with_decimal_point(const QString& pattern)
{
    return pattern.arg(QLocale::system().decimalPoint().replace(u'.', "\\."_L1));
}

}

CVqGuiSupport::CVqGuiSupport()
{
    qRegisterMetaType<std::tuple<float, float, float>>("std::tuple<float,float,float>");
    qRegisterMetaType<std::tuple<vq_uint8, vq_uint8, vq_uint8>>("std::tuple<uchar,uchar,uchar>");
}

CVqGuiSupport::~CVqGuiSupport() = default;

int CVqGuiSupport::colorRef_fromColor(const QColor& color) const
{
    return color.blue() << 16 | color.green() << 8 | color.red();
}

QColor CVqGuiSupport::colorRef_toColor(double colorRef) const
{
    const vq_uint32 number = VqLowBits(colorRef);
    return QColor(byte_at(number, 0), byte_at(number, 8), byte_at(number, 16));
}

int CVqGuiSupport::colorRef_toRgb(double colorRef) const
{
    return with_red_and_blue_swapped(VqLowBits(colorRef));
}

int CVqGuiSupport::colorRef_fromRgb(double rgb) const
{
    return with_red_and_blue_swapped(VqLowBits(rgb));
}

int CVqGuiSupport::colorRef_complement(double colorRef) const
{
    return static_cast<int>(~VqLowBits(colorRef) & 0xFFFFFF);
}

double CVqGuiSupport::exponentialSlider_valueToPos(double normValue, double exp) const
{
    return std::pow(normValue, 1.0 / exp);
}

double CVqGuiSupport::exponentialSlider_posToValue(double normPos, double exp) const
{
    return std::pow(normPos, exp);
}

double CVqGuiSupport::exponentialSlider_calculateBaseFromMiddle(double normMiddleValue) const
{
    return std::log(std::clamp(normMiddleValue, 0.05, 0.95)) / std::log(0.5);
}

QString CVqGuiSupport::regexStr_float() const
{
    return with_decimal_point(u"[+-]?(?:[1-9]\\d*|0)(?:%1\\d+)?"_s);
}

QString CVqGuiSupport::regexStr_floatPos() const
{
    return with_decimal_point(u"(?:[1-9]\\d*|0)(?:%1\\d+)?"_s);
}

QString CVqGuiSupport::regexStr_int() const
{
    return u"[+-]?[\\d]+"_s;
}

QString CVqGuiSupport::regexStr_intPos() const
{
    return u"[\\d]+"_s;
}

QString CVqGuiSupport::makeHEX(vq_uint32 argb)
{
    constexpr char16_t digits[] = u"0123456789abcdef";
    const vq_uint32 rgba = std::rotl(argb, 8);
    char16_t text[9] = {u'#'};
    for (int digit = 0; digit < 8; ++digit)
        text[digit + 1] = digits[rgba >> (28 - 4 * digit) & 15];
    return QStringView(text, byte_at(argb, 24) == 255 ? 7 : 9).toString();
}

vq_uint8 CVqGuiSupport::redFromABGR(vq_uint32 abgr)
{
    return byte_at(abgr, 0);
}

vq_uint8 CVqGuiSupport::greenFromABGR(vq_uint32 abgr)
{
    return byte_at(abgr, 8);
}

vq_uint8 CVqGuiSupport::blueFromABGR(vq_uint32 abgr)
{
    return byte_at(abgr, 16);
}

vq_uint8 CVqGuiSupport::alphaFromABGR(vq_uint32 abgr)
{
    return byte_at(abgr, 24);
}

vq_uint8 CVqGuiSupport::redFromARGB(vq_uint32 argb)
{
    return byte_at(argb, 16);
}

vq_uint8 CVqGuiSupport::greenFromARGB(vq_uint32 argb)
{
    return byte_at(argb, 8);
}

vq_uint8 CVqGuiSupport::blueFromARGB(vq_uint32 argb)
{
    return byte_at(argb, 0);
}

vq_uint8 CVqGuiSupport::alphaFromARGB(vq_uint32 argb)
{
    return byte_at(argb, 24);
}

vq_uint32 CVqGuiSupport::makeABGR(vq_uint8 a, vq_uint8 b, vq_uint8 g, vq_uint8 r)
{
    return pack(a, b, g, r);
}

vq_uint32 CVqGuiSupport::makeARGB(vq_uint8 a, vq_uint8 r, vq_uint8 g, vq_uint8 b)
{
    return pack(a, r, g, b);
}

vq_uint32 CVqGuiSupport::makeARGB(const QString& hex)
{
    const QStringView digits = QStringView(hex).sliced(hex.startsWith(u'#') ? 1 : 0);
    const bool is_opaque = digits.size() == 6;
    if (!is_opaque && digits.size() != 8)
        return 0;
    vq_uint32 number = 0;
    if (!read_number(digits, number))
        return 0;
    return is_opaque ? number | 0xFF000000 : std::rotr(number, 8);
}
