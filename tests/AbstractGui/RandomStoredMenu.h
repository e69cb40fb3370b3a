#pragma once

#include "tests/support/TestMenu.h"

#include <random>
#include <string>

/// A menu of random items. Equal seeds give equal menus on every platform.
class RandomStoredMenu
{
public:
    static constexpr int images = 5; ///< Items have images 1 to 5, or 0, or none.

    explicit RandomStoredMenu(unsigned seed) : m_random(seed)
    {
        fill(*m_menu.Root(), 0, 1 + below(6));
        for (unsigned i = below(4); i > 0; --i)
            m_menu.AppendLonelyAccel(next_id(), flags(), key(), VQ_TEXT("lonely"));
        for (CVqMenuItem* item = m_menu.LonelyAccels(); item; item = item->nextItem())
            add_keys(item->id());
        m_menu.MainTable().AddAccelKey(next_id(), flags(), key(), 0); // of no item
        m_menu.SecondTable().AddAccelKey(1, flags(), key(), 0);
    }

    TestMenu& Menu() { return m_menu; }

private:
    using Text = std::basic_string<vq_wchar>;

    unsigned below(unsigned end) { return static_cast<unsigned>(m_random() % end); }
    bool one_in(unsigned count) { return below(count) == 0; }
    vq_uint32 next_id() { return ++m_last_id; }
    vq_wchar key() { return static_cast<vq_wchar>(VQ_TEXT('A') + below(8)); }
    vq_uint32 flags() { return 16 + below(8) + (one_in(10) ? 0x8000 : 0) + (one_in(10) ? 0x70000 : 0); }

    void fill(CVqMenuItem& parent, int depth, unsigned count)
    {
        for (; count > 0; --count) {
            CVqMenuItem* item = make_item();
            CVqAbstractMenu::SVqManipulators::Instance().append_item(&parent, item);
            if (depth < 3 && (item->type() == 7 || one_in(20)))
                fill(*item, depth + 1, below(6));
        }
    }

    CVqMenuItem* make_item()
    {
        CVqMenuItem* item = CVqAbstractMenu::SVqManipulators::Instance().allocMenuItem();
        item->setId(next_id());
        item->setType(2 + below(6));
        item->setStatus(static_cast<vq_uint32>(m_random()));
        item->setRemoved(one_in(6));
        item->setDeleted(one_in(6));
        item->setText(item->type() == 6 ? VQ_TEXT("Lost") : text().c_str());
        item->setCommand(one_in(3) ? VQ_TEXT("command") : VQ_TEXT(""));
        item->setLineWidth(below(9));
        item->setCol1(static_cast<vq_uint32>(m_random()));
        item->setCol2(static_cast<vq_uint32>(m_random()));
        item->setEnaBmpIndex(static_cast<vq_int32>(below(images + 2)) - 1);
        item->setBmpSize({16, 16});
        item->setIgnoreAdditionalZoom(true);
        item->setUserParam(this);
        item->setDrawCallback(this);
        item->setMeasureCallback(this);
        item->setMenu(5);
        add_keys(item->id());
        return item;
    }

    // A label with marks, then a part that is not stored: behind a TAB, or behind a BEL.
    Text text()
    {
        static const vq_wchar* const pieces[] = {VQ_TEXT("&A"), VQ_TEXT("&b"), VQ_TEXT("B"),  VQ_TEXT("&&B"),
                                                 VQ_TEXT("&c"), VQ_TEXT("&C"), VQ_TEXT("d "), VQ_TEXT("e")};
        static const vq_wchar* const ends[] = {VQ_TEXT(""), VQ_TEXT("\tD"), VQ_TEXT("\aOld"), VQ_TEXT("\a")};
        Text text;
        for (unsigned i = below(7); i > 0; --i)
            text += pieces[below(8)];
        return text + ends[below(4)];
    }

    void add_keys(vq_uint32 id)
    {
        for (unsigned i = one_in(2) ? below(4) : 0; i > 0; --i)
            m_menu.MainTable().AddAccelKey(id, flags(), key(), one_in(2) ? 0 : 99);
    }

    std::mt19937 m_random;
    vq_uint32 m_last_id = 0;
    TestMenu m_menu{TestMenu::BackEnd::None};
};
