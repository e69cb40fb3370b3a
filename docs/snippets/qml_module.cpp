#include "docs/snippets/qml_guide.h"

// [snippet]
#include <qml_module/VqQmlModule.h>

#include <arbor_qml_support.h>

void prepare_qml()
{
    VQ_AddQmlModule();
    Quick::Register::Init(); // before the first engine
}
// [end]
