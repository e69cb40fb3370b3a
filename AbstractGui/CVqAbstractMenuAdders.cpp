#include "AbstractGui/CVqAbstractMenu.h"

#include <QDebug>

namespace {

constexpr int parent_not_found = -6;
constexpr int missing = -9;

using Tools = CVqAbstractMenu::SVqManipulators;

enum class Side
{
    Before,
    After,
};

constexpr auto nothing = [](Tools&) { };

bool has_child(const CVqMenuItem* parent, vq_uint32 id)
{
    const CVqMenuItem* child = parent ? parent->subItem() : nullptr;
    while (child && child->id() != id)
        child = child->nextItem();
    return child;
}

/// The steps that all additions share. `make` makes the item; `linked` runs once it hangs in the tree and
/// before the back end hears of it. A null parent or item goes all the way through.
class Adder
{
public:
    Adder(CVqAbstractMenu& menu, CVqMenuItem* root, IVqMenuBase* base)
        : m_menu(menu), m_root(root), m_base(base)
    { }

    CVqMenuItem* find(vq_uint32 id) const { return tools().find_item(id, m_root); }

    template <class Make, class Linked = decltype(nothing)>
    int append(vq_uint32 parentId, Make make, Linked linked = nothing) const
    {
        CVqMenuItem* parent = find(parentId);
        CVqMenuItem* item = make(tools());
        tools().append_item(parent, item);
        linked(tools());
        tell(parent, nullptr, item);
        return 0;
    }

    template <class Make, class Linked = decltype(nothing)>
    int insert(Side side, vq_uint32 parentId, vq_uint32 siblingId, Make make, Linked linked = nothing) const
    {
        CVqMenuItem* parent = find(parentId);
        CVqMenuItem* item = make(tools());
        CVqMenuItem* position = side == Side::Before ? tools().insert_item_before(siblingId, parent, item)
                                                     : tools().insert_item_after(siblingId, parent, item);
        linked(tools());
        tell(parent, position, item);
        tools().check_seps(parent ? parent->subItem() : nullptr, false);
        return 0;
    }

private:
    Tools& tools() const { return m_menu.Manipulators(); }

    void tell(CVqMenuItem* parent, CVqMenuItem* position, CVqMenuItem* item) const
    {
        if (m_base)
            m_base->InsertItem(parent, position, item);
    }

    CVqAbstractMenu& m_menu;
    CVqMenuItem* m_root;
    IVqMenuBase* m_base;
};

auto popup(vq_uint32 id, IVqMenuBase* base, const vq_wchar* text)
{
    return
        [=](Tools& tools) { return tools.create_item_popup(id, base ? base->CreateMenuHandle() : 0, text); };
}

auto command_item(vq_uint32 id, const vq_wchar* text, const vq_wchar* command, CVqAccelerators& accels)
{
    return [=, &accels](Tools& tools) { return tools.create_item_item(id, text, command, &accels); };
}

/// Takes the key out of a menu string; the item keeps its text as it is.
auto key_of(vq_uint32 id, const vq_wchar* text, CVqAccelerators& accels)
{
    return [=, &accels](Tools& tools) {
        CVqStringW copy(text);
        tools.set_accel(&accels, id, copy);
    };
}

auto separator(vq_uint32 id)
{
    return [=](Tools& tools) { return tools.create_item_separator(id); };
}

auto one_color(vq_uint32 id, vq_uint32 colour, const vq_wchar* command)
{
    return [=](Tools& tools) { return tools.create_item_onecolor(id, colour, command); };
}

auto two_color(vq_uint32 id, vq_uint32 colour1, vq_uint32 colour2, const vq_wchar* command)
{
    return [=](Tools& tools) { return tools.create_item_twocolor(id, colour1, colour2, command); };
}

auto line_width(vq_uint32 id, vq_uint32 width, const vq_wchar* text, const vq_wchar* command)
{
    return [=](Tools& tools) { return tools.create_item_linewidth(id, width, text, command); };
}

}

int CVqAbstractMenu::InsertPopupBefore(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId,
                                       const vq_wchar* text)
{
    return Adder(*this, m_pRoot, m_pMenuBase)
        .insert(Side::Before, parentId, siblingId, popup(id, m_pMenuBase, text));
}

int CVqAbstractMenu::InsertPopupAfter(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId,
                                      const vq_wchar* text)
{
    return Adder(*this, m_pRoot, m_pMenuBase)
        .insert(Side::After, parentId, siblingId, popup(id, m_pMenuBase, text));
}

int CVqAbstractMenu::AppendPopup(vq_uint32 id, vq_uint32 parentId, const vq_wchar* text)
{
    return Adder(*this, m_pRoot, m_pMenuBase).append(parentId, popup(id, m_pMenuBase, text));
}

