#include "gallery/live/LiveReload.h"

#include <QDir>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Gallery {

LiveReload::LiveReload(const QStringList& folders, QObject* parent) : QObject(parent), m_folders(folders)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(50ms);
    connect(&m_pause, &QTimer::timeout, this, &LiveReload::tell);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &LiveReload::note_change);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_pause, qOverload<>(&QTimer::start));
    if (folders.isEmpty())
        return;
    m_watcher.addPaths(folders);
    m_stamps = stamps();
    m_watcher.addPaths(m_stamps.keys());
}

LiveReload::Stamps LiveReload::stamps() const
{
    Stamps found;
    for (const QString& folder : m_folders)
        for (const QFileInfo& file : QDir(folder).entryInfoList({u"*.qml"_s}, QDir::Files))
            found.insert(file.absoluteFilePath(), file.lastModified());
    return found;
}

void LiveReload::note_change()
{
    m_changed = true;
    m_pause.start();
}

// A folder also changes when an editor puts its own files beside ours; what counts are the QML files.
void LiveReload::tell()
{
    const Stamps now = stamps();
    const bool changed = m_changed || now != m_stamps;
    m_changed = false;
    m_stamps = now;
    // A file that was replaced by another one is no longer watched.
    for (const QString& path : now.keys())
        if (!m_watcher.files().contains(path))
            m_watcher.addPath(path);
    if (changed)
        Q_EMIT Changed();
}

}
