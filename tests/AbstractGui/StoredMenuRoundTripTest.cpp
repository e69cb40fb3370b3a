#include "tests/AbstractGui/StoredMenus.h"
#include "tests/AbstractGui/TestBitmapPool.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <tuple>
#include <vector>

// Random menus go through either form and come back. What comes back is worked out here from the menu itself:
//
// - kept: identifier, type, status, removed, deleted, command, the order and nesting of items, the mnemonic,
//   lonely accelerators with their commands, and what the types have: line width, first and second colour;
// - lost: text and command of separators, widths and colours of types that have none, marks that are not the
//   mnemonic's, image size, zoom, callbacks, user parameter, handle, the table pointer of all but commands,
//   an image with index 0, flags of keys above 16 bits, targets, keys without an item and the order of the
//   table;
// - made anew: the text behind the label, the table pointer of commands, image indexes.

namespace {

using View = std::basic_string_view<vq_wchar>;
using Text = std::basic_string<vq_wchar>;

constexpr int menus = 200;
constexpr int sources = 5; // images 1 to 5

/// A menu of random items. Equal seeds give equal menus on every platform.
class RandomMenu
{
public:
    explicit RandomMenu(unsigned seed) : m_random(seed)
    {
        fill(*m_menu.Root(), 0, 1 + below(6));
        for (unsigned i = below(4); i > 0; --i)
            m_menu.AppendLonelyAccel(next_id(), flags(), key(), VQ_TEXT("lonely"));
        for (CVqMenuItem* item = m_menu.LonelyAccels(); item; item = item->nextItem())
            add_keys(item->id());
        m_menu.MainTable().AddAccelKey(next_id(), flags(), key(), 0); // of no item
    }

    TestMenu& Menu() { return m_menu; }

private:
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
        item->setEnaBmpIndex(static_cast<vq_int32>(below(sources + 2)) - 1);
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

/// What a menu is once it was stored and loaded, one line an item.
class Expectation
{
public:
    explicit Expectation(TestMenu& menu) : m_table(menu.MainTable())
    {
        add_items(menu.Root()->subItem(), 0);
        for (const CVqMenuItem* item = menu.LonelyAccels(); item; item = item->nextItem()) {
            add_keys(item->id());
            m_lines += std::to_string(item->id()) + " " + TestMenu::Plain(item->command()) + "\n";
        }
        m_lines += keys();
    }

    const std::string& Lines() const { return m_lines; }

private:
    using Key = std::tuple<vq_uint32, vq_uint32, vq_wchar>; // identifier, flags, key

    void add_items(const CVqMenuItem* item, unsigned depth)
    {
        for (; item; item = item->nextItem()) {
            const bool has_new_key = add_keys(item->id());
            const vq_uint32 type = item->type();
            m_lines += std::string(depth, ' ') + std::to_string(item->id()) + " " + std::to_string(type) + " "
                + std::to_string(item->status()) + (item->removed() ? "-" : "") + (item->deleted() ? "*" : "")
                + " '" + text(*item, has_new_key) + "' " + std::to_string(item->mnemonic()) + " '"
                + (type == 6 ? "" : TestMenu::Plain(item->command())) + "' "
                + std::to_string(type == 5 ? item->lineWidth() : 0) + " "
                + std::to_string(type == 3 || type == 4 ? item->col1() : 0) + " "
                + std::to_string(type == 3 ? item->col2() : 0) + " "
                + std::to_string(item->enaBmpIndex() >= 1 ? m_next_image++ : -1) + (type == 2 ? " table" : "")
                + "\n";
            add_items(item->subItem(), depth + 1);
        }
    }

    bool add_keys(vq_uint32 id)
    {
        bool added = false;
        vq_uint32 flags = 0;
        vq_wchar key = 0;
        for (int index = 0; m_table.GetAccelKey(id, index, &flags, &key) == 0;) {
            flags &= 0xFFFF;
            if (flags & 0x8000)
                flags |= 0xFFFF0000;
            const Key* first = first_of(flags, key);
            if (first && std::get<0>(*first) == id)
                continue;
            m_keys.emplace_back(id, flags, key);
            added = true;
        }
        return added;
    }

    const Key* first_of(vq_uint32 flags, vq_wchar key) const
    {
        for (const Key& record : m_keys)
            if (std::get<1>(record) == flags && std::get<2>(record) == key)
                return &record;
        return nullptr;
    }

    std::string text(const CVqMenuItem& item, bool has_new_key) const
    {
        const Text label = item.type() == 6 ? Text() : stored(item.text().View(), item.mnemonic());
        const std::string plain = TestMenu::Plain(label.c_str());
        return has_new_key && item.type() != 7 ? plain + "|" + key_texts(item.id()) : plain;
    }

    static Text stored(View text, vq_wchar mnemonic)
    {
        Text out;
        for (std::size_t i = 0; i < text.size(); ++i) {
            const vq_wchar next = i + 1 < text.size() ? text[i + 1] : vq_wchar(0);
            const bool is_mark = text[i] == VQ_TEXT('&') && next != VQ_TEXT('&');
            if (is_mark && (next == 0 || VqLower(next) != VqLower(mnemonic)))
                continue;
            out += text[i];
            if (text[i] == VQ_TEXT('&'))
                out += text[++i];
        }
        const std::size_t end = out.find(VQ_TEXT('\a'));
        return out.substr(0, end != Text::npos ? end : out.rfind(VQ_TEXT('\t')));
    }

