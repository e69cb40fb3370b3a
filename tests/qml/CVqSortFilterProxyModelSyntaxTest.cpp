#include "qml/CVqSortFilterProxyModel.h"
#include "tests/qml/CountingRows.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

namespace {

using Proxy = CVqSortFilterProxyModel;

const QStringList g_names{u"sky"_s, u"Sea"_s, u"a.b"_s, u"a*b"_s, u"aab"_s};

struct Filter
{
    const char* name;
    Proxy::FilterSyntax syntax;
    QString text;
    Texts expected;
    Qt::CaseSensitivity sensitivity = Qt::CaseSensitive;
};

class Syntax : public testing::TestWithParam<Filter>
{ };

std::string name_of(const testing::TestParamInfo<Filter>& info)
{
    return info.param.name;
}

// With the names above, filtered by "name" where nothing else is told.
Texts filtered(Proxy& proxy, const Filter& filter)
{
    NamedRows model(g_names);
    proxy.setSource(&model);
    proxy.setFilterRole("name");
    proxy.setFilterCaseSensitivity(filter.sensitivity);
    proxy.setFilterSyntax(filter.syntax);
    proxy.setFilterString(filter.text);
    return TextsOf(proxy, NamedRows::Name);
}

}

TEST_P(Syntax, TellsWhichRowsPass)
{
    Proxy proxy;

    EXPECT_EQ(filtered(proxy, GetParam()), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    CVqSortFilterProxyModelSyntax, Syntax,
    testing::Values(
        Filter{"RegExp", Proxy::RegExp, u"^s"_s, {"sky"}},
        Filter{"RegExpInTheMiddle", Proxy::RegExp, u"e"_s, {"Sea"}},
        Filter{"RegExpWithADot", Proxy::RegExp, u"a.b"_s, {"a.b", "a*b", "aab"}},
        Filter{"RegExpOfOtherCase", Proxy::RegExp, u"SK"_s, {}},
        Filter{"RegExpWithoutCase", Proxy::RegExp, u"^s"_s, {"sky", "Sea"}, Qt::CaseInsensitive},
        Filter{"RegExpWithoutCaseOfAText", Proxy::RegExp, u"SK"_s, {"sky"}, Qt::CaseInsensitive},
        Filter{"RegExpThatFindsTheEmptyText", Proxy::RegExp, u"x*"_s, {"sky", "Sea", "a.b", "a*b", "aab"}},
        Filter{"InvalidRegExp", Proxy::RegExp, u"("_s, {}},
        Filter{"InvalidRegExpWithoutCase", Proxy::RegExp, u"[a"_s, {}, Qt::CaseInsensitive},
        Filter{"Wildcard", Proxy::Wildcard, u"a*b"_s, {"a.b", "a*b", "aab"}},
        Filter{"WildcardInTheMiddle", Proxy::Wildcard, u"e?"_s, {"Sea"}},
        Filter{"WildcardWithADot", Proxy::Wildcard, u"a.b"_s, {"a.b"}},
        Filter{"WildcardWithoutCase", Proxy::Wildcard, u"s?a"_s, {"Sea"}, Qt::CaseInsensitive},
        Filter{"WildcardOfOtherCase", Proxy::Wildcard, u"s?a"_s, {}},
        Filter{"FixedString", Proxy::FixedString, u"a*b"_s, {"a*b"}},
        Filter{"FixedStringInTheMiddle", Proxy::FixedString, u"."_s, {"a.b"}},
        Filter{"FixedStringWithoutCase", Proxy::FixedString, u"SEA"_s, {"Sea"}, Qt::CaseInsensitive},
        Filter{"FixedStringOfOtherCase", Proxy::FixedString, u"SEA"_s, {}},
        Filter{"FixedStringOfAnOpenBracket", Proxy::FixedString, u"("_s, {}},
        Filter{"EmptyRegExp", Proxy::RegExp, QString(), {"sky", "Sea", "a.b", "a*b", "aab"}},
        Filter{"EmptyWildcard", Proxy::Wildcard, QString(), {"sky", "Sea", "a.b", "a*b", "aab"}},
        Filter{"EmptyFixedString", Proxy::FixedString, QString(), {"sky", "Sea", "a.b", "a*b", "aab"}}),
    name_of);

TEST(CVqSortFilterProxyModelSyntax, AnEmptyTextAfterAnotherLetsAllRowsPassInEachSyntax)
{
    NamedRows model(g_names);
    Proxy proxy;
    proxy.setSource(&model);

    for (const auto syntax : {Proxy::RegExp, Proxy::Wildcard, Proxy::FixedString}) {
        proxy.setFilterSyntax(syntax);
        proxy.setFilterString(u"sky"_s);
        EXPECT_EQ(proxy.count(), 1) << "syntax " << syntax;
        proxy.setFilterString(QString());
        EXPECT_EQ(proxy.count(), 5) << "syntax " << syntax;
    }
}

TEST(CVqSortFilterProxyModelSyntax, CaseIsKeptFromTextToText)
{
    NamedRows model(g_names);
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);

    proxy.setFilterString(u"SKY"_s);
    EXPECT_EQ(proxy.count(), 1);
    proxy.setFilterString(u"SEA"_s);
    EXPECT_EQ(proxy.count(), 1);
}

TEST(CVqSortFilterProxyModelSyntax, AnotherSyntaxReadsTheTextAnew)
{
    NamedRows model(g_names);
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterString(u"a.b"_s);
    ASSERT_EQ(proxy.count(), 3);

    proxy.setFilterSyntax(Proxy::FixedString);

    EXPECT_EQ(TextsOf(proxy, NamedRows::Name), Texts({"a.b"}));
    EXPECT_EQ(proxy.filterRegularExpression().pattern(), u"a\\.b"_s);
}

TEST(CVqSortFilterProxyModelSyntax, TheSameSyntaxDoesNotFilterAnew)
{
    CountingRows model(g_names);
    Proxy proxy;
    proxy.setSource(&model);
    proxy.setFilterSyntax(Proxy::Wildcard);
    proxy.setFilterString(u"a"_s);
    ASSERT_EQ(proxy.count(), 4);
    model.Forget();

    proxy.setFilterSyntax(Proxy::Wildcard);

    EXPECT_THAT(model.roles_read, IsEmpty());
}

TEST(CVqSortFilterProxyModelSyntax, TheSameSyntaxLeavesAnExpressionThatTheBaseWasGiven)
{
    Proxy proxy;
    proxy.setFilterString(u"a"_s);
    proxy.setFilterRegularExpression(u"b"_s);

    proxy.setFilterSyntax(Proxy::RegExp);

    EXPECT_EQ(proxy.filterRegularExpression().pattern(), u"b"_s);
}

TEST(CVqSortFilterProxyModelSyntax, ASyntaxThatThereIsNotAppliesNothing)
{
    Proxy proxy;
    proxy.setFilterString(u"a.b"_s);

    proxy.setFilterSyntax(static_cast<Proxy::FilterSyntax>(7));
    proxy.setFilterString(u"x"_s);

    EXPECT_EQ(proxy.filterRegularExpression().pattern(), u"a.b"_s);
    EXPECT_EQ(proxy.filterString(), u"x"_s);
    EXPECT_EQ(proxy.filterSyntax(), 7);
}
