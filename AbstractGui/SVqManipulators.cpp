#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/SVqMenuSearchCache.h"

#include <new>

using Manipulators = CVqAbstractMenu::SVqManipulators;

namespace {

class ProcessWide final : public Manipulators
{ };

constinit ProcessWide g_manipulators;

}

Manipulators& Manipulators::Instance()
{
    return g_manipulators;
}

CVqMenuItem* Manipulators::allocMenuItem()
{
    return new (std::nothrow) CVqMenuItem;
}

void Manipulators::freeMenuItem(CVqMenuItem* item)
{
    if (!item)
        return;
    g_menu_search_cache.item = nullptr;
    delete item;
}

CVqMenuItem* Manipulators::create_item_popup(vq_uint32 id, vq_uint64 menu, const vq_wchar* text)
{
    CVqMenuItem* item = allocMenuItem();
    if (!item)
        return nullptr;
    item->setId(id);
    item->setType(SensePopup);
    item->setText(text);
    item->setMenu(menu);
    return item;
}

CVqMenuItem* Manipulators::create_item_item(vq_uint32 id, const vq_wchar* text, const vq_wchar* command,
                                            CVqAccelerators* accelerators)
{
    CVqMenuItem* item = allocMenuItem();
    if (!item)
        return nullptr;
    item->setId(id);
    item->setType(SenseItem);
    item->setText(text);
    item->setAccelerators(accelerators);
    item->setCommand(command);
    return item;
}

CVqMenuItem* Manipulators::create_item_separator(vq_uint32 id)
{
    CVqMenuItem* item = allocMenuItem();
    if (!item)
        return nullptr;
    item->setId(id);
    item->setType(SenseSeparator);
    return item;
}

CVqMenuItem* Manipulators::create_item_onecolor(vq_uint32 id, vq_uint32 colour, const vq_wchar* command)
{
    CVqMenuItem* item = allocMenuItem();
    if (!item)
        return nullptr;
    item->setId(id);
    item->setCol1(colour);
    item->setCommand(command);
    item->setType(SenseOneColor);
    return item;
}

CVqMenuItem* Manipulators::create_item_twocolor(vq_uint32 id, vq_uint32 colour1, vq_uint32 colour2,
                                                const vq_wchar* command)
{
    CVqMenuItem* item = allocMenuItem();
    if (!item)
        return nullptr;
    item->setId(id);
    item->setCol1(colour1);
    item->setCol2(colour2);
    item->setCommand(command);
    item->setType(SenseTwoColor);
    return item;
}

CVqMenuItem* Manipulators::create_item_linewidth(vq_uint32 id, vq_uint32 width, const vq_wchar* text,
                                                 const vq_wchar* command)
{
    CVqMenuItem* item = allocMenuItem();
    if (!item)
        return nullptr;
    item->setId(id);
    item->setLineWidth(width);
    item->setText(text);
    item->setCommand(command);
    item->setType(SenseLineWidth);
    return item;
}

CVqMenuItem* Manipulators::create_item_accel(vq_uint32 id, const vq_wchar* command,
                                             CVqAccelerators* accelerators)
{
    CVqMenuItem* item = allocMenuItem();
    if (!item)
        return nullptr;
    item->setId(id);
    item->setType(SenseAccel);
    item->setAccelerators(accelerators);
    item->setCommand(command);
    return item;
}

CVqMenuItem* Manipulators::create_item_mainroot(vq_uint64 menu)
{
    CVqMenuItem* item = allocMenuItem();
    if (!item)
        return nullptr;
    item->setId(0);
    item->setType(SenseMainRoot);
    item->setMenu(menu);
    return item;
}
