#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A folder of files, gone with the test, which is also the user's own folder and holds the trash meanwhile.
class FilesFolder
{
public:
    FilesFolder()
    {
        EXPECT_TRUE(QDir().mkpath(Path()));
        EXPECT_TRUE(QDir().mkpath(m_folder.filePath(QStringLiteral("data"))));
        qputenv("HOME", Path().toLocal8Bit());
        qputenv("XDG_DATA_HOME", m_folder.filePath(QStringLiteral("data")).toLocal8Bit());
    }

    ~FilesFolder()
    {
        restore("HOME", m_home);
        restore("XDG_DATA_HOME", m_data_home);
    }

    FilesFolder(const FilesFolder&) = delete;
    FilesFolder& operator=(const FilesFolder&) = delete;

    QString Path() const { return m_folder.filePath(QStringLiteral("files")); }
    QString Path(const QString& name) const { return Path() + u'/' + name; }

    /// The files in the trash, and the notes beside them.
    QStringList Trash() const { return names(QStringLiteral("data/Trash/files")); }
    QStringList TrashNotes() const { return names(QStringLiteral("data/Trash/info")); }
    QString TrashPath(const QString& name) const
    {
        return m_folder.filePath(QStringLiteral("data/Trash/files/")) + name;
    }

    /// Its path.
    QString Write(const QString& name, const QByteArray& bytes = "text") const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
        file.write(bytes);
        return file.fileName();
    }

    /// Its path.
    QString MakeFolder(const QString& name) const
    {
        EXPECT_TRUE(QDir().mkpath(Path(name)));
        return Path(name);
    }

    QByteArray Read(const QString& name) const
    {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    bool Has(const QString& name) const { return QFile::exists(Path(name)); }

private:
    static void restore(const char* variable, const QByteArray& value)
    {
        if (value.isNull())
            qunsetenv(variable);
        else
            qputenv(variable, value);
    }

    QStringList names(const QString& folder) const
    {
        return QDir(m_folder.filePath(folder)).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    }

    const QByteArray m_home = qgetenv("HOME");
    const QByteArray m_data_home = qgetenv("XDG_DATA_HOME");
    QTemporaryDir m_folder;
};
