#include "IVqProgressView.h"

#include "tests/support/RecordingProgressView.h"
#include "tests/support/VirtualSlot.h"

#include <gtest/gtest.h>

TEST(IVqProgressView, OperationsKeepTheirSlots)
{
    EXPECT_EQ(VirtualSlot(&IVqProgressView::SetPos), 0u);
    EXPECT_EQ(VirtualSlot(&IVqProgressView::SetLabel), 1u);
    EXPECT_EQ(VirtualSlot(&IVqProgressView::SetTitle), 2u);
    EXPECT_EQ(VirtualSlot(&IVqProgressView::ProcessEvents), 3u);
}

TEST(IVqProgressView, IsDeletedThroughTheInterface)
{
    const auto calls = std::make_shared<RecordingProgressView::Lines>();
    const IVqProgressView* view = new RecordingProgressView(calls);

    delete view;

    EXPECT_EQ(*calls, RecordingProgressView::Lines{"Delete"});
}
