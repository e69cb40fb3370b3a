#include "quick_backend/images/CVqImageInks.h"

#include "tests/quick_backend/images/PaletteForTest.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

TEST(CVqImageInks, EachModeHasItsColourOfThePalette)
{
    const PaletteForTest palette;
    const CVqImageInks inks;

    EXPECT_EQ(inks.Ink(QIcon::Normal), PaletteForTest::g_text);
    EXPECT_EQ(inks.Ink(QIcon::Active), PaletteForTest::g_text);
    EXPECT_EQ(inks.Ink(QIcon::Disabled), PaletteForTest::g_disabled);
    EXPECT_EQ(inks.Ink(QIcon::Selected), PaletteForTest::g_highlighted);
}

TEST(CVqImageInks, ChangedPaletteIsReadAndTold)
{
    PaletteForTest palette;
    const CVqImageInks inks;
    QSignalSpy changes(&inks, &CVqImageInks::changed);

    palette.Set(qRgb(1, 2, 3), qRgb(4, 5, 6), qRgb(7, 8, 9));

    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(inks.Ink(QIcon::Normal), qRgb(1, 2, 3));
    EXPECT_EQ(inks.Ink(QIcon::Disabled), qRgb(4, 5, 6));
    EXPECT_EQ(inks.Ink(QIcon::Selected), qRgb(7, 8, 9));
}
