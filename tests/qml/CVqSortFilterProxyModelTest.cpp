#include "qml/CVqSortFilterProxyModel.h"

#include "tests/qml/NamedRows.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(CVqSortFilterProxyModel, ANewOneHasNoSourceAndNoRows)
{
    const CVqSortFilterProxyModel proxy;

    EXPECT_EQ(proxy.source(), nullptr);
    EXPECT_EQ(proxy.count(), 0);
}

TEST(CVqSortFilterProxyModel, ANewOneNeitherSortsNorFilters)
{
    const CVqSortFilterProxyModel proxy;

    EXPECT_TRUE(proxy.sortRole().isEmpty());
    EXPECT_EQ(proxy.sortOrder(), Qt::AscendingOrder);
    EXPECT_TRUE(proxy.filterRole().isEmpty());
    EXPECT_TRUE(proxy.filterString().isEmpty());
    EXPECT_EQ(proxy.filterSyntax(), CVqSortFilterProxyModel::RegExp);
}

TEST(CVqSortFilterProxyModel, HasTheParentThatItIsGiven)
{
    QObject owner;

    const auto* proxy = new CVqSortFilterProxyModel(&owner);

    EXPECT_EQ(proxy->parent(), &owner);
}

TEST(CVqSortFilterProxyModel, ShowsTheRowsOfItsSource)
{
    NamedRows model({u"sky"_s, u"sea"_s});
    CVqSortFilterProxyModel proxy;

    proxy.setSource(&model);

    EXPECT_EQ(proxy.source(), &model);
    EXPECT_EQ(proxy.sourceModel(), &model);
    EXPECT_EQ(TextsOf(proxy, NamedRows::Name), Texts({"sky", "sea"}));
}

TEST(CVqSortFilterProxyModel, AnObjectThatIsNoModelTakesTheSourceAway)
{
    NamedRows model({u"sky"_s, u"sea"_s});
    QObject object;
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);

    proxy.setSource(&object);

    EXPECT_EQ(proxy.source(), nullptr);
    EXPECT_EQ(proxy.count(), 0);
}

TEST(CVqSortFilterProxyModel, NullTakesTheSourceAway)
{
    NamedRows model({u"sky"_s, u"sea"_s});
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);

    proxy.setSource(nullptr);

    EXPECT_EQ(proxy.source(), nullptr);
    EXPECT_EQ(proxy.count(), 0);
}

TEST(CVqSortFilterProxyModel, AnotherSourceTakesThePlaceOfTheFirst)
{
    NamedRows first({u"sky"_s, u"sea"_s});
    NamedRows second({u"lake"_s});
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&first);

    proxy.setSource(&second);
    first.Append(u"moon"_s, 1);
    second.Append(u"sun"_s, 1);

    EXPECT_EQ(TextsOf(proxy, NamedRows::Name), Texts({"lake", "sun"}));
}

TEST(CVqSortFilterProxyModel, ADestroyedSourceIsGone)
{
    auto model = std::make_unique<NamedRows>(QStringList{u"sky"_s, u"sea"_s});
    CVqSortFilterProxyModel proxy;
    proxy.setSource(model.get());
    proxy.setFilterString(u"s"_s);

    model.reset();

    EXPECT_EQ(proxy.source(), nullptr);
    EXPECT_FALSE(proxy.get(0, u"name"_s).isValid());
}

TEST(CVqSortFilterProxyModel, FiltersAndSortsOnAfterItsSourceWasDestroyed)
{
    auto first = std::make_unique<NamedRows>(QStringList{u"sky"_s, u"sea"_s, u"lake"_s});
    CVqSortFilterProxyModel proxy;
    proxy.componentComplete();
    proxy.setSource(first.get());
    proxy.setFilterString(u"s"_s);
    ASSERT_EQ(proxy.count(), 2);

    first.reset();
    proxy.setFilterString(u"k"_s);
    proxy.setFilterRole("name");
    proxy.setSortOrder(Qt::DescendingOrder);
    NamedRows second({u"sky"_s, u"sea"_s, u"lake"_s});
    proxy.setSource(&second);

    EXPECT_EQ(proxy.count(), 2);
}

