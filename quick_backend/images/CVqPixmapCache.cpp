#include "quick_backend/images/CVqPixmapCache.h"

namespace {

constexpr qsizetype g_limit_at_start = qsizetype(64) * 1024 * 1024;

qsizetype bytes_of(const QPixmap& pixmap)
{
    return qsizetype(pixmap.width()) * pixmap.height() * pixmap.depth() / 8;
}

}

CVqPixmapCache::CVqPixmapCache() : m_pixmaps(g_limit_at_start) { }

void CVqPixmapCache::Put(const SVqPixmapKey& key, const QPixmap& pixmap)
{
    m_pixmaps.insert(key, new QPixmap(pixmap), bytes_of(pixmap));
}
