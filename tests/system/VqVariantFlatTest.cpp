#include "system/VqVariantFlat.h"

#include "system/SVqLiteData.h"
#include "tests/system/VariantTrees.h"

#include <gtest/gtest.h>

TEST(VqVariantFlat, TheTreeIsTheOneEntryOfTheOutermostLevel)
{
    CVqVariant tree;
    tree.SetName(VQ_TEXT("top"));
    tree.Append(CVqVariant(5u, VQ_TEXT("Id")));

    const SVqLiteData data = flatten(tree);

    ASSERT_EQ(data.m_nodes.size(), 3u);
    EXPECT_EQ(data.m_uiRoot, 1u);
    EXPECT_EQ(data.name_of(data.m_nodes[1]), u"top");
    EXPECT_EQ(data.m_nodes[2].m_uiValue, 5u);
}

TEST(VqVariantFlat, TreesComeBackWhole)
{
    CRandomTrees trees(4711);
    for (unsigned i = 0; i < 200; ++i) {
        const CVqVariant tree = trees.next(i);
        ASSERT_EQ(described(unflatten(flatten(tree))), described(tree)) << i;
    }
}
