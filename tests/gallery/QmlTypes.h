#pragma once

#include "arbor_qml_support.h"
#include "gallery/GalleryModule.h"

/// Registers the gallery's QML types as the program does, once for all tests of a program.
inline void RegisterQmlTypes()
{
    [[maybe_unused]] static const bool done = [] {
        Gallery::AddRegistrators();
        Quick::Register::Init();
        return true;
    }();
}
