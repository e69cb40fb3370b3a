#pragma once

#include <QHash>
#include <QString>

/// Which resource module has its images where; see CVqQuickBitmapPool::AddModule(). A module may be named
/// with a folder in front, which does not count.
class CVqResourceModules
{
public:
    void Add(const QString& name, const QString& root);

    bool IsModule(const QString& module) const { return !Root(module).isEmpty(); }

    /// The file of an image, or an empty text.
    QString Find(const QString& module, const QString& image) const;

    /// What stands behind the last slash or backslash.
    static QString FileName(const QString& path);

private:
    QString Root(const QString& module) const;

    QHash<QString, QString> m_roots; // by lower-case name
};
