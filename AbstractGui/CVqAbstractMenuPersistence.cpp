#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/SVqMenuRecord.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqLiteVariantW.h"
#include "system/CVqVariant.h"

namespace {

using Manipulators = CVqAbstractMenu::SVqManipulators;

constexpr vq_wchar wrapper_name[] = VQ_TEXT("CVqMenu"); // in the lightweight form only
constexpr vq_wchar root_name[] = VQ_TEXT("Root");
constexpr vq_wchar lonely_name[] = VQ_TEXT("LonelyAccels");

CVqMenuItem* first_item(const CVqMenuItem* root)
{
    return root ? root->subItem() : nullptr;
}

// Empties the menu and its native counterpart; the root stays.
void drop_items(Manipulators& tools, IVqMenuBase* base, CVqMenuItem* root)
{
    tools.destroy_all(base, root);
    if (!root)
        return;
    tools.free_all(root->subItem());
    tools.free_all(root->nextItem());
    root->setSubItem(nullptr);
    root->setNextItem(nullptr);
}

void drop_chain(Manipulators& tools, CVqMenuItem*& head)
{
    tools.free_all(head);
    head = nullptr;
}

int create_items(Manipulators& tools, IVqMenuBase* base, const CVqMenuItem* root)
{
    CVqMenuItem* item = first_item(root);
    return item ? tools.create_all(base, item) : 0;
}

// Calls `work` inside the level of that name, if there is one or it can be made.
template <class Container, class Work>
void in_level(Container& container, const vq_wchar* name, Work work)
{
    if (container.LevelBegin(name) != 0)
        return;
    work();
    container.LevelEnd();
}

}

int CVqAbstractMenu::Save(CVqLiteVariantR& out)
{
    CVqLiteVariantW writer;
    const auto save_lists = [&] {
        if (m_pRoot)
            in_level(writer, root_name,
                     [&] { Manipulators().save_to_variant(&m_accels, m_pRoot->subItem(), writer); });
        if (m_pLonelyAccels)
            in_level(writer, lonely_name,
                     [&] { Manipulators().save_accels_to_variant(&m_accels, m_pLonelyAccels, writer); });
    };
    if (m_pLonelyAccels || first_item(m_pRoot))
        in_level(writer, wrapper_name, save_lists);
    writer.Finalize(out, 0);
    return 0;
}

int CVqAbstractMenu::Save(CVqVariant& out)
{
    const bool could_change_type = out.EnableTypeChange(true);
    // The lists are looked up by name: what already stands there under that name gets the records.
    // (SavingTwiceIntoOneTreeFillsTheFirstRootTwice)
    if (m_pRoot) {
        VqAppendMenuList(out, root_name);
        Manipulators().save_to_variant(&m_accels, m_pRoot->subItem(), out[root_name]);
    }
    if (m_pLonelyAccels) {
        VqAppendMenuList(out, lonely_name);
        Manipulators().save_accels_to_variant(&m_accels, m_pLonelyAccels, out[lonely_name]);
    }
    out.EnableTypeChange(could_change_type);
    return 0;
}

int CVqAbstractMenu::Load(CVqLiteVariantR& in)
{
    drop_items(Manipulators(), m_pMenuBase, m_pRoot);
    m_accels.RemoveAllAccels();

    const bool entered_wrapper = !in.IsValueSet(root_name) && in.CurrentLevelBegin() == 0;
    in_level(in, root_name, [&] { Manipulators().load_from_variant(&m_accels, m_pRoot, in); });
    in_level(in, lonely_name, [&] {
        drop_chain(Manipulators(), m_pLonelyAccels);
        Manipulators().load_accels_from_variant(&m_accels, &m_pLonelyAccels, in);
    });
    if (entered_wrapper)
        in.LevelEnd();
    return create_items(Manipulators(), m_pMenuBase, m_pRoot);
}

int CVqAbstractMenu::Load(CVqVariant& in)
{
    drop_items(Manipulators(), m_pMenuBase, m_pRoot);

    if (!in[root_name].IsEmpty()) {
        drop_chain(Manipulators(), m_pLonelyAccels);
        m_accels.RemoveAllAccels();
        Manipulators().load_from_variant(&m_accels, m_pRoot, in[root_name]);
        Manipulators().load_accels_from_variant(&m_accels, &m_pLonelyAccels, in[lonely_name]);
    } else {
        // An old tree is the list of items itself. Lonely accelerators and keys stay.
        Manipulators().load_from_variant(&m_accels, m_pRoot, in);
    }
    return create_items(Manipulators(), m_pMenuBase, m_pRoot);
}
