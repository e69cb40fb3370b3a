#pragma once

#include "arbor_system_export.h"
#include "system/CVqStringA.h"
#include "system/CVqStringW.h"
#include "system/CVqVariantRunType.h"
#include "system/EVqVariantType.h"
#include "system/VqTypes.h"

#include <concepts>
#include <cstddef>
#include <memory>
#include <vector>

/// A node of a configuration tree: a name and one scalar, or a name and children in order.
///
/// Trees are copied deeply and own their children; a child keeps its address while siblings are appended. No
/// operation recurses, so the depth of a tree is bounded by memory alone. Names may be empty and may repeat;
/// a look-up gives the first.
///
/// Conversions: bool, int and uint turn into one another by their 32 bits (true is 1, -1 read as uint is
/// 4294967295), and everything but 0 is true. A number as text has decimal digits, a bool "1" or "0". A text
/// turns into a number when it is one as a whole, with an optional sign, within -2^31 to 2^32 - 1. Everything
/// else gives 0, false or the empty text, and reports false.
///
///     CVqVariant menu;
///     CVqVariant& record = menu.Append(CVqVariant());
///     record.Append(CVqVariant(5u, VQ_TEXT("Id")));
///     const CVqVariant& status = record[VQ_TEXT("Status")]; // not there
///     vq_uint32 value = status.IsEmpty() ? 0 : status.GetVq_uint32(nullptr);
class ARBOR_SYSTEM_EXPORT CVqVariant
{
public:
    /// An empty node without a name.
    CVqVariant();
    CVqVariant(const bool& value, const CVqStringW& name);
    CVqVariant(const unsigned int& value, const CVqStringW& name);
    CVqVariant(const int& value, const CVqStringW& name);
    CVqVariant(const CVqStringW& value, const CVqStringW& name);

    /// Null is the empty text.
    CVqVariant(const vq_wchar* value, const CVqStringW& name);

    /// Other pointers would turn into a bool.
    template <typename T>
    CVqVariant(const T* value, const CVqStringW& name) = delete;

    /// Copies name, value, children, run type and the type-change setting.
    CVqVariant(const CVqVariant& other);
    CVqVariant(CVqVariant&& other) noexcept;
    ~CVqVariant();

    /// Replaces the whole node, whatever EnableTypeChange() says: a copy never differs from what it was
    /// copied from. `other` may be part of this tree.
    CVqVariant& operator=(const CVqVariant& other);
    CVqVariant& operator=(CVqVariant&& other) noexcept;

    // Children ---------------------------------------------------------------------------------------

    /// The first child of that name. A missing name gives an empty node and leaves the tree as it is; what is
    /// written into that node is lost with the next miss on this thread.
    CVqVariant& operator[](const vq_wchar* name);
    const CVqVariant& operator[](const vq_wchar* name) const;

    /// The child at an index; beyond the end an empty node as above.
    CVqVariant& operator[](std::size_t index);
    const CVqVariant& operator[](std::size_t index) const;

    /// Any other integer type; a negative index is beyond the end. (A plain 0 would also be a null name.)
    template <std::integral Index>
    CVqVariant& operator[](Index index)
    {
        return (*this)[static_cast<std::size_t>(index)];
    }

    template <std::integral Index>
    const CVqVariant& operator[](Index index) const
    {
        return (*this)[static_cast<std::size_t>(index)];
    }

    /// The child at an index, owned by this node; null when there is none.
    CVqVariant* IndexPtr(int index);
    const CVqVariant* IndexPtr(int index) const;

    /// Number of children.
    int GetCount() const { return static_cast<int>(m_children.size()); }

    /// Appends a copy as the last child and returns the stored child, valid until this node is assigned to or
    /// goes.
    /// A node with a scalar first has to become a level: with type change enabled its scalar is dropped,
    /// without it nothing is stored and an empty node as above is returned.
    CVqVariant& Append(const CVqVariant& child);

    /// The same without a copy: what is stored is taken from `child`, which must not hold this node.
    CVqVariant& Append(CVqVariant&& child);

    /// Appends a named scalar, in less time than one that is made first.
    CVqVariant& Append(bool value, const vq_wchar* name);
    CVqVariant& Append(unsigned int value, const vq_wchar* name);
    CVqVariant& Append(int value, const vq_wchar* name);

    /// Null is the empty text.
    CVqVariant& Append(const vq_wchar* value, const vq_wchar* name);

    /// Other pointers would turn into a bool.
    template <typename T>
    CVqVariant& Append(const T* value, const vq_wchar* name) = delete;

    // Name and type ----------------------------------------------------------------------------------

    void SetName(const CVqStringW& name) { m_strName = name; }
    const CVqStringW& GetName() const { return m_strName; }

    /// Allows Append() to turn a scalar into a level. Off in a new node. Returns the former setting, which
    /// the caller puts back when done.
    bool EnableTypeChange(bool enable);

    /// Gives the node a type by name; an empty name takes it away. An empty node with a run type is a level
    /// without children.
    void SetRunType(const CVqVariantRunType& type);

    /// Empty when none was given.
    const CVqStringA& GetRunType() const;

    EVqVariantType GetType() const { return m_eType; }

    /// True for a node that holds no value: no scalar, no children and no run type. The empty text is a
    /// value.
    bool IsEmpty() const { return m_eType == EVqVariantType::Empty; }

    // Value: `ok` may be null ------------------------------------------------------------------------

    vq_uint32 GetVq_uint32(bool* ok) const;
    vq_int32 GetVq_int32(bool* ok) const;
    bool GetBool(bool* ok) const;
    CVqStringW GetCVqStringW(bool* ok) const;
    operator CVqStringW() const { return GetCVqStringW(nullptr); }

private:
    friend struct SVqVariantAccess;

    using children_type = std::vector<std::unique_ptr<CVqVariant>>;

    ARBOR_SYSTEM_NO_EXPORT CVqVariant(EVqVariantType type, vq_uint32 bits, const CVqStringW& name);
    ARBOR_SYSTEM_NO_EXPORT bool can_append() const;
    ARBOR_SYSTEM_NO_EXPORT CVqVariant& append(std::unique_ptr<CVqVariant> child);
    ARBOR_SYSTEM_NO_EXPORT CVqVariant& append_bits(EVqVariantType type, vq_uint32 bits, const vq_wchar* name);
    ARBOR_SYSTEM_NO_EXPORT static std::unique_ptr<CVqVariant> make(EVqVariantType type, const vq_wchar* name);
    ARBOR_SYSTEM_NO_EXPORT void copy_own_fields(const CVqVariant& other);
    ARBOR_SYSTEM_NO_EXPORT void swap_with(CVqVariant& other) noexcept;

    CVqStringW m_strName;
    CVqStringW m_strText;                         // of a text
    std::unique_ptr<const CVqStringA> m_pRunType; // null: none, as in nearly all nodes
    children_type m_children;
    vq_uint32 m_uiBits = 0; // of a bool, int or uint
    EVqVariantType m_eType = EVqVariantType::Empty;
    bool m_bTypeChange = false;
};
