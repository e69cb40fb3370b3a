#include "qml/CVqSortFilterProxyModel.h"
#include "tests/qml/NamedRows.h"

#include <QJSValueIterator>
#include <QQmlEngine>

#include <gmock/gmock.h>

#include <limits>

using namespace Qt::StringLiterals;
using testing::UnorderedElementsAre;

namespace {

/// A proxy that a QML engine owns, over rows with the names "sky", "sea" and "lake".
class CVqSortFilterProxyModelGet : public testing::Test
{
protected:
    CVqSortFilterProxyModelGet()
    {
        QQmlEngine::setContextForObject(&m_proxy, m_engine.rootContext());
        m_proxy.setSource(&m_model);
    }

    NamedRows m_model{{u"sky"_s, u"sea"_s, u"lake"_s}};
    QQmlEngine m_engine;
    CVqSortFilterProxyModel m_proxy;
};

Texts properties_of(const QJSValue& object)
{
    Texts names;
    QJSValueIterator property(object);
    while (property.next())
        names.push_back(property.name().toStdString());
    return names;
}

bool is_empty_object(const QJSValue& value)
{
    return value.isObject() && properties_of(value).empty();
}

}

TEST_F(CVqSortFilterProxyModelGet, GetGivesEachRoleAsAText)
{
    const QJSValue row = m_proxy.get(1);

    EXPECT_THAT(properties_of(row), UnorderedElementsAre("name", "size"));
    EXPECT_EQ(row.property(u"name"_s).toString(), u"sea"_s);
    EXPECT_TRUE(row.property(u"size"_s).isString());
    EXPECT_EQ(row.property(u"size"_s).toString(), u"2"_s);
}

TEST_F(CVqSortFilterProxyModelGet, GetByRoleKeepsTheType)
{
    const QVariant size = m_proxy.get(1, u"size"_s);

    EXPECT_EQ(size.metaType(), QMetaType::fromType<int>());
    EXPECT_EQ(size, QVariant(2));
}

TEST_F(CVqSortFilterProxyModelGet, GetCountsTheRowsOfTheProxy)
{
    m_proxy.setFilterString(u"lake"_s);

    EXPECT_EQ(m_proxy.get(0).property(u"name"_s).toString(), u"lake"_s);
    EXPECT_EQ(m_proxy.get(0, u"name"_s), QVariant(u"lake"_s));
}

TEST_F(CVqSortFilterProxyModelGet, GetOutsideTheRowsGivesAnEmptyObject)
{
    EXPECT_TRUE(is_empty_object(m_proxy.get(-1)));
    EXPECT_TRUE(is_empty_object(m_proxy.get(m_proxy.count())));
    EXPECT_TRUE(is_empty_object(m_proxy.get(std::numeric_limits<int>::min())));
    EXPECT_TRUE(is_empty_object(m_proxy.get(std::numeric_limits<int>::max())));
}

TEST_F(CVqSortFilterProxyModelGet, GetGivesANewObjectEachTime)
{
    QJSValue first = m_proxy.get(0);
    first.setProperty(u"name"_s, u"changed"_s);

    EXPECT_EQ(m_proxy.get(0).property(u"name"_s).toString(), u"sky"_s);
}

TEST_F(CVqSortFilterProxyModelGet, GetGivesAMissingValueAsTheEmptyText)
{
    m_model.insertRows(0, 1);

    const QJSValue name = m_proxy.get(0).property(u"name"_s);

    EXPECT_TRUE(name.isString());
    EXPECT_EQ(name.toString(), QString());
}

TEST_F(CVqSortFilterProxyModelGet, GetKnowsRolesWhoseNamesAreNotAscii)
{
    NamedRows model;
    model.SetRoleNames({{7, QByteArray("gr\xC3\xB6\xC3\x9F") + "e"}});
    model.rows += QVariantMap{{u"größe"_s, 12}};
    m_proxy.setSource(&model);

    EXPECT_EQ(m_proxy.get(0).property(u"größe"_s).toString(), u"12"_s);
    EXPECT_EQ(m_proxy.get(0, u"größe"_s), QVariant(12));
}

TEST_F(CVqSortFilterProxyModelGet, GetByANameThatTwoRolesShareReadsTheFirstOfTheHash)
{
    class Numbers : public NamedRows
    {
    public:
        QVariant data(const QModelIndex&, int role) const override { return role; }
    };
    const QHash<int, QByteArray> names{{41, "name"}, {42, "name"}, {43, "size"}};
    Numbers model;
    model.SetRoleNames(names);
    model.rows += QVariant();
    m_proxy.setSource(&model);

    EXPECT_EQ(m_proxy.get(0, u"name"_s), QVariant(names.key("name")));
}

TEST_F(CVqSortFilterProxyModelGet, GetByRoleOutsideTheRowsIsInvalid)
{
    EXPECT_FALSE(m_proxy.get(-1, u"name"_s).isValid());
    EXPECT_FALSE(m_proxy.get(m_proxy.count(), u"name"_s).isValid());
}

TEST_F(CVqSortFilterProxyModelGet, GetByAnUnknownRoleIsInvalid)
{
    EXPECT_FALSE(m_proxy.get(0, u"colour"_s).isValid());
    EXPECT_FALSE(m_proxy.get(0, QString()).isValid());
}

TEST_F(CVqSortFilterProxyModelGet, GetWithoutASourceGivesAnEmptyObject)
{
    m_proxy.setSource(nullptr);

    EXPECT_TRUE(is_empty_object(m_proxy.get(0)));
}

TEST(CVqSortFilterProxyModelGetAlone, GetOutsideAnyEngineIsUndefined)
{
    NamedRows model({u"sky"_s});
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);

    EXPECT_TRUE(proxy.get(0).isUndefined());
    EXPECT_TRUE(proxy.get(7).isUndefined());
}

TEST(CVqSortFilterProxyModelGetAlone, GetByRoleNeedsNoEngine)
{
    NamedRows model({u"sky"_s});
    CVqSortFilterProxyModel proxy;
    proxy.setSource(&model);

    EXPECT_EQ(proxy.get(0, u"size"_s), QVariant(1));
}
