#pragma once

#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "tests/contract/ToolbarModel.h"

#include <QString>

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// A toolbar of a back end, and what the suites of ToolbarContract.h ask it.
template <typename Traits>
class ToolbarContractFixture : public testing::Test
{
protected:
    ~ToolbarContractFixture() override
    {
        for (const bool system : {false, true})
            VQ_SetToolbarButtonAsHidden(VQ_TEXT("bar"), nullptr, false, system);
    }

    CVqAbstractButtonToolbar& Bar() { return m_traits.Bar(); }
    CVqAbstractToolbar& Toolbar() { return m_traits.Toolbar(); }
    IVqUIcontrol& Control(vq_uint64 id) { return *Toolbar().GetControl(id); }

    static std::string Plain(const vq_wchar* text) { return CVqStringW(text).ToQString().toStdString(); }

    /// The names of all controls in order; "-" for a separator, "(name)" for one that is not shown.
    std::string Order()
    {
        std::string out;
        for (CVqList::CVqNode* node = Toolbar().GetFirstNode(); node;) {
            IVqUIcontrol& control = *Toolbar().GetNextControl(node);
            int separator = 0;
            control.Get(vq_control_separator, 0, &separator);
            const std::string name = separator ? "-" : Plain(ToolbarModel::NameOf(control).c_str());
            out += (out.empty() ? "" : " ") + (m_traits.IsShown(control) ? name : "(" + name + ")");
        }
        return out;
    }

    std::string SettledOrder()
    {
        m_traits.Settle();
        return Order();
    }

    /// Adds open, save, a separator and zoom, and gives their identifiers.
    std::vector<vq_uint64> Fill()
    {
        return {Bar().AddButton(VQ_TEXT("open")), Bar().AddButton(VQ_TEXT("save")),
                Bar().AppendSeparator(nullptr), Bar().AddButton(VQ_TEXT("zoom"))};
    }

    const CVqList& List() { return *(Toolbar().*SOpenToolbar::Controls); }
    const CVqList::CVqNode* Boundary() { return Toolbar().*SOpenToolbar::Boundary; }

    Traits m_traits;
};
