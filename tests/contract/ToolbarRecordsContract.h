#pragma once

#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqVariant.h"
#include "tests/contract/ToolbarContractFixture.h"

#include <gtest/gtest.h>

/// A stored toolbar comes back.
template <typename Traits>
class ToolbarRecordsContract : public ToolbarContractFixture<Traits>
{ };

TYPED_TEST_SUITE_P(ToolbarRecordsContract);

TYPED_TEST_P(ToolbarRecordsContract, ASavedBarComesBackInItsOrder)
{
    const auto ids = this->Fill();
    this->Bar().SetButtonVisibility(ids[1], false);
    CVqVariant tree;
    CVqLiteVariantR stream;
    this->Bar().Save(tree, VQ_TEXT("bar"));
    this->Bar().Save(stream);

    this->Bar().AddButton(VQ_TEXT("gone with the load"));
    EXPECT_EQ(this->Bar().Load(tree, nullptr), 0);
    EXPECT_EQ(this->SettledOrder(), "open (save) - zoom");

    this->Bar().RemoveAllControls();
    EXPECT_EQ(this->Bar().Load(stream), 0);
    EXPECT_EQ(this->SettledOrder(), "open (save) - zoom");
}

TYPED_TEST_P(ToolbarRecordsContract, ATreeOfALoadedBarEqualsTheOneItCameFrom)
{
    this->Fill();
    this->Bar().AddTextButton(VQ_TEXT("text"));
    CVqVariant saved;
    CVqVariant again;
    this->Bar().Save(saved, nullptr);

    this->Bar().Load(saved, nullptr);
    this->Bar().Save(again, nullptr);

    EXPECT_TRUE(CVqAbstractButtonToolbar::IsEqual(saved, again));
}

TYPED_TEST_P(ToolbarRecordsContract, ALoadedButtonRespectsTheStoreOfHiddenButtons)
{
    this->Fill();
    CVqVariant tree;
    this->Bar().Save(tree, nullptr);
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("bar"), VQ_TEXT("save"), true, false);

    this->Bar().Load(tree, nullptr);

    EXPECT_EQ(this->SettledOrder(), "open (save) - zoom");
}

REGISTER_TYPED_TEST_SUITE_P(ToolbarRecordsContract, ASavedBarComesBackInItsOrder,
                            ATreeOfALoadedBarEqualsTheOneItCameFrom,
                            ALoadedButtonRespectsTheStoreOfHiddenButtons);
