#include "tests/qml_module/TestFolder.h"

#include <QFile>

QString TestFolder::write(const QString& name, const QDateTime& modified)
{
    QFile file(m_folder.filePath(name));
    if (file.open(QIODevice::WriteOnly))
        file.setFileTime(modified, QFileDevice::FileModificationTime);
    return file.fileName();
}
