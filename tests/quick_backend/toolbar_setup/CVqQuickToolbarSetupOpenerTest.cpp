#include "tests/quick_backend/toolbar_setup/SetupBars.h"

#include <QQuickWindow>

namespace {

/// Each bar in a window of its own, and an opener in a third one.
class CVqQuickToolbarSetupOpener : public testing::Test, protected SetupBars
{
protected:
    CVqQuickToolbarSetupOpener()
    {
        first.Area()->setParentItem(first_window.contentItem());
        second.Area()->setParentItem(second_window.contentItem());
        opener->setParentItem(opener_window.contentItem());
    }

    ~CVqQuickToolbarSetupOpener() override
    {
        first.Area()->setParentItem(nullptr);
        second.Area()->setParentItem(nullptr);
    }

    void Show(CVqQuickButtonToolbar& bar, QQuickItem* parent)
    {
        CVqVariant factory;
        bar.ShowToolbarSetup(reinterpret_cast<vq_uint64>(parent), factory, 0, true, nullptr);
    }

    QQuickWindow first_window;
    QQuickWindow second_window;
    QQuickWindow opener_window;
    std::unique_ptr<QQuickItem> opener = std::make_unique<QQuickItem>();
};

}

TEST_F(CVqQuickToolbarSetupOpener, IsTheParentThatTheDialogWasAskedWith)
{
    Show(first, opener.get());

    EXPECT_EQ(setup->Opener(), opener.get());
    EXPECT_EQ(setup->Window(), &opener_window);
}

TEST_F(CVqQuickToolbarSetupOpener, WithoutOneTheWindowIsThatOfTheBar)
{
    Show(second, nullptr);

    EXPECT_EQ(setup->Opener(), nullptr);
    EXPECT_EQ(setup->Window(), &second_window);
}

TEST_F(CVqQuickToolbarSetupOpener, ASessionThatWasBegunOtherwiseHasNone)
{
    setup->beginAt(&second, nullptr);
    EXPECT_EQ(setup->Opener(), nullptr);
    EXPECT_EQ(setup->Window(), &second_window);
    setup->cancel();

    setup->SetCurrent(0);
    setup->begin();
    EXPECT_EQ(setup->Opener(), nullptr);
    EXPECT_EQ(setup->Window(), &first_window);
}

TEST_F(CVqQuickToolbarSetupOpener, ABarThatShowsNowhereHasNoWindow)
{
    first.Area()->setParentItem(nullptr);

    Show(first, nullptr);

    EXPECT_TRUE(setup->IsActive());
    EXPECT_EQ(setup->Window(), nullptr);
}

TEST_F(CVqQuickToolbarSetupOpener, GoesWithTheSession)
{
    Show(first, opener.get());

    setup->accept();

    EXPECT_EQ(setup->Opener(), nullptr);
    EXPECT_EQ(setup->Window(), nullptr);
}

TEST_F(CVqQuickToolbarSetupOpener, TheFirstOneStaysForTheSession)
{
    Show(first, opener.get());

    Show(second, second_window.contentItem());

    EXPECT_EQ(setup->Opener(), opener.get());
    EXPECT_EQ(setup->Window(), &opener_window);
    EXPECT_EQ(setup->CurrentToolbar(), &second);
}

TEST_F(CVqQuickToolbarSetupOpener, MayEndBeforeTheSession)
{
    Show(first, opener.get());

    opener.reset();

    EXPECT_EQ(setup->Opener(), nullptr);
    EXPECT_EQ(setup->Window(), &opener_window);
}
