#include "AbstractGui/CVqAbstractMenu.h"
#include "quick_backend/CVqQuickMenu.h"
#include "system/CVqStringW.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QStandardItemModel>

#include <benchmark/benchmark.h>

#include <functional>
#include <malloc.h>
#include <memory>
#include <random>
#include <string>
#include <vector>

// Building menus with texts and keys, and finding an item by its identifier, against QMenu with actions and
// against QStandardItemModel. All sides get the same texts in the same order. What is measured ends when the
// menu is complete; taking it down is left out. Build... is the model alone, BuildShown... has the rows that
// Qt Quick shows; neither side has a window.

namespace {

using namespace Qt::StringLiterals;

using Text = std::basic_string<vq_wchar>;

struct Entry
{
    vq_uint32 id;
    Text text_with_key; // label, BEL and key
    Text command;
    QString label;
    QString key;
    QString qt_command;
};

Text wide(const QString& text)
{
    return Text(CVqStringW::FromQString(text).View());
}

QString key_text(int number)
{
    static const QStringList modifiers
        = u"Ctrl+ Alt+ Ctrl+Shift+ Alt+Shift+ Ctrl+Alt+ Ctrl+Alt+Shift+"_s.split(u' ');
    static const QString keys = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"_s;
    return modifiers[number / keys.size() % modifiers.size()] + keys[number % keys.size()];
}

QString label_text(int number)
{
    static const QStringList verbs
        = u"Open Rotate Adjust Convert Export Select Sharpen Measure"_s.split(u' ');
    static const QStringList nouns = u"image layer mask channel selection palette histogram"_s.split(u' ');
    return u"&%1 %2 %3..."_s.arg(verbs[number % verbs.size()], nouns[number % nouns.size()]).arg(number);
}

std::vector<Entry> make_entries(int count)
{
    std::vector<Entry> entries;
    for (int number = 0; number < count; ++number) {
        const QString label = label_text(number);
        const QString key = key_text(number);
        const QString command = u"Command%1(1);"_s.arg(number);
        entries.push_back(
            {vq_uint32(number + 1000), wide(label + u'\a' + key), wide(command), label, key, command});
    }
    return entries;
}

/// Popups of `items` each; the program makes them once and hands them to all sides.
struct Plan
{
    Plan(int popups_, int items_)
        : popups(popups_), items(items_), entries(make_entries(popups_ * items_)) { }

    int popups;
    int items;
    std::vector<Entry> entries;
};

void fill(CVqAbstractMenu& menu, const Plan& plan)
{
    auto entry = plan.entries.begin();
    for (int popup = 1; popup <= plan.popups; ++popup) {
        menu.AppendPopup(vq_uint32(popup), 0, VQ_TEXT("&Popup"));
        for (int item = 0; item < plan.items; ++item, ++entry)
            menu.AppendMenuItem(entry->id, vq_uint32(popup), entry->text_with_key.c_str(),
                                entry->command.c_str(), 0);
    }
}

class ArborMenu : public CVqAbstractMenu
{
public:
    explicit ArborMenu(const Plan& plan)
    {
        m_pRoot = CVqAbstractMenu::Manipulators().create_item_mainroot(0);
        fill(*this, plan);
    }

    bool Has(vq_uint32 id)
    {
        vq_uint32 status = 0;
        return GetIdStatus(id, status) == 0;
    }
};

class QuickMenu : public CVqQuickMenu
{
public:
    explicit QuickMenu(const Plan& plan) { fill(*this, plan); }
};

class QtMenu
{
public:
    explicit QtMenu(const Plan& plan)
    {
        auto entry = plan.entries.begin();
        for (int popup = 0; popup < plan.popups; ++popup) {
            QMenu* menu = m_root.addMenu(u"&Popup"_s);
            for (int item = 0; item < plan.items; ++item, ++entry) {
                QAction* action = menu->addAction(entry->label);
                action->setShortcut(QKeySequence(entry->key));
                action->setObjectName(entry->qt_command);
                action->setData(entry->id);
            }
            m_menus.push_back(menu);
        }
    }

