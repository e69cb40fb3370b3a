#include "docs/snippets/toolbar_guide.h"
#include "quick_backend/toolbar/CVqQuickItemControl.h"

#include <QQuickItem>

#include <memory>

// [snippet]
// The control owns the item, and the toolbar owns the control unless it refuses it. In a toolbar that was
// loaded a plain button of its name keeps its place.
void add_slider(CVqQuickButtonToolbar& bar, QQuickItem* slider)
{
    const vq_wchar* const name = VQ_TEXT("zoom");
    auto control = std::make_unique<CVqQuickItemControl>(slider);
    const vq_uint64 place = bar.FindButton(name);
    const vq_uint64 added = place == 0 ? bar.AddGeneralControl(control.get(), name)
                                       : bar.InsertGeneralControlBefore(place, control.get(), name);
    if (added != 0)
        control.release();
    if (place != 0)
        bar.RemoveButton(place);
}
// [end]
