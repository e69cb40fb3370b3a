#pragma once

#include <QUrl>

#include <optional>

namespace Gallery {

/// Where the page that a user names lies: one of the gallery's own by its name, a compiled resource by its
/// "qrc:" address, through FindQmlResource(), or a local file by its path. Nothing: there is no such page or
/// file; `error` says so in one sentence.
std::optional<QUrl> PageAddress(const QString& name, QString& error);

}
