#pragma once

#include "gallery/files/FolderModel.h"
#include "gallery/files/FolderWatch.h"

#include <QObject>
#include <QString>

namespace Gallery {

/// A folder that is looked at: its files as rows of a model, in step with the disk.
class Folder : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString path READ Path NOTIFY PathChanged)
    Q_PROPERTY(QString words READ Words WRITE SetWords NOTIFY WordsChanged)
    Q_PROPERTY(Gallery::FolderModel* rows READ Rows CONSTANT)
    Q_PROPERTY(bool there READ IsThere NOTIFY ThereChanged)

public:
    /// Looks at the user's own folder.
    explicit Folder(QObject* parent = nullptr);

    /// Absolute, with "/" between its parts.
    const QString& Path() const { return m_path; }

    /// Chooses the names, see ReadFolder().
    const QString& Words() const { return m_words; }
    void SetWords(const QString& words);

    FolderModel* Rows() { return &m_rows; }

    /// Whether there still is such a folder to read.
    bool IsThere() const { return m_there; }

    /// Looks at another folder. False, and all stays, if that is not one that can be read.
    Q_INVOKABLE bool go(const QString& path);

    /// Reads the folder again.
    Q_INVOKABLE void refresh();

Q_SIGNALS:
    void PathChanged();
    void WordsChanged();
    void ThereChanged();

private:
    QString m_path;
    QString m_words;
    bool m_there = true;
    FolderModel m_rows;
    FolderWatch m_watch;
};

}
