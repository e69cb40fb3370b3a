#include "bench/OffscreenSides.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

// Drawing QML without a window, against a bare loop around QQuickRenderControl with a context and a
// framebuffer object of the same kind, against a QQuickView on the display, and against the reading of the
// pixels alone.
//
// GrabbedFrame: the scene changes and is read. Real time, since the one who calls waits for the picture,
// while threads of the OpenGL driver, or the render thread of the view, work for it. No event is handled
// meanwhile, so the frame that ours and the view each draw later on their own is left out.
//
// Frame: the scene changes and is drawn, not read. Ours comes by the window's timer, so its real time is that
// of the timer; the bare loop waits as long. What differs is the work, which is the processor time of the
// whole process: a driver that draws in software does so in threads of its own, and goes on when the frame
// has ended.
//
// Source: from the address of a small file to its picture, with the engine's cache of files emptied.
// FirstSource: the same in a new window with a new engine, which are made beforehand; takes in what the first
// frame of a window has to set up.

namespace {

using namespace Qt::StringLiterals;

// 200 rectangles and 50 texts. One of each changes in each step.
constexpr const char* g_scene = R"(
import QtQuick

Rectangle {
    id: scene
    property int step: 0
    color: "white"

    Repeater {
        model: 200
        Rectangle {
            x: (index % 20 + (index === 0 ? scene.step % 10 / 10 : 0)) * scene.width / 20
            y: Math.floor(index / 20) * scene.height / 10
            width: scene.width / 24
            height: scene.height / 12
            color: Qt.hsla(index / 200, 0.6, 0.7, 1)
        }
    }
    Repeater {
        model: 50
        Text {
            x: index % 5 * scene.width / 5
            y: Math.floor(index / 5) * scene.height / 10
            font.pixelSize: scene.height / 20
            text: index === 0 ? "Step " + scene.step : "Layer mask " + index
        }
    }
}
)";

constexpr const char* g_small_file = R"(
import QtQuick

Rectangle {
    color: "white"

    Rectangle {
        anchors { fill: parent; margins: 10 }
        color: "steelblue"

        Text {
            anchors.centerIn: parent
            text: "Histogram"
        }
    }
}
)";

constexpr QSize g_small(200, 100);
constexpr QSize g_large(1920, 1080);

class QmlFiles
{
public:
    QUrl Scene() const { return Write(u"Scene.qml"_s, g_scene); }
    QUrl Small() const { return Write(u"Small.qml"_s, g_small_file); }

private:
    QUrl Write(const QString& name, const char* text) const
    {
        QFile file(m_dir.filePath(name));
        if (!file.exists() && (!file.open(QIODevice::WriteOnly) || file.write(text) < 0))
            qFatal("%s cannot be written", qPrintable(file.fileName()));
        return QUrl::fromLocalFile(file.fileName());
    }

    const QTemporaryDir m_dir;
};

// A rectangle at the left, and nothing in the corner.
bool is_picture(const QImage& picture, const QSize& size)
{
    const QPoint last(size.width() - 1, size.height() - 1);
    return picture.size() == size && picture.pixel(0, size.height() / 2) != picture.pixel(last);
}

template <class Side>
void grabbed_frame(benchmark::State& state, const QmlFiles& files, const QSize& size)
{
    Side side(size);
    side.Load(files.Scene());
    QImage picture = side.Grab();
    for (auto step : state) {
        side.Change();
        picture = side.Grab();
    }
    if (!is_picture(picture, size))
        state.SkipWithError("no picture");
}

void read_pixels(benchmark::State& state, const QmlFiles& files, const QSize& size)
{
    BareLoop side(size);
    side.Load(files.Scene());
    side.Grab();
    for (auto step : state)
        side.ReadPixels();
}

template <class Side>
void frame(benchmark::State& state, const QmlFiles& files, const QSize& size)
{
    Side side(size);
    side.Load(files.Scene());
    side.Frame();
    for (auto step : state) {
        side.Change();
        side.Frame();
    }
    if (!is_picture(side.Grab(), size))
        state.SkipWithError("no picture");
}

template <class Side>
void source(benchmark::State& state, const QmlFiles& files)
{
    Side side(g_small);
    side.Load(files.Small());
    side.Grab();
    for (auto step : state) {
        state.PauseTiming();
        side.Engine()->clearComponentCache();
        state.ResumeTiming();
        side.Load(files.Small());
        benchmark::DoNotOptimize(side.Grab());
    }
}

template <class Side>
void first_source(benchmark::State& state, const QmlFiles& files)
{
    for (auto step : state) {
        state.PauseTiming();
        auto side = std::make_unique<Side>(g_small);
        state.ResumeTiming();
        side->Load(files.Small());
        benchmark::DoNotOptimize(side->Grab());
        state.PauseTiming();
        side.reset();
        state.ResumeTiming();
    }
}

// Short runs and many of them: whatever else the machine does meets all sides alike.
template <class Measure, class... Arguments>
auto add(const std::string& name, Measure measure, const Arguments&... arguments)
{
    return benchmark::RegisterBenchmark(name, measure, std::cref(arguments)...)
        ->Unit(benchmark::kMicrosecond)
        ->MinTime(0.1)
        ->Repetitions(25);
}

void add_frames(const QmlFiles& files, const std::string& name, const QSize& size)
{
    add("GrabbedFrame/Arbor/" + name, grabbed_frame<OffscreenSide>, files, size)->UseRealTime();
    add("GrabbedFrame/BareLoop/" + name, grabbed_frame<BareLoop>, files, size)->UseRealTime();
    add("GrabbedFrame/QQuickView/" + name, grabbed_frame<ShownView>, files, size)->UseRealTime();
    add("GrabbedFrame/ReadPixels/" + name, read_pixels, files, size)->UseRealTime();
    add("Frame/Arbor/" + name, frame<OffscreenSide>, files, size)->MeasureProcessCPUTime();
    add("Frame/BareLoop/" + name, frame<BareLoop>, files, size)->MeasureProcessCPUTime();
}

}

int main(int argc, char** argv)
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    const QGuiApplication application(argc, argv);
    const QmlFiles files;
    add_frames(files, "200x100", g_small);
    add_frames(files, "1920x1080", g_large);
    add("Source/Arbor", source<OffscreenSide>, files)->UseRealTime();
    add("Source/BareLoop", source<BareLoop>, files)->UseRealTime();
    add("FirstSource/Arbor", first_source<OffscreenSide>, files)->UseRealTime();
    add("FirstSource/BareLoop", first_source<BareLoop>, files)->UseRealTime();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
