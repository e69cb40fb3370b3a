#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/CVqTreeFieldWriter.h"
#include "AbstractGui/SVqMenuRecord.h"
#include "system/CVqVariant.h"

using Manipulators = CVqAbstractMenu::SVqManipulators;

namespace {

using ReadField = void (*)(SVqMenuRecord& record, const CVqVariant& value);

struct Field
{
    const vq_wchar* name;
    ReadField read;
};

template <auto Member>
void read_bool(SVqMenuRecord& record, const CVqVariant& value)
{
    record.*Member = value.GetBool(nullptr);
}

template <auto Member>
void read_number(SVqMenuRecord& record, const CVqVariant& value)
{
    record.*Member = value.GetVq_uint32(nullptr);
}

template <auto Member>
void read_text(SVqMenuRecord& record, const CVqVariant& value)
{
    record.*Member = value.GetCVqStringW(nullptr);
}

template <auto Member>
void read_image_text(SVqMenuRecord& record, const CVqVariant& value)
{
    record.image.*Member = value.GetCVqStringW(nullptr);
}

constexpr Field common_fields[] = {
    {VQ_TEXT("Id"), read_number<&SVqMenuRecord::id>},
    {VQ_TEXT("Type"), read_number<&SVqMenuRecord::type>},
    {VQ_TEXT("Status"), read_number<&SVqMenuRecord::status>},
    {VQ_TEXT("Command"), read_text<&SVqMenuRecord::command>},
    {VQ_TEXT("Removed"), read_bool<&SVqMenuRecord::removed>},
    {VQ_TEXT("Deleted"), read_bool<&SVqMenuRecord::deleted>},
};

constexpr Field item_fields[] = {
    {VQ_TEXT("Text"), read_text<&SVqMenuRecord::text>},
    {VQ_TEXT("EnaBmpFileName"), read_image_text<&SVqImageReference::file>},
    {VQ_TEXT("EnaBmpResName"), read_image_text<&SVqImageReference::resource>},
    {VQ_TEXT("LineWidth"), read_number<&SVqMenuRecord::lineWidth>},
    {VQ_TEXT("Col1"), read_number<&SVqMenuRecord::col1>},
    {VQ_TEXT("Col2"), read_number<&SVqMenuRecord::col2>},
};

// Tells if the child is a field of the table; a name that stands twice counts with its last value.
template <std::size_t Count>
bool read_field(const Field (&fields)[Count], SVqMenuRecord& record, const CVqVariant& child)
{
    for (const Field& field : fields) {
        if (child.GetName() == field.name) {
            field.read(record, child);
            return true;
        }
    }
    return false;
}

// A key counts for the identifier that was read so far.
bool read_key(const CVqVariant& child, CVqAccelerators* table, vq_uint32 id)
{
    return table && VqIsPackedAccelName(child.GetName())
        && VqAddPackedAccel(*table, id, child.GetVq_int32(nullptr));
}

// Gives the child that holds the sub-items, or null.
CVqVariant* fill_item(Manipulators& tools, CVqAccelerators* table, CVqMenuItem& item, CVqVariant& stored)
{
    SVqMenuRecord record;
    CVqVariant* sub_menu = nullptr;
    bool added = false;
    for (int i = 0; i < stored.GetCount(); ++i) {
        CVqVariant& child = *stored.IndexPtr(i);
        if (read_field(common_fields, record, child) || read_field(item_fields, record, child))
            continue;
        added |= read_key(child, table, record.id);
        if (child.GetName() == VQ_TEXT("SubMenu"))
            sub_menu = &child;
    }
    VqFillLoadedItem(tools, table, item, record, added);
    return sub_menu;
}

// Tells if a key was added.
bool fill_accel(CVqAccelerators* table, CVqMenuItem& item, const CVqVariant& stored)
{
    SVqMenuRecord record;
    bool added = false;
    for (int i = 0; i < stored.GetCount(); ++i) {
        const CVqVariant& child = *stored.IndexPtr(i);
        if (!read_field(common_fields, record, child))
            added |= read_key(child, table, record.id);
    }
    VqFillLoadedAccel(item, record);
    return added;
}

void load_record(Manipulators& tools, CVqAccelerators* table, CVqMenuItem* parent, CVqVariant& stored)
{
    CVqMenuItem* item = VqNewLoadedItem(tools);
    if (!item)
        return;
    CVqVariant* sub_menu = fill_item(tools, table, *item, stored);
    if (parent)
        tools.append_item(parent, item);
    if (sub_menu)
        tools.load_from_variant(table, item, *sub_menu);
    if (!parent)
        tools.free_all(item); // what came with it, keys and images, stays
}

void load_accel_record(Manipulators& tools, CVqAccelerators* table, CVqLoadedAccels& accels,
                       const CVqVariant& stored)
{
    CVqMenuItem* item = VqNewLoadedItem(tools);
    if (!item)
        return;
    const bool added = fill_accel(table, *item, stored);
    if (table)
        accels.Take(item, added);
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
    return out.Append(record);
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
