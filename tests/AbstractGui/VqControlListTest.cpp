#include "AbstractGui/VqControlList.h"

#include "AbstractGui/CVqAbstractControl.h"
#include "tests/support/RecordingControl.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

/// A list that holds one control.
struct Held
{
    CVqList list;
    std::unique_ptr<CVqAbstractControl> control = std::make_unique<CVqAbstractControl>();
    CVqList::CVqNode* node = list.Append(static_cast<IVqUIcontrol*>(control.get()));

    Held() { VqHoldControl(list, *control); }
    ~Held() { VqReleaseControl(list, control.get()); }
};

}

TEST(VqControlList, NodeGivesItsControl)
{
    const Held held;

    EXPECT_EQ(VqControlAt(held.list, held.node), held.control.get());
}

TEST(VqControlList, NullNodeAndEmptyNodeGiveNull)
{
    CVqList list;
    const CVqList::CVqNode* empty = list.Append(nullptr);

    EXPECT_EQ(VqControlAt(list, nullptr), nullptr);
    EXPECT_EQ(VqControlAt(list, empty), nullptr);
}

TEST(VqControlList, ControlThatWasReleasedMayDie)
{
    Held held;
    const IVqUIcontrol* control = held.control.get();

    VqReleaseControl(held.list, control);
    held.control.reset();

    VqCheckControl(held.list, control);
}

TEST(VqControlList, ControlOfAnotherListMayDie)
{
    Held held;
    CVqList other;
    const IVqUIcontrol* control = held.control.get();

    held.control.reset();

    VqCheckControl(other, control);
    VqReleaseControl(held.list, control);
}

TEST(VqControlList, DeadControlIsToldInDebugBuilds)
{
#ifdef QT_NO_DEBUG
    GTEST_SKIP() << "assertions are off";
#else
    Held held;
    const IVqUIcontrol* control = held.control.get();
    held.control.reset();

    EXPECT_DEATH(VqCheckControl(held.list, control), "");
    EXPECT_DEATH(VqControlAt(held.list, held.node), "");

    VqReleaseControl(held.list, control);
#endif
}

TEST(VqControlList, IdentifierIsTheAddressOfAName)
{
    const vq_wchar text[] = VQ_TEXT("Open");

    EXPECT_EQ(VqControlName(reinterpret_cast<vq_uint64>(text)), text);
    EXPECT_EQ(VqControlName(0), nullptr);
}

TEST(VqControlList, SeparatorSaysSoWithoutAFailure)
{
    RecordingControl control("line");

    EXPECT_FALSE(VqIsSeparator(control));
    EXPECT_TRUE(VqIsSeparator(control.AnswerSeparator(7)));
    EXPECT_FALSE(VqIsSeparator(control.AnswerSeparator(7, -9)));
}
