#pragma once

#include "AbstractGui/CVqAbstractMenu.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

/// One item of a tree in a test.
struct MenuNode
{
    vq_uint32 id;
    std::vector<MenuNode> children = {};
};

/// Items linked by hand and owned by the test, whatever happens to their links.
///
///     MenuTree tree({{1, {{2}, {3}}}, {4}});
///     EXPECT_EQ(Shape(tree.First()), "1(2 3) 4");
class MenuTree
{
public:
    explicit MenuTree(const std::vector<MenuNode>& nodes)
    {
        m_root = New(0);
        m_root->setType(CVqAbstractMenu::SenseMainRoot);
        Link(m_root, nodes);
    }

    CVqMenuItem* Root() const { return m_root; }
    CVqMenuItem* First() const { return m_root->subItem(); }

    /// The first item that was made with `id`.
    CVqMenuItem* operator[](vq_uint32 id) const { return m_by_id.at(id); }

    /// An item that hangs nowhere.
    CVqMenuItem* New(vq_uint32 id)
    {
        m_items.push_back(std::make_unique<CVqMenuItem>());
        CVqMenuItem* item = m_items.back().get();
        item->setId(id);
        item->setType(CVqAbstractMenu::SenseItem);
        m_by_id.emplace(id, item);
        return item;
    }

private:
    void Link(CVqMenuItem* parent, const std::vector<MenuNode>& nodes)
    {
        CVqMenuItem* previous = nullptr;
        for (const MenuNode& node : nodes) {
            CVqMenuItem* item = New(node.id);
            item->setParentItem(parent);
            if (previous)
                previous->setNextItem(item);
            else
                parent->setSubItem(item);
            previous = item;
            if (!node.children.empty())
                item->setType(CVqAbstractMenu::SensePopup);
            Link(item, node.children);
        }
    }

    std::vector<std::unique_ptr<CVqMenuItem>> m_items;
    std::map<vq_uint32, CVqMenuItem*> m_by_id;
    CVqMenuItem* m_root = nullptr;
};

/// Identifiers of the chain from `first`, children in brackets.
inline std::string Shape(const CVqMenuItem* first)
{
    std::string shape;
    for (const CVqMenuItem* item = first; item; item = item->nextItem()) {
        shape += (shape.empty() ? "" : " ") + std::to_string(item->id());
        if (item->subItem())
            shape += "(" + Shape(item->subItem()) + ")";
    }
    return shape;
}

/// The process-wide manipulators.
inline CVqAbstractMenu::SVqManipulators& Tools()
{
    return CVqAbstractMenu::SVqManipulators::Instance();
}
