#pragma once

#include "gallery/keys/MenuKeys.h"
#include "gallery/storage/MenuKeeper.h"
#include "quick_backend/CVqQuickBitmapPool.h"
#include "quick_backend/CVqQuickMenu.h"
#include "tests/gallery/keys/KeyMenu.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// All that the rows of a menu show, from top to bottom.
inline QStringList shown_rows(CVqQuickMenuRows* rows)
{
    QStringList lines;
    for (int row = 0; row < rows->rowCount(); ++row) {
        QStringList line;
        for (int role = CVqQuickMenuRows::ItemIdRole; role <= CVqQuickMenuRows::AccessibleNameRole; ++role)
            if (role != CVqQuickMenuRows::SubmenuRole)
                line << rows->data(rows->index(row), role).toString();
        lines << line.join(u'|');
        if (CVqQuickMenuRows* below = rows->submenuAt(row))
            lines += shown_rows(below);
    }
    return lines;
}

/// One run of a program that keeps its menus.
class ProgramRun
{
public:
    ProgramRun(const Gallery::MenuDocument& document, const Gallery::MenuHome& home)
        : m_document(document), m_keeper(m_menu, m_document, home)
    {
        m_roles = m_keeper.Fill();
    }

    QStringList Rows() { return shown_rows(m_menu.Rows()); }

    QString Text(vq_uint32 id)
    {
        CVqStringW text;
        m_menu.GetIdMenuString(id, text);
        return text.ToQString();
    }

    QString Command(vq_uint32 id)
    {
        CVqStringW command;
        m_menu.GetIdCommand(id, command);
        return command.ToQString();
    }

    vq_uint32 Fires(const Gallery::MenuKey& key) { return Gallery::MenuKeys(m_menu).HolderOf(key); }

    const Gallery::MenuDocument m_document;
    CVqQuickMenu m_menu;
    Gallery::MenuKeeper m_keeper;
    QHash<vq_uint32, Gallery::MenuRole> m_roles;
};

/// A folder of its own for each test.
class MenuKeeperFixture : public testing::Test
{
protected:
    Gallery::MenuHome Home(const QString& language = QStringLiteral("en")) const
    {
        return {m_folder.path(), language};
    }

    QStringList Names() const { return QDir(m_folder.path()).entryList(QDir::Files, QDir::Name); }

    QByteArray Stored() const
    {
        QFile file(m_folder.filePath(QStringLiteral("menus.cbor")));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    void Put(const QByteArray& bytes) const
    {
        QFile file(m_folder.filePath(QStringLiteral("menus.cbor")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    CVqQuickBitmapPool m_pool;
    QTemporaryDir m_folder;
};
