#include "tests/support/ExpectMessage.h"

#include <gtest/gtest.h>

ExpectMessage::ExpectMessage(QtMsgType type, const QString& text, Match match)
    : m_type(type), m_text(text), m_match(match)
{
    MessageWatch::Add(this);
}

ExpectMessage::~ExpectMessage()
{
    MessageWatch::Remove(this);
    EXPECT_TRUE(m_has_come) << "this message did not come: " << m_text.toStdString();
}

bool ExpectMessage::Take(QtMsgType type, const QString& text)
{
    if (m_has_come || type != m_type)
        return false;

    m_has_come = m_match == Match::Exact ? text == m_text : text.contains(m_text);
    return m_has_come;
}
