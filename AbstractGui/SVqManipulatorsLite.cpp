#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/SVqMenuRecord.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqLiteVariantW.h"

using Manipulators = CVqAbstractMenu::SVqManipulators;

namespace {

vq_uint32 number_of(const CVqLiteVariantR& in, const vq_wchar* name)
{
    return static_cast<vq_uint32>(in.Get(name, 0));
}

void read_text(const CVqLiteVariantR& in, const vq_wchar* name, CVqStringW& text)
{
    in.GetCVqStringW(text, name, VQ_TEXT(""));
}

void read_common_fields(const CVqLiteVariantR& in, SVqMenuRecord& record)
{
    record.removed = in.Get(VQ_TEXT("Removed"), false);
    record.deleted = in.Get(VQ_TEXT("Deleted"), false);
    record.id = number_of(in, VQ_TEXT("Id"));
    record.type = number_of(in, VQ_TEXT("Type"));
    record.status = number_of(in, VQ_TEXT("Status"));
    read_text(in, VQ_TEXT("Command"), record.command);
}

void read_item_fields(const CVqLiteVariantR& in, SVqMenuRecord& record)
{
    read_common_fields(in, record);
    read_text(in, VQ_TEXT("Text"), record.text);
    record.lineWidth = number_of(in, VQ_TEXT("LineWidth"));
    record.col1 = number_of(in, VQ_TEXT("Col1"));
    record.col2 = number_of(in, VQ_TEXT("Col2"));
    read_text(in, VQ_TEXT("EnaBmpFileName"), record.image.file);
    read_text(in, VQ_TEXT("EnaBmpResName"), record.image.resource);
}

// Keys count up from 0 without a gap; there cannot be more of them than values in the level. Tells if one was
// added.
bool read_keys(const CVqLiteVariantR& in, int values, CVqAccelerators& table, vq_uint32 id)
{
    bool added = false;
    for (int number = 0; number < values; ++number) {
        const CVqStringW name = VqPackedAccelName(number);
        if (!in.IsValueSet(name))
            break;
        added |= VqAddPackedAccel(table, id, in.Get(name, 0));
    }
    return added;
}

void fill_item(Manipulators& tools, CVqAccelerators* table, CVqMenuItem& item, const CVqLiteVariantR& in,
               int values)
{
    SVqMenuRecord record;
    read_item_fields(in, record);
    const bool added = table && read_keys(in, values, *table, record.id);
    VqFillLoadedItem(tools, table, item, record, added);
}

void load_record(Manipulators& tools, CVqAccelerators* table, CVqMenuItem* parent, CVqLiteVariantR& in,
                 int values)
{
    CVqMenuItem* item = VqNewLoadedItem(tools);
    if (!item)
        return;
    fill_item(tools, table, *item, in, values);
    if (!parent) {
        tools.freeMenuItem(item); // its keys and its image stay
        return;
    }
    tools.append_item(parent, item);
    if (in.LevelBegin(VQ_TEXT("SubMenu")) == 0) {
        tools.load_from_variant(table, item, in);
        in.LevelEnd();
    }
}

void load_accel_record(Manipulators& tools, CVqAccelerators* table, CVqLoadedAccels& accels,
                       const CVqLiteVariantR& in, int values)
{
    CVqMenuItem* item = VqNewLoadedItem(tools);
    if (!item)
        return;
    SVqMenuRecord record;
    read_common_fields(in, record);
    VqFillLoadedAccel(*item, record);
    if (table)
        accels.Take(item, read_keys(in, values, *table, record.id));
    else
        tools.freeMenuItem(item);
}

// Calls `read` with the number of values of each level that has some, standing in it.
template <class Read>
void for_each_record(CVqLiteVariantR& in, Read read)
{
    for (; in.IsNextValue(); in.NextValue()) {
        int values = 0;
        if (in.CurrentLevelBegin(&values) != 0)
            continue;
        if (values > 0)
            read(values);
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
    for_each_record(in, [&](int values) { load_record(*this, accelerators, parent, in, values); });
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
    for_each_record(in, [&](int values) { load_accel_record(*this, accelerators, accels, in, values); });
    return 0;
}
