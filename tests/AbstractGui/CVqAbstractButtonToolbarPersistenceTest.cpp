#include "tests/AbstractGui/StoredToolbars.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <memory>

using testing::Contains;
using testing::ElementsAre;

// What both forms have in common.

namespace {

template <class Form>
class CVqAbstractButtonToolbarPersistence : public testing::Test
{
protected:
    using Container = typename Form::Container;

    /// "a b | c" with a separator.
    static void fill(TestButtonToolbar& bar)
    {
        bar.AddButton(VQ_TEXT("a"));
        bar.AddButton(VQ_TEXT("b"));
        bar.AppendSeparator(nullptr);
        bar.AddButton(VQ_TEXT("c"));
        bar.Settle();
    }

    TestBitmapPool& m_pool = TestBitmapPool::Fresh();
    TestButtonToolbar m_bar;
    Container m_stored;
};

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(CVqAbstractButtonToolbarPersistence, Forms, FormName);

}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, ThreeButtonsAndASeparatorComeBackInOrder)
{
    this->fill(this->m_bar);
    TestButtonToolbar loaded;

    EXPECT_EQ(save_toolbar(this->m_bar, this->m_stored), 0);
    EXPECT_EQ(load_toolbar(loaded, this->m_stored), 0);

    EXPECT_EQ(loaded.Bar().Order(), "a b separator c |picker");
    EXPECT_EQ(loaded.GetButtonsCount(), 4);
    EXPECT_EQ(loaded.GetButtonID(2, true), loaded.FindButton(VQ_TEXT("c")));
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, TextsImageAndVisibilityOfAButtonComeBack)
{
    const vq_uint64 id = this->m_bar.AddButton(VQ_TEXT("open"));
    this->m_bar.SetStatesCountOnButton(id, 2);
    this->m_bar.SetTextsOnButton(id, 1, VQ_TEXT("tip"), VQ_TEXT("&Open"), VQ_TEXT("Run(\"open\")"));
    this->m_bar.SetBitmapOnButton(id, 1, 7u);
    this->m_bar.SetButtonVisibility(id, false);
    this->m_pool.SetSource(7, VQ_TEXT("open.svg"), VQ_TEXT(""));
    this->m_pool.SetNextIndex(500);
    TestButtonToolbar loaded;
    CVqStringW texts[3];
    unsigned count = 0;

    save_toolbar(this->m_bar, this->m_stored);
    this->m_pool.TakeCalls();
    load_toolbar(loaded, this->m_stored);

    const vq_uint64 back = loaded.FindButton(VQ_TEXT("open"));
    loaded.GetStatesCountOnButton(back, count);
    loaded.GetTooltipOnButton(back, 1, texts[0]);
    loaded.GetTextOnButton(back, 1, texts[1]);
    loaded.GetCommandOnButton(back, 1, texts[2]);
    EXPECT_EQ(count, 2u);
    EXPECT_EQ(texts[0], VQ_TEXT("tip"));
    EXPECT_EQ(texts[1], VQ_TEXT("&Open"));
    EXPECT_EQ(texts[2], VQ_TEXT("Run(\"open\")"));
    EXPECT_FALSE(loaded.GetButtonVisibility(back));
    EXPECT_GE(loaded.GetBitmap(back, 1), 500);
    EXPECT_THAT(this->m_pool.TakeCalls(), Contains(testing::StartsWith("AddImage open.svg")));
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, LoadingTakesThePlaceOfWhatWasThere)
{
    this->fill(this->m_bar);
    save_toolbar(this->m_bar, this->m_stored);
    TestButtonToolbar loaded;
    loaded.AddButton(VQ_TEXT("old"));
    loaded.Settle();

    load_toolbar(loaded, this->m_stored);

    EXPECT_EQ(loaded.Bar().Order(), "a b separator c |picker");
    EXPECT_THAT(loaded.TakeCalls(), Contains("old.Delete"));
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, LoadingSomethingEmptyRemovesAllControls)
{
    this->fill(this->m_bar);

    EXPECT_EQ(load_toolbar(this->m_bar, this->m_stored), 0);

    EXPECT_EQ(this->m_bar.Bar().Order(), "|picker");
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, LoadingAnEmptyToolbarRemovesAllControls)
{
    TestButtonToolbar empty;
    this->fill(this->m_bar);
    save_toolbar(empty, this->m_stored);

    EXPECT_EQ(load_toolbar(this->m_bar, this->m_stored), 0);

    EXPECT_EQ(this->m_bar.Bar().Order(), "|picker");
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, LoadingMakesSeparatorsDirtyAndClearsTheCache)
{
    this->fill(this->m_bar);
    this->m_bar.FindButton(VQ_TEXT("a"));

    load_toolbar(this->m_bar, this->m_stored);

    EXPECT_TRUE(this->m_bar.m_bSeparatorsDirty);
    EXPECT_EQ(this->m_bar.m_uiCachedId, 0u);
    EXPECT_EQ(this->m_bar.m_pCachedControl, nullptr);
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, LoadingWithoutAToolbarIsNoErrorAndMakesSeparatorsDirty)
{
    this->fill(this->m_bar);
    save_toolbar(this->m_bar, this->m_stored);
    NoButtonToolbar bar;
    bar.m_uiCachedId = 5;

    EXPECT_EQ(load_toolbar(bar, this->m_stored), 0);

    EXPECT_TRUE(bar.m_bSeparatorsDirty);
    EXPECT_EQ(bar.m_uiCachedId, 0u);
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, LoadedButtonIsReadBeforeItIsAdded)
{
    this->m_bar.AddButton(VQ_TEXT("a"));
    save_toolbar(this->m_bar, this->m_stored);
    TestButtonToolbar loaded;

    load_toolbar(loaded, this->m_stored);

    TestButtonToolbar::Lines lines = loaded.TakeCalls();
    std::erase(lines, "button.SetControlVisibility 1");
    EXPECT_THAT(lines,
                ElementsAre("picker.Set 2306 picker", "CreateControlButton 1", "button.Load = 0",
                            "a.Set 160 1", "a.Set 162 1", "a.SetOrientation 0", "a.SetFlatStyle 0"));
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, ButtonThatIsNotReadInFullIsAddedAndTheOthersToo)
{
    Stored half = stored_button(VQ_TEXT("a01b"), VQ_TEXT("a01b"));
    std::get<Stored::Children>(half.value).front()
        = {VQ_TEXT("State0"), Stored::Children{{VQ_TEXT("m_text"), VQ_TEXT("B")}}};
    this->m_stored = stored_toolbar<TypeParam>({stored_button(VQ_TEXT("a00a"), VQ_TEXT("a00a")), half,
                                                stored_button(VQ_TEXT("a02c"), VQ_TEXT("a02c"))});

    EXPECT_EQ(load_toolbar(this->m_bar, this->m_stored), -9);

    const bool is_tree = std::is_same_v<TypeParam, TreeForm>;
    EXPECT_EQ(this->m_bar.Bar().Order(), is_tree ? "a b c |picker" : "a00a a01b a02c |picker");
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, TextButtonsAndGeneralControlsComeBackAsButtons)
{
    this->m_bar.AddTextButton(VQ_TEXT("text"));
    this->m_bar.AddGeneralControl(this->m_bar.Bar().Make("general"), VQ_TEXT("general"));
    save_toolbar(this->m_bar, this->m_stored);
    TestButtonToolbar loaded;

    load_toolbar(loaded, this->m_stored);

    const TestButtonToolbar::Lines lines = loaded.TakeCalls();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "CreateControlButton 1"), 2);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "CreateTextButton"), 0);
    EXPECT_EQ(loaded.Bar().Order(), "text general |picker");
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, FactoriesThatGiveNullAreTolerated)
{
    this->fill(this->m_bar);
    save_toolbar(this->m_bar, this->m_stored);
    TestButtonToolbar loaded;
    loaded.FailFactories();

    EXPECT_EQ(load_toolbar(loaded, this->m_stored), 0);

    EXPECT_EQ(loaded.Bar().Order(), "|picker");
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, ButtonThatTheToolbarRefusesDeletesItself)
{
    this->m_bar.AddButton(VQ_TEXT("a"));
    save_toolbar(this->m_bar, this->m_stored);
    TestButtonToolbar loaded;
    loaded.Bar().m_hWindow = 9;
    loaded.AnswerHandles(0);

    EXPECT_EQ(load_toolbar(loaded, this->m_stored), 0);

    EXPECT_EQ(loaded.Bar().Order(), "|picker");
    EXPECT_EQ(loaded.TakeCalls().back(), "a.Delete");
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, ControlsInThePickerAreSavedButNotThePicker)
{
    this->fill(this->m_bar);
    this->m_bar.Bar().m_pBoundary = this->m_bar.Bar().m_pControls->GetFirst();

    save_toolbar(this->m_bar, this->m_stored);

    const bool is_tree = std::is_same_v<TypeParam, TreeForm>;
    EXPECT_EQ(entry_names(this->m_stored), is_tree ? "a00a a01b a02 a03c" : "a b Separator c");
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, NodesWithoutAControlAreSkipped)
{
    this->fill(this->m_bar);
    CVqList& list = *this->m_bar.Bar().m_pControls;
    list.Insert(list.GetFirst(), nullptr);

    save_toolbar(this->m_bar, this->m_stored);

    const bool is_tree = std::is_same_v<TypeParam, TreeForm>;
    EXPECT_EQ(entry_names(this->m_stored), is_tree ? "a00a a01b a02 a03c" : "a b Separator c");
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, SeparatorWhoseAnswerFailsIsSavedAsAButton)
{
    const vq_uint64 id = this->m_bar.AppendSeparator(VQ_TEXT("line"));
    this->m_bar.Control(id).AnswerSeparator(1, -9);

    save_toolbar(this->m_bar, this->m_stored);

    const bool is_tree = std::is_same_v<TypeParam, TreeForm>;
    EXPECT_EQ(entry_names(this->m_stored), is_tree ? "a00line" : "line");
}

TYPED_TEST(CVqAbstractButtonToolbarPersistence, LoadingTwiceGivesTheSameAsOnce)
{
    this->fill(this->m_bar);
    save_toolbar(this->m_bar, this->m_stored);

    load_toolbar(this->m_bar, this->m_stored);
    load_toolbar(this->m_bar, this->m_stored);

    EXPECT_EQ(this->m_bar.Bar().Order(), "a b separator c |picker");
}
