#include "tests/quick_backend/toolbar_setup/SetupBars.h"

using namespace Qt::StringLiterals;

namespace {

class CVqQuickToolbarSetupChanges : public SetupSession
{ };

}

// Showing ------------------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarSetupChanges, HidingStandsInThePersonalStoreUnderThePlainName)
{
    EXPECT_TRUE(setup->setShown(Named(second, "cut"), false));

    EXPECT_TRUE(VQ_IsToolbarButtonSetAsHidden(VQ_TEXT("second"), VQ_TEXT("cut")));
    EXPECT_TRUE(Named(second, "cut")->GetControlVisibility());
    EXPECT_EQ(Order(second), "(cut) copy");
}

TEST_F(CVqQuickToolbarSetupChanges, ShowingAlsoShowsWhatIsInvisibleByItself)
{
    Named(first, "save")->SetControlVisibility(false);
    EXPECT_FALSE(setup->isShown(Named(first, "save")));

    EXPECT_TRUE(setup->setShown(Named(first, "save"), true));

    EXPECT_EQ(Order(first), "open save - zoom undo");
}

TEST_F(CVqQuickToolbarSetupChanges, TheSameAgainAndSeparatorsAreNoChange)
{
    const QSignalSpy changes(setup.get(), &CVqQuickToolbarSetup::changed);

    EXPECT_FALSE(setup->setShown(Named(first, "save"), true));
    EXPECT_FALSE(setup->setShown(At(first, 2), false));
    EXPECT_FALSE(setup->setShown(nullptr, false));

    EXPECT_EQ(changes.size(), 0);
}

TEST_F(CVqQuickToolbarSetupChanges, ControlsOfABarWithoutANameAreHiddenThemselves)
{
    CVqQuickButtonToolbar nameless(nullptr);
    CVqQuickControl* button = Add(nameless, "one", "");
    setup->AddToolbar(nameless, CVqVariant());

    setup->setShown(button, false);
    EXPECT_FALSE(button->GetControlVisibility());
    EXPECT_FALSE(VQ_IsToolbarButtonSetAsHidden(VQ_TEXT(""), VQ_TEXT("one")));
    setup->cancel();

    EXPECT_TRUE(button->GetControlVisibility());
}

TEST_F(CVqQuickToolbarSetupChanges, AllIsShownAtOnce)
{
    setup->setShown(Named(first, "open"), false);
    setup->setShown(Named(first, "undo"), false);
    EXPECT_TRUE(setup->hidesAny(&first));
    EXPECT_FALSE(setup->hidesAny(&second));
    const QSignalSpy changes(setup.get(), &CVqQuickToolbarSetup::changed);

    EXPECT_TRUE(setup->showAll(&first));
    EXPECT_FALSE(setup->showAll(&first));

    EXPECT_EQ(Order(first), "open save - zoom undo");
    EXPECT_EQ(changes.size(), 1);
}

TEST_F(CVqQuickToolbarSetupChanges, WhatTheApplicationHidesIsLocked)
{
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("first"), VQ_TEXT("open"), true, true);
    menu.Manipulators().find_item(3u, menu.getRootMenuItem())->setDeleted(true);
    Settle();

    EXPECT_TRUE(setup->isLocked(Named(first, "open")));
    EXPECT_TRUE(setup->isLocked(Named(first, "save")));
    EXPECT_FALSE(setup->isLocked(Named(first, "undo")));
    EXPECT_TRUE(setup->isShown(Named(first, "open")));
}

// Places -------------------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarSetupChanges, AControlMovesInFrontOfAnotherOrToTheEnd)
{
    EXPECT_TRUE(setup->move(Named(first, "undo"), &first, Named(first, "save")));
    EXPECT_EQ(Order(first), "open undo save - zoom");

    EXPECT_TRUE(setup->move(Named(first, "open"), &first, nullptr));
    EXPECT_EQ(Order(first), "undo save - zoom open");
}

TEST_F(CVqQuickToolbarSetupChanges, MovingToTheSamePlaceIsNoChange)
{
    EXPECT_FALSE(setup->move(Named(first, "open"), &first, Named(first, "open")));
    EXPECT_FALSE(setup->move(Named(first, "open"), &first, Named(first, "save")));
    EXPECT_FALSE(setup->move(Named(first, "undo"), &first, nullptr));
}

