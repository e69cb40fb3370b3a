#pragma once

#include "gallery/render/RenderJob.h"

#include <QStringList>

#include <chrono>
#include <memory>

QT_BEGIN_NAMESPACE
class QQmlEngine;
class QQuickItem;
class QUrl;
QT_END_NAMESPACE

namespace Gallery {

/// How long a file may take to come, over a network too.
constexpr std::chrono::seconds g_longest_load{10};

/// What is wrong with a file whose root cannot be drawn.
QString NoItemSentence(const QUrl& url);

/// What is wrong with a file that does not come.
QString NotLoadedSentence(const QUrl& url);

/// Makes the page of `url` and gives its root `values` before it is complete, so that required properties may
/// be among them. Runs the event loop while the file comes. `errors` has to be empty before. Null: `errors`
/// has a line for each reason.
std::unique_ptr<QQuickItem> MakePage(QQmlEngine& engine, const QUrl& url, const QList<RenderValue>& values,
                                     QStringList& errors);

}
