#include "tests/AbstractGui/StoredToolbars.h"

#include <gmock/gmock.h>

#include <string>

namespace {

constexpr const char* g_size_and_flags = " m_Width=0 m_Height=0 m_Visibility=1 TranslateTooltip=0";

std::string shown_record(const std::string& name, const std::string& more = "")
{
    return name + "(State0(" + empty_state + ")" + g_size_and_flags + more + ")";
}

class CVqAbstractButtonToolbarTree : public testing::Test
{
protected:
    int Load(Stored::Children entries)
    {
        CVqVariant stored = TreeForm::Make(entries);
        return m_bar.Load(stored, nullptr);
    }

    /// Adds buttons called "x" until there are `count` controls.
    void FillUpTo(int count)
    {
        while (m_bar.GetButtonsCount() < count)
            m_bar.AddButton(VQ_TEXT("x"));
    }

    TestBitmapPool& m_pool = TestBitmapPool::Fresh();
    TestButtonToolbar m_bar;
    CVqVariant m_stored;
};

}

// Save ---------------------------------------------------------------------------------------------------

TEST_F(CVqAbstractButtonToolbarTree, NameComesFirstAndIsNotCounted)
{
    m_bar.AddButton(VQ_TEXT("open"));
    m_bar.AppendSeparator(nullptr);
    m_bar.AddButton(VQ_TEXT("save"));

    m_bar.Save(m_stored, VQ_TEXT("Main bar"));

    EXPECT_EQ(TreeForm::Show(m_stored),
              "ToolbarName=Main bar " + shown_record("a00open") + " "
                  + shown_record("a01", " Separator=Separator") + " " + shown_record("a02save"));
    EXPECT_EQ(m_stored.IndexPtr(0)->GetType(), EVqVariantType::Text);
}

TEST_F(CVqAbstractButtonToolbarTree, NullAndEmptyNamesAreNotSaved)
{
    m_bar.AddButton(VQ_TEXT("open"));
    CVqVariant other;

    m_bar.Save(m_stored, nullptr);
    m_bar.Save(other, VQ_TEXT(""));

    EXPECT_EQ(entry_names(m_stored), "a00open");
    EXPECT_EQ(entry_names(other), "a00open");
}

TEST_F(CVqAbstractButtonToolbarTree, SeparatorSavesItselfTooAndLosesItsName)
{
    m_bar.AppendSeparator(VQ_TEXT("line"));
    m_bar.Settle();

    m_bar.Save(m_stored, nullptr);

    EXPECT_THAT(m_bar.TakeCalls(), testing::ElementsAre("line.Save"));
    EXPECT_EQ(entry_names(m_stored), "a00");
}

TEST_F(CVqAbstractButtonToolbarTree, SavingAppendsToWhatIsThere)
{
    m_bar.AddButton(VQ_TEXT("open"));
    m_stored.Append(CVqVariant(1, VQ_TEXT("Old")));

    m_bar.Save(m_stored, nullptr);

    EXPECT_EQ(entry_names(m_stored), "Old a00open");
}

TEST_F(CVqAbstractButtonToolbarTree, ScalarBecomesALevelAndTheTypeChangeSettingIsPutBack)
{
    m_bar.AddButton(VQ_TEXT("open"));
    CVqVariant fixed(7, VQ_TEXT("target"));
    CVqVariant free;
    free.EnableTypeChange(true);

    m_bar.Save(fixed, VQ_TEXT("Main bar"));
    m_bar.Save(free, VQ_TEXT("Main bar"));

    EXPECT_EQ(entry_names(fixed), "ToolbarName a00open");
    EXPECT_EQ(fixed.GetName(), VQ_TEXT("target"));
    EXPECT_FALSE(fixed.EnableTypeChange(true));
    EXPECT_TRUE(free.EnableTypeChange(false));
}

TEST_F(CVqAbstractButtonToolbarTree, WithoutAToolbarNothingIsSaved)
{
    NoButtonToolbar bar;

    bar.Save(m_stored, VQ_TEXT("Main bar"));

    EXPECT_TRUE(m_stored.IsEmpty());
}

// Load ---------------------------------------------------------------------------------------------------

TEST_F(CVqAbstractButtonToolbarTree, NameIsGivenBackAndMakesNoControl)
{
    m_bar.AddButton(VQ_TEXT("open"));
    m_bar.Save(m_stored, VQ_TEXT("Main bar"));
    CVqStringW name;

    EXPECT_EQ(m_bar.Load(m_stored, &name), 0);
    EXPECT_EQ(m_bar.Bar().Order(), "open |picker");
    EXPECT_EQ(name, VQ_TEXT("Main bar"));
    EXPECT_EQ(m_bar.Load(m_stored, nullptr), 0);

    EXPECT_EQ(m_bar.Bar().Order(), "open |picker");
}

