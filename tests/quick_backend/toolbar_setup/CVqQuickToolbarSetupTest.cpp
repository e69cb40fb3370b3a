#include "tests/quick_backend/toolbar_setup/SetupBars.h"

using testing::ElementsAre;
using testing::IsEmpty;
using namespace Qt::StringLiterals;

namespace {

class CVqQuickToolbarSetupTest : public testing::Test, protected SetupBars
{ };

bool refuse_all(unsigned, __vq_hwnd*, CVqStringW&)
{
    return false;
}

}

// The bars -----------------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarSetupTest, KnowsItsBarsByTheirTitles)
{
    EXPECT_THAT(setup->Toolbars(), ElementsAre(&first, &second));
    EXPECT_THAT(setup->Titles(), ElementsAre(u"Main"_s, u"second#2"_s));
    EXPECT_EQ(setup->CurrentToolbar(), &first);
}

TEST_F(CVqQuickToolbarSetupTest, ABarMayGoInASession)
{
    auto third = std::make_unique<CVqQuickButtonToolbar>(VQ_TEXT("third"));
    setup->AddToolbar(*third, CVqVariant());
    setup->begin();
    setup->SetCurrent(2);
    setup->move(Named(first, "save"), third.get(), nullptr);

    third.reset();

    EXPECT_THAT(setup->Toolbars(), ElementsAre(&first, &second));
    EXPECT_EQ(setup->Current(), 1);
    setup->cancel();
    EXPECT_EQ(Order(first), "open - zoom undo");
}

TEST_F(CVqQuickToolbarSetupTest, ABarThatComesInASessionTakesPartInIt)
{
    setup->begin();
    CVqQuickButtonToolbar third(VQ_TEXT("third"));
    setup->AddToolbar(third, CVqVariant());

    setup->move(Named(first, "save"), &third, nullptr);
    EXPECT_TRUE(third.IsToolbarDragDropEnabled());
    setup->cancel();

    EXPECT_EQ(Order(first), "open save - zoom undo");
    EXPECT_EQ(Order(third), "");
}

TEST_F(CVqQuickToolbarSetupTest, WithoutABarNothingBegins)
{
    CVqQuickToolbarSetup empty;

    empty.begin();

    EXPECT_FALSE(empty.IsActive());
    EXPECT_EQ(empty.Current(), -1);
    EXPECT_EQ(empty.CurrentToolbar(), nullptr);
}

// What is chosen -----------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarSetupTest, AChosenControlBringsItsBar)
{
    const QSignalSpy changes(setup.get(), &CVqQuickToolbarSetup::controlChanged);

    setup->SetControl(Named(second, "copy"));

    EXPECT_EQ(setup->CurrentToolbar(), &second);
    EXPECT_EQ(setup->Control(), Named(second, "copy"));
    EXPECT_EQ(changes.size(), 1);
}

TEST_F(CVqQuickToolbarSetupTest, AnotherBarHasNothingChosen)
{
    setup->SetControl(Named(second, "copy"));

    setup->SetCurrent(0);

    EXPECT_EQ(setup->Control(), nullptr);
}

TEST_F(CVqQuickToolbarSetupTest, ThereIsNoBarBeyondTheRange)
{
    setup->SetCurrent(2);
    setup->SetCurrent(-1);

    EXPECT_EQ(setup->Current(), 0);
}

TEST_F(CVqQuickToolbarSetupTest, TheChosenBarStaysChosenWhenOneInFrontOfItEnds)
{
    auto front = std::make_unique<CVqQuickButtonToolbar>(VQ_TEXT("front"));
    CVqQuickToolbarSetup three;
    three.AddToolbar(*front, CVqVariant());
    three.AddToolbar(first, CVqVariant());
    three.AddToolbar(second, CVqVariant());
    three.SetControl(Named(first, "save"));

    front.reset();

    EXPECT_EQ(three.CurrentToolbar(), &first);
    EXPECT_EQ(three.Control(), Named(first, "save"));
}

// The session --------------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarSetupTest, ButtonsAreDraggedInASessionAndNotAfterwards)
{
    second.EnableToolbarDragDrop(true);
    setup->begin();
    EXPECT_TRUE(first.IsToolbarDragDropEnabled());

    setup->accept();

    EXPECT_FALSE(first.IsToolbarDragDropEnabled());
    EXPECT_TRUE(second.IsToolbarDragDropEnabled());
}

TEST_F(CVqQuickToolbarSetupTest, TellsWhenASessionBeginsAndHowItEnds)
{
    const QSignalSpy active(setup.get(), &CVqQuickToolbarSetup::activeChanged);
    const QSignalSpy accepted(setup.get(), &CVqQuickToolbarSetup::accepted);
    const QSignalSpy cancelled(setup.get(), &CVqQuickToolbarSetup::cancelled);

    setup->begin();
    setup->begin();
    setup->accept();
    setup->accept();
    setup->begin();
    setup->cancel();
    setup->cancel();

    EXPECT_EQ(active.size(), 4);
    EXPECT_EQ(accepted.size(), 1);
    EXPECT_EQ(cancelled.size(), 1);
}

TEST_F(CVqQuickToolbarSetupTest, BeginsAtABarAndAControl)
{
    setup->beginAt(&second, Named(second, "copy"));

    EXPECT_TRUE(setup->IsActive());
    EXPECT_EQ(setup->CurrentToolbar(), &second);
    EXPECT_EQ(setup->Control(), Named(second, "copy"));
    EXPECT_TRUE(setup->AreCommandsOffered());
}

