#pragma once

#include "AbstractGui/CVqMenuItem.h"
#include "arbor_quick_backend_export.h"

class CVqQuickMenuRows;

/// A menu item that tells its row when a field changes for which the menu makes no call to its back end.
///
/// Separators are tidied and commands hidden by setting a flag and nothing more; images, colours and widths
/// change in the same silence. Menu strings and status are not told from here: the menu announces them
/// itself.
///
/// Made by SVqQuickManipulators. At most one row shows an item; the row's list keeps the link and undoes it
/// before either of them goes. Not copyable, since a copy has no row.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickMenuItem final : public CVqMenuItem
{
public:
    CVqQuickMenuItem();
    ~CVqQuickMenuItem() override;

    CVqQuickMenuItem(const CVqQuickMenuItem&) = delete;
    CVqQuickMenuItem& operator=(const CVqQuickMenuItem&) = delete;

    /// Whether the item's mark is a radio dot. The status has no bit for it, so the menu sets it on every
    /// item that was ever in the range of a CheckRadioId().
    bool radio() const { return m_bRadio; }
    void setRadio(bool radio);

    /// The list that holds the item's row, or null.
    CVqQuickMenuRows* rows() const { return m_pRows; }

    /// The list of the rows below a popup item, or null; set by the back end.
    CVqQuickMenuRows* submenu() const { return m_pSubmenu; }
    void setSubmenu(CVqQuickMenuRows* rows);

    void setCommand(const vq_wchar* command) override;
    void setId(vq_uint32 id) override;
    void setLineWidth(vq_uint32 width) override;
    void setCol1(vq_uint32 colour) override;
    void setCol2(vq_uint32 colour) override;
    void setEnaBmpIndex(vq_int32 index) override;
    void setMnemonic(vq_wchar mnemonic) override;
    void setRemoved(bool removed) override;
    void setDeleted(bool deleted) override;

private:
    friend class CVqQuickMenuRows;

    CVqQuickMenuRows* m_pRows = nullptr;    // not owned
    CVqQuickMenuRows* m_pSubmenu = nullptr; // not owned; of a popup
    int m_row = -1;                         // where the row was last; the list checks it
    bool m_bRadio = false;
};
