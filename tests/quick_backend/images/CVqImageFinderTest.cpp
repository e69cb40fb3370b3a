#include "quick_backend/images/CVqImageFinder.h"

#include "tests/quick_backend/images/ImageSamples.h"
#include "tile_assets/VqTileAssets.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// The folder of the default module has "logo.png" and "img/a.png".
struct CVqImageFinderTest : testing::Test
{
    CVqImageFinderTest()
    {
        QDir(m_folder.path()).mkdir(u"img"_s);
        WriteFile(Path(u"logo.png"_s), "x");
        WriteFile(Path(u"img/a.png"_s), "x");
    }

    QString Path(const QString& name) const { return QDir(m_folder.path()).canonicalPath() + u'/' + name; }

    QTemporaryDir m_folder;
    CVqImageFinder m_finder{QDir(m_folder.path()).canonicalPath()};
};

void expect_open_icon(const SVqFoundImage& found)
{
    EXPECT_EQ(found.path, VqTileAssetsRoot() + u"/open.svg"_s);
    EXPECT_EQ(found.source.file, u"k7_tile_assets.dll"_s);
    EXPECT_EQ(found.source.resource, u"OPEN"_s);
}

}

TEST_F(CVqImageFinderTest, DefaultModuleIsInTheFolder)
{
    EXPECT_EQ(m_finder.DefaultModule(), Path(u"k7_tile_assets.dll"_s));
}

TEST_F(CVqImageFinderTest, FileIsFoundUnderOnePath)
{
    const QString links = Path(u"link.png"_s);
    ASSERT_TRUE(QFile::link(Path(u"logo.png"_s), links));

    EXPECT_EQ(m_finder.File(Path(u"img/../logo.png"_s)).path, Path(u"logo.png"_s));
    EXPECT_EQ(m_finder.File(links).path, Path(u"logo.png"_s));
    EXPECT_EQ(m_finder.File(links).source.file, Path(u"logo.png"_s));
}

TEST_F(CVqImageFinderTest, CompiledResourceIsFoundByPathAndAddress)
{
    for (const QString& name : {u":/tile_assets/open.svg"_s, u":/tile_assets/../tile_assets/open.svg"_s,
                                u"qrc:/tile_assets/open.svg"_s, u"qrc:///tile_assets/open.svg"_s})
        EXPECT_EQ(m_finder.File(name).path, u":/tile_assets/open.svg"_s) << qPrintable(name);
}

TEST_F(CVqImageFinderTest, StoredFileIsFoundWithTheWayBehindIt)
{
    EXPECT_EQ(m_finder.File(Path(u"img/a.pngimga.png"_s)).path, Path(u"img/a.png"_s));
    EXPECT_EQ(m_finder.File(Path(u"logo.png.logo.png"_s)).path, Path(u"logo.png"_s));
}

TEST_F(CVqImageFinderTest, FileOfThatVeryNameComesBeforeAStoredOne)
{
    WriteFile(Path(u"logo.png.logo.png"_s), "x");

    EXPECT_EQ(m_finder.File(Path(u"logo.png.logo.png"_s)).path, Path(u"logo.png.logo.png"_s));
}

TEST_F(CVqImageFinderTest, WhatIsNoFileIsNotFound)
{
    for (const QString& name : {Path(u"none.png"_s), Path(u"img"_s), u"http://127.0.0.1/a.png"_s,
                                u"//127.0.0.1/a.png"_s, u"\\\\127.0.0.1\\a.png"_s, u"/\\127.0.0.1/a.png"_s,
                                u"\\/127.0.0.1/a.png"_s, u"qrc:/none.svg"_s, QString()})
        EXPECT_TRUE(m_finder.File(name).path.isEmpty()) << qPrintable(name);
}

TEST_F(CVqImageFinderTest, NameThatTheFileSystemRefusesIsNotFound)
{
    ASSERT_TRUE(QFile::link(Path(u"loop.png"_s), Path(u"loop.png"_s)));

    EXPECT_TRUE(m_finder.File(Path(u"loop.png"_s)).path.isEmpty());
    EXPECT_TRUE(m_finder.File(Path(QString(5000, u'a'))).path.isEmpty());
    EXPECT_TRUE(m_finder.File(Path(QChar(0xD800) + u".png"_s)).path.isEmpty());
}

TEST_F(CVqImageFinderTest, AddressWithTwoSlashesIsNotLookedAt)
{
    EXPECT_TRUE(m_finder.File(u'/' + Path(u"logo.png"_s)).path.isEmpty());
}

TEST_F(CVqImageFinderTest, ModuleAndNameMayStandInEitherPlace)
{
    expect_open_icon(m_finder.Find(u"k7_tile_assets.dll"_s, u"OPEN"_s, QString()));
    expect_open_icon(m_finder.Find(u"OPEN"_s, u"k7_tile_assets.dll"_s, QString()));
    expect_open_icon(m_finder.Find(u"ignored"_s, u"k7_tile_assets.dll"_s, u"OPEN"_s));
    expect_open_icon(m_finder.Find(u"k7_tile_assets.dll"_s, QString(), u"OPEN"_s));
}

TEST_F(CVqImageFinderTest, FolderOfAModuleDoesNotCount)
{
    expect_open_icon(m_finder.Find(Path(u"k7_tile_assets.dll"_s), u"OPEN"_s, QString()));
    expect_open_icon(m_finder.Find(Path(u"k7_tile_assets.dll.k7_tile_assets.dll"_s), u"OPEN"_s, QString()));
}

TEST_F(CVqImageFinderTest, NameThatTheModuleLacksIsNotFound)
{
    EXPECT_TRUE(m_finder.Find(u"k7_tile_assets.dll"_s, u"NONE"_s, QString()).path.isEmpty());
    EXPECT_TRUE(m_finder.Find(u"none.dll"_s, u"OPEN"_s, QString()).path.isEmpty());
}

TEST_F(CVqImageFinderTest, FileBesideANameThatIsNoModuleIsFound)
{
    EXPECT_EQ(m_finder.Find(Path(u"logo.png"_s), u"none"_s, QString()).path, Path(u"logo.png"_s));
}

TEST_F(CVqImageFinderTest, NameBesideTheModuleIsAFileOrAModule)
{
    EXPECT_EQ(m_finder.BesideModule(u"logo.png"_s), Path(u"logo.png"_s));
    EXPECT_EQ(m_finder.BesideModule(u"k7_tile_assets.dll"_s), Path(u"k7_tile_assets.dll"_s));
    EXPECT_EQ(m_finder.BesideModule(u"none.png"_s), QString());
    EXPECT_EQ(m_finder.BesideModule(QString()), QString());
}

TEST_F(CVqImageFinderTest, BareNameIsTakenOffTheFolder)
{
    EXPECT_EQ(m_finder.BareName(QDir(m_folder.path()).canonicalPath() + u"logo.png"_s), u"logo.png"_s);
}
