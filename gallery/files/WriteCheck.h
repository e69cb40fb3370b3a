#pragma once

#include "gallery/files/FolderWatch.h"

#include <QFileDevice>
#include <QObject>
#include <QString>
#include <QTimer>

namespace Gallery {

/// Whether files can be written into a folder, known at any time: asked again when the folder comes, goes or
/// has other permissions, and a moment after the last of several paths in a row.
///
/// Asking makes a file for a moment, and the folders that are missing. Others see that, so it is not done for
/// each change in the folder: two programs that watch one folder would keep each other busy.
class WriteCheck : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString path READ Path WRITE SetPath NOTIFY PathChanged)
    Q_PROPERTY(Gallery::WriteCheck::State state READ GetState NOTIFY StateChanged)

public:
    enum State
    {
        Closed,   ///< Nothing can be written there.
        Open,     ///< The folder is there and takes files.
        Makeable, ///< The folder is not there; it can be made, and takes files then.
    };
    Q_ENUM(State)

    explicit WriteCheck(QObject* parent = nullptr);

    const QString& Path() const { return m_path; }
    /// The first path is asked about at once, others when none has come for 150 ms: until then the state
    /// stays.
    void SetPath(const QString& path);

    /// Closed before the first path.
    State GetState() const { return m_state; }

    /// Asks now.
    Q_INVOKABLE void check();

Q_SIGNALS:
    void PathChanged();
    void StateChanged();

private:
    /// What decides who may write, as far as it can be seen without trying.
    struct Rights
    {
        bool there = false;
        QString holder; ///< The folder, or the next one above it that is there.
        QFileDevice::Permissions permissions;
        uint owner = 0;
        uint group = 0;

        bool operator==(const Rights&) const = default;
    };

    static Rights rights_of(const QString& path);
    void check_after_change();

    QString m_path;
    State m_state = Closed;
    Rights m_rights;
    bool m_asked = false;
    FolderWatch m_watch;
    QTimer m_pause;
};

}
