#include "arbor_qml_support.h"

#include <gtest/gtest.h>

#include <type_traits>

using namespace Qt::StringLiterals;

using Row = std::pair<QString, QString>;

namespace {

// The table is there for derived classes only. Rows stay for the rest of the program, so that each test has
// prefixes of its own.
struct Table : ResourcePrefix
{
    static const QList<Row>& Rows() { return resourcePrefixes; }
};

QString unused_prefix()
{
    return u"/row-%1/"_s.arg(Table::Rows().size());
}

QString replaced(QString path)
{
    return ResourcePrefix::replacePath(path) ? path : u"no row"_s;
}

}

TEST(ResourcePrefix, TableBeginsWithTheRowsOfTheLibrary)
{
    const QList<Row> rows = Table::Rows().first(2);

    EXPECT_EQ(rows,
              (QList<Row>{{u"/tile_assets/"_s, u"branch9/src/tile_assets/"_s},
                          {u"/arbor_qml_support/"_s, u"branch9/src/arbor_qml_support/Resources/"_s}}));
}

TEST(ResourcePrefix, NewPrefixIsAddedAtTheEnd)
{
    const QList<Row> before = Table::Rows();
    const QString prefix = unused_prefix();

    const ResourcePrefix row(prefix, u"one/"_s);

    EXPECT_EQ(Table::Rows(), before + QList<Row>({{prefix, u"one/"_s}}));
}

TEST(ResourcePrefix, KnownPrefixKeepsItsPlaceAndGetsTheNewFolder)
{
    const QList<Row> before = Table::Rows();
    const QString known = unused_prefix();
    const ResourcePrefix first(known, u"one/"_s);
    const QString other = unused_prefix();
    const ResourcePrefix second(other, u"two/"_s);

    const ResourcePrefix again(known, u"three/"_s);

    EXPECT_EQ(Table::Rows(), before + QList<Row>({{known, u"three/"_s}, {other, u"two/"_s}}));
}

TEST(ResourcePrefix, PrefixInOtherCaseIsAnotherOne)
{
    const ResourcePrefix small(u"/case/"_s, u"small/"_s);
    const ResourcePrefix capital(u"/CASE/"_s, u"capital/"_s);

    EXPECT_EQ(replaced(u"/case/a"_s), u"small/a"_s);
    EXPECT_EQ(replaced(u"/CASE/a"_s), u"capital/a"_s);
    EXPECT_EQ(replaced(u"/Case/a"_s), u"no row"_s);
}

TEST(ResourcePrefix, RowOutlivesItsObject)
{
    {
        const ResourcePrefix row(u"/outlives/"_s, u"one/"_s);
    }

    EXPECT_EQ(replaced(u"/outlives/a"_s), u"one/a"_s);
}

TEST(ResourcePrefix, CopyingAndAssigningDoNothing)
{
    ResourcePrefix first(u"/assign-1/"_s, u"one/"_s);
    ResourcePrefix second(u"/assign-2/"_s, u"two/"_s);
    const QList<Row> before = Table::Rows();

    ResourcePrefix& copied = first = second;
    ResourcePrefix& moved = first = std::move(second);

    EXPECT_EQ(&copied, &first);
    EXPECT_EQ(&moved, &first);
    EXPECT_EQ(Table::Rows(), before);
}

TEST(ResourcePrefix, HoldsNothing)
{
    EXPECT_TRUE(std::is_empty_v<ResourcePrefix>);
}

TEST(ResourcePrefix, EveryPlaceOfThePrefixIsReplaced)
{
    EXPECT_EQ(replaced(u"/tile_assets/x/tile_assets/y"_s),
              u"branch9/src/tile_assets/xbranch9/src/tile_assets/y"_s);
}

TEST(ResourcePrefix, SecondPlaceInOtherCaseIsKept)
{
    EXPECT_EQ(replaced(u"/tile_assets/x/Tile_Assets/y"_s), u"branch9/src/tile_assets/x/Tile_Assets/y"_s);
}

TEST(ResourcePrefix, PrefixInTheMiddleOnlyIsNotReplaced)
{
    QString path = u"/other/tile_assets/y"_s;

    const bool changed = ResourcePrefix::replacePath(path);

    EXPECT_FALSE(changed);
    EXPECT_EQ(path, u"/other/tile_assets/y"_s);
}

TEST(ResourcePrefix, PathWithoutTheClosingSlashOfAPrefixIsNotReplaced)
{
    EXPECT_EQ(replaced(u"/tile_assets"_s), u"no row"_s);
    EXPECT_EQ(replaced(u""_s), u"no row"_s);
}

TEST(ResourcePrefix, OfTwoPrefixesThatFitTheOneAddedEarlierWins)
{
    const ResourcePrefix wide(u"/wide/"_s, u"outer/"_s);
    const ResourcePrefix wide_inner(u"/wide/inner/"_s, u"inner/"_s);
    const ResourcePrefix narrow_inner(u"/narrow/inner/"_s, u"inner/"_s);
    const ResourcePrefix narrow(u"/narrow/"_s, u"outer/"_s);

    EXPECT_EQ(replaced(u"/wide/inner/a"_s), u"outer/inner/a"_s);
    EXPECT_EQ(replaced(u"/narrow/inner/a"_s), u"inner/a"_s);
}

TEST(ResourcePrefix, RowOfAKnownPrefixStillCountsAsTheEarlierOne)
{
    const ResourcePrefix first(u"/kept/"_s, u"one/"_s);
    const ResourcePrefix second(u"/kept/inner/"_s, u"two/"_s);

    const ResourcePrefix again(u"/kept/"_s, u"three/"_s);

    EXPECT_EQ(replaced(u"/kept/inner/a"_s), u"three/inner/a"_s);
}

TEST(ResourcePrefix, FoldersAreNotReplacedOnceMore)
{
    const ResourcePrefix first(u"/once-1/"_s, u"x/once-2/"_s);
    const ResourcePrefix second(u"/once-2/"_s, u"two/"_s);

    EXPECT_EQ(replaced(u"/once-1/a"_s), u"x/once-2/a"_s);
}
