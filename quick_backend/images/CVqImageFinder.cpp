#include "quick_backend/images/CVqImageFinder.h"

#include "quick_backend/images/VqStoredImageName.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr auto g_default_module = "k7_tile_assets.dll"_L1;

// A path of two slashes, of whichever kind, leads to another machine on some systems.
bool is_in_a_network(const QString& path)
{
    const auto is_slash = [](QChar unit) { return unit == u'/' || unit == u'\\'; };
    return path.size() >= 2 && is_slash(path[0]) && is_slash(path[1]);
}

// Empty where there is no such file.
QString canonical_file(const QString& path)
{
    constexpr auto resource = "qrc:/"_L1;
    const QFileInfo file(path.startsWith(resource) ? QString(u':' + path.sliced(resource.size() - 1)) : path);
    return !is_in_a_network(path) && file.isFile() ? QDir::cleanPath(file.canonicalFilePath()) : QString();
}

}

CVqImageFinder::CVqImageFinder(const QString& folder) : m_folder(folder) { }

QString CVqImageFinder::DefaultModule() const
{
    return QDir(m_folder).filePath(g_default_module);
}

SVqFoundImage CVqImageFinder::File(const QString& path) const
{
    QString found = canonical_file(path);
    if (found.isEmpty())
        found = canonical_file(VqImageWithoutWay(path, m_folder));
    return {found, {found, {}}};
}

SVqFoundImage CVqImageFinder::Find(const QString& file, const QString& module, const QString& resource) const
{
    if (!resource.isEmpty())
        return InModule(module.isEmpty() ? file : module, resource);
    if (module.isEmpty())
        return File(file);
    const QString stored = VqImageWithoutWay(file, m_folder);
    if (m_modules.IsModule(file))
        return InModule(file, module);
    if (m_modules.IsModule(stored))
        return InModule(stored, module);
    return m_modules.IsModule(module) ? InModule(module, file) : File(file);
}

QString CVqImageFinder::BareName(const QString& text) const
{
    return VqBareImageName(text, m_folder);
}

QString CVqImageFinder::BesideModule(const QString& bare_name) const
{
    if (bare_name.isEmpty())
        return {};
    const QString path = QDir(m_folder).filePath(bare_name);
    return m_modules.IsModule(bare_name) || !File(path).path.isEmpty() ? path : QString();
}

SVqFoundImage CVqImageFinder::InModule(const QString& module, const QString& resource) const
{
    const QString path = canonical_file(m_modules.Find(module, resource));
    return {path, {CVqResourceModules::FileName(module), resource}};
}
