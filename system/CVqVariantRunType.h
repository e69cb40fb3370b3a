#pragma once

#include "arbor_system_export.h"
#include "system/CVqStringA.h"

/// The name of a type that a CVqVariant node is given at run time. "CVqListVariant" makes a node a list.
class ARBOR_SYSTEM_EXPORT CVqVariantRunType
{
public:
    explicit CVqVariantRunType(const CVqStringA& name);

    const CVqStringA& GetName() const { return m_strName; }

private:
    CVqStringA m_strName;
};
