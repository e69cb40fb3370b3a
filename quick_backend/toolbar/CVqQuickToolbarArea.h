#pragma once

// QML: ToolbarArea, made by a toolbar only. Properties `looks`, `mirrored`, `vertical`, `inPicker`,
// `background`, `customizing`; implicit sizes; functions nextControl(control, step), entryControl(),
// setEntryControl(control), controlAt(x, y), controlOf(item).

#include "arbor_quick_backend_export.h"
#include "quick_backend/toolbar/CVqQuickControl.h"
#include "quick_backend/toolbar/CVqQuickToolbarLooks.h"

#include <QColor>
#include <QQuickItem>

#include <functional>

/// The item in which the controls of one toolbar lie: give it a parent and a size, and it lays them out
/// before the next frame. Its implicit size is what the toolbar needs to show everything, and its breadth.
///
/// Belongs to the toolbar. It may change its parent item as it likes; without one nothing shows. GUI thread.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickToolbarArea : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ToolbarArea)
    QML_UNCREATABLE("The area belongs to its toolbar.")
    Q_PROPERTY(CVqQuickToolbarLooks* looks READ Looks WRITE SetLooks NOTIFY looksChanged FINAL)
    Q_PROPERTY(bool mirrored READ IsMirrored WRITE SetMirrored NOTIFY mirroredChanged FINAL)
    Q_PROPERTY(bool vertical READ IsVertical NOTIFY appearanceChanged FINAL)
    Q_PROPERTY(bool inPicker READ IsInPicker CONSTANT FINAL)
    Q_PROPERTY(QColor background READ Background NOTIFY appearanceChanged FINAL)
    Q_PROPERTY(bool customizing READ IsCustomizing NOTIFY appearanceChanged FINAL)

public:
    /// Lays the controls out within the size; called before a frame when something changed.
    using LayoutFunction = std::function<void()>;

    /// The shown controls in their order.
    using ControlsFunction = std::function<QList<CVqQuickControl*>()>;

    CVqQuickToolbarArea(LayoutFunction layout, ControlsFunction controls, bool in_picker);
    ~CVqQuickToolbarArea() override;

    CVqQuickToolbarLooks* Looks() const { return m_looks; }
    void SetLooks(CVqQuickToolbarLooks* looks);

    /// Whether a horizontal toolbar begins at the right.
    bool IsMirrored() const { return m_mirrored; }
    void SetMirrored(bool mirrored);

    /// Whether it is the one in a picker's popup.
    bool IsInPicker() const { return m_in_picker; }

    bool IsVertical() const { return m_vertical; }
    QColor Background() const { return m_background; }

    /// Whether buttons are dragged instead of pressed.
    bool IsCustomizing() const { return m_customizing; }

    // Keyboard: the controls in reading order, those that are shown, enabled and no separators; while the
    // toolbar is customised, all that are shown ----------------------------------------------------------

    /// The next control from `from` in direction `step` (1 or -1) that can take the keyboard, round the ends;
    /// from null the first or the last. Null when there is none.
    Q_INVOKABLE CVqQuickControl* nextControl(CVqQuickControl* from, int step) const;

    /// The control that Tab goes to: the one that had the keyboard last, else the first.
    Q_INVOKABLE CVqQuickControl* entryControl() const;

    /// `control` has the keyboard now.
    Q_INVOKABLE void setEntryControl(CVqQuickControl* control) { m_entry = control; }

    /// The shown control at a place of the area, or null.
    Q_INVOKABLE CVqQuickControl* controlAt(qreal x, qreal y) const;

    /// The control of this area to which an item belongs, as its look or as something in it; null for none.
    Q_INVOKABLE CVqQuickControl* controlOf(QQuickItem* item) const;

    // For the toolbar ------------------------------------------------------------------------------------

    /// The implicit size: what shows every control.
    void SetFullSize(const CVqSizeBase<int>& size) { setImplicitSize(size.m_iWidth, size.m_iHeight); }
    void SetAppearance(bool vertical, const QColor& background, bool customizing);

Q_SIGNALS:
    void looksChanged();
    void mirroredChanged();
    void appearanceChanged();

protected:
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void updatePolish() override;

private:
    ARBOR_QUICK_BACKEND_NO_EXPORT QList<CVqQuickControl*> stops() const;
    ARBOR_QUICK_BACKEND_NO_EXPORT void refresh_looks();

    const LayoutFunction m_layout;
    const ControlsFunction m_controls;
    QPointer<CVqQuickControl> m_entry;
    QPointer<CVqQuickToolbarLooks> m_looks;
    QColor m_background; // invalid for none
    const bool m_in_picker;
    bool m_mirrored = false;
    bool m_vertical = false;
    bool m_customizing = false;
};
