#include "tests/quick_backend/toolbar_setup/SetupBars.h"

using namespace Qt::StringLiterals;

namespace {

class CVqQuickToolbarSetupChanges : public SetupSession
{ };

/// A bar whose separators are not made for Qt Quick.
class ForeignBar final : public CVqQuickButtonToolbar
{
public:
    using CVqQuickButtonToolbar::CVqQuickButtonToolbar;

    IVqUIcontrol* CreateSeparator() override
    {
        made = new CVqAbstractControl;
        return made;
    }

    QPointer<CVqAbstractControl> made;
};

bool rename_commands(unsigned id, __vq_hwnd*, CVqStringW& text)
{
    text = VQ_TEXT("Insert");
    return id == 14;
}

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

// Coming and going ---------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarSetupChanges, AButtonIsMadeFromAMenuItem)
{
    CVqQuickControl* open = setup->addCommand(u"FileOpen"_s, &second, Named(second, "copy"));

    ASSERT_TRUE(open);
    EXPECT_EQ(Order(second), "cut FileOpen copy");
    EXPECT_EQ(open->Text(), u"Open"_s);
    EXPECT_EQ(open->Tooltip(), u"Open"_s);
    EXPECT_EQ(open->CommandText(), u"FileOpen"_s);
    EXPECT_EQ(open->ImageIndex(), 5);
    EXPECT_EQ(open->KeyText(), u"Ctrl+O"_s);
}

TEST_F(CVqQuickToolbarSetupChanges, TheSameCommandTwiceHasTwoNames)
{
    setup->addCommand(u"Paste"_s, &second, nullptr);
    setup->addCommand(u"Paste"_s, &second, nullptr);
    setup->addCommand(u"Separator"_s, &second, nullptr);

    EXPECT_EQ(Order(second), "cut copy Paste Paste2 Separator2");
}

TEST_F(CVqQuickToolbarSetupChanges, AnAddedButtonIsShownWhateverTheStoreSaid)
{
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("second"), VQ_TEXT("Paste"), true, false);

    setup->addCommand(u"Paste"_s, &second, nullptr);

    EXPECT_EQ(Order(second), "cut copy Paste");
}

TEST_F(CVqQuickToolbarSetupChanges, OnlyWhatTheMenuOffersIsAdded)
{
    CVqQuickButtonToolbar bare(VQ_TEXT("bare"));
    setup->AddToolbar(bare, CVqVariant());

    EXPECT_FALSE(setup->addCommand(u"Unknown"_s, &first, nullptr));
    EXPECT_FALSE(setup->addCommand(u"Paste"_s, &bare, nullptr));
    EXPECT_FALSE(setup->addCommand(u"Paste"_s, nullptr, nullptr));
    EXPECT_FALSE(setup->addCommand(u"Paste"_s, &first, Named(second, "cut")));
}

TEST_F(CVqQuickToolbarSetupChanges, TheRequestDecidesWhatIsOffered)
{
    CVqVariant factory;
    setup->cancel();
    first.ShowToolbarSetup(0, factory, 0, true, rename_commands);

    EXPECT_FALSE(setup->addCommand(u"Copy"_s, &first, nullptr));
    EXPECT_EQ(setup->addCommand(u"Paste"_s, &first, nullptr)->Text(), u"Insert"_s);

    setup->cancel();
    first.ShowToolbarSetup(0, factory, 0, false, nullptr);
    EXPECT_FALSE(setup->addCommand(u"Paste"_s, &first, nullptr));
}

TEST_F(CVqQuickToolbarSetupChanges, SeparatorsComeAndGo)
{
    CVqQuickControl* separator = setup->addSeparator(&second, Named(second, "copy"));
    Settle();

    EXPECT_EQ(Order(second), "cut - copy");
    EXPECT_TRUE(separator->IsShown());
    EXPECT_TRUE(setup->remove(separator));
    EXPECT_EQ(Order(second), "cut copy");
    EXPECT_FALSE(setup->remove(separator));
    EXPECT_FALSE(setup->addSeparator(&second, separator));
}

TEST_F(CVqQuickToolbarSetupChanges, WhatIsMadeButNotDrawnByQtQuickIsNotAddedAndDies)
{
    ForeignBar foreign(VQ_TEXT("foreign"));
    setup->AddToolbar(foreign, CVqVariant());

    EXPECT_FALSE(setup->addSeparator(&foreign, nullptr));

    EXPECT_FALSE(foreign.made);
    EXPECT_EQ(Order(foreign), "");
}

TEST_F(CVqQuickToolbarSetupChanges, AGeneralControlIsHiddenInsteadOfRemoved)
{
    EXPECT_TRUE(setup->remove(Named(first, "zoom")));
    EXPECT_FALSE(setup->remove(Named(first, "zoom")));

    EXPECT_EQ(Order(first), "open save - (zoom) undo");
}

TEST_F(CVqQuickToolbarSetupChanges, NothingIsChosenWhenTheChosenControlIsRemoved)
{
    setup->SetControl(Named(first, "save"));

    setup->remove(Named(first, "save"));

    EXPECT_EQ(setup->Control(), nullptr);
}

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
