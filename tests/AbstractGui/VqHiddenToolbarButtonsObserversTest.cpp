#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "tests/AbstractGui/HiddenButtonObserver.h"

#include <gmock/gmock.h>

#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// Any change of the stores.
void change()
{
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("Observed"), VQ_TEXT("Any"), true, false);
}

/// A null pointer among the observers for the time of its life.
struct NullObserver
{
    NullObserver() { VQ_SetToolbarButtonAsHiddenCallback(nullptr); }
    NullObserver(const NullObserver&) = delete;
    NullObserver& operator=(const NullObserver&) = delete;
    ~NullObserver() { VQ_RemoveToolbarButtonAsHiddenCallback(nullptr); }
};

/// Asks for the button of which it is told.
class AskingObserver : public SVqToolbarButtonHiddenCallback
{
public:
    AskingObserver() { VQ_SetToolbarButtonAsHiddenCallback(this); }
    AskingObserver(const AskingObserver&) = delete;
    AskingObserver& operator=(const AskingObserver&) = delete;
    ~AskingObserver() override { VQ_RemoveToolbarButtonAsHiddenCallback(this); }

    int ButtonHiddenChanged(const vq_wchar* toolbar, const vq_wchar* button, bool, bool) override
    {
        m_was_hidden = VQ_IsToolbarButtonSetAsHidden(toolbar, button);
        return 0;
    }

    bool m_was_hidden = false;
};

}

TEST(VqHiddenToolbarButtonsObservers, AreToldTheFourValuesAsGiven)
{
    const HiddenButtonObserver observer;

    VQ_SetToolbarButtonAsHidden(VQ_TEXT("Bar#2"), VQ_TEXT("Open"), true, false);
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("Bar#2"), VQ_TEXT("Open"), false, true);

    EXPECT_THAT(observer.m_changes,
                ElementsAre(HiddenButtonChange{VQ_TEXT("Bar#2"), VQ_TEXT("Open"), true, false},
                            HiddenButtonChange{VQ_TEXT("Bar#2"), VQ_TEXT("Open"), false, true}));
}

TEST(VqHiddenToolbarButtonsObservers, AreToldOnceWithANullButtonForAllButtons)
{
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("Told"), VQ_TEXT("Open"), true, false);
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("Told"), VQ_TEXT("Close"), true, false);
    const HiddenButtonObserver observer;

    VQ_SetToolbarButtonAsHidden(VQ_TEXT("Told"), nullptr, false, false);

    EXPECT_THAT(observer.m_changes,
                ElementsAre(HiddenButtonChange{VQ_TEXT("Told"), std::nullopt, false, false}));
}

TEST(VqHiddenToolbarButtonsObservers, AreToldOfASettingThatStandsAlready)
{
    change();
    const HiddenButtonObserver observer;

    change();

    EXPECT_THAT(observer.m_changes, SizeIs(1));
}

TEST(VqHiddenToolbarButtonsObservers, AreToldBehindTheChange)
{
    const AskingObserver observer;

    VQ_SetToolbarButtonAsHidden(VQ_TEXT("Behind"), VQ_TEXT("Open"), true, false);

    EXPECT_TRUE(observer.m_was_hidden);
}

TEST(VqHiddenToolbarButtonsObservers, AreNotToldOfARefusedToolbar)
{
    const HiddenButtonObserver observer;

    VQ_SetToolbarButtonAsHidden(nullptr, VQ_TEXT("Open"), true, false);

    EXPECT_THAT(observer.m_changes, IsEmpty());
}

TEST(VqHiddenToolbarButtonsObservers, AreCalledInTheOrderOfRegistration)
{
    std::vector<const HiddenButtonObserver*> order;
    const HiddenButtonObserver first(&order);
    const HiddenButtonObserver second(&order);
    const HiddenButtonObserver third(&order);

    change();

    EXPECT_THAT(order, ElementsAre(&first, &second, &third));
}

TEST(VqHiddenToolbarButtonsObservers, AreNotAddedTwice)
{
    std::vector<const HiddenButtonObserver*> order;
    HiddenButtonObserver first(&order);
    const HiddenButtonObserver second(&order);

    VQ_SetToolbarButtonAsHiddenCallback(&first);
    change();

    EXPECT_THAT(order, ElementsAre(&first, &second));
}

TEST(VqHiddenToolbarButtonsObservers, AreCalledNoMoreOnceRemoved)
{
    HiddenButtonObserver removed;
    const HiddenButtonObserver staying;

    VQ_RemoveToolbarButtonAsHiddenCallback(&removed);
    change();

    EXPECT_THAT(removed.m_changes, IsEmpty());
    EXPECT_THAT(staying.m_changes, SizeIs(1));
}

TEST(VqHiddenToolbarButtonsObservers, GoToTheEndWhenAddedAgainAfterRemoval)
{
    std::vector<const HiddenButtonObserver*> order;
    HiddenButtonObserver first(&order);
    const HiddenButtonObserver second(&order);

    VQ_RemoveToolbarButtonAsHiddenCallback(&first);
    VQ_SetToolbarButtonAsHiddenCallback(&first);
    change();

    EXPECT_THAT(order, ElementsAre(&second, &first));
}

TEST(VqHiddenToolbarButtonsObservers, RemovalOfAnUnknownOneDoesNothing)
{
    const HiddenButtonObserver observer;
    HiddenButtonObserver unknown;
    VQ_RemoveToolbarButtonAsHiddenCallback(&unknown);

    VQ_RemoveToolbarButtonAsHiddenCallback(&unknown);
    change();

    EXPECT_THAT(observer.m_changes, SizeIs(1));
}

TEST(VqHiddenToolbarButtonsObservers, NullAmongThemIsSkipped)
{
    const HiddenButtonObserver ahead;
    const NullObserver null;
    const HiddenButtonObserver behind;

    change();

    EXPECT_THAT(ahead.m_changes, SizeIs(1));
    EXPECT_THAT(behind.m_changes, SizeIs(1));
}
