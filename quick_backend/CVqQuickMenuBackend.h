#pragma once

#include "AbstractGui/IVqMenuBase.h"
#include "arbor_quick_backend_export.h"

#include <QHash>
#include <QObject>

#include <vector>

class CVqQuickMenuItem;
class CVqQuickMenuRows;
class IVqQuickMenuKeys;

/// Keeps the rows that Qt Quick draws a menu from: one list for each popup handle.
///
/// One inserted item is one inserted row, one destroyed item one removed row; a changed text or status is one
/// dataChanged() with the roles it touches. Shows items of class CVqQuickMenuItem only, since those tell of
/// silent changes.
///
/// An item that was made for a parent or sibling that does not exist hangs nowhere, and the menu forgets it.
/// The back end shows nothing for it, but takes it over and frees it in the end.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickMenuBackend : public QObject, public IVqMenuBase
{
    Q_OBJECT

public:
    /// `keys` tells the key texts of the rows, may be null, and must outlive the back end.
    explicit CVqQuickMenuBackend(const IVqQuickMenuKeys* keys = nullptr);
    ~CVqQuickMenuBackend() override;

    /// The rows of a handle, or null. They live until the popup is destroyed; views hold them through a
    /// guarded pointer, as QML does.
    CVqQuickMenuRows* RowsOf(vq_uint64 handle) const { return m_rows.value(handle); }

    /// Number of items taken over because they hang nowhere.
    int OrphanCount() const { return int(m_orphans.size()); }

    /// The key texts of all rows may have changed.
    void KeysChanged();

    /// A back end without rows and without key texts.
    IVqMenuBase* Duplicate() override;

    /// Emits menuEntered() and returns 0.
    int EnterMenu(vq_wchar character) override;

    vq_uint64 CreateMenuHandle() override;

    /// 0 when a row was added or `item` is the main root. -9 for a null item or one of another class. -6 when
    /// the parent has no rows (it is a command) or `item` does not hang below it.
    int InsertItem(CVqMenuItem* parent, CVqMenuItem* position, CVqMenuItem* item) override;

    /// Takes the item's row away, and the rows below a popup. The main root keeps its list, since it stays
    /// when a menu is emptied.
    void DestroyItem(CVqMenuItem* item) override;

    void UpdateItemText(CVqMenuItem* item) override;
    void UpdateItemState(CVqMenuItem* item) override;

Q_SIGNALS:
    /// The menu was entered by keyboard: open what `letter` picks, or only go to the bar when it is empty.
    void menuEntered(const QString& letter);

private:
    ARBOR_QUICK_BACKEND_NO_EXPORT void Adopt(CVqQuickMenuItem& item);
    ARBOR_QUICK_BACKEND_NO_EXPORT void DropSubmenu(CVqQuickMenuItem& item);

    const IVqQuickMenuKeys* m_keys;             // not owned
    QHash<vq_uint64, CVqQuickMenuRows*> m_rows; // by handle; children of this object
    std::vector<CVqQuickMenuItem*> m_orphans;   // owned
    vq_uint64 m_last_handle = 0;
};
