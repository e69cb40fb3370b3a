#pragma once

#include <QString>

class CVqVariant;

namespace Gallery {

/// Reads a file in the stored form into `tree`. Gives why that is not possible, in words that go on from the
/// name of the file and a colon; empty after a success. `tree` then stays as it was.
///
/// Only files of up to 16 MiB are read, and no pipes and devices.
QString ReadStoredTree(const QString& name, CVqVariant& tree);

/// Writes `tree` to the file `name`, whole or not at all; its folder is made. Gives why that failed, as
/// above.
QString WriteStoredTree(const QString& name, const CVqVariant& tree);

}
