#pragma once

#include "arbor_qml_support_export.h"
#include "system/VqTypes.h"

#include <QCursor>
#include <QString>

#include <map>

/// The process-wide table of cursors. The application chooses the keys and the meaning of a resource's
/// number.
///
/// The pool loads no cursors: an entry that was set by resource holds a default cursor until the application
/// has loaded the resource and sets the cursor itself.
///
///     CVqCursorPool& pool = CVqCursorPool::instance();
///     pool.set(g_lasso, u":/cursors/lasso.png"_s);
///     ...
///     QString resource;
///     pool.getResource(g_lasso, &resource);
///     pool.set(g_lasso, QCursor(QPixmap(resource), 4, 4));
///     canvas.setCursor(pool.get(g_lasso));
///
/// Use on the GUI thread; the table is not locked.
class ARBOR_QML_SUPPORT_EXPORT CVqCursorPool
{
public:
    /// The registered pool: what a derived class put into s_pInstance, or one that is made by the first call,
    /// in whatever thread, and destroyed at exit.
    static CVqCursorPool& instance();

    // The order of the virtual operations is part of the binary interface.

    /// The number of entries.
    virtual vq_uint64 size() const;

    /// A copy of the entry's cursor. An unknown key gives the arrow and makes no entry.
    virtual QCursor get(vq_uint64 id);

    /// The entry's number; its text goes into `resource` unless that is null. An unknown key gives 0 and
    /// leaves `resource` as it is.
    virtual int getResource(vq_uint64 id, QString* resource) const;

    // Each makes the entry where there is none and leaves the fields alone that it does not name. A resource
    // puts a default cursor in place of the entry's. A bare shape, as in set(1, Qt::WaitCursor), is taken for
    // a number: write QCursor(Qt::WaitCursor).

    virtual void set(vq_uint64 id, QString resource);
    virtual void set(vq_uint64 id, int resource);
    virtual void set(vq_uint64 id, QCursor cursor);

    /// The `n`-th key in ascending order, from 0; 0 behind the last one. 0 may be a key as well.
    virtual vq_uint64 operator[](vq_uint64 n) const;

protected:
    CVqCursorPool();

    /// Copies all entries; the copy is not registered.
    CVqCursorPool(const CVqCursorPool& other);
    CVqCursorPool& operator=(const CVqCursorPool& other);

    /// Takes the pool out of s_pInstance if it is there.
    virtual ~CVqCursorPool();

    /// What instance() gives; null until its first call. Not owned.
    static CVqCursorPool* s_pInstance;

private:
    struct SVqEntry
    {
        QCursor cursor;
        QString resource;
        int number = 0;
    };

    std::map<vq_uint64, SVqEntry> m_entries;
};
