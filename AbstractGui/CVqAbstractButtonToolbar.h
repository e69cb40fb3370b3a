#pragma once

#include "AbstractGui/CVqAbstractToolbar.h"
#include "AbstractGui/EOrientation.h"
#include "AbstractGui/EToolbarType.h"
#include "AbstractGui/IVqUIcontrol.h"
#include "arbor_qml_support_export.h"
#include "system/CVqRectBase.h"
#include "system/CVqSizeBase.h"
#include "system/VqText.h"
#include "system/VqTypes.h"

class CVqLiteVariantR;
class CVqStringW;
class CVqVariant;

/// A toolbar of buttons as applications use it: buttons and separators by identifier, their texts, images and
/// commands by state. It turns requests into control codes for the controls of one CVqAbstractToolbar.
///
/// A concrete class derives, makes the toolbar (the constructor does not), calls its CreateUI() and
/// DestroyUI() and overrides what the group "For the concrete class" names. It owns the toolbar: the
/// destructor deletes it, and DestroyUI() has to have run before. Copies are shallow, and each of the two
/// would delete the toolbar.
///
/// Identifiers are those of CVqAbstractToolbar; 0 is none. A renamed button is still known by its old
/// identifier, see there. The button touched last is remembered with its identifier until another call looks
/// elsewhere: a control that is taken out behind the back of this class must not be asked for right after.
///
/// Operations that return `int` give 0, or the code told; without a toolbar -9, where nothing else is told.
/// What returns nothing does nothing then. Texts are copied, null reads as the empty text. GUI thread only.
/// The order of the operations is part of the binary interface.
///
///     const vq_uint64 open = bar.AddButton(VQ_TEXT("FileOpen"));
///     bar.SetTextsOnButton(open, 0, VQ_TEXT("Open an image"), VQ_TEXT("Open"), VQ_TEXT("FileOpen"));
///     bar.SetBitmapOnButton(open, 0, VQ_TEXT("open.svg"));
class ARBOR_QML_SUPPORT_EXPORT CVqAbstractButtonToolbar
{
public:
    using callback_type = bool (*)(SVqUiEvent& event);
    using setup_callback_type = bool (*)(unsigned id, __vq_hwnd* window, CVqStringW& text);

    /// Without a toolbar.
    CVqAbstractButtonToolbar();
    CVqAbstractButtonToolbar(const CVqAbstractButtonToolbar& other);
    CVqAbstractButtonToolbar& operator=(const CVqAbstractButtonToolbar& other);

    /// Deletes the toolbar, without its controls.
    virtual ~CVqAbstractButtonToolbar();

    // The whole toolbar ------------------------------------------------------------------------------

    /// Stores both, true for vertical; the toolbar is not told. False without a toolbar.
    virtual bool Init(bool orientation, EToolbarType type);

    /// Kept for the concrete class; the toolbar is not told. `data` is not owned.
    virtual void SetCallbackFunc(callback_type callback, void* data);
    virtual callback_type GetCallbackFunc();

    /// False without a toolbar.
    virtual void SetVisibility(bool visible);
    virtual bool GetVisibility();
    virtual void SetFlatStyle(bool flat);

    // Codes: -9 for an unknown identifier -------------------------------------------------------------

    /// Set(), Get() and Command() of a button, see VqControlCodes.h, and its result.
    virtual int Set(vq_uint64 id, unsigned code, vq_int64 index, void* data);
    virtual int Get(vq_uint64 id, unsigned code, vq_int64 index, void* data);
    virtual int Command(vq_uint64 id, unsigned code, vq_int64 index, void* data);

    // State ------------------------------------------------------------------------------------------

    /// False for an unknown identifier.
    virtual void SetCheck(vq_uint64 id, bool check);
    virtual bool GetCheck(vq_uint64 id);
    virtual void Enable(vq_uint64 id, bool enable);

    /// Enables or disables every control now on the toolbar; what is added later is not touched.
    virtual void EnableAll(bool enable);

    /// False for an unknown identifier.
    virtual bool IsEnabled(vq_uint64 id);

    /// What EnableAll() was given last, true at first, whatever the controls say.
    virtual bool IsEnabledAll();

