#pragma once

#include "system/CVqStringW.h"

#include <limits>

/// While it lives, no CVqLiteVariantW begins a level of that name: what otherwise takes more data than 32
/// bits can number. One at a time.
class RefusingWriter
{
public:
    /// Only the first `most` levels of that name are refused.
    explicit RefusingWriter(const CVqStringW& name, int most = std::numeric_limits<int>::max());
    ~RefusingWriter();

    RefusingWriter(const RefusingWriter&) = delete;
    RefusingWriter& operator=(const RefusingWriter&) = delete;

    static bool Refuses(const vq_wchar* name);

private:
    const CVqStringW m_name;
    int m_left;
};
