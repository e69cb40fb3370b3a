#pragma once

#include "arbor_qml_support.h"
#include "gallery/Pages.h"
#include "gallery/live/LiveAddresses.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// Sets "ORV_DEVELOP_RESOURCES" for the time of its scope.
class DeveloperMode
{
public:
    DeveloperMode() { qputenv("ORV_DEVELOP_RESOURCES", ""); }
    ~DeveloperMode() { qunsetenv("ORV_DEVELOP_RESOURCES"); }

    DeveloperMode(const DeveloperMode&) = delete;
    DeveloperMode& operator=(const DeveloperMode&) = delete;
};

/// A copy of all the gallery's QML files and their pictures in a folder of its own, gone with the test.
class QmlCopy
{
public:
    QmlCopy()
    {
        EXPECT_TRUE(QDir().mkpath(m_folder.filePath(QStringLiteral("pages"))));
        for (const QString& below : {QString(), QStringLiteral("pages/")})
            for (const QString& name :
                 QDir(Compiled(below))
                     .entryList({QStringLiteral("*.qml"), QStringLiteral("*.png")}, QDir::Files))
                EXPECT_TRUE(QFile::copy(Compiled(below + name), Path(below + name)));
        for (const QString& below : {QString(), QStringLiteral("pages/")})
            for (const QFileInfo& file : QDir(Path(below)).entryInfoList(QDir::Files))
                QFile::setPermissions(file.filePath(), QFile::ReadOwner | QFile::WriteOwner);
    }

    QString Folder() const { return m_folder.path(); }
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    void Write(const QString& name, const QByteArray& text) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    /// As many editors save: the new text goes into another file, which then takes the name.
    void WriteByRename(const QString& name, const QByteArray& text) const
    {
        Write(name + QStringLiteral(".new"), text);
        EXPECT_EQ(std::rename(QFile::encodeName(Path(name + QStringLiteral(".new"))).constData(),
                              QFile::encodeName(Path(name)).constData()),
                  0);
    }

private:
    static QString Compiled(const QString& name) { return u':' + Gallery::GalleryUrl(name).path(); }

    QTemporaryDir m_folder;
};

/// The developer's mode with the files of a copy in place of the source tree, for the time of its scope.
class DeveloperModeOnCopy
{
public:
    DeveloperModeOnCopy() { Gallery::ReadQmlFrom(m_copy.Folder()); }
    ~DeveloperModeOnCopy()
    {
        const ResourcePrefix former(Gallery::GalleryUrl({}).path(),
                                    QStringLiteral("branch9/src/arbor_qml_support/gallery/"));
    }

    DeveloperModeOnCopy(const DeveloperModeOnCopy&) = delete;
    DeveloperModeOnCopy& operator=(const DeveloperModeOnCopy&) = delete;

    const QmlCopy& Copy() const { return m_copy; }

private:
    DeveloperMode m_mode;
    QmlCopy m_copy;
};
