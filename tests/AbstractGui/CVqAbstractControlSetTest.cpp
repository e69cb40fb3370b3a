#include "AbstractGui/VqControlCodes.h"
#include "tests/AbstractGui/FilledControl.h"

#include <gmock/gmock.h>

#include <ostream>
#include <string>
#include <variant>

using testing::ElementsAreArray;
using testing::IsEmpty;

namespace {

using Lines = TestControl::Lines;

constexpr vq_int64 beyond_32_bits = vq_int64(1) << 32;

struct SetRow
{
    const char* name;
    unsigned code;
    vq_int64 index;
    std::variant<int, const vq_wchar*> value;
    Lines changes;
    Lines signals;
};

void PrintTo(const SetRow& row, std::ostream* out)
{
    *out << row.name;
}

const SetRow set_rows[] = {
    {"State", vq_control_state, 99, 1, {"state=1"}, {"state", "bitmap", "label"}},
    {"SameState", vq_control_state, 99, 2, {}, {}},
    {"StateAboveTheCount", vq_control_state, 99, 3, {"state=3"}, {"state", "bitmap", "label"}},
    {"NoCheck", vq_control_check, 99, 0, {"flags=4"}, {}},
    {"SameCheck", vq_control_check, 99, 1, {}, {}},
    {"CheckByAnyNumber", vq_control_check, 99, -2, {}, {}},
    {"Value", vq_control_value, 99, 5, {"value=5"}, {}},
    {"NegativeValue", vq_control_value, 99, -1, {"value=4294967295"}, {}},
    {"Command", vq_control_command, 1, VQ_TEXT("New"), {"1.command=New"}, {}},
    {"Text", vq_control_text, 1, VQ_TEXT("New"), {"1.text=New"}, {"label"}},
    {"SameText", vq_control_text, 1, VQ_TEXT("text1"), {}, {"label"}},
    {"Tooltip", vq_control_tooltip, 1, VQ_TEXT("New"), {"1.tooltip=New"}, {}},
    {"Bitmap", vq_control_bitmap, 1, 99, {"1.bitmap=99"}, {"bitmap"}},
    {"SameBitmap", vq_control_bitmap, 1, 11, {}, {"bitmap"}},
    {"NoBitmap", vq_control_bitmap, 1, -1, {"1.bitmap=-1"}, {"bitmap"}},
    {"TextByTheLowBitsOfTheIndex",
     vq_control_text,
     beyond_32_bits,
     VQ_TEXT("New"),
     {"0.text=New"},
     {"label"}},
    {"Name", vq_control_name, 99, VQ_TEXT("New"), {"name=New"}, {}},
    {"Translation", vq_control_translate_tooltip, 99, 1, {"translate=1"}, {}},
    {"TranslationByAnyNumberAboveZero", vq_control_translate_tooltip, 99, 7, {"translate=1"}, {}},
    {"NoTranslation", vq_control_translate_tooltip, 99, 0, {}, {}},
    {"NoTranslationByANegativeNumber", vq_control_translate_tooltip, 99, -1, {}, {}},
};

class CVqAbstractControlSet : public testing::TestWithParam<SetRow>, protected FilledControl
{
protected:
    int Set()
    {
        const SetRow& row = GetParam();
        if (const int* value = std::get_if<int>(&row.value)) {
            int number = *value;
            return m_control.Set(row.code, row.index, &number);
        }
        CVqStringW text(std::get<const vq_wchar*>(row.value));
        return m_control.Set(row.code, row.index, &text);
    }
};

class CVqAbstractControlSetOnce : public testing::Test, protected FilledControl
{ };

}

TEST_P(CVqAbstractControlSet, ChangesThatAloneAndTells)
{
    const auto before = m_control.Shown();

    const int result = Set();

    EXPECT_EQ(result, 0);
    EXPECT_THAT(m_control.ChangesSince(before), ElementsAreArray(GetParam().changes));
    EXPECT_THAT(m_control.TakeSignals(), ElementsAreArray(GetParam().signals));
}

INSTANTIATE_TEST_SUITE_P(Rows, CVqAbstractControlSet, testing::ValuesIn(set_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(CVqAbstractControlSetOnce, CheckLeavesTheOtherFlags)
{
    m_control.m_uiFlags = TestControl::Disabled;
    int on = 1;

    EXPECT_EQ(m_control.Set(vq_control_check, 0, &on), 0);

    EXPECT_EQ(m_control.m_uiFlags, 5u);
    EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
}

TEST_F(CVqAbstractControlSetOnce, TranslationIsTakenBackByZeroAndBelow)
{
    for (int off : {0, -1}) {
        SCOPED_TRACE(off);
        m_control.m_bTranslateTooltip = true;

        EXPECT_EQ(m_control.Set(vq_control_translate_tooltip, 0, &off), 0);

        EXPECT_FALSE(m_control.m_bTranslateTooltip);
    }
}

TEST_F(CVqAbstractControlSetOnce, TextIsThereWhenItsSignalFires)
{
    QString seen;
    QObject::connect(&m_control, &CVqAbstractControl::labelChanged, &m_control,
                     [&] { seen = m_control.label(); });
    CVqStringW text(VQ_TEXT("New"));

    m_control.Set(vq_control_text, 2, &text);

    EXPECT_EQ(seen, QStringLiteral("New"));
}
