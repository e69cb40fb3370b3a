#include "tests/support/RecordingControl.h"

#include "AbstractGui/VqControlCodes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

TEST(RecordingControl, EachChangeIsALineWithItsArguments)
{
    auto calls = std::make_shared<RecordingControl::Lines>();
    RecordingControl control("open", calls);
    int flag = 1;
    double zoom = 1.5;
    CVqStringW text(VQ_TEXT("Open"));

    control.Set(vq_control_enlarge, 0, &flag);
    control.Set(vq_control_zoom, 0, &zoom);
    control.Set(vq_control_text, 2, &text);
    control.Set(vq_control_name, 0, &text);
    control.CreateUI(7);
    control.SetControlSize({10, 20});
    control.SetOrientation(EOrientation::Vertical);
    control.DestroyUI();

    EXPECT_THAT(*calls,
                ElementsAre("open.Set 160 1", "open.Set 162 1.5", "open.Set 258 state 2 \"Open\"",
                            "open.Set 262 \"Open\"", "Open.CreateUI 7 = 1", "Open.SetControlSize 10x20",
                            "Open.SetOrientation 1", "Open.DestroyUI"));
}

TEST(RecordingControl, DeletionIsALineThatOutlivesTheControl)
{
    auto calls = std::make_shared<RecordingControl::Lines>();
    auto* control = new RecordingControl("open", calls);

    control->MarkToDeleteItself();

    EXPECT_THAT(*calls, ElementsAre("open.MarkToDeleteItself", "open.Delete"));
}

TEST(RecordingControl, AnswersAreTheOnesThatItWasTold)
{
    RecordingControl control("open");
    control.AnswerHandle(0).AnswerSeparator(1, -7).AnswerStaysLast(5).Sized(3, 4);
    int separator = 0;
    int stays_last = 0;
    CVqSizeBase<int> size;

    EXPECT_EQ(control.Get(vq_control_separator, 0, &separator), -7);
    EXPECT_EQ(control.Get(vq_control_stays_last, 0, &stays_last), 0);
    EXPECT_EQ(control.GetControlSize(size, -1), 0);

    EXPECT_EQ(control.CreateUI(7), 0u);
    EXPECT_EQ(separator, 1);
    EXPECT_EQ(stays_last, 5);
    EXPECT_EQ(size, (CVqSizeBase<int>{3, 4}));
    EXPECT_EQ(control.SizeValue(), -1);
}

TEST(RecordingControl, PickerTellsControlsByTheirNames)
{
    auto calls = std::make_shared<RecordingControl::Lines>();
    RecordingPicker picker("picker", calls);
    RecordingControl control("open", calls);
    CVqList list;
    CVqList::CVqNode* node = list.Append(static_cast<IVqUIcontrol*>(&control));

    picker.Set(vq_picker_list, 0, &list);
    picker.Set(vq_picker_boundary, 0, node);
    picker.Set(vq_picker_boundary, 0, nullptr);
    picker.Command(vq_picker_take, 0, static_cast<IVqUIcontrol*>(&control));

    EXPECT_THAT(*calls,
                ElementsAre("picker.Set 2309", "picker.Set 2306 open", "picker.Set 2306 null",
                            "picker.Command 2308 open"));
}
