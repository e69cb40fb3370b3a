#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar/CVqQuickPicker.h"
#include "tests/quick_backend/toolbar/QuickBarFixture.h"

#include <QQuickWindow>

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

std::vector<std::string> g_calls;
bool g_taken = false;                      // what the callbacks answer
CVqQuickButtonToolbar* g_doomed = nullptr; // deleted in the callback

bool handle(IVqUIcontrol*, SVqUiEvent&)
{
    g_calls.emplace_back("handler");
    return g_taken;
}

bool hear(IVqUIcontrol*, SVqUiEvent&)
{
    g_calls.emplace_back("toolbar");
    return false;
}

bool call_back(SVqUiEvent&)
{
    g_calls.emplace_back("callback");
    return g_taken;
}

bool end_the_bar(SVqUiEvent&)
{
    delete g_doomed;
    return false;
}

class CVqQuickButtonToolbarEventsTest : public QuickBarFixture
{
protected:
    CVqQuickButtonToolbarEventsTest()
    {
        g_calls.clear();
        g_taken = false;
        menu.AppendPopup(1, 0, VQ_TEXT("&File"));
        menu.AppendMenuItem(2, 1, VQ_TEXT("&Open"), VQ_TEXT("FileOpen"), 0);
        menu.SetCmdHandler([](vq_uint32 id) { g_calls.push_back("menu " + std::to_string(id)); });
        QObject::connect(&bar, &CVqQuickButtonToolbar::triggered, &bar, [](const QString& command) {
            g_calls.push_back("triggered " + command.toStdString());
        });
    }

    CVqQuickMenu menu;
};

}

// Triggered --------------------------------------------------------------------------------------------

TEST_F(CVqQuickButtonToolbarEventsTest, EachIsAskedInOrderUntilTheMenuTakesIt)
{
    const vq_uint64 id = Add(VQ_TEXT("open"), VQ_TEXT("FileOpen"));
    Control(id).SetHandler(handle);
    bar.Toolbar().SetCallback(hear, nullptr);
    bar.SetCallbackFunc(call_back, nullptr);
    bar.SetMenu(&menu);

    Trigger(id);

    EXPECT_THAT(g_calls, ElementsAre("handler", "toolbar", "callback", "menu 2"));
}

TEST_F(CVqQuickButtonToolbarEventsTest, AHandlerTakesItBeforeAllOthers)
{
    const vq_uint64 id = Add(VQ_TEXT("open"), VQ_TEXT("FileOpen"));
    Control(id).SetHandler(handle);
    bar.SetCallbackFunc(call_back, nullptr);
    bar.SetMenu(&menu);
    g_taken = true;

    Trigger(id);

    EXPECT_THAT(g_calls, ElementsAre("handler"));
}

TEST_F(CVqQuickButtonToolbarEventsTest, TheCallbackTakesItBeforeTheMenu)
{
    const vq_uint64 id = Add(VQ_TEXT("open"), VQ_TEXT("FileOpen"));
    bar.SetCallbackFunc(call_back, nullptr);
    bar.SetMenu(&menu);
    g_taken = true;

    Trigger(id);

    EXPECT_THAT(g_calls, ElementsAre("callback"));
}

TEST_F(CVqQuickButtonToolbarEventsTest, ACommandThatTheMenuDoesNotHaveIsTold)
{
    const vq_uint64 id = Add(VQ_TEXT("other"), VQ_TEXT("Other"));
    bar.SetMenu(&menu);

    Trigger(id);

    EXPECT_THAT(g_calls, ElementsAre("triggered Other"));
}

TEST_F(CVqQuickButtonToolbarEventsTest, WithoutAMenuEachCommandIsTold)
{
    Trigger(Add(VQ_TEXT("open"), VQ_TEXT("FileOpen")));

    EXPECT_THAT(g_calls, ElementsAre("triggered FileOpen"));
}

TEST_F(CVqQuickButtonToolbarEventsTest, TheCommandIsThatOfTheCurrentState)
{
    const vq_uint64 id = Add(VQ_TEXT("tool"), VQ_TEXT("Pan"));
    bar.SetStatesCountOnButton(id, 2);
    bar.SetCommandOnButton(id, 1, VQ_TEXT("FileOpen"));
    bar.SetMenu(&menu);

    Trigger(id);
    Control(id).setState(1);
    Trigger(id);

    EXPECT_THAT(g_calls, ElementsAre("triggered Pan", "menu 2"));
}

TEST_F(CVqQuickButtonToolbarEventsTest, ADisabledItemDoesNotRun)
{
    const vq_uint64 id = Add(VQ_TEXT("open"), VQ_TEXT("FileOpen"));
    bar.SetMenu(&menu);
    menu.EnableId(2, false);

    Trigger(id);
    bar.Enable(id, true); // by mistake: the menu has the last word
    Trigger(id);

    EXPECT_THAT(g_calls, ElementsAre());
}

