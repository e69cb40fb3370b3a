#pragma once

#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/support/RecordingMenuBase.h"

#include <QString>

#include <algorithm>
#include <string>
#include <utility>

/// A concrete menu for tests: a root, a recording back end unless it is told otherwise, and a way to all that
/// the menu keeps to itself.
///
///     TestMenu menu;
///     menu.AppendPopup(1, 0, VQ_TEXT("&File"));
///     EXPECT_EQ(menu.Tree(), "1");
class TestMenu : public CVqAbstractMenu
{
public:
    enum class BackEnd
    {
        None,
        Recording,
    };

    explicit TestMenu(BackEnd back_end = BackEnd::Recording)
    {
        m_pRoot = CVqAbstractMenu::Manipulators().create_item_mainroot(0);
        if (back_end == BackEnd::Recording)
            m_pMenuBase = new RecordingMenuBase;
    }

    SVqManipulators& Manipulators() override
    {
        return m_manipulators ? *m_manipulators : CVqAbstractMenu::Manipulators();
    }

    /// Not owned, has to outlive the menu; null for the process-wide object.
    void SetManipulators(SVqManipulators* manipulators) { m_manipulators = manipulators; }

    /// The item of `id` in the tree, or null. Leaves the search cache alone.
    CVqMenuItem* Item(vq_uint32 id) { return item_in(m_pRoot, id); }

    RecordingMenuBase& Recorder() { return *static_cast<RecordingMenuBase*>(m_pMenuBase); }

    /// What the back end was told since the last time, see RecordingMenuBase; `|` stands for BEL.
    RecordingMenuBase::Lines TakeCalls()
    {
        RecordingMenuBase::Lines lines = std::move(*Recorder().Calls());
        Recorder().Calls()->clear();
        for (std::string& line : lines)
            std::replace(line.begin(), line.end(), '\a', '|');
        return lines;
    }

    CVqAccelerators& MainTable() { return m_accels; }
    CVqAccelerators& SecondTable() { return m_accelsSecond; }
    CVqMenuItem*& LonelyAccels() { return m_pLonelyAccels; }
    CVqMenuItem*& Root() { return m_pRoot; }
    IVqMenuBase*& MenuBase() { return m_pMenuBase; }
    vq_uint64& Native() { return m_hNative; }
    bool HasFixedLeftColumnWidth() const { return m_bFixedLeftColumnWidth; }

    /// The identifiers below `parent`, or below the root, such as "1(2 3- 4*) 5": children in brackets, `-`
    /// for a removed item, `*` for a deleted one.
    std::string Tree(const CVqMenuItem* parent = nullptr) const
    {
        const CVqMenuItem* top = parent ? parent : m_pRoot;
        return Chain(top ? top->subItem() : nullptr);
    }

    /// The same for a chain of siblings, such as the lonely accelerators.
    static std::string Chain(const CVqMenuItem* first)
    {
        std::string out;
        for (const CVqMenuItem* item = first; item; item = item->nextItem()) {
            out += (out.empty() ? "" : " ") + std::to_string(item->id());
            out += item->removed() ? "-" : "";
            out += item->deleted() ? "*" : "";
            if (item->subItem())
                out += "(" + Chain(item->subItem()) + ")";
        }
        return out;
    }

    /// The menu string of an item in UTF-8, with `|` in place of BEL and `>` in place of TAB.
    std::string Text(vq_uint32 id) { return Plain(Item(id)->text()); }

    static std::string Plain(const CVqStringW& text)
    {
        std::string plain = text.ToQString().toStdString();
        std::replace(plain.begin(), plain.end(), '\a', '|');
        std::replace(plain.begin(), plain.end(), '\t', '>');
        return plain;
    }

    /// The records of a table in their order, such as "2:18+65 3:16+112": identifier, flags and key.
    static std::string Keys(const CVqAccelerators& table)
    {
        std::string out;
        for (vq_uint32 index = 0; index < table.GetAccelsCount(); ++index) {
            vq_uint32 flags = 0;
            vq_wchar key = 0;
            table.GetAccelKeyByIndex(index, &flags, &key);
            out += (out.empty() ? "" : " ") + std::to_string(table.GetAccelIdByIndex(index)) + ":"
                + std::to_string(flags) + "+" + std::to_string(static_cast<unsigned>(key));
        }
        return out;
    }

private:
    static CVqMenuItem* item_in(CVqMenuItem* first, vq_uint32 id)
    {
        for (CVqMenuItem* item = first; item; item = item->nextItem()) {
            if (item->id() == id)
                return item;
            if (CVqMenuItem* found = item_in(item->subItem(), id))
                return found;
        }
        return nullptr;
    }

    SVqManipulators* m_manipulators = nullptr; // not owned
};
