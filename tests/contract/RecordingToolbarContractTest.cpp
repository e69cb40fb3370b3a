#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "tests/contract/ToolbarContract.h"
#include "tests/support/TestButtonToolbar.h"

namespace {

/// The abstract toolbar over controls that draw nothing; its test tidies the separators itself.
class RecordingTraits
{
public:
    CVqAbstractButtonToolbar& Bar() { return m_bar; }
    CVqAbstractToolbar& Toolbar() { return m_bar.Bar(); }
    IVqUIcontrol* MakeGeneral() { return m_bar.Bar().Make("general"); }
    void Settle()
    {
        m_bar.UpdateSeparators(false);
        m_bar.Settle();
    }

    bool IsShown(IVqUIcontrol& control) const
    {
        return control.GetControlVisibility()
            && !VQ_IsToolbarButtonSetAsHidden(VQ_TEXT("bar"), ToolbarModel::NameOf(control).c_str());
    }

    bool IsInPicker(IVqUIcontrol&) const { return false; }

private:
    TestButtonToolbar m_bar;
};

}

ARBOR_TOOLBAR_CONTRACT(Recording, RecordingTraits);
