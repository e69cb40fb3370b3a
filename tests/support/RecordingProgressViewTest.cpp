#include "tests/support/RecordingProgressView.h"

#include "system/CVqStringW.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

using Lines = RecordingProgressView::Lines;

TEST(RecordingProgressView, EachCallIsALineWithItsArgument)
{
    const auto calls = std::make_shared<Lines>();
    RecordingProgressView view(calls);

    view.SetPos(4294967295);
    view.SetLabel(CVqStringW(VQ_TEXT("Progress: 50%")));
    view.SetTitle(CVqStringW());
    view.ProcessEvents();

    EXPECT_THAT(
        *calls,
        ElementsAre("SetPos 4294967295", "SetLabel \"Progress: 50%\"", "SetTitle \"\"", "ProcessEvents"));
}

TEST(RecordingProgressView, LinesStandBehindThoseOfOthersAndOutliveTheView)
{
    const auto calls = std::make_shared<Lines>(Lines{"positionChanged"});

    std::make_unique<RecordingProgressView>(calls)->SetPos(1);

    EXPECT_THAT(*calls, ElementsAre("positionChanged", "SetPos 1", "Delete"));
}
