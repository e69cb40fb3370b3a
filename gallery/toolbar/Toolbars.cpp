#include "gallery/toolbar/Toolbars.h"

#include "gallery/menu/MenuBuilder.h"
#include "quick_backend/CVqQuickMenu.h"

namespace Gallery {

namespace {

QList<CVqQuickButtonToolbar*> make_bars(const ToolbarDocument& document, CVqQuickMenu& menu, QObject* owner)
{
    QList<CVqQuickButtonToolbar*> bars;
    for (const ToolbarDescription& description : document.bars) {
        const EOrientation orientation
            = description.vertical ? EOrientation::Vertical : EOrientation::Horizontal;
        bars << new CVqQuickButtonToolbar(description.name.toStdU16String().c_str(), EToolbarType::Main,
                                          orientation, owner);
        bars.back()->SetFlatStyle(true);
        bars.back()->SetMenu(&menu);
    }
    return bars;
}

}

Toolbars::Toolbars(CVqQuickMenu& menu, const ToolbarDocument& document, const MenuHome& home, QObject* parent)
    : QObject(parent),
      m_builder(menu, document),
      m_bars(make_bars(document, menu, this)),
      m_keeper(m_bars, m_builder, home)
{
    m_keeper.Fill();
    m_setup.SetRebuiltFunction([this](CVqQuickButtonToolbar& bar) { m_builder.Dress(bar); });
    for (qsizetype i = 0; i < m_bars.size(); ++i)
        m_setup.AddToolbar(*m_bars[i], m_keeper.FactoryOf(*m_bars[i]),
                           LocalLabel(document.bars[static_cast<size_t>(i)].text));
    connect(&m_setup, &CVqQuickToolbarSetup::accepted, this, &Toolbars::keep);
}

CVqQuickButtonToolbar* Toolbars::bar(const QString& name) const
{
    for (CVqQuickButtonToolbar* each : m_bars)
        if (each->Name() == name)
            return each;
    return nullptr;
}

// A command that was added looks as it will in the next run.
void Toolbars::keep()
{
    for (CVqQuickButtonToolbar* each : m_bars)
        m_builder.Dress(*each);
    m_keeper.Store();
}

}
