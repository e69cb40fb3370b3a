#include "tests/AbstractGui/StoredToolbars.h"

#include <gmock/gmock.h>

#include <string>

using testing::ElementsAre;

namespace {

std::string shown_button(const std::string& name)
{
    return name + "(State0(" + empty_state + ") name=" + name
        + " m_Width=0 m_Height=0 m_Visibility=1 TranslateTooltip=0 type=0)";
}

class CVqAbstractButtonToolbarLite : public testing::Test
{
protected:
    int Load(Stored::Children entries)
    {
        CVqLiteVariantR stored = stored_toolbar<LiteForm>(std::move(entries));
        return m_bar.Load(stored);
    }

    TestBitmapPool& m_pool = TestBitmapPool::Fresh();
    TestButtonToolbar m_bar;
    CVqLiteVariantR m_stored;
};

constexpr const vq_wchar* g_long_name = VQ_TEXT("a name that is too long for the place of the short one");

}

TEST_F(CVqAbstractButtonToolbarLite, EachControlIsALevelAndASeparatorAnEmptyOne)
{
    m_bar.AddButton(VQ_TEXT("a"));
    m_bar.AppendSeparator(VQ_TEXT("line"));
    m_bar.AddButton(VQ_TEXT("b"));

    EXPECT_EQ(m_bar.Save(m_stored), 0);

    EXPECT_EQ(LiteForm::Show(m_stored),
              "CVqAbstractButtonToolbar(" + shown_button("a") + " Separator() " + shown_button("b") + ")");
}

TEST_F(CVqAbstractButtonToolbarLite, SeparatorIsNotAskedToSaveItself)
{
    m_bar.AppendSeparator(nullptr);
    m_bar.Settle();

    m_bar.Save(m_stored);

    EXPECT_THAT(m_bar.TakeCalls(), testing::IsEmpty());
}

TEST_F(CVqAbstractButtonToolbarLite, SavingReplacesWhatTheReaderHeld)
{
    m_stored = LiteForm::Make({{VQ_TEXT("Old"), 1}});

    m_bar.Save(m_stored);

    EXPECT_EQ(LiteForm::Show(m_stored), "CVqAbstractButtonToolbar()");
}

TEST_F(CVqAbstractButtonToolbarLite, WithoutAToolbarAnEmptyLevelIsSaved)
{
    NoButtonToolbar bar;

    EXPECT_EQ(bar.Save(m_stored), 0);

    EXPECT_EQ(LiteForm::Show(m_stored), "CVqAbstractButtonToolbar()");
}

TEST_F(CVqAbstractButtonToolbarLite, LevelUnderTheCursorIsReadWhateverItsName)
{
    m_stored
        = LiteForm::Make({{VQ_TEXT("Other"), 1},
                          {VQ_TEXT("AnyName"), Stored::Children{stored_button(VQ_TEXT("a"), VQ_TEXT("a"))}}});
    m_stored.NextValue();

    EXPECT_EQ(m_bar.Load(m_stored), 0);

    EXPECT_EQ(m_bar.Bar().Order(), "a |picker");
}

TEST_F(CVqAbstractButtonToolbarLite, ValueUnderTheCursorIsNoToolbarButAllControlsAreGone)
{
    m_bar.AddButton(VQ_TEXT("old"));
    m_stored = LiteForm::Make({{VQ_TEXT("Other"), 1}});

    EXPECT_EQ(m_bar.Load(m_stored), 0);

    EXPECT_EQ(m_bar.Bar().Order(), "|picker");
}

TEST_F(CVqAbstractButtonToolbarLite, ReaderIsLeftWhereItWas)
{
    m_bar.AddButton(VQ_TEXT("a"));
    m_bar.Save(m_stored);

    m_bar.Load(m_stored);

    EXPECT_EQ(m_stored.LevelEnd(), -9);
    EXPECT_TRUE(m_stored.IsNextValue());
}

TEST_F(CVqAbstractButtonToolbarLite, EntryNamedSeparatorIsOneAlsoWithContent)
{
    EXPECT_EQ(Load({{VQ_TEXT("Separator"), Stored::Children{}},
                    stored_button(VQ_TEXT("Separator"), VQ_TEXT("button")),
                    stored_button(VQ_TEXT("a"), VQ_TEXT("a"))}),
              0);

    EXPECT_EQ(m_bar.Bar().Order(), "separator separator a |picker");
}

TEST_F(CVqAbstractButtonToolbarLite, EntryWithoutANameIsASeparator)
{
    EXPECT_EQ(Load({stored_button(VQ_TEXT(""), VQ_TEXT("button"))}), 0);

    EXPECT_EQ(m_bar.Bar().Order(), "separator |picker");
}

TEST_F(CVqAbstractButtonToolbarLite, SeparatorIsToldByItsExactName)
{
    EXPECT_EQ(Load({stored_button(VQ_TEXT("separator"), VQ_TEXT("x")),
                    stored_button(VQ_TEXT("Separators"), VQ_TEXT("y"))}),
              0);

    EXPECT_EQ(m_bar.Bar().Order(), "x y |picker");
}

TEST_F(CVqAbstractButtonToolbarLite, EntryThatIsAValueIsSkipped)
{
    EXPECT_EQ(Load({{VQ_TEXT("Version"), 3},
                    stored_button(VQ_TEXT("a"), VQ_TEXT("a")),
                    {VQ_TEXT("Separator"), VQ_TEXT("no level")},
                    stored_button(VQ_TEXT("b"), VQ_TEXT("b"))}),
              0);

    EXPECT_EQ(m_bar.Bar().Order(), "a b |picker");
}

TEST_F(CVqAbstractButtonToolbarLite, ButtonThatIsNotReadInFullGetsTheNameOfItsEntryAfterItWasAdded)
{
    EXPECT_EQ(Load({{VQ_TEXT("a"), Stored::Children{{VQ_TEXT("name"), VQ_TEXT("other")}}}}), -9);

    EXPECT_THAT(m_bar.TakeCalls(),
                ElementsAre("picker.Set 2306 picker", "CreateControlButton 1", "button.Load = -9",
                            "other.Set 160 1", "other.Set 162 1", "other.SetOrientation 0",
                            "other.SetFlatStyle 0", "other.Set 262 \"a\""));
    EXPECT_EQ(m_bar.Bar().Order(), "a |picker");
}

TEST_F(CVqAbstractButtonToolbarLite, LongNameThatAnEmptyButtonGetsAfterItWasAddedMakesTheMapStale)
{
    EXPECT_EQ(Load({{g_long_name, Stored::Children{}}}), -9);

    const vq_uint64 id = m_bar.FindButton(g_long_name);
    ASSERT_NE(id, 0u);
    EXPECT_EQ(m_bar.GetButtonsCount(), 1);
    EXPECT_EQ(m_bar.Bar().GetControl(id), nullptr);
}

TEST_F(CVqAbstractButtonToolbarLite, NameOfAnEntryCountsUpTo254Units)
{
    const std::string name(300, 'n');
    const CVqStringW entry(name.c_str());

    Load({{entry.GetString(), Stored::Children{}}, stored_button(entry, entry)});

    EXPECT_EQ(m_bar.Bar().Order(), std::string(254, 'n') + " " + name + " |picker");
}
