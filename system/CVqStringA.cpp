#include "system/CVqStringA.h"

#include "system/CVqStringW.h"

#include <QString>

CVqStringA::CVqStringA(const vq_wchar* text, int length)
    : m_strText(CVqStringW(text, length).ToQString().toStdString())
{ }

CVqStringA& CVqStringA::operator=(const char* text)
{
    m_strText = std::string(text ? text : "");
    return *this;
}
