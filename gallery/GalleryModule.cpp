#include "gallery/GalleryModule.h"

#include "arbor_qml_support.h"
#include "qml_module/VqQmlModule.h"

/// Registers the types of GalleryTypes.h; made by the build.
void qml_register_types_K7_Arbor_Gallery();

namespace Gallery {

// An engine registers the types of a module when it first imports it, unless they are there already: so they
// are registered here alone. The back end's module is left to the engine, as in any program that uses it.
void AddRegistrators()
{
    VQ_AddQmlModule();
    Quick::Register::AddRegistrator(&qml_register_types_K7_Arbor_Gallery);
}

}