    /// Shows or hides the control. Separators have to be tidied afterwards.
    virtual void SetButtonVisibility(vq_uint64 id, bool visible);

    /// True when the control is visible and neither store of VqHiddenToolbarButtons.h hides it.
    virtual bool GetButtonVisibility(vq_uint64 id);

    /// As in CVqAbstractToolbar; true and 1.0 without a toolbar.
    virtual void EnableEnlargeToolbar(bool enable);
    virtual bool IsToolbarEnlargeEnabled();
    virtual void SetAdditionalToolbarGuiZoom(double zoom);
    virtual double GetAdditionalToolbarGuiZoom();

    /// In pixels; -9 for an unknown identifier.
    virtual int SetButtonSize(vq_uint64 id, int width, int height);

    /// As in CVqAbstractToolbar.
    virtual void SetToolbarBackgroundColor(unsigned color, double alpha);

    /// Controls that the toolbar knows by identifier, separators among them; 0 without a toolbar.
    virtual int GetButtonsCount();

    /// Shows the dialog in which the user sets the toolbar up. The abstract class does nothing.
    virtual void ShowToolbarSetup(vq_uint64 parent, CVqVariant& setup, vq_uint64 data, bool flag,
                                  setup_callback_type callback);

    /// As in CVqAbstractToolbar; false without a toolbar.
    virtual void EnableToolbarDragDrop(bool enable);
    virtual bool IsToolbarDragDropEnabled();

    /// Both are stored here too, also without a toolbar.
    virtual void ChangeToolbarType(EToolbarType type, bool keep);
    virtual EToolbarType GetToolbarType();
    virtual void ChangeToolbarOrientation(EOrientation orientation);

    // Buttons: 0 when there is none or none could be made ----------------------------------------------

    /// The identifier of the control at an index from 0, with `skipSeparators` counted without separators.
    virtual vq_uint64 GetButtonID(unsigned index, bool skipSeparators);

    /// Adds a button behind the others, or beside the one of `anchor`. Separators have to be tidied
    /// afterwards. A control that the toolbar refuses is not deleted: until the next call that looks
    /// elsewhere, ControlFromId() gives it for the identifier 0, and RemoveButton(0) deletes it.
    virtual vq_uint64 AddButton(const vq_wchar* name);
    virtual vq_uint64 InsertButtonBefore(vq_uint64 anchor, const vq_wchar* name);
    virtual vq_uint64 InsertButtonAfter(vq_uint64 anchor, const vq_wchar* name);

    /// The same for a button that shows a text.
    virtual vq_uint64 AddTextButton(const vq_wchar* name);
    virtual vq_uint64 InsertTextButtonBefore(vq_uint64 anchor, const vq_wchar* name);
    virtual vq_uint64 InsertTextButtonAfter(vq_uint64 anchor, const vq_wchar* name);

    /// Takes the control out and lets it delete itself. Always 0.
    virtual int RemoveButton(vq_uint64 id);

    virtual int GetButtonName(vq_uint64 id, CVqStringW& name);
    virtual int SetButtonName(vq_uint64 id, const vq_wchar* name);

    /// The first button of that name.
    virtual vq_uint64 FindButton(const vq_wchar* name);

    /// -12 without a toolbar.
    virtual int RemoveAllControls();

    // Texts and images of a state --------------------------------------------------------------------

    virtual int SetStatesCountOnButton(vq_uint64 id, unsigned count);
    virtual int GetStatesCountOnButton(vq_uint64 id, unsigned& count);

    /// These three give 0 whatever happens.
    virtual int SetTextsOnButton(vq_uint64 id, unsigned state, const vq_wchar* tooltip, const vq_wchar* text,
                                 const vq_wchar* command);
    virtual int SetTooltipOnButton(vq_uint64 id, unsigned state, const vq_wchar* tooltip);
    virtual int SetCommandOnButton(vq_uint64 id, unsigned state, const vq_wchar* command);

