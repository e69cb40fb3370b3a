#pragma once

#include <QThread>

#include <functional>
#include <memory>

#if defined(__SANITIZE_ADDRESS__)
#define ARBOR_TEST_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ARBOR_TEST_ADDRESS_SANITIZER
#endif
#endif

// The address sanitizer gives each call a frame several times as large.
#if defined(ARBOR_TEST_ADDRESS_SANITIZER)
inline constexpr unsigned small_stack_bytes = 4 << 20;
#else
inline constexpr unsigned small_stack_bytes = 1 << 20;
#endif

/// Runs `work` to its end on a thread with a stack of small_stack_bytes.
inline void run_in_small_stack(const std::function<void()>& work)
{
    const std::unique_ptr<QThread> thread(QThread::create(work));
    thread->setStackSize(small_stack_bytes);
    thread->start();
    thread->wait();
}
