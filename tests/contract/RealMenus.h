#pragma once

#include "AbstractGui/CVqAbstractMenu.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

/// A menu of a public program, as a file of the folder holds it.
struct RealMenu
{
    std::string name;
    QJsonArray menus;
};

/// Where such files are; an ordinary clone has none.
inline std::string RealMenusFolder()
{
    return ARBOR_REAL_MENUS;
}

inline std::vector<RealMenu> ReadRealMenus()
{
    const QDir folder(QString::fromStdString(RealMenusFolder()));
    std::vector<RealMenu> menus;
    const QStringList names = folder.entryList({QStringLiteral("*.json")});
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QFile::ReadOnly))
            continue;
        const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
        menus.push_back({name.toStdString(), object[QStringLiteral("menus")].toArray()});
    }
    return menus;
}

inline CVqStringW TextOf(const QJsonObject& entry, const QString& field)
{
    return CVqStringW::FromQString(entry[field].toString());
}

inline void Build(const QJsonArray& entries, vq_uint32 parent, CVqAbstractMenu& menu)
{
    for (const QJsonValue& value : entries) {
        const QJsonObject entry = value.toObject();
        const vq_uint32 id = vq_uint32(entry[QStringLiteral("id")].toInteger());
        const QString type = entry[QStringLiteral("type")].toString();
        const CVqStringW text = TextOf(entry, QStringLiteral("text"));
        if (type == QStringLiteral("popup")) {
            menu.AppendPopup(id, parent, text);
            Build(entry[QStringLiteral("children")].toArray(), id, menu);
        } else if (type == QStringLiteral("separator")) {
            menu.AppendSeparator(id, parent);
        } else {
            menu.AppendMenuItem(id, parent, text, TextOf(entry, QStringLiteral("command")), 0);
        }
    }
}

inline void Build(const RealMenu& real, CVqAbstractMenu& menu)
{
    Build(real.menus, 0, menu);
    EXPECT_GT(menu.GetCountInPopup(0), 3);
}

inline void ExpectToBeFound(const QJsonArray& entries, CVqAbstractMenu& menu)
{
    for (const QJsonValue& value : entries) {
        const QJsonObject entry = value.toObject();
        const vq_uint32 id = vq_uint32(entry[QStringLiteral("id")].toInteger());
        CVqStringW text;
        EXPECT_EQ(menu.GetIdMenuString(id, text), 0);
        EXPECT_EQ(text.ToQString(), entry[QStringLiteral("text")].toString());
        if (!text.IsEmpty()) {
            std::vector<vq_uint32> ids(64);
            vq_uint32 count = vq_uint32(ids.size());
            EXPECT_EQ(menu.FindItems(text, CVqAbstractMenu::SenseAny, 0xFF00, ids.data(), count), 0);
            EXPECT_EQ(std::count(ids.begin(), ids.begin() + count, id), 1) << text.ToQString().toStdString();
        }
        ExpectToBeFound(entry[QStringLiteral("children")].toArray(), menu);
    }
}

/// Each item by its identifier and by its whole text.
inline void ExpectToBeFound(const RealMenu& real, CVqAbstractMenu& menu)
{
    ExpectToBeFound(real.menus, menu);
}

inline void UpdateAllMnemonics(const QJsonArray& entries, CVqAbstractMenu& menu)
{
    for (const QJsonValue& value : entries) {
        const QJsonObject entry = value.toObject();
        const QJsonArray children = entry[QStringLiteral("children")].toArray();
        if (!children.isEmpty())
            menu.UpdateMnemonics(vq_uint32(entry[QStringLiteral("id")].toInteger()), false);
        UpdateAllMnemonics(children, menu);
    }
}

inline void UpdateAllMnemonics(const RealMenu& real, CVqAbstractMenu& menu)
{
    EXPECT_EQ(menu.UpdateMnemonics(0, false), 0);
    UpdateAllMnemonics(real.menus, menu);
}

/// No two siblings share a mnemonic, whatever its case.
inline void ExpectUniqueMnemonics(const CVqMenuItem* popup)
{
    std::set<vq_wchar> used;
    for (const CVqMenuItem* item = popup->subItem(); item; item = item->nextItem()) {
        const bool is_new = !item->mnemonic() || used.insert(VqLower(item->mnemonic())).second;
        EXPECT_TRUE(is_new) << item->text().ToQString().toStdString();
        ExpectUniqueMnemonics(item);
    }
}
