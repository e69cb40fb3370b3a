#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace Gallery {

/// Puts a file or folder into the trash: where it is now, empty if that is not known; nothing where it stays.
using FileTrash = std::function<std::optional<QString>(const QString& path)>;

/// The trash of the desktop.
std::optional<QString> MoveToDesktopTrash(const QString& path);

/// Renames and removes files, tells in a sentence what came of it, and takes removals back.
class FileEdits : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString told READ Told NOTIFY Changed)
    Q_PROPERTY(bool failed READ HasFailed NOTIFY Changed)
    Q_PROPERTY(QString question READ Question NOTIFY Changed)
    Q_PROPERTY(bool canUndo READ CanUndo NOTIFY Changed)

public:
    explicit FileEdits(QObject* parent = nullptr);

    /// For another trash than the desktop's.
    void SetTrash(FileTrash trash) { m_trash = std::move(trash); }

    /// A sentence on the last operation; empty before the first and while something is asked.
    const QString& Told() const { return m_told; }
    bool HasFailed() const { return m_failed; }

    /// Whether a file that no trash takes is to be removed for good; empty while nothing is asked.
    QString Question() const;

    /// Something was put into the trash and not taken back.
    bool CanUndo() const { return !m_removed.isEmpty(); }

    /// Gives the file or folder `path` another name in its folder. True also for the name that it has.
    Q_INVOKABLE bool rename(const QString& path, const QString& name);

    /// Puts the file or folder `path` into the trash. A file that no trash takes is asked about; a folder
    /// stays.
    Q_INVOKABLE void remove(const QString& path);

    /// The two answers to the question.
    Q_INVOKABLE void removeForGood();
    Q_INVOKABLE void keep();

    /// Takes what was removed last out of the trash.
    Q_INVOKABLE void undo();

Q_SIGNALS:
    void Changed();
    /// A file has come, gone or changed its name. `path` is where it is now; empty when it is gone.
    void edited(const QString& path);

private:
    struct Removed
    {
        QString path;
        QString in_trash;
    };

    QString why_not_named(const QString& path, const QString& name) const;
    void without_trash(const QString& path);
    void tell(const QString& sentence, bool failed = false);

    FileTrash m_trash = &MoveToDesktopTrash;
    QList<Removed> m_removed;
    QString m_asked;
    QString m_told;
    bool m_failed = false;
};

}
