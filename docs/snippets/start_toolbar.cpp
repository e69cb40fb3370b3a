#include "docs/snippets/toolbar_guide.h"

#include <QSettings>

// [snippet]
void start_toolbar(CVqQuickToolbarSetup& setup, CVqQuickButtonToolbar& bar, CVqQuickMenu& menu,
                   QQuickItem* slider)
{
    fill_toolbar(bar, menu);
    customise(setup, bar); // now it holds what a reset goes back to
    if (!load_toolbar(bar, QStringLiteral("main.cbor"))) {
        bar.RemoveAllControls();
        fill_toolbar(bar, menu);
    }
    add_slider(bar, slider); // behind the load, which deletes all controls
    const QSettings settings(QStringLiteral("main.ini"), QSettings::IniFormat);
    hide_buttons(bar, settings.value(QStringLiteral("hidden")).toStringList());
}
// [end]
