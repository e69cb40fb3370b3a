#include "quick_backend/toolbar/SVqUiEvent.h"
#include "tests/quick_backend/toolbar/ToolbarFixture.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

using EKind = SVqUiEvent::EKind;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::vector<std::string> g_told;
CVqQuickToolbar* g_bar = nullptr;

bool note(IVqUIcontrol*, SVqUiEvent&)
{
    g_told.emplace_back("callback");
    return false;
}

bool note_and_take(IVqUIcontrol* control, SVqUiEvent& event)
{
    note(control, event);
    return true;
}

bool remove_and_delete(IVqUIcontrol* control, SVqUiEvent&)
{
    g_bar->RemoveControl(*control);
    delete control;
    return false;
}

bool destroy_bar(IVqUIcontrol*, SVqUiEvent&)
{
    g_bar->DestroyUI();
    return false;
}

class CVqQuickToolbarEventsTest : public ToolbarFixture
{
protected:
    CVqQuickToolbarEventsTest()
    {
        g_told.clear();
        g_bar = &bar.toolbar;
    }

    void NoteEvents()
    {
        bar.toolbar.SetEventFunction([](CVqQuickControl& control, SVqUiEvent&) {
            g_told.push_back("toolbar " + control.Name().toStdString());
        });
    }
};

}

TEST_F(CVqQuickToolbarEventsTest, HandsEventsToItsCallbackAndThenToItsFunction)
{
    NoteEvents();
    bar.toolbar.SetCallback(&note, nullptr);

    a.Send({EKind::Triggered, {}});

    EXPECT_THAT(g_told, ElementsAre("callback", "toolbar a"));
}

TEST_F(CVqQuickToolbarEventsTest, KeepsWhatItsCallbackTookFromItsFunction)
{
    NoteEvents();
    bar.toolbar.SetCallback(&note_and_take, nullptr);

    a.Send({EKind::Triggered, {}});

    EXPECT_THAT(g_told, ElementsAre("callback"));
}

TEST_F(CVqQuickToolbarEventsTest, HearsOfControlsInThePickerAndOfThePicker)
{
    NoteEvents();
    bar.Stretch(150);

    b.Send({EKind::Triggered, {}});
    CoreBar::Name(bar.picker(), "picker");
    bar.picker().Send({EKind::ContextMenu, {}});

    EXPECT_THAT(g_told, ElementsAre("toolbar b", "toolbar picker"));
}

TEST_F(CVqQuickToolbarEventsTest, NeedsNobodyWhoHearsOfEvents)
{
    bar.toolbar.SetEventFunction({});

    a.Send({EKind::Triggered, {}});
}

TEST_F(CVqQuickToolbarEventsTest, LetsItsCallbackDeleteTheControl)
{
    NoteEvents();
    bar.toolbar.SetCallback(&remove_and_delete, nullptr);

    a.Send({EKind::Triggered, {}});
    bar.toolbar.Layout();

    EXPECT_THAT(g_told, IsEmpty());
    EXPECT_EQ(bar.Lies(), "b c |");
}

TEST_F(CVqQuickToolbarEventsTest, LetsItsCallbackDestroyTheToolbar)
{
    NoteEvents();
    bar.toolbar.SetCallback(&destroy_bar, nullptr);

    a.Send({EKind::Triggered, {}});

    EXPECT_THAT(g_told, IsEmpty());
    EXPECT_EQ(bar.toolbar.Area(), nullptr);
}

TEST_F(CVqQuickToolbarEventsTest, LetsItsFunctionDestroyTheToolbar)
{
    bar.toolbar.SetEventFunction([this](CVqQuickControl&, SVqUiEvent&) { bar.toolbar.DestroyUI(); });

    a.Send({EKind::Triggered, {}});

    EXPECT_EQ(bar.toolbar.Area(), nullptr);
}

TEST_F(CVqQuickToolbarEventsTest, HearsNothingFromAControlThatWasRemoved)
{
    NoteEvents();
    bar.toolbar.RemoveControl(a);
    const std::unique_ptr<CVqQuickControl> owned(&a);

    a.Send({EKind::Triggered, {}});

    EXPECT_THAT(g_told, IsEmpty());
}
