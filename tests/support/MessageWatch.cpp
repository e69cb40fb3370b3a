#include "tests/support/MessageWatch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <mutex>
#include <vector>

IMessageListener::~IMessageListener() = default;

namespace {

std::mutex g_lock;
std::vector<IMessageListener*> g_listeners; // not owned, oldest first
QtMessageHandler g_handler_before = nullptr;

bool is_taken(QtMsgType type, const QString& text)
{
    const std::lock_guard guard(g_lock);
    return std::any_of(g_listeners.rbegin(), g_listeners.rend(),
                       [&](IMessageListener* listener) { return listener->Take(type, text); });
}

void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (is_taken(type, text))
        return;

    if (type == QtWarningMsg || type == QtCriticalMsg)
        ADD_FAILURE_AT(context.file ? context.file : "Qt", context.line)
            << "nobody announced this message: " << text.toStdString();
    else if (type == QtFatalMsg)
        g_handler_before(type, context, text);
    else
        std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

}

void MessageWatch::Install()
{
    g_handler_before = qInstallMessageHandler(handle);
}

void MessageWatch::Add(IMessageListener* listener)
{
    const std::lock_guard guard(g_lock);
    g_listeners.push_back(listener);
}

void MessageWatch::Remove(IMessageListener* listener)
{
    const std::lock_guard guard(g_lock);
    std::erase(g_listeners, listener);
}
