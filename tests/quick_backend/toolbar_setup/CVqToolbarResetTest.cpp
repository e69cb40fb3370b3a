#include "quick_backend/toolbar_setup/CVqToolbarReset.h"

#include "quick_backend/toolbar_setup/SVqCustomisedBar.h"
#include "quick_backend/toolbar_setup/VqToolbarOrder.h"
#include "tests/quick_backend/toolbar_setup/SetupBars.h"

#include <set>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class CVqToolbarResetTest : public testing::Test, protected SetupBars
{
protected:
    CVqToolbarResetTest()
    {
        for (CVqQuickButtonToolbar* bar : {&first, &second}) {
            SVqCustomisedBar& known = bar == &first ? first_bar : second_bar;
            known.m_bar = bar;
            bar->Save(known.m_factory, nullptr);
            known.m_state = std::make_unique<CVqToolbarState>(*bar);
        }
    }

    // What no bar holds at the end would be deleted by a session.
    ~CVqToolbarResetTest() override
    {
        for (CVqQuickControl* control : touched)
            if (!VqHolds(first, control) && !VqHolds(second, control))
                control->MarkToDeleteItself();
    }

    std::vector<CVqQuickButtonToolbar*> Reset()
    {
        const auto touch = [this](CVqQuickControl& control) { touched.insert(&control); };
        return CVqToolbarReset({&first_bar, &second_bar}, touch).Run();
    }

    void TakeOut(CVqQuickButtonToolbar& bar, CVqQuickControl& control)
    {
        touched.insert(&control);
        VqTakeOut(bar, control);
    }

    SVqCustomisedBar first_bar;
    SVqCustomisedBar second_bar;
    std::set<CVqQuickControl*> touched;
};

}

TEST_F(CVqToolbarResetTest, PutsTheVeryControlsInTheirPlaces)
{
    CVqQuickControl* open = Named(first, "open");
    CVqQuickControl* zoom = Named(first, "zoom");
    TakeOut(first, *open);
    TakeOut(first, *zoom);
    VqPutIn(second, *zoom, nullptr);

    Reset();

    EXPECT_EQ(Order(first), "open save - zoom undo");
    EXPECT_EQ(Order(second), "cut copy");
    EXPECT_EQ(Named(first, "open"), open);
    EXPECT_EQ(Named(first, "zoom"), zoom);
}

TEST_F(CVqToolbarResetTest, MakesWhatIsNoLongerThereFromTheRecord)
{
    first.RemoveButton(first.FindButton(VQ_TEXT("open")));
    Settle();
    first_bar.m_state = std::make_unique<CVqToolbarState>(first);

    Reset();

    EXPECT_EQ(Order(first), "open save - zoom undo");
    EXPECT_EQ(Named(first, "open")->CommandText(), QStringLiteral("FileOpen"));
}

TEST_F(CVqToolbarResetTest, FindsWhatAnEarlierSessionMovedToAnotherBar)
{
    CVqQuickControl* open = Named(first, "open");
    CVqQuickControl* zoom = Named(first, "zoom");
    for (CVqQuickControl* control : {open, zoom}) {
        VqTakeOut(first, *control);
        VqPutIn(second, *control, nullptr);
    }
    first_bar.m_state = std::make_unique<CVqToolbarState>(first);
    second_bar.m_state = std::make_unique<CVqToolbarState>(second);

    Reset();

    EXPECT_EQ(Named(first, "open"), open);
    EXPECT_EQ(Named(first, "zoom"), zoom);
    EXPECT_EQ(Order(second), "cut copy");
}

TEST_F(CVqToolbarResetTest, AControlOfTheSameNameWithAnotherCommandIsNotMeant)
{
    CVqQuickControl* other = Add(second, "open", "Other");
    first.RemoveButton(first.FindButton(VQ_TEXT("open")));
    Settle();
    first_bar.m_state = std::make_unique<CVqToolbarState>(first);
    second_bar.m_state = std::make_unique<CVqToolbarState>(second);

    Reset();

    EXPECT_NE(Named(first, "open"), other);
    EXPECT_EQ(Order(second), "cut copy");
}

TEST_F(CVqToolbarResetTest, KeepsAGeneralControlThatNoRecordKnows)
{
    first_bar.m_factory = CVqVariant();

    Reset();

    EXPECT_EQ(Order(first), "zoom");
}

TEST_F(CVqToolbarResetTest, ShowsAndHidesAsTheRecordSays)
{
    CVqQuickControl* save = Named(first, "save");
    save->SetControlVisibility(false);

    Reset();

    EXPECT_EQ(Named(first, "save"), save);
    EXPECT_TRUE(save->GetControlVisibility());
}

TEST_F(CVqToolbarResetTest, ARecordOfMoreThanAHundredControlsLeavesItsBarAsItIs)
{
    for (int i = 0; i < 100; ++i)
        first_bar.m_factory.Append(CVqVariant(1, VQ_TEXT("a00name")));
    const std::string before = Everything();

    EXPECT_THAT(Reset(), ElementsAre(&second));

    EXPECT_EQ(Order(first), "open save - zoom undo");
    EXPECT_EQ(Everything(), before);
}

TEST_F(CVqToolbarResetTest, TheNameInARecordOfAHundredControlsIsNoControl)
{
    first_bar.m_factory = CVqVariant();
    first_bar.m_factory.Append(CVqVariant(VQ_TEXT("first"), VQ_TEXT("ToolbarName")));
    for (int i = 0; i < 100; ++i)
        first_bar.m_factory.Append(CVqVariant(VQ_TEXT("Separator"), VQ_TEXT("a00")));

    EXPECT_THAT(Reset(), ElementsAre(&first, &second));
}

TEST_F(CVqToolbarResetTest, DeletesNothing)
{
    const QPointer<CVqQuickControl> undo = Named(first, "undo");
    first_bar.m_factory = CVqVariant();

    Reset();
    Settle();

    ASSERT_TRUE(undo);
    EXPECT_TRUE(touched.contains(undo));
}
