#include "AbstractGui/IVqMenuBase.h"

#include "tests/support/RecordingMenuBase.h"
#include "tests/support/VirtualSlot.h"

#include <gtest/gtest.h>

TEST(IVqMenuBase, OperationsKeepTheirSlots)
{
    EXPECT_EQ(VirtualSlot(&IVqMenuBase::Duplicate), 0u);
    EXPECT_EQ(VirtualSlot(&IVqMenuBase::Reserved2), 1u);
    EXPECT_EQ(VirtualSlot(&IVqMenuBase::EnterMenu), 2u);
    EXPECT_EQ(VirtualSlot(&IVqMenuBase::Reserved4), 3u);
    EXPECT_EQ(VirtualSlot(&IVqMenuBase::Reserved5), 4u);
    EXPECT_EQ(VirtualSlot(&IVqMenuBase::CreateMenuHandle), 5u);
    EXPECT_EQ(VirtualSlot(&IVqMenuBase::InsertItem), 6u);
    EXPECT_EQ(VirtualSlot(&IVqMenuBase::DestroyItem), 7u);
    EXPECT_EQ(VirtualSlot(&IVqMenuBase::UpdateItemText), 8u);
    EXPECT_EQ(VirtualSlot(&IVqMenuBase::Reserved10), 9u);
    EXPECT_EQ(VirtualSlot(&IVqMenuBase::UpdateItemState), 10u);
    EXPECT_EQ(VirtualSlot(&IVqMenuBase::Reserved12), 11u);
    EXPECT_EQ(VirtualSlot(&IVqMenuBase::Reserved13), 12u);
    EXPECT_EQ(VirtualSlot(&IVqMenuBase::Reserved14), 13u);
}

TEST(IVqMenuBase, ReservedOperationsDoNothing)
{
    RecordingMenuBase base;

    base.Reserved2();
    base.Reserved4();
    base.Reserved5();
    base.Reserved10();
    base.Reserved12();
    base.Reserved13();
    base.Reserved14();

    EXPECT_TRUE(base.Calls()->empty());
}

TEST(IVqMenuBase, IsDeletedThroughTheInterface)
{
    auto* recording = new RecordingMenuBase;
    const auto calls = recording->Calls();
    const IVqMenuBase* base = recording;

    delete base;

    EXPECT_EQ(*calls, RecordingMenuBase::Lines{"Delete"});
}
