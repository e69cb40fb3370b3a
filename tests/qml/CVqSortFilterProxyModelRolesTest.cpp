#include "qml/CVqSortFilterProxyModel.h"
#include "tests/qml/NamedRows.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

/// Opens the numbers that the base class works with.
class Proxy : public CVqSortFilterProxyModel
{
public:
    int SortNumber() const { return QSortFilterProxyModel::sortRole(); }
    int FilterNumber() const { return QSortFilterProxyModel::filterRole(); }
    using CVqSortFilterProxyModel::roleKey;
};

const QHash<int, QByteArray> g_other_numbers{{NamedRows::Size, "name"}, {NamedRows::Name, "size"}};

}

TEST(CVqSortFilterProxyModelRoles, RoleKeyIsTheNumberOfTheRole)
{
    NamedRows model;
    Proxy proxy;
    proxy.setSource(&model);

    EXPECT_EQ(proxy.roleKey("name"), NamedRows::Name);
    EXPECT_EQ(proxy.roleKey("size"), NamedRows::Size);
}

TEST(CVqSortFilterProxyModelRoles, RoleKeyOfAnUnknownRoleIsMinusOne)
{
    NamedRows model;
    Proxy proxy;
    EXPECT_EQ(proxy.roleKey("name"), -1);

    proxy.setSource(&model);

    EXPECT_EQ(proxy.roleKey("Name"), -1);
    EXPECT_EQ(proxy.roleKey(""), -1);
}

TEST(CVqSortFilterProxyModelRoles, RoleKeyOfANameThatTwoRolesShareIsTheFirstOfTheHash)
{
    NamedRows model;
    const QHash<int, QByteArray> names{{41, "name"}, {42, "name"}};
    model.SetRoleNames(names);
    Proxy proxy;
    proxy.setSource(&model);

    EXPECT_EQ(proxy.roleKey("name"), names.keys().first());
}

TEST(CVqSortFilterProxyModelRoles, BeforeCompletionNamesAreOnlyStored)
{
    NamedRows model;
    Proxy proxy;
    proxy.setSource(&model);

    proxy.setSortRole("size");
    proxy.setFilterRole("name");

    EXPECT_EQ(proxy.sortRole(), "size");
    EXPECT_EQ(proxy.filterRole(), "name");
    EXPECT_EQ(proxy.SortNumber(), Qt::DisplayRole);
    EXPECT_EQ(proxy.FilterNumber(), Qt::DisplayRole);
}

TEST(CVqSortFilterProxyModelRoles, CompletionMakesNumbersOfThem)
{
    NamedRows model;
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setSortRole("size");
    proxy.setFilterRole("name");

    proxy.componentComplete();

    EXPECT_EQ(proxy.SortNumber(), NamedRows::Size);
    EXPECT_EQ(proxy.FilterNumber(), NamedRows::Name);
}

TEST(CVqSortFilterProxyModelRoles, CompletionSetsTheSortRoleFirst)
{
    NamedRows model;
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setSortRole("size");
    proxy.setFilterRole("name");
    std::vector<std::string> order;
    QObject::connect(&proxy, &QSortFilterProxyModel::sortRoleChanged, &proxy,
                     [&] { order.emplace_back("sort"); });
    QObject::connect(&proxy, &QSortFilterProxyModel::filterRoleChanged, &proxy,
                     [&] { order.emplace_back("filter"); });

    proxy.componentComplete();

    EXPECT_THAT(order, ElementsAre("sort", "filter"));
}

TEST(CVqSortFilterProxyModelRoles, CompletionWithoutNamesLeavesTheNumbersOfTheBase)
{
    NamedRows model;
    Proxy proxy;
    proxy.setSource(&model);

    proxy.componentComplete();

    EXPECT_EQ(proxy.SortNumber(), Qt::DisplayRole);
    EXPECT_EQ(proxy.FilterNumber(), Qt::DisplayRole);
}

TEST(CVqSortFilterProxyModelRoles, AfterCompletionEachNameTakesEffectAtOnce)
{
    NamedRows model;
    Proxy proxy;
    proxy.setSource(&model);
    proxy.componentComplete();

    proxy.setSortRole("size");
    EXPECT_EQ(proxy.SortNumber(), NamedRows::Size);
    proxy.setSortRole("name");
    EXPECT_EQ(proxy.SortNumber(), NamedRows::Name);
    proxy.setFilterRole("size");
    EXPECT_EQ(proxy.FilterNumber(), NamedRows::Size);
    proxy.setFilterRole("name");
    EXPECT_EQ(proxy.FilterNumber(), NamedRows::Name);
}

TEST(CVqSortFilterProxyModelRoles, AfterCompletionAnUnknownNameIsMinusOne)
{
    NamedRows model;
    Proxy proxy;
    proxy.setSource(&model);
    proxy.componentComplete();

    proxy.setSortRole("colour");
    proxy.setFilterRole("colour");

    EXPECT_EQ(proxy.SortNumber(), -1);
    EXPECT_EQ(proxy.FilterNumber(), -1);
}

