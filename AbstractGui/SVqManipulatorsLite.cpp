#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/SVqMenuRecord.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqLiteVariantW.h"

#include <algorithm>
#include <vector>

using Manipulators = CVqAbstractMenu::SVqManipulators;

namespace {

/// What stands under the cursor of a reader.
class CurrentValue
{
public:
    explicit CurrentValue(const CVqLiteVariantR& in) : m_in(in) { }

    bool Flag() const { return m_in.GetCurrent(false); }
    int Packed() const { return m_in.GetCurrent(0); }
    vq_uint32 Number() const { return static_cast<vq_uint32>(Packed()); }
    void Text(CVqStringW& out) const { m_in.GetCurrent(out, VQ_TEXT("")); }

private:
    const CVqLiteVariantR& m_in;
};

struct Key
{
    int number;
    vq_int32 packed;
    bool is_set;
};

// Keys count up from 0 without a gap, wherever they stand.
class Keys
{
public:
    /// `table` may be null: then none is added.
    explicit Keys(CVqAccelerators* table) : m_table(table) { }

    /// Adds the key that comes next, and keeps what comes too early.
    void Take(const Key& key, bool is_id_known, vq_uint32 id)
    {
        if (is_id_known && m_early.empty() && key.number == m_next && key.is_set)
            add(key, id);
        else
            m_early.push_back(key);
    }

    /// Adds what was kept, up to the first gap. Tells if any key was added.
    bool Finish(vq_uint32 id)
    {
        const auto is_before = [](const Key& left, const Key& right) { return left.number < right.number; };
        std::stable_sort(m_early.begin(), m_early.end(), is_before);
        for (const Key& key : m_early) {
            if (key.number < m_next)
                continue;
            if (key.number > m_next || !key.is_set)
                break;
            add(key, id);
        }
        return m_added;
    }

private:
    void add(const Key& key, vq_uint32 id)
    {
        m_added |= m_table && VqAddPackedAccel(*m_table, id, key.packed);
        ++m_next;
    }

    CVqAccelerators* m_table; // not owned
    std::vector<Key> m_early;
    int m_next = 0;
    bool m_added = false;
};

/// A record as it was read. Of a name that stands more than once the first counts.
struct Record
{
    SVqMenuRecord fields;
    bool added_key = false;
    bool has_sub_menu = false;
};

constexpr unsigned bit_of(EVqMenuField field)
{
    return 1u << static_cast<unsigned>(field);
}

// Walks the level that the reader stands in, and gives the table its keys.
Record read_record(CVqAccelerators* table, CVqLiteVariantR& in)
{
    Record record;
    Keys keys(table);
    unsigned seen = 0;
    for (; in.IsNextValue(); in.NextValue()) {
        const CurrentValue value(in);
        const EVqMenuField field = VqMenuFieldOf(in.CurrentName());
        if (field == EVqMenuField::AccelKey) {
            keys.Take({VqPackedAccelNumber(in.CurrentName()), value.Packed(), in.IsCurrentValueSet()},
                      seen & bit_of(EVqMenuField::Id), record.fields.id);
            continue;
        }
        if (!(seen & bit_of(field)))
            VqReadMenuField(record.fields, field, value);
        seen |= bit_of(field);
    }
    record.added_key = keys.Finish(record.fields.id);
    record.has_sub_menu = seen & bit_of(EVqMenuField::SubMenu);
    return record;
}

// Tells if there are sub-items. A function of its own, so that nothing of the record is on the stack while
// they are loaded.
bool fill_item(Manipulators& tools, CVqAccelerators* table, CVqMenuItem& item, CVqLiteVariantR& in)
{
    const Record record = read_record(table, in);
    VqFillLoadedItem(tools, table, item, record.fields, record.added_key);
    return record.has_sub_menu;
}

void load_record(Manipulators& tools, CVqAccelerators* table, CVqMenuItem* parent, CVqLiteVariantR& in)
{
    CVqMenuItem* item = VqNewLoadedItem(tools);
    if (!item)
        return;
    const bool has_sub_menu = fill_item(tools, table, *item, in);
    if (!parent) {
        tools.freeMenuItem(item); // its keys and its image stay
        return;
    }
    tools.append_item(parent, item);
    if (has_sub_menu && VqMayHoldSubItems(*item) && in.LevelBegin(VQ_TEXT("SubMenu")) == 0) {
        tools.load_from_variant(table, item, in);
        in.LevelEnd();
    }
}

void load_accel_record(Manipulators& tools, CVqAccelerators* table, CVqLoadedAccels& accels,
                       CVqLiteVariantR& in)
{
    CVqMenuItem* item = VqNewLoadedItem(tools);
    if (!item)
        return;
    const Record record = read_record(table, in);
    VqFillLoadedAccel(*item, record.fields);
    if (table)
        accels.Take(item, record.added_key);
    else
        tools.freeMenuItem(item);
}

// Calls `read` in each level that has values.
template <class Read>
void for_each_record(CVqLiteVariantR& in, Read read)
{
    for (; in.IsNextValue(); in.NextValue()) {
        int values = 0;
        if (in.CurrentLevelBegin(&values) != 0)
            continue;
        if (values > 0)
            read();
        in.LevelEnd();
    }
}

}

int Manipulators::save_to_variant(CVqAccelerators* accelerators, CVqMenuItem* item, CVqLiteVariantW& out)
{
    if (!item)
        return -9;
    int result = 0;
    for (; item; item = item->nextItem()) {
        result = 0;
        if (out.LevelBegin(VQ_TEXT("")) != 0)
            continue;
        VqWriteItem(out, *this, accelerators, *item, VqImageReferenceFromModule);
        if (item->subItem() && out.LevelBegin(VQ_TEXT("SubMenu")) == 0) {
            result = save_to_variant(accelerators, item->subItem(), out);
            out.LevelEnd();
        }
        out.LevelEnd();
    }
    return result;
}

int Manipulators::load_from_variant(CVqAccelerators* accelerators, CVqMenuItem* parent, CVqLiteVariantR& in)
{
    for_each_record(in, [&] { load_record(*this, accelerators, parent, in); });
    return 0;
}

int Manipulators::save_accels_to_variant(CVqAccelerators* accelerators, CVqMenuItem* item,
                                         CVqLiteVariantW& out)
{
    if (!item)
        return -9;
    for (; item; item = item->nextItem()) {
        if (out.LevelBegin(VQ_TEXT("")) != 0)
            continue;
        VqWriteAccel(out, accelerators, *item);
        out.LevelEnd();
    }
    return 0;
}

int Manipulators::load_accels_from_variant(CVqAccelerators* accelerators, CVqMenuItem** head,
                                           CVqLiteVariantR& in)
{
    if (!head)
        return 0;
    CVqLoadedAccels accels(*this, head);
    for_each_record(in, [&] { load_accel_record(*this, accelerators, accels, in); });
    return 0;
}
