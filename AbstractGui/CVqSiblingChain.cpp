#include "AbstractGui/CVqSiblingChain.h"

#include "AbstractGui/CVqMenuItem.h"

#include <algorithm>
#include <typeinfo>

namespace {

CVqMenuItem* LastOf(CVqMenuItem* first)
{
    CVqMenuItem* last = first;
    while (CVqMenuItem* next = last->nextItem())
        last = next;
    return last;
}

bool IsLess(const std::pair<vq_wchar, vq_uint32>& uses, vq_wchar mnemonic)
{
    return uses.first < mnemonic;
}

}

bool CVqSiblingChain::IsPlain(const CVqMenuItem* item)
{
    return item->m_siblings.fieldsStayHere || typeid(*item) == typeid(CVqMenuItem);
}

bool CVqSiblingChain::AllPlain(const CVqMenuItem* first)
{
    for (const CVqMenuItem* item = first; item; item = item->nextItem()) {
        if (!IsPlain(item))
            return false;
    }
    return true;
}

CVqSiblingChain::CVqSiblingChain(CVqMenuItem* first) : m_pFirst(first), m_pLast(first) { }

CVqSiblingChain* CVqSiblingChain::Find(const CVqMenuItem* first)
{
    CVqSiblingChain* chain = first->m_siblings.chain;
    return chain && chain->m_bKnown && chain->m_pFirst == first ? chain : nullptr;
}

CVqSiblingChain* CVqSiblingChain::Learn(CVqMenuItem* first)
{
    if (!AllPlain(first))
        return nullptr;

    auto* chain = new CVqSiblingChain(first);
    chain->Extend(first);
    return chain;
}

void CVqSiblingChain::Append(CVqMenuItem* first, CVqMenuItem* item)
{
    CVqSiblingChain* known = Find(first);
    CVqSiblingChain* chain = known ? known : Learn(first);
    CVqMenuItem* last = chain ? chain->m_pLast : LastOf(first);
    last->setNextItem(item);
    if (!chain)
        return;

    // The link itself made the chain forget; it is the one change that it can follow.
    chain->m_bKnown = AllPlain(item);
    if (chain->m_bKnown)
        chain->Extend(item);
}

void CVqSiblingChain::Extend(CVqMenuItem* item)
{
    for (; item; item = item->nextItem()) {
        Join(item);
        Use(item->mnemonic());
        m_pLast = item;
    }
}

void CVqSiblingChain::Join(CVqMenuItem* item)
{
    CVqMenuItem::Membership& siblings = item->m_siblings;
    if (siblings.chain) {
        siblings.chain->Forget();
        siblings.chain->Release();
    }
    siblings.chain = this;
    ++m_uiMembers;
}

void CVqSiblingChain::Release()
{
    if (--m_uiMembers == 0)
        delete this;
}

void CVqSiblingChain::SetTidyThrough(CVqMenuItem* item, SVqSeparatorRun run)
{
    m_pTidy = item;
    m_run = run;
}

bool CVqSiblingChain::HasMnemonic(vq_wchar mnemonic) const
{
    const auto place = std::lower_bound(m_mnemonics.begin(), m_mnemonics.end(), mnemonic, IsLess);
    return place != m_mnemonics.end() && place->first == mnemonic;
}

// Folded anew at each question: what is equal ignoring case depends on the locale.
bool CVqSiblingChain::HasMnemonicInAnyCase(vq_wchar mnemonic) const
{
    const vq_wchar lower = VqLower(mnemonic);
    return std::any_of(m_mnemonics.begin(), m_mnemonics.end(),
                       [lower](const Uses& uses) { return VqLower(uses.first) == lower; });
}

void CVqSiblingChain::ReplaceMnemonic(vq_wchar former, vq_wchar present)
{
    if (!m_bKnown)
        return;
    Unuse(former);
    Use(present);
}

void CVqSiblingChain::Use(vq_wchar mnemonic)
{
    if (mnemonic == 0)
        return;
    const auto place = std::lower_bound(m_mnemonics.begin(), m_mnemonics.end(), mnemonic, IsLess);
    if (place != m_mnemonics.end() && place->first == mnemonic)
        ++place->second;
    else
        m_mnemonics.insert(place, Uses(mnemonic, 1));
}

void CVqSiblingChain::Unuse(vq_wchar mnemonic)
{
    if (mnemonic == 0)
        return;
    const auto place = std::lower_bound(m_mnemonics.begin(), m_mnemonics.end(), mnemonic, IsLess);
    if (--place->second == 0)
        m_mnemonics.erase(place);
}
