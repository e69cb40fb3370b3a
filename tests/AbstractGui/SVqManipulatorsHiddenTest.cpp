#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/VqHiddenMenuCommands.h"
#include "tests/support/TestMenu.h"

#include <gtest/gtest.h>

namespace {

constexpr const vq_wchar* owner = VQ_TEXT("RemoveHidden");

/// Root with 1 "stay", popup 2 "hide" (3 "hide", 4 "hide too") and 5 "stay". Commands "hide" and "hide too"
/// are hidden.
class SVqManipulatorsHidden : public testing::Test
{
protected:
    SVqManipulatorsHidden()
    {
        VQ_SetMenuCommandAsHidden(owner, VQ_TEXT("hide"), true);
        VQ_SetMenuCommandAsHidden(owner, VQ_TEXT("hide too"), true);
        VQ_SetMenuCommandAsHidden(owner, VQ_TEXT("shown again"), false);
        add(1, 0, VQ_TEXT("stay"));
        m_menu.AppendPopup(2, 0, VQ_TEXT("Popup"));
        add(3, 2, VQ_TEXT("hide"));
        add(4, 2, VQ_TEXT("hide too"));
        add(5, 0, VQ_TEXT("stay"));
    }

    void add(vq_uint32 id, vq_uint32 parent, const vq_wchar* command)
    {
        m_menu.AppendMenuItem(id, parent, VQ_TEXT("Item"), command, 0);
    }

    bool remove_hidden(CVqMenuItem* first, const vq_wchar* name = owner)
    {
        return m_menu.Manipulators().remove_hidden(first, name);
    }

    CVqMenuItem* top() { return m_menu.Root()->subItem(); }

    TestMenu m_menu;
};

}

TEST_F(SVqManipulatorsHidden, NullItemNullNameAndEmptyNameGiveFalse)
{
    EXPECT_FALSE(remove_hidden(nullptr));
    EXPECT_FALSE(remove_hidden(top(), nullptr));
    EXPECT_FALSE(remove_hidden(top(), VQ_TEXT("")));

    EXPECT_EQ(m_menu.Tree(), "1 2(3 4) 5");
}

TEST_F(SVqManipulatorsHidden, PopupAllOfWhoseChildrenWentIsDeletedWhateverItsCommand)
{
    m_menu.Item(2)->setCommand(VQ_TEXT("stay"));

    EXPECT_TRUE(remove_hidden(top()));

    EXPECT_EQ(m_menu.Tree(), "1 2*(3* 4*) 5");
}

TEST_F(SVqManipulatorsHidden, PopupWithAChildThatStaysIsKept)
{
    add(6, 2, VQ_TEXT("stay"));

    EXPECT_TRUE(remove_hidden(top()));

    EXPECT_EQ(m_menu.Tree(), "1 2(3* 4* 6) 5");
}

TEST_F(SVqManipulatorsHidden, PopupWithAHiddenCommandIsDeletedAlthoughAChildStays)
{
    add(6, 2, VQ_TEXT("stay"));
    m_menu.Item(2)->setCommand(VQ_TEXT("hide"));

    EXPECT_TRUE(remove_hidden(top()));

    EXPECT_EQ(m_menu.Tree(), "1 2*(3* 4* 6) 5");
}

TEST_F(SVqManipulatorsHidden, ResultTellsIfSomethingStays)
{
    EXPECT_FALSE(remove_hidden(m_menu.Item(3)));
    EXPECT_TRUE(remove_hidden(m_menu.Item(5)));
}

TEST_F(SVqManipulatorsHidden, DeletedItemHandsOnTheAnswerOfTheLaterSiblings)
{
    EXPECT_TRUE(remove_hidden(m_menu.Item(2)));

    EXPECT_EQ(m_menu.Tree(), "1 2*(3* 4*) 5");
}

TEST_F(SVqManipulatorsHidden, SiblingsBehindAnItemThatStaysAreLookedAtToo)
{
    add(6, 0, VQ_TEXT("hide"));

    remove_hidden(top());

    EXPECT_TRUE(m_menu.Item(6)->deleted());
}

TEST_F(SVqManipulatorsHidden, SiblingsAheadOfTheItemAreLeftAlone)
{
    remove_hidden(m_menu.Item(4));

    EXPECT_EQ(m_menu.Tree(), "1 2(3 4*) 5");
}

TEST_F(SVqManipulatorsHidden, CommandSetToFalseStays)
{
    add(6, 2, VQ_TEXT("shown again"));

    remove_hidden(top());

    EXPECT_FALSE(m_menu.Item(6)->deleted());
}

TEST_F(SVqManipulatorsHidden, FlagIsNeverCleared)
{
    m_menu.Item(1)->setDeleted(true);

    EXPECT_TRUE(remove_hidden(top()));

    EXPECT_TRUE(m_menu.Item(1)->deleted());
}

TEST_F(SVqManipulatorsHidden, ItemWithoutCommandStays)
{
    m_menu.Item(1)->setCommand(VQ_TEXT(""));

    remove_hidden(top());

    EXPECT_FALSE(m_menu.Item(1)->deleted());
}

TEST_F(SVqManipulatorsHidden, ItemWithoutCommandGoesWhenTheEmptyCommandIsHidden)
{
    const vq_wchar* empty_owner = VQ_TEXT("HidesTheEmptyCommand");
    VQ_SetMenuCommandAsHidden(empty_owner, VQ_TEXT(""), true);
    m_menu.Item(1)->setCommand(VQ_TEXT("(5)"));
    m_menu.Item(5)->setCommand(VQ_TEXT(""));

    remove_hidden(top(), empty_owner);

    EXPECT_EQ(m_menu.Tree(), "1* 2*(3 4) 5*");
}

TEST_F(SVqManipulatorsHidden, SeparatorCountsAsSomethingThatStays)
{
    m_menu.AppendSeparator(6, 2);

    EXPECT_TRUE(remove_hidden(top()));

    EXPECT_EQ(m_menu.Tree(), "1 2(3* 4* 6) 5");
}

TEST_F(SVqManipulatorsHidden, EachLevelGoesThroughTheVirtualOperation)
{
    class Counting final : public CVqAbstractMenu::SVqManipulators
    {
    public:
        bool remove_hidden(CVqMenuItem* item, const vq_wchar* name) override
        {
            ++m_calls;
            return SVqManipulators::remove_hidden(item, name);
        }

        int m_calls = 0;
    } counting;

    counting.remove_hidden(top(), owner);

    EXPECT_EQ(counting.m_calls, 2);
}
