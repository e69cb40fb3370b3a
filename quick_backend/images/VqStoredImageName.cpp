#include "quick_backend/images/VqStoredImageName.h"

QString VqBareImageName(const QString& text, const QString& folder)
{
    const bool has_folder = !folder.isEmpty() && text.startsWith(folder);
    const QString name = has_folder ? text.sliced(folder.size()) : text;
    return name.contains(u'/') || name.contains(u'\\') ? QString() : name;
}

// Behind the folder stands way, slash, name, way, name: the part up to the first name is one longer than the
// rest. In the folder itself the way is a dot, and nothing is in front of the name.
QString VqImageWithoutWay(const QString& text, const QString& folder)
{
    const QString start = folder.endsWith(u'/') ? folder : folder + u'/';
    const QStringView rest = QStringView(text).sliced(text.startsWith(start) ? start.size() : text.size());
    const qsizetype half = rest.size() / 2;
    if (rest.size() % 2 == 0 || half == 0)
        return {};
    if (rest[half] == u'.' && rest.first(half) == rest.last(half) && !rest.first(half).contains(u'/'))
        return start + rest.first(half).toString();
    const QStringView file = rest.first(half + 1);
    const qsizetype slash = file.lastIndexOf(u'/');
    if (slash <= 0
        || file.first(slash).toString() + file.sliced(slash + 1).toString() != rest.sliced(half + 1))
        return {};
    return start + file.toString();
}
