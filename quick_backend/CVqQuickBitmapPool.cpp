#include "quick_backend/CVqQuickBitmapPool.h"

#include "quick_backend/images/CVqImageFinder.h"
#include "quick_backend/images/CVqImagePainter.h"
#include "quick_backend/images/CVqNoBitmapPool.h"
#include "quick_backend/images/CVqPoolIconEngine.h"
#include "quick_backend/images/CVqPoolImages.h"
#include "quick_backend/images/CVqQuickImageProvider.h"
#include "quick_backend/images/VqFittedDrawing.h"
#include "quick_backend/images/VqImageReader.h"
#include "quick_backend/images/VqImageSizes.h"
#include "system/CVqStringW.h"
#include "tile_assets/VqTileAssets.h"

#include <QCoreApplication>
#include <QDir>
#include <QQmlEngine>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Kind = CVqPoolImages::Kind;

constexpr int no_index = -1;
constexpr int failed = -9;
constexpr int not_found = -13;

QString to_qstring(const vq_wchar* text)
{
    return CVqStringW(text).ToQString();
}

// Red is in the lowest byte.
QRgb to_rgb(vq_uint32 colour)
{
    return qRgb(int(colour & 255), int(colour >> 8 & 255), int(colour >> 16 & 255));
}

QString folder_of_program()
{
    return QDir(QCoreApplication::applicationDirPath()).canonicalPath();
}

}

struct CVqQuickBitmapPool::SVqParts
{
    CVqImageFinder finder{folder_of_program()};
    // Shared with image providers and icons, which may live longer.
    std::shared_ptr<CVqPoolImages> images = std::make_shared<CVqPoolImages>();
    std::shared_ptr<CVqImagePainter> painter = std::make_shared<CVqImagePainter>();
};

CVqQuickBitmapPool::CVqQuickBitmapPool() : m_parts(std::make_unique<SVqParts>())
{
    AddModule(u"k7_tile_assets.dll"_s, VqTileAssetsRoot());
    instance(this);
}

CVqQuickBitmapPool::~CVqQuickBitmapPool()
{
    if (instance(nullptr) == this)
        CVqNoBitmapPool::Register();
}

void CVqQuickBitmapPool::AddImageProvider(QQmlEngine& engine)
{
    engine.addImageProvider(u"arbor"_s, new CVqQuickImageProvider(m_parts->images, m_parts->painter));
}

void CVqQuickBitmapPool::AddModule(const QString& name, const QString& root)
{
    m_parts->finder.Modules().Add(name, root);
}

void CVqQuickBitmapPool::SetCacheLimit(qsizetype bytes)
{
    m_parts->painter->Cache().SetLimit(bytes);
}

qsizetype CVqQuickBitmapPool::CacheLimit() const
{
    return m_parts->painter->Cache().Limit();
}

qsizetype CVqQuickBitmapPool::CachedBytes() const
{
    return m_parts->painter->Cache().Bytes();
}

QImage CVqQuickBitmapPool::TakeBitmap(vq_uint64 handle)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is the address of a picture.
    const std::unique_ptr<QImage> picture(reinterpret_cast<QImage*>(quintptr(handle)));
    return picture ? *picture : QImage();
}

int CVqQuickBitmapPool::imageSource(vq_uint32 index, CVqStringW& file, CVqStringW& resource)
{
    const SVqImageSource* source = m_parts->images->Source(index);
    if (!source)
        return not_found;
    file = CVqStringW::FromQString(source->file);
    resource = CVqStringW::FromQString(source->resource);
    return 0;
}

int CVqQuickBitmapPool::defaultModuleFileName(vq_wchar* buffer, int size)
{
    if (!buffer || size <= 0)
        return failed;
    const CVqStringW name = CVqStringW::FromQString(m_parts->finder.DefaultModule());
    const bool fits = name.GetLength() < size;
    const int length = fits ? name.GetLength() : 0;
    std::copy_n(name.GetString(), length, buffer);
    buffer[length] = 0;
    return fits ? 0 : failed;
}

int CVqQuickBitmapPool::addImage(QPixmap* pixmap, const vq_wchar* name)
{
    const QString text = to_qstring(name);
    if (!pixmap || text.isEmpty())
        return failed;
    const int known = m_parts->images->IndexOf(Kind::Name, text);
    if (known >= 0)
        return known;
    const SVqReadImage read = VqReadPixmap(*pixmap);
    return read.image ? m_parts->images->Add(Kind::Name, text, {text, {}}, read.image) : read.code;
}

int CVqQuickBitmapPool::addImage(const vq_wchar* file)
{
    return addImage(file, nullptr, nullptr);
}

