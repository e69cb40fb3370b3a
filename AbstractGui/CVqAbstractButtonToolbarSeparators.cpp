#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "AbstractGui/VqControlCodes.h"

namespace {

int answer(IVqUIcontrol& control, unsigned code)
{
    int value = 0;
    control.Get(code, 0, &value);
    return value;
}

/// Walks over the controls of a toolbar from left to right and shows and hides its separators.
class CVqSeparatorPass
{
public:
    explicit CVqSeparatorPass(bool hidesLeading) : m_eState(hidesLeading ? NothingToDivide : Start) { }

    void MeetSeparator(IVqUIcontrol& separator)
    {
        if (m_eState == NothingToDivide)
            separator.SetControlVisibility(false);
        if (m_eState == BehindButton)
            Show(separator);
        if (separator.GetControlVisibility())
            m_eState = NothingToDivide;
    }

    void MeetButton(bool isShown)
    {
        if (isShown) {
            m_pTrailing = nullptr;
            m_eState = BehindButton;
        } else if (m_eState == Start) {
            m_eState = NothingToDivide;
        }
    }

    // A separator that was visible before stays so at the end.
    void End()
    {
        if (m_pTrailing)
            m_pTrailing->SetControlVisibility(false);
    }

private:
    enum State
    {
        Start,           // a separator here keeps its visibility
        NothingToDivide, // behind a shown separator, or where no button was shown yet
        BehindButton
    };

    void Show(IVqUIcontrol& separator)
    {
        if (!separator.GetControlVisibility() && answer(separator, vq_control_stays_last) == 0)
            m_pTrailing = &separator;
        separator.SetControlVisibility(true);
    }

    State m_eState;
    IVqUIcontrol* m_pTrailing = nullptr; // shown by this pass, with no shown button behind it so far
};

}

int CVqAbstractButtonToolbar::UpdateSeparators(bool defer)
{
    if (defer)
        m_bSeparatorsDirty = true;
    if (defer || !m_pToolbar)
        return 0;
    CVqSeparatorPass pass(m_pToolbar->IsToolbarDragDropEnabled());
    for (CVqList::CVqNode* node = m_pToolbar->GetFirstNode(); node;) {
        IVqUIcontrol* control = m_pToolbar->GetNextControl(node);
        if (!control)
            continue;
        if (answer(*control, vq_control_separator) != 0)
            pass.MeetSeparator(*control);
        else
            pass.MeetButton(control->GetControlVisibility() && !is_listed_as_hidden(*control));
    }
    pass.End();
    return 0;
}
