#include "arbor_qml_support.h"

#include "AbstractGui/VqHiddenStores.h"
#include "Rasterus.h"

#include <functional>
#include <list>
#include <stdexcept>

using namespace Qt::StringLiterals;

// The static objects of the module, all of them. Their order is part of the module's contract, so they stand
// in one source: there the language makes them from top to bottom and destroys them from bottom to top, while
// the order among sources would be the linker's. All else is constant from the start or made on first use.

VqHiddenStore hidden_menu_commands;
VqHiddenStore personal_hidden_buttons;
VqHiddenStore system_hidden_buttons;
std::list<SVqToolbarButtonHiddenCallback*> hidden_button_observers;

namespace {

// The words for failures that the application and its modules have in common. Nothing here raises them.
const Rasterus::InvalidArguments invalid_arguments;
const std::runtime_error legacy_buffer_conversion_exception("legacy buffer conversion exception");
const std::runtime_error legacy_processing_exception("legacy processing exception");
const std::runtime_error mkl_exception("MKL exception");
const std::runtime_error ipp_exception("IPP exception");
const Rasterus::AbortException abort_exception;

}

QList<std::pair<QString, QString>> ResourcePrefix::resourcePrefixes{
    {u"/tile_assets/"_s, u"branch9/src/tile_assets/"_s},
    {u"/arbor_qml_support/"_s, u"branch9/src/arbor_qml_support/Resources/"_s},
};

namespace {

std::list<std::function<void()>> registrators;

}

namespace Quick::Register {

void AddRegistrator(std::function<void()> registrator)
{
    registrators.push_back(std::move(registrator));
}

void Init()
{
    // Called through a copy: what a registrator does to its own state, the next Init() does not see.
    for (const std::function<void()>& stored : registrators) {
        const std::function<void()> registrator = stored;
        registrator();
    }
}

namespace detail {

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is part of the interface.
void TraceQmlRegistration(int, int, QString, QString) { }

}

}
