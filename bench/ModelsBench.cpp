#include "bench/ModelRows.h"
#include "qml/CVqSortFilterProxyModel.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <typeinfo>

// The proxy against QSortFilterProxyModel, filtering as most write it in a subclass, and against KDE's proxy
// for QML where its module is installed; and row access of the list model against QStandardItemModel. All
// proxies of a case have the same source and let the same rows pass.

namespace {

using namespace Qt::StringLiterals;

enum class Syntax
{
    RegExp,
    Wildcard,
    FixedString,
};

// What all proxies can do, each in its own way.
class Side
{
public:
    virtual ~Side() = default;
    virtual QSortFilterProxyModel& Model() = 0;
    /// Filters by the name, or by any role.
    virtual void SetAnyRole(bool any) = 0;
    virtual void SetText(const QString& text, Syntax syntax) = 0;
    /// By the name.
    virtual void Sort(Qt::SortOrder order) = 0;
};

class ArborSide : public Side
{
public:
    explicit ArborSide(QAbstractItemModel& source)
    {
        m_proxy.setSource(&source);
        m_proxy.setSortRole("name");
        m_proxy.componentComplete();
    }

    QSortFilterProxyModel& Model() override { return m_proxy; }
    void SetAnyRole(bool any) override { m_proxy.setFilterRole(any ? "" : "name"); }
    void Sort(Qt::SortOrder order) override { m_proxy.setSortOrder(order); }

    void SetText(const QString& text, Syntax syntax) override
    {
        m_proxy.setFilterSyntax(static_cast<CVqSortFilterProxyModel::FilterSyntax>(syntax));
        m_proxy.setFilterString(text);
    }

private:
    CVqSortFilterProxyModel m_proxy;
};

/// A subclass with a filterAcceptsRow() as most write it.
class PlainSide : public Side
{
public:
    explicit PlainSide(QAbstractItemModel& source)
    {
        m_proxy.setSourceModel(&source);
        m_proxy.setFilterRole(NameRole);
        m_proxy.setSortRole(NameRole);
    }

    QSortFilterProxyModel& Model() override { return m_proxy; }
    void SetAnyRole(bool any) override { m_proxy.any_role = any; }
    void Sort(Qt::SortOrder order) override { m_proxy.sort(0, order); }

    void SetText(const QString& text, Syntax syntax) override
    {
        if (syntax == Syntax::RegExp)
            m_proxy.setFilterRegularExpression(text);
        else if (syntax == Syntax::Wildcard)
            m_proxy.setFilterWildcard(text);
        else
            m_proxy.setFilterFixedString(text);
    }

private:
    class Proxy : public QSortFilterProxyModel
    {
    public:
        bool any_role = false;

    protected:
        bool filterAcceptsRow(int source_row, const QModelIndex& source_parent) const override
        {
            const QModelIndex index = sourceModel()->index(source_row, 0, source_parent);
            const QRegularExpression expression = filterRegularExpression();
            if (!any_role)
                return index.data(filterRole()).toString().contains(expression);
            for (const auto& [role, name] : sourceModel()->roleNames().asKeyValueRange()) {
                if (index.data(role).toString().contains(expression))
                    return true;
            }
            return false;
        }
    };

    Proxy m_proxy;
};

/// What one role costs: all of them may cost that for each.
class OneRoleSide : public PlainSide
{
public:
    using PlainSide::PlainSide;
    void SetAnyRole(bool) override { }
};

QQmlComponent& kde_component()
{
    static auto* engine = new QQmlEngine(QCoreApplication::instance());
    static auto* component = new QQmlComponent(engine, engine);
    return *component;
}

// Null where the module is not installed.
QObject* make_kde_proxy()
{
    QQmlComponent& component = kde_component();
    if (component.status() == QQmlComponent::Null)
        component.setData("import org.kde.kitemmodels\nKSortFilterProxyModel {}", QUrl());
    return component.isReady() ? component.create() : nullptr;
}

/// KDE's proxy filters by one role only.
class KdeSide : public Side
{
public:
    explicit KdeSide(QAbstractItemModel& source) : m_proxy(make_kde_proxy())
    {
        Model().setSourceModel(&source);
        m_proxy->setProperty("filterRoleName", u"name"_s);
        m_proxy->setProperty("sortRoleName", u"name"_s);
        m_proxy->setProperty("sortColumn", 0);
    }

    QSortFilterProxyModel& Model() override { return *qobject_cast<QSortFilterProxyModel*>(m_proxy.get()); }
    void SetAnyRole(bool) override { }
    void Sort(Qt::SortOrder order) override { m_proxy->setProperty("sortOrder", order); }

