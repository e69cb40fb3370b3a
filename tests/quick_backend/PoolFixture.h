#pragma once

#include "quick_backend/CVqQuickBitmapPool.h"
#include "system/CVqStringW.h"
#include "tests/quick_backend/images/ImageSamples.h"
#include "tests/quick_backend/images/PaletteForTest.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

/// A pool, a folder for its files, and a palette.
struct PoolFixture : testing::Test
{
    using Pool = CVqAbstractBitmapPool;

    QString Path(const QString& name) const { return QDir(m_folder.path()).canonicalPath() + u'/' + name; }

    /// Adds a file of those bytes.
    int AddBytes(const QString& name, const QByteArray& bytes) const
    {
        WriteFile(Path(name), bytes);
        return Add(Path(name));
    }

    static int Add(const QString& file)
    {
        return Pool::AddImage(CVqStringW::FromQString(file), nullptr, nullptr);
    }

    static int AddIcon(const vq_wchar* name)
    {
        return Pool::AddImage(VQ_TEXT("k7_tile_assets.dll"), name, nullptr);
    }

    /// "file|resource", or the code.
    static std::string Source(int index)
    {
        CVqStringW file;
        CVqStringW resource;
        const int code = Pool::GetImageSource(vq_uint32(index), file, resource);
        return code == 0 ? (file.ToQString() + u'|' + resource.ToQString()).toStdString()
                         : std::to_string(code);
    }

    static QImage Drawn(int index, int width = 0, int height = 0)
    {
        return Pool::GetPixmap(vq_uint32(index), width, height).toImage();
    }

    PaletteForTest m_palette;
    QTemporaryDir m_folder;
    CVqQuickBitmapPool m_pool;
};
