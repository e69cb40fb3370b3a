#include "quick_backend/toolbar_setup/CVqToolbarState.h"

#include "quick_backend/toolbar_setup/VqToolbarOrder.h"
#include "tests/quick_backend/toolbar_setup/SetupBars.h"

using namespace Qt::StringLiterals;

namespace {

class CVqToolbarStateTest : public testing::Test, protected SetupBars
{
protected:
    const CVqToolbarState state{first};
};

}

TEST_F(CVqToolbarStateTest, KnowsItsControlsByTheNamesThatTheyHad)
{
    CVqQuickControl* open = Named(first, "open");

    VqTakeOut(first, *open);
    VqRename(*open, u"other"_s);

    EXPECT_EQ(state.Named(u"open"_s), open);
    EXPECT_EQ(state.Named(u"other"_s), nullptr);
    EXPECT_TRUE(state.Held(*open));
    EXPECT_FALSE(state.Held(*Named(second, "cut")));
    VqPutIn(first, *open, nullptr);
}

TEST_F(CVqToolbarStateTest, ForgetsAControlThatWasDeleted)
{
    first.RemoveButton(first.FindButton(VQ_TEXT("open")));
    Settle();

    EXPECT_EQ(state.Named(u"open"_s), nullptr);
    EXPECT_FALSE(state.IsOrderKept());
}

TEST_F(CVqToolbarStateTest, NoticesAnotherOrder)
{
    EXPECT_TRUE(state.IsOrderKept());

    CVqQuickControl* open = Named(first, "open");
    VqTakeOut(first, *open);
    VqPutIn(first, *open, nullptr);

    EXPECT_FALSE(state.IsOrderKept());
}

TEST_F(CVqToolbarStateTest, NoticesAnotherName)
{
    VqRename(*Named(first, "open"), u"other"_s);

    EXPECT_FALSE(state.IsOrderKept());
}

TEST_F(CVqToolbarStateTest, PutsTheVeryControlsBackUnderTheirNames)
{
    const auto before = VqControlsOf(first);
    for (CVqQuickControl* control : before)
        VqTakeOut(first, *control);
    VqRename(*before[0], u"other"_s);

    state.PutBack();

    EXPECT_EQ(VqControlsOf(first), before);
    EXPECT_EQ(Order(first), "open save - zoom undo");
}

TEST_F(CVqToolbarStateTest, RestoresWhatIsShownAndHow)
{
    CVqQuickControl* open = Named(first, "open");
    open->SetControlVisibility(false);
    open->SetOrientation(EOrientation::Vertical);
    open->SetFlatStyle(true);

    state.RestoreLooks();

    EXPECT_TRUE(open->GetControlVisibility());
    EXPECT_FALSE(open->IsVertical());
    EXPECT_FALSE(open->IsFlat());
}
