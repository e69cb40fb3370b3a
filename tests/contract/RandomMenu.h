#pragma once

#include "AbstractGui/CVqAbstractMenu.h"

#include <algorithm>
#include <iterator>
#include <random>
#include <vector>

/// Does random things to a menu, the same ones for the same seed: all that adds, deletes, changes and hides,
/// with identifiers of which some are unknown.
class RandomMenu
{
public:
    enum class Ids
    {
        Unique,
        Repeated, ///< One in four new items takes an identifier that may be in use.
    };

    RandomMenu(CVqAbstractMenu& menu, Ids ids, std::mt19937::result_type seed)
        : m_menu(menu), m_ids(ids), m_random(seed)
    { }

    void Step()
    {
        if (m_step++ % 16 == 0) {
            m_items = {0};
            m_popups = {0};
            Learn(m_menu.getRootMenuItem()->subItem());
        }
        switch (Below(12)) {
        case 0:
        case 1:
        case 2:
        case 3:
            return Append();
        case 4:
        case 5:
            return InsertBefore();
        case 6:
        case 7:
            return InsertAfter();
        case 8:
            return Delete();
        case 9:
            return ChangeStatus();
        case 10:
            return ChangeText();
        default:
            return ChangePopup();
        }
    }

private:
    vq_uint32 Below(vq_uint32 end) { return vq_uint32(m_random() % end); }

    // 0 would be a second root.
    vq_uint32 NewId() { return m_ids == Ids::Unique || Below(4) ? ++m_last : 1 + Below(m_last + 1); }
    /// One in eight is unknown, or gone meanwhile.
    vq_uint32 AnyId() { return Below(8) ? OneOf(m_items) : Below(m_last + 2); }

    /// Seldom no popup but a command, or unknown.
    vq_uint32 ParentId() { return Below(16) ? OneOf(m_popups) : AnyId(); }

    vq_uint32 OneOf(const std::vector<vq_uint32>& ids) { return ids[Below(vq_uint32(ids.size()))]; }

    void Learn(const CVqMenuItem* first)
    {
        for (const CVqMenuItem* item = first; item; item = item->nextItem()) {
            m_items.push_back(item->id());
            if (item->type() == CVqAbstractMenu::SensePopup)
                m_popups.push_back(item->id());
            Learn(item->subItem());
        }
    }

    const vq_wchar* Text()
    {
        static const vq_wchar* const texts[]
            = {VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT("Save &as"),    VQ_TEXT("R&&D"), VQ_TEXT(""),
               VQ_TEXT("Layer 2\aF5"),   VQ_TEXT("&Copy\tnote"), VQ_TEXT("&"),    VQ_TEXT("...")};
        return texts[Below(std::size(texts))];
    }

    void Append()
    {
        const vq_uint32 id = NewId();
        const vq_uint32 parent = ParentId();
        switch (Below(6)) {
        case 0:
            m_menu.AppendPopup(id, parent, Text());
            return;
        case 1:
            m_menu.AppendMenuItem(id, parent, Text(), VQ_TEXT("Command"), Below(8));
            return;
        case 2:
            m_menu.AppendSeparator(id, parent);
            return;
        case 3:
            m_menu.AppendOneColor(id, parent, Below(0x1000000), VQ_TEXT("One"));
            return;
        case 4:
            m_menu.AppendTwoColor(id, parent, Below(255), Below(255), VQ_TEXT("Two"));
            return;
        default:
            m_menu.AppendLineWidth(id, parent, Below(20), Text(), VQ_TEXT("Width"));
        }
    }

    void InsertBefore()
    {
        const vq_uint32 id = NewId();
        const vq_uint32 sibling = AnyId();
        const vq_uint32 parent = ParentOf(sibling);
        switch (Below(6)) {
        case 0:
            m_menu.InsertPopupBefore(id, parent, sibling, Text());
            return;
        case 1:
            m_menu.InsertMenuItemBefore(id, parent, sibling, Text(), VQ_TEXT("Command"));
            return;
        case 2:
            m_menu.InsertSeparatorBefore(id, parent, sibling);
            return;
        case 3:
            m_menu.InsertOneColorBefore(id, parent, sibling, 1, VQ_TEXT("One"));
            return;
        case 4:
            m_menu.InsertTwoColorBefore(id, parent, sibling, 1, 2, VQ_TEXT("Two"));
            return;
        default:
            m_menu.InsertLineWidthBefore(id, parent, sibling, 3, Text(), VQ_TEXT("Width"));
        }
    }

