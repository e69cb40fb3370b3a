#pragma once

#include <QStringList>
#include <QUrl>

namespace Gallery {

/// The pages of the window, in their order; each is the name of a QML file in pages/, without its extension.
QStringList PageNames();

/// The title of the page `name`, in the language that is installed.
QString PageTitle(const QString& name);

/// The compiled resource of the page `name`, one of PageNames().
QUrl PageUrl(const QString& name);

/// The compiled resource of one of the gallery's own QML files; `path` is relative to gallery/, such as
/// "Main.qml". FindQmlResource() tells where such an address leads.
QUrl GalleryUrl(const QString& path);

}
