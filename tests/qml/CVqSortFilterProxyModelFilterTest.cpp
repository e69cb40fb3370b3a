#include "qml/CVqSortFilterProxyModel.h"
#include "tests/qml/CountingRows.h"

#include <QAbstractTableModel>
#include <QSignalSpy>
#include <QStandardItemModel>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

using Proxy = CVqSortFilterProxyModel;

const QStringList g_names{u"sky"_s, u"Sea"_s, u"a.b"_s, u"a*b"_s, u"aab"_s};

/// Two rows without a column, so that no index of theirs is valid.
class RowsWithoutColumns : public QAbstractTableModel
{
public:
    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : 2; }
    int columnCount(const QModelIndex&) const override { return 0; }
    QVariant data(const QModelIndex&, int) const override { return QVariant(); }
};

}

TEST(CVqSortFilterProxyModelFilter, WithoutARoleAnyRoleMayMatch)
{
    NamedRows model({u"sky 3"_s, u"sea"_s, u"lake"_s, u"moon"_s});
    Proxy proxy;
    proxy.setSource(&model);

    proxy.setFilterString(u"3"_s);

    EXPECT_EQ(TextsOf(proxy, NamedRows::Name), Texts({"sky 3", "lake"}));
}

TEST(CVqSortFilterProxyModelFilter, WithoutARoleRolesAreReadInTheirOrderUpToTheFirstMatch)
{
    QHash<int, QByteArray> names;
    QVariantMap row;
    for (int role = 300; role < 310; ++role) {
        names[role] = "r" + QByteArray::number(role);
        row[QString::fromLatin1(names[role])] = role == 305 ? u"match"_s : u"none"_s;
    }
    CountingRows model;
    model.SetRoleNames(names);
    model.rows += row;
    std::vector<int> expected;
    for (const int role : names.keys()) {
        expected.push_back(role);
        if (role == 305)
            break;
    }
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterString(u"match"_s);

    EXPECT_EQ(proxy.count(), 1);

    EXPECT_EQ(model.roles_read, expected);
}

TEST(CVqSortFilterProxyModelFilter, WithARoleOnlyThatOneIsRead)
{
    CountingRows model({u"sky"_s, u"sea"_s});
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterRole("size");
    proxy.setFilterString(u"2"_s);

    EXPECT_EQ(proxy.count(), 1);

    EXPECT_THAT(model.roles_read, ElementsAre(NamedRows::Size, NamedRows::Size));
}

TEST(CVqSortFilterProxyModelFilter, AnEmptyTextReadsNothing)
{
    CountingRows model({u"sky"_s, u"sea"_s});
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterRole("size");

    EXPECT_EQ(proxy.count(), 2);

    EXPECT_THAT(model.roles_read, IsEmpty());
    EXPECT_EQ(model.name_calls, 0);
}

TEST(CVqSortFilterProxyModelFilter, NothingIsFoundUnderAnUnknownRole)
{
    NamedRows model(g_names);
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterRole("colour");

    proxy.setFilterString(u"s"_s);
    EXPECT_EQ(proxy.count(), 0);
    proxy.setFilterString(u"^$"_s); // matches the text of no data
    EXPECT_EQ(proxy.count(), 5);
}

TEST(CVqSortFilterProxyModelFilter, ARoleThatDiffersInOneByteIsUnknown)
{
    NamedRows model(g_names);
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterRole("Name");

    proxy.setFilterString(u"s"_s);

    EXPECT_EQ(proxy.count(), 0);
}

TEST(CVqSortFilterProxyModelFilter, ARowWithoutAnIndexPassesWhereARoleIsChosen)
{
    RowsWithoutColumns model;
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterRole("display");
    proxy.setFilterString(u"x"_s);

    EXPECT_EQ(proxy.count(), 2);
}

TEST(CVqSortFilterProxyModelFilter, ARowWithoutAnIndexDoesNotPassWhereNoRoleIsChosen)
{
    RowsWithoutColumns model;
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterString(u"x"_s);

    EXPECT_EQ(proxy.count(), 0);
}

