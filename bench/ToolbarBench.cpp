#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "AbstractGui/CVqAbstractControl.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqStringW.h"
#include "system/CVqVariant.h"

#include <QAction>
#include <QApplication>
#include <QToolBar>
#include <QVariantList>
#include <QVariantMap>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <memory>
#include <random>
#include <vector>

// A toolbar of 100 buttons, none of which is drawn, against QToolBar with actions: building it, setting the
// check of a random button, saving and loading, and comparing what was saved. Both sides get the same texts
// in the same order. What QToolBar saves is a list of maps, as an application would write it.

namespace {

using namespace Qt::StringLiterals;

constexpr int g_buttons = 100;

struct Texts
{
    QString name;
    QString label;
    QString tooltip;
    QString command;
};

const std::vector<Texts>& texts()
{
    static const std::vector<Texts> all = [] {
        std::vector<Texts> made;
        for (int number = 0; number < g_buttons; ++number) {
            const QString digits = QString::number(number);
            made.push_back({u"Button"_s + digits, u"&Rotate the layer "_s + digits,
                            u"Rotates the current layer by a quarter turn, "_s + digits,
                            u"RotateLayer("_s + digits + u")"_s});
        }
        return made;
    }();
    return all;
}

/// The same in the form of our side.
struct ArborTexts
{
    explicit ArborTexts(const Texts& texts)
        : name(CVqStringW::FromQString(texts.name)),
          label(CVqStringW::FromQString(texts.label)),
          tooltip(CVqStringW::FromQString(texts.tooltip)),
          command(CVqStringW::FromQString(texts.command))
    { }

    CVqStringW name;
    CVqStringW label;
    CVqStringW tooltip;
    CVqStringW command;
};

const std::vector<ArborTexts>& arbor_texts()
{
    static const std::vector<ArborTexts> all(texts().begin(), texts().end());
    return all;
}

class ArborBar final : public CVqAbstractButtonToolbar
{
public:
    ArborBar()
    {
        m_pToolbar = new CVqAbstractToolbar;
        m_pToolbar->CreateUI(0, EToolbarType::Fixed, VQ_TEXT("bar"));
    }
    ArborBar(const ArborBar&) = delete;
    ArborBar& operator=(const ArborBar&) = delete;
    ~ArborBar() override { m_pToolbar->DestroyUI(); }

    IVqUIcontrol* CreateControlButton(bool) override { return new CVqAbstractControl; }

    void Fill()
    {
        for (const ArborTexts& text : arbor_texts()) {
            const vq_uint64 id = AddButton(text.name);
            SetTextsOnButton(id, 0, text.tooltip, text.label, text.command);
            m_ids.push_back(id);
        }
    }

    void Check(int button, bool on) { SetCheck(m_ids[static_cast<std::size_t>(button)], on); }

private:
    std::vector<vq_uint64> m_ids;
};

class QtBar
{
public:
    void Fill()
    {
        for (const Texts& text : texts())
            Add(text.name, text.label, text.tooltip, text.command);
    }

    void Check(int button, bool on) { m_actions[static_cast<std::size_t>(button)]->setChecked(on); }

    QVariantList Saved() const
    {
        QVariantList records;
        for (const QAction* action : m_actions)
            records.append(QVariantMap{{u"name"_s, action->objectName()},
                                       {u"text"_s, action->text()},
                                       {u"tooltip"_s, action->toolTip()},
                                       {u"command"_s, action->data()}});
        return records;
    }

    void Load(const QVariantList& records)
    {
        m_bar.clear();
        m_actions.clear();
        for (const QVariant& record : records) {
            const QVariantMap fields = record.toMap();
            Add(fields[u"name"_s].toString(), fields[u"text"_s].toString(), fields[u"tooltip"_s].toString(),
                fields[u"command"_s].toString());
        }
    }

private:
    void Add(const QString& name, const QString& label, const QString& tooltip, const QString& command)
    {
        QAction* action = m_bar.addAction(label);
        action->setObjectName(name);
        action->setToolTip(tooltip);
        action->setData(command);
        action->setCheckable(true);
        m_actions.push_back(action);
    }

