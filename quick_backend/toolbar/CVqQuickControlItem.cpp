#include "quick_backend/toolbar/CVqQuickControlItem.h"

#include "quick_backend/toolbar/CVqQuickToolbarArea.h"

#include <QQmlComponent>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

CVqQuickControlItem::CVqQuickControlItem(CVqQuickControl& control) : m_control(control)
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

void CVqQuickControlItem::EnsureLook()
{
    const auto* area = qobject_cast<CVqQuickToolbarArea*>(parentItem());
    if (m_look || !area || !area->Looks())
        return;
    QQmlComponent* component = area->Looks()->Of(m_control.GetKind());
    if (!component)
        return;
    QObject* made = component->createWithInitialProperties({{u"control"_s, QVariant::fromValue(&m_control)}},
                                                           component->creationContext());
    m_look = qobject_cast<QQuickItem*>(made);
    if (!m_look) {
        delete made;
        return;
    }
    m_look->setParent(this);
    m_look->setParentItem(this);
    m_look->setSize(size());
}

void CVqQuickControlItem::DropLook()
{
    delete m_look;
}

void CVqQuickControlItem::itemChange(ItemChange change, const ItemChangeData& data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemParentHasChanged && data.item)
        EnsureLook();
}

void CVqQuickControlItem::geometryChange(const QRectF& now, const QRectF& before)
{
    QQuickItem::geometryChange(now, before);
    if (m_look)
        m_look->setSize(now.size());
}
