#pragma once

#include "quick_backend/images/IVqPoolImage.h"

#include <QHash>
#include <QString>

#include <mutex>
#include <vector>

/// Where an image came from, in the words of CVqAbstractBitmapPool::GetImageSource().
struct SVqImageSource
{
    QString file;
    QString resource;
};

/// An image and a number that no other image of the process ever had.
struct SVqPoolEntry
{
    VqPoolImagePtr image;
    quint32 serial = 0;
};

/// The images by their index, which counts from 1, and by what they were added under: a name, or a file.
/// Written on the GUI thread; Find() may be called in any other.
class CVqPoolImages
{
public:
    enum class Kind
    {
        Name,
        File,
    };

    /// The index, or -1.
    int IndexOf(Kind kind, const QString& text) const;

    /// Gives the new image's index. `text` must be new among those of its kind.
    int Add(Kind kind, const QString& text, const SVqImageSource& source, VqPoolImagePtr image);

    /// For an index that is there.
    void Replace(int index, VqPoolImagePtr image);

    /// Null for an unknown index; valid until the next Add(). GUI thread only.
    const SVqPoolEntry* Entry(quint32 index) const;
    const SVqImageSource* Source(quint32 index) const;

    /// Null for an unknown index. Any thread.
    VqPoolImagePtr Find(quint32 index) const;

private:
    bool IsKnown(quint32 index) const { return index >= 1 && index <= m_entries.size(); }

    mutable std::mutex m_lock; // of m_entries; the GUI thread, which alone writes, reads without it
    std::vector<SVqPoolEntry> m_entries;
    std::vector<SVqImageSource> m_sources;
    QHash<QString, int> m_names;
    QHash<QString, int> m_files;
};
