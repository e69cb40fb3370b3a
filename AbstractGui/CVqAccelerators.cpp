#include "AbstractGui/CVqAccelerators.h"

#include "AbstractGui/CVqAccelRecords.h"

namespace {

constexpr int not_found = -13;

bool is_position(const CVqAccelRecords& records, int index)
{
    return index >= 0 && index < records.GetCount();
}

bool is_position(const CVqAccelRecords& records, vq_uint32 index)
{
    return index < static_cast<vq_uint32>(records.GetCount());
}

// Moves the index as every search does: behind a hit, or to the count.
const SVqAccelRecord* step_to(const CVqAccelRecords& records, int found, int& index)
{
    index = found < 0 ? records.GetCount() : found + 1;
    return found < 0 ? nullptr : &records.At(found);
}

const SVqAccelRecord* next_of_id(const CVqAccelRecords& records, vq_uint32 id, int& index)
{
    return is_position(records, index) ? step_to(records, records.FindId(id, index), index) : nullptr;
}

template <class Value>
void store(Value* target, Value value)
{
    if (target)
        *target = value;
}

int result_of(bool found)
{
    return found ? 0 : not_found;
}

}

CVqAccelerators::CVqAccelerators() : m_pRecords(new CVqAccelRecords) { }

CVqAccelerators::~CVqAccelerators()
{
    delete m_pRecords;
}

CVqAccelerators& CVqAccelerators::operator=(const CVqAccelerators& other) = default;

int CVqAccelerators::AddAccelKey(vq_uint32 id, vq_uint32 flags, vq_wchar key, vq_uint64 target)
{
    m_pRecords->Append({.id = id, .target = target, .key = key, .flags = flags});
    return 0;
}

int CVqAccelerators::AddAllFrom(CVqAccelerators& other)
{
    m_pRecords->AppendAll(*other.m_pRecords);
    return 0;
}

int CVqAccelerators::EnableAccelKey(vq_uint32 id, bool enable)
{
    m_pRecords->Enable(id, enable);
    return 0;
}

int CVqAccelerators::EnableAccelTranslation(bool enable)
{
    m_bTranslate = enable;
    return 0;
}

int CVqAccelerators::FindId(vq_uint32 flags, vq_wchar key, int& index, vq_uint32* id) const
{
    if (!is_position(*m_pRecords, index))
        return not_found;
    const SVqAccelRecord* record = step_to(*m_pRecords, m_pRecords->FindKey(flags, key, index), index);
    if (!record)
        return not_found;
    store(id, record->id);
    return 0;
}

vq_uint32 CVqAccelerators::GetAccelIdByIndex(vq_uint32 index) const
{
    return is_position(*m_pRecords, index) ? m_pRecords->At(static_cast<int>(index)).id : 0;
}

int CVqAccelerators::GetAccelIndexById(vq_uint32 id, int& index) const
{
    return is_position(*m_pRecords, index) ? m_pRecords->FindId(id, index) : not_found;
}

int CVqAccelerators::GetAccelKey(vq_uint32 id, int& index, vq_uint32* flags, vq_wchar* key) const
{
    const SVqAccelRecord* record = next_of_id(*m_pRecords, id, index);
    if (!record)
        return not_found;
    store(flags, record->flags);
    store(key, record->key);
    return 0;
}

int CVqAccelerators::GetAccelKeyByIndex(vq_uint32 index, vq_uint32* flags, vq_wchar* key) const
{
    if (!is_position(*m_pRecords, index))
        return not_found;
    const SVqAccelRecord& record = m_pRecords->At(static_cast<int>(index));
    store(flags, record.flags);
    store(key, record.key);
    return 0;
}

vq_uint32 CVqAccelerators::GetAccelsCount() const
{
    return static_cast<vq_uint32>(m_pRecords->GetCount());
}

int CVqAccelerators::RemoveAccelKey(vq_uint32 id)
{
    return result_of(m_pRecords->RemoveId(id));
}

int CVqAccelerators::RemoveAllAccels()
{
    m_pRecords->Clear();
    return 0;
}

int CVqAccelerators::RemoveAllAccelsTo(vq_uint64 target)
{
    return result_of(m_pRecords->RemoveTarget(target));
}

int CVqAccelerators::SwapAccels(CVqAccelerators& other)
{
    m_pRecords->Swap(*other.m_pRecords);
    return 0;
}

bool CVqAccelerators::Translate(vq_wchar key, vq_uint32 flags, vq_uint64& target, vq_uint32& id) const
{
    if (!m_bTranslate)
        return false;
    const int found = m_pRecords->FindKey(flags | vq_accel_virtual_key, key, 0);
    if (found < 0)
        return false;
    target = m_pRecords->At(found).target;
    id = m_pRecords->At(found).id;
    return true;
}
