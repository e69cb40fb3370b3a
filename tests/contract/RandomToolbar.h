#pragma once

#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqVariant.h"
#include "tests/contract/ToolbarModel.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>

/// Does random things to a toolbar named "bar" and to its model, the same ones for the same seed.
template <class Traits>
class RandomToolbar
{
public:
    /// The toolbar is empty. All names are in both stores of hidden buttons then.
    RandomToolbar(Traits& traits, ToolbarModel& model, std::mt19937::result_type seed)
        : m_traits(traits), m_model(model), m_random(seed)
    {
        for (const bool system : {false, true})
            for (const vq_wchar* name : Names)
                HideInStore(name, false, system);
    }

    void Step()
    {
        switch (m_model.entries.size() > MostControls ? 10 : Below(24)) {
        case 0:
        case 1:
        case 2:
        case 3:
            return Add();
        case 4:
        case 5:
        case 6:
        case 7:
        case 8:
            return Insert();
        case 9:
        case 10:
        case 11:
            return Remove();
        case 12:
        case 13:
            return SetVisible();
        case 14:
            return Rename();
        case 15:
        case 16:
            return ChangeButton();
        case 17:
        case 18:
        case 19:
            return HideInStore(Below(16) ? Name() : nullptr, Below(2), Below(2));
        case 20:
        case 21:
            return Resize();
        case 22:
            return ChangeToolbar();
        default:
            return Below(4) ? SetVisible() : SaveAndLoad();
        }
    }

private:
    static constexpr std::size_t MostControls = 60; // a tree shifts names behind the 100th
    static constexpr const vq_wchar* Names[] = {VQ_TEXT("open"),
                                                VQ_TEXT("save"),
                                                VQ_TEXT("a"),
                                                VQ_TEXT("zoom in, by a lot"),
                                                VQ_TEXT("\u00fcber"),
                                                VQ_TEXT("12"),
                                                VQ_TEXT("x@y"),
                                                VQ_TEXT("picker"),
                                                VQ_TEXT("an even longer name of a button")};

    CVqAbstractButtonToolbar& Bar() { return m_traits.Bar(); }
    vq_uint32 Below(vq_uint32 end) { return vq_uint32(m_random() % end); }
    const vq_wchar* Name() { return Names[Below(std::size(Names))]; }

    /// The place of a control that has an identifier, or the number of controls.
    std::size_t Place()
    {
        const std::size_t count = m_model.entries.size();
        const std::size_t place = count ? Below(vq_uint32(count)) : 0;
        return place < count && m_model.entries[place].key ? place : count;
    }

    ToolbarModel::SEntry* Entry()
    {
        const std::size_t place = Place();
        return place < m_model.entries.size() ? &m_model.entries[place] : nullptr;
    }

    void Note(std::size_t place, vq_uint64 id, bool separator)
    {
        IVqUIcontrol* control = m_traits.Toolbar().GetControl(id);
        EXPECT_NE(control, nullptr);
        if (control)
            m_model.Insert(place, {control, id, ToolbarModel::NameOf(*control), separator});
    }

    void Add()
    {
        const std::size_t end = m_model.entries.size();
        switch (Below(5)) {
        case 0:
            return Note(end, Bar().AppendSeparator(Below(4) ? nullptr : Name()), true);
        case 1:
            return Note(end, Bar().AddTextButton(Name()), false);
        case 2:
            return Note(end, Bar().AddGeneralControl(m_traits.MakeGeneral(), Name()), false);
        default:
            return Note(end, Bar().AddButton(Name()), false);
        }
    }

    void Insert()
    {
        const std::size_t place = Place();
        if (place == m_model.entries.size())
            return Add();
        const vq_uint64 anchor = m_model.entries[place].key;
        const bool after = Below(2);
        const std::size_t target = place + (after ? 1 : 0);
        switch (Below(5)) {
        case 0:
            return Note(target,
                        after ? Bar().InsertSeparatorAfter(anchor, nullptr)
                              : Bar().InsertSeparatorBefore(anchor, nullptr),
                        true);
        case 1:
            return Note(target,
                        after ? Bar().InsertTextButtonAfter(anchor, Name())
                              : Bar().InsertTextButtonBefore(anchor, Name()),
                        false);
        case 2:
            return Note(target,
                        after ? Bar().InsertGeneralControlAfter(anchor, m_traits.MakeGeneral(), Name())
                              : Bar().InsertGeneralControlBefore(anchor, m_traits.MakeGeneral(), Name()),
                        false);
        default:
            return Note(target,
                        after ? Bar().InsertButtonAfter(anchor, Name())
                              : Bar().InsertButtonBefore(anchor, Name()),
                        false);
        }
    }