TEST(CVqSortFilterProxyModelRoles, AfterCompletionTheEmptyNameIsMinusOne)
{
    NamedRows model;
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterRole("name");
    proxy.componentComplete();

    proxy.setFilterRole(QByteArray());

    EXPECT_EQ(proxy.FilterNumber(), -1);
}

TEST(CVqSortFilterProxyModelRoles, TheSameNameIsNotLookedUpAgain)
{
    NamedRows model;
    Proxy proxy;
    proxy.setSource(&model);
    proxy.componentComplete();
    proxy.setSortRole("size");
    proxy.setFilterRole("size");

    model.SetRoleNames(g_other_numbers);
    proxy.setSortRole("size");
    proxy.setFilterRole("size");

    EXPECT_EQ(proxy.SortNumber(), NamedRows::Size);
    EXPECT_EQ(proxy.FilterNumber(), NamedRows::Size);
}

TEST(CVqSortFilterProxyModelRoles, ASourceAfterCompletionDoesNotChangeTheNumbers)
{
    NamedRows model;
    Proxy proxy;
    proxy.setSortRole("size");
    proxy.setFilterRole("name");
    proxy.componentComplete();

    proxy.setSource(&model);

    EXPECT_EQ(proxy.SortNumber(), -1);
    EXPECT_EQ(proxy.FilterNumber(), -1);
}

TEST(CVqSortFilterProxyModelRoles, ANumberStaysUntilAnotherNameIsSet)
{
    NamedRows model;
    Proxy proxy;
    proxy.setSortRole("size");
    proxy.componentComplete();
    proxy.setSource(&model);

    proxy.setSortRole("size");
    EXPECT_EQ(proxy.SortNumber(), -1);
    proxy.setSortRole("name");
    proxy.setSortRole("size");
    EXPECT_EQ(proxy.SortNumber(), NamedRows::Size);
}

TEST(CVqSortFilterProxyModelRoles, AnotherSourceDoesNotChangeTheNumbers)
{
    NamedRows first;
    NamedRows second;
    second.SetRoleNames(g_other_numbers);
    Proxy proxy;
    proxy.setSource(&first);
    proxy.setSortRole("size");
    proxy.setFilterRole("name");
    proxy.componentComplete();

    proxy.setSource(&second);

    EXPECT_EQ(proxy.SortNumber(), NamedRows::Size);
    EXPECT_EQ(proxy.FilterNumber(), NamedRows::Name);
}

TEST(CVqSortFilterProxyModelRoles, TheFilterFindsItsRoleInASourceThatCameLate)
{
    NamedRows model({u"sky"_s, u"sea"_s});
    Proxy proxy;
    proxy.setFilterRole("name");
    proxy.setFilterString(u"sea"_s);
    proxy.componentComplete();

    proxy.setSource(&model);

    EXPECT_EQ(TextsOf(proxy, NamedRows::Name), Texts({"sea"}));
}

TEST(CVqSortFilterProxyModelRoles, TheFilterFindsItsRoleInAnotherSource)
{
    NamedRows first({u"sky"_s, u"sea"_s});
    NamedRows second({u"sky"_s, u"sea"_s});
    second.SetRoleNames(g_other_numbers);
    Proxy proxy;
    proxy.setFilterRole("name");
    proxy.setFilterString(u"sea"_s);
    proxy.setSource(&first);
    ASSERT_EQ(proxy.count(), 1);

    proxy.setSource(&second);

    EXPECT_EQ(TextsOf(proxy, NamedRows::Size), Texts({"sea"})); // the name, by its other number
}

TEST(CVqSortFilterProxyModelRoles, TheFilterUsesAStoredNameBeforeCompletion)
{
    NamedRows model({u"sky 2"_s, u"sea"_s});
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterRole("name");

    proxy.setFilterString(u"2"_s);

    EXPECT_EQ(TextsOf(proxy, NamedRows::Name), Texts({"sky 2"}));
}

TEST(CVqSortFilterProxyModelRoles, ARoleSetBeforeCompletionDoesNotFilterAnewByItself)
{
    NamedRows model({u"sky 2"_s, u"sea"_s});
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterString(u"2"_s);
    ASSERT_EQ(proxy.count(), 2);

    proxy.setFilterRole("name");
    EXPECT_EQ(proxy.count(), 2);
    proxy.componentComplete();
    EXPECT_EQ(proxy.count(), 1);
}

// The base class compares numbers: its own was 0 already.
TEST(CVqSortFilterProxyModelRoles, ARoleWithThePresentNumberDoesNotFilterAnewByItself)
{
    NamedRows model({u"sky 2"_s, u"sea"_s});
    model.SetRoleNames({{Qt::DisplayRole, "name"}, {NamedRows::Size, "size"}});
    Proxy proxy;
    proxy.setSource(&model);
    proxy.componentComplete();
    proxy.setFilterString(u"2"_s);
    ASSERT_EQ(proxy.count(), 2);

    proxy.setFilterRole("name");
    EXPECT_EQ(proxy.count(), 2);
    proxy.invalidate();
    EXPECT_EQ(proxy.count(), 1);
}
