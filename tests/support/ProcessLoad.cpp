#include "tests/support/ProcessLoad.h"

#include <QFile>
#include <QObject>

#include <atomic>
#include <unistd.h>

// Qt keeps this table of hooks for debugging tools.
extern "C" Q_DECL_IMPORT quintptr qtHookData[];

namespace {

constexpr int g_add_object = 3;
constexpr int g_remove_object = 4;

std::atomic<qint64> g_live = 0;

void count_new(QObject*)
{
    ++g_live;
}

void count_gone(QObject*)
{
    --g_live;
}

bool install_hooks()
{
    qtHookData[g_add_object] = reinterpret_cast<quintptr>(&count_new);
    qtHookData[g_remove_object] = reinterpret_cast<quintptr>(&count_gone);
    return true;
}

}

qint64 LiveQObjects()
{
    static const bool are_installed = install_hooks();
    return are_installed ? g_live.load() : 0;
}

qint64 ResidentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray resident_pages = file.readAll().split(' ').value(1);
    return resident_pages.toLongLong() * sysconf(_SC_PAGESIZE);
}
