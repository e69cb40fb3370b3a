#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QQmlError;
QT_END_NAMESPACE

namespace Gallery {

/// A line for each of `errors`: "FILE:LINE: text", without the line where the error has none. A local file
/// stands there with its path.
QStringList QmlErrorLines(const QList<QQmlError>& errors);

}
