#include "quick_backend/SVqQuickManipulators.h"

#include "quick_backend/CVqQuickMenuItem.h"

#include <new>
#include <vector>

namespace {

class Namesakes final : public CVqAbstractMenu::IVqVisitorData
{
public:
    explicit Namesakes(vq_uint32 id) : m_id(id) { }

    bool Visit(CVqMenuItem* item) override
    {
        if (item->id() == m_id)
            m_items.push_back(item);
        return true;
    }

    const std::vector<CVqMenuItem*>& Items() const { return m_items; }

private:
    const vq_uint32 m_id;
    std::vector<CVqMenuItem*> m_items;
};

}

CVqMenuItem* SVqQuickManipulators::allocMenuItem()
{
    return new (std::nothrow) CVqQuickMenuItem;
}

CVqMenuItem* SVqQuickManipulators::remove_item(vq_uint32 id, CVqMenuItem* root)
{
    Namesakes namesakes(id);
    visit_all(root, namesakes);
    CVqMenuItem* removed = SVqManipulators::remove_item(id, root);
    for (CVqMenuItem* lost : namesakes.Items()) {
        if (lost == removed)
            continue;
        lost->setNextItem(nullptr); // still points into the tree
        destroy_all(m_backend, lost);
        free_all(lost);
    }
    return removed;
}

// The base calls this again for each child.
int SVqQuickManipulators::copy_items_tree(CVqMenuItem* destination, CVqMenuItem* source)
{
    auto* copy = dynamic_cast<CVqQuickMenuItem*>(destination);
    const auto* original = dynamic_cast<const CVqQuickMenuItem*>(source);
    if (copy && original)
        copy->setRadio(original->radio());
    return SVqManipulators::copy_items_tree(destination, source);
}