int CVqQuickBitmapPool::addImage(const vq_wchar* file, const vq_wchar* module, const vq_wchar* resource)
{
    const QString first = to_qstring(file);
    const QString second = to_qstring(module);
    const QString third = to_qstring(resource);
    if (first == "NULL"_L1)
        return no_index;
    if (first.isEmpty() && (second.isEmpty() || third.isEmpty()))
        return failed;
    const bool is_name = second.isEmpty() && third.isEmpty();
    const int known = is_name ? m_parts->images->IndexOf(Kind::Name, first) : no_index;
    return known >= 0 ? known : AddFile(m_parts->finder.Find(first, second, third));
}

int CVqQuickBitmapPool::AddFile(const SVqFoundImage& found)
{
    if (found.path.isEmpty())
        return not_found;
    const int known = m_parts->images->IndexOf(Kind::File, found.path);
    if (known >= 0)
        return known;
    const SVqReadImage read = VqReadImageFile(found.path);
    return read.image ? m_parts->images->Add(Kind::File, found.path, found.source, read.image) : read.code;
}

int CVqQuickBitmapPool::addImageSVG(const vq_wchar* name, const char* svg)
{
    const QString text = to_qstring(name);
    if (text.isEmpty())
        return no_index;
    const int known = m_parts->images->IndexOf(Kind::Name, text);
    if (known >= 0)
        return known;
    const SVqReadImage read = VqReadSvg(svg);
    return read.image ? m_parts->images->Add(Kind::Name, text, {text, {}}, read.image) : no_index;
}

int CVqQuickBitmapPool::replaceImageSVG(const vq_wchar* name, const char* svg)
{
    const int known = m_parts->images->IndexOf(Kind::Name, to_qstring(name));
    const SVqReadImage read = known >= 0 ? VqReadSvg(svg) : SVqReadImage();
    if (!read.image)
        return no_index;
    m_parts->images->Replace(known, read.image);
    return known;
}

vq_uint64 CVqQuickBitmapPool::createBitmapFromSVG(const char* svg, vq_uint32 width, vq_uint32 height,
                                                  bool flag, vq_uint32 value)
{
    if (std::max(width, height) > vq_uint32(g_max_image_side))
        return 0;
    const SVqReadImage read = VqReadSvg(svg);
    if (!read.image)
        return 0;
    const SVqImageLook look{QIcon::Normal, flag ? std::optional(to_rgb(value)) : std::nullopt};
    const QImage picture = VqDrawFitted(*read.image, QSize(int(width), int(height)), look);
    return picture.isNull() ? 0 : quintptr(new QImage(picture));
}

void CVqQuickBitmapPool::imageSize(vq_uint32 index, vq_uint32& width, vq_uint32& height)
{
    const SVqPoolEntry* entry = m_parts->images->Entry(index);
    if (!entry)
        return;
    width = vq_uint32(entry->image->Size().width());
    height = vq_uint32(entry->image->Size().height());
}

int CVqQuickBitmapPool::replaceDebug(CVqStringW& name)
{
    const QString bare = m_parts->finder.BareName(name.ToQString());
    if (m_parts->images->IndexOf(Kind::Name, bare) >= 0) {
        name = CVqStringW::FromQString(bare);
        return 0;
    }
    const QString path = m_parts->finder.BesideModule(bare);
    if (!path.isEmpty())
        name = CVqStringW::FromQString(path);
    return 0;
}

int CVqQuickBitmapPool::getImage(const vq_wchar* name)
{
    const QString text = to_qstring(name);
    const int known = m_parts->images->IndexOf(Kind::Name, text);
    return known >= 0 ? known : m_parts->images->IndexOf(Kind::File, m_parts->finder.File(text).path);
}

QIcon CVqQuickBitmapPool::getIcon(vq_uint32 index)
{
    const SVqPoolEntry* entry = m_parts->images->Entry(index);
    return entry ? QIcon(new CVqPoolIconEngine(*entry, m_parts->painter)) : QIcon();
}

QPixmap CVqQuickBitmapPool::getPixmap(vq_uint32 index, int width, int height)
{
    const SVqPoolEntry* entry = m_parts->images->Entry(index);
    if (!entry)
        return {};
    const QSize size = VqRequestedSize(entry->image->Size(), width, height);
    return m_parts->painter->Fitted(*entry, size, QIcon::Normal);
}

QPixmap CVqQuickBitmapPool::getPixmapFromSVG(const char* svg, int width, int height)
{
    const SVqReadImage read = VqReadSvg(svg);
    if (!read.image)
        return {};
    const QSize size = VqRequestedSize(read.image->Size(), width, height);
    const SVqImageLook look{QIcon::Normal, m_parts->painter->Inks().Ink(QIcon::Normal)};
    return QPixmap::fromImage(VqDrawFitted(*read.image, size, look));
}

void CVqQuickBitmapPool::drawOptimalImage(QPainter* painter, vq_uint32 index, int x, int y, int width,
                                          int height, bool flag1, bool flag2)
{
    const SVqPoolEntry* entry = m_parts->images->Entry(index);
    if (painter && entry)
        m_parts->painter->Paint(*painter, *entry, {x, y, width, height}, flag1,
                                flag2 ? QIcon::Disabled : QIcon::Normal);
}
