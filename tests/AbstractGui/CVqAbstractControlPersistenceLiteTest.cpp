#include "tests/AbstractGui/RefusingWriter.h"
#include "tests/AbstractGui/StoredControls.h"

#include <gmock/gmock.h>

#include <string>

// What the lightweight form has of its own.

namespace {

class CVqAbstractControlLite : public testing::Test
{
protected:
    CVqAbstractControlLite()
    {
        TestBitmapPool::Fresh();
        m_control.m_strName = VQ_TEXT("zoom");
    }

    TestControl m_control{3};
};

}

TEST_F(CVqAbstractControlLite, SaveWritesALevelWithTheName)
{
    m_control.m_size = {10, 20};
    m_control.m_bVisible = false;
    m_control.m_bTranslateTooltip = true;

    EXPECT_EQ(saved_control<LiteForm>(m_control),
              "zoom(State0(" + std::string(empty_state)
                  + ") name=zoom m_Width=10 m_Height=20 m_Visibility=0 TranslateTooltip=1 type=3)");
}

TEST_F(CVqAbstractControlLite, UnnamedControlWritesAnUnnamedLevel)
{
    m_control.m_strName = VQ_TEXT("");
    m_control.m_uiStateCount = 0;

    EXPECT_EQ(saved_control<LiteForm>(m_control),
              "(name= m_Width=0 m_Height=0 m_Visibility=1 TranslateTooltip=0 type=3)");
}

TEST_F(CVqAbstractControlLite, ValuesHaveTheirTypes)
{
    CVqLiteVariantR stored = LiteForm::Filled([&](CVqLiteVariantW& out) { m_control.Save(out); });
    CVqLiteVariantR expected = LiteForm::Make({{VQ_TEXT("zoom"),
                                                {{VQ_TEXT("State0"),
                                                  {{VQ_TEXT("m_bitmap"), -1},
                                                   {VQ_TEXT("m_command"), VQ_TEXT("")},
                                                   {VQ_TEXT("m_text"), VQ_TEXT("")},
                                                   {VQ_TEXT("m_tooltip"), VQ_TEXT("")},
                                                   {VQ_TEXT("m_filename"), VQ_TEXT("")},
                                                   {VQ_TEXT("m_resname"), VQ_TEXT("")},
                                                   {VQ_TEXT("m_bkgcolor"), 0xFFFFFFFFu},
                                                   {VQ_TEXT("m_frgcolor"), 0xFFFFFFFFu}}},
                                                 {VQ_TEXT("name"), VQ_TEXT("zoom")},
                                                 {VQ_TEXT("m_Width"), 0},
                                                 {VQ_TEXT("m_Height"), 0},
                                                 {VQ_TEXT("m_Visibility"), true},
                                                 {VQ_TEXT("TranslateTooltip"), 0},
                                                 {VQ_TEXT("type"), 3}}}});

    EXPECT_EQ(stored_bytes(stored), stored_bytes(expected));
}

TEST_F(CVqAbstractControlLite, ControlsFollowOneAnother)
{
    TestControl other;
    other.m_strName = VQ_TEXT("zoom");
    m_control.m_uiStateCount = 0;
    other.m_uiStateCount = 0;

    const auto stored = LiteForm::Filled([&](CVqLiteVariantW& out) {
        m_control.Save(out);
        other.Save(out);
    });

    EXPECT_EQ(LiteForm::Show(stored),
              "zoom(name=zoom m_Width=0 m_Height=0 m_Visibility=1 TranslateTooltip=0 type=3) "
              "zoom(name=zoom m_Width=0 m_Height=0 m_Visibility=1 TranslateTooltip=0 type=0)");
}

TEST_F(CVqAbstractControlLite, NothingIsWrittenWhenItsLevelCannotBeBegun)
{
    const RefusingWriter refusing(VQ_TEXT("zoom"));

    EXPECT_EQ(saved_control<LiteForm>(m_control), "");
}

TEST_F(CVqAbstractControlLite, StateWhoseLevelCannotBeBegunIsLeftOut)
{
    m_control.m_uiStateCount = 3;
    const RefusingWriter refusing(VQ_TEXT("State1"));

    const std::string state = std::string("(") + empty_state + ") ";
    EXPECT_EQ(saved_control<LiteForm>(m_control),
              "zoom(State0" + state + "State2" + state
                  + "name=zoom m_Width=0 m_Height=0 m_Visibility=1 TranslateTooltip=0 type=3)");
}

