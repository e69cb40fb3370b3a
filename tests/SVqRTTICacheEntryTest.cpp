#include "SVqRTTICacheEntry.h"

#include "tests/PlainRecord.h"

using SVqRTTICacheEntryFields
    = PlainRecordFields<SVqRTTICacheEntry, &SVqRTTICacheEntry::m_strModule, &SVqRTTICacheEntry::m_strClass,
                        &SVqRTTICacheEntry::m_value>;
INSTANTIATE_TYPED_TEST_SUITE_P(SVqRTTICacheEntry, PlainRecord, SVqRTTICacheEntryFields);
