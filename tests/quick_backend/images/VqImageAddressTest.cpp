#include "quick_backend/images/VqImageAddress.h"

#include <QColor>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(VqImageAddress, IndexAloneIsTheNormalImage)
{
    const auto address = VqParseImageAddress(u"7"_s);

    ASSERT_TRUE(address);
    EXPECT_EQ(address->index, 7u);
    EXPECT_EQ(address->mode, QIcon::Normal);
    EXPECT_FALSE(address->colour);
}

TEST(VqImageAddress, EachStateIsRead)
{
    EXPECT_EQ(VqParseImageAddress(u"7?state=normal"_s)->mode, QIcon::Normal);
    EXPECT_EQ(VqParseImageAddress(u"7?state=disabled"_s)->mode, QIcon::Disabled);
    EXPECT_EQ(VqParseImageAddress(u"7?state=active"_s)->mode, QIcon::Active);
    EXPECT_EQ(VqParseImageAddress(u"7?state=selected"_s)->mode, QIcon::Selected);
}

TEST(VqImageAddress, ColourIsReadInEachForm)
{
    EXPECT_EQ(VqParseImageAddress(u"7?color=red"_s)->colour, 0xFFFF0000);
    EXPECT_EQ(VqParseImageAddress(u"7?color=%23010203"_s)->colour, 0xFF010203);
    EXPECT_EQ(VqParseImageAddress(u"7?color=#80010203"_s)->colour, 0x80010203);
}

TEST(VqImageAddress, AllPartsMayStandTogether)
{
    const auto address = VqParseImageAddress(u"12?revision=3&color=blue&state=disabled"_s);

    ASSERT_TRUE(address);
    EXPECT_EQ(address->index, 12u);
    EXPECT_EQ(address->mode, QIcon::Disabled);
    EXPECT_EQ(address->colour, 0xFF0000FF);
}

TEST(VqImageAddress, EverythingElseIsRefused)
{
    for (const QString& text :
         {u""_s, u"?state=normal"_s, u"+7"_s, u" 7"_s, u"-1"_s, u"7x"_s, u"0x7"_s, u"4294967296"_s, u"7/8"_s,
          u"\u0667"_s, u"7?state=grey"_s, u"7?state=DISABLED"_s, u"7?state"_s, u"7?colour=red"_s,
          u"7?color=nothing"_s, u"7?color="_s, u"7?state=normal&x=1"_s})
        EXPECT_FALSE(VqParseImageAddress(text)) << qPrintable(text);
}
