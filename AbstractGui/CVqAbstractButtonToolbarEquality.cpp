#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "system/CVqStringW.h"
#include "system/CVqVariant.h"

namespace {

constexpr std::size_t g_prefix = 3; // units in front of a name: a letter and two digits

CVqStringW::view_type bare_name(const CVqVariant& record)
{
    const CVqStringW::view_type name = record.GetName().View();
    return name.substr(name.size() < g_prefix ? name.size() : g_prefix);
}

// What both or neither has, and where both have it, `same` of the two.
template <class Same>
bool is_same_field(const CVqVariant& left, const CVqVariant& right, const vq_wchar* name, Same same)
{
    const CVqVariant& left_field = left[name];
    const CVqVariant& right_field = right[name];
    if (left_field.IsEmpty() || right_field.IsEmpty())
        return left_field.IsEmpty() == right_field.IsEmpty();
    return same(left_field, right_field);
}

bool is_same_text(const CVqVariant& left, const CVqVariant& right)
{
    return left.GetCVqStringW(nullptr) == right.GetCVqStringW(nullptr);
}

bool is_same_number(const CVqVariant& left, const CVqVariant& right)
{
    return left.GetVq_int32(nullptr) == right.GetVq_int32(nullptr);
}

// Labels are in the language of whoever saved them.
bool is_text_in_both_or_none(const CVqVariant& left, const CVqVariant& right)
{
    return left.GetCVqStringW(nullptr).IsEmpty() == right.GetCVqStringW(nullptr).IsEmpty();
}

bool is_same_state(const CVqVariant& left, const CVqVariant& right)
{
    return is_same_field(left, right, VQ_TEXT("m_command"), is_same_text)
        && is_same_field(left, right, VQ_TEXT("m_bitmap"), is_same_number)
        && is_same_field(left, right, VQ_TEXT("m_text"), is_text_in_both_or_none);
}

bool has_same_states(const CVqVariant& left, const CVqVariant& right)
{
    CVqStringW name;
    for (unsigned number = 0;; ++number) {
        name.Format(VQ_TEXT("State%u"), number);
        if (left[name].IsEmpty() && right[name].IsEmpty())
            return true;
        if (!is_same_field(left, right, name, is_same_state))
            return false;
    }
}

}

bool CVqAbstractButtonToolbar::IsEqual(CVqVariant& left, CVqVariant& right)
{
    if (left.GetCount() != right.GetCount())
        return false;
    for (int i = 0; i < left.GetCount(); ++i) {
        const CVqVariant& left_record = *left.IndexPtr(i);
        const CVqVariant& right_record = *right.IndexPtr(i);
        const CVqStringW::view_type name = bare_name(left_record);
        if (name != bare_name(right_record))
            return false;
        const bool is_separator = name.empty();
        if (!is_separator && !has_same_states(left_record, right_record))
            return false;
    }
    return true;
}
