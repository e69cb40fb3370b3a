#pragma once

#include "AbstractGui/IVqUIcontrol.h"
#include "AbstractGui/SVqControlState.h"
#include "arbor_qml_support_export.h"
#include "system/CVqStringW.h"

#include <QObject>
#include <QString>

#include <memory>

/// What all controls of a toolbar share: up to 32 states, of which one is the current one, a name, a size,
/// callbacks and style bits. It has no widget; concrete controls derive and add one. QML reads and sets type,
/// state, image and label through the properties.
///
/// A new control has one empty state. The states in use are those below the state count; an index at or above
/// it is a bad one. An index counts by its low 32 bits. The current state may lie anywhere: nobody holds it
/// against the count, so bitmap() and label() also show a state that is no longer in use.
///
/// | Code | Meaning |
/// |---|---|
/// | -9 | unknown code or null data; a bad index in Command() |
/// | -17 | a bad index in Get() |
///
/// Set() with a bad index gives 0 and changes nothing. GUI thread only; signals fire inside the setters.
///
///     CVqQuickButton button;
///     CVqStringW text(VQ_TEXT("Open"));
///     button.Set(vq_control_text, 0, &text);
class ARBOR_QML_SUPPORT_EXPORT CVqAbstractControl : public QObject, public IVqUIcontrol
{
    Q_OBJECT

    /// What kind of control it is; the values are those of the concrete controls.
    Q_PROPERTY(int type READ type WRITE setType NOTIFY typeChanged)
    /// Index of the current state.
    Q_PROPERTY(int state READ state WRITE setState NOTIFY stateChanged)
    /// Image index of the current state, -1 for none.
    Q_PROPERTY(int bitmap READ bitmap WRITE setBitmap NOTIFY bitmapChanged)
    /// Label of the current state.
    Q_PROPERTY(QString label READ label WRITE setLabel NOTIFY labelChanged)

public:
    /// States that a control can hold. There is no more room, whatever the state count says.
    static constexpr vq_uint32 MaxStates = 32;

    /// Without a parent. Asks the image pool for the picker's image.
    explicit CVqAbstractControl(int type = 0);
    ~CVqAbstractControl() override;

    // Properties: a setter does nothing when the value is the same ------------------------------------

    int type() const;
    void setType(int type);

    int state() const;

    /// Not held against the state count. Emits stateChanged(), bitmapChanged() and labelChanged().
    void setState(int state);

    /// Of the current state; -1 and an empty text when it lies outside the room for states. Such a state is
    /// not written to either, and nothing is emitted.
    int bitmap() const;
    void setBitmap(int bitmap);
    QString label() const;

    /// Takes `label` up to its first zero unit.
    void setLabel(const QString& label);

    // IVqUIcontrol -----------------------------------------------------------------------------------

    /// Kept for the concrete control.
    handler_type SetHandler(handler_type handler) override;
    handler_type GetHandler() override;

    /// 0: there is no widget.
    vq_uint64 CreateUI(vq_uint64 parent) override;
    void DestroyUI() override;

    /// Deletes the control at once.
    void MarkToDeleteItself() override;

    /// Both give 0, or -9 when a state lacked one of its texts, when there was none or when there were more
    /// than 32, of which the first 32 are kept; all else is read all the same. The current state stays as it
    /// is. Nothing is translated, and no signal fires but that of SetControlVisibility().
    ///
    /// The tree form keeps the old size where none is stored, the lightweight form sets it to 0. The type is
    /// stored in the lightweight form only: a tree sets it to 0.
    int Load(CVqLiteVariantR& in) override;
    int Load(const CVqVariant& in) override;

    /// Both give 0. A level that cannot be begun is left out.
    ///
    /// Commands are stored with `((` in place of `("` and `))` in place of `")`, and turned back when they
    /// are read: a command that has doubled parentheses of its own comes back changed.
    int Save(CVqLiteVariantW& out) override;
    int Save(CVqVariant& out) override;

    int Get(unsigned code, vq_int64 index, void* data) override;

    /// Code vq_control_state goes through setState(). vq_control_text emits labelChanged() and
    /// vq_control_bitmap emits bitmapChanged(), whatever the index and also when the value is the same.
    int Set(unsigned code, vq_int64 index, void* data) override;

