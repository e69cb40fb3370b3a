#include "AbstractGui/VqControlCodes.h"
#include "tests/AbstractGui/FilledControl.h"

#include <gmock/gmock.h>

#include <ostream>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Lines = TestControl::Lines;

constexpr vq_int64 beyond_32_bits = vq_int64(1) << 32;

constexpr unsigned state_codes[]
    = {vq_control_command, vq_control_text, vq_control_tooltip, vq_control_bitmap};
constexpr vq_int64 bad_indices[] = {3, 31, 32, 0xFFFFFFFF, -1, beyond_32_bits + 3};

struct BadIndexRow
{
    unsigned code;
    vq_int64 index;
};

std::vector<BadIndexRow> bad_index_rows()
{
    std::vector<BadIndexRow> rows;
    for (const unsigned code : state_codes)
        for (const vq_int64 index : bad_indices)
            rows.push_back({code, index});
    return rows;
}

std::string bad_index_name(const testing::TestParamInfo<BadIndexRow>& row)
{
    return "Code" + std::to_string(row.param.code) + "Index"
        + std::to_string(row.index % std::size(bad_indices));
}

void PrintTo(const BadIndexRow& row, std::ostream* out)
{
    *out << row.code << " at " << row.index;
}

/// What a caller hands in: a number or a text, whatever the code takes.
class Payload
{
public:
    explicit Payload(unsigned code) : m_is_number(code == vq_control_bitmap) { }

    void* Data() { return m_is_number ? static_cast<void*>(&m_number) : &m_text; }
    bool IsUntouched() const { return m_number == 4711 && m_text == VQ_TEXT("New"); }

private:
    bool m_is_number;
    int m_number = 4711;
    CVqStringW m_text = VQ_TEXT("New");
};

using Operation = int (CVqAbstractControl::*)(unsigned, vq_int64, void*);

struct OperationRow
{
    const char* name;
    Operation operation;
    std::vector<unsigned> unknown;
    std::vector<unsigned> needing_data;
};

void PrintTo(const OperationRow& row, std::ostream* out)
{
    *out << row.name;
}

const OperationRow operation_rows[] = {
    {"Get",
     &CVqAbstractControl::Get,
     {0,   3,   4,    5,    15,   17,   33,   160,  162,  256,       261,
      263, 264, 1535, 1537, 2306, 2307, 2308, 2309, 2310, 0xFFFFFFFF},
     {1, 2, 16, 257, 258, 259, 260, 262, 1536}},
    {"Set",
     &CVqAbstractControl::Set,
     {0, 3, 4, 5, 15, 17, 33, 160, 162, 256, 261, 264, 1536, 2306, 2307, 2308, 2309, 2310, 0xFFFFFFFF},
     {1, 2, 16, 257, 258, 259, 260, 262, 263}},
    {"Command",
     &CVqAbstractControl::Command,
     {0,   2,   6,   16,   33,   160,  162,  257,  258,  259,
      260, 262, 263, 1536, 2306, 2307, 2308, 2309, 2310, 0xFFFFFFFF},
     {1, 4}},
};

class CVqAbstractControlOperation : public testing::TestWithParam<OperationRow>, protected FilledControl
{ };

}

class CVqAbstractControlBadIndex : public testing::TestWithParam<BadIndexRow>, protected FilledControl
{ };

TEST_P(CVqAbstractControlBadIndex, GetGivesItsCodeAndTouchesNothing)
{
    Payload payload(GetParam().code);

    const int result = m_control.Get(GetParam().code, GetParam().index, payload.Data());

    EXPECT_EQ(result, -17);
    EXPECT_TRUE(payload.IsUntouched());
}

TEST_P(CVqAbstractControlBadIndex, SetChangesNothingAndTellsAllTheSame)
{
    const auto before = m_control.Shown();
    Payload payload(GetParam().code);

    const int result = m_control.Set(GetParam().code, GetParam().index, payload.Data());

    EXPECT_EQ(result, 0);
    EXPECT_EQ(m_control.Shown(), before);
    Lines signal;
    if (GetParam().code == vq_control_text)
        signal = {"label"};
    if (GetParam().code == vq_control_bitmap)
        signal = {"bitmap"};
    EXPECT_EQ(m_control.TakeSignals(), signal);
}

INSTANTIATE_TEST_SUITE_P(Rows, CVqAbstractControlBadIndex, testing::ValuesIn(bad_index_rows()),
                         bad_index_name);

TEST(CVqAbstractControlNew, TextOfItsSecondStateIsABadIndex)
{
    TestControl control;
    const auto before = control.Shown();
    CVqStringW text(VQ_TEXT("New"));

    EXPECT_EQ(control.Get(vq_control_text, 1, &text), -17);
    EXPECT_EQ(control.Set(vq_control_text, 1, &text), 0);

    EXPECT_EQ(control.Shown(), before);
    EXPECT_THAT(control.TakeSignals(), ElementsAre("label"));
}

TEST_P(CVqAbstractControlOperation, UnknownCodesFailAndDoNothing)
{
    const auto before = m_control.Shown();
    for (const unsigned code : GetParam().unknown) {
        SCOPED_TRACE(code);
        vq_uint64 data[8] = {};

        EXPECT_EQ((m_control.*GetParam().operation)(code, 0, data), -9);

        EXPECT_THAT(data, testing::Each(0u));
        EXPECT_EQ(m_control.Shown(), before);
        EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
    }
}

TEST_P(CVqAbstractControlOperation, NullDataFailsAndDoesNothing)
{
    const auto before = m_control.Shown();
    for (const unsigned code : GetParam().needing_data) {
        SCOPED_TRACE(code);

        EXPECT_EQ((m_control.*GetParam().operation)(code, 0, nullptr), -9);

        EXPECT_EQ(m_control.Shown(), before);
        EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, CVqAbstractControlOperation, testing::ValuesIn(operation_rows),
                         [](const auto& row) { return std::string(row.param.name); });

class CVqAbstractControlCodes : public testing::Test, protected FilledControl
{ };

TEST_F(CVqAbstractControlCodes, NullDataAtABadIndexGivesWhatTheIndexGives)
{
    EXPECT_EQ(m_control.Get(vq_control_text, 3, nullptr), -17);
    EXPECT_EQ(m_control.Set(vq_control_text, 3, nullptr), 0);
}
