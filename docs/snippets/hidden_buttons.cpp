#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "docs/snippets/toolbar_guide.h"

// [snippet]
// The buttons that the user hides. Those of the application are not among them: it sets nothing for an
// instance that has nothing behind its '#'.
QStringList hidden_buttons(CVqQuickButtonToolbar& bar)
{
    const CVqStringW instance = CVqStringW::FromQString(bar.Name() + u'#');
    QStringList hidden;
    for (int at = 0; at < bar.GetButtonsCount(); ++at) {
        CVqStringW name;
        bar.GetButtonName(bar.GetButtonID(unsigned(at), false), name);
        if (VQ_IsToolbarButtonSetAsHidden(instance, name))
            hidden << name.ToQString();
    }
    return hidden;
}

void hide_buttons(CVqQuickButtonToolbar& bar, const QStringList& names)
{
    const CVqStringW toolbar = CVqStringW::FromQString(bar.Name());
    for (const QString& name : names)
        VQ_SetToolbarButtonAsHidden(toolbar, CVqStringW::FromQString(name), true, false);
}
// [end]
