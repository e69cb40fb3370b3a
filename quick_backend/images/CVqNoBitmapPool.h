#pragma once

#include "AbstractGui/CVqAbstractBitmapPool.h"

/// Stands for a pool that is gone: a registered pool can only be taken back by registering another. With it
/// the static operations answer as they do without a pool.
class CVqNoBitmapPool final : public CVqAbstractBitmapPool
{
public:
    /// Registers the one object of this class, which is never destroyed.
    static void Register();

private:
    CVqNoBitmapPool() = default;

    int addImageSVG(const vq_wchar*, const char*) override;
    int loadSVG(CVqStringA&, const vq_wchar*) override;
    int replaceImageSVG(const vq_wchar*, const char*) override;
    vq_uint64 createBitmapFromSVG(const char*, vq_uint32, vq_uint32, bool, vq_uint32) override;
    void imageSize(vq_uint32, vq_uint32&, vq_uint32&) override;
    int getImage(const vq_wchar*) override;
};
