#pragma once

/// Registers the QML types of the module K7.Arbor.Gallery; made by the build.
void qml_register_types_K7_Arbor_Gallery();

namespace Gallery {

/// Keeps the registration of the QML module in a program that links the static library; without a mention of
/// it the linker leaves it out. To be called before the first engine.
inline void KeepQmlModule()
{
    [[maybe_unused]] static void (*volatile registration)() = &qml_register_types_K7_Arbor_Gallery;
}

}
