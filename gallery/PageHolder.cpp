#include "gallery/PageHolder.h"

#include <QQmlComponent>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QVariantMap error_row(const QUrl& url, int line, const QString& text)
{
    return {{u"file"_s, url.isLocalFile() ? url.toLocalFile() : url.toString()},
            {u"line"_s, qMax(line, 0)},
            {u"text"_s, text}};
}

QVariantList error_rows(const QList<QQmlError>& errors)
{
    QVariantList rows;
    for (const QQmlError& error : errors)
        rows << error_row(error.url(), error.line(), error.description());
    return rows;
}

}

PageHolder::PageHolder(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
}

void PageHolder::SetSource(const QUrl& source)
{
    if (source == m_source)
        return;
    m_source = source;
    Q_EMIT SourceChanged();
    if (isComponentComplete())
        load();
}

void PageHolder::reload()
{
    delete m_page; // what is cleared away below, a living page would still run
    qmlEngine(this)->clearComponentCache();
    load();
}

void PageHolder::componentComplete()
{
    QQuickItem::componentComplete();
    load();
}

void PageHolder::geometryChange(const QRectF& now, const QRectF& former)
{
    QQuickItem::geometryChange(now, former);
    if (m_page)
        m_page->setSize(now.size());
}

void PageHolder::load()
{
    drop();
    m_errors.clear();
    if (!m_source.isEmpty()) {
        QQmlEngine& engine = *qmlEngine(this);
        QQmlComponent component(&engine, m_source);
        create(component, engine);
    }
    Q_EMIT Loaded();
}

// Later, as it may be the page itself that asks for another one.
void PageHolder::drop()
{
    if (!m_page)
        return;
    m_page->setParentItem(nullptr);
    m_page->deleteLater();
    m_page = nullptr;
}

void PageHolder::create(QQmlComponent& component, QQmlEngine& engine)
{
    if (QObject* root = component.isReady() ? component.beginCreate(engine.rootContext()) : nullptr)
        take(root, component);
    else
        m_errors = error_rows(component.errors());
}

void PageHolder::take(QObject* root, QQmlComponent& component)
{
    m_page = qobject_cast<QQuickItem*>(root);
    if (m_page) {
        m_page->setParent(this);
        m_page->setParentItem(this);
        m_page->setSize(size());
        m_page->setFocus(true);
    }
    component.completeCreate();
    if (component.isError()) // such as a required property that nobody gave
        m_errors = error_rows(component.errors());
    else if (!m_page)
        m_errors << error_row(component.url(), 0, tr("The root of a page must be an item."));
    if (m_errors.isEmpty())
        return;
    m_page = nullptr;
    delete root;
}

}
