#pragma once

#include "AbstractGui/IVqUIcontrol.h"
#include "AbstractGui/VqControlCodes.h"

/// Walks over the controls of a toolbar from left to right and shows and hides its separators. For toolbars
/// of buttons, each of which knows best which of its buttons are shown.
class CVqSeparatorPass
{
public:
    explicit CVqSeparatorPass(bool hidesLeading) : m_eState(hidesLeading ? NothingToDivide : Start) { }

    /// `isShown` is not looked at for a separator.
    void Meet(IVqUIcontrol& control, bool isShown)
    {
        if (Answer(control, vq_control_separator) != 0)
            MeetSeparator(control);
        else
            MeetButton(isShown);
    }

    /// A separator that was visible before stays so at the end.
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

    static int Answer(IVqUIcontrol& control, unsigned code)
    {
        int value = 0;
        control.Get(code, 0, &value);
        return value;
    }

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

    void Show(IVqUIcontrol& separator)
    {
        if (!separator.GetControlVisibility() && Answer(separator, vq_control_stays_last) == 0)
            m_pTrailing = &separator;
        separator.SetControlVisibility(true);
    }

    State m_eState;
    IVqUIcontrol* m_pTrailing = nullptr; // shown by this pass, with no shown button behind it so far
};
