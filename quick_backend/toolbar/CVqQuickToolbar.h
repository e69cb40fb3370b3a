#pragma once

#include "AbstractGui/CVqAbstractToolbar.h"
#include "arbor_quick_backend_export.h"
#include "quick_backend/toolbar/IVqQuickControlOwner.h"

#include <QList>
#include <QPointer>

#include <functional>
#include <vector>

class CVqQuickControl;
class CVqQuickPicker;
class CVqQuickToolbarArea;

/// A toolbar that Qt Quick draws: an area in the scene, in which the controls lie, and the layout pass.
///
/// CreateUI() makes the area and hangs it below the item whose address it gets as `parent`, or nowhere for 0;
/// the window handle is the address of the area. Whatever changes, the area asks for one layout before the
/// next frame; Layout() does it at once.
///
/// What shows depends on the length alone, never on the way there: either everything fits, or as many from
/// the front as leave room for the picker, which stands at the far end. Controls stand one pixel apart,
/// within the borders; a hidden one takes no room. The picker's popup shows the others in lines, upright ones
/// in an upright toolbar. Mirrored, all of it, borders too, lies the other way round.
///
/// Controls that Qt Quick does not draw may stand in the list; they are placed with SetControlPos() alone.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickToolbar : public CVqAbstractToolbar, private IVqQuickControlOwner
{
public:
    /// What happened to a control of this toolbar, or of its picker, that its handler and the callback of the
    /// toolbar did not take.
    using EventFunction = std::function<void(CVqQuickControl&, SVqUiEvent&)>;

    CVqQuickToolbar();

    /// Ends the toolbar as DestroyUI() does.
    ~CVqQuickToolbar() override;

    CVqQuickToolbar(const CVqQuickToolbar&) = delete;
    CVqQuickToolbar& operator=(const CVqQuickToolbar&) = delete;

    /// Where its controls lie, from CreateUI() to DestroyUI(); null else.
    CVqQuickToolbarArea* Area() const;

    /// The picker, or null. Owned by the toolbar.
    CVqQuickPicker* Picker() const;

    /// Who hears of events; may be empty.
    void SetEventFunction(EventFunction function) { m_event = std::move(function); }

    /// Called first in each layout pass, to tidy separators; may be empty. May show and hide controls.
    void SetTidyFunction(std::function<void()> function) { m_tidy = std::move(function); }

    /// Lays out within the area's size.
    void Layout();

    /// The layout is to be done before the next frame.
    void RequestLayout();

    /// The length, in logical pixels along the main axis with borders, that shows every control, and the
    /// breadth across it.
    CVqSizeBase<int> FullSize() const;

    // Type InPicker: it shows what lies behind the boundary of a main toolbar -----------------------------

    /// Take over what is shared, or null.
    void ShareList(CVqList* controls);
    void ShareMap(id_map_type* ids) { m_pControlIds = ids; }
    void ShareBoundary(CVqList::CVqNode* boundary);

    // CVqAbstractToolbar ---------------------------------------------------------------------------------

    vq_uint64 CreateUI(vq_uint64 parent, EToolbarType type, const vq_wchar* name) override;
    void DestroyUI() override;
    int AddControl(IVqUIcontrol& control, vq_uint64& id) override;
    int InsertControlBefore(const IVqUIcontrol& anchor, IVqUIcontrol& control, vq_uint64& id) override;
    int InsertControlAfter(const IVqUIcontrol& anchor, IVqUIcontrol& control, vq_uint64& id) override;
    int RemoveControl(IVqUIcontrol& control) override;
    int RemoveAllControls() override;
    int SetOrientation(EOrientation orientation) override;
    int SetToolbarControlVisibility(const IVqUIcontrol& control, bool visible) override;

    /// Shows and hides the area.
    void SetToolbarVisibility(bool visible) override;
    void SetBorders(const CVqRectBase<int>& borders) override;
    void EnableToolbarDragDrop(bool enable) override;
    void ChangeToolbarType(EToolbarType type, bool keep) override;
    int ChangeToolbarOrientation(EOrientation orientation) override;

    /// Both tell the controls that are there, too.
    void EnableEnlargeToolbar(bool enable) override;
    void SetAdditionalToolbarGuiZoom(double zoom) override;
    IVqUIcontrol* CreateToolbarPicker(const vq_wchar* name) override;
    void SetToolbarBackgroundColor(unsigned color, double alpha) override;

private:
    /// A control as it was measured, with a size of axes: the width runs along the main axis.
    struct SSlot
    {
        CVqList::CVqNode* m_node = nullptr;
        IVqUIcontrol* m_control = nullptr;
        CVqQuickControl* m_quick = nullptr; ///< The same; null when Qt Quick does not draw it.
        bool m_shown = false;
        CVqSizeBase<int> m_size{}; ///< 0 by 0 where it is not shown.
        bool m_separator = false;
        int m_far_edge = 0; ///< Of what is shown up to here, from the end of the border.

        bool operator==(const SSlot&) const = default;
    };
    using Slots = std::vector<SSlot>;
    struct SPlace;

    void ControlChanged(CVqQuickControl& control) override;
    void ControlEvent(CVqQuickControl& control, SVqUiEvent& event) override;

    IVqUIcontrol* control_of(const CVqList::CVqNode* node) const
    {
        return static_cast<IVqUIcontrol*>(m_pControls->GetData(node));
    }
    bool IsHorizontal() const { return m_eOrientation == EOrientation::Horizontal; }
    ARBOR_QUICK_BACKEND_NO_EXPORT int adopt(int result, IVqUIcontrol& control);
    ARBOR_QUICK_BACKEND_NO_EXPORT CVqSizeBase<int> swapped(CVqSizeBase<int> size) const;
    ARBOR_QUICK_BACKEND_NO_EXPORT CVqRectBase<int> axes_of_borders() const;
    ARBOR_QUICK_BACKEND_NO_EXPORT CVqSizeBase<int> axes_of(IVqUIcontrol& control) const;
    ARBOR_QUICK_BACKEND_NO_EXPORT Slots measure(CVqList::CVqNode* first) const;
    ARBOR_QUICK_BACKEND_NO_EXPORT CVqSizeBase<int> full_size(const Slots& slots) const;
    ARBOR_QUICK_BACKEND_NO_EXPORT void lay_out_bar(bool changed);
    ARBOR_QUICK_BACKEND_NO_EXPORT void take_all_out();
    ARBOR_QUICK_BACKEND_NO_EXPORT std::size_t count_fitting(int limit) const;
    ARBOR_QUICK_BACKEND_NO_EXPORT std::size_t fit(int limit);
    ARBOR_QUICK_BACKEND_NO_EXPORT void move_boundary(std::size_t fitting, int limit);
    ARBOR_QUICK_BACKEND_NO_EXPORT void attach(const SSlot& slot);
    ARBOR_QUICK_BACKEND_NO_EXPORT void place(IVqUIcontrol& control, const SPlace& place, int whole_width);
    ARBOR_QUICK_BACKEND_NO_EXPORT void place_slot(const SSlot& slot, const SPlace& room, int whole_width);
    ARBOR_QUICK_BACKEND_NO_EXPORT void place_row(std::size_t count, CVqSizeBase<int> axes);
    ARBOR_QUICK_BACKEND_NO_EXPORT void place_picker(CVqSizeBase<int> axes);
    ARBOR_QUICK_BACKEND_NO_EXPORT void place_lines();
    ARBOR_QUICK_BACKEND_NO_EXPORT const CVqList::CVqNode* picker_node() const;
    ARBOR_QUICK_BACKEND_NO_EXPORT QList<CVqQuickControl*> reading_order() const;
    ARBOR_QUICK_BACKEND_NO_EXPORT void connect_picker();
    ARBOR_QUICK_BACKEND_NO_EXPORT void empty_popup();
    ARBOR_QUICK_BACKEND_NO_EXPORT void tell_all(unsigned code, void* data);
    ARBOR_QUICK_BACKEND_NO_EXPORT void refresh_appearance();

    QPointer<CVqQuickToolbarArea> m_area; // owned
    CVqQuickPicker* m_picker = nullptr;   // owned by the list
    EventFunction m_event;
    std::function<void()> m_tidy;
    Slots m_slots; // as of the last layout; its pointers may be stale before the next one
    bool m_laying_out = false;
};