TEST_F(CVqAbstractControlLite, LoadReadsTheLevelInWhichTheReaderStands)
{
    CVqLiteVariantR stored = LiteForm::Filled([&](CVqLiteVariantW& out) { m_control.Save(out); });
    stored.CurrentLevelBegin();
    TestControl loaded;

    EXPECT_EQ(loaded.Load(stored), 0);

    EXPECT_EQ(TestMenu::Plain(loaded.m_strName), "zoom");
    EXPECT_EQ(loaded.type(), 3);
}

TEST_F(CVqAbstractControlLite, LoadOutsideOfTheLevelFindsNoState)
{
    CVqLiteVariantR stored = LiteForm::Filled([&](CVqLiteVariantW& out) { m_control.Save(out); });

    EXPECT_EQ(TestControl().Load(stored), -9);
}

TEST_F(CVqAbstractControlLite, LoadLeavesTheReaderBehindTheLastEntryOfItsLevel)
{
    CVqLiteVariantR in
        = LiteForm::Make({{VQ_TEXT("first"), {{VQ_TEXT("State0"), stored_state()}, {VQ_TEXT("type"), 1}}},
                          {VQ_TEXT("second"), 2}});
    in.CurrentLevelBegin();

    m_control.Load(in);

    EXPECT_FALSE(in.IsNextValue());
    EXPECT_EQ(in.LevelEnd(), 0);
    vq_wchar name[16];
    EXPECT_EQ(in.GetCurrentName(name, 16), 0);
    EXPECT_EQ(TestMenu::Plain(name), "first");
}

TEST_F(CVqAbstractControlLite, NoMoreStatesAreReadThanEntriesAreLeft)
{
    CVqLiteVariantR in = LiteForm::Make({{VQ_TEXT("State0"), stored_state()},
                                         {VQ_TEXT("State1"), stored_state()},
                                         {VQ_TEXT("State2"), stored_state()}});
    in.NextValue();

    EXPECT_EQ(m_control.Load(in), 0);

    EXPECT_EQ(m_control.m_uiStateCount, 2u);
}

TEST_F(CVqAbstractControlLite, ValueOfAStatesNameIsNoState)
{
    EXPECT_EQ(load_control<LiteForm>(m_control, {{VQ_TEXT("State0"), 5}}), -9);

    EXPECT_EQ(m_control.m_uiStateCount, 0u);
}

TEST_F(CVqAbstractControlLite, EmptyLevelIsAStateWithoutItsTexts)
{
    EXPECT_EQ(load_control<LiteForm>(m_control, {{VQ_TEXT("State0"), Stored::Children{}}}), -9);

    EXPECT_EQ(m_control.m_uiStateCount, 1u);
}

TEST_F(CVqAbstractControlLite, MissingSizeIsZero)
{
    m_control.m_size = {10, 20};

    EXPECT_EQ(load_control<LiteForm>(m_control, {{VQ_TEXT("State0"), stored_state()}}), 0);

    EXPECT_EQ(m_control.m_size, CVqSizeBase<int>());
}

TEST_F(CVqAbstractControlLite, NameIsReadFromItsField)
{
    load_control<LiteForm>(m_control, {{VQ_TEXT("name"), VQ_TEXT("other")}});

    EXPECT_EQ(TestMenu::Plain(m_control.m_strName), "other");
}

TEST_F(CVqAbstractControlLite, NameIsReadBeforeTheVisibilityIsToldAndFlagAndTypeAfterwards)
{
    std::string seen;
    QObject::connect(&m_control, &CVqAbstractControl::stateChanged, &m_control, [&] {
        seen = TestMenu::Plain(m_control.m_strName) + " " + std::to_string(m_control.m_bTranslateTooltip)
            + " " + std::to_string(m_control.type());
    });

    load_control<LiteForm>(m_control,
                           {{VQ_TEXT("name"), VQ_TEXT("other")},
                            {VQ_TEXT("m_Visibility"), false},
                            {VQ_TEXT("TranslateTooltip"), 1},
                            {VQ_TEXT("type"), 5}});

    EXPECT_EQ(seen, "other 0 3");
}

TEST_F(CVqAbstractControlLite, MissingNameIsEmpty)
{
    load_control<LiteForm>(m_control, {{VQ_TEXT("State0"), stored_state()}});

    EXPECT_TRUE(m_control.m_strName.IsEmpty());
}

TEST_F(CVqAbstractControlLite, TypeComesBack)
{
    CVqLiteVariantR stored = LiteForm::Filled([&](CVqLiteVariantW& out) { m_control.Save(out); });
    stored.CurrentLevelBegin();
    TestControl loaded{5};

    loaded.Load(stored);

    EXPECT_EQ(loaded.type(), 3);
}
