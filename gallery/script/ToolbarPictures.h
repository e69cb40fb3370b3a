#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QQuickWindow;
QT_END_NAMESPACE

namespace Gallery {

class Session;

/// Writes pictures of the window's toolbars into `folder`, which is made when it is missing: at three widths,
/// the narrow one with the picker open, light and dark, from left to right and from right to left, and while
/// they are customised. The window is as it was afterwards. Gives what could not be written; empty after a
/// success.
QString TakeToolbarPictures(Session& session, QQuickWindow& window, const QString& folder);

}