    bool Has(vq_uint32 id) const
    {
        for (const QMenu* menu : m_menus)
            for (const QAction* action : menu->actions())
                if (action->data().toUInt() == id)
                    return true;
        return false;
    }

private:
    QMenu m_root;
    std::vector<QMenu*> m_menus;
};

class QtModel
{
public:
    static constexpr int id_role = Qt::UserRole + 1;

    explicit QtModel(const Plan& plan)
    {
        auto entry = plan.entries.begin();
        for (int popup = 0; popup < plan.popups; ++popup) {
            auto* parent = new QStandardItem(u"&Popup"_s);
            m_model.appendRow(parent);
            for (int item = 0; item < plan.items; ++item, ++entry) {
                auto* row = new QStandardItem(entry->label);
                row->setData(QKeySequence(entry->key), Qt::UserRole + 2);
                row->setData(entry->qt_command, Qt::UserRole + 3);
                row->setData(entry->id, id_role);
                parent->appendRow(row);
            }
        }
    }

    bool Has(vq_uint32 id) const
    {
        return !m_model.match(m_model.index(0, 0), id_role, id, 1, Qt::MatchExactly | Qt::MatchRecursive)
                    .isEmpty();
    }

private:
    QStandardItemModel m_model;
};

double heap_bytes()
{
    const auto info = mallinfo2();
    return double(info.uordblks + info.hblkhd);
}

template <class Menu>
void build(benchmark::State& state, const Plan& plan)
{
    double bytes = 0;
    for (auto step : state) {
        const double before = heap_bytes();
        auto menu = std::make_unique<Menu>(plan);
        state.PauseTiming();
        bytes = heap_bytes() - before;
        menu.reset();
        state.ResumeTiming();
    }
    state.counters["bytes_per_item"] = bytes / double(plan.entries.size());
    state.SetItemsProcessed(state.iterations() * int64_t(plan.entries.size()));
}

template <class Menu>
void find_random(benchmark::State& state, const Plan& plan)
{
    Menu menu(plan);
    std::mt19937 random(1);
    for (auto step : state)
        benchmark::DoNotOptimize(menu.Has(plan.entries[random() % plan.entries.size()].id));
}

template <class Menu>
void find_repeated(benchmark::State& state, const Plan& plan)
{
    Menu menu(plan);
    const vq_uint32 id = plan.entries[plan.entries.size() * 3 / 4].id;
    for (auto step : state)
        benchmark::DoNotOptimize(menu.Has(id));
}

const Plan& twenty_of_fifty()
{
    static const Plan plan(20, 50);
    return plan;
}

const Plan& one_of_thousand()
{
    static const Plan plan(1, 1'000);
    return plan;
}

const Plan& one_of_ten_thousand()
{
    static const Plan plan(1, 10'000);
    return plan;
}

template <class Measure>
auto add(const std::string& name, Measure measure, const Plan& plan)
{
    return benchmark::RegisterBenchmark(name, measure, std::cref(plan));
}

template <class Menu>
void add_builds(const std::string& what, const std::string& who)
{
    add(what + "20x50/" + who, build<Menu>, twenty_of_fifty())->Unit(benchmark::kMicrosecond);
    add(what + "OnePopup/" + who + "/1000", build<Menu>, one_of_thousand())->Unit(benchmark::kMicrosecond);
    add(what + "OnePopup/" + who + "/10000", build<Menu>, one_of_ten_thousand())
        ->Unit(benchmark::kMicrosecond);
}

template <class Menu>
void add_finds(const std::string& who)
{
    add("FindRandom/" + who + "/1000", find_random<Menu>, twenty_of_fifty());
    add("FindRandom/" + who + "/10000", find_random<Menu>, one_of_ten_thousand());
    add("FindRepeated/" + who + "/1000", find_repeated<Menu>, twenty_of_fifty());
    add("FindRepeated/" + who + "/10000", find_repeated<Menu>, one_of_ten_thousand());
}

}

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    add_builds<ArborMenu>("Build", "Arbor");
    add_builds<QtMenu>("Build", "QMenu");
    add_builds<QtModel>("Build", "QStandardItemModel");
    add_builds<QuickMenu>("BuildShown", "Arbor");
    add_builds<QtMenu>("BuildShown", "QMenu");
    add_finds<ArborMenu>("Arbor");
    add_finds<QtMenu>("QMenu");
    add_finds<QtModel>("QStandardItemModel");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
