#include "gallery/menu/MenuBuilder.h"

#include "gallery/menu/KeyText.h"
#include "quick_backend/CVqQuickBitmapPool.h"
#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/CVqQuickMenuItem.h"
#include "tests/gallery/RealMenu.h"

#include <QMap>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::MenuBuilder;
using Gallery::MenuDocument;
using Gallery::MenuEntry;
using Gallery::MenuEntryType;
using Gallery::MenuKey;

namespace {

MenuDocument parse(const QByteArray& items, const QByteArray& rest = {})
{
    Gallery::MenuFile file;
    EXPECT_TRUE(file.Parse(
        "{ \"format\": 1, \"menu\": [ { \"type\": \"popup\", \"id\": 1, \"text\": \"&File\", \"items\": ["
            + items + "] } ]" + rest + " }",
        u"m.json"_s))
        << file.Error().toStdString();
    return file.Document();
}

class BuiltMenu
{
public:
    explicit BuiltMenu(const MenuDocument& document) { m_builder.Build(document); }

    const CVqQuickMenuItem* Item(vq_uint32 id)
    {
        return static_cast<CVqQuickMenuItem*>(m_menu.Manipulators().find_item(id, m_menu.getRootMenuItem()));
    }

    QString Text(vq_uint32 id)
    {
        CVqStringW text;
        m_menu.GetIdMenuString(id, text);
        return text.ToQString();
    }

    vq_uint32 Translate(const MenuKey& key)
    {
        vq_uint64 target = 0;
        vq_uint32 id = 0;
        m_menu.Translate(key.key, key.flags & 7, target, id);
        return id;
    }

    CVqQuickMenu m_menu;
    MenuBuilder m_builder{m_menu};
};

QList<MenuKey> keys_of(const MenuEntry& entry)
{
    QList<MenuKey> keys = entry.keys;
    if (entry.text_key)
        keys.prepend(*entry.text_key);
    return keys;
}

}

TEST(MenuBuilder, AnItemHasLabelCommandAndKey)
{
    BuiltMenu built(parse(R"({ "id": 2, "text": "&Open...", "command": "FileOpen", "key": "Ctrl+O" })"));

    EXPECT_EQ(built.Text(2), u"&Open...\aCtrl+O"_s);
    EXPECT_EQ(built.Item(2)->command().ToQString(), u"FileOpen"_s);
    EXPECT_EQ(built.Item(2)->status(), 1u);
    EXPECT_EQ(built.Translate({18, 'O'}), 2u);
}

TEST(MenuBuilder, KeysWithoutATextAreAddedAndShown)
{
    BuiltMenu built(parse(
        R"({ "id": 2, "text": "Prefer&ences", "command": "P", "key": "F4", "keys": [{ "flags": ["Ctrl"], "key": 188 }] })"));

    EXPECT_EQ(built.Translate({18, 188}), 2u);
    EXPECT_EQ(built.Translate({16, 115}), 2u);
    EXPECT_TRUE(built.Text(2).endsWith(u"\aF4, Ctrl+,"_s)) << built.Text(2).toStdString();
}

