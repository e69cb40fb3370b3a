#include "tests/quick_backend/toolbar/CoreBar.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

namespace {

class CVqQuickControlFrameTest : public testing::Test
{
protected:
    CVqQuickButton button;
};

}

// Sizes -------------------------------------------------------------------------------------------------

TEST_F(CVqQuickControlFrameTest, WantsItsOwnSizeByItself)
{
    SetInt(button, vq_control_bitmap, 1);

    EXPECT_EQ(WantedSize(button), QSize(34, 34));
}

TEST_F(CVqQuickControlFrameTest, WantsAStoredSizeOnlyWhenVertical)
{
    button.SetControlSize({50, 60});
    EXPECT_EQ(WantedSize(button), QSize(34, 34));

    button.SetOrientation(EOrientation::Vertical);

    EXPECT_EQ(WantedSize(button), QSize(50, 60));
}

TEST_F(CVqQuickControlFrameTest, WantsItsOwnSizeAgainWhenASideIsZero)
{
    button.SetOrientation(EOrientation::Vertical);
    button.SetControlSize({50, 60});

    button.SetControlSize({0, 60});

    EXPECT_EQ(WantedSize(button), QSize(34, 34));
}

TEST_F(CVqQuickControlFrameTest, AsksTheSizeCallback)
{
    CVqSizeBase<int> wanted{70, 80};
    const auto answer = [](CVqSizeBase<int>& size, IVqUIcontrol*, void* data) {
        size = *static_cast<CVqSizeBase<int>*>(data);
        return 0;
    };

    button.SetSizeCallback(answer, &wanted);

    EXPECT_EQ(WantedSize(button), QSize(70, 80));
}

TEST_F(CVqQuickControlFrameTest, LetsASizeCallbackChangeOneSideOfItsOwnSize)
{
    const auto widen = [](CVqSizeBase<int>& size, IVqUIcontrol*, void*) {
        size.m_iWidth += 100;
        return -1;
    };
    button.SetSizeCallback(widen, nullptr);

    EXPECT_EQ(WantedSize(button), QSize(134, 34));
}

// The item ----------------------------------------------------------------------------------------------

TEST_F(CVqQuickControlFrameTest, HasNoItemBeforeItIsCreated)
{
    EXPECT_EQ(button.Item(), nullptr);
    EXPECT_EQ(button.GetWindowHandle(), 0U);
    EXPECT_EQ(button.SetControlPos({1, 2, 3, 4}), 0);
}

TEST_F(CVqQuickControlFrameTest, HangsItsItemBelowTheParent)
{
    QQuickItem parent;
    const QSignalSpy told(&button, &CVqQuickControl::itemChanged);

    const vq_uint64 handle = button.CreateUI(reinterpret_cast<vq_uint64>(&parent));

    EXPECT_EQ(handle, reinterpret_cast<vq_uint64>(button.Item()));
    EXPECT_EQ(button.GetWindowHandle(), handle);
    EXPECT_EQ(button.Item()->parentItem(), &parent);
    EXPECT_EQ(told.count(), 1);
}

TEST_F(CVqQuickControlFrameTest, PlacesItsItem)
{
    button.CreateUI(0);

    EXPECT_EQ(button.SetControlPos({10, 20, 110, 50}), 0);

    EXPECT_EQ(PlaceOf(button), QRectF(10, 20, 100, 30));
}

TEST_F(CVqQuickControlFrameTest, EndsItsItem)
{
    button.CreateUI(0);
    const QPointer<QQuickItem> item(button.Item());
    const QSignalSpy told(&button, &CVqQuickControl::itemChanged);

    button.DestroyUI();
    button.DestroyUI();

    EXPECT_FALSE(item);
    EXPECT_EQ(button.GetWindowHandle(), 0U);
    EXPECT_EQ(told.count(), 1);
}

TEST_F(CVqQuickControlFrameTest, PutsANewItemInThePlaceOfTheOldOne)
{
    button.CreateUI(0);
    const QPointer<QQuickItem> first(button.Item());

    button.CreateUI(0);

    EXPECT_FALSE(first);
    EXPECT_TRUE(button.Item());
}

TEST_F(CVqQuickControlFrameTest, TakesItsItemAlongWhenItIsDeleted)
{
    auto control = std::make_unique<CVqQuickButton>();
    control->CreateUI(0);
    const QPointer<QQuickItem> item(control->Item());

    control.reset();

    EXPECT_FALSE(item);
}

TEST_F(CVqQuickControlFrameTest, OutlivesAnItemThatSomebodyElseDeletes)
{
    button.CreateUI(0);

    delete button.Item();

    EXPECT_EQ(button.GetWindowHandle(), 0U);
    EXPECT_EQ(button.SetControlPos({1, 2, 3, 4}), 0);
}
