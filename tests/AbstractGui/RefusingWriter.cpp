#include "tests/AbstractGui/RefusingWriter.h"

#include "system/CVqLiteBuilder.h"
#include "system/CVqLiteVariantW.h"

namespace {

RefusingWriter* current = nullptr;

}

RefusingWriter::RefusingWriter(const CVqStringW& name, int most) : m_name(name), m_left(most)
{
    current = this;
}

RefusingWriter::~RefusingWriter()
{
    current = nullptr;
}

bool RefusingWriter::Refuses(const vq_wchar* name)
{
    if (!current || current->m_name != name || current->m_left == 0)
        return false;
    --current->m_left;
    return true;
}

// The program's own definition takes the place of the system library's in the whole process.
int CVqLiteVariantW::LevelBegin(const vq_wchar* name)
{
    if (RefusingWriter::Refuses(name))
        return -3;
    return m_pBuilder->begin_level(m_pBuilder->name_number(VqView(name)));
}
