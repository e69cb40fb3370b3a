#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "AbstractGui/VqControlCodes.h"
#include "system/CVqStringW.h"

namespace {

// The control that a factory gave, with its name; null stays null.
IVqUIcontrol* named(IVqUIcontrol* control, const vq_wchar* name)
{
    CVqStringW text(name);
    if (control)
        control->Set(vq_control_name, 0, &text);
    return control;
}

IVqUIcontrol* named_separator(IVqUIcontrol* separator, const vq_wchar* name)
{
    return VqLength(name) > 0 ? named(separator, name) : separator;
}

constexpr auto g_before = &CVqAbstractToolbar::InsertControlBefore;
constexpr auto g_after = &CVqAbstractToolbar::InsertControlAfter;

}

void CVqAbstractButtonToolbar::clear_cache()
{
    m_uiCachedId = 0;
    m_pCachedControl = nullptr;
}

vq_uint64 CVqAbstractButtonToolbar::remember(vq_uint64 id, IVqUIcontrol* control)
{
    m_uiCachedId = id;
    m_pCachedControl = control;
    return id;
}

// False without a toolbar.
bool CVqAbstractButtonToolbar::begin_change()
{
    m_bSeparatorsDirty = true;
    clear_cache();
    return m_pToolbar != nullptr;
}

// The control beside which another is to stand, or null.
IVqUIcontrol* CVqAbstractButtonToolbar::begin_insertion(vq_uint64 anchor)
{
    return begin_change() ? ControlFromId(anchor) : nullptr;
}

vq_uint64 CVqAbstractButtonToolbar::add_control(IVqUIcontrol* control)
{
    if (!control)
        return 0;
    vq_uint64 id = 0;
    m_pToolbar->AddControl(*control, id);
    return remember(id, control);
}

vq_uint64 CVqAbstractButtonToolbar::insert_control(const IVqUIcontrol& anchor, IVqUIcontrol* control,
                                                   inserter_type insert)
{
    if (!control)
        return 0;
    vq_uint64 id = 0;
    (m_pToolbar->*insert)(anchor, *control, id);
    return remember(id, control);
}

vq_uint64 CVqAbstractButtonToolbar::AddButton(const vq_wchar* name)
{
    return begin_change() ? add_control(named(CreateControlButton(true), name)) : 0;
}

vq_uint64 CVqAbstractButtonToolbar::InsertButtonBefore(vq_uint64 anchor, const vq_wchar* name)
{
    const IVqUIcontrol* beside = begin_insertion(anchor);
    return beside ? insert_control(*beside, named(CreateControlButton(true), name), g_before) : 0;
}

vq_uint64 CVqAbstractButtonToolbar::InsertButtonAfter(vq_uint64 anchor, const vq_wchar* name)
{
    const IVqUIcontrol* beside = begin_insertion(anchor);
    return beside ? insert_control(*beside, named(CreateControlButton(true), name), g_after) : 0;
}

vq_uint64 CVqAbstractButtonToolbar::AddTextButton(const vq_wchar* name)
{
    return begin_change() ? add_control(named(CreateTextButton(), name)) : 0;
}

vq_uint64 CVqAbstractButtonToolbar::InsertTextButtonBefore(vq_uint64 anchor, const vq_wchar* name)
{
    const IVqUIcontrol* beside = begin_insertion(anchor);
    return beside ? insert_control(*beside, named(CreateTextButton(), name), g_before) : 0;
}

vq_uint64 CVqAbstractButtonToolbar::InsertTextButtonAfter(vq_uint64 anchor, const vq_wchar* name)
{
    const IVqUIcontrol* beside = begin_insertion(anchor);
    return beside ? insert_control(*beside, named(CreateTextButton(), name), g_after) : 0;
}

vq_uint64 CVqAbstractButtonToolbar::AppendSeparator(const vq_wchar* name)
{
    return begin_change() ? add_control(named_separator(CreateSeparator(), name)) : 0;
}

vq_uint64 CVqAbstractButtonToolbar::InsertSeparatorBefore(vq_uint64 anchor, const vq_wchar* name)
{
    const IVqUIcontrol* beside = begin_insertion(anchor);
    return beside ? insert_control(*beside, named_separator(CreateSeparator(), name), g_before) : 0;
}

vq_uint64 CVqAbstractButtonToolbar::InsertSeparatorAfter(vq_uint64 anchor, const vq_wchar* name)
{
    const IVqUIcontrol* beside = begin_insertion(anchor);
    return beside ? insert_control(*beside, named_separator(CreateSeparator(), name), g_after) : 0;
}

vq_uint64 CVqAbstractButtonToolbar::AddGeneralControl(IVqUIcontrol* control, const vq_wchar* name)
{
    return begin_change() ? add_control(named(control, name)) : 0;
}

vq_uint64 CVqAbstractButtonToolbar::InsertGeneralControlBefore(vq_uint64 anchor, IVqUIcontrol* control,
                                                               const vq_wchar* name)
{
    const IVqUIcontrol* beside = begin_insertion(anchor);
    return beside ? insert_control(*beside, named(control, name), g_before) : 0;
}

vq_uint64 CVqAbstractButtonToolbar::InsertGeneralControlAfter(vq_uint64 anchor, IVqUIcontrol* control,
                                                              const vq_wchar* name)
{
    const IVqUIcontrol* beside = begin_insertion(anchor);
    return beside ? insert_control(*beside, named(control, name), g_after) : 0;
}
