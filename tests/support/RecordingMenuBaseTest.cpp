#include "tests/support/RecordingMenuBase.h"

#include "AbstractGui/CVqMenuItem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace {

CVqMenuItem MakeItem(vq_uint32 id)
{
    CVqMenuItem item;
    item.setId(id);
    return item;
}

}

TEST(RecordingMenuBase, HandlesCountFromOne)
{
    RecordingMenuBase base;

    EXPECT_EQ(base.CreateMenuHandle(), 1u);
    EXPECT_EQ(base.CreateMenuHandle(), 2u);

    EXPECT_THAT(*base.Calls(), ElementsAre("CreateMenuHandle = 1", "CreateMenuHandle = 2"));
}

TEST(RecordingMenuBase, EachCallIsALineWithItsArguments)
{
    RecordingMenuBase base;
    CVqMenuItem root = MakeItem(0);
    CVqMenuItem item = MakeItem(5);
    item.setText(VQ_TEXT("&Open"));

    base.InsertItem(&root, nullptr, &item);
    base.InsertItem(nullptr, &item, nullptr);
    base.UpdateItemText(&item);
    base.UpdateItemState(&item);
    base.EnterMenu(VQ_TEXT('f'));
    base.DestroyItem(&item);

    EXPECT_THAT(*base.Calls(),
                ElementsAre("InsertItem parent 0, position null, item 5 = 0",
                            "InsertItem parent null, position 5, item null = 0", "UpdateItemText 5 \"&Open\"",
                            "UpdateItemState 5 status 1", "EnterMenu 102", "DestroyItem 5"));
}

TEST(RecordingMenuBase, InsertsFailAsTold)
{
    RecordingMenuBase base;
    CVqMenuItem item = MakeItem(5);
    CVqMenuItem other = MakeItem(6);

    base.FailInsertOf(5, -7);
    EXPECT_EQ(base.InsertItem(nullptr, nullptr, &item), -7);
    EXPECT_EQ(base.InsertItem(nullptr, nullptr, &other), 0);

    base.FailInserts(-8);
    EXPECT_EQ(base.InsertItem(nullptr, nullptr, &other), -8);
}

TEST(RecordingMenuBase, CallsOutliveTheObjectAndAreSharedWithDuplicates)
{
    auto base = std::make_unique<RecordingMenuBase>();
    const auto calls = base->Calls();

    const std::unique_ptr<IVqMenuBase> duplicate(base->Duplicate());
    base.reset();
    duplicate->CreateMenuHandle();

    EXPECT_THAT(*calls, ElementsAre("Duplicate", "Delete", "CreateMenuHandle = 1"));
}