    QToolBar m_bar;
    std::vector<QAction*> m_actions; // owned by the bar
};

template <class Bar>
void build(benchmark::State& state)
{
    for (auto _ : state) {
        auto bar = std::make_unique<Bar>();
        bar->Fill();
        benchmark::DoNotOptimize(bar.get());
        state.PauseTiming();
        bar.reset();
        state.ResumeTiming();
    }
}

template <class Bar>
void check_random_button(benchmark::State& state)
{
    Bar bar;
    bar.Fill();
    std::mt19937 random(1);
    std::vector<int> order(1024);
    for (int& button : order)
        button = static_cast<int>(random() % g_buttons);
    std::size_t at = 0;
    for (auto _ : state) {
        bar.Check(order[at % order.size()], at / order.size() % 2 == 0);
        ++at;
    }
}

template <class Container>
void save_arbor(benchmark::State& state);

template <>
void save_arbor<CVqVariant>(benchmark::State& state)
{
    ArborBar bar;
    bar.Fill();
    for (auto _ : state) {
        CVqVariant saved;
        bar.Save(saved, VQ_TEXT("bar"));
        benchmark::DoNotOptimize(saved);
    }
}

template <>
void save_arbor<CVqLiteVariantR>(benchmark::State& state)
{
    ArborBar bar;
    bar.Fill();
    for (auto _ : state) {
        CVqLiteVariantR saved;
        bar.Save(saved);
        benchmark::DoNotOptimize(saved);
    }
}

void save_qt(benchmark::State& state)
{
    QtBar bar;
    bar.Fill();
    for (auto _ : state)
        benchmark::DoNotOptimize(bar.Saved());
}

void load_tree(benchmark::State& state)
{
    ArborBar bar;
    bar.Fill();
    CVqVariant saved;
    bar.Save(saved, nullptr);
    for (auto _ : state)
        benchmark::DoNotOptimize(bar.Load(saved, nullptr));
}

void load_stream(benchmark::State& state)
{
    ArborBar bar;
    bar.Fill();
    CVqLiteVariantR saved;
    bar.Save(saved);
    for (auto _ : state)
        benchmark::DoNotOptimize(bar.Load(saved));
}

void load_qt(benchmark::State& state)
{
    QtBar bar;
    bar.Fill();
    const QVariantList saved = bar.Saved();
    for (auto _ : state)
        bar.Load(saved);
}

void compare_arbor(benchmark::State& state)
{
    ArborBar bar;
    bar.Fill();
    CVqVariant left;
    CVqVariant right;
    bar.Save(left, nullptr);
    bar.Save(right, nullptr);
    for (auto _ : state) {
        if (!CVqAbstractButtonToolbar::IsEqual(left, right))
            std::abort();
    }
}

void compare_qt(benchmark::State& state)
{
    QtBar left;
    QtBar right;
    left.Fill();
    right.Fill();
    const QVariantList left_saved = left.Saved();
    const QVariantList right_saved = right.Saved();
    for (auto _ : state) {
        if (left_saved != right_saved)
            std::abort();
    }
}

}

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::RegisterBenchmark("BuildToolbar/Arbor", build<ArborBar>);
    benchmark::RegisterBenchmark("BuildToolbar/QToolBar", build<QtBar>);
    benchmark::RegisterBenchmark("CheckButton/Arbor", check_random_button<ArborBar>);
    benchmark::RegisterBenchmark("CheckButton/QToolBar", check_random_button<QtBar>);
    benchmark::RegisterBenchmark("SaveToolbarTree/Arbor", save_arbor<CVqVariant>);
    benchmark::RegisterBenchmark("SaveToolbarTree/QToolBar", save_qt);
    benchmark::RegisterBenchmark("SaveToolbarStream/Arbor", save_arbor<CVqLiteVariantR>);
    benchmark::RegisterBenchmark("SaveToolbarStream/QToolBar", save_qt);
    benchmark::RegisterBenchmark("LoadToolbarTree/Arbor", load_tree);
    benchmark::RegisterBenchmark("LoadToolbarTree/QToolBar", load_qt);
    benchmark::RegisterBenchmark("LoadToolbarStream/Arbor", load_stream);
    benchmark::RegisterBenchmark("LoadToolbarStream/QToolBar", load_qt);
    benchmark::RegisterBenchmark("CompareToolbars/Arbor", compare_arbor);
    benchmark::RegisterBenchmark("CompareToolbars/QVariantList", compare_qt);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
