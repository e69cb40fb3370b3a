#include "tile_assets/VqTileAssets.h"

using namespace Qt::StringLiterals;

QString VqTileAssetsRoot()
{
    return u":/tile_assets"_s;
}
