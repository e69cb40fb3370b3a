#pragma once

#include "AbstractGui/EOrientation.h"
#include "AbstractGui/EToolbarType.h"
#include "AbstractGui/IVqUIcontrol.h"
#include "arbor_qml_support_export.h"
#include "system/CVqList.h"
#include "system/CVqRectBase.h"
#include "system/CVqSizeBase.h"
#include "system/CVqStringW.h"
#include "system/VqText.h"
#include "system/VqTypes.h"

#include <map>

/// The model of one toolbar: controls in order, a map that finds them by identifier, and the picker, which
/// takes what does not fit. It draws nothing: a concrete toolbar derives, supplies the window, lays the
/// controls out and calls MoveToPicker() and MoveFromPicker() while it does so.
///
/// **Identifiers.** A control's identifier is the address of its name's text, as a number; 0 is none. The map
/// compares numbers: another text with the same content finds nothing, GetControlByName() does. A control
/// that is renamed after it was added may get another identifier, and the map goes on with the old one until
/// the control is removed.
///
/// **The picker.** In a toolbar of type Main the last control of the list is the picker. Controls in front of
/// the boundary lie on the toolbar, those from the boundary on lie in the picker; the boundary is the picker
/// itself when it holds nothing. Walks never show the picker. A main toolbar whose picker could not be made
/// treats its last control as if it were one, so a back end overrides CreateToolbarPicker(). A toolbar of
/// type InPicker shares list, map and boundary of a main toolbar, which its back end hands to it and keeps up
/// to date, and sees what lies in the picker. The picker is sent list and map when it is made and the
/// boundary whenever it moves here; at first the boundary is the last node of the list.
///
/// **Ownership.** The list owns its controls, and DestroyUI() deletes them all; the destructor frees none of
/// them. Who takes a control out with RemoveControl() owns it. A control must not be deleted while the
/// toolbar holds it: a debug build stops with an assertion when it meets one.
///
/// Operations that return `int` give 0, or -9 for failure. Before CreateUI() and after DestroyUI() there is
/// no list, and what needs one gives -9 or null. GUI thread only. The order of the operations is part of the
/// binary interface.
///
///     toolbar.CreateUI(window, EToolbarType::Main, VQ_TEXT("main"));
///     vq_uint64 id = 0;
///     if (toolbar.AddControl(*button, id) != 0)
///         button->MarkToDeleteItself();
class ARBOR_QML_SUPPORT_EXPORT CVqAbstractToolbar
{
public:
    using callback_type = IVqUIcontrol::handler_type;

    /// What finds controls by their identifier.
    using id_map_type = std::map<vq_uint64, IVqUIcontrol*>;

    /// The background colour that is none.
    static constexpr unsigned NoColor = 0xFFFFFFFF;

    /// Not created: no list, no window.
    CVqAbstractToolbar();

    /// Copies are shallow: list, map and boundary are shared afterwards, and each of the two toolbars would
    /// delete them. Whoever copies sees to it that DestroyUI() runs on one of them only.
    CVqAbstractToolbar(const CVqAbstractToolbar& other);
    CVqAbstractToolbar& operator=(const CVqAbstractToolbar& other);

    /// Leaves list, map and controls alone: call DestroyUI() first.
    virtual ~CVqAbstractToolbar();

    // Life -------------------------------------------------------------------------------------------

    /// Makes the list and the map, but for type InPicker, and for type Main the picker. Types Hosted and
    /// InPicker take `parent` as their host and get borders on all sides. A null `name` keeps the one that
    /// is there. Gives the window handle, which is 0 here: a back end calls this one first and then sets its
    /// own. A toolbar that was created before is destroyed first; one that becomes InPicker keeps list, map
    /// and boundary, and from then on counts them as another toolbar's. The picker is created before there is
    /// a window, so its CreateUI() gets 0.
    virtual vq_uint64 CreateUI(vq_uint64 parent, EToolbarType type, const vq_wchar* name);

    /// Destroys and deletes all controls, the picker too, and frees list and map. Of type InPicker only the
    /// handles are cleared.
    virtual void DestroyUI();

    // Controls: -9 without a list --------------------------------------------------------------------

    /// Adds `control` at the end, in a main toolbar in front of the picker, which is not told. The control
    /// gets the toolbar's enlarge flag, zoom, orientation and style, and is created when the toolbar has a
    /// window. On success the toolbar owns it and `id` gets its identifier. -9 when it is in the list already
    /// or could not be created, which leaves it with the caller.
    virtual int AddControl(IVqUIcontrol& control, vq_uint64& id);

    /// Type InPicker only: gives a control of the shared list the enlarge flag and zoom of this toolbar.
    /// `value` is neither read nor written. -9 in any other type and when the control is not in the list.
    virtual int AddControlNoCreate(IVqUIcontrol& control, int& value);

