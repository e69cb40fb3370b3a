#include "gallery/menu/MenuImage.h"

#include "AbstractGui/CVqAbstractBitmapPool.h"
#include "tile_assets/VqTileAssets.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr vq_wchar g_module[] = VQ_TEXT("k7_tile_assets.dll");

}

bool HasMenuImage(const QString& name)
{
    static const QStringList icons = QDir(VqTileAssetsRoot()).entryList({u"*.svg"_s});
    return icons.contains(name + u".svg"_s);
}

int AddMenuImage(const QString& name)
{
    return CVqAbstractBitmapPool::AddImage(g_module, name.toUpper().toStdU16String().c_str(), nullptr);
}

}
