#include "AbstractGui/CVqAccelIndex.h"

#include <QHashFunctions>

#include <algorithm>
#include <bit>

void CVqAccelIndex::Begin(std::size_t count)
{
    m_slots.assign(std::bit_ceil(std::max<std::size_t>(count * 2, 16)), Slot());
    m_next.clear();
    m_taken = 0;
    m_seed = QHashSeed::globalSeed();
    m_in_use = true;
}

void CVqAccelIndex::Add(vq_uint64 number, int position)
{
    m_next.resize(static_cast<std::size_t>(position) + 1, -1);
    Slot& slot = m_slots[slot_of(number)];
    if (!slot.IsFree()) {
        m_next[static_cast<std::size_t>(slot.span.last)] = position;
        slot.span.last = position;
        return;
    }
    slot = {number, {position, position}};
    if (++m_taken * 4 > m_slots.size() * 3)
        grow();
}

CVqAccelIndex::Span CVqAccelIndex::Find(vq_uint64 number) const
{
    return m_slots[slot_of(number)].span;
}

void CVqAccelIndex::Drop()
{
    m_walks = 0;
    m_in_use = false;
}

std::size_t CVqAccelIndex::slot_of(vq_uint64 number) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t place = qHash(quint64(number), m_seed) & mask;
    while (!m_slots[place].IsFree() && m_slots[place].number != number)
        place = (place + 1) & mask;
    return place;
}

void CVqAccelIndex::grow()
{
    std::vector<Slot> old(m_slots.size() * 2);
    m_slots.swap(old);
    for (const Slot& slot : old) {
        if (!slot.IsFree())
            m_slots[slot_of(slot.number)] = slot;
    }
}
