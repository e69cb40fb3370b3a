#pragma once

#include "AbstractGui/CVqAccelIndex.h"
#include "AbstractGui/SVqAccelRecord.h"

#include <vector>

/// The growable array under a CVqAccelerators: records in insertion order, nothing unique.
///
/// It answers every search as a walk from the first record would. Two indexes make that quick: they are
/// built when a table of some size has been walked a few times, follow what is appended, and are dropped
/// when a removal moves records. They live here, and not in the table, because tables may share one array.
class CVqAccelRecords
{
public:
    int GetCount() const { return static_cast<int>(m_records.size()); }
    const SVqAccelRecord& At(int position) const { return m_records[static_cast<std::size_t>(position)]; }

    void Append(SVqAccelRecord record);

    /// Appends every record that `other` holds now; `other` may be this array.
    void AppendAll(const CVqAccelRecords& other);

    void Clear();
    void Swap(CVqAccelRecords& other);

    /// Writes `enabled` of every record with `id`.
    void Enable(vq_uint32 id, bool enable);

    /// Position of the first record at or after `start` with exactly these flags and this key, or -1.
    /// `start` must not be negative.
    int FindKey(vq_uint32 flags, vq_wchar key, int start) const;

    /// Position of the first record at or after `start` with `id`, or -1. `start` must not be negative.
    int FindId(vq_uint32 id, int start) const;

    /// Remove every record with `id` or `target` in one pass that keeps the order; false when none has it.
    bool RemoveId(vq_uint32 id);
    bool RemoveTarget(vq_uint64 target);

private:
    template <class Number>
    int find(CVqAccelIndex& index, vq_uint64 wanted, int start, Number number_of) const;
    template <class Number>
    bool is_indexed(CVqAccelIndex& index, Number number_of) const;
    template <class Condition>
    bool remove_from(int start, Condition condition);
    void drop_indexes();

    std::vector<SVqAccelRecord> m_records;
    mutable CVqAccelIndex m_keys; // by flags and key
    mutable CVqAccelIndex m_ids;  // by identifier
};
