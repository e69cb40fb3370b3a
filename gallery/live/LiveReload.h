#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QHash>
#include <QTimer>

namespace Gallery {

/// Watches QML files on disk and tells when they change.
class LiveReload : public QObject
{
    Q_OBJECT

public:
    /// Watches the QML files that lie in `folders` or come later, without those in folders below.
    /// Without folders nothing is watched.
    explicit LiveReload(const QStringList& folders, QObject* parent = nullptr);

    /// The files watched now, with their paths.
    QStringList Files() const { return m_watcher.files(); }

Q_SIGNALS:
    /// Files have changed, come or gone. Changes that follow each other within 50 milliseconds are told once,
    /// after the last of them.
    void Changed();

private:
    using Stamps = QHash<QString, QDateTime>; // by path

    Stamps stamps() const;
    void note_change();
    void tell();

    QStringList m_folders;
    QFileSystemWatcher m_watcher;
    QTimer m_pause;
    Stamps m_stamps;
    bool m_changed = false;
};

}
