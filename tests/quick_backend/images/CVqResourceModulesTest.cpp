#include "quick_backend/images/CVqResourceModules.h"

#include "tests/quick_backend/images/ImageSamples.h"
#include "tile_assets/VqTileAssets.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// A module whose images are files.
struct CVqResourceModulesTest : testing::Test
{
    CVqResourceModulesTest() { m_modules.Add(u"my_images.dll"_s, m_folder.path()); }

    void Make(const QString& name) const { WriteFile(m_folder.filePath(name), "x"); }

    QString Found(const QString& image) const
    {
        const QString path = m_modules.Find(u"my_images.dll"_s, image);
        return path.isEmpty() ? path : path.sliced(m_folder.path().size() + 1);
    }

    QTemporaryDir m_folder;
    CVqResourceModules m_modules;
};

}

TEST_F(CVqResourceModulesTest, ImageIsFoundByItsNameInLowerCase)
{
    Make(u"picker_br.svg"_s);

    EXPECT_EQ(Found(u"PICKER_BR"_s), u"picker_br.svg"_s);
    EXPECT_EQ(Found(u"picker_br"_s), u"picker_br.svg"_s);
}

TEST_F(CVqResourceModulesTest, FileOfExactlyThatNameComesFirst)
{
    Make(u"OPEN"_s);
    Make(u"open.svg"_s);

    EXPECT_EQ(Found(u"OPEN"_s), u"OPEN"_s);
    EXPECT_EQ(Found(u"open.svg"_s), u"open.svg"_s);
}

TEST_F(CVqResourceModulesTest, ExtensionsAreTriedInTheirOrder)
{
    for (const QString& extension : {u".jpeg"_s, u".jpg"_s, u".webp"_s, u".png"_s, u".svg"_s}) {
        Make(u"open"_s + extension);
        EXPECT_EQ(Found(u"OPEN"_s), u"open"_s + extension);
    }
}

TEST_F(CVqResourceModulesTest, WhatIsNotThereIsNotFound)
{
    EXPECT_EQ(Found(u"OPEN"_s), QString());
    EXPECT_EQ(Found(QString()), QString());
    EXPECT_EQ(m_modules.Find(u"other.dll"_s, u"OPEN"_s), QString());
}

TEST_F(CVqResourceModulesTest, NamesDoNotLeaveTheFolder)
{
    Make(u"open.svg"_s);

    EXPECT_EQ(Found(u"../"_s + m_folder.path().section(u'/', -1) + u"/open.svg"_s), QString());
    EXPECT_EQ(Found(u"..\\open.svg"_s), QString());
}

TEST_F(CVqResourceModulesTest, ModuleIsKnownByItsFileNameInAnyCase)
{
    EXPECT_TRUE(m_modules.IsModule(u"MY_Images.DLL"_s));
    EXPECT_TRUE(m_modules.IsModule(u"/app/my_images.dll"_s));
    EXPECT_TRUE(m_modules.IsModule(u"C:\\app\\my_images.dll"_s));
    EXPECT_FALSE(m_modules.IsModule(u"my_images"_s));
    EXPECT_FALSE(m_modules.IsModule(QString()));
}

TEST_F(CVqResourceModulesTest, ModuleOfThePrefixHasItsImagesInTheFolderOfItsName)
{
    EXPECT_EQ(m_modules.Find(u"k7_tile_assets.dll"_s, u"OPEN"_s), VqTileAssetsRoot() + u"/open.svg"_s);
    EXPECT_EQ(m_modules.Find(u"k7_tile_assets.so"_s, u"OPEN"_s), VqTileAssetsRoot() + u"/open.svg"_s);
    EXPECT_FALSE(m_modules.IsModule(u"k7_nothing.dll"_s));
    EXPECT_FALSE(m_modules.IsModule(u"k7_.dll"_s));
    EXPECT_FALSE(m_modules.IsModule(u"tile_assets.dll"_s));
}

TEST_F(CVqResourceModulesTest, LaterAddTakesThePlaceOfTheEarlierOne)
{
    Make(u"open.svg"_s);
    m_modules.Add(u"K7_TILE_ASSETS.dll"_s, m_folder.path());

    EXPECT_EQ(m_modules.Find(u"k7_tile_assets.dll"_s, u"OPEN"_s), m_folder.filePath(u"open.svg"_s));
}
