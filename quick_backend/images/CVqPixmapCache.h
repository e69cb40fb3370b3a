#pragma once

#include <QCache>
#include <QHashFunctions>
#include <QPixmap>

/// What a drawn image is kept under.
struct SVqPixmapKey
{
    quint32 serial = 0; ///< Of the image.
    int width = 0;
    int height = 0;
    int mode = 0;        ///< A QIcon::Mode.
    bool fitted = false; ///< Into that size, with the ratio kept.

    bool operator==(const SVqPixmapKey&) const = default;
};

inline size_t qHash(const SVqPixmapKey& key, size_t seed = 0) noexcept
{
    return qHashMulti(seed, key.serial, key.width, key.height, key.mode, key.fitted);
}

/// Drawn images, up to a number of bytes; what was used least recently goes first. GUI thread only.
class CVqPixmapCache
{
public:
    CVqPixmapCache();

    /// Null when it is not there; valid until the next change.
    const QPixmap* Find(const SVqPixmapKey& key) const { return m_pixmaps.object(key); }

    /// A pixmap that is larger than the limit is not kept.
    void Put(const SVqPixmapKey& key, const QPixmap& pixmap);

    void Clear() { m_pixmaps.clear(); }

    void SetLimit(qsizetype bytes) { m_pixmaps.setMaxCost(bytes); }
    qsizetype Limit() const { return m_pixmaps.maxCost(); }
    qsizetype Bytes() const { return m_pixmaps.totalCost(); }

private:
    QCache<SVqPixmapKey, QPixmap> m_pixmaps;
};