    void Remove()
    {
        if (Below(200) == 0) {
            Bar().RemoveAllControls();
            m_model.entries.clear();
            return;
        }
        const std::size_t place = Place();
        if (place == m_model.entries.size())
            return;
        const vq_uint64 key = m_model.entries[place].key;
        m_model.Remove(place);
        Bar().RemoveButton(key);
    }

    void SetVisible()
    {
        ToolbarModel::SEntry* entry = Entry();
        if (!entry)
            return;
        entry->visible = Below(2);
        Bar().SetButtonVisibility(entry->key, entry->visible);
    }

    void Rename()
    {
        ToolbarModel::SEntry* entry = Entry();
        if (!entry)
            return;
        entry->name = Name();
        Bar().SetButtonName(entry->key, entry->name.c_str());
    }

    void ChangeButton()
    {
        ToolbarModel::SEntry* entry = Entry();
        if (!entry)
            return;
        switch (Below(4)) {
        case 0:
            entry->enabled = Below(2);
            return Bar().Enable(entry->key, entry->enabled);
        case 1:
            entry->checked = Below(2);
            return Bar().SetCheck(entry->key, entry->checked);
        case 2:
            Bar().SetTextsOnButton(entry->key, 0, Name(), Name(), Name());
            return;
        default:
            EnableAll();
        }
    }

    void EnableAll()
    {
        const bool enable = Below(3);
        Bar().EnableAll(enable);
        for (ToolbarModel::SEntry& entry : m_model.entries)
            entry.enabled = enable;
    }

    void HideInStore(const vq_wchar* button, bool hidden, bool system)
    {
        ToolbarModel::Store& store = system ? m_model.system : m_model.personal;
        if (button)
            store[button] = hidden;
        else
            for (auto& [name, is_hidden] : store)
                is_hidden = hidden;
        VQ_SetToolbarButtonAsHidden(VQ_TEXT("bar"), button, hidden, system);
    }

    void Resize()
    {
        if constexpr (requires { m_traits.SetLength(1); })
            m_traits.SetLength(int(Below(4) ? Below(1'200) : Below(100)));
    }

    void ChangeToolbar()
    {
        switch (Below(5)) {
        case 0:
            m_model.orientation = Below(2) ? EOrientation::Vertical : EOrientation::Horizontal;
            m_traits.Toolbar().SetOrientation(m_model.orientation);
            return;
        case 1:
            m_model.orientation = Below(2) ? EOrientation::Vertical : EOrientation::Horizontal;
            return Bar().ChangeToolbarOrientation(m_model.orientation);
        case 2:
            m_model.zoom = 1.0 + Below(8) / 4.0;
            return Bar().SetAdditionalToolbarGuiZoom(m_model.zoom);
        case 3:
            return Bar().EnableEnlargeToolbar(Below(2));
        default:
            m_model.drag_drop = Below(2);
            return Bar().EnableToolbarDragDrop(m_model.drag_drop);
        }
    }

    void SaveAndLoad()
    {
        if (Below(2)) {
            CVqVariant tree;
            CVqStringW name;
            Bar().Save(tree, VQ_TEXT("bar"));
            EXPECT_EQ(Bar().Load(tree, &name), 0);
            EXPECT_EQ(name, VQ_TEXT("bar"));
        } else {
            CVqLiteVariantR stream;
            Bar().Save(stream);
            EXPECT_EQ(Bar().Load(stream), 0);
        }
        m_model.Reload(m_traits.Toolbar());
    }

    Traits& m_traits;
    ToolbarModel& m_model;
    std::mt19937 m_random;
};
