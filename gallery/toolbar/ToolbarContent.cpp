#include "gallery/toolbar/ToolbarContent.h"

#include "gallery/Pages.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace Gallery {

ToolbarContent::ToolbarContent(const QString& file) : m_file(file) { }

void ToolbarContent::SetVertical(bool vertical)
{
    m_vertical = vertical;
    if (m_root && m_root->metaObject()->indexOfProperty("vertical") >= 0)
        m_root->setProperty("vertical", vertical);
}

void ToolbarContent::itemChange(ItemChange change, const ItemChangeData& data)
{
    QQuickItem::itemChange(change, data);
    QQmlEngine* engine = change == ItemSceneChange && data.window ? qmlEngine(data.window) : nullptr;
    if (engine && !m_root)
        make_root(*engine);
}

void ToolbarContent::geometryChange(const QRectF& now, const QRectF& before)
{
    QQuickItem::geometryChange(now, before);
    if (m_root)
        m_root->setSize(now.size());
}

void ToolbarContent::make_root(QQmlEngine& engine)
{
    QQmlComponent component(&engine, GalleryUrl(m_file + u".qml"_s));
    QObject* object = component.isReady() ? component.create() : nullptr;
    m_root = qobject_cast<QQuickItem*>(object);
    if (!m_root) {
        delete object;
        qWarning().noquote() << component.errorString();
        return;
    }
    m_root->setParent(this);
    m_root->setParentItem(this);
    connect(m_root, &QQuickItem::implicitWidthChanged, this, &ToolbarContent::follow_root);
    connect(m_root, &QQuickItem::implicitHeightChanged, this, &ToolbarContent::follow_root);
    SetVertical(m_vertical);
    m_root->setSize(size());
    follow_root();
}

void ToolbarContent::follow_root()
{
    setImplicitSize(m_root->implicitWidth(), m_root->implicitHeight());
}

}
