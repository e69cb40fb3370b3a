#include "tests/support/CaptureMessages.h"

CaptureMessages::CaptureMessages(QtMsgType type) : m_type(type)
{
    MessageWatch::Add(this);
}

CaptureMessages::~CaptureMessages()
{
    MessageWatch::Remove(this);
}

bool CaptureMessages::Take(QtMsgType type, const QString& text)
{
    if (type != m_type)
        return false;

    m_texts.append(text);
    return true;
}
