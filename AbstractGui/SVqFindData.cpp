#include "AbstractGui/CVqAbstractMenu.h"

namespace {

// Bits 8 to 15 name the bits of the low byte that do not matter.
vq_uint32 MaskOf(vq_uint32 status)
{
    return ~(status >> 8) & 0xFF;
}

template <typename Data>
void Collect(Data& data, const CVqStringW& wanted, const CVqStringW& held, const CVqMenuItem* item)
{
    if (data.m_uiCount >= data.m_uiCapacity)
        return;
    if (!wanted.IsEmpty() && wanted != held)
        return;
    if (data.m_uiType != CVqAbstractMenu::SenseAny && data.m_uiType != item->type())
        return;
    if ((data.m_uiStatus & data.m_uiStatusMask) != (item->status() & data.m_uiStatusMask))
        return;
    data.m_puiIds[data.m_uiCount++] = item->id();
}

}

CVqAbstractMenu::SVqFindData::SVqFindData(const CVqStringW& text, const CVqStringW& command, vq_uint32 type,
                                          vq_uint32 status, vq_uint32* ids, vq_uint32 capacity)
    : m_strText(text),
      m_strCommand(command),
      m_uiType(type),
      m_uiStatus(status),
      m_uiStatusMask(MaskOf(status)),
      m_puiIds(ids),
      m_uiCapacity(ids ? capacity : 0)
{ }

bool CVqAbstractMenu::SVqFindData::Visit(CVqMenuItem* item)
{
    Collect(*this, m_strText, item->text(), item);
    return true;
}

CVqAbstractMenu::SVqFindDataByCommand::SVqFindDataByCommand(const CVqStringW& text, const CVqStringW& command,
                                                            vq_uint32 type, vq_uint32 status, vq_uint32* ids,
                                                            vq_uint32 capacity)
    : m_strText(text),
      m_strCommand(command),
      m_uiType(type),
      m_uiStatus(status),
      m_uiStatusMask(MaskOf(status)),
      m_puiIds(ids),
      m_uiCapacity(ids ? capacity : 0)
{ }

bool CVqAbstractMenu::SVqFindDataByCommand::Visit(CVqMenuItem* item)
{
    Collect(*this, m_strCommand, item->command(), item);
    return true;
}
