#include "quick_backend/toolbar/CVqQuickToolbar.h"

#include "AbstractGui/VqControlCodes.h"
#include "quick_backend/toolbar/CVqQuickPicker.h"
#include "quick_backend/toolbar/CVqQuickToolbarArea.h"
#include "quick_backend/toolbar/SVqUiEvent.h"
#include "quick_backend/toolbar/VqItemOf.h"

CVqQuickToolbar::CVqQuickToolbar() = default;

CVqQuickToolbar::~CVqQuickToolbar()
{
    CVqQuickToolbar::DestroyUI();
}

CVqQuickToolbarArea* CVqQuickToolbar::Area() const
{
    return m_area;
}

CVqQuickPicker* CVqQuickToolbar::Picker() const
{
    return m_picker;
}

void CVqQuickToolbar::RequestLayout()
{
    m_bLayoutDirty = true;
    if (m_area)
        m_area->polish();
}

// Life -------------------------------------------------------------------------------------------------

vq_uint64 CVqQuickToolbar::CreateUI(vq_uint64 parent, EToolbarType type, const vq_wchar* name)
{
    CVqQuickToolbar::DestroyUI();
    CVqAbstractToolbar::CreateUI(parent, type, name);
    m_area = new CVqQuickToolbarArea([this] { Layout(); }, [this] { return reading_order(); },
                                     type == EToolbarType::InPicker);
    m_area->setParentItem(VqItemOf(parent));
    m_area->setVisible(m_bVisible);
    m_hWindow = reinterpret_cast<vq_uint64>(m_area.data());
    if (m_picker)
        connect_picker();
    refresh_appearance();
    RequestLayout();
    return m_hWindow;
}

// The picker was made before there was an area.
void CVqQuickToolbar::connect_picker()
{
    m_picker->SetOwner(this);
    m_picker->SetControlVisibility(false);
    m_picker->Item()->setParentItem(m_area);
    vq_int32 enlarge = m_bEnlargeEnabled ? 1 : 0;
    m_picker->Set(vq_control_enlarge, 0, &enlarge);
    m_picker->Set(vq_control_zoom, 0, &m_dZoom);
    CVqQuickToolbarArea* popup = m_picker->Area();
    QObject::connect(m_area, &CVqQuickToolbarArea::looksChanged, popup,
                     [this, popup] { popup->SetLooks(m_area->Looks()); });
    QObject::connect(m_area, &CVqQuickToolbarArea::mirroredChanged, popup, [this, popup] {
        popup->SetMirrored(m_area->IsMirrored());
        m_picker->Popup().RequestLayout();
    });
}

QList<CVqQuickControl*> CVqQuickToolbar::reading_order() const
{
    if (!m_pControls)
        return {};
    const bool is_popup = m_eType == EToolbarType::InPicker;
    QList<CVqQuickControl*> order;
    const CVqList::CVqNode* node = is_popup ? m_pBoundary : m_pControls->GetFirst();
    const CVqList::CVqNode* end = is_popup ? picker_node() : m_pBoundary;
    for (; node && node != end; node = node->GetNext()) {
        auto* control = dynamic_cast<CVqQuickControl*>(control_of(node));
        if (control && control->IsShown())
            order << control;
    }
    if (m_picker && m_picker->IsShown())
        order << m_picker;
    return order;
}

// Controls are about to go, and what ends with them may ask the popup.
void CVqQuickToolbar::empty_popup()
{
    if (m_picker)
        m_picker->Set(vq_picker_boundary, 0, nullptr);
}

void CVqQuickToolbar::DestroyUI()
{
    empty_popup();
    m_picker = nullptr;
    CVqAbstractToolbar::DestroyUI();
    if (m_eType == EToolbarType::InPicker) {
        m_pControls = nullptr;
        m_pControlIds = nullptr;
        m_pBoundary = nullptr;
    }
    m_slots.clear();
    delete m_area;
}

IVqUIcontrol* CVqQuickToolbar::CreateToolbarPicker(const vq_wchar*)
{
    m_picker = new CVqQuickPicker;
    return m_picker;
}

void CVqQuickToolbar::ShareList(CVqList* controls)
{
    m_pControls = controls;
    m_pBoundary = nullptr;
}

void CVqQuickToolbar::ShareBoundary(CVqList::CVqNode* boundary)
{
    m_pBoundary = boundary;
    RequestLayout();
}

// Controls ---------------------------------------------------------------------------------------------

int CVqQuickToolbar::adopt(int result, IVqUIcontrol& control)
{
    if (result != 0)
        return result;
    if (auto* quick = dynamic_cast<CVqQuickControl*>(&control))
        quick->SetOwner(this);
    RequestLayout();
    return 0;
}

int CVqQuickToolbar::AddControl(IVqUIcontrol& control, vq_uint64& id)
{
    return adopt(CVqAbstractToolbar::AddControl(control, id), control);
}

int CVqQuickToolbar::InsertControlBefore(const IVqUIcontrol& anchor, IVqUIcontrol& control, vq_uint64& id)
{
    return adopt(CVqAbstractToolbar::InsertControlBefore(anchor, control, id), control);
}