    /// -9 for an unknown identifier, -17 for a bad state.
    virtual int GetTextOnButton(vq_uint64 id, unsigned state, CVqStringW& text);
    virtual int GetTooltipOnButton(vq_uint64 id, unsigned state, CVqStringW& tooltip);
    virtual int GetCommandOnButton(vq_uint64 id, unsigned state, CVqStringW& command);

    /// Bits 4 and 5 of `align` count. 0 for an unknown identifier.
    virtual int SetButtonTextAlign(vq_uint64 id, unsigned align);

    /// An image by its index in the pool, by its file, or by file and module, for which the hook of
    /// VQ_SetAskForBitmapCallback() is asked first. An image that is not found gives the button the pool's
    /// negative code. Always 0.
    virtual int SetBitmapOnButton(vq_uint64 id, unsigned state, unsigned index);
    virtual int SetBitmapOnButton(vq_uint64 id, unsigned state, const vq_wchar* file);
    virtual int SetBitmapOnButton(vq_uint64 id, unsigned state, const vq_wchar* file, const vq_wchar* module);

    /// The image index, or -1.
    virtual int GetBitmap(vq_uint64 id, unsigned state);

    /// The control's own result; -9 for an unknown identifier.
    virtual int GetButtonSize(vq_uint64 id, CVqSizeBase<int>& size, int value);

    // Separators -------------------------------------------------------------------------------------

    /// As AddButton(); a null or empty `name` leaves the separator's own.
    virtual vq_uint64 AppendSeparator(const vq_wchar* name);
    virtual vq_uint64 InsertSeparatorBefore(vq_uint64 anchor, const vq_wchar* name);
    virtual vq_uint64 InsertSeparatorAfter(vq_uint64 anchor, const vq_wchar* name);

    virtual bool IsIDSeparator(vq_uint64 id);

    // Sizes ------------------------------------------------------------------------------------------

    /// As in CVqAbstractToolbar.
    virtual void SetBorders(const CVqRectBase<int>& borders);
    virtual void Enable3dBorders(unsigned mask);

    /// Gives the button the width that it wants by itself and its present height, on an upright toolbar the
    /// height that it wants when that is larger. -9 for an unknown identifier.
    virtual int SetButtonOptimalSize(vq_uint64 id);

    /// For the concrete class; nothing here.
    virtual void ResetAllControlSizesOnToolbar();

    // Controls of any kind ---------------------------------------------------------------------------

    /// As AddButton(), with a control of the caller's own. The toolbar owns it then, unless the result is 0.
    virtual vq_uint64 AddGeneralControl(IVqUIcontrol* control, const vq_wchar* name);
    virtual vq_uint64 InsertGeneralControlBefore(vq_uint64 anchor, IVqUIcontrol* control,
                                                 const vq_wchar* name);
    virtual vq_uint64 InsertGeneralControlAfter(vq_uint64 anchor, IVqUIcontrol* control,
                                                const vq_wchar* name);

    // Persistence ------------------------------------------------------------------------------------

    /// Writes all controls, but not the picker, into a level of its own; always 0. A separator is an empty
    /// level. `out` loses what it held.
    virtual int Save(CVqLiteVariantR& out);

    /// Appends one child a control to `out`, and in front of them the toolbar's name unless it is null or
    /// empty. Nothing happens without a toolbar.
    virtual void Save(CVqVariant& out, const vq_wchar* name);

    /// Both put the stored buttons and separators in place of all controls. What was a text button or a
    /// general control comes back as a button. 0, or -9 when a button could not be read in full, which does
    /// not stop the others. A button that the toolbar refuses deletes itself. Without a toolbar nothing
    /// happens, with 0.
    ///
    /// The lightweight form is read from the level under the cursor. A tree with more than 100 controls does
    /// not come back whole: the digits of the index that go before each name are taken for two, so from index
    /// 100 on a name gains the last one, and a separator becomes a button of that name. `name`, unless it is
    /// null, gets the stored name of the toolbar if there is one.
    virtual int Load(CVqLiteVariantR& in);
    virtual int Load(CVqVariant& in, CVqStringW* name);

    /// True when two saved trees hold the same controls in the same order: names, separators, and per state
    /// the command, the image index and whether there is a text, but not which.
    static bool IsEqual(CVqVariant& left, CVqVariant& right);

