#pragma once

class CVqQuickControl;
struct SVqUiEvent;

/// Who holds a control of Qt Quick and lays it out.
class IVqQuickControlOwner
{
public:
    /// Whether it is shown or the size that it wants may be another now. May be called many times before a
    /// frame.
    virtual void ControlChanged(CVqQuickControl& control) = 0;

    /// Something happened to a control whose own handler did not take it. May delete the control.
    virtual void ControlEvent(CVqQuickControl& control, SVqUiEvent& event) = 0;

protected:
    ~IVqQuickControlOwner() = default;
};
