#include "qml/CVqGuiSupport.h"

#include <algorithm>
#include <cmath>

// Hue, saturation and lightness or value, from bytes and back.

namespace {

using Floats = std::tuple<float, float, float>;
using Bytes = std::tuple<vq_uint8, vq_uint8, vq_uint8>;

/// What hue, saturation, lightness and value are made of.
struct SShades
{
    float min;
    float max;
    float hue; // from -1/6 to 5/6
};

/// The hue of a colour that is no grey. The distances from the largest channel decide; the channel at
/// distance 0 sets the third of the circle, and red goes before green where two are largest.
float hue_of(float red, float green, float blue, float max, float range)
{
    const float from_red = (max - red) / range;
    const float from_green = (max - green) / range;
    const float from_blue = (max - blue) / range;
    if (from_red == 0)
        return (from_blue - from_green) / 6.F;
    if (from_green == 0)
        return (from_red + 2.F - from_blue) / 6.F;
    return (from_green + 4.F - from_red) / 6.F;
}

SShades shades_of(vq_uint8 red, vq_uint8 green, vq_uint8 blue)
{
    const float r = static_cast<float>(red) / 255.F;
    const float g = static_cast<float>(green) / 255.F;
    const float b = static_cast<float>(blue) / 255.F;
    const float min = std::min({r, g, b});
    const float max = std::max({r, g, b});
    return {min, max, min == max ? 0.F : hue_of(r, g, b, max, max - min)};
}

/// Within 0 to 1; 0 for what is not a number.
float clamped(float share)
{
    return share > 0 ? std::min(share, 1.F) : 0.F;
}

float chroma_at(float lightness, float saturation)
{
    return (1.F - std::fabs(2.F * lightness - 1.F)) * saturation;
}

vq_uint8 to_byte(float channel)
{
    const float rounded = channel * 255.F + 0.5F;
    return static_cast<vq_uint8>(static_cast<int>(rounded));
}

/// The colour of a hue from 0 to 1, whose channels reach from `offset` to `offset + chroma`. Its last
/// sixth and its very end are no part of a colour circle; both are meant.
Bytes bytes_of(float hue, float chroma, float offset)
{
    const float between = (1.F - std::fabs(std::fmod(6.F * hue, 2.F) - 1.F)) * chroma;
    const vq_uint8 low = to_byte(offset);
    const vq_uint8 middle = to_byte(between + offset);
    const vq_uint8 high = to_byte(chroma + offset);
    if (hue < 1.F / 6.F)
        return {high, middle, low};
    if (hue < 1.F / 3.F)
        return {middle, high, low};
    if (hue < 0.5F)
        return {low, high, middle};
    if (hue < 2.F / 3.F)
        return {low, middle, high};
    if (hue < 5.F / 6.F)
        return {middle, low, high};
    if (hue < 1.F)
        return {high, low, high};
    return {low, low, low};
}

}

Floats CVqGuiSupport::HSVFromRGB(vq_uint8 red, vq_uint8 green, vq_uint8 blue)
{
    const SShades shades = shades_of(red, green, blue);
    return {shades.hue, (shades.max - shades.min) / shades.max, shades.max};
}

Floats CVqGuiSupport::HSLFromRGB(vq_uint8 red, vq_uint8 green, vq_uint8 blue)
{
    const SShades shades = shades_of(red, green, blue);
    const float range = shades.max - shades.min;
    const float lightness = (shades.min + shades.max) * 0.5F;
    const float saturation = range == 0 ? 0.F : range / chroma_at(lightness, 1.F);
    return {shades.hue < 0 ? shades.hue + 1.F : shades.hue, saturation, lightness};
}

Bytes CVqGuiSupport::RGBFromHSV(float hue, float saturation, float value)
{
    const float top = clamped(value);
    const float chroma = clamped(saturation) * top;
    return bytes_of(clamped(hue), chroma, top - chroma);
}

Bytes CVqGuiSupport::RGBFromHSL(float hue, float saturation, float lightness)
{
    const float middle = clamped(lightness);
    const float chroma = chroma_at(middle, clamped(saturation));
    return bytes_of(clamped(hue), chroma, middle - chroma * 0.5F);
}

vq_uint32 CVqGuiSupport::pastelARGB(vq_uint32 argb)
{
    const vq_uint8 red = redFromARGB(argb);
    const vq_uint8 green = greenFromARGB(argb);
    const vq_uint8 blue = blueFromARGB(argb);
    if (red == green && green == blue)
        return (argb & 0xFF000000) | 0xBFBFBF;
    const float hue = std::get<0>(HSLFromRGB(red, green, blue));
    const auto [pastel_red, pastel_green, pastel_blue] = RGBFromHSL(hue, 0.4F, 0.75F);
    return makeARGB(alphaFromARGB(argb), pastel_red, pastel_green, pastel_blue);
}
