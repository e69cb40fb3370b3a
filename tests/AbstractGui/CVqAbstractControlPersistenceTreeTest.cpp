#include "tests/AbstractGui/StoredControls.h"

#include <gmock/gmock.h>

// What the tree form has of its own.

namespace {

class CVqAbstractControlTree : public testing::Test
{
protected:
    CVqAbstractControlTree()
    {
        TestBitmapPool::Fresh();
        m_control.m_strName = VQ_TEXT("zoom");
    }

    TestControl m_control{3};
};

}

TEST_F(CVqAbstractControlTree, SaveFillsTheVariantWithoutNameAndType)
{
    m_control.m_size = {10, 20};
    m_control.m_bVisible = false;
    m_control.m_bTranslateTooltip = true;

    EXPECT_EQ(saved_control<TreeForm>(m_control),
              "State0(" + std::string(empty_state)
                  + ") m_Width=10 m_Height=20 m_Visibility=0 TranslateTooltip=1");
}

TEST_F(CVqAbstractControlTree, SaveGivesTheVariantTheName)
{
    CVqVariant tree(5, VQ_TEXT("before"));

    m_control.Save(tree);

    EXPECT_EQ(TestMenu::Plain(tree.GetName()), "zoom");
}

TEST_F(CVqAbstractControlTree, ValuesHaveTheirTypes)
{
    CVqVariant tree;
    m_control.Save(tree);
    CVqVariant expected = TreeForm::Make({{VQ_TEXT("State0"),
                                           {{VQ_TEXT("m_bitmap"), -1},
                                            {VQ_TEXT("m_command"), VQ_TEXT("")},
                                            {VQ_TEXT("m_text"), VQ_TEXT("")},
                                            {VQ_TEXT("m_tooltip"), VQ_TEXT("")},
                                            {VQ_TEXT("m_filename"), VQ_TEXT("")},
                                            {VQ_TEXT("m_resname"), VQ_TEXT("")},
                                            {VQ_TEXT("m_bkgcolor"), 0xFFFFFFFFu},
                                            {VQ_TEXT("m_frgcolor"), 0xFFFFFFFFu}}},
                                          {VQ_TEXT("m_Width"), 0},
                                          {VQ_TEXT("m_Height"), 0},
                                          {VQ_TEXT("m_Visibility"), true},
                                          {VQ_TEXT("TranslateTooltip"), 0}});
    expected.SetName(VQ_TEXT("zoom"));

    EXPECT_EQ(stored_bytes(tree), stored_bytes(expected));
}

TEST_F(CVqAbstractControlTree, SaveTurnsAValueIntoALevel)
{
    CVqVariant tree(5, VQ_TEXT("before"));

    EXPECT_EQ(m_control.Save(tree), 0);

    EXPECT_EQ(tree.GetCount(), 5);
}

TEST_F(CVqAbstractControlTree, SavePutsTheTypeChangeBack)
{
    for (const bool setting : {false, true}) {
        CVqVariant tree;
        tree.EnableTypeChange(setting);

        m_control.Save(tree);

        EXPECT_EQ(tree.EnableTypeChange(false), setting);
    }
}

TEST_F(CVqAbstractControlTree, SaveAppendsToWhatTheVariantHolds)
{
    CVqVariant tree = TreeForm::Make({{VQ_TEXT("mine"), 5}});
    m_control.m_uiStateCount = 0;

    m_control.Save(tree);

    EXPECT_EQ(TreeForm::Show(tree), "mine=5 m_Width=0 m_Height=0 m_Visibility=1 TranslateTooltip=0");
}

TEST_F(CVqAbstractControlTree, NameIsThatOfTheVariant)
{
    CVqVariant tree
        = TreeForm::Make({{VQ_TEXT("State0"), stored_state()}, {VQ_TEXT("name"), VQ_TEXT("other")}});
    tree.SetName(VQ_TEXT("mine"));

    EXPECT_EQ(m_control.Load(tree), 0);

    EXPECT_EQ(TestMenu::Plain(m_control.m_strName), "mine");
}

TEST_F(CVqAbstractControlTree, UnnamedVariantTakesTheNameAway)
{
    load_control<TreeForm>(m_control, {{VQ_TEXT("State0"), stored_state()}});

    EXPECT_TRUE(m_control.m_strName.IsEmpty());
}

TEST_F(CVqAbstractControlTree, TypeIsLost)
{
    CVqVariant tree;
    m_control.Save(tree);

    EXPECT_EQ(m_control.Load(tree), 0);

    EXPECT_EQ(m_control.type(), 0);
}

TEST_F(CVqAbstractControlTree, MissingSizeStays)
{
    m_control.m_size = {10, 20};

    EXPECT_EQ(load_control<TreeForm>(m_control, {{VQ_TEXT("State0"), stored_state()}}), 0);

    EXPECT_EQ(m_control.m_size, (CVqSizeBase<int>{10, 20}));
}

TEST_F(CVqAbstractControlTree, EachSideOfTheSizeStaysByItself)
{
    m_control.m_size = {10, 20};
    load_control<TreeForm>(m_control, {{VQ_TEXT("m_Width"), 30}});
    EXPECT_EQ(m_control.m_size, (CVqSizeBase<int>{30, 20}));

    load_control<TreeForm>(m_control, {{VQ_TEXT("m_Height"), 0}});
    EXPECT_EQ(m_control.m_size, (CVqSizeBase<int>{30, 0}));
}

TEST_F(CVqAbstractControlTree, ChildWithoutAValueIsNoState)
{
    EXPECT_EQ(load_control<TreeForm>(m_control, {{VQ_TEXT("State0"), Stored::Children{}}}), -9);

    EXPECT_EQ(m_control.m_uiStateCount, 0u);
}

TEST_F(CVqAbstractControlTree, ValueOfAStatesNameIsAStateWithoutItsTexts)
{
    EXPECT_EQ(load_control<TreeForm>(m_control, {{VQ_TEXT("State0"), 5}}), -9);

    EXPECT_EQ(m_control.m_uiStateCount, 1u);
}

TEST_F(CVqAbstractControlTree, OfARepeatedStateTheFirstIsRead)
{
    load_control<TreeForm>(m_control,
                           {{VQ_TEXT("State0"), stored_state({{VQ_TEXT("m_bkgcolor"), 1u}})},
                            {VQ_TEXT("State0"), stored_state({{VQ_TEXT("m_bkgcolor"), 2u}})}});

    EXPECT_EQ(m_control.State(0).m_bkgcolor, 1u);
    EXPECT_EQ(m_control.m_uiStateCount, 1u);
}

TEST_F(CVqAbstractControlTree, LoadLeavesTheTreeAsItIs)
{
    CVqVariant tree;
    m_control.Save(tree);
    const auto before = stored_bytes(tree);

    m_control.Load(tree);

    EXPECT_EQ(stored_bytes(tree), before);
}

// The two forms -------------------------------------------------------------------------------------

TEST_F(CVqAbstractControlTree, BothFormsHoldTheSameStates)
{
    m_control.FillStates(32);

    const std::string tree = saved_control<TreeForm>(m_control);
    const std::string lite = saved_control<LiteForm>(m_control);

    const std::string states = tree.substr(0, tree.find(" m_Width"));
    EXPECT_EQ(lite, "zoom(" + states + " name=zoom" + tree.substr(states.size()) + " type=3)");
}
