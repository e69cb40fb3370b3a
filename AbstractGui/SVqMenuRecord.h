#pragma once

#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/EVqMenuField.h"
#include "AbstractGui/VqImageReference.h"
#include "AbstractGui/VqPackedAccel.h"
#include "system/CVqStringW.h"
#include "system/VqText.h"
#include "system/VqTypes.h"

#include <QSet>

class CVqVariant;

/// What a stored record of a menu item, or of a lonely accelerator, holds beside keys and sub-items. A new
/// one holds what a missing field reads as.
struct SVqMenuRecord
{
    bool removed = false;
    bool deleted = false;
    vq_uint32 id = 0;
    vq_uint32 type = 0;
    vq_uint32 status = 0;
    CVqStringW text;
    CVqStringW command;
    vq_uint32 lineWidth = 0;
    vq_uint32 col1 = 0;
    vq_uint32 col2 = 0;
    SVqImageReference image;
};

// Loading: what both forms do with a record ---------------------------------------------------------

/// Takes a field; `value` gives what is stored as Flag(), Number() or in Text(out). Keys and sub-items are
/// left to the form.
template <class Value>
void VqReadMenuField(SVqMenuRecord& record, EVqMenuField field, const Value& value)
{
    switch (field) {
    case EVqMenuField::Removed:
        record.removed = value.Flag();
        break;
    case EVqMenuField::Deleted:
        record.deleted = value.Flag();
        break;
    case EVqMenuField::Id:
        record.id = value.Number();
        break;
    case EVqMenuField::Type:
        record.type = value.Number();
        break;
    case EVqMenuField::Status:
        record.status = value.Number();
        break;
    case EVqMenuField::Text:
        value.Text(record.text);
        break;
    case EVqMenuField::Command:
        value.Text(record.command);
        break;
    case EVqMenuField::LineWidth:
        record.lineWidth = value.Number();
        break;
    case EVqMenuField::Col1:
        record.col1 = value.Number();
        break;
    case EVqMenuField::Col2:
        record.col2 = value.Number();
        break;
    case EVqMenuField::EnaBmpFileName:
        value.Text(record.image.file);
        break;
    case EVqMenuField::EnaBmpResName:
        value.Text(record.image.resource);
        break;
    default:
        break;
    }
}

/// A new item without neighbours, handle, table and parameter, whatever allocMenuItem() makes; or null.
CVqMenuItem* VqNewLoadedItem(CVqAbstractMenu::SVqManipulators& tools);

/// Completes a menu item: its fields, the key texts behind its label if keys were added, its image. `table`
/// may be null.
void VqFillLoadedItem(CVqAbstractMenu::SVqManipulators& tools, CVqAccelerators* table, CVqMenuItem& item,
                      const SVqMenuRecord& record, bool keysAdded);

/// Completes a lonely accelerator.
void VqFillLoadedAccel(CVqMenuItem& item, const SVqMenuRecord& record);

/// False for an item with 1,000 levels of popups above it: what is stored below is not loaded, so that a
/// hostile file does not end in a menu that no stack carries.
bool VqMayHoldSubItems(const CVqMenuItem& item);

/// The end of a chain of lonely accelerators that grows while it is loaded.
class CVqLoadedAccels
{
public:
    CVqLoadedAccels(CVqAbstractMenu::SVqManipulators& tools, CVqMenuItem** head);

    /// Links the item at the end, or frees it when it brought no key and the chain has its identifier.
    void Take(CVqMenuItem* item, bool keysAdded);

private:
    bool is_known(vq_uint32 id) const;

    CVqAbstractMenu::SVqManipulators& m_tools;
    CVqMenuItem** m_ppHead; // never null
    CVqMenuItem* m_pLast;
    const bool m_bHadItems;
    QSet<vq_uint32> m_ids; // of the items linked here: a walk for each of very many would never end
};

// Saving: `Out` takes fields with Set(value, name), as CVqLiteVariantW does --------------------------

/// The menu string as it is stored: with one mark at most and without key text.
CVqStringW VqStoredText(CVqAbstractMenu::SVqManipulators& tools, const CVqMenuItem& item);

/// Appends an empty list of that name to a tree and gives it for filling.
CVqVariant& VqAppendMenuList(CVqVariant& out, const vq_wchar* name);

template <class Out>
void VqWriteState(Out& out, const CVqMenuItem& item)
{
    if (item.removed())
        out.Set(true, VQ_TEXT("Removed"));
    if (item.deleted())
        out.Set(true, VQ_TEXT("Deleted"));
    out.Set(item.id(), VQ_TEXT("Id"));
    out.Set(item.type(), VQ_TEXT("Type"));
    out.Set(item.status(), VQ_TEXT("Status"));
}

template <class Out>
void VqWriteColours(Out& out, const CVqMenuItem& item)
{
    const vq_uint32 type = item.type();
    if (type == CVqAbstractMenu::SenseLineWidth)
        out.Set(item.lineWidth(), VQ_TEXT("LineWidth"));
    if (type == CVqAbstractMenu::SenseOneColor || type == CVqAbstractMenu::SenseTwoColor)
        out.Set(item.col1(), VQ_TEXT("Col1"));
    if (type == CVqAbstractMenu::SenseTwoColor)
        out.Set(item.col2(), VQ_TEXT("Col2"));
}

template <class Out>
void VqWriteImage(Out& out, const SVqImageReference& image)
{
    if (!image.file.IsEmpty())
        out.Set(image.file.GetString(), VQ_TEXT("EnaBmpFileName"));
    if (!image.resource.IsEmpty())
        out.Set(image.resource.GetString(), VQ_TEXT("EnaBmpResName"));
}

template <class Out>
void VqWriteKeys(Out& out, const CVqAccelerators* table, vq_uint32 id)
{
    if (!table)
        return;
    vq_uint32 flags = 0;
    vq_wchar key = 0;
    int number = 0;
    for (int index = 0; table->GetAccelKey(id, index, &flags, &key) == 0; ++number)
        out.Set(VqPackAccel(flags, key), VqPackedAccelName(number));
}

/// All fields of a menu item up to its sub-items. `image_of` gives the SVqImageReference of an index; index 0
/// and those below it are not stored.
template <class Out, class ImageOf>
void VqWriteItem(Out& out, CVqAbstractMenu::SVqManipulators& tools, const CVqAccelerators* table,
                 const CVqMenuItem& item, ImageOf image_of)
{
    VqWriteState(out, item);
    if (item.type() != CVqAbstractMenu::SenseSeparator) {
        out.Set(VqStoredText(tools, item).GetString(), VQ_TEXT("Text"));
        out.Set(item.command().GetString(), VQ_TEXT("Command"));
    }
    VqWriteColours(out, item);
    if (item.enaBmpIndex() >= 1)
        VqWriteImage(out, image_of(static_cast<vq_uint32>(item.enaBmpIndex())));
    VqWriteKeys(out, table, item.id());
}

template <class Out>
void VqWriteAccel(Out& out, const CVqAccelerators* table, const CVqMenuItem& item)
{
    VqWriteState(out, item);
    out.Set(item.command().GetString(), VQ_TEXT("Command"));
    VqWriteKeys(out, table, item.id());
}