TEST(CVqSortFilterProxyModelFilter, RowsUnderARowAreFilteredByTheirOwnValues)
{
    QStandardItemModel tree;
    tree.appendRow(new QStandardItem(u"sky"_s));
    for (const QString& name : {u"cloud"_s, u"sky lark"_s, u"sun"_s})
        tree.item(0)->appendRow(new QStandardItem(name));
    Proxy proxy;
    proxy.setSource(&tree);
    proxy.setFilterRole("display");

    proxy.setFilterString(u"sky"_s);

    const QModelIndex sky = proxy.index(0, 0);
    ASSERT_EQ(proxy.rowCount(sky), 1);
    EXPECT_EQ(proxy.index(0, 0, sky).data(), QVariant(u"sky lark"_s));
}

TEST(CVqSortFilterProxyModelFilter, TheSameTextDoesNotFilterAnew)
{
    CountingRows model(g_names);
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterString(u"s"_s);
    ASSERT_EQ(proxy.count(), 1);
    model.Forget();

    proxy.setFilterString(u"s"_s);

    EXPECT_THAT(model.roles_read, IsEmpty());
}

TEST(CVqSortFilterProxyModelFilter, AnotherTextIsAnnouncedOnceTheFilterHoldsIt)
{
    NamedRows model(g_names);
    Proxy proxy;
    proxy.setSource(&model);
    std::vector<int> counts;
    QObject::connect(&proxy, &Proxy::filterStringChanged, &proxy, [&] { counts.push_back(proxy.count()); });

    proxy.setFilterString(u"sky"_s);
    proxy.setFilterString(u"sky"_s);
    proxy.setFilterString(QString());

    EXPECT_THAT(counts, ElementsAre(1, 5));
}

TEST(CVqSortFilterProxyModelFilter, SyntaxAndRolesAreNotAnnounced)
{
    NamedRows model(g_names);
    Proxy proxy;
    proxy.setSource(&model);
    const QSignalSpy counted(&proxy, &Proxy::countChanged);
    const QSignalSpy text(&proxy, &Proxy::filterStringChanged);

    proxy.setFilterSyntax(Proxy::Wildcard);
    proxy.setFilterRole("name");
    proxy.setSortRole("name");
    proxy.setSortOrder(Qt::DescendingOrder);

    EXPECT_EQ(counted.count() + text.count(), 0);
}

TEST(CVqSortFilterProxyModelFilter, AChangedRowIsFilteredAnew)
{
    NamedRows model({u"sky"_s, u"sea"_s});
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterRole("name");
    proxy.setFilterString(u"sea"_s);
    ASSERT_EQ(proxy.count(), 1);

    model.Fill(0, u"seal"_s, 1);

    EXPECT_EQ(TextsOf(proxy, NamedRows::Name), Texts({"seal", "sea"}));
}

TEST(CVqSortFilterProxyModelFilter, AnExpressionGivenToTheBaseIsUsedToo)
{
    NamedRows model(g_names);
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterRole("name");

    proxy.setFilterRegularExpression(QRegularExpression(u"^S"_s));
    EXPECT_EQ(TextsOf(proxy, NamedRows::Name), Texts({"Sea"}));
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    EXPECT_EQ(TextsOf(proxy, NamedRows::Name), Texts({"sky", "Sea"}));
}

TEST(CVqSortFilterProxyModelFilter, FiltersAHundredThousandRows)
{
    NamedRows model;
    for (int row = 0; row < 100000; ++row)
        model.rows += NamedRows::Row(QString::number(row), row);
    Proxy proxy;
    proxy.setSource(&model);

    proxy.setFilterRole("name");
    proxy.setFilterString(u"^9999.$"_s);
    EXPECT_EQ(proxy.count(), 10);
    proxy.setFilterRole(QByteArray());
    proxy.setFilterString(u"99$"_s);
    EXPECT_EQ(proxy.count(), 1000);
    proxy.setFilterString(QString());
    EXPECT_EQ(proxy.count(), 100000);
}
