#include "AbstractGui/IVqUIcontrol.h"

#include "AbstractGui/EToolbarType.h"
#include "tests/AbstractGui/TestControl.h"
#include "tests/support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <type_traits>

TEST(IVqUIcontrol, OperationsKeepTheirSlots)
{
    using LoadLite = int (IVqUIcontrol::*)(CVqLiteVariantR&);
    using LoadTree = int (IVqUIcontrol::*)(const CVqVariant&);
    using SaveLite = int (IVqUIcontrol::*)(CVqLiteVariantW&);
    using SaveTree = int (IVqUIcontrol::*)(CVqVariant&);

    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::SetHandler), 2u); // behind the destructor's two
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::GetHandler), 3u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::CreateUI), 4u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::DestroyUI), 5u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::MarkToDeleteItself), 6u);
    EXPECT_EQ(VirtualSlot<LoadLite>(&IVqUIcontrol::Load), 7u);
    EXPECT_EQ(VirtualSlot<LoadTree>(&IVqUIcontrol::Load), 8u);
    EXPECT_EQ(VirtualSlot<SaveLite>(&IVqUIcontrol::Save), 9u);
    EXPECT_EQ(VirtualSlot<SaveTree>(&IVqUIcontrol::Save), 10u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::Get), 11u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::Set), 12u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::Command), 13u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::Enable), 14u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::IsEnabled), 15u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::SetFlatStyle), 16u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::SetBoldText), 17u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::SetUnderlineText), 18u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::SetTextAlign), 19u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::SetPaintCallback), 20u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::SetSizeCallback), 21u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::GetControlSize), 22u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::SetControlSize), 23u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::SetControlPos), 24u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::SetControlVisibility), 25u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::GetControlVisibility), 26u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::GetWindowHandle), 27u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::SetDesriptionText), 28u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::GetDesriptionText), 29u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::SetOrientation), 30u);
    EXPECT_EQ(VirtualSlot(&IVqUIcontrol::GetControlID), 31u);
}

TEST(IVqUIcontrol, IsDeletedThroughTheInterface)
{
    bool deleted = false;
    auto* control = new TestControl;
    QObject::connect(control, &QObject::destroyed, [&deleted] { deleted = true; });
    const IVqUIcontrol* interface = control;

    delete interface;

    EXPECT_TRUE(deleted);
}

TEST(IVqUIcontrol, HoldsNothing)
{
    EXPECT_EQ(sizeof(IVqUIcontrol), sizeof(void*)); // its table
    EXPECT_TRUE(std::is_abstract_v<IVqUIcontrol>);
}

TEST(EOrientation, HasItsValuesInThirtyTwoBits)
{
    EXPECT_EQ(static_cast<int>(EOrientation::Horizontal), 0);
    EXPECT_EQ(static_cast<int>(EOrientation::Vertical), 1);
    EXPECT_EQ(sizeof(EOrientation), 4u);
}

TEST(EToolbarType, HasItsValuesInThirtyTwoBits)
{
    EXPECT_EQ(static_cast<int>(EToolbarType::Main), 0);
    EXPECT_EQ(static_cast<int>(EToolbarType::Hosted), 2);
    EXPECT_EQ(static_cast<int>(EToolbarType::Fixed), 3);
    EXPECT_EQ(static_cast<int>(EToolbarType::InPicker), 5);
    EXPECT_EQ(sizeof(EToolbarType), 4u);
}
