#include "qml_module/VqQmlModule.h"

#include "arbor_qml_support.h"

/// Registers the types of ArborQmlTypes.h; made by the build.
void qml_register_types_K7_Arbor(); // NOLINT(misc-use-internal-linkage)

namespace {

void register_once()
{
    [[maybe_unused]] static const bool done = (qml_register_types_K7_Arbor(), true);
}

}

void VQ_AddQmlModule()
{
    Quick::Register::AddRegistrator(&register_once);
}
