#pragma once

#include "arbor_system_export.h"

/// How a list would key its data. The data pointer itself is the only key there is.
enum class EVqKeyType
{
    Pointer = 0
};

/// An ordered, doubly linked list of untyped pointers. It owns its nodes and never the data.
///
/// A node keeps its address until it is deleted or the list goes. Appending, inserting and deleting take the
/// same time whatever the length. Nodes that are handed in must be alive; null and nodes of another list are
/// refused.
///
///     CVqList list(EVqKeyType::Pointer);
///     list.Append(&first);
///     for (CVqList::CVqNode* node = list.GetFirst(); node; node = node->GetNext())
///         use(list.GetData(node));
class ARBOR_SYSTEM_EXPORT CVqList
{
public:
    class CVqNode
    {
    public:
        /// The following node, or null at the end.
        CVqNode* GetNext() const { return m_pNext; }

    private:
        friend class CVqList;

        CVqNode(const CVqList* owner, void* data) : m_pOwner(owner), m_pData(data) { }

        const CVqList* m_pOwner; // not owned; tells nodes of other lists
        void* m_pData;           // not owned
        CVqNode* m_pPrevious = nullptr;
        CVqNode* m_pNext = nullptr;
    };

    explicit CVqList(EVqKeyType keyType = EVqKeyType::Pointer);
    ~CVqList();

    CVqList(const CVqList&) = delete;
    CVqList& operator=(const CVqList&) = delete;

    /// Adds at the end. `data` may be null and may be held more than once. Returns the new node.
    CVqNode* Append(void* data);

    /// Adds immediately before `node` and returns the new node; null, with nothing added, when `node` is null
    /// or stands in another list.
    CVqNode* Insert(CVqNode* node, void* data);

    /// The first node that holds exactly this pointer, or null.
    CVqNode* Find(const void* data) const;

    /// What `node` holds; null for a null node.
    void* GetData(const CVqNode* node) const;

    CVqNode* GetFirst() const { return m_pFirst; } ///< Null when empty.
    CVqNode* GetLast() const { return m_pLast; }   ///< Null when empty.

    /// Unlinks and frees the node, not the data. False, with nothing done, for null and for a node of another
    /// list.
    bool DeleteNode(CVqNode* node);

private:
    CVqNode* m_pFirst = nullptr;
    CVqNode* m_pLast = nullptr;
};
