#pragma once

#include <QThread>

#include <functional>
#include <memory>

/// Runs `work` to its end on a thread with a stack of 1 MiB.
inline void run_in_small_stack(const std::function<void()>& work)
{
    const std::unique_ptr<QThread> thread(QThread::create(work));
    thread->setStackSize(1024 * 1024);
    thread->start();
    thread->wait();
}
