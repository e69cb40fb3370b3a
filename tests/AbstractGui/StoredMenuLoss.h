#pragma once

#include "tests/support/TestMenu.h"

#include <string>
#include <tuple>
#include <vector>

// What storing a menu keeps and loses:
//
// - kept: identifier, type, status, removed, deleted, command, the order and nesting of items, the mnemonic,
//   lonely accelerators with their commands, and what the types have: line width, first and second colour;
// - lost: text and command of separators, widths and colours of types that have none, marks that are not the
//   mnemonic's, image size, zoom, callbacks, user parameter, handle, the table pointer of all but commands,
//   an image with index 0, flags of keys above 16 bits, targets, keys without an item, the order of the
//   table and the whole second table; in the tree form the folder of an image;
// - made anew: the text behind the label, the table pointer of commands, image indexes.

/// What a menu is once it was stored and loaded, one line an item, written down from the rules alone.
class StoredMenuExpectation
{
public:
    explicit StoredMenuExpectation(TestMenu& menu) : m_table(menu.MainTable())
    {
        add_items(menu.Root()->subItem(), 0);
        for (const CVqMenuItem* item = menu.LonelyAccels(); item; item = item->nextItem()) {
            add_keys(item->id());
            m_lines += std::to_string(item->id()) + " " + TestMenu::Plain(item->command()) + "\n";
        }
        m_lines += keys();
    }

    const std::string& Lines() const { return m_lines; }

    /// The image indexes that were stored, in the order of the items.
    const std::vector<int>& Images() const { return m_images; }

private:
    using View = std::basic_string_view<vq_wchar>;
    using Text = std::basic_string<vq_wchar>;
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
                + std::to_string(new_image(item->enaBmpIndex())) + (type == 2 ? " table" : "") + "\n";
            add_items(item->subItem(), depth + 1);
        }
    }

    int new_image(int index)
    {
        if (index < 1)
            return -1;
        m_images.push_back(index);
        return 99 + int(m_images.size());
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
    std::vector<int> m_images;
    std::string m_lines;
};

/// A loaded menu in the same lines; what must be lost is said when it is not.
class LoadedMenu
{
public:
    explicit LoadedMenu(TestMenu& menu) : m_table(&menu.MainTable())
    {
        add_items(menu.Root()->subItem(), menu.Root(), 0);
        for (const CVqMenuItem* item = menu.LonelyAccels(); item; item = item->nextItem())
            m_lines += std::to_string(item->id()) + " " + TestMenu::Plain(item->command()) + "\n";
        m_lines += TestMenu::Keys(menu.MainTable());
        if (menu.SecondTable().GetAccelsCount() != 0)
            m_lines += " and a second table";
    }

    const std::string& Lines() const { return m_lines; }

private:
    void add_items(const CVqMenuItem* item, const CVqMenuItem* parent, unsigned depth)
    {
        for (; item; item = item->nextItem()) {
            const bool fresh = !item->ignoreAdditionalZoom() && !item->userParam() && !item->drawCallback()
                && !item->measureCallback() && item->menu() == 0 && item->parentItem() == parent
                && item->bmpSize() == CVqSizeBase<int>{};
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