    /// As AddControl(), at the side of `anchor`; -9 also when `anchor` is not in the list. What comes to lie
    /// behind the boundary is handed to the picker. In front of the control at the boundary is still on the
    /// toolbar.
    virtual int InsertControlBefore(const IVqUIcontrol& anchor, IVqUIcontrol& control, vq_uint64& id);
    virtual int InsertControlAfter(const IVqUIcontrol& anchor, IVqUIcontrol& control, vq_uint64& id);

    /// Takes `control` out and destroys its widget; the caller owns it then. An identifier equal to that of
    /// `control` leaves the map even when the control is not in the list, which gives -9. In type InPicker
    /// nothing happens, and the result is 0.
    virtual int RemoveControl(IVqUIcontrol& control);

    /// Destroys and deletes all controls but the picker. Always 0; in type InPicker nothing happens. The
    /// layout does not become dirty by it.
    virtual int RemoveAllControls();

    /// Who is told of events, or null, and what is handed to it, not owned. A main toolbar tells its picker.
    /// Always 0.
    virtual int SetCallback(callback_type callback, void* data);

    /// Where a walk over the controls starts: in type InPicker at the boundary. Null when there is nothing
    /// but the picker.
    ///
    ///     for (CVqList::CVqNode* node = toolbar.GetFirstNode(); node;)
    ///         if (IVqUIcontrol* control = toolbar.GetNextControl(node))
    ///             use(*control);
    virtual CVqList::CVqNode* GetFirstNode();

    /// The control of `node`, which may be null, and moves `node` on: to null in front of the picker and at
    /// the end.
    virtual IVqUIcontrol* GetNextControl(CVqList::CVqNode*& node);

    // State ------------------------------------------------------------------------------------------

    /// Turns the toolbar and the controls that it shows: a main toolbar those in front of the boundary and
    /// the picker, type InPicker those in the picker. -9 without a list, with the orientation stored.
    virtual int SetOrientation(EOrientation orientation);
    virtual int GetOrientation(EOrientation& orientation);

    /// Stored only.
    virtual void SetToolbarVisibility(bool visible);
    virtual bool GetToolbarVisibility();

    /// Shows or hides a control of the list; in type InPicker, one from the boundary on. The layout becomes
    /// dirty when that changes something. -9 when the control is not there.
    virtual int SetToolbarControlVisibility(const IVqUIcontrol& control, bool visible);

    /// The operations Set(), Get() and Command() of a control, and their result; -9 for an unknown
    /// identifier.
    virtual int SetControlState(vq_uint64 id, unsigned code, vq_int64 index, void* data);
    virtual int GetControlState(vq_uint64 id, unsigned code, vq_int64 index, void* data);
    virtual int ControlCommand(vq_uint64 id, unsigned code, vq_int64 index, void* data);

    /// The control's own result; -9 and false for an unknown identifier.
    virtual int EnableControl(vq_uint64 id, bool enable);
    virtual bool IsControlEnabled(vq_uint64 id);

    /// Margins in pixels, stored only.
    virtual void SetBorders(const CVqRectBase<int>& borders);
    virtual void GetBorders(CVqRectBase<int>& borders);

    /// Which sides have a border, one bit a side; stored only.
    virtual void Enable3dBorders(unsigned mask);

    /// Passed on to all controls, the picker too; not in type InPicker.
    virtual void SetFlatStyle(bool flat);

    /// The control of an identifier, or null.
    virtual IVqUIcontrol* GetControl(vq_uint64 id);

    /// The first control of that name, unit by unit, or null; in type InPicker from the boundary on, and
    /// never the picker. Controls without a name are not found.
    virtual IVqUIcontrol* GetControlByName(const vq_wchar* name);

    /// Drag mode 8, or 0.
    virtual void EnableToolbarDragDrop(bool enable);
    virtual bool IsToolbarDragDropEnabled();

    /// With drag and drop enabled, type Fixed without `keep` sets drag mode 0, and anything else 8.
    virtual void ChangeToolbarType(EToolbarType type, bool keep);

    /// Turns the toolbar and its separators; other controls are left as they are. -9 without a list, with the
    /// orientation stored.
    virtual int ChangeToolbarOrientation(EOrientation orientation);

    /// Both are passed on to controls that are added later.
    virtual void EnableEnlargeToolbar(bool enable);
    virtual bool IsToolbarEnlargeEnabled();
    virtual void SetAdditionalToolbarGuiZoom(double zoom);
    virtual double GetAdditionalToolbarGuiZoom();

    /// Makes the picker of a main toolbar, which CreateUI() takes over; null for none. It has to create
    /// itself and to answer the picker's codes of VqControlCodes.h: the one made here does neither.
    virtual IVqUIcontrol* CreateToolbarPicker(const vq_wchar* name);

    /// `color` as 0xRRGGBB with `alpha` from 0 to 1; NoColor is none, whatever `alpha`.
    virtual void SetToolbarBackgroundColor(unsigned color, double alpha);

    // The rest is not overridden ---------------------------------------------------------------------

