#pragma once

#include "AbstractGui/CVqAccelRecords.h"
#include "AbstractGui/CVqAccelerators.h"

#include <initializer_list>
#include <type_traits>
#include <vector>

/// What Translate() gave; the stored values are the untouched ones when nothing was stored.
struct Fired
{
    bool found = false;
    vq_uint32 id = 0;
    vq_uint64 target = 0;

    friend bool operator==(const Fired&, const Fired&) = default;
};

inline constexpr vq_uint32 untouched_id = 4711;
inline constexpr vq_uint64 untouched_target = 0x5555555555555555;

inline Fired fired(const CVqAccelerators& table, vq_wchar key, vq_uint32 flags)
{
    Fired result{false, untouched_id, untouched_target};
    result.found = table.Translate(key, flags, result.target, result.id);
    return result;
}

inline constexpr Fired nothing{false, untouched_id, untouched_target};

inline std::vector<vq_uint32> ids_of(const CVqAccelerators& table)
{
    std::vector<vq_uint32> ids;
    for (vq_uint32 index = 0; index < table.GetAccelsCount(); ++index)
        ids.push_back(table.GetAccelIdByIndex(index));
    return ids;
}

/// The array of a table, which is its first member.
inline const CVqAccelRecords& records_of(const CVqAccelerators& table)
{
    static_assert(std::is_standard_layout_v<CVqAccelerators>);
    return **reinterpret_cast<const CVqAccelRecords* const*>(&table);
}

/// Which records are enabled.
inline std::vector<bool> marks_of(const CVqAccelerators& table)
{
    std::vector<bool> marks;
    for (int at = 0; at < records_of(table).GetCount(); ++at)
        marks.push_back(records_of(table).At(at).enabled);
    return marks;
}

/// Adds the key 0x40 + id with the target 100 * id for each.
inline void add_ids(CVqAccelerators& table, std::initializer_list<vq_uint32> ids)
{
    for (const vq_uint32 id : ids)
        table.AddAccelKey(id, 16, static_cast<vq_wchar>(0x40 + id), id * 100);
}