TEST_F(CVqQuickToolbarSetupChanges, AMoveNeedsAControlABarAndAPlaceOfThatBar)
{
    CVqQuickButtonToolbar stranger(VQ_TEXT("stranger"));

    EXPECT_FALSE(setup->move(nullptr, &first, nullptr));
    EXPECT_FALSE(setup->move(Named(first, "open"), nullptr, nullptr));
    EXPECT_FALSE(setup->move(Named(first, "open"), &stranger, nullptr));
    EXPECT_FALSE(setup->move(Named(first, "open"), &first, Named(second, "cut")));
    EXPECT_EQ(setup->toolbarOf(Named(first, "open")), &first);
}

TEST_F(CVqQuickToolbarSetupChanges, BarsExchangeButtons)
{
    CVqQuickControl* cut = Named(second, "cut");
    setup->SetControl(cut);

    EXPECT_TRUE(setup->move(cut, &first, Named(first, "save")));

    EXPECT_EQ(Order(first), "open cut save - zoom undo");
    EXPECT_EQ(Order(second), "copy");
    EXPECT_EQ(Named(first, "cut"), cut);
    EXPECT_FALSE(cut->IsVertical());
    EXPECT_EQ(setup->Control(), cut);
    EXPECT_EQ(setup->CurrentToolbar(), &first);
}

TEST_F(CVqQuickToolbarSetupChanges, ANameThatIsTakenGetsANumberUntilTheSessionIsCancelled)
{
    CVqQuickControl* other = Add(second, "open", "Other");
    setup->accept();
    setup->begin();

    setup->move(other, &first, nullptr);
    EXPECT_EQ(Order(first), "open save - zoom undo open2");
    EXPECT_EQ(Named(first, "open2"), other);
    setup->cancel();

    EXPECT_EQ(Named(second, "open"), other);
}

TEST_F(CVqQuickToolbarSetupChanges, CancelGivesTheNameBackToWhatWentThereAndBack)
{
    CVqQuickControl* other = Add(second, "open", "Other");
    setup->accept();
    setup->begin();

    setup->move(other, &first, nullptr);
    setup->move(other, &second, nullptr);
    ASSERT_EQ(Order(second), "cut copy open2");
    setup->cancel();

    EXPECT_EQ(Order(second), "cut copy open");
}

TEST_F(CVqQuickToolbarSetupChanges, AMovedButtonIsShownThereAsItWasHere)
{
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("second"), VQ_TEXT("save"), true, false);
    setup->setShown(Named(first, "undo"), false);

    setup->move(Named(first, "save"), &second, nullptr);
    setup->move(Named(first, "undo"), &second, nullptr);

    EXPECT_EQ(Order(second), "cut copy save (undo)");
}

TEST_F(CVqQuickToolbarSetupChanges, StepsGoOverOneNeighbourAndEndAtTheEnds)
{
    CVqQuickControl* save = Named(first, "save");

    EXPECT_TRUE(setup->step(save, 1, false));
    EXPECT_EQ(Order(first), "open - save zoom undo");
    EXPECT_TRUE(setup->step(save, -1, false));
    EXPECT_TRUE(setup->step(save, -1, false));
    EXPECT_EQ(Order(first), "save open - zoom undo");
    EXPECT_FALSE(setup->step(save, -1, false));
    EXPECT_FALSE(setup->step(Named(first, "undo"), 1, false));
    EXPECT_FALSE(setup->step(nullptr, 1, false));
}

TEST_F(CVqQuickToolbarSetupChanges, StepsOverWhatIsShownPassOverTheHidden)
{
    setup->setShown(Named(first, "save"), false);

    EXPECT_TRUE(setup->step(Named(first, "open"), 1, true));

    EXPECT_EQ(Order(first), "(save) - open zoom undo");
}

// Without a session ------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarSetupChanges, OutsideOfASessionAChangeIsAcceptedAtOnce)
{
    setup->cancel();
    const QSignalSpy accepted(setup.get(), &CVqQuickToolbarSetup::accepted);
    const QPointer<CVqQuickControl> undo = Named(first, "undo");

    setup->setShown(Named(first, "open"), false);
    setup->remove(undo);
    Settle();

    EXPECT_EQ(accepted.size(), 2);
    EXPECT_FALSE(undo);
    EXPECT_EQ(Order(first), "(open) save - zoom");
    setup->begin();
    setup->cancel();
    EXPECT_EQ(Order(first), "(open) save - zoom");
}
