#include "quick_backend/toolbar_setup/VqToolbarOrder.h"

#include "AbstractGui/VqControlCodes.h"
#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar/CVqQuickControl.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype g_name_room = 200; // records look at 254 units of a name

// Names under which a record holds something else than a button.
bool is_reserved(const QString& name)
{
    return name.isEmpty() || name == "Separator"_L1 || name == "ToolbarName"_L1;
}

bool has_name(const std::vector<CVqQuickControl*>& controls, const QString& name)
{
    return std::any_of(controls.begin(), controls.end(),
                       [&name](const CVqQuickControl* control) { return control->Name() == name; });
}

// The bar remembers the button touched last, which must not be asked for when it is out.
void forget_last_button(CVqQuickButtonToolbar& bar)
{
    bar.FindButton(nullptr);
}

}

std::vector<CVqQuickControl*> VqControlsOf(CVqQuickButtonToolbar& bar)
{
    std::vector<CVqQuickControl*> controls;
    CVqQuickToolbar& toolbar = bar.Toolbar();
    for (CVqList::CVqNode* node = toolbar.GetFirstNode(); node;)
        if (auto* control = dynamic_cast<CVqQuickControl*>(toolbar.GetNextControl(node)))
            controls.push_back(control);
    return controls;
}

bool VqHolds(CVqQuickButtonToolbar& bar, const CVqQuickControl* control)
{
    const auto controls = VqControlsOf(bar);
    return std::find(controls.begin(), controls.end(), control) != controls.end();
}

CVqQuickControl* VqNextOf(CVqQuickButtonToolbar& bar, const CVqQuickControl& control)
{
    const auto controls = VqControlsOf(bar);
    const auto at = std::find(controls.begin(), controls.end(), &control);
    return at == controls.end() || at + 1 == controls.end() ? nullptr : *(at + 1);
}

bool VqTakeOut(CVqQuickButtonToolbar& bar, CVqQuickControl& control)
{
    if (bar.Toolbar().RemoveControl(control) != 0)
        return false;
    forget_last_button(bar);
    return true;
}

bool VqPutIn(CVqQuickButtonToolbar& bar, CVqQuickControl& control, CVqQuickControl* before)
{
    vq_uint64 id = 0;
    CVqQuickToolbar& toolbar = bar.Toolbar();
    const int result
        = before ? toolbar.InsertControlBefore(*before, control, id) : toolbar.AddControl(control, id);
    return result == 0;
}

void VqRename(CVqQuickControl& control, const QString& name)
{
    if (control.Name() == name)
        return;
    CVqStringW text = CVqStringW::FromQString(name);
    control.Set(vq_control_name, 0, &text);
}

QString VqFreeName(CVqQuickButtonToolbar& bar, const QString& wanted)
{
    const auto controls = VqControlsOf(bar);
    const QString stem = wanted.isEmpty() ? u"Button"_s : wanted.left(g_name_room);
    QString name = stem;
    for (int number = 2; is_reserved(name) || has_name(controls, name); ++number)
        name = stem + QString::number(number);
    return name;
}
