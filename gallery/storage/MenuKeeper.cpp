#include "gallery/storage/MenuKeeper.h"

#include "AbstractGui/CVqAbstractMenu.h"

#include <QDir>

#include <algorithm>

namespace Gallery {

namespace {

vq_uint32 sense_of(MenuEntryType type)
{
    switch (type) {
    case MenuEntryType::Separator:
        return CVqAbstractMenu::SenseSeparator;
    case MenuEntryType::OneColor:
        return CVqAbstractMenu::SenseOneColor;
    case MenuEntryType::TwoColor:
        return CVqAbstractMenu::SenseTwoColor;
    case MenuEntryType::LineWidth:
        return CVqAbstractMenu::SenseLineWidth;
    case MenuEntryType::Popup:
        return CVqAbstractMenu::SensePopup;
    default:
        return CVqAbstractMenu::SenseItem;
    }
}

bool holds(CVqAbstractMenu& menu, const MenuEntry& entry);

bool holds(CVqAbstractMenu& menu, const std::vector<MenuEntry>& entries)
{
    return std::all_of(entries.begin(), entries.end(),
                       [&menu](const MenuEntry& entry) { return holds(menu, entry); });
}

/// Whether `entry` and all below it are in the menu. Separators, which have no identifier, are not asked for.
bool holds(CVqAbstractMenu& menu, const MenuEntry& entry)
{
    if (entry.id == 0)
        return true;
    const CVqMenuItem* item = menu.Manipulators().find_item(entry.id, menu.getRootMenuItem());
    return item && item->type() == sense_of(entry.type) && item->command().ToQString() == entry.command
        && holds(menu, entry.items);
}

}

MenuKeeper::MenuKeeper(CVqAbstractMenu& menu, const MenuDocument& document, const MenuHome& home,
                       QObject* parent)
    : QObject(parent),
      m_menu(menu),
      m_document(document),
      m_home(home),
      m_store(home.folder, QStringLiteral("menus"))
{ }

QHash<vq_uint32, MenuRole> MenuKeeper::Fill()
{
    MenuBuilder builder(m_menu);
    CVqVariant tree;
    const bool is_kept = !m_home.folder.isEmpty();
    const TreeStore::Found found = is_kept ? m_store.Read(tree) : TreeStore::Found::Nothing;
    const std::optional<StoredMenu> stored = FromTree(tree);
    const bool is_newer = stored && stored->factory != m_document.fingerprint;
    if (stored && !is_newer && load(*stored)) {
        builder.Restore(m_document, stored->language != m_home.language);
        return builder.Roles();
    }
    builder.Build(m_document);
    if (is_newer)
        GiveOwnKeys(m_menu, m_document, stored->own_keys);
    else if (found != TreeStore::Found::Nothing)
        set_aside();
    Store();
    return builder.Roles();
}

bool MenuKeeper::load(const StoredMenu& stored)
{
    CVqVariant menu = stored.menu;
    m_menu.Load(menu);
    if (holds(m_menu, m_document.menu) && holds(m_menu, m_document.context))
        return true;
    m_menu.DeleteAll();
    return false;
}

void MenuKeeper::Store()
{
    if (m_home.folder.isEmpty() || !m_home.is_written)
        return;
    StoredMenu stored{m_document.fingerprint, m_home.language, {}, OwnKeysOf(m_menu, m_document)};
    m_menu.Save(stored.menu);
    const QString reason = m_store.Write(ToTree(stored));
    if (!reason.isEmpty())
        tell(tr("The menus cannot be stored in %1 (%2), so keys that you change last until the program ends.")
                 .arg(QDir::toNativeSeparators(m_home.folder), reason));
}

// What is not to be written over and cannot be moved stays, and nothing is written in this run.
void MenuKeeper::set_aside()
{
    const QString name = m_home.is_written ? m_store.SetAside() : QString();
    m_home.is_written = !name.isEmpty();
    tell(m_home.is_written ? tr("The stored menus cannot be read, so they were set aside as %1 and the "
                                "factory menus loaded.")
                                 .arg(name)
                           : tr("The stored menus in %1 cannot be read, so the factory menus were loaded and "
                                "nothing is stored.")
                                 .arg(QDir::toNativeSeparators(m_home.folder)));
}

void MenuKeeper::tell(const QString& notice)
{
    if (notice == m_notice)
        return;
    m_notice = notice;
    Q_EMIT NoticeChanged();
}

}
