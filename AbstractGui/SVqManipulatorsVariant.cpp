#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/CVqTreeFieldWriter.h"
#include "AbstractGui/SVqMenuRecord.h"
#include "system/CVqVariant.h"

#include <utility>

using Manipulators = CVqAbstractMenu::SVqManipulators;

namespace {

/// A field of a stored record.
class NodeValue
{
public:
    explicit NodeValue(const CVqVariant& node) : m_node(node) { }

    bool Flag() const { return m_node.GetBool(nullptr); }
    vq_uint32 Number() const { return m_node.GetVq_uint32(nullptr); }
    void Text(CVqStringW& out) const { out = m_node.GetCVqStringW(nullptr); }

private:
    const CVqVariant& m_node;
};

/// A record as it was read. Of a name that stands more than once the last counts, of keys each one.
struct Record
{
    SVqMenuRecord fields;
    CVqVariant* sub_menu = nullptr;
    bool added_key = false;
};

// A key counts for the identifier that was read so far. `table` may be null.
Record read_record(CVqAccelerators* table, CVqVariant& stored)
{
    Record record;
    for (int i = 0; i < stored.GetCount(); ++i) {
        CVqVariant& child = *stored.IndexPtr(i);
        const EVqMenuField field = VqMenuFieldOf(child.GetName().View());
        if (field == EVqMenuField::SubMenu)
            record.sub_menu = &child;
        else if (field != EVqMenuField::AccelKey)
            VqReadMenuField(record.fields, field, NodeValue(child));
        else if (table)
            record.added_key |= VqAddPackedAccel(*table, record.fields.id, child.GetVq_int32(nullptr));
    }
    return record;
}

// Gives the child that holds the sub-items, or null. A function of its own, so that nothing of the record is
// on the stack while they are loaded.
CVqVariant* fill_item(Manipulators& tools, CVqAccelerators* table, CVqMenuItem& item, CVqVariant& stored)
{
    const Record record = read_record(table, stored);
    VqFillLoadedItem(tools, table, item, record.fields, record.added_key);
    return record.sub_menu;
}

void load_record(Manipulators& tools, CVqAccelerators* table, CVqMenuItem* parent, CVqVariant& stored)
{
    CVqMenuItem* item = VqNewLoadedItem(tools);
    if (!item)
        return;
    CVqVariant* sub_menu = fill_item(tools, table, *item, stored);
    if (parent)
        tools.append_item(parent, item);
    if (sub_menu && VqMayHoldSubItems(*item))
        tools.load_from_variant(table, item, *sub_menu);
    if (!parent)
        tools.free_all(item); // what came with it, keys and images, stays
}

void load_accel_record(Manipulators& tools, CVqAccelerators* table, CVqLoadedAccels& accels,
                       CVqVariant& stored)
{
    CVqMenuItem* item = VqNewLoadedItem(tools);
    if (!item)
        return;
    const Record record = read_record(table, stored);
    VqFillLoadedAccel(*item, record.fields);
    if (table)
        accels.Take(item, record.added_key);
    else
        tools.freeMenuItem(item);
}

// Calls `read` with each child that has children itself.
template <class Read>
void for_each_record(CVqVariant& in, Read read)
{
    for (int i = 0; i < in.GetCount(); ++i)
        if (CVqVariant* stored = in.IndexPtr(i); stored->GetCount() > 0)
            read(*stored);
}

CVqVariant& append_record(CVqVariant& out)
{
    CVqVariant record;
    record.EnableTypeChange(true);
    return out.Append(std::move(record));
}

}

int Manipulators::save_to_variant(CVqAccelerators* accelerators, CVqMenuItem* item, CVqVariant& out)
{
    if (!item)
        return -9;
    int result = 0;
    for (; item; item = item->nextItem()) {
        CVqVariant& record = append_record(out);
        CVqTreeFieldWriter fields(record);
        VqWriteItem(fields, *this, accelerators, *item, VqImageReferenceByName);
        result = item->subItem()
            ? save_to_variant(accelerators, item->subItem(), VqAppendMenuList(record, VQ_TEXT("SubMenu")))
            : 0;
    }
    return result;
}

int Manipulators::load_from_variant(CVqAccelerators* accelerators, CVqMenuItem* parent, CVqVariant& in)
{
    for_each_record(in, [&](CVqVariant& stored) { load_record(*this, accelerators, parent, stored); });
    return 0;
}

int Manipulators::save_accels_to_variant(CVqAccelerators* accelerators, CVqMenuItem* item, CVqVariant& out)
{
    if (!item)
        return -9;
    for (; item; item = item->nextItem()) {
        CVqTreeFieldWriter fields(append_record(out));
        VqWriteAccel(fields, accelerators, *item);
    }
    return 0;
}

int Manipulators::load_accels_from_variant(CVqAccelerators* accelerators, CVqMenuItem** head, CVqVariant& in)
{
    if (!head)
        return 0;
    CVqLoadedAccels accels(*this, head);
    for_each_record(in, [&](CVqVariant& stored) { load_accel_record(*this, accelerators, accels, stored); });
    return 0;
}
