#include "quick_backend/images/CVqNoBitmapPool.h"

namespace {

constexpr int no_pool = -12;
constexpr int no_index = -1;

}

void CVqNoBitmapPool::Register()
{
    static CVqNoBitmapPool& pool = *new CVqNoBitmapPool;
    instance(&pool);
}

int CVqNoBitmapPool::addImageSVG(const vq_wchar*, const char*)
{
    return no_index;
}

int CVqNoBitmapPool::loadSVG(CVqStringA&, const vq_wchar*)
{
    return no_pool;
}

int CVqNoBitmapPool::replaceImageSVG(const vq_wchar*, const char*)
{
    return no_index;
}

vq_uint64 CVqNoBitmapPool::createBitmapFromSVG(const char*, vq_uint32, vq_uint32, bool, vq_uint32)
{
    return 0;
}

void CVqNoBitmapPool::imageSize(vq_uint32, vq_uint32&, vq_uint32&) { }

int CVqNoBitmapPool::getImage(const vq_wchar*)
{
    return no_index;
}
