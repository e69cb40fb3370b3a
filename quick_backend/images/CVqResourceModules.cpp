#include "quick_backend/images/CVqResourceModules.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool is_slash(QChar unit)
{
    return unit == u'/' || unit == u'\\';
}

// "k7_NAME.dll" has its images in ":/NAME", where there is such a folder.
QString root_by_name(const QString& lower_name)
{
    constexpr auto prefix = "k7_"_L1;
    if (!lower_name.startsWith(prefix))
        return {};
    const qsizetype dot = lower_name.lastIndexOf(u'.');
    const QString root = ":/"_L1 + lower_name.first(dot < 0 ? lower_name.size() : dot).sliced(prefix.size());
    return root.size() > 2 && QFileInfo(root).isDir() ? root : QString();
}

QString first_file(const QString& path, const QString& lower_path)
{
    if (QFileInfo(path).isFile())
        return path;
    for (const auto extension : {".svg"_L1, ".png"_L1, ".webp"_L1, ".jpg"_L1, ".jpeg"_L1}) {
        const QString candidate = lower_path + extension;
        if (QFileInfo(candidate).isFile())
            return candidate;
    }
    return {};
}

}

void CVqResourceModules::Add(const QString& name, const QString& root)
{
    m_roots.insert(FileName(name).toLower(), root);
}

QString CVqResourceModules::Find(const QString& module, const QString& image) const
{
    const QString root = Root(module);
    if (root.isEmpty() || image.isEmpty() || std::ranges::any_of(image, is_slash))
        return {};
    return first_file(root + u'/' + image, root + u'/' + image.toLower());
}

QString CVqResourceModules::FileName(const QString& path)
{
    const auto slash = std::find_if(path.rbegin(), path.rend(), is_slash);
    return path.sliced(path.rend() - slash);
}

QString CVqResourceModules::Root(const QString& module) const
{
    const QString name = FileName(module).toLower();
    const auto found = m_roots.constFind(name);
    return found != m_roots.constEnd() ? *found : root_by_name(name);
}
