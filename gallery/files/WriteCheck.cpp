#include "gallery/files/WriteCheck.h"

#include "qml/CVqFilePathApi.h"

#include <QFileInfo>

#include <chrono>

using namespace std::chrono_literals;

namespace Gallery {

WriteCheck::WriteCheck(QObject* parent) : QObject(parent)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(150ms);
    connect(&m_pause, &QTimer::timeout, this, &WriteCheck::check);
    connect(&m_watch, &FolderWatch::Changed, this, &WriteCheck::check_after_change);
}

void WriteCheck::SetPath(const QString& path)
{
    if (path == m_path)
        return;
    m_path = path;
    Q_EMIT PathChanged();
    if (m_asked)
        m_pause.start();
    else
        check();
}

void WriteCheck::check()
{
    m_pause.stop();
    m_asked = true;
    m_watch.Watch(m_path);
    m_rights = rights_of(m_path);
    State state = Closed;
    if (CVqFilePathApi::isWritable(m_path))
        state = m_rights.there ? Open : Makeable;
    if (state == m_state)
        return;
    m_state = state;
    Q_EMIT StateChanged();
}

WriteCheck::Rights WriteCheck::rights_of(const QString& path)
{
    QFileInfo holder(QFileInfo(path).absoluteFilePath());
    const bool there = holder.isDir();
    while (!holder.exists() && !holder.isRoot())
        holder.setFile(holder.path());
    return {there, holder.filePath(), holder.permissions(), holder.ownerId(), holder.groupId()};
}

void WriteCheck::check_after_change()
{
    if (rights_of(m_path) != m_rights)
        check();
}

}
