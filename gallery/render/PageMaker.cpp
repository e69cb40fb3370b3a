#include "gallery/render/PageMaker.h"

#include "gallery/live/QmlErrorLines.h"
#include "gallery/render/PropertyText.h"
#include "gallery/script/WaitFor.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QVariantMap read_values(QObject& root, const QList<RenderValue>& values, QStringList& errors)
{
    QVariantMap result;
    for (const RenderValue& value : values) {
        QString error;
        if (const std::optional<QVariant> read = ReadPropertyText(root, value, error))
            result.insert(value.name, *read);
        else
            errors << error;
    }
    return result;
}

/// Null: the component has errors, or a value does not fit. A creation that has begun is completed all the
/// same, since the component must not die on the way.
std::unique_ptr<QObject> make(QQmlComponent& component, const QList<RenderValue>& values, QStringList& errors)
{
    std::unique_ptr<QObject> root(component.beginCreate(component.engine()->rootContext()));
    if (root)
        component.setInitialProperties(root.get(), read_values(*root, values, errors));
    component.completeCreate();
    return root;
}

}

QString NoItemSentence(const QUrl& url)
{
    return u"%1: the root is no item, so there is nothing to draw."_s.arg(
        url.toString(QUrl::PreferLocalFile));
}

QString NotLoadedSentence(const QUrl& url)
{
    return u"%1: it has not come within %2 seconds."_s.arg(url.toString(QUrl::PreferLocalFile))
        .arg(g_longest_load.count());
}

std::unique_ptr<QQuickItem> MakePage(QQmlEngine& engine, const QUrl& url, const QList<RenderValue>& values,
                                     QStringList& errors)
{
    QQmlComponent component(&engine, url);
    if (component.isLoading())
        WaitFor(component, &QQmlComponent::statusChanged, g_longest_load);
    std::unique_ptr<QObject> root;
    if (component.isReady())
        root = make(component, values, errors);
    else if (component.isLoading())
        errors << NotLoadedSentence(url);
    if (errors.isEmpty())
        errors = QmlErrorLines(component.errors());
    if (errors.isEmpty() && !qobject_cast<QQuickItem*>(root.get()))
        errors << NoItemSentence(url);
    if (!errors.isEmpty())
        return {};
    return std::unique_ptr<QQuickItem>(static_cast<QQuickItem*>(root.release()));
}

}