    /// What CreateUI() was given; the toolbar's half of a hidden button's key.
    const CVqStringW& GetName() const { return m_strName; }

    /// Identifiers in the map, which has none for the picker; 0 without a map.
    int GetIdCount() const { return m_pControlIds ? static_cast<int>(m_pControlIds->size()) : 0; }

protected:
    // For the layout of a back end. Lengths run along the main axis: widths, or heights when the orientation
    // is not Horizontal. Sizes are those that GetControlSize() gives for the value -1.

    /// Brings controls back out of the picker as long as they fit, moving the boundary on, and shows or hides
    /// the picker. `position` is the far edge of the last control on the toolbar and moves along with visible
    /// ones, `limit` the toolbar's length. A control fits when there is still room behind it for the picker
    /// or for what follows it. The last argument is not looked at. False, with nothing done, in type InPicker
    /// and when the picker does not stand at the boundary or behind it.
    virtual bool MoveFromPicker(IVqUIcontrol* picker, int& position, int limit, bool value);

    /// Hands `control` to the picker when its far edge `extent` lies beyond `limit`, the toolbar's length,
    /// which a picker that already holds something takes its share of. True when it was handed over: then the
    /// back end moves the boundary, which stays where it is here. False in type InPicker, without a list, and
    /// for null or equal pointers.
    virtual bool MoveToPicker(IVqUIcontrol* picker, IVqUIcontrol* control, int extent, int limit);

    // For the back end, which reads and sets all of them.
    vq_uint64 m_hWindow = 0; ///< Parent of the controls' widgets; without one they are not created.
    EOrientation m_eOrientation = EOrientation::Horizontal;
    CVqRectBase<int> m_borders{2, 2, 2, 2}; ///< Margins in pixels.
    EToolbarType m_eType = EToolbarType::Main;
    vq_uint64 m_hHost = 0; ///< Parent of the toolbar in types Hosted and InPicker.
    bool m_bFlatStyle = false;
    unsigned m_ui3dBorders = 0; ///< One bit a side, 15 for all.
    unsigned m_uiDragMode = 0;  ///< 8 while drag and drop is active, else 0.
    bool m_bVisible = false;
    bool m_bDragDropEnabled = false;
    bool m_bEnlargeEnabled = true;
    double m_dZoom = 1.0;    ///< Additional zoom of the controls.
    CVqSizeBase<int> m_size; ///< Pixels; not looked at here.
    CVqStringW m_strName;
    // These three are another toolbar's in type InPicker.
    CVqList* m_pControls = nullptr;          ///< Of IVqUIcontrol*; owned with the controls.
    id_map_type* m_pControlIds = nullptr;    ///< Owned.
    CVqList::CVqNode* m_pBoundary = nullptr; ///< First control that lies in the picker.
    unsigned m_uiBackground = NoColor;       ///< 0xAARRGGBB.
    callback_type m_pCallback = nullptr;
    void* m_pCallbackData = nullptr; ///< Not owned.
    bool m_bLayoutDirty = false;     ///< Set when the layout has to be done again; the back end clears it.

private:
    ARBOR_QML_SUPPORT_NO_EXPORT void add_picker(const vq_wchar* name);
    ARBOR_QML_SUPPORT_NO_EXPORT void delete_controls();
    ARBOR_QML_SUPPORT_NO_EXPORT bool prepare_control(IVqUIcontrol& control);
    ARBOR_QML_SUPPORT_NO_EXPORT void pass_settings(IVqUIcontrol& control) const;
    ARBOR_QML_SUPPORT_NO_EXPORT void link_control(CVqList::CVqNode* next, IVqUIcontrol& control,
                                                  vq_uint64& id);
    ARBOR_QML_SUPPORT_NO_EXPORT bool lies_in_picker(const CVqList::CVqNode* anchor, bool after) const;
    ARBOR_QML_SUPPORT_NO_EXPORT int insert_control(const IVqUIcontrol& anchor, IVqUIcontrol& control,
                                                   vq_uint64& id, bool after);
    ARBOR_QML_SUPPORT_NO_EXPORT IVqUIcontrol* picker() const;
    ARBOR_QML_SUPPORT_NO_EXPORT void tell_boundary(IVqUIcontrol* picker) const;
    ARBOR_QML_SUPPORT_NO_EXPORT CVqList::CVqNode* start() const;
    ARBOR_QML_SUPPORT_NO_EXPORT bool is_hidden_end(const CVqList::CVqNode* node) const;
    ARBOR_QML_SUPPORT_NO_EXPORT int length_of(IVqUIcontrol& control) const;
    ARBOR_QML_SUPPORT_NO_EXPORT bool is_behind_boundary(const IVqUIcontrol* control) const;
    ARBOR_QML_SUPPORT_NO_EXPORT vq_int64 edge_limit(const IVqUIcontrol* picker, int picker_length, int limit,
                                                    vq_int64& step) const;
};
