#include "AbstractGui/CVqMenuItem.h"

#include "AbstractGui/CVqSiblingChain.h"
#include "AbstractGui/SVqMenuSearchCache.h"

#include <algorithm>
#include <string_view>

// Knowledge about the sibling chain --------------------------------------------------------------------

CVqMenuItem::Membership::Membership(const Membership&) { }

CVqMenuItem::Membership& CVqMenuItem::Membership::operator=(const Membership& other)
{
    if (chain && this != &other)
        chain->Forget();
    return *this;
}

CVqMenuItem::Membership::~Membership()
{
    if (!chain)
        return;
    chain->Forget();
    chain->Release();
}

CVqMenuItem::CVqMenuItem() = default;

CVqMenuItem::CVqMenuItem(FieldsStayHere)
{
    m_siblings.fieldsStayHere = true;
}

CVqMenuItem::CVqMenuItem(const CVqMenuItem& other) = default;

CVqMenuItem& CVqMenuItem::operator=(const CVqMenuItem& other) = default;

CVqMenuItem::~CVqMenuItem()
{
    g_menu_search_cache.Drop(this);
}

void CVqMenuItem::setNextItem(CVqMenuItem* item)
{
    if (m_siblings.chain && item != m_pNextItem)
        m_siblings.chain->Forget();
    m_pNextItem = item;
}

void CVqMenuItem::setType(vq_uint32 type)
{
    if (m_siblings.chain && type != m_uiType)
        m_siblings.chain->Untidy();
    m_uiType = type;
}

void CVqMenuItem::setMnemonic(vq_wchar mnemonic)
{
    if (m_siblings.chain)
        m_siblings.chain->ReplaceMnemonic(m_cMnemonic, mnemonic);
    m_cMnemonic = mnemonic;
}

void CVqMenuItem::setRemoved(bool removed)
{
    if (m_siblings.chain && removed != m_bRemoved)
        m_siblings.chain->Untidy();
    m_bRemoved = removed;
}

void CVqMenuItem::setDeleted(bool deleted)
{
    if (m_siblings.chain && deleted != m_bDeleted)
        m_siblings.chain->Untidy();
    m_bDeleted = deleted;
}

// Texts ------------------------------------------------------------------------------------------------

void CVqMenuItem::setText(const vq_wchar* text)
{
    m_strText = text;
}

void CVqMenuItem::setCommand(const vq_wchar* command)
{
    m_strCommand = command;
}

// Position and debugging -------------------------------------------------------------------------------

int CVqMenuItem::pos() const
{
    if (!parentItem())
        return 0;

    int visible = 0;
    for (const CVqMenuItem* item = parentItem()->subItem(); item && item != this; item = item->nextItem()) {
        if (!item->removed() && !item->deleted())
            ++visible;
    }
    return visible;
}

vq_uint32 CVqMenuItem::safeId(vq_uint32 seed) const
{
    vq_uint32 safe = seed;
    for (const CVqMenuItem* item = this; item; item = item->nextItem()) {
        if (item->subItem())
            safe = item->subItem()->safeId(safe);
        safe = std::max(safe, item->id() + 1);
    }
    return safe;
}

void CVqMenuItem::setIgnoreAdditionalZoomRecursive(bool ignore)
{
    for (CVqMenuItem* item = this; item; item = item->nextItem()) {
        item->setIgnoreAdditionalZoom(ignore);
        if (item->subItem())
            item->subItem()->setIgnoreAdditionalZoomRecursive(ignore);
    }
}

void CVqMenuItem::getAsJSON(CVqStringW& out) const
{
    const auto add_number = [&out](const vq_wchar* name, auto value) {
        out.AddString(name).AddInt(static_cast<vq_int32>(value)).AddString(VQ_TEXT(","));
    };

    out.AddString(VQ_TEXT("{m_strText:")).AddString(text());
    out.AddString(VQ_TEXT(",m_strCommand:")).AddString(command()).AddString(VQ_TEXT(","));
    add_number(VQ_TEXT("m_hMenu:"), menu());
    add_number(VQ_TEXT("m_uiId:"), id());
    add_number(VQ_TEXT("m_uiType:"), type());
    add_number(VQ_TEXT("m_uiStatus:"), status());
    add_number(VQ_TEXT("m_uiLineWidth:"), lineWidth());
    add_number(VQ_TEXT("m_uiCol1:"), col1());
    add_number(VQ_TEXT("m_uiCol2:"), col2());
    add_number(VQ_TEXT("m_iEnaBmpIndex:"), enaBmpIndex());
    add_number(VQ_TEXT("m_cMnemonic:"), mnemonic());
    add_number(VQ_TEXT("m_bRemoved:"), removed());
    add_number(VQ_TEXT("m_bDeleted:"), deleted());
    out.AddString(VQ_TEXT("}"));
}

// Mnemonics --------------------------------------------------------------------------------------------

namespace {

bool HasMnemonic(const CVqMenuItem* first, vq_wchar mnemonic)
{
    if (const CVqSiblingChain* chain = CVqSiblingChain::Find(first))
        return chain->HasMnemonic(mnemonic);

    for (const CVqMenuItem* item = first; item; item = item->nextItem()) {
        if (item->mnemonic() == mnemonic)
            return true;
    }
    return false;
}

bool HasMnemonicInAnyCase(const CVqMenuItem* first, vq_wchar mnemonic)
{
    if (const CVqSiblingChain* chain = CVqSiblingChain::Find(first))
        return chain->HasMnemonicInAnyCase(mnemonic);

    const vq_wchar lower = VqLower(mnemonic);
    for (const CVqMenuItem* item = first; item; item = item->nextItem()) {
        if (VqLower(item->mnemonic()) == lower)
            return true;
    }
    return false;
}

using IsTaken = bool (*)(const CVqMenuItem* first, vq_wchar mnemonic);

// Of "&&" only the first `&` is passed over: the second marks what follows
// (DoubledAmpersandMarksWhatFollows).
vq_wchar FirstFreeMark(const CVqMenuItem* first, std::basic_string_view<vq_wchar> text, IsTaken is_taken)
{
    for (size_t i = 0; i + 1 < text.size(); ++i) {
        const vq_wchar next = text[i + 1];
        if (text[i] != VQ_TEXT('&') || next == VQ_TEXT('&'))
            continue;
        if (!first || !is_taken(first, next))
            return next;
    }
    return 0;
}

}

vq_wchar _get_mnemonic(const CVqMenuItem* first, const CVqStringW& text)
{
    const vq_wchar mark = FirstFreeMark(first, VqView(text), HasMnemonicInAnyCase);
    return mark ? mark : FirstFreeMark(first, VqView(text), HasMnemonic);
}