TEST(MenuBuilder, StatesAreSet)
{
    BuiltMenu built(parse(R"({ "id": 2, "text": "A", "command": "A", "enabled": false },
        { "id": 3, "text": "B", "command": "B", "checked": true },
        { "id": 4, "text": "C", "command": "C", "mnemonic": false })"));

    EXPECT_EQ(built.Item(2)->status(), 4u);
    EXPECT_EQ(built.Item(3)->status(), 3u);
    EXPECT_EQ(built.Item(4)->status(), 17u);
    EXPECT_EQ(built.Item(4)->mnemonic(), 0);
}

TEST(MenuBuilder, ImagesAreThoseOfThePool)
{
    const CVqQuickBitmapPool pool;
    BuiltMenu built(parse(R"({ "id": 2, "text": "A", "command": "A", "image": "copy" },
        { "type": "popup", "id": 3, "text": "B", "image": "cut", "items": [] },
        { "id": 4, "text": "C", "command": "C" })"));

    EXPECT_GT(built.Item(2)->enaBmpIndex(), 0);
    EXPECT_GT(built.Item(3)->enaBmpIndex(), built.Item(2)->enaBmpIndex());
    EXPECT_EQ(built.Item(4)->enaBmpIndex(), -1);
}

TEST(MenuBuilder, WithoutAPoolThereAreNoImages)
{
    BuiltMenu built(parse(R"({ "id": 2, "text": "A", "command": "A", "image": "copy" })"));

    EXPECT_EQ(built.Item(2)->enaBmpIndex(), -1);
}

TEST(MenuBuilder, RestoreGivesMarksAndStatesAsTheDocumentHasThem)
{
    const MenuDocument document = parse(R"({ "id": 2, "text": "A", "command": "A", "enabled": false },
        { "id": 3, "text": "B", "command": "B", "checked": true },
        { "id": 4, "text": "C", "command": "C", "radio": "g", "checked": true },
        { "id": 5, "text": "D", "command": "D", "radio": "g" },
        { "id": 6, "text": "E", "command": "E" })");
    BuiltMenu built(document);
    built.m_menu.EnableId(2, true);
    built.m_menu.CheckId(3, false);
    built.m_menu.CheckRadioId(5, 4, 5);
    built.m_menu.EnableId(6, false);
    MenuBuilder restorer(built.m_menu);

    restorer.Restore(document, false);

    EXPECT_EQ(built.Item(2)->status(), 4u);
    EXPECT_EQ(built.Item(3)->status(), 3u);
    EXPECT_EQ(built.Item(4)->status(), 3u);
    EXPECT_EQ(built.Item(5)->status(), 1u);
    EXPECT_EQ(built.Item(6)->status(), 1u);
    EXPECT_EQ(restorer.Roles().size(), 3);
}

TEST(MenuBuilder, RestoreSetsLabelsOnlyWhenAsked)
{
    const MenuDocument document = parse(R"({ "id": 2, "text": "&Open", "command": "A", "key": "Ctrl+O" })");
    BuiltMenu built(document);
    built.m_menu.SetIdMenuString(2, VQ_TEXT("Öffnen"));

    MenuBuilder(built.m_menu).Restore(document, false);
    EXPECT_EQ(built.Text(2), u"Öffnen\aCtrl+O"_s);
    MenuBuilder(built.m_menu).Restore(document, true);

    EXPECT_EQ(built.Text(2), u"&Open\aCtrl+O"_s);
    EXPECT_EQ(built.Item(2)->mnemonic(), u'O');
}

TEST(MenuBuilder, RadioGroupsHaveOneMarkAndRadioDots)
{
    BuiltMenu built(parse(R"({ "id": 2, "text": "A", "command": "A", "radio": "g" },
        { "id": 3, "text": "B", "command": "B", "radio": "g", "checked": true },
        { "id": 4, "text": "C", "command": "C", "checked": false })"));

    EXPECT_EQ(built.Item(2)->status(), 1u);
    EXPECT_EQ(built.Item(3)->status(), 3u);
    EXPECT_TRUE(built.Item(2)->radio());
    EXPECT_FALSE(built.Item(4)->radio());
}

TEST(MenuBuilder, RolesTellTogglesAndGroups)
{
    BuiltMenu built(parse(R"({ "id": 2, "text": "A", "command": "A", "radio": "g" },
        { "id": 3, "text": "B", "command": "B", "radio": "g" },
        { "id": 4, "text": "C", "command": "C", "checked": false },
        { "id": 5, "text": "D", "command": "D" })"));

    EXPECT_EQ(built.m_builder.Roles().value(3).radio_first, 2u);
    EXPECT_EQ(built.m_builder.Roles().value(3).radio_last, 3u);
    EXPECT_TRUE(built.m_builder.Roles().value(4).toggle);
    EXPECT_FALSE(built.m_builder.Roles().contains(5));
}

TEST(MenuBuilder, ColoursAndWidthsReachTheirItems)
{
    BuiltMenu built(parse(R"({ "type": "onecolor", "id": 2, "color": "#010203", "command": "A" },
        { "type": "twocolor", "id": 3, "color1": "#010203", "color2": "#040506", "command": "B" },
        { "type": "linewidth", "id": 4, "text": "5 px", "width": 5, "command": "C" })"));

    EXPECT_EQ(built.Item(2)->col1(), 0x030201u);
    EXPECT_EQ(built.Item(3)->col2(), 0x060504u);
    EXPECT_EQ(built.Item(4)->lineWidth(), 5u);
    EXPECT_EQ(built.Text(4), u"5 px"_s);
}

TEST(MenuBuilder, SeparatorsHaveIdentifiersAboveThoseOfTheFile)
{
    BuiltMenu built(parse(R"({ "id": 2, "text": "A", "command": "A" }, { "type": "separator" },
        { "id": 3, "text": "B", "command": "B" }, { "type": "separator" }, { "id": 4, "text": "C", "command": "C" })"));

    EXPECT_EQ(built.Item(1000000)->type(), CVqAbstractMenu::SenseSeparator);
    EXPECT_EQ(built.Item(1000001)->type(), CVqAbstractMenu::SenseSeparator);
}

TEST(MenuBuilder, ContextMenusAreKeptOffTheBar)
{
    BuiltMenu built(parse("", R"(, "context": [ { "type": "popup", "id": 50, "text": "Area", "items": [
        { "id": 51, "text": "A", "command": "A" } ] } ])"));

    EXPECT_TRUE(built.Item(50)->removed());
    EXPECT_FALSE(built.Item(1)->removed());
    EXPECT_FALSE(built.Item(51)->removed());
}

TEST(MenuBuilder, KeysWithoutAnEntryFireTheirCommand)
{
    BuiltMenu built(parse("", R"(, "keys": [ { "id": 9, "command": "Pan", "key": "Left" } ])"));

    CVqStringW command;
    EXPECT_EQ(built.Translate({16, 37}), 9u);
    EXPECT_EQ(built.m_menu.GetIdCommand(9, command), 0);
    EXPECT_EQ(command.ToQString(), u"Pan"_s);
}

// The menu that the gallery ships ---------------------------------------------------------------------------

TEST(RealMenu, IsAsRichAsAnImageEditors)
{
    QMap<MenuEntryType, int> counts;
    int levels = 0;
    int keys = 0;
    size_t longest = 0;
    QSet<QString> groups;

    VisitEntries(RealMenu().menu, [&](const MenuEntry& entry, int level) {
        ++counts[entry.type];
        keys += static_cast<int>(keys_of(entry).size());
        groups.insert(entry.radio);
        longest = std::max(longest, entry.items.size());
        if (entry.type == MenuEntryType::Popup)
            levels = std::max(levels, level);
    });

    EXPECT_GE(counts[MenuEntryType::Item], 200);
    EXPECT_GE(counts[MenuEntryType::Popup], 12);
    EXPECT_GE(levels, 3);
    EXPECT_GE(keys, 90);
    EXPECT_GT(longest, 30u);
    EXPECT_GE(groups.size(), 5) << "radio groups";
    EXPECT_EQ(counts.size(), 6) << "every type of entry";
    EXPECT_GE(RealMenu().keys.size(), 5u);
    EXPECT_FALSE(RealMenu().context.empty());
}

TEST(RealMenu, HoldsKeysThatNoTextCarries)
{
    QSet<vq_wchar> keys;

    VisitEntries(RealMenu().menu, [&](const MenuEntry& entry, int) {
        for (const MenuKey& key : entry.keys)
            if (key.flags == 18)
                keys.insert(key.key);
    });

    EXPECT_TRUE(keys.contains(188)) << "Ctrl and comma";
    EXPECT_TRUE(keys.contains(187)) << "Ctrl and plus";
}

TEST(RealMenu, EveryKeyFiresItsOwnEntry)
{
    BuiltMenu built(RealMenu());

    VisitEntries(RealMenu().menu, [&](const MenuEntry& entry, int) {
        for (const MenuKey& key : keys_of(entry))
            EXPECT_EQ(built.Translate(key), entry.id) << Gallery::PrintKey(key).toStdString();
    });
    for (const Gallery::LonelyKey& lonely : RealMenu().keys)
        EXPECT_EQ(built.Translate(lonely.key), lonely.id) << Gallery::PrintKey(lonely.key).toStdString();
}

TEST(RealMenu, EveryEntryIsBuiltWithItsCommand)
{
    BuiltMenu built(RealMenu());

    VisitEntries(RealMenu().menu, [&](const MenuEntry& entry, int) {
        if (entry.type == MenuEntryType::Separator)
            return;
        const CVqMenuItem* item = built.Item(entry.id);
        ASSERT_NE(item, nullptr) << entry.id;
        EXPECT_EQ(item->command().ToQString(), entry.command);
    });
}

TEST(RealMenu, MnemonicsAreUniqueInEveryPopup)
{
    BuiltMenu built(RealMenu());
    const auto expect_unique = [&](const std::vector<MenuEntry>& entries, vq_uint32 popup) {
        QString letters;
        for (const MenuEntry& entry : entries) {
            const CVqMenuItem* item = built.Item(entry.id);
            if (entry.id == 0 || item->mnemonic() == 0)
                continue;
            const QChar letter = QChar(item->mnemonic()).toLower();
            EXPECT_FALSE(letters.contains(letter)) << popup << " has two of " << char(letter.unicode());
            letters += letter;
        }
    };

    expect_unique(RealMenu().menu, 0);
    VisitEntries(RealMenu().menu, [&](const MenuEntry& entry, int) { expect_unique(entry.items, entry.id); });
}

TEST(RealMenu, EveryPopupOfTheBarHasAMnemonic)
{
    BuiltMenu built(RealMenu());

    for (const MenuEntry& popup : RealMenu().menu)
        EXPECT_NE(built.Item(popup.id)->mnemonic(), 0) << popup.text.toStdString();
}
