#pragma once

#include "arbor_qml_support_export.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>

// Marks an argument that QML may leave out and C++ may not. Only moc sees the default. It reads no more of it
// than that it is there, and gives the meta-object what a default argument has: a second entry, marked as a
// clone, that takes one argument less. The clone calls the private overload, which knows the value.
#ifdef Q_MOC_RUN
#define ARBOR_QML_OPTIONAL = QString()
#else
#define ARBOR_QML_OPTIONAL
#endif

/// Questions about files and folders for QML, and a few operations on them. Holds no data. Any thread.
///
/// Paths are as Qt's: "/" between the parts, relative ones below the current folder. No operation raises or
/// logs anything: a failure is `false`, an empty text or an empty list. Where nothing else is said, an empty
/// path gives `false` or an empty text.
class ARBOR_QML_SUPPORT_EXPORT CVqFilePathApi : public QObject
{
    Q_OBJECT

public:
    CVqFilePathApi();
    ~CVqFilePathApi() override;

    /// Whether there is a file or folder. A link counts by what it points to.
    Q_INVOKABLE bool exists(const QString& filepath) const;
    /// Whether there is a folder, or a link to one.
    Q_INVOKABLE bool isDir(const QString& filepath) const;
    /// Whether there is a file, or a link to one.
    Q_INVOKABLE bool isFile(const QString& filepath) const;
    /// Whether the path begins at the root. By its text alone, as isRelative().
    Q_INVOKABLE bool isAbsolute(const QString& filepath) const;
    /// The opposite of isAbsolute(), but for the empty path, for which both are false.
    Q_INVOKABLE bool isRelative(const QString& filepath) const;
    /// False for what Qt itself serves, such as compiled resources.
    Q_INVOKABLE bool isNativePath(const QString& filepath) const;
    /// Whether the permissions let the folder `path` be read. The empty path is the current folder. A file is
    /// answered for as well, by its own permissions.
    Q_INVOKABLE static bool isReadable(const QString& path);
    /// Whether a file could be made in the folder `path`, which need not exist yet: makes the missing folders
    /// and a temporary file, and removes them again. The empty path is the current folder.
    ///
    /// Only what this call made is removed, deepest first, and a folder only while it is empty: what somebody
    /// else puts there meanwhile stays. A disk that has room for no more bytes but for another name counts as
    /// writable.
    Q_INVOKABLE static bool isWritable(const QString& path);

    /// The name without its folder.
    Q_INVOKABLE QString fileName(const QString& filepath) const;
    /// The name up to its first ".".
    Q_INVOKABLE QString baseName(const QString& filepath) const;
    /// The name up to its last ".".
    Q_INVOKABLE QString completeBaseName(const QString& filepath) const;
    /// The absolute path of the folder that the file is in.
    Q_INVOKABLE QString absolutePath(const QString& filepath) const;
    /// The path from the root on, without "." and "..".
    Q_INVOKABLE QString absoluteFilePath(const QString& filepath) const;
    /// The name behind its last ".".
    Q_INVOKABLE QString suffix(const QString& filepath) const;
    /// The name behind its first ".".
    Q_INVOKABLE QString completeSuffix(const QString& filepath) const;
    /// The absolute path of the folder that the file is in, without links. Means nothing if there is no such
    /// file.
    Q_INVOKABLE QString canonicalPath(const QString& filepath) const;
    /// The absolute path without links; empty if there is no such file.
    Q_INVOKABLE QString canonicalFilePath(const QString& filepath) const;
    /// The path as the platform writes it, which is with backslashes on Windows.
    Q_INVOKABLE QString toNativeSeparators(const QString& filepath) const;
    /// The path as Qt writes it, with "/".
    Q_INVOKABLE QString fromNativeSeparators(const QString& filepath) const;

    /// The time when the file was made, as local time in a format of QDateTime::toString(), with English
    /// names of days and months. QML may leave the format out, which is "yyyy-MM-dd HH:mm" then. Empty if
    /// there is no file, or the file system keeps no such time.
    Q_INVOKABLE QString creationTime(const QString& filepath, const QString& format ARBOR_QML_OPTIONAL) const;
    /// As creationTime(), for the time when the file was written last.
    Q_INVOKABLE QString modifyTime(const QString& filepath, const QString& format ARBOR_QML_OPTIONAL) const;

    /// Removes a file, or a link without what it points to. False for a folder, which stays.
    Q_INVOKABLE bool removeFile(const QString& filepath) const;
    /// Gives a file or folder the name `newName`, which is relative to its folder. False if there is
    /// something of that name already.
    Q_INVOKABLE bool renameFile(const QString& filepath, const QString& newName) const;
    /// Makes a folder and all that is missing above it. True if it is there already.
    Q_INVOKABLE bool createDirectory(const QString& folder) const;
    /// The path of a "file" address; empty for any other address.
    Q_INVOKABLE QString urlToLocalFile(const QUrl& url) const;
    /// The "file" address of a path; empty for the empty path.
    Q_INVOKABLE QUrl urlFromLocalFile(const QString& filepath) const;

    /// The folder of the AI networks that come with the application, with "/" at its end. `relative`: as seen
    /// from the application's folder, otherwise with that folder in front. `useFolderGuid`: the folder that
    /// is named by an identifier.
    Q_INVOKABLE QString predefAiNetworksFolder(bool relative, bool useFolderGuid) const;
    /// A path below the application's folder as seen from there, behind "./"; any other path with "/" between
    /// its parts. The start of the path decides, letter by letter, not the folder that it leads to.
    Q_INVOKABLE QString formatAiNetworkPath(const QString& filePath) const;
    /// The names of the files and folders in a folder, "." and ".." among them, sorted without regard to
    /// case. `strNameFilter`: patterns such as "*.png *.jpg", or empty for all names.
    Q_INVOKABLE QStringList filesInFolder(const QString& strFolder, const QString& strNameFilter) const;

private:
    ARBOR_QML_SUPPORT_NO_EXPORT QString creationTime(const QString& filepath) const;
    ARBOR_QML_SUPPORT_NO_EXPORT QString modifyTime(const QString& filepath) const;
};

#undef ARBOR_QML_OPTIONAL
