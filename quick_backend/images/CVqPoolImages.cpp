#include "quick_backend/images/CVqPoolImages.h"

#include <utility>

namespace {

quint32 next_serial()
{
    static quint32 serial = 0;
    return ++serial;
}

}

int CVqPoolImages::IndexOf(Kind kind, const QString& text) const
{
    return (kind == Kind::Name ? m_names : m_files).value(text, -1);
}

int CVqPoolImages::Add(Kind kind, const QString& text, const SVqImageSource& source, VqPoolImagePtr image)
{
    const std::lock_guard lock(m_lock);
    m_entries.push_back({std::move(image), next_serial()});
    m_sources.push_back(source);
    const int index = int(m_entries.size());
    (kind == Kind::Name ? m_names : m_files).insert(text, index);
    return index;
}

void CVqPoolImages::Replace(int index, VqPoolImagePtr image)
{
    const std::lock_guard lock(m_lock);
    m_entries[std::size_t(index) - 1] = {std::move(image), next_serial()};
}

const SVqPoolEntry* CVqPoolImages::Entry(quint32 index) const
{
    return IsKnown(index) ? &m_entries[index - 1] : nullptr;
}

const SVqImageSource* CVqPoolImages::Source(quint32 index) const
{
    return IsKnown(index) ? &m_sources[index - 1] : nullptr;
}

VqPoolImagePtr CVqPoolImages::Find(quint32 index) const
{
    const std::lock_guard lock(m_lock);
    return IsKnown(index) ? m_entries[index - 1].image : nullptr;
}
