#include "bench/OffscreenSides.h"
#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar/CVqQuickPicker.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QQmlContext>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <set>

// A toolbar of 100 buttons with their looks, resized over 100 widths, 7 pixels a frame: the median frame,
// from the new width to the picture, with layout, synchronisation, rendering and reading back. Real time,
// since it is what a user waits for; the peer is what a display of 60 frames a second leaves.

namespace {

using namespace Qt::StringLiterals;

constexpr QSize g_size(1920, 60);
constexpr int g_buttons = 100;
constexpr int g_frames = 100;

constexpr const char* g_scene = R"(
import QtQuick
import K7.Arbor.QuickBackend

Rectangle {
    property int step: 0
    color: "white"

    Toolbar {
        toolbar: theToolbar
        width: 1200 + Math.abs(step % 200 - 100) * 7
    }
}
)";

QUrl written_scene(const QTemporaryDir& folder)
{
    QFile file(folder.filePath(u"Scene.qml"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(g_scene) < 0)
        qFatal("%s cannot be written", qPrintable(file.fileName()));
    return QUrl::fromLocalFile(file.fileName());
}

void fill(CVqQuickButtonToolbar& bar)
{
    for (int number = 0; number < g_buttons; ++number) {
        const CVqStringW text = CVqStringW::FromQString(u"Rotate "_s + QString::number(number));
        bar.SetTextsOnButton(bar.AddTextButton(text), 0, VQ_TEXT(""), text, VQ_TEXT(""));
    }
}

// Smooth texts have many colours.
bool shows_texts(const QImage& picture)
{
    std::set<QRgb> colours;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 200; ++x)
            colours.insert(picture.pixel(x, y));
    return colours.size() > 8;
}

void resized_toolbar(benchmark::State& state)
{
    const QTemporaryDir folder;
    CVqQuickButtonToolbar bar(VQ_TEXT("bar"));
    fill(bar);
    BareLoop loop(g_size);
    loop.Engine()->rootContext()->setContextProperty(u"theToolbar"_s, &bar);
    loop.Load(written_scene(folder));
    loop.Grab();
    std::array<qint64, g_frames> frames{};
    for (auto _ : state) {
        for (qint64& frame : frames) {
            QElapsedTimer timer;
            timer.start();
            loop.Change();
            benchmark::DoNotOptimize(loop.Grab());
            frame = timer.nsecsElapsed();
        }
        std::ranges::nth_element(frames, frames.begin() + g_frames / 2);
        state.SetIterationTime(double(frames[g_frames / 2]) * 1e-9);
    }
    if (!bar.Toolbar().Picker()->IsShown())
        state.SkipWithError("everything fits");
    if (!shows_texts(loop.Grab()))
        state.SkipWithError("no picture");
}

void frame_of_display(benchmark::State& state)
{
    for (auto _ : state)
        state.SetIterationTime(1.0 / 60);
}

}

int main(int argc, char** argv)
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    const QGuiApplication application(argc, argv);
    benchmark::RegisterBenchmark("ResizedToolbar/Arbor", resized_toolbar)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("ResizedToolbar/Display60Hz", frame_of_display)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
