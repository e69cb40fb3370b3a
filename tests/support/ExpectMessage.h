#pragma once

#include "tests/support/MessageWatch.h"

/// Announces one Qt message for the time of its scope, and fails the test when it did not come.
///
///     const ExpectMessage warning(QtWarningMsg, u"Row 3 is out of range"_s);
///     model.Remove(3);
///
/// Takes one message only: a message that comes twice is announced twice. A debug message, which nobody
/// has to announce, can be expected in the same way.
class ExpectMessage : private IMessageListener
{
public:
    enum class Match
    {
        Exact,    ///< The message is the text.
        Contains, ///< The message has the text somewhere in it.
    };

    explicit ExpectMessage(QtMsgType type, const QString& text, Match match = Match::Exact);
    ~ExpectMessage() override;

    ExpectMessage(const ExpectMessage&) = delete;
    ExpectMessage& operator=(const ExpectMessage&) = delete;

    bool HasCome() const { return m_has_come; }

private:
    bool Take(QtMsgType type, const QString& text) override;

    const QtMsgType m_type;
    const QString m_text;
    const Match m_match;
    bool m_has_come = false;
};
