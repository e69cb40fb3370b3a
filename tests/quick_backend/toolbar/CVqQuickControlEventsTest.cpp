#include "quick_backend/toolbar/IVqQuickControlOwner.h"
#include "quick_backend/toolbar/SVqUiEvent.h"
#include "tests/quick_backend/toolbar/CoreBar.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

using EKind = SVqUiEvent::EKind;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::vector<std::string>* g_events = nullptr;

std::string line_of(const char* who, const SVqUiEvent& event)
{
    static constexpr const char* names[] = {"triggered", "drop-down", "context menu", "drag"};
    return std::string(who) + " " + names[int(event.m_kind)];
}

bool take(IVqUIcontrol*, SVqUiEvent& event)
{
    g_events->push_back(line_of("handler", event));
    return true;
}

bool pass_on(IVqUIcontrol* control, SVqUiEvent& event)
{
    take(control, event);
    return false;
}

bool delete_it(IVqUIcontrol* control, SVqUiEvent&)
{
    delete control;
    return false;
}

struct Owner final : IVqQuickControlOwner
{
    void ControlChanged(CVqQuickControl&) override { }
    void ControlEvent(CVqQuickControl&, SVqUiEvent& event) override
    {
        g_events->push_back(line_of("owner", event));
        place = event.m_place;
    }

    QPointF place;
};

class CVqQuickControlEventsTest : public testing::Test
{
protected:
    CVqQuickControlEventsTest()
    {
        g_events = &events;
        button.SetOwner(&owner);
    }
    ~CVqQuickControlEventsTest() override { g_events = nullptr; }

    std::vector<std::string> events;
    Owner owner;
    CVqQuickButton button;
};

}

TEST_F(CVqQuickControlEventsTest, HandsEventsToItsHandlerAndThenToItsOwner)
{
    button.SetHandler(&pass_on);

    button.Send({EKind::Triggered, {}});

    EXPECT_THAT(events, ElementsAre("handler triggered", "owner triggered"));
}

TEST_F(CVqQuickControlEventsTest, KeepsWhatItsHandlerTookFromItsOwner)
{
    button.SetHandler(&take);

    button.Send({EKind::DropDown, {}});

    EXPECT_THAT(events, ElementsAre("handler drop-down"));
}

TEST_F(CVqQuickControlEventsTest, HandsEventsToItsOwnerWithoutAHandler)
{
    button.Send({EKind::Drag, {3, 4}});

    EXPECT_THAT(events, ElementsAre("owner drag"));
    EXPECT_EQ(owner.place, QPointF(3, 4));
}

TEST_F(CVqQuickControlEventsTest, HandsEventsToNobodyWithoutHandlerAndOwner)
{
    button.SetOwner(nullptr);

    button.Send({EKind::Triggered, {}});

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(CVqQuickControlEventsTest, HandsOnOnlyContextMenusWhileDisabled)
{
    button.SetHandler(&pass_on);
    button.Enable(false);

    for (const EKind kind : {EKind::Triggered, EKind::DropDown, EKind::ContextMenu, EKind::Drag})
        button.Send({kind, {}});

    EXPECT_THAT(events, ElementsAre("handler context menu", "owner context menu"));
}

TEST_F(CVqQuickControlEventsTest, TellsItsOwnerNothingWhenItsHandlerDeletedIt)
{
    auto* control = new CVqQuickButton;
    control->SetOwner(&owner);
    control->SetHandler(&delete_it);

    control->Send({EKind::Triggered, {}});

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(CVqQuickControlEventsTest, SendsWhatItsLookAsksForWhenTheEventLoopIsBack)
{
    button.trigger();
    button.openDropDown(1, 2);
    button.openContextMenu(3, 4);
    EXPECT_THAT(events, IsEmpty());

    QCoreApplication::processEvents();

    EXPECT_THAT(events, ElementsAre("owner triggered", "owner drop-down", "owner context menu"));
    EXPECT_EQ(owner.place, QPointF(3, 4));
}

TEST_F(CVqQuickControlEventsTest, SendsNothingOnceItIsDisabledMeanwhile)
{
    button.trigger();
    button.Enable(false);

    QCoreApplication::processEvents();

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(CVqQuickControlEventsTest, SendsNothingOnceItIsGone)
{
    auto control = std::make_unique<CVqQuickButton>();
    control->SetOwner(&owner);
    control->trigger();

    control.reset();
    QCoreApplication::processEvents();

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(CVqQuickControlEventsTest, DeletesItselfWhenTheEventLoopIsBack)
{
    const QPointer<CVqQuickControl> control(new CVqQuickButton);

    control->MarkToDeleteItself();
    EXPECT_TRUE(control);

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(control);
}
