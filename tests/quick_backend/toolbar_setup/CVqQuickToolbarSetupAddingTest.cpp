#include "tests/quick_backend/toolbar_setup/SetupBars.h"

using namespace Qt::StringLiterals;

namespace {

/// What is added to the bars and taken off them.
class CVqQuickToolbarSetupAdding : public SetupSession
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

TEST_F(CVqQuickToolbarSetupAdding, AButtonIsMadeFromAMenuItem)
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

TEST_F(CVqQuickToolbarSetupAdding, TheSameCommandTwiceHasTwoNames)
{
    setup->addCommand(u"Paste"_s, &second, nullptr);
    setup->addCommand(u"Paste"_s, &second, nullptr);
    setup->addCommand(u"Separator"_s, &second, nullptr);

    EXPECT_EQ(Order(second), "cut copy Paste Paste2 Separator2");
}

TEST_F(CVqQuickToolbarSetupAdding, AnAddedButtonIsShownWhateverTheStoreSaid)
{
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("second"), VQ_TEXT("Paste"), true, false);

    setup->addCommand(u"Paste"_s, &second, nullptr);

    EXPECT_EQ(Order(second), "cut copy Paste");
}

TEST_F(CVqQuickToolbarSetupAdding, OnlyWhatTheMenuOffersIsAdded)
{
    CVqQuickButtonToolbar bare(VQ_TEXT("bare"));
    setup->AddToolbar(bare, CVqVariant());

    EXPECT_FALSE(setup->addCommand(u"Unknown"_s, &first, nullptr));
    EXPECT_FALSE(setup->addCommand(u"Paste"_s, &bare, nullptr));
    EXPECT_FALSE(setup->addCommand(u"Paste"_s, nullptr, nullptr));
    EXPECT_FALSE(setup->addCommand(u"Paste"_s, &first, Named(second, "cut")));
}

TEST_F(CVqQuickToolbarSetupAdding, TheRequestDecidesWhatIsOffered)
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

TEST_F(CVqQuickToolbarSetupAdding, SeparatorsComeAndGo)
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

TEST_F(CVqQuickToolbarSetupAdding, WhatIsMadeButNotDrawnByQtQuickIsNotAddedAndDies)
{
    ForeignBar foreign(VQ_TEXT("foreign"));
    setup->AddToolbar(foreign, CVqVariant());

    EXPECT_FALSE(setup->addSeparator(&foreign, nullptr));

    EXPECT_FALSE(foreign.made);
    EXPECT_EQ(Order(foreign), "");
}

TEST_F(CVqQuickToolbarSetupAdding, AGeneralControlIsHiddenInsteadOfRemoved)
{
    EXPECT_TRUE(setup->remove(Named(first, "zoom")));
    EXPECT_FALSE(setup->remove(Named(first, "zoom")));

    EXPECT_EQ(Order(first), "open save - (zoom) undo");
}

TEST_F(CVqQuickToolbarSetupAdding, NothingIsChosenWhenTheChosenControlIsRemoved)
{
    setup->SetControl(Named(first, "save"));

    setup->remove(Named(first, "save"));

    EXPECT_EQ(setup->Control(), nullptr);
}
