#include "tests/ResourceLookup.h"

using namespace Qt::StringLiterals;

// The test program has this page compiled in as ":/compiled/README.md".

TEST_F(ResourceLookup, CompiledResourceGivesNoMessage)
{
    Develop();
    const QUrl url(u"qrc:///compiled/README.md"_s);

    EXPECT_EQ(FindQmlResource(url, {}), url);
    EXPECT_EQ(m_debug.Texts(), QStringList());
}

TEST_F(ResourceLookup, SourceTreeWinsOverACompiledResourceWithoutAMessage)
{
    Develop();
    const ResourcePrefix row(u"/compiled/"_s, u"branch9/src/%1/"_s.arg(m_tree.Own()));
    const QString file = Source(u"branch9/src/%1/README.md"_s);
    m_tree.Write(file);

    EXPECT_EQ(FindQmlResource(QUrl(u"qrc:///compiled/README.md"_s), {}), QUrl(u"file://"_s + file));
    EXPECT_EQ(m_debug.Texts(), QStringList());
}

TEST_F(ResourceLookup, MissingResourceIsToldAndTheLookupGoesOn)
{
    Develop();
    const QString file = Source(u"branch9/src/tile_assets/%1/b.qml"_s);
    m_tree.Write(file);
    const QUrl url = TileAddress(u"b.qml"_s);

    EXPECT_EQ(FindQmlResource(url, {}), QUrl(u"file://"_s + file));
    EXPECT_EQ(m_debug.Texts(), Missing(url.toString()));
}

TEST_F(ResourceLookup, MissingResourceIsToldAtEachCall)
{
    Develop();
    const QUrl url(u"qrc:///arbor-none/b.qml"_s);

    FindQmlResource(url, {});
    FindQmlResource(url, {});

    EXPECT_EQ(m_debug.Texts(), Missing(url.toString()) + Missing(url.toString()));
}

TEST_F(ResourceLookup, MissingResourceIsToldOnceForAllFolders)
{
    Develop();
    const QTemporaryDir first, second;
    FileIn(second, u"b.qml"_s);
    const QUrl url(u"qrc:///arbor-none/b.qml"_s);

    FindQmlResource(url, {first.path(), second.path()});

    EXPECT_EQ(m_debug.Texts(), Missing(url.toString()));
}

// The path of a compiled resource is absolute, so the folders change nothing about whether it is there.
TEST_F(ResourceLookup, CompiledResourceGivesNoMessageWithFoldersEither)
{
    Develop();
    const QTemporaryDir first, second;
    const QUrl url(u"qrc:///compiled/README.md"_s);

    EXPECT_EQ(FindQmlResource(url, {first.path(), second.path()}), url);
    EXPECT_EQ(m_debug.Texts(), QStringList());
}

TEST_F(ResourceLookup, AddressThatDoesNotBeginAsAResourceGivesNoMessage)
{
    Develop();

    for (const QString& url :
         {u"qrc:/arbor-none/b.qml"_s, u"qrc://host/b.qml"_s, u"file:///arbor-none/b.qml"_s,
          u"https://example.org/?u=qrc:///b.qml"_s, u"b.qml"_s, u""_s})
        EXPECT_EQ(FindQmlResource(QUrl(url), {}), QUrl(url));

    EXPECT_EQ(m_debug.Texts(), QStringList());
}

TEST_F(ResourceLookup, MessageHoldsTheAddressAsItReads)
{
    Develop();

    FindQmlResource(QUrl(u"qrc:///arbor-none/b%20c%25%C3%BC.qml?x=%201#y"_s), {});

    EXPECT_EQ(m_debug.Texts(), Missing(u"qrc:///arbor-none/b c%25ü.qml?x= 1#y"_s));
}

// A query is part of the path that is looked for, and no compiled resource has one.
TEST_F(ResourceLookup, CompiledResourceWithAQueryIsToldAsMissing)
{
    Develop();

    FindQmlResource(QUrl(u"qrc:///compiled/README.md?x=1"_s), {});

    EXPECT_EQ(m_debug.Texts(), Missing(u"qrc:///compiled/README.md?x=1"_s));
}

// "qrc:///" becomes ":/" at each place in the address, and ":/compiled/:/README.md" is compiled in as well.
TEST_F(ResourceLookup, AddressInsideAnAddressIsReplacedToo)
{
    Develop();

    FindQmlResource(QUrl(u"qrc:///compiled/qrc:///README.md"_s), {});

    EXPECT_EQ(m_debug.Texts(), QStringList());
}
