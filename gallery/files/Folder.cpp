#include "gallery/files/Folder.h"

#include "gallery/files/FolderRows.h"

#include <QDir>

namespace Gallery {

namespace {

bool can_be_read(const QString& path)
{
    const QFileInfo folder(path);
    return folder.isDir() && folder.isReadable() && folder.isExecutable();
}

}

Folder::Folder(QObject* parent) : QObject(parent)
{
    connect(&m_watch, &FolderWatch::Changed, this, &Folder::refresh);
    go(QDir::homePath());
}

void Folder::SetWords(const QString& words)
{
    if (words == m_words)
        return;
    m_words = words;
    Q_EMIT WordsChanged();
    refresh();
}

bool Folder::go(const QString& path)
{
    const QString wanted = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (path.isEmpty() || !can_be_read(wanted))
        return false;
    const bool other = wanted != m_path;
    m_path = wanted;
    m_watch.Watch(wanted); // before reading, so that no change is missed
    refresh();
    if (other)
        Q_EMIT PathChanged();
    return true;
}

void Folder::refresh()
{
    const bool there = can_be_read(m_path);
    m_rows.Update(there ? ReadFolder(m_path, m_words) : QVariantList());
    if (there == m_there)
        return;
    m_there = there;
    Q_EMIT ThereChanged();
}

}
