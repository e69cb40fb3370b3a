#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <random>
#include <sstream>
#include <string>

// Colours by the formulas of a textbook, in double precision and from whole bytes, to hold single precision
// against; and the random colours to do so with.

struct SPaperColour
{
    int red;
    int green;
    int blue;

    int Max() const { return std::max({red, green, blue}); }
    int Min() const { return std::min({red, green, blue}); }
    /// From 0 to 255; how fine the hue is told depends on it.
    int Range() const { return Max() - Min(); }

    /// In turns from 0 to 1; 0 for a grey. The angle is 60 degrees times the steps along the hexagon.
    double Hue() const
    {
        if (Range() == 0)
            return 0;
        double sixths = 0;
        if (Max() == red)
            sixths = double(green - blue) / Range();
        else if (Max() == green)
            sixths = 2 + double(blue - red) / Range();
        else
            sixths = 4 + double(red - green) / Range();
        return (sixths < 0 ? sixths + 6 : sixths) / 6;
    }

    double Lightness() const { return (Max() + Min()) / 510.0; }
    double LightnessSaturation() const
    {
        return Range() ? Range() / (255.0 - std::abs(Max() + Min() - 255)) : 0;
    }
    double Value() const { return Max() / 255.0; }
    /// Not for black.
    double ValueSaturation() const { return double(Range()) / Max(); }

    std::string Text() const
    {
        std::ostringstream text;
        text << "(" << red << ", " << green << ", " << blue << ")";
        return text.str();
    }
};

/// The channels of a colour from 0 to 1.
using PaperChannels = std::array<double, 3>;

/// By the form in which each channel is the middle of the colour and a clipped wave around the circle.
inline PaperChannels paper_hsl(double hue, double saturation, double lightness)
{
    const double amplitude = saturation * std::min(lightness, 1 - lightness);
    const auto channel = [&](double shift) {
        const double k = std::fmod(shift + hue * 12, 12);
        return lightness - amplitude * std::max(-1.0, std::min({k - 3, 9 - k, 1.0}));
    };
    return {channel(0), channel(8), channel(4)};
}

inline PaperChannels paper_hsv(double hue, double saturation, double value)
{
    const auto channel = [&](double shift) {
        const double k = std::fmod(shift + hue * 6, 6);
        return value - value * saturation * std::max(0.0, std::min({k, 4 - k, 1.0}));
    };
    return {channel(5), channel(3), channel(1)};
}

/// The first of 100,000 random colours, among them many dark, light and pale ones, for which `is_right` says
/// no, as text; empty if there is none. The same colours each time.
template <class Check>
std::string first_wrong_colour(Check is_right)
{
    std::mt19937 random(1);
    for (int number = 0; number < 100000; ++number) {
        const std::uint_fast32_t bits = random();
        const int span = 1 << (bits >> 24) % 9; // channels lie within so many steps
        const int base = static_cast<int>(random() % (257 - span));
        const auto channel = [&](int shift) { return base + static_cast<int>(bits >> shift & 255) % span; };
        const SPaperColour colour{channel(0), channel(8), channel(16)};
        if (!is_right(colour))
            return colour.Text();
    }
    return {};
}

/// The first of 100,000 random triples of floats from 0 to below 1 for which `is_right` says no, as text;
/// empty if there is none. The same triples each time.
template <class Check>
std::string first_wrong_triple(Check is_right)
{
    std::mt19937 random(2);
    const auto share = [&random] { return static_cast<float>(random() >> 8) * 0x1p-24F; };
    for (int number = 0; number < 100000; ++number) {
        const std::array<float, 3> triple{share(), share(), share()};
        if (is_right(triple))
            continue;
        std::ostringstream text;
        text.precision(9);
        text << "(" << triple[0] << ", " << triple[1] << ", " << triple[2] << ")";
        return text.str();
    }
    return {};
}
