#pragma once

// QML: QuickControl, made in C++ only. Beside `type`, `state`, `bitmap` and `label`: `kind`, `name`, `text`,
// `imageIndex`, `tooltip`, `command`, `keyText`, `checkable`, `checked`, `enabled`, `flat`, `vertical`,
// `zoom`, `textPlace`, `dropDown`, `inPicker`, `item`; functions trigger(), openDropDown(x, y),
// openContextMenu(x, y).

#include "AbstractGui/CVqAbstractControl.h"
#include "arbor_quick_backend_export.h"

#include <QPointer>
#include <QtQmlIntegration>

class CVqQuickControlItem;
class IVqQuickControlOwner;
class QQuickItem;
struct SVqUiEvent;

/// A control that Qt Quick draws: the abstract control, an item in the scene and what QML reads of it.
///
/// CreateUI() makes the item and hangs it below the item whose address it gets; the address of the new item
/// is the handle. The item is a plain frame of the control's size and place: its look, a QML component, comes
/// from the ToolbarLooks of the area in which it lies, as soon as there is one. The item and its look live
/// until DestroyUI() and move as they are when the control goes into the picker and back.
///
/// Codes that this class answers beside those of the abstract one: vq_control_state_count (Set and Get; at
/// most 32 states, more gives -9; a new state is empty), vq_control_enlarge and vq_control_zoom (Set; zoom
/// only counts while the toolbar enlarges, and one that is not above 0 gives -9). Null data gives -9.
///
/// Belongs to C++, whatever QML is given it. GUI thread only.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickControl : public CVqAbstractControl
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QuickControl)
    QML_UNCREATABLE("Controls are made by their toolbar.")
    Q_MOC_INCLUDE(<QQuickItem>)
    Q_PROPERTY(Kind kind READ GetKind CONSTANT FINAL)
    Q_PROPERTY(QString name READ Name NOTIFY lookChanged FINAL)
    Q_PROPERTY(QString text READ Text NOTIFY lookChanged FINAL)
    Q_PROPERTY(int imageIndex READ ImageIndex NOTIFY lookChanged FINAL)
    Q_PROPERTY(QString tooltip READ Tooltip NOTIFY lookChanged FINAL)
    Q_PROPERTY(QString command READ CommandText NOTIFY lookChanged FINAL)
    Q_PROPERTY(QString keyText READ KeyText WRITE SetKeyText NOTIFY lookChanged FINAL)
    Q_PROPERTY(bool checkable READ IsCheckable WRITE SetCheckable NOTIFY lookChanged FINAL)
    Q_PROPERTY(bool checked READ IsChecked NOTIFY lookChanged FINAL)
    Q_PROPERTY(bool enabled READ IsEnabledNow NOTIFY lookChanged FINAL)
    Q_PROPERTY(bool flat READ IsFlat NOTIFY lookChanged FINAL)
    Q_PROPERTY(bool vertical READ IsVertical NOTIFY lookChanged FINAL)
    Q_PROPERTY(double zoom READ Zoom NOTIFY lookChanged FINAL)
    Q_PROPERTY(TextPlace textPlace READ GetTextPlace NOTIFY lookChanged FINAL)
    Q_PROPERTY(bool dropDown READ HasDropDown NOTIFY lookChanged FINAL)
    Q_PROPERTY(bool inPicker READ IsInPicker NOTIFY lookChanged FINAL)
    Q_PROPERTY(QQuickItem* item READ Item NOTIFY itemChanged FINAL)

