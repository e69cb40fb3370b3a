#include "AbstractGui/CVqCursorPool.h"

#include <iterator>
#include <utility>

CVqCursorPool* CVqCursorPool::s_pInstance = nullptr;

CVqCursorPool::CVqCursorPool() = default;

CVqCursorPool::CVqCursorPool(const CVqCursorPool& other) = default;

CVqCursorPool& CVqCursorPool::operator=(const CVqCursorPool& other) = default;

CVqCursorPool::~CVqCursorPool()
{
    if (s_pInstance == this)
        s_pInstance = nullptr;
}

CVqCursorPool& CVqCursorPool::instance()
{
    if (!s_pInstance) {
        static CVqCursorPool pool;
        s_pInstance = &pool;
    }
    return *s_pInstance;
}

vq_uint64 CVqCursorPool::size() const
{
    return m_entries.size();
}

QCursor CVqCursorPool::get(vq_uint64 id)
{
    const auto found = m_entries.find(id);
    return found != m_entries.end() ? found->second.cursor : QCursor(Qt::ArrowCursor);
}

int CVqCursorPool::getResource(vq_uint64 id, QString* resource) const
{
    const auto found = m_entries.find(id);
    if (found == m_entries.end())
        return 0;
    if (resource)
        *resource = found->second.resource;
    return found->second.number;
}

void CVqCursorPool::set(vq_uint64 id, QString resource)
{
    SVqEntry& entry = m_entries[id];
    entry.cursor = QCursor();
    entry.resource = std::move(resource);
}

void CVqCursorPool::set(vq_uint64 id, int resource)
{
    SVqEntry& entry = m_entries[id];
    entry.cursor = QCursor();
    entry.number = resource;
}

void CVqCursorPool::set(vq_uint64 id, QCursor cursor)
{
    m_entries[id].cursor = std::move(cursor);
}

vq_uint64 CVqCursorPool::operator[](vq_uint64 n) const
{
    if (n >= m_entries.size())
        return 0;
    return std::next(m_entries.begin(), static_cast<std::ptrdiff_t>(n))->first;
}
