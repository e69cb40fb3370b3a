#pragma once

#include "AbstractGui/EOrientation.h"
#include "arbor_qml_support_export.h"
#include "system/CVqRectBase.h"
#include "system/CVqSizeBase.h"
#include "system/VqTypes.h"

class CVqLiteVariantR;
class CVqLiteVariantW;
class CVqStringW;
class CVqVariant;

/// What happened to a control. Defined by the layer that makes the widgets, each with fields of its own: here
/// it is only handed on by reference from a control to whoever listens.
struct SVqUiEvent;

/// What every control of a toolbar fulfils. CVqAbstractControl does it without a widget; concrete controls
/// derive from that one.
///
/// Operations that return `int` give 0 for success and a negative code otherwise. Sizes and positions are in
/// pixels. All calls come on the GUI thread. The order of the operations is part of the binary interface.
class ARBOR_QML_SUPPORT_EXPORT IVqUIcontrol
{
public:
    /// Takes the control to which something happened, and what it was.
    using handler_type = bool (*)(IVqUIcontrol* control, SVqUiEvent& event);

    /// Paints a control in place of its own painting, in `rect`, which counts in pixels. `device` and the
    /// result are numbers between callback and widget layer.
    using paint_callback_type
        = int (*)(vq_uint64 device, CVqRectBase<int> rect, IVqUIcontrol* control, void* data);

    /// Writes the size that a control should have to `size`. The result is not looked at.
    using size_callback_type = int (*)(CVqSizeBase<int>& size, IVqUIcontrol* control, void* data);

    virtual ~IVqUIcontrol();

    /// Sets who is told of events, or null, and returns the previous one.
    virtual handler_type SetHandler(handler_type handler) = 0;
    virtual handler_type GetHandler() = 0;

    /// Makes the widget within the one of handle `parent`, or within none for 0. Gives its handle, or 0 when
    /// there is none. What a handle is, is the widget layer's affair.
    virtual vq_uint64 CreateUI(vq_uint64 parent) = 0;

    /// Ends the widget's life; the control stays.
    virtual void DestroyUI() = 0;

    /// Deletes the control, at once or as soon as it may be.
    virtual void MarkToDeleteItself() = 0;

    /// Reads the fields of the level in which `in` stands, or the children of `in` and its name. -9 when
    /// something is missing; the rest is read all the same.
    virtual int Load(CVqLiteVariantR& in) = 0;
    virtual int Load(const CVqVariant& in) = 0;

    /// Writes a level with the control's name.
    virtual int Save(CVqLiteVariantW& out) = 0;

    /// Fills `out` and gives it the control's name.
    virtual int Save(CVqVariant& out) = 0;

    /// Reads, sets or does what the code says: see VqControlCodes.h. `data` points to a value of the type
    /// that the code tells, which is copied; the codes of the picker pass the pointer itself. `index` is the
    /// number of a state, where the code tells of one. -9 for a code that the control doesn't know.
    virtual int Get(unsigned code, vq_int64 index, void* data) = 0;
    virtual int Set(unsigned code, vq_int64 index, void* data) = 0;
    virtual int Command(unsigned code, vq_int64 index, void* data) = 0;

    /// A disabled control takes no input.
    virtual int Enable(bool enable) = 0;
    virtual bool IsEnabled() = 0;

    virtual void SetFlatStyle(bool flat) = 0;
    virtual void SetBoldText(bool bold) = 0;
    virtual void SetUnderlineText(bool underline) = 0;

    /// Bits 4 and 5 of `align` say where the text stands; the others are not looked at.
    virtual int SetTextAlign(unsigned align) = 0;

    /// Who paints the control, or null. `data` is handed on and not owned.
    virtual int SetPaintCallback(paint_callback_type callback, void* data) = 0;

    /// Who is asked for the control's size, or null. `data` is handed on and not owned.
    virtual int SetSizeCallback(size_callback_type callback, void* data) = 0;

    /// Writes the size that the control wants to `size`, or leaves it when it wants none. `value` is for
    /// concrete controls; callers without a wish pass -1.
    virtual int GetControlSize(CVqSizeBase<int>& size, int value) = 0;

    /// A side of 0 leaves the size to the control again.
    virtual int SetControlSize(const CVqSizeBase<int>& size) = 0;

    /// Where the control lies on its toolbar.
    virtual int SetControlPos(const CVqRectBase<int>& rect) = 0;

    /// A hidden control takes no room on its toolbar.
    virtual void SetControlVisibility(bool visible) = 0;
    virtual bool GetControlVisibility() = 0;

    /// What CreateUI() gave, or 0 without a widget.
    virtual vq_uint64 GetWindowHandle() = 0;

    /// The tooltip of all states at once, and that of the first state.
    virtual void SetDesriptionText(CVqStringW& text) = 0;
    virtual void GetDesriptionText(CVqStringW& text) = 0;

    virtual int SetOrientation(EOrientation orientation) = 0;

    /// The address of the name's text, by which a toolbar knows the control: a `const vq_wchar*` as a number,
    /// never 0. It may change whenever the name does.
    virtual vq_uint64 GetControlID() = 0;
};
