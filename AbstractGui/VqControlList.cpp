#include "AbstractGui/VqControlList.h"

#include "AbstractGui/IVqUIcontrol.h"
#include "AbstractGui/VqControlCodes.h"

#include <QObject>
#include <QPointer>

#include <cstdint>
#include <map>
#include <utility>

#ifdef QT_NO_DEBUG

void VqHoldControl(const CVqList&, IVqUIcontrol&) { }
void VqReleaseControl(const CVqList&, const IVqUIcontrol*) { }
void VqCheckControl(const CVqList&, const IVqUIcontrol*) { }

#else

namespace {

using Place = std::pair<const CVqList*, const IVqUIcontrol*>;

std::map<Place, QPointer<QObject>>& held_controls()
{
    static std::map<Place, QPointer<QObject>> held;
    return held;
}

}

void VqHoldControl(const CVqList& list, IVqUIcontrol& control)
{
    if (auto* object = dynamic_cast<QObject*>(&control))
        held_controls().insert_or_assign({&list, &control}, object);
}

void VqReleaseControl(const CVqList& list, const IVqUIcontrol* control)
{
    held_controls().erase({&list, control});
}

void VqCheckControl(const CVqList& list, const IVqUIcontrol* control)
{
    const auto found = held_controls().find({&list, control});
    Q_ASSERT_X(found == held_controls().end() || found->second, "CVqAbstractToolbar",
               "a control was deleted while a toolbar held it");
}

#endif

IVqUIcontrol* VqControlAt(const CVqList& list, const CVqList::CVqNode* node)
{
    auto* control = static_cast<IVqUIcontrol*>(list.GetData(node));
    VqCheckControl(list, control);
    return control;
}

const vq_wchar* VqControlName(vq_uint64 id)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): an identifier is the address of a name.
    return reinterpret_cast<const vq_wchar*>(static_cast<std::uintptr_t>(id));
}

bool VqIsSeparator(IVqUIcontrol& control)
{
    int value = 0;
    return control.Get(vq_control_separator, 0, &value) == 0 && value != 0;
}
