#pragma once

#include "AbstractGui/CVqAbstractMenu.h"

#include <QByteArray>
#include <QString>
#include <QVariantMap>

// The sides of StoredMenuBench. All write the same fields of the same menu, and all end with the same menu:
// each item with its mnemonic, the keys in the table and their texts behind the label. The peers make it by
// the operations of the manipulators that our own loading uses.

/// A menu without a back end that shows its root and its keys.
class BenchMenu : public CVqAbstractMenu
{
public:
    BenchMenu() { m_pRoot = CVqAbstractMenu::Manipulators().create_item_mainroot(0); }

    CVqMenuItem& Root() { return *m_pRoot; }
    CVqAccelerators& Keys() { return m_accels; }
};

/// Popups with commands, separators and keys, one in ten with a second key: 1,000 items in all.
void FillBenchMenu(BenchMenu& menu);

// Ours -------------------------------------------------------------------------------------------------

struct LiteSide
{
    static QByteArray Save(BenchMenu& menu);
    static void Load(const QByteArray& bytes, BenchMenu& menu);
};

struct TreeSide
{
    static QByteArray Save(BenchMenu& menu);
    static void Load(const QByteArray& bytes, BenchMenu& menu);
};

// Peers: a tree of maps and lists, then its bytes -------------------------------------------------------

struct CborSide
{
    static QByteArray Save(BenchMenu& menu);
    static void Load(const QByteArray& bytes, BenchMenu& menu);
};

struct JsonSide
{
    static QByteArray Save(BenchMenu& menu);
    static void Load(const QByteArray& bytes, BenchMenu& menu);
};

struct StreamSide
{
    static QByteArray Save(BenchMenu& menu);
    static void Load(const QByteArray& bytes, BenchMenu& menu);

    static QVariantMap SaveTree(BenchMenu& menu);
    static void LoadTree(const QVariantMap& tree, BenchMenu& menu);
};

/// An ini file, by name.
struct SettingsSide
{
    static void Save(BenchMenu& menu, const QString& file);
    static void Load(const QString& file, BenchMenu& menu);
};
