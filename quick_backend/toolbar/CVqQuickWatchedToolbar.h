#pragma once

#include "quick_backend/toolbar/CVqQuickToolbar.h"

/// A toolbar that tells which controls come and go, whoever adds and removes them.
///
/// Only controls of Qt Quick are told of, and the picker is not. Both functions may be empty; a control that
/// goes is still whole.
class CVqQuickWatchedToolbar final : public CVqQuickToolbar
{
public:
    using ControlFunction = std::function<void(CVqQuickControl&)>;

    /// What is there already is not told of.
    void SetControlFunctions(ControlFunction came, ControlFunction gone);

    vq_uint64 CreateUI(vq_uint64 parent, EToolbarType type, const vq_wchar* name) override;
    void DestroyUI() override;
    int AddControl(IVqUIcontrol& control, vq_uint64& id) override;
    int InsertControlBefore(const IVqUIcontrol& anchor, IVqUIcontrol& control, vq_uint64& id) override;
    int InsertControlAfter(const IVqUIcontrol& anchor, IVqUIcontrol& control, vq_uint64& id) override;
    int RemoveControl(IVqUIcontrol& control) override;
    int RemoveAllControls() override;

private:
    int tell(int result, IVqUIcontrol& control, const ControlFunction& function);
    void tell_all_gone();

    ControlFunction m_came;
    ControlFunction m_gone;
};
