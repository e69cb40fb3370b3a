#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "AbstractGui/VqControlCodes.h"
#include "AbstractGui/VqControlList.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqLiteVariantW.h"
#include "system/CVqStringW.h"
#include "system/CVqVariant.h"

#include <algorithm>

namespace {

constexpr int g_failed = -9;
constexpr int g_name_room = 255; // units of a stored name that are looked at, with the terminator
constexpr int g_prefix = 3;      // units in front of a name in a tree: a letter and two digits

constexpr vq_wchar g_wrapper[] = VQ_TEXT("CVqAbstractButtonToolbar"); // in the lightweight form only
constexpr vq_wchar g_separator[] = VQ_TEXT("Separator");
constexpr vq_wchar g_toolbar_name[] = VQ_TEXT("ToolbarName"); // in a tree only

void save_control(IVqUIcontrol& control, CVqLiteVariantW& out)
{
    if (!VqIsSeparator(control))
        control.Save(out);
    else if (out.LevelBegin(g_separator) == 0)
        out.LevelEnd();
}

// The child as it is stored.
CVqVariant& append(CVqVariant& out, const CVqVariant& child)
{
    const bool could_change_type = out.EnableTypeChange(true);
    CVqVariant& stored = out.Append(child);
    out.EnableTypeChange(could_change_type);
    return stored;
}

void save_control(IVqUIcontrol& control, unsigned index, CVqVariant& out)
{
    CVqVariant& record = append(out, CVqVariant());
    CVqStringW name;
    control.Save(record);
    if (VqIsSeparator(control)) {
        append(record, CVqVariant(g_separator, g_separator));
        name.Format(VQ_TEXT("a%.2u"), index);
    } else {
        name.Format(VQ_TEXT("a%.2u%s"), index, record.GetName().GetString());
    }
    record.SetName(name);
}

// False when the toolbar refuses a button that was read.
bool add(CVqAbstractToolbar& toolbar, IVqUIcontrol& button)
{
    vq_uint64 id = 0;
    return toolbar.AddControl(button, id) == 0;
}

template <class Work>
void each_control(CVqAbstractToolbar* toolbar, Work work)
{
    for (CVqList::CVqNode* node = toolbar ? toolbar->GetFirstNode() : nullptr; node;)
        if (IVqUIcontrol* control = toolbar->GetNextControl(node))
            work(*control);
}

}

int CVqAbstractButtonToolbar::Save(CVqLiteVariantR& out)
{
    CVqLiteVariantW writer;
    if (writer.LevelBegin(g_wrapper) == 0) {
        each_control(m_pToolbar, [&writer](IVqUIcontrol& control) { save_control(control, writer); });
        writer.LevelEnd();
    }
    writer.Finalize(out, 0);
    return 0;
}

void CVqAbstractButtonToolbar::Save(CVqVariant& out, const vq_wchar* name)
{
    if (!m_pToolbar)
        return;
    if (VqLength(name) > 0)
        append(out, CVqVariant(name, g_toolbar_name));
    unsigned index = 0;
    each_control(m_pToolbar, [&](IVqUIcontrol& control) { save_control(control, index++, out); });
}

int CVqAbstractButtonToolbar::Load(CVqLiteVariantR& in)
{
    if (!begin_change())
        return 0;
    m_pToolbar->RemoveAllControls();
    int count = 0;
    if (in.CurrentLevelBegin(&count) != 0)
        return 0;
    int result = 0;
    for (; count > 0; --count) {
        result = std::min(result, load_entry(in));
        if (in.IsNextValue())
            in.NextValue();
    }
    in.LevelEnd();
    return result;
}

// The entry under the cursor. 0, or -9 when it is a button that could not be read in full.
int CVqAbstractButtonToolbar::load_entry(CVqLiteVariantR& in)
{
    vq_wchar name[g_name_room] = {};
    in.GetCurrentName(name, g_name_room);
    if (in.CurrentLevelBegin() != 0)
        return 0;
    int result = 0;
    if (VqLength(name) == 0 || VqEquals(name, g_separator))
        AppendSeparator(nullptr);
    else
        result = load_button(in, name);
    in.LevelEnd();
    return result;
}

// A button that could not be read keeps its name at least.
int CVqAbstractButtonToolbar::load_button(CVqLiteVariantR& in, const vq_wchar* name)
{
    IVqUIcontrol* button = CreateControlButton(true);
    if (!button)
        return 0;
    const bool is_read = button->Load(in) == 0;
    const bool is_added = add(*m_pToolbar, *button);
    CVqStringW text(name);
    if (!is_read)
        button->Set(vq_control_name, 0, &text);
    if (!is_added)
        button->MarkToDeleteItself(); // nobody else knows of it
    return is_read ? 0 : g_failed;
}

int CVqAbstractButtonToolbar::Load(CVqVariant& in, CVqStringW* name)
{
    if (!begin_change())
        return 0;
    CVqVariant records(in); // `in` may lie in what the controls own
    m_pToolbar->RemoveAllControls();
    int result = 0;
    for (int i = 0; i < records.GetCount(); ++i) {
        CVqVariant& record = *records.IndexPtr(i);
        if (record.GetName() != g_toolbar_name)
            result = std::min(result, load_entry(record));
        else if (name)
            *name = record.GetCVqStringW(nullptr);
    }
    return result;
}

// A record of a tree, whose name is cut down to that of the control.
int CVqAbstractButtonToolbar::load_entry(CVqVariant& record)
{
    const CVqStringW name = record.GetName().Mid(g_prefix, -1);
    if (name.IsEmpty()) {
        AppendSeparator(nullptr);
        return 0;
    }
    IVqUIcontrol* button = CreateControlButton(true);
    if (!button)
        return 0;
    record.SetName(name);
    const bool is_read = button->Load(record) == 0;
    if (!add(*m_pToolbar, *button))
        button->MarkToDeleteItself(); // nobody else knows of it
    return is_read ? 0 : g_failed;
}