    std::string key_texts(vq_uint32 id) const
    {
        std::string texts;
        std::string last;
        for (const auto& [its_id, flags, key] : m_keys) {
            const std::string text = std::string(flags & 2 ? "Ctrl+" : "") + (flags & 1 ? "Alt+" : "")
                + (flags & 4 ? "Shift+" : "") + static_cast<char>(key);
            if (its_id != id || text == last)
                continue;
            texts += (texts.empty() ? "" : ", ") + text;
            last = text;
        }
        return texts;
    }

    std::string keys() const
    {
        std::string out;
        for (const auto& [id, flags, key] : m_keys)
            out += (out.empty() ? "" : " ") + std::to_string(id) + ":" + std::to_string(flags) + "+"
                + std::to_string(static_cast<unsigned>(key));
        return out;
    }

    CVqAccelerators& m_table;
    std::vector<Key> m_keys; // in the order of the loaded table
    int m_next_image = 100;
    std::string m_lines;
};

/// A loaded menu in the same lines; what must be lost is said when it is not.
class Reality
{
public:
    explicit Reality(TestMenu& menu) : m_table(&menu.MainTable())
    {
        add_items(menu.Root()->subItem(), menu.Root(), 0);
        for (const CVqMenuItem* item = menu.LonelyAccels(); item; item = item->nextItem())
            m_lines += std::to_string(item->id()) + " " + TestMenu::Plain(item->command()) + "\n";
        m_lines += TestMenu::Keys(menu.MainTable());
    }

    const std::string& Lines() const { return m_lines; }

private:
    void add_items(const CVqMenuItem* item, const CVqMenuItem* parent, unsigned depth)
    {
        for (; item; item = item->nextItem()) {
            const bool fresh = !item->ignoreAdditionalZoom() && !item->userParam() && !item->drawCallback()
                && !item->measureCallback() && item->menu() == 0 && item->parentItem() == parent;
            m_lines += std::string(depth, ' ') + std::to_string(item->id()) + " "
                + std::to_string(item->type()) + " " + std::to_string(item->status())
                + (item->removed() ? "-" : "") + (item->deleted() ? "*" : "") + " '"
                + TestMenu::Plain(item->text()) + "' " + std::to_string(item->mnemonic()) + " '"
                + TestMenu::Plain(item->command()) + "' " + std::to_string(item->lineWidth()) + " "
                + std::to_string(item->col1()) + " " + std::to_string(item->col2()) + " "
                + std::to_string(item->enaBmpIndex()) + (item->accelerators() == m_table ? " table" : "")
                + (fresh ? "" : " not fresh") + "\n";
            add_items(item->subItem(), item, depth + 1);
        }
    }

    const CVqAccelerators* m_table;
    std::string m_lines;
};

void use_images()
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(VQ_TEXT("/arbor-none/app.so"));
    for (vq_uint32 index = 0; index <= sources; ++index)
        pool.SetSource(index, CVqStringW(VQ_TEXT("arbor-none-")).AddInt(static_cast<int>(index)),
                       VQ_TEXT(""));
}

template <class Form>
class StoredMenuRoundTrip : public testing::Test
{ };

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(StoredMenuRoundTrip, Forms, FormName);

}

TYPED_TEST(StoredMenuRoundTrip, RandomMenusComeBackAsTold)
{
    for (int seed = 0; seed < menus; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        use_images();
        RandomMenu source(static_cast<unsigned>(seed));
        typename TypeParam::Container stored;
        source.Menu().Save(stored);
        TestMenu menu(TestMenu::BackEnd::None);

        menu.Load(stored);

        ASSERT_EQ(Reality(menu).Lines(), Expectation(source.Menu()).Lines());
    }
}

TYPED_TEST(StoredMenuRoundTrip, WhatWasLoadedIsSavedAlike)
{
    for (int seed = 0; seed < menus; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TestBitmapPool::Fresh(); // without sources, so that images play no part
        RandomMenu source(static_cast<unsigned>(seed));
        typename TypeParam::Container once;
        source.Menu().Save(once);
        TestMenu menu(TestMenu::BackEnd::None);
        menu.Load(once);
        typename TypeParam::Container first;
        menu.Save(first);
        menu.Load(first);

        typename TypeParam::Container second;
        menu.Save(second);

        ASSERT_EQ(TypeParam::Show(second), TypeParam::Show(first));
    }
}

TEST(StoredMenuForms, BothHoldTheSameFields)
{
    for (int seed = 0; seed < menus; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        use_images();
        RandomMenu source(static_cast<unsigned>(seed));
        CVqLiteVariantR lite;
        CVqVariant tree;

        source.Menu().Save(lite);
        source.Menu().Save(tree);

        ASSERT_EQ(LiteForm::Show(lite), "CVqMenu(" + TreeForm::Show(tree) + ")");
    }
}
