#include "tests/ResourceLookup.h"

using namespace Qt::StringLiterals;

namespace {

// The prefix `first` of the table with the folder `second`, for good: the name has to be the test's own.
void add_row(const QString& first, const QString& second)
{
    const ResourcePrefix row(first, second);
}

}

TEST_F(ResourceLookup, EachPlaceIsAskedInItsOrder)
{
    Develop();
    const QUrl url = TileAddress(u"a/b.qml"_s);
    const QStringList places{
        Source(u"branch9/src/tile_assets/%1/a/b.qml"_s),
        Beside(u"branch9/src/tile_assets/Resources/%1/a/b.qml"_s),
        Beside(u"branch9/src/tile_assets/%1/a/b.qml"_s),
        Beside(u"Quillon/src/tile_assets/Resources/%1/a/b.qml"_s),
        Beside(u"Quillon/src/tile_assets/%1/a/b.qml"_s),
    };
    for (const QString& place : places)
        m_tree.Write(place);

    for (const QString& place : places) {
        EXPECT_EQ(FindQmlResource(url, {}).toString(), u"file://"_s + place);
        ASSERT_TRUE(QFile::remove(place));
    }
    EXPECT_EQ(FindQmlResource(url, {}), url);
}

TEST_F(ResourceLookup, ResourcesOfTheLibraryLieInAFolderOfTheirOwn)
{
    Develop();
    const QString file = Source(u"branch9/src/arbor_qml_support/Resources/%1/b.qml"_s);
    m_tree.Write(file);

    const QUrl found = FindQmlResource(QUrl(u"qrc:///arbor_qml_support/%1/b.qml"_s.arg(m_tree.Own())), {});

    EXPECT_EQ(found, QUrl(u"file://"_s + file));
}

// The module's folder is a link to a place that has no branch9 three levels up.
TEST_F(ResourceLookup, TreeIsTheOneThatHoldsTheLinkToTheCheckout)
{
    const QFileInfo checkout(ResourceTree::InSourceTree(u"branch9/src/arbor_qml_support"_s));
    ASSERT_TRUE(checkout.isSymLink());
    ASSERT_FALSE(QFileInfo::exists(checkout.canonicalFilePath() + u"/../../../branch9"_s));
    Develop();
    m_tree.Write(Source(u"branch9/src/tile_assets/%1/b.qml"_s));

    const QUrl found = FindQmlResource(TileAddress(u"b.qml"_s), {});

    EXPECT_TRUE(found.toLocalFile().startsWith(ResourceTree::Root())) << found.toString().toStdString();
}

TEST_F(ResourceLookup, VariableSetToTheEmptyTextSwitchesTheModeOn)
{
    Develop("");
    const QString file = Source(u"branch9/src/tile_assets/%1/b.qml"_s);
    m_tree.Write(file);

    EXPECT_EQ(FindQmlResource(TileAddress(u"b.qml"_s), {}), QUrl(u"file://"_s + file));
}

TEST_F(ResourceLookup, VariableIsReadAtEachCall)
{
    const QUrl url = TileAddress(u"b.qml"_s);
    const QString file = Source(u"branch9/src/tile_assets/%1/b.qml"_s);
    m_tree.Write(file);

    const QUrl before = FindQmlResource(url, {});
    Develop();
    const QUrl developing = FindQmlResource(url, {});
    qunsetenv("ORV_DEVELOP_RESOURCES");
    const QUrl after = FindQmlResource(url, {});

    EXPECT_EQ(before, url);
    EXPECT_EQ(developing, QUrl(u"file://"_s + file));
    EXPECT_EQ(after, url);
}

TEST_F(ResourceLookup, SourceTreeComesBeforeTheFolders)
{
    Develop();
    const QTemporaryDir folder;
    FileIn(folder, u"b.qml"_s);
    const QString file = Source(u"branch9/src/tile_assets/%1/b.qml"_s);
    m_tree.Write(file);

    EXPECT_EQ(FindQmlResource(TileAddress(u"b.qml"_s), {folder.path()}), QUrl(u"file://"_s + file));
}

