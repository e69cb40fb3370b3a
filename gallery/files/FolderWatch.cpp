#include "gallery/files/FolderWatch.h"

#include <QFileInfo>

#include <chrono>

using namespace std::chrono_literals;

namespace Gallery {

namespace {

bool can_be_watched(const QString& path)
{
    const QFileInfo folder(path);
    return folder.isDir() && folder.isReadable();
}

// The folder, or the next one above it from where its coming can be seen.
QString place_to_watch(QString path)
{
    while (!can_be_watched(path)) {
        const QString above = QFileInfo(path).path();
        if (above == path)
            return {};
        path = above;
    }
    return path;
}

}

FolderWatch::FolderWatch(QObject* parent) : QObject(parent)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(50ms);
    // A folder in which something happens all the time must not put the news off forever.
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_pause, [this] {
        if (!m_pause.isActive())
            m_pause.start();
    });
    connect(&m_pause, &QTimer::timeout, this, [this] {
        follow();
        Q_EMIT Changed();
    });
}

void FolderWatch::Watch(const QString& folder)
{
    m_folder = QFileInfo(folder).absoluteFilePath();
    follow();
}

void FolderWatch::follow()
{
    const QString place = place_to_watch(m_folder);
    const QStringList watched = m_watcher.directories();
    if (watched == QStringList{place})
        return;
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    if (!place.isEmpty())
        m_watcher.addPath(place);
}

}
