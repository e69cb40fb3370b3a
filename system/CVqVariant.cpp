#include "system/CVqVariant.h"

#include "system/VqScalar.h"

#include <iterator>
#include <optional>
#include <utility>

namespace {

/// What a look-up that must not fail and must not change the tree hands out for writing.
CVqVariant& fresh_scratch()
{
    thread_local CVqVariant scratch;
    scratch = CVqVariant();
    return scratch;
}

const CVqVariant& empty_node()
{
    static const CVqVariant empty;
    return empty;
}

template <typename Value>
Value reported(std::optional<Value> value, bool* ok)
{
    if (ok)
        *ok = value.has_value();
    return std::move(value).value_or(Value());
}

template <typename Children>
auto child_of_name(const Children& children, const vq_wchar* name) -> decltype(children.front().get())
{
    const auto wanted = VqView(name);
    for (const auto& child : children)
        if (child->GetName().View() == wanted)
            return child.get();
    return nullptr;
}

}

CVqVariant::CVqVariant() = default;

CVqVariant::CVqVariant(EVqVariantType type, vq_uint32 bits, const CVqStringW& name)
    : m_strName(name), m_uiBits(bits), m_eType(type)
{ }

CVqVariant::CVqVariant(const bool& value, const CVqStringW& name)
    : CVqVariant(EVqVariantType::Bool, value ? 1u : 0u, name)
{ }

CVqVariant::CVqVariant(const unsigned int& value, const CVqStringW& name)
    : CVqVariant(EVqVariantType::Uint, value, name)
{ }

CVqVariant::CVqVariant(const int& value, const CVqStringW& name)
    : CVqVariant(EVqVariantType::Int, static_cast<vq_uint32>(value), name)
{ }

CVqVariant::CVqVariant(const CVqStringW& value, const CVqStringW& name)
    : CVqVariant(EVqVariantType::Text, 0, name)
{
    m_strText = value;
}

CVqVariant::CVqVariant(const vq_wchar* value, const CVqStringW& name)
    : CVqVariant(EVqVariantType::Text, 0, name)
{
    m_strText = value;
}

CVqVariant::CVqVariant(const CVqVariant& other)
{
    if (other.m_children.empty()) {
        copy_own_fields(other);
        return;
    }
    std::vector<std::pair<const CVqVariant*, CVqVariant*>> pending{{&other, this}};
    while (!pending.empty()) {
        const auto [from, to] = pending.back();
        pending.pop_back();
        to->copy_own_fields(*from);
        to->m_children.reserve(from->m_children.size());
        for (const auto& child : from->m_children) {
            to->m_children.push_back(std::make_unique<CVqVariant>());
            pending.emplace_back(child.get(), to->m_children.back().get());
        }
    }
}

CVqVariant::CVqVariant(CVqVariant&& other) noexcept
    : m_strName(std::move(other.m_strName)),
      m_strText(std::move(other.m_strText)),
      m_pRunType(std::move(other.m_pRunType)),
      m_children(std::move(other.m_children)),
      m_uiBits(std::exchange(other.m_uiBits, 0u)),
      m_eType(std::exchange(other.m_eType, EVqVariantType::Empty)),
      m_bTypeChange(std::exchange(other.m_bTypeChange, false))
{
    other.m_strName = CVqStringW();
}

CVqVariant::~CVqVariant()
{
    while (!m_children.empty()) {
        const std::unique_ptr<CVqVariant> child = std::move(m_children.back());
        m_children.pop_back();
        m_children.insert(m_children.end(), std::make_move_iterator(child->m_children.begin()),
                          std::make_move_iterator(child->m_children.end()));
        child->m_children.clear();
    }
}

CVqVariant& CVqVariant::operator=(const CVqVariant& other)
{
    CVqVariant copy(other);
    swap_with(copy);
    return *this;
}

CVqVariant& CVqVariant::operator=(CVqVariant&& other) noexcept
{
    CVqVariant taken(std::move(other));
    swap_with(taken);
    return *this;
}

CVqVariant& CVqVariant::operator[](const vq_wchar* name)
{
    CVqVariant* child = child_of_name(m_children, name);
    return child ? *child : fresh_scratch();
}

const CVqVariant& CVqVariant::operator[](const vq_wchar* name) const
{
    const CVqVariant* child = child_of_name(m_children, name);
    return child ? *child : empty_node();
}

CVqVariant& CVqVariant::operator[](std::size_t index)
{
    return index < m_children.size() ? *m_children[index] : fresh_scratch();
}

const CVqVariant& CVqVariant::operator[](std::size_t index) const
{
    return index < m_children.size() ? *m_children[index] : empty_node();
}

CVqVariant* CVqVariant::IndexPtr(int index)
{
    return index >= 0 && index < GetCount() ? m_children[static_cast<std::size_t>(index)].get() : nullptr;
}