    void SetText(const QString& text, Syntax syntax) override
    {
        if (syntax == Syntax::FixedString)
            m_proxy->setProperty("filterString", text);
        else if (syntax == Syntax::RegExp)
            Model().setFilterRegularExpression(QRegularExpression(text));
        else
            Model().setFilterWildcard(text);
    }

private:
    std::unique_ptr<QObject> m_proxy;
};

/// The rows of one size, made once.
PictureRows& source_of(int rows)
{
    static PictureRows small(10000);
    static PictureRows large(100000);
    return rows == 10000 ? small : large;
}

void check_count(const Side& side, int count, int expected)
{
    if (count != expected) {
        std::fprintf(stderr, "%s lets %d rows pass instead of %d\n", typeid(side).name(), count, expected);
        std::abort();
    }
}

struct Case
{
    const char* name;
    Syntax syntax;
    bool any_role;
    // Two texts in turn, so that each run filters all rows.
    QStringList texts;
};

int plain_count(const Case& filter, const QString& text, int rows)
{
    PlainSide plain(source_of(rows));
    plain.SetAnyRole(filter.any_role);
    plain.SetText(text, filter.syntax);
    return plain.Model().rowCount();
}

template <typename Proxy>
void filter_rows(benchmark::State& state, const Case& filter, bool compare)
{
    const int rows = static_cast<int>(state.range(0));
    Proxy side(source_of(rows));
    side.SetAnyRole(filter.any_role);
    for (const QString& text : filter.texts) {
        side.SetText(text, filter.syntax);
        if (compare)
            check_count(side, side.Model().rowCount(), plain_count(filter, text, rows));
    }

    for (auto _ : state) {
        for (const QString& text : filter.texts)
            side.SetText(text, filter.syntax);
        benchmark::DoNotOptimize(side.Model().rowCount());
    }
}

template <typename Proxy>
void sort_rows(benchmark::State& state)
{
    Proxy side(source_of(static_cast<int>(state.range(0))));
    side.Sort(Qt::AscendingOrder);
    benchmark::DoNotOptimize(side.Model().rowCount());

    for (auto _ : state) {
        side.Sort(Qt::DescendingOrder);
        side.Sort(Qt::AscendingOrder);
        benchmark::DoNotOptimize(side.Model().index(0, 0));
    }
}

// Row access -------------------------------------------------------------------------------------------

std::unique_ptr<QStandardItemModel> make_items(int count)
{
    auto model = std::make_unique<QStandardItemModel>();
    for (const PictureRow& row : MakePictureRows(count)) {
        auto* item = new QStandardItem;
        item->setData(row.name, NameRole);
        item->setData(row.folder, FolderRole);
        item->setData(row.kind, KindRole);
        item->setData(row.size, SizeRole);
        item->setData(row.changed, ChangedRole);
        model->appendRow(item);
    }
    return model;
}

void read_rows(benchmark::State& state, const QAbstractItemModel& model)
{
    const int rows = model.rowCount();
    for (auto _ : state) {
        for (int row = 0; row < rows; ++row) {
            const QModelIndex index = model.index(row, 0);
            for (int role = NameRole; role < EndRole; ++role)
                benchmark::DoNotOptimize(model.data(index, role));
        }
    }
}

void read_arbor(benchmark::State& state)
{
    const PictureMaps model(10000);
    read_rows(state, model);
}

void read_items(benchmark::State& state)
{
    read_rows(state, *make_items(10000));
}

// The programs -----------------------------------------------------------------------------------------

QStringList typed(const QString& text)
{
    QStringList texts{QString()};
    for (qsizetype size = 1; size <= text.size(); ++size)
        texts += text.left(size);
    return texts;
}

const std::vector<Case>& cases()
{
    static const std::vector<Case> all{
        {"FilterOneRole", Syntax::RegExp, false, {u"_0*7\\d+\\.tif$"_s, u"_0*3\\d+\\.png$"_s}},
        {"FilterAnyRole", Syntax::RegExp, true, {u"-0[3-4]-1\\d$"_s, u"session [27]5"_s}},
        {"FilterWildcard", Syntax::Wildcard, false, {u"00?7*.tif"_s, u"00?3*.png"_s}},
        {"TypedSearch", Syntax::FixedString, false, typed(u"picture_00"_s)},
        {"TypedSearchAnyRole", Syntax::FixedString, true, typed(u"session 12"_s)},
    };
    return all;
}

template <typename Run>
void add(const std::string& name, Run run)
{
    benchmark::RegisterBenchmark(name, run)->Unit(benchmark::kMillisecond)->Arg(10000)->Arg(100000);
}

template <typename Proxy>
void add_filter(const Case& filter, const char* who, bool compare = true)
{
    add(std::string(filter.name) + "/" + who,
        [&filter, compare](benchmark::State& state) { filter_rows<Proxy>(state, filter, compare); });
}

void register_all()
{
    const bool has_kde = std::unique_ptr<QObject>(make_kde_proxy()) != nullptr;
    for (const Case& filter : cases()) {
        add_filter<ArborSide>(filter, "Arbor");
        add_filter<PlainSide>(filter, "QSortFilterProxyModel");
        if (filter.any_role)
            add_filter<OneRoleSide>(filter, "OneRole", false);
        if (has_kde && !filter.any_role)
            add_filter<KdeSide>(filter, "KSortFilterProxyModel");
    }
    add("Sort/Arbor", sort_rows<ArborSide>);
    add("Sort/QSortFilterProxyModel", sort_rows<PlainSide>);
    if (has_kde)
        add("Sort/KSortFilterProxyModel", sort_rows<KdeSide>);
    benchmark::RegisterBenchmark("RowAccess/Arbor", read_arbor);
    benchmark::RegisterBenchmark("RowAccess/QStandardItemModel", read_items);
}

}

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    register_all();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
