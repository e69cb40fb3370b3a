#pragma once

#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "tests/support/TestToolbar.h"

#include <string>

/// A toolbar of buttons for tests, over a TestToolbar. Controls that its factories make are called "button",
/// "text" and "separator" until they get a name; they and the factories record into the lines of the toolbar:
///
///     CreateControlButton 1
///     CreateTextButton
///     CreateSeparator
///
///     TestButtonToolbar bar;
///     bar.AddButton(VQ_TEXT("open"));
///     EXPECT_EQ(bar.Bar().Order(), "open |picker");
class TestButtonToolbar : public CVqAbstractButtonToolbar
{
public:
    using Lines = RecordingControl::Lines;

    explicit TestButtonToolbar(EToolbarType type = EToolbarType::Main) { m_pToolbar = new TestToolbar(type); }

    TestToolbar& Bar() { return *static_cast<TestToolbar*>(m_pToolbar); }

    /// See TestToolbar::TakeCalls().
    Lines TakeCalls() { return Bar().TakeCalls(); }

    /// The control of an identifier, without a look at the cache.
    RecordingControl& Control(vq_uint64 id) { return *static_cast<RecordingControl*>(Bar().GetControl(id)); }

    /// Forgets the note that separators have to be tidied, and the lines.
    void Settle()
    {
        m_bSeparatorsDirty = false;
        TakeCalls();
    }

    IVqUIcontrol* CreateControlButton(bool flag) override
    {
        return Made("CreateControlButton " + std::to_string(flag), "button");
    }

    IVqUIcontrol* CreateTextButton() override { return Made("CreateTextButton", "text"); }

    IVqUIcontrol* CreateSeparator() override
    {
        RecordingControl* separator = Made("CreateSeparator", "separator");
        return separator ? &separator->AnswerSeparator(1) : nullptr;
    }

    /// From now on the factories give null.
    void FailFactories() { m_factories_fail = true; }

    /// What CreateUI of new controls gives, see RecordingControl.
    void AnswerHandles(vq_uint64 handle) { m_handle = handle; }

    using CVqAbstractButtonToolbar::GetBitmapIndex;
    using CVqAbstractButtonToolbar::StartDrag;

    using CVqAbstractButtonToolbar::m_bSeparatorsDirty;
    using CVqAbstractButtonToolbar::m_eOrientation;
    using CVqAbstractButtonToolbar::m_eType;
    using CVqAbstractButtonToolbar::m_hToolbar;
    using CVqAbstractButtonToolbar::m_pCachedControl;
    using CVqAbstractButtonToolbar::m_pCallbackData;
    using CVqAbstractButtonToolbar::m_pToolbar;
    using CVqAbstractButtonToolbar::m_uiCachedId;

private:
    RecordingControl* Made(const std::string& line, const std::string& name)
    {
        Bar().m_calls->push_back(line);
        if (m_factories_fail)
            return nullptr;
        RecordingControl* control = Bar().Make(name);
        control->AnswerHandle(m_handle);
        return control;
    }

    bool m_factories_fail = false;
    vq_uint64 m_handle = 1;
};

/// A toolbar of buttons that never got its toolbar, with the abstract class's own factories.
class NoButtonToolbar : public CVqAbstractButtonToolbar
{
public:
    using CVqAbstractButtonToolbar::StartDrag;

    using CVqAbstractButtonToolbar::m_bSeparatorsDirty;
    using CVqAbstractButtonToolbar::m_eOrientation;
    using CVqAbstractButtonToolbar::m_eType;
    using CVqAbstractButtonToolbar::m_pCachedControl;
    using CVqAbstractButtonToolbar::m_pToolbar;
    using CVqAbstractButtonToolbar::m_uiCachedId;
};
