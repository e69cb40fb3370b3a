#include "gallery/storage/StoredMenu.h"

#include "tests/gallery/keys/KeyMenu.h"

using namespace Qt::StringLiterals;
using Gallery::FromTree;
using Gallery::StoredMenu;
using Gallery::ToTree;

namespace {

StoredMenu some_menu()
{
    KeyMenu menu(KeyDocument());
    StoredMenu stored{
        u"abc"_s, u"de"_s, {}, {{3, u"Print"_s, {{18, 'K'}, {17, 0xFFE0}}}, {2, u"Save"_s, {}}}};
    menu.Menu().Save(stored.menu);
    return stored;
}

}

TEST(StoredMenu, ComesBackWhole)
{
    const StoredMenu stored = some_menu();

    const std::optional<StoredMenu> read = FromTree(ToTree(stored));

    ASSERT_TRUE(read);
    EXPECT_EQ(read->factory, u"abc"_s);
    EXPECT_EQ(read->language, u"de"_s);
    EXPECT_EQ(read->own_keys, stored.own_keys);
    EXPECT_EQ(read->menu[VQ_TEXT("Root")].GetCount(), 2);
}

TEST(StoredMenu, WithoutOwnKeysHasNoPlaceForThem)
{
    StoredMenu stored = some_menu();
    stored.own_keys.clear();

    const CVqVariant tree = ToTree(stored);

    EXPECT_TRUE(tree[VQ_TEXT("OwnKeys")].IsEmpty());
    EXPECT_TRUE(FromTree(tree)->own_keys.isEmpty());
}

TEST(StoredMenu, AnotherFormatIsNone)
{
    CVqVariant tree;
    tree.Append(CVqVariant(2u, VQ_TEXT("Format")));
    tree.Append(ToTree(some_menu())[VQ_TEXT("Menu")]);

    EXPECT_FALSE(FromTree(tree));
}

TEST(StoredMenu, WithoutAMenuIsNone)
{
    CVqVariant tree;
    tree.Append(CVqVariant(1u, VQ_TEXT("Format")));

    EXPECT_FALSE(FromTree(tree));
    EXPECT_FALSE(FromTree(CVqVariant()));
}

TEST(StoredMenu, WhatElseMayBeMissing)
{
    CVqVariant tree;
    tree.Append(CVqVariant(1u, VQ_TEXT("Format")));
    tree.Append(ToTree(some_menu())[VQ_TEXT("Menu")]);

    const std::optional<StoredMenu> read = FromTree(tree);

    ASSERT_TRUE(read);
    EXPECT_EQ(read->factory, QString());
    EXPECT_TRUE(read->own_keys.isEmpty());
}
