#include "qml/CVqGuiSupport.h"

#include <QColor>

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

// Colours between RGB, HSL, HSV and hexadecimal text against QColor. Each side gets the same 10,000 random
// colours.

namespace {

struct Colour
{
    vq_uint32 argb;
    vq_uint8 red;
    vq_uint8 green;
    vq_uint8 blue;
    float first; // shares from 0 to 1, for hue, saturation and lightness or value
    float second;
    float third;
    QString arbor_text; // alpha last
    QString qt_text;    // alpha first
};

std::vector<Colour> make_colours()
{
    CVqGuiSupport support;
    std::mt19937 random(1);
    const auto share = [&random] { return static_cast<float>(random() >> 8) * 0x1p-24F; };
    std::vector<Colour> colours;
    for (int number = 0; number < 10000; ++number) {
        Colour colour;
        colour.argb = static_cast<vq_uint32>(random());
        colour.red = support.redFromARGB(colour.argb);
        colour.green = support.greenFromARGB(colour.argb);
        colour.blue = support.blueFromARGB(colour.argb);
        colour.first = share();
        colour.second = share();
        colour.third = share();
        colour.arbor_text = support.makeHEX(colour.argb);
        colour.qt_text = QColor::fromRgba(colour.argb).name(QColor::HexArgb);
        colours.push_back(colour);
    }
    return colours;
}

const std::vector<Colour>& colours()
{
    static const std::vector<Colour> made = make_colours();
    return made;
}

template <class Use>
void each_colour(benchmark::State& state, Use use)
{
    for (auto _ : state) {
        for (const Colour& colour : colours())
            use(colour);
    }
}

template <class Result>
void keep(Result result)
{
    benchmark::DoNotOptimize(result);
}

void keep_rgb(const QColor& colour)
{
    int red = 0;
    int green = 0;
    int blue = 0;
    colour.getRgb(&red, &green, &blue);
    keep(red);
    keep(green);
    keep(blue);
}

void keep_shares(void (QColor::*get)(float*, float*, float*, float*) const, const QColor& colour)
{
    float first = 0;
    float second = 0;
    float third = 0;
    (colour.*get)(&first, &second, &third, nullptr);
    keep(first);
    keep(second);
    keep(third);
}

template <class Use>
void add(const char* name, Use use)
{
    benchmark::RegisterBenchmark(name, each_colour<Use>, use);
}

void register_shares(CVqGuiSupport& support)
{
    add("RgbToHsl/Arbor", [&support](const Colour& colour) {
        keep(support.HSLFromRGB(colour.red, colour.green, colour.blue));
    });
    add("RgbToHsl/QColor", [](const Colour& colour) {
        keep_shares(&QColor::getHslF, QColor(colour.red, colour.green, colour.blue));
    });
    add("RgbToHsv/Arbor", [&support](const Colour& colour) {
        keep(support.HSVFromRGB(colour.red, colour.green, colour.blue));
    });
    add("RgbToHsv/QColor", [](const Colour& colour) {
        keep_shares(&QColor::getHsvF, QColor(colour.red, colour.green, colour.blue));
    });
    add("HslToRgb/Arbor", [&support](const Colour& colour) {
        keep(support.RGBFromHSL(colour.first, colour.second, colour.third));
    });
    add("HslToRgb/QColor",
        [](const Colour& colour) { keep_rgb(QColor::fromHslF(colour.first, colour.second, colour.third)); });
    add("HsvToRgb/Arbor", [&support](const Colour& colour) {
        keep(support.RGBFromHSV(colour.first, colour.second, colour.third));
    });
    add("HsvToRgb/QColor",
        [](const Colour& colour) { keep_rgb(QColor::fromHsvF(colour.first, colour.second, colour.third)); });
}

void register_texts(CVqGuiSupport& support)
{
    add("WriteHex/Arbor", [&support](const Colour& colour) { keep(support.makeHEX(colour.argb)); });
    add("WriteHex/QColor",
        [](const Colour& colour) { keep(QColor::fromRgba(colour.argb).name(QColor::HexArgb)); });
    add("ReadHex/Arbor", [&support](const Colour& colour) { keep(support.makeARGB(colour.arbor_text)); });
    add("ReadHex/QColor", [](const Colour& colour) { keep(QColor::fromString(colour.qt_text).rgba()); });
}

}

int main(int argc, char** argv)
{
    CVqGuiSupport support;
    register_shares(support);
    register_texts(support);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
