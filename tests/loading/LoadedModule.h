#pragma once

#include <QString>

#include <cstddef>
#include <vector>

/// The library, opened once in this process and kept open, and what that did.
struct LoadedModule
{
    void* m_handle;               ///< Of dlopen().
    std::vector<void*> m_objects; ///< The static objects with a clean-up, in the order in which they came.
    int m_new_threads;
    int m_new_qobjects;

    /// Opens the library at the first call.
    static const LoadedModule& instance();

    /// The name of the static object at that address, without namespaces.
    QString NameOf(const void* object) const;
};

/// Number of QObjects made in this process since the first call.
int CountNewQObjects();

/// Number of threads of this process.
int CountThreads();

/// The lines of the library's symbol table, C++ names readable.
QStringList Symbols();
