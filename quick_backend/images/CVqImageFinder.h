#pragma once

#include "quick_backend/images/CVqPoolImages.h"
#include "quick_backend/images/CVqResourceModules.h"

#include <QString>

/// The file of an image, written in one way only, and what the pool tells as its source.
struct SVqFoundImage
{
    QString path; // empty: there is no such file
    SVqImageSource source;
};

/// Finds the files of images. The default module is "k7_tile_assets.dll" in `folder`.
class CVqImageFinder
{
public:
    explicit CVqImageFinder(const QString& folder);

    CVqResourceModules& Modules() { return m_modules; }
    QString DefaultModule() const;

    /// The file with that path. Also one that a stored menu names together with the way to it.
    SVqFoundImage File(const QString& path) const;

    /// See CVqQuickBitmapPool::addImage() with three texts; empty ones are like null.
    SVqFoundImage Find(const QString& file, const QString& module, const QString& resource) const;

    /// The bare name in a text that has it directly behind the folder of the default module, or that is one.
    QString BareName(const QString& text) const;

    /// The path of a module or file of that name in the folder of the default module; empty without one.
    QString BesideModule(const QString& bare_name) const;

private:
    SVqFoundImage InModule(const QString& module, const QString& resource) const;

    const QString m_folder;
    CVqResourceModules m_modules;
};
