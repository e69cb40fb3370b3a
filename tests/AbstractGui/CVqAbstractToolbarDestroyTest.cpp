#include "tests/support/TestToolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

using testing::ElementsAre;

// What the toolbar still holds while it destroys a control.

namespace {

/// Writes down the order of its toolbar when its widget is destroyed, and whether the toolbar finds it.
class WatchingControl final : public RecordingControl
{
public:
    WatchingControl(std::string name, TestToolbar& bar)
        : RecordingControl(std::move(name), bar.m_calls), m_bar(bar)
    { }

    void DestroyUI() override
    {
        const bool is_known = m_bar.GetControl(GetControlID()) == this;
        Record(".DestroyUI in \"" + m_bar.Order() + "\", " + (is_known ? "known" : "unknown"));
        Record(std::string(".Layout ") + (m_bar.m_bLayoutDirty ? "dirty" : "clean"));
    }

private:
    TestToolbar& m_bar;
};

/// "a" on the toolbar and the watching "b" in the picker.
struct WatchedBar
{
    TestToolbar bar{EToolbarType::Main};
    RecordingControl& a = bar.Add("a");
    WatchingControl* b = new WatchingControl("b", bar);

    WatchedBar()
    {
        vq_uint64 id = 0;
        bar.AddControl(*b, id);
        bar.SetBoundary(*b);
        bar.m_bLayoutDirty = false;
        bar.TakeCalls();
    }
};

}

TEST(CVqAbstractToolbarDestroy, RemovedControlIsStillInTheListButNoLongerInTheMap)
{
    WatchedBar watched;
    const std::unique_ptr<RecordingControl> removed(watched.b);

    watched.bar.RemoveControl(*watched.b);

    EXPECT_THAT(
        watched.bar.TakeCalls(),
        ElementsAre("picker.Set 2306 picker", "b.DestroyUI in \"a b |picker\", unknown", "b.Layout clean"));
}

TEST(CVqAbstractToolbarDestroy, RemovingAllTakesPickerAndBoundaryAwayFirstAndClearsTheMapLast)
{
    WatchedBar watched;

    watched.bar.RemoveAllControls();

    EXPECT_THAT(watched.bar.TakeCalls(),
                ElementsAre("a.DestroyUI", "a.Delete", "b.DestroyUI in \"b\", known", "b.Layout clean",
                            "b.Delete", "picker.Set 2306 picker"));
}

TEST(CVqAbstractToolbarDestroy, DestroyUiTakesTheBoundaryAwayFirstAndClearsTheMapLast)
{
    WatchedBar watched;

    watched.bar.DestroyUI();

    EXPECT_THAT(watched.bar.TakeCalls(),
                ElementsAre("a.DestroyUI", "a.Delete", "b.DestroyUI in \"b picker\", known", "b.Layout clean",
                            "b.Delete", "picker.DestroyUI", "picker.Delete"));
}
