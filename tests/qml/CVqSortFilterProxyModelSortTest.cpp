#include "qml/CVqSortFilterProxyModel.h"
#include "tests/qml/NamedRows.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(CVqSortFilterProxyModelSort, ARoleAloneSortsNothing)
{
    NamedRows model({u"sky"_s, u"lake"_s, u"sea"_s});
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);
    proxy.setSortRole("name");

    proxy.componentComplete();

    EXPECT_EQ(TextsOf(proxy, NamedRows::Name), Texts({"sky", "lake", "sea"}));
}

TEST(CVqSortFilterProxyModelSort, SortsByTheRoleOnceThereIsAnOrder)
{
    NamedRows model({u"sky"_s, u"lake"_s, u"sea"_s});
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);
    proxy.setSortRole("name");
    proxy.componentComplete();

    proxy.setSortOrder(Qt::AscendingOrder);
    EXPECT_EQ(TextsOf(proxy, NamedRows::Name), Texts({"lake", "sea", "sky"}));
    proxy.setSortOrder(Qt::DescendingOrder);
    EXPECT_EQ(TextsOf(proxy, NamedRows::Name), Texts({"sky", "sea", "lake"}));
    EXPECT_EQ(proxy.sortOrder(), Qt::DescendingOrder);
}

TEST(CVqSortFilterProxyModelSort, SortsNumbersAsNumbers)
{
    NamedRows model;
    for (const int size : {10, 9, 100})
        model.Append(u"x"_s, size);
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);
    proxy.setSortRole("size");
    proxy.setSortOrder(Qt::AscendingOrder);

    proxy.componentComplete();

    EXPECT_EQ(TextsOf(proxy, NamedRows::Size), Texts({"9", "10", "100"}));
}

TEST(CVqSortFilterProxyModelSort, AnUnknownRoleLeavesTheRowsAsTheyStand)
{
    NamedRows model({u"sky"_s, u"lake"_s, u"sea"_s});
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);
    proxy.componentComplete();
    ASSERT_EQ(proxy.count(), 3);

    proxy.setSortRole("colour");
    proxy.setSortOrder(Qt::DescendingOrder);

    EXPECT_EQ(TextsOf(proxy, NamedRows::Name), Texts({"sky", "lake", "sea"}));
}

TEST(CVqSortFilterProxyModelSort, ANewRowIsPutWhereItBelongs)
{
    NamedRows model({u"sky"_s, u"lake"_s});
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);
    proxy.setSortRole("name");
    proxy.setSortOrder(Qt::AscendingOrder);
    proxy.componentComplete();
    ASSERT_EQ(proxy.count(), 2);

    model.Append(u"moon"_s, 3);

    EXPECT_EQ(TextsOf(proxy, NamedRows::Name), Texts({"lake", "moon", "sky"}));
}
