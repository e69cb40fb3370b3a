#include "qml/CVqSortFilterProxyModel.h"
#include "tests/qml/CountingRows.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

using Proxy = CVqSortFilterProxyModel;

namespace {

// How often a source of `rows` rows is asked for its names while it is filtered from scratch and again.
int name_calls(int rows, const QByteArray& role)
{
    CountingRows model;
    for (int row = 0; row < rows; ++row)
        model.rows += NamedRows::Row(QString::number(row), row);
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterRole(role);
    proxy.setFilterString(u"7"_s);
    proxy.count();
    proxy.setFilterString(u"77"_s);
    // Reading a value of this source asks for the names as well, once each time.
    return model.name_calls - static_cast<int>(model.roles_read.size());
}

}

TEST(CVqSortFilterProxyModelNames, TheNamesAreNotAskedForMoreOftenWhereThereAreMoreRows)
{
    EXPECT_EQ(name_calls(1000, "name"), name_calls(10, "name"));
    EXPECT_EQ(name_calls(1000, ""), name_calls(10, ""));
}

namespace {

struct Cause
{
    const char* name;
    std::function<void(NamedRows&, Proxy&)> run;
};

std::string name_of(const testing::TestParamInfo<Cause>& info)
{
    return info.param.name;
}

class CauseToFilter : public testing::TestWithParam<Cause>
{ };

}

// All rows that are filtered from then on are filtered by the new names, whatever made the filter run.
TEST_P(CauseToFilter, FindsTheNamesThatTheSourceHasByThen)
{
    NamedRows model({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterRole("name");
    proxy.setFilterString(u"x"_s);
    ASSERT_EQ(proxy.count(), 0);

    model.SetRoleNames({{Qt::UserRole + 9, "name"}, {NamedRows::Size, "size"}});
    for (QVariant& row : model.rows)
        row = NamedRows::Row(u"x"_s, 1);
    GetParam().run(model, proxy);

    EXPECT_GT(proxy.count(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    CVqSortFilterProxyModelNames, CauseToFilter,
    testing::Values(
        Cause{"Reset", [](NamedRows& model, Proxy&) { model.Update(model.rows); }},
        Cause{"ChangedRow", [](NamedRows& model, Proxy&) { model.Fill(1, u"x"_s, 1); }},
        Cause{"NewRow", [](NamedRows& model, Proxy&) { model.Append(u"x"_s, 1); }},
        Cause{"MovedRow", [](NamedRows& model, Proxy&) { model.moveRow(0, 1); }},
        Cause{"ChangedLayout",
              [](NamedRows& model, Proxy&) {
                  Q_EMIT model.layoutAboutToBeChanged();
                  Q_EMIT model.layoutChanged();
              }},
        Cause{"NewText", [](NamedRows&, Proxy& proxy) { proxy.setFilterString(u"^x"_s); }},
        Cause{"NewSyntax", [](NamedRows&, Proxy& proxy) { proxy.setFilterSyntax(Proxy::FixedString); }},
        Cause{"NewExpression", [](NamedRows&, Proxy& proxy) { proxy.setFilterRegularExpression(u"x$"_s); }},
        Cause{"NewCase",
              [](NamedRows&, Proxy& proxy) { proxy.setFilterCaseSensitivity(Qt::CaseInsensitive); }},
        Cause{"Completion", [](NamedRows&, Proxy& proxy) { proxy.componentComplete(); }},
        Cause{"Invalidation", [](NamedRows&, Proxy& proxy) { proxy.invalidate(); }}),
    name_of);
