#pragma once

#include "tests/support/MessageWatch.h"

#include <QStringList>

/// Takes all Qt messages of one type for the time of its scope and keeps their texts.
///
///     const CaptureMessages debug(QtDebugMsg);
///     Trace();
///     EXPECT_EQ(debug.Texts(), QStringList{u"traced"_s});
class CaptureMessages : private IMessageListener
{
public:
    explicit CaptureMessages(QtMsgType type);
    ~CaptureMessages() override;

    CaptureMessages(const CaptureMessages&) = delete;
    CaptureMessages& operator=(const CaptureMessages&) = delete;

    /// In the order in which the messages came.
    const QStringList& Texts() const { return m_texts; }

private:
    bool Take(QtMsgType type, const QString& text) override;

    const QtMsgType m_type;
    QStringList m_texts;
};