TEST(CVqSortFilterProxyModel, RoleNamesAreThoseOfTheSource)
{
    NamedRows model;
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);
    const QAbstractItemModel& as_model = proxy;

    EXPECT_EQ(as_model.roleNames(), model.roleNames());
}

TEST(CVqSortFilterProxyModel, ThereAreNoRoleNamesWithoutASource)
{
    const CVqSortFilterProxyModel proxy;
    const QAbstractItemModel& as_model = proxy;

    EXPECT_TRUE(as_model.roleNames().isEmpty());
}

TEST(CVqSortFilterProxyModel, ClassBeginDoesNotCompleteTheComponent)
{
    NamedRows model;
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);

    proxy.classBegin();
    proxy.setSortRole("size");

    EXPECT_EQ(proxy.QSortFilterProxyModel::sortRole(), Qt::DisplayRole);
}

TEST(CVqSortFilterProxyModel, PropertiesOfTheSameNameAreNotThoseOfTheBase)
{
    CVqSortFilterProxyModel proxy;

    EXPECT_TRUE(proxy.setProperty("sortRole", QByteArray("size")));
    EXPECT_TRUE(proxy.setProperty("filterRole", QByteArray("name")));

    EXPECT_EQ(proxy.sortRole(), "size");
    EXPECT_EQ(proxy.filterRole(), "name");
}

TEST(CVqSortFilterProxyModel, CountFollowsRowsThatComeAndGo)
{
    NamedRows model({u"a"_s, u"b"_s, u"c"_s});
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);
    ASSERT_EQ(proxy.count(), 3);
    const QSignalSpy counted(&proxy, &CVqSortFilterProxyModel::countChanged);

    model.Append(u"d"_s, 4);
    EXPECT_EQ(counted.count(), 1);
    model.removeRows(0, 1);
    EXPECT_EQ(counted.count(), 2);
}

TEST(CVqSortFilterProxyModel, CountChangedMissesResets)
{
    NamedRows model({u"a"_s, u"b"_s, u"c"_s});
    CVqSortFilterProxyModel proxy;
    const QSignalSpy counted(&proxy, &CVqSortFilterProxyModel::countChanged);

    proxy.setSource(&model);
    EXPECT_EQ(proxy.count(), 3);
    model.Clear();
    EXPECT_EQ(proxy.count(), 0);

    EXPECT_EQ(counted.count(), 0);
}

TEST(CVqSortFilterProxyModel, CountChangedComesWithFilteringThatTakesRowsAway)
{
    NamedRows model({u"sky"_s, u"lake"_s, u"sea"_s, u"moon"_s});
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);
    ASSERT_EQ(proxy.count(), 4);
    const QSignalSpy counted(&proxy, &CVqSortFilterProxyModel::countChanged);

    proxy.setFilterString(u"lake|moon"_s);

    EXPECT_EQ(proxy.count(), 2);
    EXPECT_EQ(counted.count(), 2); // the two rows that go are not neighbours
}

TEST(CVqSortFilterProxyModel, CountChangedComesWithFilteringThatBringsRows)
{
    NamedRows model({u"sky"_s, u"lake"_s, u"sea"_s, u"moon"_s});
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);
    proxy.setFilterString(u"moon"_s);
    ASSERT_EQ(proxy.count(), 1);
    const QSignalSpy counted(&proxy, &CVqSortFilterProxyModel::countChanged);

    proxy.setFilterString(QString());

    EXPECT_EQ(proxy.count(), 4);
    EXPECT_EQ(counted.count(), 1);
}

TEST(CVqSortFilterProxyModel, CountChangedDoesNotComeWithAFilterThatChangesNoRow)
{
    NamedRows model({u"sky"_s, u"sea"_s});
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);
    ASSERT_EQ(proxy.count(), 2);
    const QSignalSpy counted(&proxy, &CVqSortFilterProxyModel::countChanged);

    proxy.setFilterString(u"s"_s);

    EXPECT_EQ(counted.count(), 0);
}
