#pragma once

#include "system/CVqVariant.h"
#include "system/VqText.h"

/// Writes fields into a record of a tree in the way of CVqLiteVariantW, so that one function can write both
/// forms. The record is not owned and has to outlive the writer.
class CVqTreeFieldWriter
{
public:
    explicit CVqTreeFieldWriter(CVqVariant& record) : m_record(record) { }

    template <class Value>
    void Set(Value value, const vq_wchar* name)
    {
        m_record.Append(value, name);
    }

private:
    CVqVariant& m_record;
};
