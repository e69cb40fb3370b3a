#include "SVqRTTIClass.h"

#include "tests/PlainRecord.h"

using SVqRTTIClassFields = PlainRecordFields<SVqRTTIClass, &SVqRTTIClass::m_strName, &SVqRTTIClass::m_strBase,
                                             &SVqRTTIClass::m_properties>;
INSTANTIATE_TYPED_TEST_SUITE_P(SVqRTTIClass, PlainRecord, SVqRTTIClassFields);
