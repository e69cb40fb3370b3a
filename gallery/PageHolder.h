#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QUrl>
#include <QVariantList>

QT_BEGIN_NAMESPACE
class QQmlComponent;
class QQmlEngine;
QT_END_NAMESPACE

namespace Gallery {

/// Shows a page as large as itself, loads it again on demand, and tells what is wrong with one that does not
/// load. Unlike QML's Loader it gives the errors with file and line, and a page sees nothing of the item that
/// holds it. Addresses are those of local files and of compiled resources.
class PageHolder : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QUrl source READ Source WRITE SetSource NOTIFY SourceChanged)
    Q_PROPERTY(QQuickItem* page READ Page NOTIFY Loaded)
    Q_PROPERTY(QVariantList errors READ Errors NOTIFY Loaded)

public:
    explicit PageHolder(QQuickItem* parent = nullptr);

    const QUrl& Source() const { return m_source; }
    void SetSource(const QUrl& source);

    /// The page that shows; null when there is none. Owned.
    QQuickItem* Page() const { return m_page; }

    /// Why there is no page; empty when there is one, or no source. Each is a map of "file" (a path or
    /// address), "line" (0: of no line) and "text"; causes stand behind what they caused.
    const QVariantList& Errors() const { return m_errors; }

    /// Loads the page anew from its file, with all types that it uses. Not to be called by the page itself,
    /// which is gone at once.
    Q_INVOKABLE void reload();

Q_SIGNALS:
    void SourceChanged();
    /// A page, or what is wrong with it, has taken the place of the former one.
    void Loaded();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF& now, const QRectF& former) override;

private:
    void load();
    void drop();
    void create(QQmlComponent& component, QQmlEngine& engine);
    void take(QObject* root, QQmlComponent& component);

    QUrl m_source;
    QPointer<QQuickItem> m_page;
    QVariantList m_errors;
};

}
