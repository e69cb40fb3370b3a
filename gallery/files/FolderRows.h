#pragma once

#include <QString>
#include <QVariantList>

namespace Gallery {

/// What lies in `folder`, one map a file or folder, in the order of their names. Hidden files are left out.
///
/// `words`, with blanks or semicolons between them, choose the names, whatever the case: "*.png" and other
/// patterns match whole names, a word without "*", "?" and "[" any name that has it in it. Without words all
/// names are taken.
///
/// The entries: "name" and "path"; "folder", whether it is one; "size" in bytes, -1 for a folder, and
/// "sizeText" as people read it, empty for a folder; "stamp", the time of the last change in ms since 1970,
/// and "changed" as "yyyy-MM-dd HH:mm"; "order", the name behind a digit that puts folders in front of files.
QVariantList ReadFolder(const QString& folder, const QString& words);

}
