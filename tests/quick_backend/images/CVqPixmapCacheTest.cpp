#include "quick_backend/images/CVqPixmapCache.h"

#include <gtest/gtest.h>

namespace {

constexpr SVqPixmapKey g_first{1, 10, 10, 0, false};
constexpr SVqPixmapKey g_second{2, 10, 10, 0, false};
constexpr qsizetype g_bytes = 10 * 10 * 4;

QPixmap a_pixmap(int side = 10)
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

}

TEST(CVqPixmapCache, HoldsUpTo64MebibytesUnlessToldOtherwise)
{
    EXPECT_EQ(CVqPixmapCache().Limit(), 64 * 1024 * 1024);
}

TEST(CVqPixmapCache, PixmapIsFoundUnderItsKeyAlone)
{
    CVqPixmapCache cache;
    const QPixmap pixmap = a_pixmap();

    cache.Put(g_first, pixmap);

    ASSERT_NE(cache.Find(g_first), nullptr);
    EXPECT_EQ(cache.Find(g_first)->cacheKey(), pixmap.cacheKey());
    for (const SVqPixmapKey& other :
         {g_second, SVqPixmapKey{1, 11, 10, 0, false}, SVqPixmapKey{1, 10, 11, 0, false},
          SVqPixmapKey{1, 10, 10, 1, false}, SVqPixmapKey{1, 10, 10, 0, true}})
        EXPECT_EQ(cache.Find(other), nullptr);
}

TEST(CVqPixmapCache, CountsBytes)
{
    CVqPixmapCache cache;

    cache.Put(g_first, a_pixmap());
    cache.Put(g_second, a_pixmap());

    EXPECT_EQ(cache.Bytes(), 2 * g_bytes);
}

TEST(CVqPixmapCache, LeastRecentlyUsedGoesFirst)
{
    CVqPixmapCache cache;
    cache.SetLimit(2 * g_bytes);
    cache.Put(g_first, a_pixmap());
    cache.Put(g_second, a_pixmap());
    cache.Find(g_first);

    cache.Put({3, 10, 10, 0, false}, a_pixmap());

    EXPECT_NE(cache.Find(g_first), nullptr);
    EXPECT_EQ(cache.Find(g_second), nullptr);
    EXPECT_EQ(cache.Bytes(), 2 * g_bytes);
}

TEST(CVqPixmapCache, LowerLimitTakesEffectAtOnce)
{
    CVqPixmapCache cache;
    cache.Put(g_first, a_pixmap());

    cache.SetLimit(g_bytes - 1);

    EXPECT_EQ(cache.Find(g_first), nullptr);
    EXPECT_EQ(cache.Bytes(), 0);
}

TEST(CVqPixmapCache, PixmapBeyondTheLimitIsNotKept)
{
    CVqPixmapCache cache;
    cache.SetLimit(g_bytes);
    cache.Put(g_first, a_pixmap());

    cache.Put(g_second, a_pixmap(11));

    EXPECT_EQ(cache.Find(g_second), nullptr);
    EXPECT_LE(cache.Bytes(), g_bytes);
}

TEST(CVqPixmapCache, ClearEmptiesIt)
{
    CVqPixmapCache cache;
    cache.Put(g_first, a_pixmap());

    cache.Clear();

    EXPECT_EQ(cache.Find(g_first), nullptr);
    EXPECT_EQ(cache.Bytes(), 0);
}
