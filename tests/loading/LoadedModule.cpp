#include "tests/loading/LoadedModule.h"

#include "tests/loading/CleanUpRecords.h"
#include "tests/support/ToolOutput.h"

#include <QDir>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <link.h>

using namespace Qt::Literals::StringLiterals;

namespace {

int g_qobjects = 0;

void count_qobject(QObject*)
{
    ++g_qobjects;
}

// The table of hooks that Qt keeps for debugging tools; place 3 is called for each new QObject.
void install_hook()
{
    auto* const hooks = static_cast<quintptr*>(dlsym(RTLD_DEFAULT, "qtHookData"));
    ASSERT_NE(hooks, nullptr);
    hooks[3] = reinterpret_cast<quintptr>(&count_qobject);
}

quintptr base_address(void* handle)
{
    link_map* map = nullptr;
    dlinfo(handle, RTLD_DI_LINKMAP, &map);
    return map->l_addr;
}

LoadedModule load()
{
    const int threads = CountThreads();
    const int qobjects = CountNewQObjects();
    CleanUpRecords::Start();
    void* const handle = dlopen(LIBRARY_FILE, RTLD_NOW | RTLD_LOCAL);
    CleanUpRecords::Stop();
    EXPECT_NE(handle, nullptr) << dlerror();
    return {handle, CleanUpRecords::Registered(LIBRARY_FILE), CountThreads() - threads,
            CountNewQObjects() - qobjects};
}

}

const LoadedModule& LoadedModule::instance()
{
    static const LoadedModule module = load();
    return module;
}

QString LoadedModule::NameOf(const void* object) const
{
    const quintptr place = reinterpret_cast<quintptr>(object) - base_address(m_handle);
    const QString number = QString::number(place, 16).rightJustified(16, u'0');
    static const QRegularExpression object_line(u"^([0-9a-f]+) [bBdD] (?:.*::)?(\\w+)"_s);
    for (const QString& line : Symbols()) {
        const QRegularExpressionMatch match = object_line.match(line);
        if (match.hasMatch() && match.captured(1) == number)
            return match.captured(2);
    }
    return u"no symbol at "_s + number;
}

int CountNewQObjects()
{
    static const bool installed = (install_hook(), true);
    return installed ? g_qobjects : 0;
}

int CountThreads()
{
    return static_cast<int>(QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size());
}

QStringList Symbols()
{
    static const QByteArray table
        = ToolOutput(QStringLiteral(NM), {u"--demangle"_s, QStringLiteral(LIBRARY_FILE)});
    return QString::fromUtf8(table).split(u'\n');
}
