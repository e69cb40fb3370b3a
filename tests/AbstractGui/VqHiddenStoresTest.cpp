#include "AbstractGui/VqHiddenStores.h"

#include <gtest/gtest.h>

TEST(VqHiddenStores, KeyIsBothNamesAsTheyAreWithAnAtBetween)
{
    EXPECT_TRUE(VqHiddenKey(VQ_TEXT("Main Bar"), VQ_TEXT("_Open(1)")) == VQ_TEXT("Main Bar@_Open(1)"));
    EXPECT_TRUE(VqHiddenKey({}, {}) == VQ_TEXT("@"));
}

TEST(VqHiddenStores, EntryThatIsTrueIsHidden)
{
    const VqHiddenStore store{{VQ_TEXT("a@b"), true}};

    EXPECT_TRUE(VqIsHiddenIn(store, VQ_TEXT("a@b")));
}

TEST(VqHiddenStores, EntryThatIsFalseIsNotHidden)
{
    const VqHiddenStore store{{VQ_TEXT("a@b"), false}};

    EXPECT_FALSE(VqIsHiddenIn(store, VQ_TEXT("a@b")));
}

TEST(VqHiddenStores, KeyThatIsNotThereIsNotHidden)
{
    const VqHiddenStore store{{VQ_TEXT("a@b"), true}};

    EXPECT_FALSE(VqIsHiddenIn(store, VQ_TEXT("a@")));
}

TEST(VqHiddenStores, SettingAllOfAnOwnerReachesItsEntriesOnly)
{
    VqHiddenStore store{{VQ_TEXT("A@b"), false},  {VQ_TEXT("a"), false},    {VQ_TEXT("a@"), false},
                        {VQ_TEXT("a@b"), false},  {VQ_TEXT("a@c"), true},   {VQ_TEXT("aa@b"), false},
                        {VQ_TEXT("b@a@"), false}, {VQ_TEXT("a#2@b"), false}};

    VqSetAllOfOwner(store, VQ_TEXT("a"), true);

    const VqHiddenStore expected{{VQ_TEXT("A@b"), false},  {VQ_TEXT("a"), false},    {VQ_TEXT("a@"), true},
                                 {VQ_TEXT("a@b"), true},   {VQ_TEXT("a@c"), true},   {VQ_TEXT("aa@b"), false},
                                 {VQ_TEXT("b@a@"), false}, {VQ_TEXT("a#2@b"), false}};
    EXPECT_TRUE(store == expected);
}

TEST(VqHiddenStores, SettingAllOfAnUnknownOwnerAddsNothing)
{
    VqHiddenStore store;

    VqSetAllOfOwner(store, VQ_TEXT("a"), true);

    EXPECT_TRUE(store.empty());
}