TEST_F(CVqQuickToolbarSetupTest, BeginsWhenABarIsAskedForItsDialog)
{
    CVqVariant factory;
    first.Save(factory, nullptr);
    first.RemoveButton(first.FindButton(VQ_TEXT("undo")));

    first.ShowToolbarSetup(0, factory, first.FindButton(VQ_TEXT("save")), false, refuse_all);

    EXPECT_TRUE(setup->IsActive());
    EXPECT_EQ(setup->Control(), Named(first, "save"));
    EXPECT_FALSE(setup->AreCommandsOffered());
    EXPECT_EQ(setup->Ask(), &refuse_all);
    setup->reset();
    EXPECT_EQ(Order(first), "open save - zoom undo");
}

TEST_F(CVqQuickToolbarSetupTest, AnEmptyRecordStandsForWhatTheBarHeldWhenItWasAdded)
{
    CVqVariant factory;
    first.RemoveButton(first.FindButton(VQ_TEXT("undo")));

    first.ShowToolbarSetup(0, factory, 0, true, nullptr);
    setup->reset();

    EXPECT_EQ(Order(first), "open save - zoom undo");
}

TEST_F(CVqQuickToolbarSetupTest, TheEndOfTheSetupCancels)
{
    const std::string before = Everything();
    setup->begin();
    setup->remove(Named(first, "open"));

    setup.reset();

    EXPECT_EQ(Everything(), before);
}

TEST_F(CVqQuickToolbarSetupTest, CancelGivesBackTheVeryControlsAfterEachKindOfChange)
{
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("first"), VQ_TEXT("open"), true, false);
    Settle();
    const std::string before = Everything();
    setup->begin();
    setup->setShown(Named(first, "open"), true);
    setup->setShown(Named(second, "cut"), false);
    setup->move(Named(first, "undo"), &second, Named(second, "cut"));
    setup->move(Named(second, "copy"), &first, nullptr);
    setup->move(Named(first, "zoom"), &second, nullptr);
    setup->addCommand(u"Paste"_s, &first, nullptr);
    setup->addSeparator(&second, Named(second, "cut"));
    setup->remove(Named(first, "save"));
    setup->remove(At(first, 1));
    Settle();
    ASSERT_NE(Everything(), before);

    setup->cancel();

    EXPECT_EQ(Everything(), before);
    Settle();
    EXPECT_EQ(Everything(), before);
}

TEST_F(CVqQuickToolbarSetupTest, CancelLeavesABarAloneWhoseOrderIsAsItWas)
{
    setup->begin();
    const QQuickItem* item = Named(first, "open")->Item();
    setup->move(Named(second, "cut"), &second, nullptr);

    setup->cancel();

    EXPECT_EQ(Named(first, "open")->Item(), item);
}

TEST_F(CVqQuickToolbarSetupTest, WhatWasAddedDiesWithACancelledSession)
{
    setup->begin();
    const QPointer<CVqQuickControl> paste = setup->addCommand(u"Paste"_s, &first, nullptr);
    const QPointer<CVqQuickControl> separator = setup->addSeparator(&first, nullptr);
    setup->remove(separator);

    setup->cancel();
    Settle();

    EXPECT_FALSE(paste);
    EXPECT_FALSE(separator);
}

TEST_F(CVqQuickToolbarSetupTest, WhatWasRemovedLivesUntilTheSessionIsAccepted)
{
    setup->begin();
    const QPointer<CVqQuickControl> open = Named(first, "open");
    setup->remove(open);
    Settle();
    EXPECT_TRUE(open);

    setup->accept();
    Settle();

    EXPECT_FALSE(open);
    EXPECT_EQ(Order(first), "save - zoom undo");
}

TEST_F(CVqQuickToolbarSetupTest, AcceptedChangesAreNotUndoneByTheNextSession)
{
    setup->begin();
    setup->setShown(Named(first, "open"), false);
    setup->move(Named(second, "cut"), &first, nullptr);
    setup->accept();

    setup->begin();
    setup->cancel();

    EXPECT_EQ(Order(first), "(open) save - zoom undo cut");
    EXPECT_EQ(Order(second), "copy");
}

TEST_F(CVqQuickToolbarSetupTest, AControlThatTheApplicationDeletedMeanwhileIsLeftOut)
{
    setup->begin();
    setup->move(Named(first, "open"), &first, nullptr);
    first.RemoveButton(first.FindButton(VQ_TEXT("save")));
    Settle();

    setup->cancel();

    EXPECT_EQ(Order(first), "open - zoom undo");
}

TEST_F(CVqQuickToolbarSetupTest, AGeneralControlKeepsItsItemAllTheWay)
{
    const QPointer<QQuickItem> item = zoom_item;
    setup->begin();
    setup->move(Named(first, "zoom"), &second, nullptr);
    EXPECT_EQ(item->parentItem(), Named(second, "zoom")->Item());
    setup->reset();
    EXPECT_EQ(item->parentItem(), Named(first, "zoom")->Item());
    setup->move(Named(first, "zoom"), &first, At(first, 0));

    setup->cancel();

    ASSERT_TRUE(item);
    EXPECT_EQ(item->parentItem(), Named(first, "zoom")->Item());
}