TEST_F(ResourceLookup, WithFoldersNothingBesideTheApplicationIsAsked)
{
    Develop();
    const QTemporaryDir empty, folder;
    const QString file = FileIn(folder, u"b.qml"_s);
    m_tree.Write(Beside(u"branch9/src/%1/b.qml"_s));
    const QUrl url = OwnAddress(u"b.qml"_s);

    EXPECT_EQ(FindQmlResource(url, {empty.path()}), url);
    EXPECT_EQ(FindQmlResource(url, {empty.path(), folder.path()}), QUrl(u"file://"_s + file));
}

TEST_F(ResourceLookup, AddressThatIsNoResourceIsTriedOnTheTableAndThenByItsFileName)
{
    Develop();
    const QTemporaryDir folder;
    const QString named = FileIn(folder, u"b.qml"_s);
    const QString mapped = Source(u"branch9/src/tile_assets/%1/b.qml"_s);
    m_tree.Write(mapped);

    for (const QString& start : {u"qrc:"_s, u"https://example.org"_s, u"file://"_s, u""_s}) {
        const QUrl url(start + u"/tile_assets/%1/b.qml"_s.arg(m_tree.Own()));
        EXPECT_EQ(FindQmlResource(url, {folder.path()}), QUrl(u"file://"_s + mapped)) << start.toStdString();
    }
    ASSERT_TRUE(QFile::remove(mapped));
    const QUrl url(u"qrc:/tile_assets/%1/b.qml"_s.arg(m_tree.Own()));
    EXPECT_EQ(FindQmlResource(url, {folder.path()}), QUrl(u"file://"_s + named));
    EXPECT_EQ(m_debug.Texts(), QStringList());
}

TEST_F(ResourceLookup, WithOneSlashNothingBesideTheApplicationIsAsked)
{
    Develop();
    m_tree.Write(Beside(u"branch9/src/%1/b.qml"_s));
    const QUrl url(u"qrc:/%1/b.qml"_s.arg(m_tree.Own()));

    EXPECT_EQ(FindQmlResource(url, {}), url);
}

TEST_F(ResourceLookup, AddressOfOneLevelHasNoPlaceBesideTheApplication)
{
    Develop();
    const QUrl url(u"qrc:///%1"_s.arg(m_tree.Own()));
    m_tree.Write(Beside(u"branch9/src/%1/Resources/%1"_s));
    m_tree.Write(Beside(u"branch9/src/%1/%1"_s));

    EXPECT_EQ(FindQmlResource(url, {}), url);
}

TEST_F(ResourceLookup, ModuleWithoutANameHasPlacesBesideTheApplication)
{
    Develop();
    const QString file = Beside(u"branch9/src//Resources/%1/b.qml"_s);
    m_tree.Write(file);

    const QUrl found = FindQmlResource(QUrl(u"qrc:////%1/b.qml"_s.arg(m_tree.Own())), {});

    EXPECT_EQ(found.toString(), u"file://"_s + file);
}

TEST_F(ResourceLookup, MappedPathIsNotCleaned)
{
    Develop();
    m_tree.Write(Source(u"branch9/src/tile_assets/%1/sub/c.qml"_s));
    m_tree.Write(Source(u"branch9/src/tile_assets/%1/b.qml"_s));

    const QUrl found = FindQmlResource(TileAddress(u"sub/../b.qml"_s), {});

    EXPECT_EQ(found.toString(), u"file://"_s + Source(u"branch9/src/tile_assets/%1/sub/../b.qml"_s));
}

TEST_F(ResourceLookup, ResourceAddressInsideAnotherAddressHasNoPlaceBesideTheApplication)
{
    Develop();
    const QTemporaryDir folder;
    m_tree.Write(folder.path() + u'/' + Beside(u"branch9/src/%1/b.qml"_s));
    const QUrl url(folder.path() + u"/qrc:///%1/b.qml"_s.arg(m_tree.Own()));

    EXPECT_EQ(FindQmlResource(url, {}), url);
}

