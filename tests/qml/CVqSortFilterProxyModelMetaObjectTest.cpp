#include "qml/CVqSortFilterProxyModel.h"
#include "tests/qml/MetaObjectTexts.h"

#include <QQmlParserStatus>

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

const QMetaObject& g_meta = CVqSortFilterProxyModel::staticMetaObject;

}

TEST(CVqSortFilterProxyModelMetaObject, HasItsPropertiesInTheirOrder)
{
    EXPECT_THAT(MetaObjectTexts::Properties(g_meta),
                ElementsAre("int count, read, notify countChanged", "QObject* source, read, write",
                            "QByteArray sortRole, read, write", "Qt::SortOrder sortOrder, read, write",
                            "QByteArray filterRole, read, write",
                            "QString filterString, read, write, notify filterStringChanged",
                            "CVqSortFilterProxyModel::FilterSyntax filterSyntax, read, write"));
}

TEST(CVqSortFilterProxyModelMetaObject, HasItsMethodsInTheirOrder)
{
    EXPECT_THAT(MetaObjectTexts::Methods(g_meta),
                ElementsAre("signal void countChanged()", "signal void filterStringChanged()",
                            "method QJSValue get(int index)",
                            "method QVariant get(int index, QString roleName)"));
}

TEST(CVqSortFilterProxyModelMetaObject, BothWaysToGetARowAreConst)
{
    EXPECT_TRUE(g_meta.method(g_meta.indexOfMethod("get(int)")).isConst());
    EXPECT_TRUE(g_meta.method(g_meta.indexOfMethod("get(int,QString)")).isConst());
}

TEST(CVqSortFilterProxyModelMetaObject, HasItsEnumerationWithItsValues)
{
    EXPECT_THAT(MetaObjectTexts::Enumerations(g_meta),
                ElementsAre("FilterSyntax: RegExp 0 Wildcard 1 FixedString 2"));
}

TEST(CVqSortFilterProxyModelMetaObject, DerivesFromTheProxyOfQtAndTheStatusOfAParser)
{
    CVqSortFilterProxyModel proxy;

    EXPECT_EQ(g_meta.superClass(), &QSortFilterProxyModel::staticMetaObject);
    EXPECT_EQ(qobject_cast<QQmlParserStatus*>(&proxy), static_cast<QQmlParserStatus*>(&proxy));
}
