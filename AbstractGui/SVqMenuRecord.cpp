#include "AbstractGui/SVqMenuRecord.h"

#include "AbstractGui/VqAccelPrint.h"
#include "system/CVqVariant.h"

#include <vector>

using Manipulators = CVqAbstractMenu::SVqManipulators;

namespace {

void store_common_fields(CVqMenuItem& item, const SVqMenuRecord& record)
{
    item.setRemoved(record.removed);
    item.setDeleted(record.deleted);
    item.setId(record.id);
    item.setType(record.type);
    item.setStatus(record.status);
    item.setCommand(record.command);
}

CVqMenuItem* last_of(CVqMenuItem* item)
{
    while (item && item->nextItem())
        item = item->nextItem();
    return item;
}

}

CVqMenuItem* VqNewLoadedItem(Manipulators& tools)
{
    CVqMenuItem* item = tools.allocMenuItem();
    if (!item)
        return nullptr;
    item->setAccelerators(nullptr);
    item->setMenu(0);
    item->setSubItem(nullptr);
    item->setUserParam(nullptr);
    item->setNextItem(nullptr);
    return item;
}

void VqFillLoadedItem(Manipulators& tools, CVqAccelerators* table, CVqMenuItem& item,
                      const SVqMenuRecord& record, bool keysAdded)
{
    store_common_fields(item, record);
    item.setText(record.text);
    item.setLineWidth(record.lineWidth);
    item.setCol1(record.col1);
    item.setCol2(record.col2);
    if (keysAdded && table)
        tools.update_menustring(&item, VqAllAccelTexts(*table, record.id, VQ_TEXT(", ")));
    if (record.type == CVqAbstractMenu::SenseItem)
        item.setAccelerators(table);
    if (!record.image.file.IsEmpty())
        item.setEnaBmpIndex(VqAddReferencedImage(record.image));
}

void VqFillLoadedAccel(CVqMenuItem& item, const SVqMenuRecord& record)
{
    store_common_fields(item, record);
    item.setLineWidth(0);
    item.setCol1(0);
    item.setCol2(0);
}

CVqLoadedAccels::CVqLoadedAccels(Manipulators& tools, CVqMenuItem** head)
    : m_tools(tools), m_ppHead(head), m_pLast(last_of(*head))
{ }

void CVqLoadedAccels::Take(CVqMenuItem* item, bool keysAdded)
{
    if (!keysAdded && m_tools.find_item(item->id(), *m_ppHead)) {
        m_tools.freeMenuItem(item);
        return;
    }
    if (m_pLast)
        m_pLast->setNextItem(item);
    else
        *m_ppHead = item;
    m_pLast = item;
}

CVqStringW VqStoredText(Manipulators& tools, const CVqMenuItem& item)
{
    const CVqStringW& text = item.text();
    std::vector<vq_wchar> stored(static_cast<std::size_t>(text.GetLength()) + 1);
    tools.handle_mnemonics_and_split(stored.data(), text, item.mnemonic(), VQ_TEXT("\a\t"));
    return CVqStringW(stored.data());
}

CVqVariant& VqAppendMenuList(CVqVariant& out, const vq_wchar* name)
{
    CVqVariant list;
    list.EnableTypeChange(true);
    list.SetRunType(CVqVariantRunType(CVqStringA(VQ_TEXT("CVqListVariant"))));
    list.SetName(name);
    return out.Append(list);
}
