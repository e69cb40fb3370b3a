#include "AbstractGui/SVqMenuRecord.h"

#include "AbstractGui/VqAccelPrint.h"
#include "system/CVqVariant.h"

#include <string>
#include <utility>

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

bool VqMayHoldSubItems(const CVqMenuItem& item)
{
    constexpr int most_levels = 1'000;
    int level = 0;
    for (const CVqMenuItem* above = item.parentItem(); above && level <= most_levels; ++level)
        above = above->parentItem();
    return level <= most_levels;
}

CVqLoadedAccels::CVqLoadedAccels(Manipulators& tools, CVqMenuItem** head)
    : m_tools(tools), m_ppHead(head), m_pLast(last_of(*head)), m_bHadItems(*head != nullptr)
{ }

void CVqLoadedAccels::Take(CVqMenuItem* item, bool keysAdded)
{
    if (!keysAdded && is_known(item->id())) {
        m_tools.freeMenuItem(item);
        return;
    }
    if (m_pLast)
        m_pLast->setNextItem(item);
    else
        *m_ppHead = item;
    m_pLast = item;
    m_ids.insert(item->id());
}

bool CVqLoadedAccels::is_known(vq_uint32 id) const
{
    return m_ids.contains(id) || (m_bHadItems && m_tools.find_item(id, *m_ppHead));
}

CVqStringW VqStoredText(Manipulators& tools, const CVqMenuItem& item)
{
    const CVqStringW& text = item.text();
    std::basic_string<vq_wchar> stored(text.View().size(), vq_wchar(0));
    tools.handle_mnemonics_and_split(stored.data(), text, item.mnemonic(), VQ_TEXT("\a\t"));
    stored.resize(VqView(stored.c_str()).size());
    return CVqStringW(std::move(stored));
}

CVqVariant& VqAppendMenuList(CVqVariant& out, const vq_wchar* name)
{
    CVqVariant list;
    list.EnableTypeChange(true);
    list.SetRunType(CVqVariantRunType(CVqStringA(VQ_TEXT("CVqListVariant"))));
    list.SetName(name);
    return out.Append(std::move(list));
}
