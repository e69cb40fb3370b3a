#pragma once

#include "system/VqTypes.h"

#include <cstddef>
#include <vector>

/// Hash index from a number to the positions that carry it: the first, the last, and from each to the next.
///
/// It is empty and not in use until Begin(). The owner adds every position in rising order and drops the
/// whole index when positions move.
class CVqAccelIndex
{
public:
    /// Positions of one number; `last` is less than `first` when there are none.
    struct Span
    {
        int first = 0;
        int last = -1;

        int FirstOrNone() const { return first <= last ? first : -1; }
    };

    bool IsInUse() const { return m_in_use; }

    /// Counts a walk that had to do without; true once all of them have cost as much as building the index.
    bool CountWalk() { return ++m_walks > walks_per_build; }

    /// Takes the index into use, empty, with room for `count` numbers.
    void Begin(std::size_t count);

    /// Adds `position`, which lies behind every position added before.
    void Add(vq_uint64 number, int position);

    Span Find(vq_uint64 number) const;

    /// The next position that carries the same number as this one, which was added; -1 behind the last.
    int Next(int position) const { return m_next[static_cast<std::size_t>(position)]; }

    /// Takes the index out of use; the memory stays for the next Begin().
    void Drop();

private:
    struct Slot
    {
        vq_uint64 number = 0;
        Span span;

        bool IsFree() const { return span.last < span.first; }
    };

    static constexpr int walks_per_build = 8;

    std::size_t slot_of(vq_uint64 number) const;
    void grow();

    std::vector<Slot> m_slots; // a power of two, at most three quarters taken
    std::vector<int> m_next;   // for each position; those never added have no meaning
    std::size_t m_taken = 0;
    std::size_t m_seed = 0; // identifiers and keys come from files, too
    int m_walks = 0;
    bool m_in_use = false;
};
