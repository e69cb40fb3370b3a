#include "tests/FileTouches.h"
#include "tests/ResourceLookup.h"

#include <string_view>

using namespace Qt::StringLiterals;

TEST_F(ResourceLookup, WithoutFoldersTheAddressIsGivenBackAndNoFileIsTouched)
{
    const QUrl url = TileAddress(u"b.qml"_s);
    m_tree.Write(Source(u"branch9/src/tile_assets/%1/b.qml"_s));
    m_tree.Write(Beside(u"branch9/src/tile_assets/%1/b.qml"_s));
    const int before = file_touches();

    const QUrl found = FindQmlResource(url, {});

    EXPECT_EQ(found, url);
    EXPECT_EQ(file_touches(), before);
}

TEST_F(ResourceLookup, TouchOfAFileIsSeenWhereThereIsOne)
{
    const QTemporaryDir folder;
    const int before = file_touches();

    FindQmlResource(TileAddress(u"b.qml"_s), {folder.path()});

    EXPECT_GT(file_touches(), before);
}

TEST_F(ResourceLookup, FileOfTheSameNameInTheFirstFolderThatHasItWins)
{
    const QTemporaryDir without, first, second;
    const QString file = FileIn(first, u"b.qml"_s);
    FileIn(second, u"b.qml"_s);

    const QUrl found
        = FindQmlResource(TileAddress(u"b.qml"_s), {without.path(), first.path(), second.path()});

    EXPECT_EQ(found, QUrl(u"file://"_s + file));
}

TEST_F(ResourceLookup, RelativeFolderIsSeenFromTheCurrentOne)
{
    const QTemporaryDir folder;
    const QString file = FileIn(folder, u"b.qml"_s);
    const QString relative = QDir::current().relativeFilePath(folder.path());
    ASSERT_TRUE(QDir::isRelativePath(relative));

    const QUrl found = FindQmlResource(TileAddress(u"b.qml"_s), {relative});

    EXPECT_TRUE(QDir::isAbsolutePath(found.toLocalFile()));
    EXPECT_EQ(QFileInfo(found.toLocalFile()), QFileInfo(file));
}

TEST_F(ResourceLookup, FileOfTheSameNameIsFoundForAddressesOfOtherSchemes)
{
    const QTemporaryDir folder;
    const QString file = FileIn(folder, u"b.qml"_s);

    for (const QString& url : {u"qrc:/a/b.qml"_s, u"https://example.org/a/b.qml?x=1"_s,
                               u"file:///none/b.qml"_s, u"a/b.qml"_s, u"b.qml"_s})
        EXPECT_EQ(FindQmlResource(QUrl(url), {folder.path()}), QUrl(u"file://"_s + file))
            << url.toStdString();
}

TEST_F(ResourceLookup, AddressIsGivenBackWhereNoFolderHasTheFile)
{
    const QTemporaryDir folder;
    const QUrl url(u"qrc:///a/b.qml?x=1#y"_s);

    EXPECT_EQ(FindQmlResource(url, {folder.path(), u"/arbor-none"_s}), url);
}

TEST_F(ResourceLookup, EncodedFileNameIsLookedForDecoded)
{
    const QTemporaryDir folder;
    const QString file = FileIn(folder, u"b c%ü.qml"_s);

    const QUrl found = FindQmlResource(QUrl(u"qrc:///a/b%20c%25%C3%BC.qml"_s), {folder.path()});

    EXPECT_EQ(found.toLocalFile(), file);
}

TEST_F(ResourceLookup, AddressThatEndsWithASlashGivesTheFolderItself)
{
    const QTemporaryDir folder;

    const QUrl found = FindQmlResource(QUrl(u"qrc:///a/"_s), {folder.path()});

    EXPECT_EQ(QDir(found.toLocalFile()), QDir(folder.path()));
}

TEST_F(ResourceLookup, CompiledFolderGivesAnAddressOfALocalFile)
{
    const QUrl found = FindQmlResource(QUrl(u"qrc:///a/README.md"_s), {u":/compiled"_s});

    EXPECT_EQ(found, QUrl::fromLocalFile(u":/compiled/README.md"_s));
}

TEST_F(ResourceLookup, NoMessageOutsideTheDevelopersMode)
{
    FindQmlResource(QUrl(u"qrc:///arbor-none/b.qml"_s), {});

    EXPECT_EQ(m_debug.Texts(), QStringList());
}

TEST(QmlWinClassName, GivesATextInAnAreaThatStays)
{
    const vq_wchar* const name = QmlWinClassName();

    ASSERT_NE(name, nullptr);
    EXPECT_GT(std::basic_string_view<vq_wchar>(name).size(), 0u);
    EXPECT_LT(std::basic_string_view<vq_wchar>(name).size(), 256u);
}

TEST(QmlWinClassName, SecondCallGivesTheSameTextAtTheSameAddress)
{
    const vq_wchar* const first = QmlWinClassName();
    const std::basic_string<vq_wchar> text = first;

    const vq_wchar* const second = QmlWinClassName();

    EXPECT_EQ(second, first);
    EXPECT_TRUE(second == text);
}
