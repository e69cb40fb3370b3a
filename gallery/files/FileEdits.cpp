#include "gallery/files/FileEdits.h"

#include "qml/CVqFilePathApi.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QString name_of(const QString& path)
{
    return QFileInfo(path).fileName();
}

// A broken link is there too.
bool is_there(const QString& path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

// A trash of the desktop keeps a note beside each file; without its file it would show as a ghost.
void remove_trash_note(const QString& in_trash)
{
    const QDir files = QFileInfo(in_trash).dir();
    if (files.dirName() == u"files"_s)
        QFile::remove(files.filePath(u"../info/"_s + name_of(in_trash) + u".trashinfo"_s));
}

}

std::optional<QString> MoveToDesktopTrash(const QString& path)
{
    QString in_trash;
    if (!QFile::moveToTrash(path, &in_trash))
        return std::nullopt;
    return in_trash;
}

FileEdits::FileEdits(QObject* parent) : QObject(parent) { }

QString FileEdits::Question() const
{
    return m_asked.isEmpty()
        ? QString()
        : tr("There is no trash for %1. Remove it for good? That cannot be undone.").arg(name_of(m_asked));
}

bool FileEdits::rename(const QString& path, const QString& name)
{
    if (name == name_of(path))
        return true;
    if (const QString reason = why_not_named(path, name); !reason.isEmpty()) {
        tell(reason, true);
        return false;
    }
    tell(tr("%1 is now %2.").arg(name_of(path), name));
    Q_EMIT edited(QFileInfo(path).dir().filePath(name));
    return true;
}

// Renames; why that failed, empty when it did not.
QString FileEdits::why_not_named(const QString& path, const QString& name) const
{
    if (name.trimmed().isEmpty())
        return tr("A name needs at least one letter.");
    if (name.contains(u'/') || QDir::fromNativeSeparators(name).contains(u'/') || name == u"."_s
        || name == u".."_s)
        return tr("%1 cannot be a name.").arg(name);
    if (is_there(QFileInfo(path).dir().filePath(name))
        && name.compare(name_of(path), Qt::CaseInsensitive) != 0)
        return tr("There is something else with the name %1.").arg(name);
    if (!CVqFilePathApi().renameFile(path, name))
        return tr("%1 could not be renamed.").arg(name_of(path));
    return {};
}

void FileEdits::remove(const QString& path)
{
    m_asked.clear();
    const QString name = name_of(path);
    if (!is_there(path)) {
        tell(tr("%1 is not there any more.").arg(name), true);
        Q_EMIT edited({});
        return;
    }
    if (!CVqFilePathApi::isWritable(QFileInfo(path).absolutePath())) {
        tell(tr("%1 stays: nothing can be changed in its folder.").arg(name), true);
        return;
    }
    const std::optional<QString> in_trash = m_trash(path);
    if (!in_trash) {
        without_trash(path);
        return;
    }
    if (!in_trash->isEmpty())
        m_removed << Removed{path, *in_trash};
    tell(tr("%1 is in the trash.").arg(name));
    Q_EMIT edited({});
}

void FileEdits::without_trash(const QString& path)
{
    const QFileInfo file(path);
    if (file.isDir() && !file.isSymLink()) {
        tell(tr("%1 stays: there is no trash for it, and folders are not removed for good.")
                 .arg(name_of(path)),
             true);
        return;
    }
    m_asked = path;
    tell({});
}

void FileEdits::removeForGood()
{
    const QString path = std::exchange(m_asked, {});
    if (path.isEmpty())
        return;
    if (!CVqFilePathApi().removeFile(path)) {
        tell(tr("%1 could not be removed.").arg(name_of(path)), true);
        return;
    }
    tell(tr("%1 is removed for good.").arg(name_of(path)));
    Q_EMIT edited({});
}

void FileEdits::keep()
{
    m_asked.clear();
    tell({});
}

void FileEdits::undo()
{
    if (m_removed.isEmpty())
        return;
    m_asked.clear();
    const Removed last = m_removed.constLast();
    const QString name = name_of(last.path);
    if (!is_there(last.in_trash)) {
        m_removed.removeLast();
        tell(tr("%1 is not in the trash any more.").arg(name), true);
    } else if (is_there(last.path)) {
        tell(tr("%1 stays in the trash: something else has its name now.").arg(name), true);
    } else if (!QFile::rename(last.in_trash, last.path)) {
        tell(tr("%1 could not be taken out of the trash.").arg(name), true);
    } else {
        m_removed.removeLast();
        remove_trash_note(last.in_trash);
        tell(tr("%1 is back.").arg(name));
        Q_EMIT edited(last.path);
    }
}

void FileEdits::tell(const QString& sentence, bool failed)
{
    m_told = sentence;
    m_failed = failed;
    Q_EMIT Changed();
}

}
