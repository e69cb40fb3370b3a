#pragma once

#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace Gallery {

/// Runs the event loop until `sender` has emitted `signal`, for `longest` at most.
template <class Sender, class Signal>
void WaitFor(const Sender& sender, Signal signal, std::chrono::milliseconds longest)
{
    QEventLoop loop;
    QObject::connect(&sender, signal, &loop, [&loop] { loop.quit(); }, Qt::QueuedConnection);
    QTimer::singleShot(longest, &loop, &QEventLoop::quit);
    loop.exec();
}

}
