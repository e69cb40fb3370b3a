#include "tests/qml/NamedRows.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

// Random sequences beside a plain list of numbers, with Qt's tester watching; what it finds is a warning, and
// a warning fails the test. It follows all that is done here. It does not follow an insertion, removal or
// move that is announced under a row, since the rows change at the top then: those cases are held by hand
// elsewhere.

namespace {

using namespace Qt::StringLiterals;

constexpr int g_empty = 0; // stands for a row that has not been filled

class RandomRows : public testing::TestWithParam<unsigned>
{
protected:
    int Any(int least, int most) { return std::uniform_int_distribution<int>(least, most)(m_random); }
    int Size() const { return static_cast<int>(m_expected.size()); }

    void Step()
    {
        switch (Any(0, 9)) {
        case 0:
            return Remove(Any(-1, Size()), Any(0, 4));
        case 1:
        case 2:
            return Insert(Any(-1, Size()), Any(0, 3));
        case 3:
        case 4:
        case 5:
            return Move(Any(-1, Size()), Any(-1, Size()));
        case 6:
        case 7:
            return Append();
        case 8:
            return Fill();
        default:
            return Any(0, 20) == 0 ? Clear() : SetData();
        }
    }

    void Insert(int row, int count)
    {
        const bool fits = row >= 0 && row < Size() && count > 0;
        if (fits)
            m_expected.insert(m_expected.begin() + row, static_cast<std::size_t>(count), g_empty);
        EXPECT_EQ(m_model.insertRows(row, count), fits);
    }

    void Remove(int row, int count)
    {
        const bool fits = row >= 0 && count > 0 && row + count < Size() - 1;
        if (fits)
            m_expected.erase(m_expected.begin() + row, m_expected.begin() + row + count);
        EXPECT_EQ(m_model.removeRows(row, count), fits);
    }

    void Move(int from, int to)
    {
        const auto is_row = [this](int row) { return row >= 0 && row < Size(); };
        const bool fits = is_row(from) && is_row(to);
        if (fits) {
            const int number = m_expected[static_cast<std::size_t>(from)];
            m_expected.erase(m_expected.begin() + from);
            m_expected.insert(m_expected.begin() + to, number);
        }
        EXPECT_EQ(m_model.moveRow(from, to), fits || from == to);
    }

    void Append()
    {
        m_expected.push_back(++m_last);
        m_model.Append(QString::number(m_last), m_last);
    }

    void Fill()
    {
        if (m_expected.empty())
            return;
        const int row = Any(0, Size() - 1);
        m_expected[static_cast<std::size_t>(row)] = ++m_last;
        m_model.Fill(row, QString::number(m_last), m_last);
    }

    void SetData() { m_model.setData(m_model.index(Any(-1, Size())), 1, NamedRows::Size); }

    void Clear()
    {
        m_expected.clear();
        m_model.Clear();
    }

    std::vector<int> Present() const
    {
        std::vector<int> numbers;
        for (const std::string& name : TextsOf(m_model, NamedRows::Name))
            numbers.push_back(name.empty() ? g_empty : std::stoi(name));
        return numbers;
    }

    std::mt19937 m_random{GetParam()};
    NamedRows m_model;
    std::vector<int> m_expected;
    int m_last = g_empty;
};

}

TEST_P(RandomRows, AreThoseOfAPlainListAndSatisfyTheTester)
{
    const QAbstractItemModelTester tester(&m_model, QAbstractItemModelTester::FailureReportingMode::Warning);

    for (int step = 0; step < 400 && !HasFailure(); ++step) {
        Step();
        ASSERT_EQ(Present(), m_expected) << "after step " << step;
    }
}

TEST_P(RandomRows, ARowIsFollowedByAPersistentIndex)
{
    for (int row = 0; row < 12; ++row)
        Append();
    const int number = Any(1, 12);
    const QPersistentModelIndex followed = m_model.index(number - 1);

    for (int step = 0; step < 30; ++step) {
        Move(Any(0, Size() - 1), Any(0, Size() - 1));
        Insert(Any(0, Size() - 1), 1);
        Remove(Any(0, Size() - 1), 1);
    }

    const auto place = std::find(m_expected.begin(), m_expected.end(), number);
    const bool removed = place == m_expected.end();
    EXPECT_EQ(followed.row(), removed ? -1 : place - m_expected.begin());
}

INSTANTIATE_TEST_SUITE_P(CVqQtAbstractListModelTester, RandomRows, testing::Range(1u, 9u));
