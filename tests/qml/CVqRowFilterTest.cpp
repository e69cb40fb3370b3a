#include "qml/CVqRowFilter.h"

#include "tests/qml/NamedRows.h"

#include <QAbstractTableModel>

#include <gtest/gtest.h>

#include <functional>
#include <random>

using namespace Qt::StringLiterals;

namespace {

bool accepts(const QString& pattern, const QString& text,
             QRegularExpression::PatternOptions options = QRegularExpression::NoPatternOption)
{
    NamedRows model;
    model.rows += NamedRows::Row(text, 0);
    CVqRowFilter filter(&model);
    filter.Prepare(QRegularExpression(pattern, options), {NamedRows::Name});
    return filter.Accepts(model.index(0));
}

// What the expression itself says, which is invalid for half a character.
bool matches(const QString& pattern, const QString& text)
{
    const QRegularExpression expression(pattern);
    return expression.isValid() && expression.match(text).hasMatch();
}

QRegularExpression any_expression()
{
    return QRegularExpression(u"a"_s);
}

CVqRowFilter& prepare(CVqRowFilter& filter)
{
    filter.Prepare(any_expression(), {NamedRows::Name});
    return filter;
}

// Short texts of the characters that mean something to an expression, and of some that do not.
QString random_text(std::mt19937& random, int most)
{
    static const QString units = u"aabbcAB01 _-#\\\\^$.|?*+()[]{}é\u00df\n\U0001F600\0"_s;
    QString text;
    const int size = std::uniform_int_distribution<int>(0, most)(random);
    for (int at = 0; at < size; ++at)
        text += units[std::uniform_int_distribution<qsizetype>(0, units.size() - 1)(random)];
    return text;
}

}

TEST(CVqRowFilter, AcceptsATextThatContainsAMatch)
{
    EXPECT_TRUE(accepts(u"ea"_s, u"seal"_s));
    EXPECT_FALSE(accepts(u"ea"_s, u"sky"_s));
}

TEST(CVqRowFilter, AcceptsNothingWithAnInvalidExpressionAndWarnsNobody)
{
    EXPECT_FALSE(accepts(u"("_s, u"("_s));
}

TEST(CVqRowFilter, AnEscapedSignStandsForItself)
{
    EXPECT_TRUE(accepts(u"a\\.b"_s, u"xa.by"_s));
    EXPECT_FALSE(accepts(u"a\\.b"_s, u"xaaby"_s));
}

TEST(CVqRowFilter, AnEscapedLetterKeepsItsMeaning)
{
    EXPECT_TRUE(accepts(u"\\d"_s, u"7"_s));
    EXPECT_FALSE(accepts(u"\\d"_s, u"d"_s));
}

TEST(CVqRowFilter, ANumberInBracesIsACount)
{
    EXPECT_TRUE(accepts(u"a{2}"_s, u"caab"_s));
    EXPECT_FALSE(accepts(u"a{2}"_s, u"a{2}"_s));
}

TEST(CVqRowFilter, TheOptionsOfTheExpressionHold)
{
    EXPECT_TRUE(accepts(u"SEA"_s, u"sea"_s, QRegularExpression::CaseInsensitiveOption));
    EXPECT_TRUE(accepts(u"s e a"_s, u"sea"_s, QRegularExpression::ExtendedPatternSyntaxOption));
}

TEST(CVqRowFilter, AgreesWithTheExpressionOnAnyPatternAndText)
{
    std::mt19937 random(1);
    for (int turn = 0; turn < 20000 && !testing::Test::HasFailure(); ++turn) {
        const QString pattern = random_text(random, 4);
        const QString text = random_text(random, 8);

        EXPECT_EQ(accepts(pattern, text), matches(pattern, text))
            << "pattern " << pattern.toStdString() << ", text " << text.toStdString();
    }
}

TEST(CVqRowFilter, AgreesWithTheExpressionOnEscapedPartsOfTheText)
{
    std::mt19937 random(2);
    for (int turn = 0; turn < 5000 && !testing::Test::HasFailure(); ++turn) {
        const QString text = random_text(random, 8);
        const QString pattern = QRegularExpression::escape(text.mid(1, 3));

        EXPECT_EQ(accepts(pattern, text), matches(pattern, text)) << "text " << text.toStdString();
    }
}

TEST(CVqRowFilter, ATextThatIsNoUtf16IsLeftToTheExpression)
{
    const QString broken = u"sea"_s + QChar(0xD800);

    EXPECT_EQ(accepts(u"sea"_s, broken), matches(u"sea"_s, broken));
}

TEST(CVqRowFilter, AcceptsARowForAnyOfItsRoles)
{
    const NamedRows model({u"sky"_s});
    CVqRowFilter filter(&model);
    filter.Prepare(QRegularExpression(u"1"_s), {NamedRows::Name, NamedRows::Size});

    EXPECT_TRUE(filter.Accepts(model.index(0)));
}

