#include "AbstractGui/VqControlCodes.h"
#include "tests/AbstractGui/FilledControl.h"

#include <gmock/gmock.h>

#include <ostream>
#include <string>

namespace {

constexpr vq_int64 beyond_32_bits = vq_int64(1) << 32;

template <class Row>
std::string row_name(const testing::TestParamInfo<Row>& row)
{
    return row.param.name;
}

struct GetNumberRow
{
    const char* name;
    unsigned code;
    vq_int64 index;
    int number;
};

void PrintTo(const GetNumberRow& row, std::ostream* out)
{
    *out << row.name;
}

const GetNumberRow get_number_rows[] = {
    {"State", vq_control_state, 0, 2},
    {"StateWhateverTheIndex", vq_control_state, 99, 2},
    {"CheckWithoutTheOtherFlags", vq_control_check, 0, 1},
    {"CheckWhateverTheIndex", vq_control_check, 99, 1},
    {"Value", vq_control_value, 0, 77},
    {"ValueWhateverTheIndex", vq_control_value, 99, 77},
    {"FirstBitmap", vq_control_bitmap, 0, 10},
    {"LastBitmap", vq_control_bitmap, 2, 12},
    {"BitmapByTheLowBitsOfTheIndex", vq_control_bitmap, beyond_32_bits + 1, 11},
    {"Separator", vq_control_separator, 0, 0},
    {"SeparatorWhateverTheIndex", vq_control_separator, 99, 0},
};

struct GetTextRow
{
    const char* name;
    unsigned code;
    vq_int64 index;
    const char* text;
};

void PrintTo(const GetTextRow& row, std::ostream* out)
{
    *out << row.name;
}

const GetTextRow get_text_rows[] = {
    {"FirstCommand", vq_control_command, 0, "command0"},
    {"LastCommand", vq_control_command, 2, "command2"},
    {"FirstText", vq_control_text, 0, "text0"},
    {"LastText", vq_control_text, 2, "text2"},
    {"FirstTooltip", vq_control_tooltip, 0, "tooltip0"},
    {"LastTooltip", vq_control_tooltip, 2, "tooltip2"},
    {"TextByTheLowBitsOfTheIndex", vq_control_text, beyond_32_bits + 1, "text1"},
    {"Name", vq_control_name, 0, "name"},
    {"NameWhateverTheIndex", vq_control_name, 99, "name"},
};

}

class CVqAbstractControlGetNumber : public testing::TestWithParam<GetNumberRow>, protected FilledControl
{ };

TEST_P(CVqAbstractControlGetNumber, GivesIt)
{
    const auto before = m_control.Shown();
    int number = 4711;

    const int result = m_control.Get(GetParam().code, GetParam().index, &number);

    EXPECT_EQ(result, 0);
    EXPECT_EQ(number, GetParam().number);
    EXPECT_EQ(m_control.Shown(), before);
}

INSTANTIATE_TEST_SUITE_P(Rows, CVqAbstractControlGetNumber, testing::ValuesIn(get_number_rows),
                         row_name<GetNumberRow>);

class CVqAbstractControlGetText : public testing::TestWithParam<GetTextRow>, protected FilledControl
{ };

TEST_P(CVqAbstractControlGetText, GivesIt)
{
    const auto before = m_control.Shown();
    CVqStringW text(VQ_TEXT("old"));

    const int result = m_control.Get(GetParam().code, GetParam().index, &text);

    EXPECT_EQ(result, 0);
    EXPECT_EQ(TestMenu::Plain(text), GetParam().text);
    EXPECT_EQ(m_control.Shown(), before);
}

INSTANTIATE_TEST_SUITE_P(Rows, CVqAbstractControlGetText, testing::ValuesIn(get_text_rows),
                         row_name<GetTextRow>);

TEST(CVqAbstractControlGet, CheckOfAnUncheckedOneIsZero)
{
    TestControl control;
    control.m_uiFlags = ~TestControl::Checked;
    int check = 4711;

    EXPECT_EQ(control.Get(vq_control_check, 0, &check), 0);
    EXPECT_EQ(check, 0);
}

TEST(CVqAbstractControlGet, NewControlIsNoSeparator)
{
    TestControl control;
    int value = 4711;

    EXPECT_EQ(control.Get(vq_control_separator, 0, &value), 0);
    EXPECT_EQ(value, 0);
}
