#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <algorithm>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <vector>

/// Everything below `folder`, links not followed, a line each with kind and permissions (octal), size, the
/// time of the last change and the path, such as "100644 5 1700000000.000000042 sub/file". `folder` itself is
/// not listed.
inline std::vector<std::string> tree_below(const QString& folder)
{
    const std::filesystem::path top(QFile::encodeName(folder).toStdString());
    std::vector<std::string> lines;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(top)) {
        struct stat info = {};
        lstat(entry.path().c_str(), &info);
        const QByteArray line = QByteArray::number(info.st_mode, 8) + ' '
            + QByteArray::number(S_ISDIR(info.st_mode) ? 0 : static_cast<qint64>(info.st_size)) + ' '
            + QByteArray::number(static_cast<qint64>(info.st_mtim.tv_sec)) + '.'
            + QByteArray::number(static_cast<qint64>(info.st_mtim.tv_nsec)).rightJustified(9, '0');
        lines.push_back(line.toStdString() + " " + entry.path().lexically_relative(top).string());
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

inline bool write_file(const QString& path, const QByteArray& content = "text")
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(content) == content.size();
}
