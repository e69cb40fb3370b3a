#include "system/CVqLiteVariantW.h"

#include "system/CVqLiteBuilder.h"
#include "system/CVqLiteVariantR.h"
#include "system/SVqLiteAccess.h"

CVqLiteVariantW::CVqLiteVariantW()
    : m_pBuilder(std::make_unique<CVqLiteBuilder>(CVqLiteBuilder::ELists::Find))
{ }

CVqLiteVariantW::~CVqLiteVariantW() = default;

int CVqLiteVariantW::LevelBegin(const vq_wchar* name)
{
    return m_pBuilder->begin_level(m_pBuilder->name_number(VqView(name)));
}

int CVqLiteVariantW::LevelEnd()
{
    return m_pBuilder->end_level() ? 0 : -9;
}

int CVqLiteVariantW::Set(const vq_wchar* value, const vq_wchar* name)
{
    return m_pBuilder->add_text(VqView(value), m_pBuilder->name_number(VqView(name)));
}

int CVqLiteVariantW::Set(unsigned int value, const vq_wchar* name)
{
    return m_pBuilder->add_bits(EVqVariantType::Uint, value, m_pBuilder->name_number(VqView(name)));
}

int CVqLiteVariantW::Set(int value, const vq_wchar* name)
{
    return m_pBuilder->add_bits(EVqVariantType::Int, static_cast<vq_uint32>(value),
                                m_pBuilder->name_number(VqView(name)));
}

int CVqLiteVariantW::Set(bool value, const vq_wchar* name)
{
    return m_pBuilder->add_bits(EVqVariantType::Bool, value ? 1u : 0u, m_pBuilder->name_number(VqView(name)));
}

int CVqLiteVariantW::Finalize(CVqLiteVariantR& reader, int)
{
    SVqLiteAccess::start(reader, m_pBuilder->take());
    return 0;
}
