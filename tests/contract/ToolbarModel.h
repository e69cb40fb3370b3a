#pragma once

#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "AbstractGui/VqControlCodes.h"
#include "system/CVqStringW.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

/// The members of a toolbar that a back end keeps to itself.
struct SOpenToolbar : CVqAbstractToolbar
{
    static constexpr auto Controls = &SOpenToolbar::m_pControls;
    static constexpr auto Ids = &SOpenToolbar::m_pControlIds;
    static constexpr auto Boundary = &SOpenToolbar::m_pBoundary;
    static constexpr auto LayoutDirty = &SOpenToolbar::m_bLayoutDirty;
};

/// What a toolbar of type Main has to hold, kept by a test beside it.
class ToolbarModel
{
public:
    using Text = std::basic_string<vq_wchar>;

    struct SEntry
    {
        IVqUIcontrol* control = nullptr;
        vq_uint64 key = 0; ///< Its identifier in the map; 0 when another control took it over.
        Text name;
        bool separator = false;
        bool visible = true;
        bool enabled = true;
        bool checked = false;
    };
    using Store = std::map<Text, bool>; // by button name

    std::vector<SEntry> entries;
    Store personal;
    Store system;
    bool drag_drop = false;
    double zoom = 1.0;
    EOrientation orientation = EOrientation::Horizontal;

    static Text NameOf(IVqUIcontrol& control)
    {
        CVqStringW name;
        control.Get(vq_control_name, 0, &name);
        return Text(name.View());
    }

    bool IsHidden(const SEntry& entry) const
    {
        const auto hides = [&entry](const Store& store) {
            const auto found = store.find(entry.name);
            return found != store.end() && found->second;
        };
        return hides(system) || hides(personal);
    }

    bool IsShown(const SEntry& entry) const { return entry.visible && !IsHidden(entry); }

    /// A new control's name may lie where that of a renamed one once lay.
    void Insert(std::size_t place, SEntry entry)
    {
        ForgetKey(entry.key);
        entries.insert(entries.begin() + std::ptrdiff_t(place), std::move(entry));
    }

    void Remove(std::size_t place)
    {
        const vq_uint64 present = entries[place].control->GetControlID();
        entries.erase(entries.begin() + std::ptrdiff_t(place));
        ForgetKey(present);
    }

    /// What UpdateSeparators() has to do.
    void TidySeparators()
    {
        enum
        {
            AtStart,
            NothingToDivide,
            BehindButton
        } state = drag_drop ? NothingToDivide : AtStart;
        SEntry* trailing = nullptr;
        for (SEntry& entry : entries) {
            if (!entry.separator) {
                if (IsShown(entry)) {
                    state = BehindButton;
                    trailing = nullptr;
                } else if (state == AtStart) {
                    state = NothingToDivide;
                }
                continue;
            }
            if (state == BehindButton && !entry.visible)
                trailing = &entry;
            if (state != AtStart)
                entry.visible = state == BehindButton;
            if (entry.visible)
                state = NothingToDivide;
        }
        if (trailing)
            trailing->visible = false;
    }

    /// After saving and loading: buttons and separators, with what is stored of them.
    void Reload(CVqAbstractToolbar& toolbar)
    {
        const CVqList& list = *(toolbar.*SOpenToolbar::Controls);
        const CVqList::CVqNode* node = list.GetFirst();
        for (SEntry& entry : entries) {
            entry.control = static_cast<IVqUIcontrol*>(list.GetData(node));
            if (!entry.control)
                return;
            entry.key = entry.control->GetControlID();
            entry.enabled = true;
            entry.checked = false;
            if (entry.separator) {
                entry.name = NameOf(*entry.control);
                entry.visible = true;
            }
            node = node->GetNext();
        }
    }

    /// The first thing in which the toolbar differs from this model, or an empty text.
    template <class Traits>
    std::string Difference(Traits& traits) const
    {
        std::string text = ListDifference(traits);
        if (text.empty())
            text = MapDifference(traits);
        for (std::size_t i = 0; text.empty() && i < entries.size(); ++i) {
            text = EntryDifference(traits, entries[i]);
            if (!text.empty())
                text = "control " + std::to_string(i) + ": " + text;
        }
        return text;
    }

private:
    void ForgetKey(vq_uint64 key)
    {
        for (SEntry& entry : entries)
            if (entry.key == key)
                entry.key = 0;
    }

    template <class Traits>
    std::string ListDifference(Traits& traits) const
    {
        CVqAbstractToolbar& toolbar = traits.Toolbar();
        const CVqList& list = *(toolbar.*SOpenToolbar::Controls);
        const CVqList::CVqNode* const boundary = toolbar.*SOpenToolbar::Boundary;
        const CVqList::CVqNode* node = list.GetFirst();
        CVqList::CVqNode* walk = toolbar.GetFirstNode();
        bool in_picker = false;
        for (const SEntry& entry : entries) {
            in_picker = in_picker || node == boundary;
            if (list.GetData(node) != entry.control)
                return "another control in the list, or none";
            if (toolbar.GetNextControl(walk) != entry.control)
                return "another control in the walk, or none";
            if (traits.IsInPicker(*entry.control) != in_picker)
                return "a control on the other side of the boundary";
            node = node->GetNext();
        }
        if (walk || node != list.GetLast() || !list.GetData(node))
            return "not exactly the picker behind the controls";
        return in_picker || node == boundary ? "" : "a boundary that is not in the list";
    }

    template <class Traits>
    std::string MapDifference(Traits& traits) const
    {
        CVqAbstractToolbar& toolbar = traits.Toolbar();
        int count = 0;
        for (const SEntry& entry : entries) {
            if (entry.key == 0)
                continue;
            ++count;
            if (toolbar.GetControl(entry.key) != entry.control)
                return "an identifier that finds another control, or none";
        }
        if (toolbar.GetIdCount() != count || traits.Bar().GetButtonsCount() != count)
            return "another number of identifiers";
        EOrientation turned = EOrientation::Horizontal;
        toolbar.GetOrientation(turned);
        if (turned != orientation || toolbar.GetAdditionalToolbarGuiZoom() != zoom)
            return "another orientation or zoom";
        return toolbar.IsToolbarDragDropEnabled() == drag_drop ? "" : "another drag and drop";
    }

    template <class Traits>
    std::string EntryDifference(Traits& traits, const SEntry& entry) const
    {
        int checked = 0;
        entry.control->Get(vq_control_check, 0, &checked);
        if (NameOf(*entry.control) != entry.name)
            return "another name";
        if (entry.control->GetControlVisibility() != entry.visible)
            return entry.visible ? "not visible" : "visible";
        if (traits.IsShown(*entry.control) != IsShown(entry))
            return IsShown(entry) ? "not shown" : "shown";
        if (entry.key && traits.Bar().GetButtonVisibility(entry.key) != IsShown(entry))
            return "a wrong answer to whether it is shown";
        if (entry.key && traits.Bar().IsIDSeparator(entry.key) != entry.separator)
            return "no separator, or one";
        if (entry.control->IsEnabled() != entry.enabled)
            return entry.enabled ? "disabled" : "enabled";
        return (checked != 0) == entry.checked ? "" : "a wrong check";
    }
};
