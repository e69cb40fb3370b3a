#include "tests/loading/CleanUpRecords.h"

#include <dlfcn.h>
#include <string>

namespace {

using CleanUp = void (*)(void*);
using Register = int (*)(CleanUp, void*, void*);

struct Record
{
    CleanUp m_clean_up;
    void* m_object;
    std::string m_library;
};

struct Records
{
    std::vector<const Record*> m_registered;
    std::vector<const Record*> m_run;
};

bool g_recording = false;

// Never freed: clean-ups run until the very end of the process.
Records& records()
{
    static Records* const all = new Records;
    return *all;
}

void run(void* record)
{
    const auto* const known = static_cast<const Record*>(record);
    records().m_run.push_back(known);
    known->m_clean_up(known->m_object);
}

const Record* remember(CleanUp clean_up, void* object, void* module)
{
    Dl_info info{};
    dladdr(module, &info);
    const auto* const record = new Record{clean_up, object, info.dli_fname ? info.dli_fname : ""};
    records().m_registered.push_back(record);
    return record;
}

std::vector<void*> objects_of(const std::vector<const Record*>& some, const char* library)
{
    std::vector<void*> result;
    for (const Record* record : some)
        if (record->m_library == library)
            result.push_back(record->m_object);
    return result;
}

}

// NOLINTNEXTLINE(bugprone-reserved-identifier): the runtime's own name.
extern "C" int __cxa_atexit(CleanUp clean_up, void* object, void* module) noexcept
{
    static const auto next = reinterpret_cast<Register>(dlsym(RTLD_NEXT, "__cxa_atexit"));
    if (!g_recording)
        return next(clean_up, object, module);
    return next(run, const_cast<Record*>(remember(clean_up, object, module)), module);
}

namespace CleanUpRecords {

void Start()
{
    g_recording = true;
}

void Stop()
{
    g_recording = false;
}

std::vector<void*> Registered(const char* library)
{
    return objects_of(records().m_registered, library);
}

std::vector<void*> Run(const char* library)
{
    return objects_of(records().m_run, library);
}

}
