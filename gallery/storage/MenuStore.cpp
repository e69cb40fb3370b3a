#include "gallery/storage/MenuStore.h"

#include "gallery/storage/StoredTree.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_most_names = 1000; // for files that are set aside

}

MenuStore::MenuStore(const QString& folder) : m_folder(folder), m_file(QDir(folder).filePath(u"menus.cbor"_s))
{ }

MenuStore::Found MenuStore::Read(StoredMenu& stored) const
{
    const QFileInfo info(m_file);
    if (!info.exists() && !info.isSymLink())
        return Found::Nothing;
    CVqVariant tree;
    if (!ReadStoredTree(m_file, tree).isEmpty())
        return Found::Damage;
    const std::optional<StoredMenu> read = FromTree(tree);
    if (!read)
        return Found::Damage;
    stored = *read;
    return Found::Menus;
}

QString MenuStore::Write(const StoredMenu& stored) const
{
    return WriteStoredTree(m_file, ToTree(stored));
}

QString MenuStore::SetAside() const
{
    QDir folder(m_folder);
    for (int i = 1; i <= g_most_names; ++i) {
        const QString name = u"menus-damaged-%1.cbor"_s.arg(i);
        if (!QFileInfo(folder.filePath(name)).isSymLink() && !folder.exists(name))
            return folder.rename(u"menus.cbor"_s, name) ? name : QString();
    }
    return {};
}

}
