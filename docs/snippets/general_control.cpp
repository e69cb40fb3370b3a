#include "docs/snippets/toolbar_guide.h"
#include "quick_backend/toolbar/CVqQuickItemControl.h"

#include <QQuickItem>

#include <memory>

// [snippet]
// The control owns the item, and the toolbar owns the control unless it refuses it.
void add_slider(CVqQuickButtonToolbar& bar, QQuickItem* slider)
{
    auto control = std::make_unique<CVqQuickItemControl>(slider);
    if (bar.AddGeneralControl(control.get(), VQ_TEXT("zoom")) != 0)
        control.release();
}
// [end]