// The address type writes schemes in lower case, so that no capital letter reaches the lookup.
TEST_F(ResourceLookup, SchemeInCapitalLettersIsTheSameAddress)
{
    Develop();
    const QString file = Beside(u"branch9/src/%1/b.qml"_s);
    m_tree.Write(file);
    const QString rest = m_tree.Own() + u"/b.qml"_s;

    const QUrl found = FindQmlResource(QUrl(u"QRC:///"_s + rest), {});

    EXPECT_EQ(found.toString(), u"file://"_s + file);
    EXPECT_EQ(m_debug.Texts(), Missing(u"qrc:///"_s + rest));
}

TEST_F(ResourceLookup, PrefixIsComparedWithCase)
{
    Develop();
    m_tree.Write(Source(u"branch9/src/tile_assets/%1/b.qml"_s));
    const QUrl url(u"qrc:///Tile_assets/%1/b.qml"_s.arg(m_tree.Own()));

    EXPECT_EQ(FindQmlResource(url, {}), url);
}

TEST_F(ResourceLookup, PrefixThatOccursTwiceIsReplacedTwice)
{
    Develop();
    add_row(u"/%1/"_s.arg(m_tree.Own()), u"branch9/src/%1/"_s.arg(m_tree.Own()));
    const QString twice = Source(u"branch9/src/%1/xbranch9/src/%1/y"_s);
    m_tree.Write(twice);

    const QUrl found = FindQmlResource(QUrl(u"qrc:///%1/x/%1/y"_s.arg(m_tree.Own())), {});

    EXPECT_EQ(found, QUrl(u"file://"_s + twice));
}

TEST_F(ResourceLookup, ModuleThatOccursTwiceIsReplacedTwiceBesideTheApplication)
{
    Develop();
    const QString application = QCoreApplication::applicationDirPath() + u"/../.."_s;
    const QString half = application + u"/branch9/src/"_s + m_tree.Own() + u"/"_s;
    const QString file = half + u"x"_s + half + u"y"_s;
    m_tree.Write(file);

    const QUrl found = FindQmlResource(QUrl(u"qrc:///%1/xqrc:///%1/y"_s.arg(m_tree.Own())), {});

    EXPECT_EQ(found.toString(), u"file://"_s + file);
}

TEST_F(ResourceLookup, EncodedPathIsMappedDecoded)
{
    Develop();
    const QString file = Source(u"branch9/src/tile_assets/%1/b c%ü#.qml"_s);
    m_tree.Write(file);

    const QUrl found = FindQmlResource(TileAddress(u"b%20c%25%C3%BC%23.qml"_s), {});

    EXPECT_EQ(found.toLocalFile(), file);
}

TEST_F(ResourceLookup, QueryIsNoPartOfTheMappedPath)
{
    Develop();
    const QString file = Source(u"branch9/src/tile_assets/%1/b.qml"_s);
    m_tree.Write(file);

    EXPECT_EQ(FindQmlResource(TileAddress(u"b.qml?x=1#y"_s), {}), QUrl(u"file://"_s + file));
}

// Beside the application the address counts as it reads: blanks decoded, the sign itself not, with its query.
TEST_F(ResourceLookup, AddressBesideTheApplicationIsTakenAsItReads)
{
    Develop();
    const QString file = Beside(u"branch9/src/%1/b c%25.qml?x=1"_s);
    m_tree.Write(file);

    const QUrl found = FindQmlResource(OwnAddress(u"b%20c%25.qml?x=1"_s), {});

    EXPECT_EQ(found.toLocalFile(), file);
}

TEST_F(ResourceLookup, RowWithAnAbsoluteFolderLeadsOutOfTheTree)
{
    Develop();
    const QTemporaryDir elsewhere;
    const QString file = FileIn(elsewhere, u"b.qml"_s);
    add_row(u"/%1/"_s.arg(m_tree.Own()), elsewhere.path() + u'/');

    EXPECT_EQ(FindQmlResource(OwnAddress(u"b.qml"_s), {}), QUrl(u"file://"_s + file));
}
