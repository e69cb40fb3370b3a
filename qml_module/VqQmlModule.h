#pragma once

#include "arbor_qml_export.h"

/// Adds what registers the QML module K7.Arbor to Quick::Register, where it waits for
/// Quick::Register::Init():
///
///     VQ_AddQmlModule();
///     Quick::Register::Init(); // before the first engine
///
/// A program that calls this needs no import path: the module is in the library that it is linked with. Calls
/// may be repeated, as those of Init(): types are registered once. GUI thread.
ARBOR_QML_EXPORT void VQ_AddQmlModule();