    // For the concrete class -------------------------------------------------------------------------

    /// The concrete class's handle, 0 here.
    virtual vq_uint64 GetToolbarHandle();

    /// The control of an identifier, or null.
    virtual IVqUIcontrol* ControlFromId(vq_uint64 id);

    /// With `defer` only notes that separators have to be tidied; the concrete class clears the note and
    /// calls again without. Then shows a separator only between two groups of shown buttons, and one for a
    /// run of them. One at the front keeps its visibility unless drag and drop is enabled, one at the end if
    /// it was visible before. Always 0.
    virtual int UpdateSeparators(bool defer);

    /// Makes the toolbar, a button, a button with a text or a separator; null here. The caller owns it. A
    /// separator answers code vq_control_separator with a number that is not 0. Callers here pass true.
    virtual CVqAbstractToolbar* CreateToolbar();
    virtual IVqUIcontrol* CreateControlButton(bool flag);
    virtual IVqUIcontrol* CreateTextButton();
    virtual IVqUIcontrol* CreateSeparator();

protected:
    /// Starts to drag the button of an event; false here.
    virtual bool StartDrag(SVqUiEvent& event);

    /// The index that the hook gives, if that is 0 or above, or else that of the pool.
    int GetBitmapIndex(const vq_wchar* file, const vq_wchar* module);

    CVqAbstractToolbar* m_pToolbar = nullptr; ///< Owned; set by the concrete class.
    callback_type m_pCallback = nullptr;
    void* m_pCallbackData = nullptr; ///< Not owned.
    vq_uint64 m_hToolbar = 0;
    EToolbarType m_eType = EToolbarType::Main;
    EOrientation m_eOrientation = EOrientation::Horizontal;
    vq_uint64 m_uiCachedId = 0;               ///< Of the button touched last.
    IVqUIcontrol* m_pCachedControl = nullptr; ///< Its control, not owned.
    bool m_bSeparatorsDirty = false;          ///< Separators have to be tidied; the concrete class clears it.
    bool m_bEnabledAll = true;

private:
    using inserter_type
        = int (CVqAbstractToolbar::*)(const IVqUIcontrol& anchor, IVqUIcontrol& control, vq_uint64& id);

    ARBOR_QML_SUPPORT_NO_EXPORT void clear_cache();
    ARBOR_QML_SUPPORT_NO_EXPORT vq_uint64 remember(vq_uint64 id, IVqUIcontrol* control);
    ARBOR_QML_SUPPORT_NO_EXPORT bool begin_change();
    ARBOR_QML_SUPPORT_NO_EXPORT IVqUIcontrol* begin_insertion(vq_uint64 anchor);
    ARBOR_QML_SUPPORT_NO_EXPORT vq_uint64 add_control(IVqUIcontrol* control);
    ARBOR_QML_SUPPORT_NO_EXPORT vq_uint64 insert_control(const IVqUIcontrol& anchor, IVqUIcontrol* control,
                                                         inserter_type insert);
    ARBOR_QML_SUPPORT_NO_EXPORT bool is_listed_as_hidden(IVqUIcontrol& control) const;
    ARBOR_QML_SUPPORT_NO_EXPORT int load_entry(CVqLiteVariantR& in);
    ARBOR_QML_SUPPORT_NO_EXPORT int load_button(CVqLiteVariantR& in, const vq_wchar* name);
    ARBOR_QML_SUPPORT_NO_EXPORT int load_entry(CVqVariant& record);
};

/// Is asked for the image index of a file and a module before the image pool is; a negative number leaves it
/// to the pool.
using VqAskForBitmapCallback
    = int (*)(CVqAbstractButtonToolbar* toolbar, const vq_wchar* file, const vq_wchar* module);

/// Sets the one hook of the process in place of the earlier one; null takes it away.
ARBOR_QML_SUPPORT_EXPORT void VQ_SetAskForBitmapCallback(VqAskForBitmapCallback callback);
ARBOR_QML_SUPPORT_EXPORT VqAskForBitmapCallback VQ_GetAskForBitmapCallback();
