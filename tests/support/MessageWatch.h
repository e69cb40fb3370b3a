#pragma once

#include <QString>

/// Is asked about each Qt message while it is listed with MessageWatch::Add.
class IMessageListener
{
public:
    virtual ~IMessageListener();

    /// Returns true when the message is meant for this listener; then nobody else is asked, the message is
    /// not printed and a warning fails no test. May be called from any thread, one call at a time. Must
    /// not print a Qt message.
    virtual bool Take(QtMsgType type, const QString& text) = 0;
};

/// Watches over all Qt messages of a test program.
///
/// A warning or a critical message that no listener takes fails the running test. Other messages that
/// nobody takes are printed on the error stream.
namespace MessageWatch {

/// Takes over Qt's message handler for the rest of the program. main() calls it before the first test.
void Install();

/// The listener added last is asked first. Not owned; has to be removed before it dies.
void Add(IMessageListener* listener);

void Remove(IMessageListener* listener);

}