public:
    /// What it is; also the type that the abstract control is made with.
    enum Kind
    {
        Button = 0,
        TextButton = 1,
        Separator = 2,
        Picker = 3,
        General = 4,
    };
    Q_ENUM(Kind)

    /// Where the text stands beside the image: the alignment bits of SetTextAlign().
    enum TextPlace
    {
        TextBehind = 0, ///< To the right of the image; to its left in a mirrored layout.
        TextBelow = 0x10,
        TextBefore = 0x20,
        TextAbove = 0x30,
    };
    Q_ENUM(TextPlace)

    ~CVqQuickControl() override;

    Kind GetKind() const { return m_kind; }
    QString Name() const;

    /// Of the current state; empty, or -1 for no image, when it lies outside the states in use.
    QString Text() const;
    int ImageIndex() const;
    QString Tooltip() const;
    QString CommandText() const;

    /// The key of the command, as it is to be shown; not stored with the control.
    QString KeyText() const { return m_key_text; }
    void SetKeyText(const QString& text);

    /// Whether it is drawn and announced as something that is on or off; on by itself once it was checked.
    bool IsCheckable() const { return m_checkable || IsChecked(); }
    void SetCheckable(bool checkable);
    bool IsChecked() const { return (m_uiFlags & Checked) != 0; }
    bool IsEnabledNow() const { return (m_uiFlags & Disabled) == 0; }
    bool IsFlat() const { return (m_uiStyle & FlatStyle) != 0; }
    bool IsVertical() const { return m_eOrientation != EOrientation::Horizontal; }

    /// How many times larger than by itself it is drawn: the toolbar's additional zoom while it enlarges,
    /// else 1.
    double Zoom() const { return m_enlarged ? m_dZoom : 1.0; }
    TextPlace GetTextPlace() const { return TextPlace(m_uiStyle & TextAlignMask); }

    /// Whether an arrow opens something: code vq_control_value holds the identifier of a popup in the
    /// toolbar's menu, 0 for none.
    bool HasDropDown() const { return m_uiValue != 0; }
    vq_uint32 DropDownId() const { return m_uiValue; }

    /// What draws it, from CreateUI() to DestroyUI(); null else.
    QQuickItem* Item() const;

    // For the toolbar that holds it ----------------------------------------------------------------------

    /// Who is told of changes and events, or null.
    void SetOwner(IVqQuickControlOwner* owner) { m_owner = owner; }

    /// Whether the control takes room and is drawn: visible, not hidden in the store of hidden buttons, and
    /// not hidden with its command. Only the first is the control's own and is stored with it; the toolbar
    /// tells the others.
    bool IsShown() const { return m_bVisible && !m_listed_as_hidden && !m_hidden_by_command; }
    bool IsListedAsHidden() const { return m_listed_as_hidden; }
    void SetListedAsHidden(bool hidden);
    bool IsHiddenByCommand() const { return m_hidden_by_command; }
    void SetHiddenByCommand(bool hidden);

    /// Whether it lies in the picker now.
    bool IsInPicker() const { return m_in_picker; }
    void SetInPicker(bool in_picker);

    /// The size that it wants by itself, in logical pixels, with its zoom.
    virtual CVqSizeBase<int> NaturalSize() const = 0;

    // For its look ---------------------------------------------------------------------------------------

    /// Hands an event to the control's handler, and, unless that gives true, to its owner. A disabled control
    /// hands on nothing but ContextMenu. The control may be gone afterwards.
    void Send(SVqUiEvent event);

    /// Each sends its event when the event loop is back, since what follows may end the look that asks.
    /// Places are logical pixels of the window.
    Q_INVOKABLE void trigger();
    Q_INVOKABLE void openDropDown(qreal x, qreal y);
    Q_INVOKABLE void openContextMenu(qreal x, qreal y);

    // IVqUIcontrol ---------------------------------------------------------------------------------------

    vq_uint64 CreateUI(vq_uint64 parent) override;
    void DestroyUI() override;

    /// Deletes the control when the event loop is back, since its own look may be what asks for it.
    void MarkToDeleteItself() override;

    int Load(CVqLiteVariantR& in) override;
    int Load(const CVqVariant& in) override;
    int Get(unsigned code, vq_int64 index, void* data) override;
    int Set(unsigned code, vq_int64 index, void* data) override;
    int Command(unsigned code, vq_int64 index, void* data) override;
    void SetFlatStyle(bool flat) override;
    int SetTextAlign(unsigned align) override;

    /// The abstract control's answer where it gives one, else NaturalSize(), which a size callback finds in
    /// `size`.
    int GetControlSize(CVqSizeBase<int>& size, int value) override;
    int SetControlSize(const CVqSizeBase<int>& size) override;

    /// Places the item in the area that it lies in.
    int SetControlPos(const CVqRectBase<int>& rect) override;
    vq_uint64 GetWindowHandle() override;
    void SetDesriptionText(CVqStringW& text) override;
    int SetOrientation(EOrientation orientation) override;

Q_SIGNALS:
    /// Something that the look shows, besides what the signals of the abstract control tell.
    void lookChanged();
    void itemChanged();

protected:
    explicit CVqQuickControl(Kind kind);

    /// No side of a control is longer.
    static constexpr int LargestSide = 1'000'000;

    /// A length that is `pixels` at zoom 1.
    int Zoomed(int pixels) const;

    /// Tells look and owner that something changed that both depend on.
    void Changed();

    /// The record of the current state, or null when it lies outside the states in use.
    const SVqControlState* CurrentState() const;

private:
    template <class Value>
    ARBOR_QUICK_BACKEND_NO_EXPORT void assign(Value& member, const Value& value);
    ARBOR_QUICK_BACKEND_NO_EXPORT int set_state_count(vq_uint32 count);
    ARBOR_QUICK_BACKEND_NO_EXPORT int set_zoom(double zoom);
    ARBOR_QUICK_BACKEND_NO_EXPORT int set_abstract(unsigned code, vq_int64 index, void* data);

    const Kind m_kind;
    IVqQuickControlOwner* m_owner = nullptr; // not owned
    QPointer<CVqQuickControlItem> m_item;    // owned
    QString m_key_text;
    bool m_checkable = false;
    bool m_enlarged = true;
    bool m_listed_as_hidden = false;
    bool m_hidden_by_command = false;
    bool m_in_picker = false;
};
