#include "AbstractGui/CVqAbstractButtonToolbar.h"

// What the toolbar does by itself.

void CVqAbstractButtonToolbar::SetVisibility(bool visible)
{
    if (m_pToolbar)
        m_pToolbar->SetToolbarVisibility(visible);
}

bool CVqAbstractButtonToolbar::GetVisibility()
{
    return m_pToolbar && m_pToolbar->GetToolbarVisibility();
}

void CVqAbstractButtonToolbar::SetFlatStyle(bool flat)
{
    if (m_pToolbar)
        m_pToolbar->SetFlatStyle(flat);
}

void CVqAbstractButtonToolbar::SetBorders(const CVqRectBase<int>& borders)
{
    if (m_pToolbar)
        m_pToolbar->SetBorders(borders);
}

void CVqAbstractButtonToolbar::Enable3dBorders(unsigned mask)
{
    if (m_pToolbar)
        m_pToolbar->Enable3dBorders(mask);
}

void CVqAbstractButtonToolbar::EnableEnlargeToolbar(bool enable)
{
    if (m_pToolbar)
        m_pToolbar->EnableEnlargeToolbar(enable);
}

bool CVqAbstractButtonToolbar::IsToolbarEnlargeEnabled()
{
    return m_pToolbar ? m_pToolbar->IsToolbarEnlargeEnabled() : true;
}

void CVqAbstractButtonToolbar::SetAdditionalToolbarGuiZoom(double zoom)
{
    if (m_pToolbar)
        m_pToolbar->SetAdditionalToolbarGuiZoom(zoom);
}

double CVqAbstractButtonToolbar::GetAdditionalToolbarGuiZoom()
{
    return m_pToolbar ? m_pToolbar->GetAdditionalToolbarGuiZoom() : 1.0;
}

void CVqAbstractButtonToolbar::EnableToolbarDragDrop(bool enable)
{
    if (m_pToolbar)
        m_pToolbar->EnableToolbarDragDrop(enable);
}

bool CVqAbstractButtonToolbar::IsToolbarDragDropEnabled()
{
    return m_pToolbar && m_pToolbar->IsToolbarDragDropEnabled();
}

void CVqAbstractButtonToolbar::SetToolbarBackgroundColor(unsigned color, double alpha)
{
    if (m_pToolbar)
        m_pToolbar->SetToolbarBackgroundColor(color, alpha);
}

void CVqAbstractButtonToolbar::ChangeToolbarType(EToolbarType type, bool keep)
{
    m_eType = type;
    if (m_pToolbar)
        m_pToolbar->ChangeToolbarType(type, keep);
}

void CVqAbstractButtonToolbar::ChangeToolbarOrientation(EOrientation orientation)
{
    m_eOrientation = orientation;
    if (m_pToolbar)
        m_pToolbar->ChangeToolbarOrientation(orientation);
}
