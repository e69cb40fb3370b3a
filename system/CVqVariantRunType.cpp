#include "system/CVqVariantRunType.h"

CVqVariantRunType::CVqVariantRunType(const CVqStringA& name) : m_strName(name) { }
