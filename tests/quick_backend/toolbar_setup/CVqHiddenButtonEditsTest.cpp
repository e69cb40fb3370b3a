#include "quick_backend/toolbar_setup/CVqHiddenButtonEdits.h"

#include "tests/quick_backend/toolbar_setup/SetupBars.h"

namespace {

class CVqHiddenButtonEditsTest : public testing::Test, protected SetupBars
{
protected:
    CVqHiddenButtonEdits edits;
};

}

TEST_F(CVqHiddenButtonEditsTest, ASettingStandsUnderThePlainNameAndCountsForAllInstances)
{
    edits.Set(second, *Named(second, "cut"), true);

    EXPECT_TRUE(VQ_IsToolbarButtonSetAsHidden(VQ_TEXT("second"), VQ_TEXT("cut")));
    EXPECT_TRUE(VQ_IsToolbarButtonSetAsHidden(VQ_TEXT("second#7"), VQ_TEXT("cut")));
    EXPECT_TRUE(edits.IsHidden(second, *Named(second, "cut")));
}

TEST_F(CVqHiddenButtonEditsTest, ALockedButtonIsHiddenByTheApplicationAlone)
{
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("second#2"), VQ_TEXT("cut"), true, true);

    EXPECT_TRUE(edits.IsLocked(second, *Named(second, "cut")));
    EXPECT_FALSE(edits.IsHidden(second, *Named(second, "cut")));
    EXPECT_FALSE(edits.IsLocked(second, *Named(second, "copy")));
}

TEST_F(CVqHiddenButtonEditsTest, RestoringGivesBackWhatWasThereFirst)
{
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("first"), VQ_TEXT("save"), true, false);

    edits.Set(first, *Named(first, "open"), true);
    edits.Set(first, *Named(first, "save"), false);
    edits.Set(first, *Named(first, "save"), true);
    edits.Set(first, *Named(first, "save"), false);
    edits.Restore();

    EXPECT_EQ(Order(first), "open (save) - zoom undo");
}

TEST_F(CVqHiddenButtonEditsTest, WhatIsForgottenIsNotRestored)
{
    edits.Set(first, *Named(first, "open"), true);
    edits.Forget();
    edits.Restore();

    EXPECT_EQ(Order(first), "(open) save - zoom undo");
}

TEST_F(CVqHiddenButtonEditsTest, NobodyIsToldOfASettingThatStands)
{
    struct Counter final : SVqToolbarButtonHiddenCallback
    {
        int ButtonHiddenChanged(const vq_wchar*, const vq_wchar*, bool, bool) override { return ++m_count; }
        int m_count = 0;
    } counter;
    VQ_SetToolbarButtonAsHiddenCallback(&counter);

    edits.Set(first, *Named(first, "open"), false);
    edits.Restore();

    VQ_RemoveToolbarButtonAsHiddenCallback(&counter);
    EXPECT_EQ(counter.m_count, 0);
}
