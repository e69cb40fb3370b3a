#include "qml/CVqSortFilterProxyModel.h"
#include "tests/qml/NamedRows.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

// Random sources, filters and orders, with Qt's tester watching the proxy and a plain list beside it; what
// the tester finds is a warning, and a warning fails the test.

namespace {

using namespace Qt::StringLiterals;

struct Row
{
    std::string name;
    int size;
};

class RandomProxy : public testing::TestWithParam<unsigned>
{
protected:
    RandomProxy()
    {
        m_proxy.setSource(&m_model);
        m_proxy.setFilterSyntax(CVqSortFilterProxyModel::FixedString);
        m_proxy.setSortRole("size");
        m_proxy.componentComplete();
    }

    int Any(int least, int most) { return std::uniform_int_distribution<int>(least, most)(m_random); }
    int AnyRow() { return Any(0, static_cast<int>(m_rows.size()) - 1); }

    // Sizes differ, so that there is one order only; names are short, so that many match.
    Row NewRow()
    {
        return {{static_cast<char>('a' + Any(0, 2)), static_cast<char>('a' + Any(0, 2))}, NewSize()};
    }

    int NewSize()
    {
        const int size = Any(0, 1 << 20) * 1024 + static_cast<int>(m_rows.size());
        return m_sizes[size]++ == 0 ? size : NewSize();
    }

    void Step()
    {
        switch (Any(0, 7)) {
        case 0:
        case 1:
            return Append();
        case 2:
            return Fill();
        case 3:
            return Move();
        case 4:
            return Remove();
        case 5:
            m_proxy.setFilterString(QString::fromStdString(m_text = AnyText()));
            return;
        case 6:
            m_role = Any(0, 1) ? "name" : "";
            m_proxy.setFilterRole(QByteArray::fromStdString(m_role));
            return;
        default:
            m_sorted = true;
            m_descending = Any(0, 1);
            m_proxy.setSortOrder(m_descending ? Qt::DescendingOrder : Qt::AscendingOrder);
        }
    }

    void Append()
    {
        m_rows.push_back(NewRow());
        m_model.Append(QString::fromStdString(m_rows.back().name), m_rows.back().size);
    }

    void Fill()
    {
        if (m_rows.empty())
            return;
        const int row = AnyRow();
        Row& changed = m_rows[static_cast<std::size_t>(row)] = NewRow();
        m_model.Fill(row, QString::fromStdString(changed.name), changed.size);
    }

    void Move()
    {
        if (m_rows.empty())
            return;
        const int from = AnyRow();
        const int to = AnyRow();
        const Row moved = m_rows[static_cast<std::size_t>(from)];
        m_rows.erase(m_rows.begin() + from);
        m_rows.insert(m_rows.begin() + to, moved);
        m_model.moveRow(from, to);
    }

    void Remove()
    {
        if (m_rows.size() < 3)
            return;
        const int row = Any(0, static_cast<int>(m_rows.size()) - 3);
        m_rows.erase(m_rows.begin() + row);
        m_model.removeRows(row, 1);
    }

    std::string AnyText()
    {
        static const char* const texts[] = {"", "a", "b", "ab", "ca", "1", "(", "77"};
        return texts[Any(0, 7)];
    }

    bool Passes(const Row& row) const
    {
        const bool by_name = row.name.find(m_text) != std::string::npos;
        return by_name || (m_role.empty() && std::to_string(row.size).find(m_text) != std::string::npos);
    }

    Texts Expected() const
    {
        std::vector<Row> rows;
        std::copy_if(m_rows.begin(), m_rows.end(), std::back_inserter(rows),
                     [this](const Row& row) { return Passes(row); });
        if (m_sorted) {
            std::sort(rows.begin(), rows.end(), [this](const Row& left, const Row& right) {
                return m_descending ? left.size > right.size : left.size < right.size;
            });
        }
        Texts sizes;
        for (const Row& row : rows)
            sizes.push_back(std::to_string(row.size));
        return sizes;
    }

    std::mt19937 m_random{GetParam()};
    NamedRows m_model;
    CVqSortFilterProxyModel m_proxy;
    std::vector<Row> m_rows;
    std::map<int, int> m_sizes;
    std::string m_text;
    std::string m_role;
    bool m_sorted = false;
    bool m_descending = false;
};

}

TEST_P(RandomProxy, ShowsTheRowsThatPassInTheirOrderAndSatisfiesTheTester)
{
    const QAbstractItemModelTester tester(&m_proxy, QAbstractItemModelTester::FailureReportingMode::Warning);

    for (int step = 0; step < 300 && !HasFailure(); ++step) {
        Step();
        ASSERT_EQ(TextsOf(m_proxy, NamedRows::Size), Expected())
            << "after step " << step << ", filter '" << m_text << "' in '" << m_role << "'";
    }
}

TEST_P(RandomProxy, FollowsItsSourceFromOneToTheNext)
{
    const QAbstractItemModelTester tester(&m_proxy, QAbstractItemModelTester::FailureReportingMode::Warning);
    for (int row = 0; row < 10; ++row)
        Append();
    NamedRows other({u"aa"_s, u"bb"_s});

    m_proxy.setSource(&other);
    EXPECT_EQ(m_proxy.count(), 2);
    other.Append(u"cc"_s, 3);
    m_proxy.setSource(nullptr);
    EXPECT_EQ(m_proxy.count(), 0);
    m_proxy.setSource(&m_model);

    EXPECT_EQ(TextsOf(m_proxy, NamedRows::Size), Expected());
}

INSTANTIATE_TEST_SUITE_P(CVqSortFilterProxyModelTester, RandomProxy, testing::Range(1u, 9u));