    /// vq_control_read_state writes an image index only where there is one and a text only where it isn't
    /// empty; other fields keep what the caller put there. vq_control_write_state takes the image index
    /// always, a text only when it isn't null, and emits bitmapChanged(). vq_control_delete_state moves the
    /// later states down by one and makes state 0 the current one when the current one is no longer in use.
    /// vq_control_clear_states sets the count to 0. The last two emit nothing.
    int Command(unsigned code, vq_int64 index, void* data) override;

    /// Emits stateChanged() on a change.
    int Enable(bool enable) override;
    bool IsEnabled() override;

    void SetFlatStyle(bool flat) override;

    /// These two do nothing here.
    void SetBoldText(bool bold) override;
    void SetUnderlineText(bool underline) override;

    int SetTextAlign(unsigned align) override;
    int SetPaintCallback(paint_callback_type callback, void* data) override;
    int SetSizeCallback(size_callback_type callback, void* data) override;

    /// The stored size, when both sides are at least 1 and the orientation is vertical; otherwise the size
    /// callback is asked each time. Without one `size` stays. `value` is not looked at. Always 0.
    int GetControlSize(CVqSizeBase<int>& size, int value) override;
    int SetControlSize(const CVqSizeBase<int>& size) override;

    /// Stores nothing.
    int SetControlPos(const CVqRectBase<int>& rect) override;

    /// Emits stateChanged() on a change.
    void SetControlVisibility(bool visible) override;
    bool GetControlVisibility() override;
    vq_uint64 GetWindowHandle() override;

    /// Sets the tooltip of all states below the count; gives that of state 0, whatever the current one is.
    void SetDesriptionText(CVqStringW& text) override;
    void GetDesriptionText(CVqStringW& text) override;
    int SetOrientation(EOrientation orientation) override;
    vq_uint64 GetControlID() override;

Q_SIGNALS:
    void typeChanged();
    void stateChanged();
    void bitmapChanged();
    void labelChanged();

protected:
    /// Bits of m_uiStyle.
    static constexpr vq_uint32 FlatStyle = 1;
    static constexpr vq_uint32 TextAlignMask = 0x30;

    /// Bits of m_uiFlags.
    static constexpr vq_uint32 Checked = 1;
    static constexpr vq_uint32 Disabled = 4;

    // For the concrete control, which reads all of them.
    std::unique_ptr<SVqControlState[]> m_pStates; ///< MaxStates of them.
    CVqStringW m_strName;
    handler_type m_pHandler = nullptr;
    paint_callback_type m_pPaintCallback = nullptr;
    void* m_pPaintData = nullptr; ///< Not owned.
    size_callback_type m_pSizeCallback = nullptr;
    void* m_pSizeData = nullptr; ///< Not owned.
    CVqSizeBase<int> m_size;     ///< Pixels; a side of 0 is no size.
    double m_dZoom = 1.0;        ///< Additional zoom of the toolbar; set by the concrete control.
    EOrientation m_eOrientation = EOrientation::Horizontal;
    vq_uint32 m_uiStyle = 0;
    vq_uint32 m_uiFlags = 0;
    vq_uint32 m_uiValue = 0;      ///< Of code vq_control_value.
    int m_iPickerImage;           ///< Image index, or the pool's negative code.
    int m_iState = 0;             ///< The current state; any value.
    vq_uint32 m_uiStateCount = 1; ///< States in use; what goes beyond MaxStates counts as MaxStates.
    int m_iType;
    bool m_bVisible = true;
    bool m_bTranslateTooltip = false; ///< Tooltips are to be translated by the concrete control.

private:
    ARBOR_QML_SUPPORT_NO_EXPORT vq_uint32 used_states() const;
    ARBOR_QML_SUPPORT_NO_EXPORT SVqControlState* state_at(vq_int64 index) const;
    ARBOR_QML_SUPPORT_NO_EXPORT SVqControlState* current_state() const;
    ARBOR_QML_SUPPORT_NO_EXPORT int delete_state(vq_int64 index);

    template <class Out>
    ARBOR_QML_SUPPORT_NO_EXPORT void write_size_and_flags(Out& out) const;
    template <class Fields>
    ARBOR_QML_SUPPORT_NO_EXPORT int load_state(vq_uint32 number, const Fields& in);
    template <class Fields>
    ARBOR_QML_SUPPORT_NO_EXPORT void load_flags_and_type(const Fields& in);
};