int CVqAbstractMenu::InsertMenuItemBefore(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId,
                                          const vq_wchar* text, const vq_wchar* command)
{
    const Adder adder(*this, m_pRoot, m_pMenuBase);
    if (!has_child(adder.find(parentId), siblingId))
        return missing;
    return adder.insert(Side::Before, parentId, siblingId, command_item(id, text, command, m_accels),
                        key_of(id, text, m_accels));
}

int CVqAbstractMenu::InsertMenuItemAfter(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId,
                                         const vq_wchar* text, const vq_wchar* command)
{
    const Adder adder(*this, m_pRoot, m_pMenuBase);
    if (!has_child(adder.find(parentId), siblingId))
        return missing;
    return adder.insert(Side::After, parentId, siblingId, command_item(id, text, command, m_accels),
                        key_of(id, text, m_accels));
}

int CVqAbstractMenu::AppendMenuItem(vq_uint32 id, vq_uint32 parentId, const vq_wchar* text,
                                    const vq_wchar* command, vq_uint32 status)
{
    const auto make = [&](Tools& tools) {
        CVqMenuItem* item = tools.create_item_item(id, text, command, &m_accels);
        if (item && status != 0)
            item->setStatus(status);
        return item;
    };
    return Adder(*this, m_pRoot, m_pMenuBase).append(parentId, make, key_of(id, text, m_accels));
}

int CVqAbstractMenu::InsertSeparatorBefore(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId)
{
    return Adder(*this, m_pRoot, m_pMenuBase).insert(Side::Before, parentId, siblingId, separator(id));
}

int CVqAbstractMenu::InsertSeparatorAfter(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId)
{
    const Adder adder(*this, m_pRoot, m_pMenuBase);
    if (!adder.find(parentId)) {
        qDebug() << "CVqAbstractMenu::InsertSeparatorAfter > pParentItem with Id " << parentId
                 << " not found";
        return parent_not_found;
    }
    return adder.insert(Side::After, parentId, siblingId, separator(id));
}

int CVqAbstractMenu::AppendSeparator(vq_uint32 id, vq_uint32 parentId)
{
    return Adder(*this, m_pRoot, m_pMenuBase).append(parentId, separator(id));
}

int CVqAbstractMenu::InsertOneColorBefore(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId,
                                          vq_uint32 colour, const vq_wchar* command)
{
    return Adder(*this, m_pRoot, m_pMenuBase)
        .insert(Side::Before, parentId, siblingId, one_color(id, colour, command));
}

int CVqAbstractMenu::InsertOneColorAfter(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId,
                                         vq_uint32 colour, const vq_wchar* command)
{
    return Adder(*this, m_pRoot, m_pMenuBase)
        .insert(Side::After, parentId, siblingId, one_color(id, colour, command));
}

int CVqAbstractMenu::AppendOneColor(vq_uint32 id, vq_uint32 parentId, vq_uint32 colour,
                                    const vq_wchar* command)
{
    return Adder(*this, m_pRoot, m_pMenuBase).append(parentId, one_color(id, colour, command));
}

int CVqAbstractMenu::InsertTwoColorBefore(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId,
                                          vq_uint32 colour1, vq_uint32 colour2, const vq_wchar* command)
{
    return Adder(*this, m_pRoot, m_pMenuBase)
        .insert(Side::Before, parentId, siblingId, two_color(id, colour1, colour2, command));
}

int CVqAbstractMenu::InsertTwoColorAfter(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId,
                                         vq_uint32 colour1, vq_uint32 colour2, const vq_wchar* command)
{
    return Adder(*this, m_pRoot, m_pMenuBase)
        .insert(Side::After, parentId, siblingId, two_color(id, colour1, colour2, command));
}

int CVqAbstractMenu::AppendTwoColor(vq_uint32 id, vq_uint32 parentId, vq_uint32 colour1, vq_uint32 colour2,
                                    const vq_wchar* command)
{
    return Adder(*this, m_pRoot, m_pMenuBase).append(parentId, two_color(id, colour1, colour2, command));
}

int CVqAbstractMenu::InsertLineWidthBefore(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId,
                                           vq_uint32 width, const vq_wchar* text, const vq_wchar* command)
{
    return Adder(*this, m_pRoot, m_pMenuBase)
        .insert(Side::Before, parentId, siblingId, line_width(id, width, text, command));
}

int CVqAbstractMenu::InsertLineWidthAfter(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId,
                                          vq_uint32 width, const vq_wchar* text, const vq_wchar* command)
{
    return Adder(*this, m_pRoot, m_pMenuBase)
        .insert(Side::After, parentId, siblingId, line_width(id, width, text, command));
}

int CVqAbstractMenu::AppendLineWidth(vq_uint32 id, vq_uint32 parentId, vq_uint32 width, const vq_wchar* text,
                                     const vq_wchar* command)
{
    return Adder(*this, m_pRoot, m_pMenuBase).append(parentId, line_width(id, width, text, command));
}
