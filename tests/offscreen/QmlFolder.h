#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>

/// The QML files of one test, in a folder that goes with this object.
///
///     QmlFolder folder;
///     view.setSource(folder.Scene("Item { width: 50; height: 40 }"));
class QmlFolder
{
public:
    /// Writes `text` into the file `name`, in place of what is there, and gives the address of the file.
    QUrl Write(const QString& name, const QByteArray& text) const
    {
        QFile file(m_dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qWarning("%s cannot be written", qPrintable(file.fileName()));
        return QUrl::fromLocalFile(file.fileName());
    }

    /// A file of its own with `object` below the import of QtQuick, from line 2 on.
    QUrl Scene(const QByteArray& object)
    {
        return Write(QString::asprintf("Scene%d.qml", ++m_scenes), "import QtQuick\n" + object);
    }

private:
    const QTemporaryDir m_dir;
    int m_scenes = 0;
};