TEST_F(CVqQuickButtonToolbarEventsTest, ACallbackMayEndTheToolbar)
{
    g_doomed = new CVqQuickButtonToolbar(VQ_TEXT("doomed"));
    const vq_uint64 id = g_doomed->AddButton(VQ_TEXT("end"));
    g_doomed->SetCallbackFunc(end_the_bar, nullptr);
    const QPointer<CVqQuickButtonToolbar> doomed(g_doomed);

    static_cast<CVqQuickControl*>(g_doomed->ControlFromId(id))->Send({});

    EXPECT_TRUE(doomed.isNull());
}

TEST_F(CVqQuickButtonToolbarEventsTest, AMenuItemMayTakeItsButtonAway)
{
    const vq_uint64 id = Add(VQ_TEXT("open"), VQ_TEXT("FileOpen"));
    bar.SetMenu(&menu);
    menu.SetCmdHandler([&](vq_uint32) { bar.RemoveButton(id); });

    Trigger(id);

    EXPECT_EQ(bar.GetButtonsCount(), 0);
}

// Drop-down --------------------------------------------------------------------------------------------

TEST_F(CVqQuickButtonToolbarEventsTest, AnArrowOpensThePopupAtItsPlaceOnTheDesktop)
{
    const vq_uint64 id = Add(VQ_TEXT("recent"));
    vq_uint32 popup = 1;
    QQuickWindow window;
    window.setPosition(100, 50);
    bar.Area()->setParentItem(window.contentItem());
    bar.Set(id, vq_control_value, 0, &popup);
    bar.SetMenu(&menu);
    bar.Toolbar().Layout();
    QSignalSpy opened(&menu, &CVqQuickMenu::contextMenuRequested);

    Send(id, SVqUiEvent::EKind::DropDown, {12, 34});

    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened[0][0].value<CVqQuickMenuRows*>(), menu.Rows()->submenuAt(0));
    EXPECT_EQ(opened[0][1].toInt(), 112);
    EXPECT_EQ(opened[0][2].toInt(), 84);
    bar.Area()->setParentItem(&root);
}

TEST_F(CVqQuickButtonToolbarEventsTest, AnArrowWithoutAPopupOrAMenuOpensNothing)
{
    const vq_uint64 id = Add(VQ_TEXT("open"));
    const QSignalSpy opened(&menu, &CVqQuickMenu::contextMenuRequested);
    vq_uint32 popup = 1;

    bar.SetMenu(&menu);
    Send(id, SVqUiEvent::EKind::DropDown);
    bar.SetMenu(nullptr);
    bar.Set(id, vq_control_value, 0, &popup);
    Send(id, SVqUiEvent::EKind::DropDown);

    EXPECT_EQ(opened.size(), 0);
}

// Context menu -----------------------------------------------------------------------------------------

TEST_F(CVqQuickButtonToolbarEventsTest, AContextMenuIsRequestedForItsControl)
{
    const vq_uint64 id = Add(VQ_TEXT("open"));
    QSignalSpy requested(&bar, &CVqQuickButtonToolbar::contextMenuRequested);

    Send(id, SVqUiEvent::EKind::ContextMenu, {3, 4});

    ASSERT_EQ(requested.size(), 1);
    EXPECT_EQ(requested[0][0].value<CVqQuickControl*>(), &Control(id));
    EXPECT_EQ(requested[0][1].toReal(), 3);
    EXPECT_EQ(requested[0][2].toReal(), 4);
}

TEST_F(CVqQuickButtonToolbarEventsTest, ThePickerIsNoControlOfAContextMenu)
{
    QSignalSpy requested(&bar, &CVqQuickButtonToolbar::contextMenuRequested);

    bar.Toolbar().Picker()->Send({SVqUiEvent::EKind::ContextMenu, {}});

    ASSERT_EQ(requested.size(), 1);
    EXPECT_EQ(requested[0][0].value<CVqQuickControl*>(), nullptr);
}

TEST_F(CVqQuickButtonToolbarEventsTest, ThePickerRunsNothing)
{
    bar.SetCallbackFunc(call_back, nullptr);

    bar.Toolbar().Picker()->Send({});

    EXPECT_THAT(g_calls, ElementsAre());
}

// Drag -------------------------------------------------------------------------------------------------

TEST_F(CVqQuickButtonToolbarEventsTest, ADragIsRequestedWhileDragAndDropIsEnabled)
{
    const vq_uint64 id = Add(VQ_TEXT("open"));
    QSignalSpy requested(&bar, &CVqQuickButtonToolbar::dragRequested);

    Send(id, SVqUiEvent::EKind::Drag, {5, 6});
    EXPECT_EQ(requested.size(), 0);

    bar.EnableToolbarDragDrop(true);
    Send(id, SVqUiEvent::EKind::Drag, {5, 6});
    ASSERT_EQ(requested.size(), 1);
    EXPECT_EQ(requested[0][0].value<CVqQuickControl*>(), &Control(id));
    EXPECT_EQ(requested[0][1].toReal(), 5);
    EXPECT_EQ(requested[0][2].toReal(), 6);
}
