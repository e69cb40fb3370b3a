#include "DelayedProgressWndBase.h"
#include "tests/RecordedProgressWnd.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Lines = RecordedProgressWnd::Lines;

/// A window, its abort flag, and what its callbacks were called with.
struct SWatched
{
    explicit SWatched(int flags = 0) : window(flags) { }

    RecordedProgressWnd window;
    bool abort = false;
    Lines lines;
};

SWatched* g_watched = nullptr;

/// The callbacks are plain functions, and that of aborting gets nothing but its flag.
class CancelCallbacks : public testing::Test
{
protected:
    CancelCallbacks() { g_watched = &m_watched; }
    ~CancelCallbacks() override { g_watched = nullptr; }

    static void OnCancel(void* data)
    {
        const char* cancelled = g_watched->window.m_bCanceled ? "cancelled" : "running";
        g_watched->lines.push_back(std::string("cancel ") + (data == g_watched ? "own" : "no") + " data, "
                                   + cancelled);
    }

    static void OnAbort(bool* data)
    {
        g_watched->lines.push_back(data == &g_watched->abort ? "abort own flag" : "abort no flag");
        if (data)
            *data = true;
    }

    int PressCancel()
    {
        return RecordedProgressWnd::CancelProgress(
            static_cast<RecordedProgressWnd::Base*>(&m_watched.window));
    }

    SWatched m_watched;
    RecordedProgressWnd& m_window = m_watched.window;
};

/// The user cancels while events are let through.
class CancellingView : public RecordingProgressView
{
public:
    explicit CancellingView(RecordedProgressWnd& window)
        : RecordingProgressView(window.Calls()), m_window(window)
    { }

    void ProcessEvents() override { m_window.CancelProgress(); }

private:
    RecordedProgressWnd& m_window;
};

}

TEST_F(CancelCallbacks, AreCalledInOrderWithTheirDataOnceCancelled)
{
    m_window.SetCustomAbortCallback(&OnAbort, &m_watched.abort);
    m_window.SetCustomCancelCallback(&OnCancel, &m_watched);

    EXPECT_EQ(PressCancel(), 0);

    EXPECT_THAT(m_watched.lines, ElementsAre("cancel own data, cancelled", "abort own flag"));
    EXPECT_TRUE(m_watched.abort);
}

TEST_F(CancelCallbacks, AreCalledOnEachPress)
{
    m_window.SetCustomCancelCallback(&OnCancel, &m_watched);

    PressCancel();
    PressCancel();

    EXPECT_EQ(m_watched.lines.size(), 2u);
}

TEST_F(CancelCallbacks, MayHaveNoData)
{
    m_window.SetCustomCancelCallback(&OnCancel, nullptr);
    m_window.SetCustomAbortCallback(&OnAbort, nullptr);

    PressCancel();

    EXPECT_THAT(m_watched.lines, ElementsAre("cancel no data, cancelled", "abort no flag"));
}

TEST_F(CancelCallbacks, OfCancellingMayStandAlone)
{
    m_window.SetCustomCancelCallback(&OnCancel, &m_watched);

    PressCancel();

    EXPECT_THAT(m_watched.lines, ElementsAre("cancel own data, cancelled"));
}

TEST_F(CancelCallbacks, OfAbortingMayStandAlone)
{
    m_window.SetCustomAbortCallback(&OnAbort, &m_watched.abort);

    PressCancel();

    EXPECT_THAT(m_watched.lines, ElementsAre("abort own flag"));
}

TEST_F(CancelCallbacks, AreTakenBackByNull)
{
    m_window.SetCustomCancelCallback(&OnCancel, &m_watched);
    m_window.SetCustomAbortCallback(&OnAbort, &m_watched.abort);

    m_window.SetCustomCancelCallback(nullptr, &m_watched);
    m_window.SetCustomAbortCallback(nullptr, &m_watched.abort);
    EXPECT_EQ(PressCancel(), 0);

    EXPECT_TRUE(m_window.m_bCanceled);
    EXPECT_THAT(m_watched.lines, IsEmpty());
    EXPECT_FALSE(m_watched.abort);
}

TEST_F(CancelCallbacks, AreNotCalledByTheMember)
{
    m_window.SetCustomCancelCallback(&OnCancel, &m_watched);
    m_window.SetCustomAbortCallback(&OnAbort, &m_watched.abort);

    m_window.CancelProgress();

    EXPECT_TRUE(m_window.m_bCanceled);
    EXPECT_THAT(m_watched.lines, IsEmpty());
    EXPECT_FALSE(m_watched.abort);
}

TEST_F(CancelCallbacks, AreNotCalledBySettingThem)
{
    m_window.SetCustomCancelCallback(&OnCancel, &m_watched);
    m_window.SetCustomAbortCallback(&OnAbort, &m_watched.abort);

    EXPECT_FALSE(m_window.m_bCanceled);
    EXPECT_THAT(m_watched.lines, IsEmpty());
}

TEST(CVqDelayedProgressWndBaseCancel, CancellingTellsTheViewNothing)
{
    RecordedProgressWnd window(7);
    window.MakeView();

    window.CancelProgress();
    RecordedProgressWnd::CancelProgress(static_cast<RecordedProgressWnd::Base*>(&window));

    EXPECT_THAT(*window.Calls(), IsEmpty());
}

TEST(CVqDelayedProgressWndBaseCancel, CheckLetsEventsThroughAndTellsTheState)
{
    RecordedProgressWnd window(0);
    window.MakeView();

    EXPECT_FALSE(window.CheckCanceled());
    window.CancelProgress();
    EXPECT_TRUE(window.CheckCanceled());

    EXPECT_THAT(*window.Calls(), ElementsAre("ProcessEvents", "ProcessEvents"));
}

TEST(CVqDelayedProgressWndBaseCancel, CheckLetsNoEventsThroughWithFlag16)
{
    RecordedProgressWnd window(16);
    window.MakeView();
    window.CancelProgress();

    EXPECT_TRUE(window.CheckCanceled());

    EXPECT_THAT(*window.Calls(), IsEmpty());
}

TEST(CVqDelayedProgressWndBaseCancel, CheckWithoutAViewTellsTheState)
{
    RecordedProgressWnd window(0);

    EXPECT_FALSE(window.CheckCanceled());
    window.CancelProgress();
    EXPECT_TRUE(window.CheckCanceled());
}

TEST(CVqDelayedProgressWndBaseCancel, CheckTellsWhatTheEventsHaveJustDone)
{
    RecordedProgressWnd window(0);
    window.m_pView = new CancellingView(window);

    EXPECT_TRUE(window.CheckCanceled());
}

TEST(CVqDelayedProgressWndBaseCancel, PositionsGoOnAfterCancelling)
{
    RecordedProgressWnd window(0);
    window.MakeView();
    window.CancelProgress();

    window.SetPos(5);

    EXPECT_THAT(*window.Calls(), ElementsAre("positionChanged 5", "SetPos 5"));
    EXPECT_TRUE(window.m_bCanceled);
}
