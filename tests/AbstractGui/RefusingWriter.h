#pragma once

#include "system/CVqStringW.h"

/// While it lives, no CVqLiteVariantW begins a level of that name: what otherwise takes more data than 32
/// bits can number. One at a time.
class RefusingWriter
{
public:
    explicit RefusingWriter(const CVqStringW& name);
    ~RefusingWriter();

    RefusingWriter(const RefusingWriter&) = delete;
    RefusingWriter& operator=(const RefusingWriter&) = delete;

    static bool Refuses(const vq_wchar* name);

private:
    const CVqStringW m_name;
};
