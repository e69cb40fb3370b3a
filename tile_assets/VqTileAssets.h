#pragma once

#include "arbor_tile_assets_export.h"

#include <QString>

/// The folder of compiled resources that the icons are in: ":/tile_assets". Calling it sees to it that a
/// program has them, also where linkers leave out a library of which nothing is used.
ARBOR_TILE_ASSETS_EXPORT QString VqTileAssetsRoot();