int CVqQuickToolbar::InsertControlAfter(const IVqUIcontrol& anchor, IVqUIcontrol& control, vq_uint64& id)
{
    return adopt(CVqAbstractToolbar::InsertControlAfter(anchor, control, id), control);
}

int CVqQuickToolbar::RemoveControl(IVqUIcontrol& control)
{
    if (&control == m_picker) {
        take_all_out();
        m_picker = nullptr;
    }
    const int result = CVqAbstractToolbar::RemoveControl(control);
    if (result != 0 || m_eType == EToolbarType::InPicker)
        return result;
    if (auto* quick = dynamic_cast<CVqQuickControl*>(&control)) {
        quick->SetOwner(nullptr);
        quick->SetInPicker(false);
    }
    RequestLayout();
    return result;
}

int CVqQuickToolbar::RemoveAllControls()
{
    empty_popup();
    const int result = CVqAbstractToolbar::RemoveAllControls();
    RequestLayout();
    return result;
}

// A control that is told while it is laid out was told by the layout itself.
void CVqQuickToolbar::ControlChanged(CVqQuickControl&)
{
    if (!m_laying_out)
        RequestLayout();
}

void CVqQuickToolbar::ControlEvent(CVqQuickControl& control, SVqUiEvent& event)
{
    const EventFunction function = m_event;
    const QPointer<CVqQuickControl> alive(&control);
    if ((m_pCallback && m_pCallback(&control, event)) || !alive)
        return;
    if (function)
        function(control, event);
}

// State ------------------------------------------------------------------------------------------------

void CVqQuickToolbar::tell_all(unsigned code, void* data)
{
    if (!m_pControls || m_eType == EToolbarType::InPicker)
        return;
    for (const CVqList::CVqNode* node = m_pControls->GetFirst(); node; node = node->GetNext())
        if (IVqUIcontrol* control = control_of(node))
            control->Set(code, 0, data);
    RequestLayout();
}

void CVqQuickToolbar::EnableEnlargeToolbar(bool enable)
{
    CVqAbstractToolbar::EnableEnlargeToolbar(enable);
    vq_int32 value = enable ? 1 : 0;
    tell_all(vq_control_enlarge, &value);
}

void CVqQuickToolbar::SetAdditionalToolbarGuiZoom(double zoom)
{
    CVqAbstractToolbar::SetAdditionalToolbarGuiZoom(zoom);
    tell_all(vq_control_zoom, &zoom);
}

// The abstract toolbar skips what lies in the picker.
int CVqQuickToolbar::SetOrientation(EOrientation orientation)
{
    take_all_out();
    const int result = CVqAbstractToolbar::SetOrientation(orientation);
    refresh_appearance();
    RequestLayout();
    return result;
}

// A control that Qt Quick does not draw tells nobody.
int CVqQuickToolbar::SetToolbarControlVisibility(const IVqUIcontrol& control, bool visible)
{
    const int result = CVqAbstractToolbar::SetToolbarControlVisibility(control, visible);
    if (m_bLayoutDirty)
        RequestLayout();
    return result;
}

int CVqQuickToolbar::ChangeToolbarOrientation(EOrientation orientation)
{
    const int result = CVqAbstractToolbar::ChangeToolbarOrientation(orientation);
    refresh_appearance();
    RequestLayout();
    return result;
}

void CVqQuickToolbar::SetToolbarVisibility(bool visible)
{
    CVqAbstractToolbar::SetToolbarVisibility(visible);
    if (m_area)
        m_area->setVisible(visible);
}

void CVqQuickToolbar::SetBorders(const CVqRectBase<int>& borders)
{
    CVqAbstractToolbar::SetBorders(borders);
    RequestLayout();
}

void CVqQuickToolbar::EnableToolbarDragDrop(bool enable)
{
    CVqAbstractToolbar::EnableToolbarDragDrop(enable);
    refresh_appearance();
}

void CVqQuickToolbar::ChangeToolbarType(EToolbarType type, bool keep)
{
    CVqAbstractToolbar::ChangeToolbarType(type, keep);
    refresh_appearance();
    RequestLayout();
}

void CVqQuickToolbar::SetToolbarBackgroundColor(unsigned color, double alpha)
{
    CVqAbstractToolbar::SetToolbarBackgroundColor(color, alpha);
    refresh_appearance();
}

void CVqQuickToolbar::refresh_appearance()
{
    if (!m_area)
        return;
    const bool is_vertical = m_eOrientation != EOrientation::Horizontal;
    const QColor background = m_uiBackground == NoColor ? QColor() : QColor::fromRgba(m_uiBackground);
    m_area->SetAppearance(is_vertical, background, m_uiDragMode != 0);
    if (!m_picker || !m_picker->Area())
        return;
    m_picker->Area()->SetAppearance(is_vertical, background, m_uiDragMode != 0);
    m_picker->Popup().m_eOrientation = m_eOrientation;
}