    void InsertAfter()
    {
        const vq_uint32 id = NewId();
        const vq_uint32 sibling = AnyId();
        const vq_uint32 parent = ParentOf(sibling);
        switch (Below(6)) {
        case 0:
            m_menu.InsertPopupAfter(id, parent, sibling, Text());
            return;
        case 1:
            m_menu.InsertMenuItemAfter(id, parent, sibling, Text(), VQ_TEXT("Command"));
            return;
        case 2:
            // With an unknown parent it writes a message, which another test expects.
            if (m_menu.Manipulators().find_item(parent, m_menu.getRootMenuItem()))
                m_menu.InsertSeparatorAfter(id, parent, sibling);
            return;
        case 3:
            m_menu.InsertOneColorAfter(id, parent, sibling, 1, VQ_TEXT("One"));
            return;
        case 4:
            m_menu.InsertTwoColorAfter(id, parent, sibling, 1, 2, VQ_TEXT("Two"));
            return;
        default:
            m_menu.InsertLineWidthAfter(id, parent, sibling, 3, Text(), VQ_TEXT("Width"));
        }
    }

    vq_uint32 ParentOf(vq_uint32 sibling)
    {
        vq_uint32 parent = AnyId();
        m_menu.GetIdParentPopup(sibling, parent);
        return parent;
    }

    void Delete()
    {
        const vq_uint32 id = AnyId();
        // Popups seldom, or the tree never grows.
        const CVqMenuItem* item = m_menu.Manipulators().find_item(id, m_menu.getRootMenuItem());
        if (item && item->subItem() && Below(8))
            return;
        if (Below(20) == 0)
            m_menu.DeleteAllIn(id);
        else
            m_menu.DeleteId(id);
    }

    void ChangeStatus()
    {
        const vq_uint32 id = AnyId();
        switch (Below(5)) {
        case 0:
            m_menu.CheckId(id, Below(2));
            return;
        case 1:
            m_menu.GrayId(id, Below(2));
            return;
        case 2:
            m_menu.EnableId(id, Below(2));
            return;
        case 3:
            m_menu.CheckRadioId(id, id, id + Below(5));
            return;
        default:
            m_menu.SetIdStatus(id, Below(0x10000));
        }
    }

    void ChangeText()
    {
        const vq_uint32 id = AnyId();
        switch (Below(4)) {
        case 0:
            m_menu.SetIdMenuString(id, Text());
            return;
        case 1:
            m_menu.SetIdAccelKey(id, 18, vq_wchar('A' + Below(26)), Below(2));
            return;
        case 2:
            m_menu.SetIdBitmap(id, vq_int32(Below(9)));
            return;
        default:
            m_menu.SetIdCommand(id, VQ_TEXT("Other"));
        }
    }

    void ChangePopup()
    {
        switch (Below(4)) {
        case 0:
            m_menu.RecreatePopup(AnyId());
            return;
        case 1:
            m_menu.UpdateMnemonics(ParentId(), Below(2));
            return;
        case 2:
            m_menu.RemoveHiddenInPopup(0, VQ_TEXT("Nobody"));
            return;
        default:
            Hide();
        }
    }

    void Hide()
    {
        CVqMenuItem* item = m_menu.Manipulators().find_item(AnyId(), m_menu.getRootMenuItem());
        if (!item || item == m_menu.getRootMenuItem())
            return;
        if (Below(2))
            item->setDeleted(Below(2));
        else
            item->setRemoved(Below(2));
    }

    CVqAbstractMenu& m_menu;
    const Ids m_ids;
    std::mt19937 m_random;
    std::vector<vq_uint32> m_items; // in the tree a few steps ago
    std::vector<vq_uint32> m_popups;
    vq_uint32 m_last = 0;
    int m_step = 0;
};
