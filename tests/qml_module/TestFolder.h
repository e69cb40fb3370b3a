#pragma once

#include <QDateTime>
#include <QObject>
#include <QTemporaryDir>
#include <QtQmlIntegration>

/// A folder of its own, gone with the object.
class TestFolder : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString path READ Path CONSTANT FINAL)

public:
    using QObject::QObject;

    QString Path() const { return m_folder.path(); }

    /// Writes a file that is as old as `modified` tells, and gives its path.
    Q_INVOKABLE QString write(const QString& name, const QDateTime& modified);

private:
    QTemporaryDir m_folder;
};
