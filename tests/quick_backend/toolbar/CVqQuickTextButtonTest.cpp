#include "quick_backend/toolbar/CVqQuickTextButton.h"

#include "tests/quick_backend/toolbar/CoreBar.h"

#include <gtest/gtest.h>

TEST(CVqQuickTextButtonTest, IsATextButton)
{
    const CVqQuickTextButton button;

    EXPECT_EQ(button.GetKind(), CVqQuickControl::TextButton);
    EXPECT_EQ(button.type(), CVqQuickControl::TextButton);
}

TEST(CVqQuickTextButtonTest, ShowsItsTextBesideItsImage)
{
    CVqQuickTextButton button;
    SetText(button, vq_control_text, "Open");
    SetInt(button, vq_control_bitmap, 3);

    EXPECT_TRUE(button.IsTextBesideImage());
    EXPECT_TRUE(button.ShowsText());
    EXPECT_TRUE(button.ShowsImage());
}

TEST(CVqQuickTextButtonTest, ShowsItsTextWithoutAnImage)
{
    CVqQuickTextButton button;
    SetText(button, vq_control_text, "Open");

    EXPECT_TRUE(button.ShowsText());
    EXPECT_FALSE(button.ShowsImage());
}
