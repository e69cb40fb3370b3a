#include "system/CVqList.h"

CVqList::CVqList(EVqKeyType) { }

CVqList::~CVqList()
{
    while (m_pFirst)
        DeleteNode(m_pFirst);
}

CVqList::CVqNode* CVqList::Append(void* data)
{
    auto* node = new CVqNode(this, data);
    node->m_pPrevious = m_pLast;
    (m_pLast ? m_pLast->m_pNext : m_pFirst) = node;
    m_pLast = node;
    return node;
}

CVqList::CVqNode* CVqList::Insert(CVqNode* node, void* data)
{
    if (!node || node->m_pOwner != this)
        return nullptr;
    auto* added = new CVqNode(this, data);
    added->m_pNext = node;
    added->m_pPrevious = node->m_pPrevious;
    (node->m_pPrevious ? node->m_pPrevious->m_pNext : m_pFirst) = added;
    node->m_pPrevious = added;
    return added;
}

CVqList::CVqNode* CVqList::Find(const void* data) const
{
    CVqNode* node = m_pFirst;
    while (node && node->m_pData != data)
        node = node->m_pNext;
    return node;
}

void* CVqList::GetData(const CVqNode* node) const
{
    return node ? node->m_pData : nullptr;
}

bool CVqList::DeleteNode(CVqNode* node)
{
    if (!node || node->m_pOwner != this)
        return false;
    (node->m_pPrevious ? node->m_pPrevious->m_pNext : m_pFirst) = node->m_pNext;
    (node->m_pNext ? node->m_pNext->m_pPrevious : m_pLast) = node->m_pPrevious;
    delete node;
    return true;
}