const CVqVariant* CVqVariant::IndexPtr(int index) const
{
    return index >= 0 && index < GetCount() ? m_children[static_cast<std::size_t>(index)].get() : nullptr;
}

CVqVariant& CVqVariant::Append(const CVqVariant& child)
{
    return can_append() ? append(std::make_unique<CVqVariant>(child)) : fresh_scratch();
}

CVqVariant& CVqVariant::Append(CVqVariant&& child)
{
    return can_append() ? append(std::make_unique<CVqVariant>(std::move(child))) : fresh_scratch();
}

CVqVariant& CVqVariant::Append(bool value, const vq_wchar* name)
{
    return append_bits(EVqVariantType::Bool, value ? 1u : 0u, name);
}

CVqVariant& CVqVariant::Append(unsigned int value, const vq_wchar* name)
{
    return append_bits(EVqVariantType::Uint, value, name);
}

CVqVariant& CVqVariant::Append(int value, const vq_wchar* name)
{
    return append_bits(EVqVariantType::Int, static_cast<vq_uint32>(value), name);
}

CVqVariant& CVqVariant::Append(const vq_wchar* value, const vq_wchar* name)
{
    if (!can_append())
        return fresh_scratch();
    std::unique_ptr<CVqVariant> child = make(EVqVariantType::Text, name);
    child->m_strText.Assign(VqView(value));
    return append(std::move(child));
}

CVqVariant& CVqVariant::append_bits(EVqVariantType type, vq_uint32 bits, const vq_wchar* name)
{
    if (!can_append())
        return fresh_scratch();
    std::unique_ptr<CVqVariant> child = make(type, name);
    child->m_uiBits = bits;
    return append(std::move(child));
}

// In the place where it stays: to move a short text that was just written costs more than to write it.
std::unique_ptr<CVqVariant> CVqVariant::make(EVqVariantType type, const vq_wchar* name)
{
    auto node = std::make_unique<CVqVariant>();
    node->m_strName.Assign(VqView(name));
    node->m_eType = type;
    return node;
}

bool CVqVariant::can_append() const
{
    return m_bTypeChange || m_eType == EVqVariantType::Empty || m_eType == EVqVariantType::Level;
}

CVqVariant& CVqVariant::append(std::unique_ptr<CVqVariant> child)
{
    constexpr std::size_t usual_count = 8; // of the fields of a record
    if (m_children.empty())
        m_children.reserve(usual_count);
    m_children.push_back(std::move(child));
    if (m_eType != EVqVariantType::Level)
        m_strText = CVqStringW();
    m_eType = EVqVariantType::Level;
    return *m_children.back();
}

bool CVqVariant::EnableTypeChange(bool enable)
{
    return std::exchange(m_bTypeChange, enable);
}

void CVqVariant::SetRunType(const CVqVariantRunType& type)
{
    const CVqStringA& name = type.GetName();
    m_pRunType = name.IsEmpty() ? nullptr : std::make_unique<const CVqStringA>(name);
    const bool bare = m_children.empty() && (IsEmpty() || m_eType == EVqVariantType::Level);
    if (bare)
        m_eType = m_pRunType ? EVqVariantType::Level : EVqVariantType::Empty;
}

const CVqStringA& CVqVariant::GetRunType() const
{
    static const CVqStringA none;
    return m_pRunType ? *m_pRunType : none;
}

vq_uint32 CVqVariant::GetVq_uint32(bool* ok) const
{
    return reported(scalar_to_bits({m_eType, m_uiBits, m_strText.View()}), ok);
}

vq_int32 CVqVariant::GetVq_int32(bool* ok) const
{
    return static_cast<vq_int32>(GetVq_uint32(ok));
}

bool CVqVariant::GetBool(bool* ok) const
{
    return GetVq_uint32(ok) != 0;
}

CVqStringW CVqVariant::GetCVqStringW(bool* ok) const
{
    return reported(scalar_to_text({m_eType, m_uiBits, m_strText.View()}), ok);
}

void CVqVariant::copy_own_fields(const CVqVariant& other)
{
    m_strName = other.m_strName;
    m_strText = other.m_strText;
    m_pRunType = other.m_pRunType ? std::make_unique<const CVqStringA>(*other.m_pRunType) : nullptr;
    m_uiBits = other.m_uiBits;
    m_eType = other.m_eType;
    m_bTypeChange = other.m_bTypeChange;
}

void CVqVariant::swap_with(CVqVariant& other) noexcept
{
    std::swap(m_strName, other.m_strName);
    std::swap(m_strText, other.m_strText);
    m_pRunType.swap(other.m_pRunType);
    m_children.swap(other.m_children);
    std::swap(m_uiBits, other.m_uiBits);
    std::swap(m_eType, other.m_eType);
    std::swap(m_bTypeChange, other.m_bTypeChange);
}