TEST_F(CVqAbstractButtonToolbarTree, NameThatIsNotStoredLeavesTheTarget)
{
    m_bar.AddButton(VQ_TEXT("open"));
    m_bar.Save(m_stored, nullptr);
    CVqStringW name(VQ_TEXT("before"));

    m_bar.Load(m_stored, &name);

    EXPECT_EQ(name, VQ_TEXT("before"));
}

TEST_F(CVqAbstractButtonToolbarTree, NameMayStandAnywhereAndTheLastCounts)
{
    m_stored = TreeForm::Make({stored_button(VQ_TEXT("a00a"), VQ_TEXT("")),
                               {VQ_TEXT("ToolbarName"), VQ_TEXT("first")},
                               stored_button(VQ_TEXT("a01b"), VQ_TEXT("")),
                               {VQ_TEXT("ToolbarName"), VQ_TEXT("second")}});
    CVqStringW name;

    m_bar.Load(m_stored, &name);

    EXPECT_EQ(m_bar.Bar().Order(), "a b |picker");
    EXPECT_EQ(name, VQ_TEXT("second"));
}

TEST_F(CVqAbstractButtonToolbarTree, FirstThreeUnitsAreDroppedWhateverTheyAre)
{
    EXPECT_EQ(Load({stored_button(VQ_TEXT("xyzopen"), VQ_TEXT("")),
                    stored_button(VQ_TEXT("a99save"), VQ_TEXT(""))}),
              0);

    EXPECT_EQ(m_bar.Bar().Order(), "open save |picker");
}

TEST_F(CVqAbstractButtonToolbarTree, RecordWithoutANameIsASeparatorWhateverItHolds)
{
    EXPECT_EQ(Load({stored_button(VQ_TEXT("a00"), VQ_TEXT("")),
                    stored_button(VQ_TEXT("ab"), VQ_TEXT("")),
                    stored_button(VQ_TEXT(""), VQ_TEXT("")),
                    {VQ_TEXT("a03"), 5}}),
              0);

    EXPECT_EQ(m_bar.Bar().Order(), "separator separator separator separator |picker");
}

TEST_F(CVqAbstractButtonToolbarTree, RecordCalledSeparatorIsAButton)
{
    EXPECT_EQ(Load({stored_button(VQ_TEXT("a00Separator"), VQ_TEXT(""))}), 0);

    EXPECT_EQ(m_bar.Bar().Order(), "Separator |picker");
    EXPECT_FALSE(m_bar.IsIDSeparator(m_bar.FindButton(VQ_TEXT("Separator"))));
}

TEST_F(CVqAbstractButtonToolbarTree, ScalarIsAButtonWithoutStates)
{
    EXPECT_EQ(Load({{VQ_TEXT("a00open"), 5}}), -9);

    EXPECT_EQ(m_bar.Bar().Order(), "open |picker");
}

TEST_F(CVqAbstractButtonToolbarTree, SourceStaysAsItWas)
{
    m_bar.AddButton(VQ_TEXT("open"));
    m_bar.Save(m_stored, VQ_TEXT("Main bar"));
    const std::string before = TreeForm::Show(m_stored);

    m_bar.Load(m_stored, nullptr);

    EXPECT_EQ(TreeForm::Show(m_stored), before);
}

// More than a hundred controls ---------------------------------------------------------------------------

TEST_F(CVqAbstractButtonToolbarTree, HundredthControlStillComesBackWhole)
{
    FillUpTo(99);
    m_bar.AddButton(VQ_TEXT("last"));
    m_bar.Save(m_stored, nullptr);

    m_bar.Load(m_stored, nullptr);

    EXPECT_EQ(m_stored.IndexPtr(99)->GetName(), VQ_TEXT("a99last"));
    EXPECT_NE(m_bar.FindButton(VQ_TEXT("last")), 0u);
}

TEST_F(CVqAbstractButtonToolbarTree, ButtonAtIndexHundredGainsTheLastDigit)
{
    FillUpTo(100);
    m_bar.AddButton(VQ_TEXT("more"));
    m_bar.Save(m_stored, nullptr);

    EXPECT_EQ(m_bar.Load(m_stored, nullptr), 0);

    EXPECT_EQ(m_stored.IndexPtr(100)->GetName(), VQ_TEXT("a100more"));
    EXPECT_EQ(m_bar.FindButton(VQ_TEXT("more")), 0u);
    EXPECT_NE(m_bar.FindButton(VQ_TEXT("0more")), 0u);
}

TEST_F(CVqAbstractButtonToolbarTree, SeparatorAtIndexHundredAndMoreIsAButtonCalledByTheLastDigit)
{
    FillUpTo(123);
    m_bar.AppendSeparator(nullptr);
    m_bar.Save(m_stored, nullptr);

    EXPECT_EQ(m_bar.Load(m_stored, nullptr), 0);

    EXPECT_EQ(m_stored.IndexPtr(123)->GetName(), VQ_TEXT("a123"));
    const vq_uint64 id = m_bar.FindButton(VQ_TEXT("3"));
    EXPECT_NE(id, 0u);
    EXPECT_FALSE(m_bar.IsIDSeparator(id));
}
