#pragma once

#include <QString>

// How stored menus name images: see VqImageReference.h. `folder` is that of the default module.

/// The bare name in a text that has it directly behind the folder, or that is a bare name; otherwise an empty
/// text.
QString VqBareImageName(const QString& text, const QString& folder);

/// "/app/img/a.png" of "/app/img/a.pngimga.png" where the folder is "/app": the file in front of the way to
/// it. Empty for a text of another form.
QString VqImageWithoutWay(const QString& text, const QString& folder);
