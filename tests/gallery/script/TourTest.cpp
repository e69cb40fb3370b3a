#include "gallery/script/Tour.h"

#include "gallery/Session.h"
#include "gallery/script/KeyPress.h"
#include "tests/gallery/RealMenu.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Tour, EveryKeyCanBePressed)
{
    Gallery::Session session(RealMenu());

    for (const QString& key : Gallery::TourKeys(*session.Menu()))
        EXPECT_TRUE(Gallery::ParseKeyPress(key)) << key.toStdString();
}

TEST(Tour, HasKeysThatNoTextCarriesAndMnemonics)
{
    Gallery::Session session(RealMenu());

    const QStringList keys = Gallery::TourKeys(*session.Menu());

    EXPECT_TRUE(keys.contains(u"Ctrl+Comma"_s));
    EXPECT_TRUE(keys.contains(u"Ctrl+Plus"_s));
    EXPECT_GE(keys.filter(u"Alt+"_s).size(), 4);
}

TEST(Tour, AnEmptyMenuHasKeysWithoutMnemonics)
{
    CVqQuickMenu menu;

    EXPECT_FALSE(Gallery::TourKeys(menu).isEmpty());
}
