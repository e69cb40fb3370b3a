#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "AbstractGui/CVqSeparatorPass.h"

int CVqAbstractButtonToolbar::UpdateSeparators(bool defer)
{
    if (defer)
        m_bSeparatorsDirty = true;
    if (defer || !m_pToolbar)
        return 0;
    CVqSeparatorPass pass(m_pToolbar->IsToolbarDragDropEnabled());
    for (CVqList::CVqNode* node = m_pToolbar->GetFirstNode(); node;)
        if (IVqUIcontrol* control = m_pToolbar->GetNextControl(node))
            pass.Meet(*control, control->GetControlVisibility() && !is_listed_as_hidden(*control));
    pass.End();
    return 0;
}
