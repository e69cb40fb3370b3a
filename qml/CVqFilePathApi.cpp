#include "qml/CVqFilePathApi.h"

#include <QCalendar>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

#include <optional>
#include <ranges>

using namespace Qt::StringLiterals;

namespace {

/// The answer of QFileInfo; false or an empty text for the empty path, which QFileInfo takes for something.
template <class Answer>
Answer ask(const QString& filepath, Answer (QFileInfo::*question)() const)
{
    return filepath.isEmpty() ? Answer() : (QFileInfo(filepath).*question)();
}

QString default_time_format()
{
    return u"yyyy-MM-dd HH:mm"_s;
}

QString time_text(const QString& filepath, QFileDevice::FileTime time, const QString& format)
{
    const QFileInfo info(filepath);
    return info.exists() ? info.fileTime(time).toString(format, QCalendar()) : QString();
}

/// The levels of an absolute path that do not exist, deepest first; none at all if nothing above them exists.
/// Above the first level is the empty path, the current folder.
std::optional<QStringList> missing_levels(QString path)
{
    QStringList missing;
    while (!QDir(path).exists()) {
        missing.append(path);
        const qsizetype slash = path.lastIndexOf(u'/');
        if (slash < 0)
            return std::nullopt;
        path.truncate(slash);
    }
    return missing;
}

/// Folders that last as long as this object. Only what it made itself is removed, and only while it is empty.
class CPassingFolders
{
public:
    CPassingFolders() = default;
    ~CPassingFolders()
    {
        for (const QString& folder : std::views::reverse(m_made))
            QDir().rmdir(folder);
    }

    CPassingFolders(const CPassingFolders&) = delete;
    CPassingFolders& operator=(const CPassingFolders&) = delete;

    /// True if the folder is there now, also if somebody else made it.
    bool Make(const QString& folder)
    {
        if (!QDir().mkdir(folder))
            return QDir(folder).exists();
        m_made.append(folder);
        return true;
    }

private:
    QStringList m_made; // outermost first
};

}

CVqFilePathApi::CVqFilePathApi() = default;
CVqFilePathApi::~CVqFilePathApi() = default;

bool CVqFilePathApi::exists(const QString& filepath) const
{
    return QFileInfo::exists(filepath);
}

bool CVqFilePathApi::isDir(const QString& filepath) const
{
    return ask(filepath, &QFileInfo::isDir);
}

bool CVqFilePathApi::isFile(const QString& filepath) const
{
    return ask(filepath, &QFileInfo::isFile);
}

bool CVqFilePathApi::isAbsolute(const QString& filepath) const
{
    return ask(filepath, &QFileInfo::isAbsolute);
}

bool CVqFilePathApi::isRelative(const QString& filepath) const
{
    return ask(filepath, &QFileInfo::isRelative);
}

bool CVqFilePathApi::isNativePath(const QString& filepath) const
{
    return ask(filepath, &QFileInfo::isNativePath);
}

bool CVqFilePathApi::isReadable(const QString& path)
{
    return QDir(path).isReadable();
}

bool CVqFilePathApi::isWritable(const QString& path)
{
    const QString folder = QDir(path).absolutePath();
    const std::optional<QStringList> missing = missing_levels(folder);
    if (!missing)
        return false;
    CPassingFolders made;
    for (const QString& level : std::views::reverse(*missing)) {
        if (!made.Make(level))
            return false;
    }
    return QTemporaryFile(folder + "/__writable_test__"_L1).open();
}

QString CVqFilePathApi::fileName(const QString& filepath) const
{
    return ask(filepath, &QFileInfo::fileName);
}

QString CVqFilePathApi::baseName(const QString& filepath) const
{
    return ask(filepath, &QFileInfo::baseName);
}

QString CVqFilePathApi::completeBaseName(const QString& filepath) const
{
    return ask(filepath, &QFileInfo::completeBaseName);
}

QString CVqFilePathApi::absolutePath(const QString& filepath) const
{
    return ask(filepath, &QFileInfo::absolutePath);
}

QString CVqFilePathApi::absoluteFilePath(const QString& filepath) const
{
    return ask(filepath, &QFileInfo::absoluteFilePath);
}

QString CVqFilePathApi::suffix(const QString& filepath) const
{
    return ask(filepath, &QFileInfo::suffix);
}

QString CVqFilePathApi::completeSuffix(const QString& filepath) const
{
    return ask(filepath, &QFileInfo::completeSuffix);
}

QString CVqFilePathApi::canonicalPath(const QString& filepath) const
{
    return ask(filepath, &QFileInfo::canonicalPath);
}

QString CVqFilePathApi::canonicalFilePath(const QString& filepath) const
{
    return ask(filepath, &QFileInfo::canonicalFilePath);
}

QString CVqFilePathApi::toNativeSeparators(const QString& filepath) const
{
    return QDir::toNativeSeparators(filepath);
}

QString CVqFilePathApi::fromNativeSeparators(const QString& filepath) const
{
    return QDir::fromNativeSeparators(filepath);
}

QString CVqFilePathApi::creationTime(const QString& filepath, const QString& format) const
{
    return time_text(filepath, QFileDevice::FileBirthTime, format);
}

QString CVqFilePathApi::creationTime(const QString& filepath) const
{
    return creationTime(filepath, default_time_format());
}

QString CVqFilePathApi::modifyTime(const QString& filepath, const QString& format) const
{
    return time_text(filepath, QFileDevice::FileModificationTime, format);
}

QString CVqFilePathApi::modifyTime(const QString& filepath) const
{
    return modifyTime(filepath, default_time_format());
}

// Qt prints a warning for an empty name, which a path with "/" at its end has as well.

bool CVqFilePathApi::removeFile(const QString& filepath) const
{
    const QFileInfo info(filepath);
    return !info.fileName().isEmpty() && info.absoluteDir().remove(info.fileName());
}

bool CVqFilePathApi::renameFile(const QString& filepath, const QString& newName) const
{
    const QFileInfo info(filepath);
    return !info.fileName().isEmpty() && !newName.isEmpty()
        && info.absoluteDir().rename(info.fileName(), newName);
}

bool CVqFilePathApi::createDirectory(const QString& folder) const
{
    return !folder.isEmpty() && QDir(QString()).mkpath(folder);
}

QString CVqFilePathApi::urlToLocalFile(const QUrl& url) const
{
    return url.toLocalFile();
}

QUrl CVqFilePathApi::urlFromLocalFile(const QString& filepath) const
{
    return QUrl::fromLocalFile(filepath);
}

QString CVqFilePathApi::predefAiNetworksFolder(bool relative, bool useFolderGuid) const
{
    const QString leaf = useFolderGuid ? u"5bf1378a-f976-4858-8d4a-c068207a11a6"_s : u"ZUQaiNetworks"_s;
    const QString root = relative ? u"."_s : QCoreApplication::applicationDirPath();
    return root + u'/' + leaf + "/Predefined/"_L1;
}

QString CVqFilePathApi::formatAiNetworkPath(const QString& filePath) const
{
    const QString application = QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
    if (QDir::toNativeSeparators(filePath).startsWith(application))
        return "./"_L1 + QDir(application).relativeFilePath(filePath);
    return QDir::fromNativeSeparators(filePath);
}

QStringList CVqFilePathApi::filesInFolder(const QString& strFolder, const QString& strNameFilter) const
{
    return QDir(strFolder, strNameFilter, QDir::IgnoreCase, QDir::AllEntries).entryList();
}
