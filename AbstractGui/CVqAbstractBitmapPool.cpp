#include "AbstractGui/CVqAbstractBitmapPool.h"

#include "system/CVqStringA.h"
#include "system/CVqStringW.h"

#include <QFile>

namespace {

constexpr int failed = -12;
constexpr int no_index = -1;
constexpr int cannot_open = -13;

CVqAbstractBitmapPool* registered_pool = nullptr; // not owned

}

CVqAbstractBitmapPool* CVqAbstractBitmapPool::instance(CVqAbstractBitmapPool* pool)
{
    if (pool)
        registered_pool = pool;
    return registered_pool;
}

int CVqAbstractBitmapPool::GetImageSource(vq_uint32 index, CVqStringW& file, CVqStringW& resource)
{
    return registered_pool ? registered_pool->imageSource(index, file, resource) : failed;
}

int CVqAbstractBitmapPool::GetDefaultModuleFileName(vq_wchar* buffer, int size)
{
    return registered_pool ? registered_pool->defaultModuleFileName(buffer, size) : failed;
}

int CVqAbstractBitmapPool::ReplaceDebug(CVqStringW& name)
{
    return registered_pool ? registered_pool->replaceDebug(name) : failed;
}

int CVqAbstractBitmapPool::AddImage(QPixmap* pixmap, const vq_wchar* name)
{
    return registered_pool ? registered_pool->addImage(pixmap, name) : failed;
}

int CVqAbstractBitmapPool::AddImage(const vq_wchar* file)
{
    return registered_pool ? registered_pool->addImage(file) : failed;
}

int CVqAbstractBitmapPool::AddImage(const vq_wchar* file, const vq_wchar* module, const vq_wchar* resource)
{
    return registered_pool ? registered_pool->addImage(file, module, resource) : failed;
}

int CVqAbstractBitmapPool::AddImageSVG(const vq_wchar* name, const char* svg)
{
    return registered_pool ? registered_pool->addImageSVG(name, svg) : no_index;
}

int CVqAbstractBitmapPool::ReplaceImageSVG(const vq_wchar* name, const char* svg)
{
    return registered_pool ? registered_pool->replaceImageSVG(name, svg) : no_index;
}

int CVqAbstractBitmapPool::LoadSVG(CVqStringA& target, const vq_wchar* file)
{
    return registered_pool ? registered_pool->loadSVG(target, file) : failed;
}

int CVqAbstractBitmapPool::GetImage(const vq_wchar* name)
{
    return registered_pool ? registered_pool->getImage(name) : no_index;
}

void CVqAbstractBitmapPool::GetImageSize(vq_uint32 index, vq_uint32& width, vq_uint32& height)
{
    if (registered_pool)
        registered_pool->imageSize(index, width, height);
}

QIcon CVqAbstractBitmapPool::GetIcon(vq_uint32 index)
{
    return registered_pool ? registered_pool->getIcon(index) : QIcon();
}

QPixmap CVqAbstractBitmapPool::GetPixmap(vq_uint32 index, int width, int height)
{
    return registered_pool ? registered_pool->getPixmap(index, width, height) : QPixmap();
}

QPixmap CVqAbstractBitmapPool::GetPixmapFromSVG(const char* svg, int width, int height)
{
    return registered_pool ? registered_pool->getPixmapFromSVG(svg, width, height) : QPixmap();
}

vq_uint64 CVqAbstractBitmapPool::CreateBitmapFromSVG(const char* svg, vq_uint32 width, vq_uint32 height,
                                                     bool flag, vq_uint32 value)
{
    return registered_pool ? registered_pool->createBitmapFromSVG(svg, width, height, flag, value) : 0;
}

void CVqAbstractBitmapPool::DrawOptimalImage(QPainter* painter, vq_uint32 index, int x, int y, int width,
                                             int height, bool flag1, bool flag2)
{
    if (registered_pool)
        registered_pool->drawOptimalImage(painter, index, x, y, width, height, flag1, flag2);
}

int CVqAbstractBitmapPool::imageSource(vq_uint32, CVqStringW&, CVqStringW&)
{
    return failed;
}

int CVqAbstractBitmapPool::defaultModuleFileName(vq_wchar*, int)
{
    return failed;
}

int CVqAbstractBitmapPool::addImage(QPixmap*, const vq_wchar*)
{
    return failed;
}

int CVqAbstractBitmapPool::addImage(const vq_wchar*)
{
    return failed;
}

int CVqAbstractBitmapPool::addImage(const vq_wchar*, const vq_wchar*, const vq_wchar*)
{
    return failed;
}

int CVqAbstractBitmapPool::loadSVG(CVqStringA& target, const vq_wchar* file)
{
    const QString name = CVqStringW(file).ToQString();
    QFile source(name);
    // Qt warns when it is asked to open a file without a name.
    if (name.isEmpty() || !source.open(QIODevice::ReadOnly | QIODevice::Text))
        return cannot_open;
    target = source.readAll().constData();
    return 0;
}

int CVqAbstractBitmapPool::replaceDebug(CVqStringW&)
{
    return failed;
}

QIcon CVqAbstractBitmapPool::getIcon(vq_uint32)
{
    return {};
}

QPixmap CVqAbstractBitmapPool::getPixmap(vq_uint32, int, int)
{
    return {};
}

QPixmap CVqAbstractBitmapPool::getPixmapFromSVG(const char*, int, int)
{
    return {};
}

void CVqAbstractBitmapPool::drawOptimalImage(QPainter*, vq_uint32, int, int, int, int, bool, bool) { }