TEST(CVqRowFilter, AcceptsNoRowWithoutARole)
{
    const NamedRows model({u"sky"_s});
    CVqRowFilter filter(&model);
    filter.Prepare(QRegularExpression(u"^"_s), {});

    EXPECT_FALSE(filter.Accepts(model.index(0)));
}

TEST(CVqRowFilter, ANewOneIsNotReady)
{
    const CVqRowFilter filter(nullptr);

    EXPECT_FALSE(filter.IsReadyFor(any_expression()));
}

TEST(CVqRowFilter, IsReadyForTheExpressionThatItWasPreparedFor)
{
    CVqRowFilter filter(nullptr);
    prepare(filter);

    EXPECT_TRUE(filter.IsReadyFor(any_expression()));
    EXPECT_FALSE(filter.IsReadyFor(QRegularExpression(u"b"_s)));
}

TEST(CVqRowFilter, IsNotReadyOnceItHasForgotten)
{
    CVqRowFilter filter(nullptr);
    prepare(filter).Forget();

    EXPECT_FALSE(filter.IsReadyFor(any_expression()));
}

TEST(CVqRowFilter, IsReadyAgainOnceItIsPreparedAgain)
{
    CVqRowFilter filter(nullptr);
    prepare(filter).Forget();

    EXPECT_TRUE(prepare(filter).IsReadyFor(any_expression()));
}

namespace {

struct Change
{
    const char* name;
    std::function<void(NamedRows&)> run;
};

std::string name_of(const testing::TestParamInfo<Change>& info)
{
    return info.param.name;
}

class ChangeOfTheSource : public testing::TestWithParam<Change>
{ };

}

TEST_P(ChangeOfTheSource, MakesTheFilterForget)
{
    NamedRows model({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    CVqRowFilter filter(&model);
    prepare(filter);

    GetParam().run(model);

    EXPECT_FALSE(filter.IsReadyFor(any_expression()));
}

INSTANTIATE_TEST_SUITE_P(
    CVqRowFilter, ChangeOfTheSource,
    testing::Values(Change{"DataChanged", [](NamedRows& model) { model.Fill(0, u"x"_s, 1); }},
                    Change{"RowsInserted", [](NamedRows& model) { model.insertRows(0, 1); }},
                    Change{"RowsRemoved", [](NamedRows& model) { model.removeRows(0, 1); }},
                    Change{"RowsMoved", [](NamedRows& model) { model.moveRow(0, 1); }},
                    Change{"LayoutChanged", [](NamedRows& model) { Q_EMIT model.layoutChanged(); }},
                    Change{"Reset", [](NamedRows& model) { model.Clear(); }}),
    name_of);

namespace {

/// Two columns of one row that can trade places and be joined by a third.
class Columns : public QAbstractTableModel
{
public:
    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : 1;
    }
    int columnCount(const QModelIndex& = QModelIndex()) const override { return m_count; }
    QVariant data(const QModelIndex&, int) const override { return QVariant(); }

    void Insert()
    {
        beginInsertColumns(QModelIndex(), m_count, m_count);
        ++m_count;
        endInsertColumns();
    }

    void Swap()
    {
        beginMoveColumns(QModelIndex(), 1, 1, QModelIndex(), 0);
        endMoveColumns();
    }

private:
    int m_count = 2;
};

}

TEST(CVqRowFilter, ForgetsWhenAColumnComes)
{
    Columns model;
    CVqRowFilter filter(&model);
    prepare(filter);

    model.Insert();

    EXPECT_FALSE(filter.IsReadyFor(any_expression()));
}

TEST(CVqRowFilter, ForgetsWhenColumnsTradePlaces)
{
    Columns model;
    CVqRowFilter filter(&model);
    prepare(filter);

    model.Swap();

    EXPECT_FALSE(filter.IsReadyFor(any_expression()));
}

TEST(CVqRowFilter, OutlivesItsSource)
{
    auto model = std::make_unique<NamedRows>();
    CVqRowFilter filter(model.get());
    prepare(filter);

    model.reset();

    EXPECT_FALSE(filter.Accepts(QModelIndex()));
}

// A model that loads its values when they are asked for announces them while the filter reads.
TEST(CVqRowFilter, ASourceMayAnnounceAChangeWhileItIsRead)
{
    class LoadingRows : public NamedRows
    {
    public:
        using NamedRows::NamedRows;
        QVariant data(const QModelIndex& index, int role) const override
        {
            auto& self = const_cast<LoadingRows&>(*this);
            Q_EMIT self.dataChanged(index, index);
            return NamedRows::data(index, role);
        }
    };
    const LoadingRows model({u"sky"_s});
    CVqRowFilter filter(&model);
    QObject::connect(&model, &QAbstractItemModel::dataChanged, &model,
                     [&filter] { filter.Prepare(any_expression(), {}); });
    filter.Prepare(QRegularExpression(u"1"_s), {NamedRows::Name, NamedRows::Size});

    EXPECT_FALSE(filter.Accepts(model.index(0)));
}
