#include "AbstractGui/VqControlCodes.h"

#include <gtest/gtest.h>

// Other modules send the numbers.

TEST(VqControlCodes, OfEveryControlHaveTheirNumbers)
{
    EXPECT_EQ(vq_control_state, 1u);
    EXPECT_EQ(vq_control_check, 2u);
    EXPECT_EQ(vq_control_value, 16u);
    EXPECT_EQ(vq_control_command, 257u);
    EXPECT_EQ(vq_control_text, 258u);
    EXPECT_EQ(vq_control_tooltip, 259u);
    EXPECT_EQ(vq_control_bitmap, 260u);
    EXPECT_EQ(vq_control_name, 262u);
    EXPECT_EQ(vq_control_translate_tooltip, 263u);
    EXPECT_EQ(vq_control_separator, 1536u);
}

TEST(VqControlCodes, OfConcreteControlsHaveTheirNumbers)
{
    EXPECT_EQ(vq_control_state_count, 4u);
    EXPECT_EQ(vq_control_stays_last, 33u);
    EXPECT_EQ(vq_control_enlarge, 160u);
    EXPECT_EQ(vq_control_zoom, 162u);
}

TEST(VqControlCodes, OfThePickerHaveTheirNumbers)
{
    EXPECT_EQ(vq_picker_boundary, 2306u);
    EXPECT_EQ(vq_picker_callback, 2307u);
    EXPECT_EQ(vq_picker_take, 2308u);
    EXPECT_EQ(vq_picker_list, 2309u);
    EXPECT_EQ(vq_picker_map, 2310u);
}

TEST(VqControlCodes, OfCommandsHaveTheirNumbers)
{
    EXPECT_EQ(vq_control_read_state, 1u);
    EXPECT_EQ(vq_control_delete_state, 3u);
    EXPECT_EQ(vq_control_write_state, 4u);
    EXPECT_EQ(vq_control_clear_states, 5u);
}
