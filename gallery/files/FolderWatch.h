#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

namespace Gallery {

/// Tells when a folder has changed: entries that come and go, and its permissions. A folder that is not
/// there, or cannot be read, is waited for.
class FolderWatch : public QObject
{
    Q_OBJECT

public:
    explicit FolderWatch(QObject* parent = nullptr);

    /// The folder to watch from now on, in place of the one before.
    void Watch(const QString& folder);

Q_SIGNALS:
    /// Comes once for what happens within 50 ms.
    void Changed();

private:
    void follow();

    QString m_folder; ///< Absolute; empty before the first.
    QFileSystemWatcher m_watcher;
    QTimer m_pause;
};

}
