#pragma once

#include "arbor_system_export.h"
#include "system/VqText.h"

#include <string>
#include <string_view>

/// A narrow text in UTF-8 with value semantics: the names of run types, the source of scalable images.
class ARBOR_SYSTEM_EXPORT CVqStringA
{
public:
    CVqStringA() = default;

    /// Takes at most `length` units of `text` up to its terminator; a `length` of 0 or less takes the whole
    /// text. Null is the empty text. A lone half of a surrogate pair becomes `?`.
    CVqStringA(const vq_wchar* text, int length = 0);

    /// Replaces the content by the bytes in front of the terminator; null empties it. `text` may be the own
    /// buffer.
    CVqStringA& operator=(const char* text);

    /// Never null; valid until the next change.
    const char* GetString() const { return m_strText.c_str(); }
    operator const char*() const { return m_strText.c_str(); }

    /// Length in bytes.
    int GetLength() const { return static_cast<int>(m_strText.size()); }
    bool IsEmpty() const { return m_strText.empty(); }
    std::string_view View() const { return m_strText; }

    friend bool operator==(const CVqStringA& left, const CVqStringA& right)
    {
        return left.m_strText == right.m_strText;
    }

private:
    std::string m_strText;
};
