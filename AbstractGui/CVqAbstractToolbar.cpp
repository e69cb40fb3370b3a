#include "AbstractGui/CVqAbstractToolbar.h"

#include "AbstractGui/CVqAbstractControl.h"
#include "AbstractGui/VqControlCodes.h"
#include "AbstractGui/VqControlList.h"

#include <QColor>

#include <memory>

namespace {

constexpr unsigned g_all_borders = 15;
constexpr unsigned g_drag_active = 8;
constexpr int g_picker_type = 3;

}

CVqAbstractToolbar::CVqAbstractToolbar() = default;
CVqAbstractToolbar::CVqAbstractToolbar(const CVqAbstractToolbar& other) = default;
CVqAbstractToolbar& CVqAbstractToolbar::operator=(const CVqAbstractToolbar& other) = default;
CVqAbstractToolbar::~CVqAbstractToolbar() = default;

vq_uint64 CVqAbstractToolbar::CreateUI(vq_uint64 parent, EToolbarType type, const vq_wchar* name)
{
    // An earlier list would be lost, but for type InPicker it may be another toolbar's.
    if (m_pControls && type != EToolbarType::InPicker)
        CVqAbstractToolbar::DestroyUI();
    m_eType = type;
    if (type == EToolbarType::Hosted || type == EToolbarType::InPicker) {
        m_ui3dBorders = g_all_borders;
        m_hHost = parent;
    }
    if (name)
        m_strName = name;
    m_hWindow = 0;
    if (type != EToolbarType::InPicker) {
        m_pControls = new CVqList(EVqKeyType::Pointer);
        m_pControlIds = new id_map_type;
    }
    if (type == EToolbarType::Main)
        add_picker(name);
    return m_hWindow;
}

// A picker that does not create itself is of no use, and nobody else knows of it.
void CVqAbstractToolbar::add_picker(const vq_wchar* name)
{
    std::unique_ptr<IVqUIcontrol> picker(CreateToolbarPicker(name));
    if (!picker || picker->CreateUI(m_hWindow) == 0)
        return;
    picker->Set(vq_picker_list, 0, m_pControls);
    picker->Set(vq_picker_map, 0, m_pControlIds);
    picker->SetOrientation(m_eOrientation);
    picker->SetFlatStyle(m_bFlatStyle);
    VqHoldControl(*m_pControls, *picker);
    m_pBoundary = m_pControls->Append(picker.release());
}

void CVqAbstractToolbar::DestroyUI()
{
    if (m_eType != EToolbarType::InPicker && m_pControls) {
        m_pBoundary = nullptr;
        delete_controls();
        delete m_pControls;
        delete m_pControlIds;
        m_pControls = nullptr;
        m_pControlIds = nullptr;
    }
    m_hWindow = 0;
    m_hHost = 0;
}

void CVqAbstractToolbar::delete_controls()
{
    while (CVqList::CVqNode* node = m_pControls->GetFirst()) {
        IVqUIcontrol* control = VqControlAt(*m_pControls, node);
        if (control)
            control->DestroyUI();
        VqReleaseControl(*m_pControls, control);
        m_pControls->DeleteNode(node);
        delete control;
    }
}

int CVqAbstractToolbar::SetCallback(callback_type callback, void* data)
{
    m_pCallback = callback;
    m_pCallbackData = data;
    if (m_eType == EToolbarType::Main && picker())
        picker()->Set(vq_picker_callback, reinterpret_cast<vq_int64>(data),
                      reinterpret_cast<void*>(callback));
    return 0;
}

int CVqAbstractToolbar::GetOrientation(EOrientation& orientation)
{
    orientation = m_eOrientation;
    return 0;
}

void CVqAbstractToolbar::SetToolbarVisibility(bool visible)
{
    m_bVisible = visible;
}

bool CVqAbstractToolbar::GetToolbarVisibility()
{
    return m_bVisible;
}

void CVqAbstractToolbar::SetBorders(const CVqRectBase<int>& borders)
{
    m_borders = borders;
}

void CVqAbstractToolbar::GetBorders(CVqRectBase<int>& borders)
{
    borders = m_borders;
}

void CVqAbstractToolbar::Enable3dBorders(unsigned mask)
{
    m_ui3dBorders = mask;
}

void CVqAbstractToolbar::EnableToolbarDragDrop(bool enable)
{
    m_bDragDropEnabled = enable;
    m_uiDragMode = enable ? g_drag_active : 0;
}

bool CVqAbstractToolbar::IsToolbarDragDropEnabled()
{
    return m_bDragDropEnabled;
}

void CVqAbstractToolbar::ChangeToolbarType(EToolbarType type, bool keep)
{
    m_eType = type;
    if (m_bDragDropEnabled)
        m_uiDragMode = type == EToolbarType::Fixed && !keep ? 0 : g_drag_active;
}

void CVqAbstractToolbar::EnableEnlargeToolbar(bool enable)
{
    m_bEnlargeEnabled = enable;
}

bool CVqAbstractToolbar::IsToolbarEnlargeEnabled()
{
    return m_bEnlargeEnabled;
}

void CVqAbstractToolbar::SetAdditionalToolbarGuiZoom(double zoom)
{
    m_dZoom = zoom;
}

double CVqAbstractToolbar::GetAdditionalToolbarGuiZoom()
{
    return m_dZoom;
}

IVqUIcontrol* CVqAbstractToolbar::CreateToolbarPicker(const vq_wchar*)
{
    return new CVqAbstractControl(g_picker_type);
}

void CVqAbstractToolbar::SetToolbarBackgroundColor(unsigned color, double alpha)
{
    m_uiBackground = color;
    if (color == NoColor)
        return;
    QColor shade;
    shade.setRgb(color);
    shade.setAlphaF(static_cast<float>(alpha));
    m_uiBackground = shade.rgba();
}
