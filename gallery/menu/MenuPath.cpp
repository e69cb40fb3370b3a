#include "gallery/menu/MenuPath.h"

#include "AbstractGui/CVqAbstractMenu.h"
#include "quick_backend/VqMenuLabel.h"

#include <QList>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr vq_uint32 g_any_status = 0xFF00;
constexpr vq_uint32 g_most_entries = 16; // with one command

QList<vq_uint32> entries_of(CVqAbstractMenu& menu, const QString& command)
{
    QList<vq_uint32> ids(g_most_entries);
    vq_uint32 count = g_most_entries;
    menu.FindItemsByCommand(command.toStdU16String().c_str(), CVqAbstractMenu::SenseAny, g_any_status,
                            ids.data(), count);
    ids.resize(count);
    return ids;
}

CVqMenuItem* find(CVqAbstractMenu& menu, vq_uint32 id)
{
    return menu.Manipulators().find_item(id, menu.getRootMenuItem());
}

const CVqMenuItem* first_level(const CVqMenuItem* item, const CVqMenuItem* root)
{
    while (item && item->parentItem() != root)
        item = item->parentItem();
    return item;
}

/// The mnemonics on the way from `above`, which has none, to `item`.
QStringList letters_to(const CVqMenuItem* item, const CVqMenuItem* above)
{
    QStringList letters;
    for (; item && item != above; item = item->parentItem()) {
        if (item->removed() || item->deleted() || item->mnemonic() == 0)
            return {};
        letters.prepend(QString(QChar(item->mnemonic())).toUpper());
    }
    return letters;
}

QStringList bar_keys(QStringList letters)
{
    if (!letters.isEmpty())
        letters.front().prepend(u"Alt+"_s);
    return letters;
}

}

QStringList MnemonicKeys(CVqAbstractMenu& menu, const QString& command)
{
    for (const vq_uint32 id : entries_of(menu, command)) {
        const QStringList keys = bar_keys(letters_to(find(menu, id), menu.getRootMenuItem()));
        if (!keys.isEmpty())
            return keys;
    }
    return {};
}

QStringList PopupKeys(CVqAbstractMenu& menu, const QString& command)
{
    for (const vq_uint32 id : entries_of(menu, command)) {
        const CVqMenuItem* item = find(menu, id);
        const QStringList keys
            = bar_keys(letters_to(item ? item->parentItem() : nullptr, menu.getRootMenuItem()));
        if (!keys.isEmpty())
            return keys;
    }
    return {};
}

QStringList ContextKeys(CVqAbstractMenu& menu, const QString& command)
{
    for (const vq_uint32 id : entries_of(menu, command)) {
        const CVqMenuItem* item = find(menu, id);
        const CVqMenuItem* popup = first_level(item, menu.getRootMenuItem());
        if (popup && popup->removed())
            return letters_to(item->parentItem(), popup);
    }
    return {};
}

QString PlainLabel(CVqAbstractMenu& menu, vq_uint32 id)
{
    const CVqMenuItem* item = find(menu, id);
    return item ? VqMenuLabel(item->text(), 0).text : QString();
}

}
