#include "AbstractGui/CVqAccelRecords.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int smallest_indexed_count = 16; // below, a walk costs no more than a look into an index

constexpr vq_uint64 key_number(vq_uint32 flags, vq_wchar key)
{
    return vq_uint64(flags) << 16 | vq_uint64(key);
}

constexpr auto key_number_of
    = [](const SVqAccelRecord& record) { return key_number(record.flags, record.key); };
constexpr auto id_of = [](const SVqAccelRecord& record) { return vq_uint64(record.id); };

}

void CVqAccelRecords::Append(SVqAccelRecord record)
{
    const int position = GetCount();
    m_records.push_back(record);
    if (m_keys.IsInUse())
        m_keys.Add(key_number_of(record), position);
    if (m_ids.IsInUse())
        m_ids.Add(record.id, position);
}

void CVqAccelRecords::AppendAll(const CVqAccelRecords& other)
{
    const int count = other.GetCount();
    for (int position = 0; position < count; ++position)
        Append(other.At(position));
}

void CVqAccelRecords::Clear()
{
    m_records.clear();
    drop_indexes();
}

void CVqAccelRecords::Swap(CVqAccelRecords& other)
{
    std::swap(*this, other);
}

void CVqAccelRecords::Enable(vq_uint32 id, bool enable)
{
    for (int at = FindId(id, 0); at >= 0; at = FindId(id, at + 1))
        m_records[static_cast<std::size_t>(at)].enabled = enable;
}

int CVqAccelRecords::FindKey(vq_uint32 flags, vq_wchar key, int start) const
{
    return find(m_keys, key_number(flags, key), start, key_number_of);
}

int CVqAccelRecords::FindId(vq_uint32 id, int start) const
{
    return find(m_ids, id, start, id_of);
}

bool CVqAccelRecords::RemoveId(vq_uint32 id)
{
    const int first = FindId(id, 0);
    return first >= 0 && remove_from(first, [id](const SVqAccelRecord& record) { return record.id == id; });
}

bool CVqAccelRecords::RemoveTarget(vq_uint64 target)
{
    return remove_from(0, [target](const SVqAccelRecord& record) { return record.target == target; });
}

// A search that goes on behind a hit, as one for all keys of an identifier does, takes one step in an index.
template <class Number>
int CVqAccelRecords::find(CVqAccelIndex& index, vq_uint64 wanted, int start, Number number_of) const
{
    if (is_indexed(index, number_of)) {
        const bool is_behind_hit = start > 0 && start <= GetCount() && number_of(At(start - 1)) == wanted;
        int position = is_behind_hit ? index.Next(start - 1) : index.Find(wanted).FirstOrNone();
        while (position >= 0 && position < start)
            position = index.Next(position);
        return position;
    }
    for (int position = start; position < GetCount(); ++position) {
        if (number_of(At(position)) == wanted)
            return position;
    }
    return -1;
}

template <class Number>
bool CVqAccelRecords::is_indexed(CVqAccelIndex& index, Number number_of) const
{
    if (index.IsInUse())
        return true;
    if (GetCount() < smallest_indexed_count || !index.CountWalk())
        return false;
    index.Begin(m_records.size());
    for (int position = 0; position < GetCount(); ++position)
        index.Add(number_of(At(position)), position);
    return true;
}

template <class Condition>
bool CVqAccelRecords::remove_from(int start, Condition condition)
{
    const auto tail = std::remove_if(m_records.begin() + start, m_records.end(), condition);
    if (tail == m_records.end())
        return false;
    m_records.erase(tail, m_records.end());
    drop_indexes();
    return true;
}

void CVqAccelRecords::drop_indexes()
{
    m_keys.Drop();
    m_ids.Drop();
}
