#include "bench/StoredMenuSides.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqVariant.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iostream>
#include <memory>

// A menu of 1,000 items with their keys, to bytes and back, and to a tree in memory and back, against what
// Qt offers. `bytes` is what the menu takes on disk. Loading ends when the menu is complete; making an empty
// one and taking the full one down is left out, as is freeing what was saved.

namespace {

using namespace Qt::StringLiterals;

BenchMenu& full_menu()
{
    static BenchMenu menu;
    if (!menu.Root().subItem())
        FillBenchMenu(menu);
    return menu;
}

template <class Side>
void save_bytes(benchmark::State& state)
{
    qsizetype size = 0;
    for (auto step : state)
        size = Side::Save(full_menu()).size();
    state.counters["bytes"] = double(size);
}

/// Measures `load` on a new menu each time.
template <class Load>
void load_each_time(benchmark::State& state, Load load)
{
    for (auto step : state) {
        state.PauseTiming();
        auto menu = std::make_unique<BenchMenu>();
        state.ResumeTiming();
        load(*menu);
        state.PauseTiming();
        menu.reset();
        state.ResumeTiming();
    }
}

template <class Side>
void load_bytes(benchmark::State& state)
{
    const QByteArray bytes = Side::Save(full_menu());
    load_each_time(state, [&](BenchMenu& menu) { Side::Load(bytes, menu); });
}

void save_settings(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"menu.ini"_s);
    for (auto step : state)
        SettingsSide::Save(full_menu(), file);
    state.counters["bytes"] = double(QFileInfo(file).size());
}

// Settings keep what they read until the file's time changes.
void load_settings(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(u"menu.ini"_s);
    SettingsSide::Save(full_menu(), name);
    QFile file(name);
    file.open(QFile::ReadWrite);
    QDateTime time = QFileInfo(name).lastModified();
    load_each_time(state, [&](BenchMenu& menu) {
        time = time.addSecs(1);
        file.setFileTime(time, QFile::FileModificationTime);
        SettingsSide::Load(name, menu);
    });
}

/// Gives an object whose end is not measured.
template <class Save>
void save_tree(benchmark::State& state, Save save)
{
    for (auto step : state) {
        auto tree = save();
        state.PauseTiming();
        tree = decltype(tree)();
        state.ResumeTiming();
    }
}

template <class Container>
Container saved()
{
    Container container;
    full_menu().Save(container);
    return container;
}

template <class Container>
void add_ours_in_memory(const std::string& form)
{
    benchmark::RegisterBenchmark("Save" + form + "InMemory/Arbor", [](benchmark::State& state) {
        save_tree(state, saved<Container>);
    })->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("Load" + form + "InMemory/Arbor", [](benchmark::State& state) {
        Container container = saved<Container>();
        load_each_time(state, [&](BenchMenu& menu) { menu.Load(container); });
    })->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("Save" + form + "InMemory/QVariantMap", [](benchmark::State& state) {
        save_tree(state, [] { return StreamSide::SaveTree(full_menu()); });
    })->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("Load" + form + "InMemory/QVariantMap", [](benchmark::State& state) {
        const QVariantMap tree = StreamSide::SaveTree(full_menu());
        load_each_time(state, [&](BenchMenu& menu) { StreamSide::LoadTree(tree, menu); });
    })->Unit(benchmark::kMicrosecond);
}

template <class Side>
void add_side(const std::string& form, const std::string& who)
{
    benchmark::RegisterBenchmark("Save" + form + "/" + who, save_bytes<Side>)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("Load" + form + "/" + who, load_bytes<Side>)->Unit(benchmark::kMicrosecond);
}

template <class Ours>
void add_form(const std::string& form)
{
    add_side<Ours>(form, "Arbor");
    add_side<CborSide>(form, "QCborValue");
    add_side<JsonSide>(form, "QJsonDocument");
    add_side<StreamSide>(form, "QDataStream");
    benchmark::RegisterBenchmark("Save" + form + "/QSettings", save_settings)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("Load" + form + "/QSettings", load_settings)->Unit(benchmark::kMicrosecond);
}

/// Ends the program when a side does not bring the whole menu back.
template <class Load>
void require_same_menu(const char* side, Load load)
{
    BenchMenu menu;
    load(menu);
    if (LiteSide::Save(menu) == LiteSide::Save(full_menu()))
        return;
    std::cerr << side << " loads another menu\n";
    std::exit(1);
}

template <class Side>
void require_same_menu(const char* side)
{
    require_same_menu(side, [](BenchMenu& menu) { Side::Load(Side::Save(full_menu()), menu); });
}

void require_same_menus()
{
    require_same_menu<LiteSide>("LiteSide");
    require_same_menu<TreeSide>("TreeSide");
    require_same_menu<CborSide>("CborSide");
    require_same_menu<JsonSide>("JsonSide");
    require_same_menu<StreamSide>("StreamSide");
    require_same_menu("SettingsSide", [](BenchMenu& menu) {
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"menu.ini"_s);
        SettingsSide::Save(full_menu(), file);
        SettingsSide::Load(file, menu);
    });
}

}

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    require_same_menus();
    add_form<LiteSide>("Lite");
    add_form<TreeSide>("Tree");
    add_ours_in_memory<CVqLiteVariantR>("Lite");
    add_ours_in_memory<CVqVariant>("Tree");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
