#pragma once

#include <QPointer>
#include <QQuickItem>

class CVqQuickControl;
class CVqQuickToolbarArea;

/// The place of one control in the scene, and its look within.
///
/// The look is made from the components of the area's ToolbarLooks, once, as soon as the item lies in an area
/// that has them; it fills the item, has the required property `control`, and moves along with the item.
/// Keyboard and screen reader come with the look. Not to be taken for a CVqQuickItemControl, which is a
/// control that hosts an item of the application's.
class CVqQuickControlItem : public QQuickItem
{
    Q_OBJECT

public:
    explicit CVqQuickControlItem(CVqQuickControl& control);

    CVqQuickControl& Control() const { return m_control; }

    /// Makes the look, when there is none yet and the area can give one.
    void EnsureLook();
    void DropLook();

    /// The look, or null.
    QQuickItem* Look() const { return m_look; }

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    CVqQuickControl& m_control; // owns this item
    QPointer<QQuickItem> m_look;
};
