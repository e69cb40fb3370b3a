#include "gallery/storage/TreeStore.h"

#include "gallery/storage/StoredTree.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_most_names = 1000; // for files that are set aside

}

TreeStore::TreeStore(const QString& folder, const QString& stem)
    : m_folder(folder), m_stem(stem), m_file(QDir(folder).filePath(stem + u".cbor"_s))
{ }

TreeStore::Found TreeStore::Read(CVqVariant& tree) const
{
    const QFileInfo info(m_file);
    if (!info.exists() && !info.isSymLink())
        return Found::Nothing;
    return ReadStoredTree(m_file, tree).isEmpty() ? Found::Tree : Found::Damage;
}

QString TreeStore::Write(const CVqVariant& tree) const
{
    return WriteStoredTree(m_file, tree);
}

QString TreeStore::SetAside() const
{
    QDir folder(m_folder);
    for (int i = 1; i <= g_most_names; ++i) {
        const QString name = u"%1-damaged-%2.cbor"_s.arg(m_stem).arg(i);
        if (!QFileInfo(folder.filePath(name)).isSymLink() && !folder.exists(name))
            return folder.rename(m_stem + u".cbor"_s, name) ? name : QString();
    }
    return {};
}

}
