#include "gallery/storage/PrintMenus.h"

#include "gallery/keys/KeyCommands.h"
#include "gallery/keys/MenuKeys.h"
#include "gallery/menu/KeyText.h"
#include "gallery/storage/MenuKeeper.h"
#include "gallery/storage/StoredTree.h"
#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/CVqQuickMenuItem.h"
#include "system/VqVariantStorage.h"

#include <QBuffer>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

/// What the entry's row shows; empty for a key without an entry.
QString row_keys(CVqQuickMenu& menu, vq_uint32 id)
{
    auto* item = dynamic_cast<CVqQuickMenuItem*>(menu.Manipulators().find_item(id, menu.getRootMenuItem()));
    if (!item || !item->rows())
        return {};
    const QModelIndex row = item->rows()->index(item->rows()->RowOf(*item));
    return item->rows()->data(row, CVqQuickMenuRows::KeyTextRole).toString();
}

QString printed(const QList<MenuKey>& keys)
{
    QStringList texts;
    for (const MenuKey& key : keys)
        texts << PrintKey(key);
    return texts.join(u", "_s);
}

}

PrintedMenus PrintMenus(const QString& name)
{
    CVqVariant tree;
    const QString reason = ReadStoredTree(name, tree);
    if (!reason.isEmpty())
        return {{}, u"%1: %2."_s.arg(name, reason)};
    QBuffer json;
    json.open(QIODevice::WriteOnly);
    if (VQ_WriteJson(json, tree) != EVqStorageResult::Ok)
        return {{}, u"%1: it has too many levels."_s.arg(name)};
    return {QString::fromUtf8(json.data()).trimmed(), {}};
}

QStringList PrintKeys(const MenuDocument& document, MenuHome home, QString& notice)
{
    home.is_written = false;
    CVqQuickMenu menu;
    MenuKeeper keeper(menu, document, home);
    keeper.Fill();
    notice = keeper.Notice();
    const QHash<vq_uint32, QList<MenuKey>> keys = MenuKeys(menu).All();
    QStringList lines;
    for (const KeyCommand& command : ListKeyCommands(menu, document))
        for (const vq_uint32 id : command.ids) {
            const QString row = row_keys(menu, id);
            const QString text = row.isEmpty() ? printed(keys.value(id)) : row;
            if (!text.isEmpty())
                lines << u"%1 %2: %3"_s.arg(id).arg(command.command, text);
        }
    return lines;
}

}
