#include "gallery/toolbar/ToolbarKeeper.h"

#include "AbstractGui/VqHiddenToolbarButtons.h"

#include <QDir>

#include <algorithm>

namespace Gallery {

namespace {

std::u16string wide(const QString& text)
{
    return text.toStdU16String();
}

/// In the user's own store, where settings stand under the toolbar's name.
void show_all_buttons(const QString& bar)
{
    VQ_SetToolbarButtonAsHidden(wide(bar).c_str(), nullptr, false, false);
}

void hide_buttons(const QString& bar, const QStringList& buttons)
{
    for (const QString& button : buttons)
        VQ_SetToolbarButtonAsHidden(wide(bar).c_str(), wide(button).c_str(), true, false);
}

/// Those that the user hides. They are asked of an instance that nobody else sets anything for, since what
/// the system hides stands under the full name of an instance.
QStringList hidden_buttons(CVqQuickButtonToolbar& bar)
{
    const std::u16string instance = wide(bar.Name() + QLatin1String("#user"));
    QStringList hidden;
    for (int i = 0; i < bar.GetButtonsCount(); ++i) {
        CVqStringW name;
        const vq_uint64 id = bar.GetButtonID(static_cast<unsigned>(i), false);
        if (!bar.IsIDSeparator(id) && bar.GetButtonName(id, name) == 0
            && VQ_IsToolbarButtonSetAsHidden(instance.c_str(), name.GetString()))
            hidden << name.ToQString();
    }
    return hidden;
}

}

ToolbarKeeper::ToolbarKeeper(const QList<CVqQuickButtonToolbar*>& bars, ToolbarBuilder& builder,
                             const MenuHome& home, QObject* parent)
    : QObject(parent),
      m_bars(bars),
      m_builder(builder),
      m_home(home),
      m_store(home.folder, QStringLiteral("toolbars"))
{ }

void ToolbarKeeper::Fill()
{
    build_all();
    for (CVqQuickButtonToolbar* bar : m_bars)
        m_factory.insert(bar->Name(), SaveRecord(*bar));
    CVqVariant tree;
    const TreeStore::Found found = m_home.folder.isEmpty() ? TreeStore::Found::Nothing : m_store.Read(tree);
    if (found == TreeStore::Found::Nothing)
        return;
    const std::optional<QList<StoredToolbar>> stored = ToolbarsFromTree(tree);
    if (stored && load_all(*stored))
        return;
    build_all();
    set_aside();
}

void ToolbarKeeper::build_all()
{
    for (CVqQuickButtonToolbar* bar : m_bars) {
        show_all_buttons(bar->Name());
        m_builder.Build(*bar);
    }
}

// An item may have moved from one stored toolbar to another, so all of them let go of theirs first.
bool ToolbarKeeper::load_all(const QList<StoredToolbar>& stored)
{
    const auto each = [&](const auto& work) {
        for (CVqQuickButtonToolbar* bar : m_bars)
            for (const StoredToolbar& found : stored)
                if (found.name == bar->Name())
                    work(*bar, found);
    };
    bool done = true;
    each([this](CVqQuickButtonToolbar& bar, const StoredToolbar& found) {
        if (found.record.GetCount() > 0)
            m_builder.TakeItems(bar);
        hide_buttons(found.name, found.hidden);
    });
    each([&](CVqQuickButtonToolbar& bar, const StoredToolbar& found) {
        if (found.record.GetCount() == 0)
            return;
        done = LoadRecord(bar, found.record) && done;
        m_builder.Dress(bar);
    });
    return done;
}

StoredToolbar ToolbarKeeper::stored_of(CVqQuickButtonToolbar& bar) const
{
    StoredToolbar stored{bar.Name(), SaveRecord(bar), hidden_buttons(bar)};
    CVqVariant factory = FactoryOf(bar);
    if (CVqAbstractButtonToolbar::IsEqual(stored.record, factory))
        stored.record = CVqVariant();
    return stored;
}

void ToolbarKeeper::Store()
{
    if (m_home.folder.isEmpty() || !m_home.is_written)
        return;
    QList<StoredToolbar> stored;
    for (CVqQuickButtonToolbar* bar : m_bars)
        stored << stored_of(*bar);
    const QString reason = m_store.Write(ToTree(stored));
    if (!reason.isEmpty())
        tell(tr("The toolbars cannot be stored in %1 (%2), so changes to them last until the program ends.")
                 .arg(QDir::toNativeSeparators(m_home.folder), reason));
}

// What is not to be written over and cannot be moved stays, and nothing is written in this run.
void ToolbarKeeper::set_aside()
{
    const QString name = m_home.is_written ? m_store.SetAside() : QString();
    m_home.is_written = !name.isEmpty();
    tell(m_home.is_written
             ? tr("The stored toolbars cannot be read, so they were set aside as %1 and the "
                  "factory toolbars loaded.")
                   .arg(name)
             : tr("The stored toolbars in %1 cannot be read, so the factory toolbars were loaded "
                  "and nothing is stored.")
                   .arg(QDir::toNativeSeparators(m_home.folder)));
}

void ToolbarKeeper::tell(const QString& notice)
{
    if (notice == m_notice)
        return;
    m_notice = notice;
    Q_EMIT NoticeChanged();
}

}
