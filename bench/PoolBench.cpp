#include "quick_backend/CVqQuickBitmapPool.h"
#include "system/CVqStringW.h"
#include "tile_assets/VqTileAssets.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>
#include <vector>

// Icons of the image pool: looking up one that is drawn already against QPixmapCache, and making many from
// their texts against QSvgRenderer. Every side gets the same texts and sizes.

namespace {

using namespace Qt::StringLiterals;

constexpr int g_side = 24;
constexpr int g_count = 500;

struct IconText
{
    CVqStringW name;
    QByteArray svg;
};

// The project's icons again and again, each time with strokes of another width.
std::vector<IconText> make_icons()
{
    const QDir folder(VqTileAssetsRoot());
    const QStringList files = folder.entryList(QDir::Files);
    std::vector<IconText> icons;
    while (icons.size() < g_count) {
        const qsizetype number = qsizetype(icons.size());
        QFile file(folder.filePath(files[number % files.size()]));
        if (!file.open(QIODevice::ReadOnly))
            std::abort();
        const QByteArray width = "stroke-width=\"1." + QByteArray::number(50 + number / files.size()) + '"';
        icons.push_back({CVqStringW::FromQString(QString::number(number)),
                         file.readAll().replace("stroke-width=\"1.5\"", width)});
    }
    return icons;
}

const std::vector<IconText>& icons()
{
    static const std::vector<IconText> made = make_icons();
    return made;
}

QPixmap draw(QSvgRenderer& renderer)
{
    QPixmap pixmap(g_side, g_side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}

// Looking up -----------------------------------------------------------------------------------------------

template <class Find>
void look_up(benchmark::State& state, Find find)
{
    int at = 0;
    for (auto round : state) {
        QPixmap pixmap = find(at);
        benchmark::DoNotOptimize(pixmap);
        at = at + 1 == g_count ? 0 : at + 1;
    }
}

void hit_arbor(benchmark::State& state)
{
    const CVqQuickBitmapPool pool;
    for (const IconText& icon : icons())
        CVqAbstractBitmapPool::AddImageSVG(icon.name, icon.svg.constData());
    const auto find
        = [](int at) { return CVqAbstractBitmapPool::GetPixmap(vq_uint32(at) + 1, g_side, g_side); };
    for (int at = 0; at < g_count; ++at)
        find(at);
    look_up(state, find);
}

void hit_by_text(benchmark::State& state)
{
    QPixmapCache::clear();
    std::vector<QString> keys;
    for (const IconText& icon : icons()) {
        QSvgRenderer renderer(icon.svg);
        keys.push_back(u"icons/"_s + icon.name.ToQString());
        QPixmapCache::insert(keys.back(), draw(renderer));
    }
    look_up(state, [&](int at) {
        QPixmap pixmap;
        QPixmapCache::find(keys[std::size_t(at)], &pixmap);
        return pixmap;
    });
}

void hit_by_key(benchmark::State& state)
{
    QPixmapCache::clear();
    std::vector<QPixmapCache::Key> keys;
    for (const IconText& icon : icons()) {
        QSvgRenderer renderer(icon.svg);
        keys.push_back(QPixmapCache::insert(draw(renderer)));
    }
    look_up(state, [&](int at) {
        QPixmap pixmap;
        QPixmapCache::find(keys[std::size_t(at)], &pixmap);
        return pixmap;
    });
}

// Making ---------------------------------------------------------------------------------------------------

void load_arbor(benchmark::State& state)
{
    for (auto round : state) {
        const CVqQuickBitmapPool pool;
        for (const IconText& icon : icons()) {
            const int index = CVqAbstractBitmapPool::AddImageSVG(icon.name, icon.svg.constData());
            QPixmap pixmap = CVqAbstractBitmapPool::GetPixmap(vq_uint32(index), g_side, g_side);
            benchmark::DoNotOptimize(pixmap);
        }
    }
}

// All are kept, as the pool keeps them.
void load_renderer(benchmark::State& state)
{
    for (auto round : state) {
        std::vector<QPixmap> pixmaps;
        for (const IconText& icon : icons()) {
            QSvgRenderer renderer(icon.svg);
            pixmaps.push_back(draw(renderer));
        }
        benchmark::DoNotOptimize(pixmaps.data());
    }
}

}

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    benchmark::RegisterBenchmark("PixmapHit/Arbor", hit_arbor);
    benchmark::RegisterBenchmark("PixmapHit/QPixmapCacheByText", hit_by_text);
    benchmark::RegisterBenchmark("PixmapHit/QPixmapCacheByKey", hit_by_key);
    benchmark::RegisterBenchmark("Load500Svg/Arbor", load_arbor)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("Load500Svg/QSvgRenderer", load_renderer)->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
