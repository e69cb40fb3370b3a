#include "docs/snippets/toolbar_guide.h"
#include "system/CVqVariant.h"

#include <QSettings>

// [snippet]
void customise(CVqQuickToolbarSetup& setup, CVqQuickButtonToolbar& bar)
{
    // What a reset goes back to: the toolbar as it was built.
    CVqVariant factory;
    bar.Save(factory, nullptr);
    setup.AddToolbar(bar, factory, QStringLiteral("Main"));

    QObject::connect(&setup, &CVqQuickToolbarSetup::accepted, &bar, [&bar] {
        save_toolbar(bar, QStringLiteral("main.cbor"));
        QSettings(QStringLiteral("main.ini"), QSettings::IniFormat)
            .setValue(QStringLiteral("hidden"), hidden_buttons(bar));
    });
}
// [end]
