#pragma once

#include "AbstractGui/CVqAbstractMenu.h"
#include "arbor_quick_backend_export.h"

/// The tree operations of a Qt Quick menu: makes items that tell of silent changes, and loses none.
class ARBOR_QUICK_BACKEND_EXPORT SVqQuickManipulators final : public CVqAbstractMenu::SVqManipulators
{
public:
    SVqQuickManipulators() = default;

    /// Where the native counterparts of lost items are destroyed; not owned.
    void SetBackend(IVqMenuBase* backend) { m_backend = backend; }

    /// A CVqQuickMenuItem, or null when memory runs out.
    CVqMenuItem* allocMenuItem() override;

    /// Of several items with one identifier the base returns one and loses the others. These go here, with
    /// their rows and all below them, so that no row shows an item that the menu no longer has.
    CVqMenuItem* remove_item(vq_uint32 id, CVqMenuItem* root) override;

    /// As the base does, and the copies are radio items where their sources are.
    int copy_items_tree(CVqMenuItem* destination, CVqMenuItem* source) override;

private:
    IVqMenuBase* m_backend = nullptr;
};
