#include "gallery/menu/MenuImage.h"

#include "quick_backend/CVqQuickBitmapPool.h"
#include "system/CVqStringW.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(MenuImage, IsAFileAmongTheIcons)
{
    EXPECT_TRUE(Gallery::HasMenuImage(u"copy"_s));
    EXPECT_TRUE(Gallery::HasMenuImage(u"zoom_100"_s));
    EXPECT_FALSE(Gallery::HasMenuImage(u"COPY"_s));
    EXPECT_FALSE(Gallery::HasMenuImage(u"../copy"_s));
    EXPECT_FALSE(Gallery::HasMenuImage(u"wobble"_s));
}

TEST(MenuImage, GoesIntoThePoolUnderModuleAndName)
{
    const CVqQuickBitmapPool pool;

    const int index = Gallery::AddMenuImage(u"copy"_s);

    CVqStringW file;
    CVqStringW resource;
    ASSERT_EQ(CVqAbstractBitmapPool::GetImageSource(static_cast<vq_uint32>(index), file, resource), 0);
    EXPECT_EQ(file.ToQString(), u"k7_tile_assets.dll"_s);
    EXPECT_EQ(resource.ToQString(), u"COPY"_s);
}

TEST(MenuImage, WithoutAPoolHasTheCodeForThat)
{
    EXPECT_EQ(Gallery::AddMenuImage(u"copy"_s), -12);
}
