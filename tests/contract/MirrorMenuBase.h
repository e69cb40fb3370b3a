#pragma once

#include "tests/contract/MenuModel.h"
#include "tests/support/RecordingMenuBase.h"

#include <algorithm>
#include <map>
#include <memory>
#include <vector>

/// A recording back end that builds rows from the calls it gets, and from nothing else: texts and status are
/// those of the last call about an item. Only mnemonics are read when they are shown, since one that changes
/// under an unchanged text is not told. Frees the items that hang nowhere.
class MirrorMenuBase final : public RecordingMenuBase
{
public:
    ~MirrorMenuBase() override
    {
        for (const CVqMenuItem* orphan : m_orphans)
            delete orphan;
    }

    int InsertItem(CVqMenuItem* parent, CVqMenuItem* position, CVqMenuItem* item) override
    {
        RecordingMenuBase::InsertItem(parent, position, item);
        if (!parent || item->parentItem() != parent) {
            m_orphans.push_back(item);
            return -6;
        }
        if (parent->type() != CVqAbstractMenu::SensePopup && parent->type() != CVqAbstractMenu::SenseMainRoot)
            return -6;
        if (parent->type() == CVqAbstractMenu::SenseMainRoot)
            m_root = parent;
        Rows& rows = m_rows[parent];
        rows.insert(PlaceOf(position == item ? item->nextItem() : position, rows), SRow(*item));
        return 0;
    }

    void DestroyItem(CVqMenuItem* item) override
    {
        RecordingMenuBase::DestroyItem(item);
        m_rows.erase(item);
        const auto parent = m_rows.find(item->parentItem());
        if (parent != m_rows.end())
            std::erase_if(parent->second, [item](const SRow& row) { return row.item == item; });
    }

    void UpdateItemText(CVqMenuItem* item) override
    {
        if (SRow* row = Find(item))
            row->text = item->text();
    }

    void UpdateItemState(CVqMenuItem* item) override
    {
        if (SRow* row = Find(item))
            row->shown.SetState(item->status());
    }

    std::string Text() const
    {
        std::string text;
        Add(m_root, 0, text);
        return text;
    }

private:
    struct SRow
    {
        explicit SRow(const CVqMenuItem& of) : item(&of), shown(SMenuRow::Of(of)), text(of.text()) { }

        const CVqMenuItem* item; // a key, and asked for its mnemonic
        SMenuRow shown;          // but for the label
        CVqStringW text;
    };
    using Rows = std::vector<SRow>;

    static Rows::iterator PlaceOf(const CVqMenuItem* item, Rows& rows)
    {
        return item
            ? std::find_if(rows.begin(), rows.end(), [item](const SRow& row) { return row.item == item; })
            : rows.end();
    }

    SRow* Find(const CVqMenuItem* item)
    {
        const auto parent = m_rows.find(item->parentItem());
        if (parent == m_rows.end())
            return nullptr;
        const auto place = PlaceOf(item, parent->second);
        return place == parent->second.end() ? nullptr : &*place;
    }

    void Add(const CVqMenuItem* popup, int level, std::string& text) const
    {
        const auto rows = m_rows.find(popup);
        if (rows == m_rows.end())
            return;
        for (const SRow& row : rows->second) {
            SMenuRow shown = row.shown;
            shown.SetText(row.text, row.item->mnemonic());
            text += shown.Line(level);
            Add(row.item, level + 1, text);
        }
    }

    std::map<const CVqMenuItem*, Rows> m_rows; // by popup
    std::vector<const CVqMenuItem*> m_orphans; // owned
    const CVqMenuItem* m_root = nullptr;
};
