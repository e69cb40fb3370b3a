#pragma once

#include "system/VqTypes.h"

#include <QString>

namespace Gallery {

/// Whether the icons have an image `name`, such as "copy". Lower case only, as the files are named.
bool HasMenuImage(const QString& name);

/// Adds the image `name` of the icons to the image pool. Its index, or the pool's negative code: -12 without
/// a pool.
int AddMenuImage(const QString& name);

}
