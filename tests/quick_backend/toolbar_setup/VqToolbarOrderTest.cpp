#include "quick_backend/toolbar_setup/VqToolbarOrder.h"

#include "tests/quick_backend/toolbar_setup/SetupBars.h"

using testing::ElementsAre;
using namespace Qt::StringLiterals;

namespace {

class VqToolbarOrderTest : public testing::Test, protected SetupBars
{ };

}

TEST_F(VqToolbarOrderTest, TheControlsComeInOrderWithoutThePicker)
{
    EXPECT_THAT(VqControlsOf(second), ElementsAre(Named(second, "cut"), Named(second, "copy")));
}

TEST_F(VqToolbarOrderTest, ControlsInThePickerAreThereToo)
{
    first.Area()->setSize({60, 40});
    first.Toolbar().Layout();

    EXPECT_EQ(VqControlsOf(first).size(), 5u);
}

TEST_F(VqToolbarOrderTest, ABarHoldsItsOwnControlsOnly)
{
    EXPECT_TRUE(VqHolds(second, Named(second, "cut")));
    EXPECT_FALSE(VqHolds(first, Named(second, "cut")));
    EXPECT_FALSE(VqHolds(first, nullptr));
}

TEST_F(VqToolbarOrderTest, TheLastControlHasNoNext)
{
    EXPECT_EQ(VqNextOf(second, *Named(second, "cut")), Named(second, "copy"));
    EXPECT_EQ(VqNextOf(second, *Named(second, "copy")), nullptr);
}

TEST_F(VqToolbarOrderTest, AControlIsTakenOutAndPutInWithoutBeingDeleted)
{
    QPointer<CVqQuickControl> cut = Named(second, "cut");

    EXPECT_TRUE(VqTakeOut(second, *cut));
    EXPECT_EQ(Order(second), "copy");
    EXPECT_TRUE(VqPutIn(first, *cut, At(first, 0)));

    EXPECT_TRUE(cut);
    EXPECT_EQ(Order(first), "cut open save - zoom undo");
}

TEST_F(VqToolbarOrderTest, WhatABarDoesNotHoldIsNotTakenOut)
{
    EXPECT_FALSE(VqTakeOut(first, *Named(second, "cut")));
}

TEST_F(VqToolbarOrderTest, AButtonThatWasTakenOutIsNoLongerFound)
{
    CVqQuickControl* cut = Named(second, "cut");
    const vq_uint64 id = cut->GetControlID();

    VqTakeOut(second, *cut);

    EXPECT_EQ(second.ControlFromId(id), nullptr);
    VqPutIn(second, *cut, nullptr);
}

TEST_F(VqToolbarOrderTest, AFreeNameGetsTheFirstNumberThatNobodyHas)
{
    Add(first, "open2", "");

    EXPECT_EQ(VqFreeName(first, u"copy"_s), u"copy"_s);
    EXPECT_EQ(VqFreeName(first, u"open"_s), u"open3"_s);
}

TEST_F(VqToolbarOrderTest, NamesThatARecordTakesForSomethingElseGetANumber)
{
    EXPECT_EQ(VqFreeName(first, u"Separator"_s), u"Separator2"_s);
    EXPECT_EQ(VqFreeName(first, u"ToolbarName"_s), u"ToolbarName2"_s);
    EXPECT_FALSE(VqFreeName(first, {}).isEmpty());
}

TEST_F(VqToolbarOrderTest, LongNamesAreCutToWhatARecordReads)
{
    EXPECT_EQ(VqFreeName(first, QString(1'000, u'x')), QString(200, u'x'));
}
