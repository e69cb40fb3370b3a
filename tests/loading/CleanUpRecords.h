#pragma once

#include <vector>

/// Watches the registration of clean-ups with the C++ runtime: its own __cxa_atexit() stands in front of the
/// runtime's for the whole process. What a module's static object registers when it is made runs when the
/// module is unloaded or the process exits.
namespace CleanUpRecords {

/// From now on clean-ups are kept in mind.
void Start();

/// From now on they are only passed on.
void Stop();

/// The objects whose clean-up `library` registered in that time, in order. `library` is the path by which the
/// loader knows it.
std::vector<void*> Registered(const char* library);

/// The same objects in the order in which their clean-ups have run so far.
std::vector<void*> Run(const char* library);

}
