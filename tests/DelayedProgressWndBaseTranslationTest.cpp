#include "DelayedProgressWndBase.h"
#include "tests/RecordedProgressWnd.h"
#include "tests/support/ScopedCatalogue.h"

#include <gtest/gtest.h>

namespace {

/// At position 2 of 4 the time left is the time gone.
struct LabelRow
{
    const char* name;
    int flags;
    double elapsed;
    const char* german;
    const char* japanese;
};

void PrintTo(const LabelRow& row, std::ostream* out)
{
    *out << row.name;
}

std::string name_of(const testing::TestParamInfo<LabelRow>& info)
{
    return info.param.name;
}

class TranslatedLabels : public testing::TestWithParam<LabelRow>
{
protected:
    static std::string Label()
    {
        RecordedProgressWnd window(VQ_TEXT("Copy"), 4, 0, false, GetParam().flags);
        window.MakeView();
        window.Clock().Set(GetParam().elapsed);
        window.SetPos(2);
        return window.Label();
    }
};

}

TEST_P(TranslatedLabels, ShowInGerman)
{
    const ScopedCatalogue german(QStringLiteral(ARBOR_CATALOGUES "/arbor_de"));

    EXPECT_EQ(Label(), GetParam().german);
}

TEST_P(TranslatedLabels, ShowInJapanese)
{
    const ScopedCatalogue japanese(QStringLiteral(ARBOR_CATALOGUES "/arbor_ja"));

    EXPECT_EQ(Label(), GetParam().japanese);
}

INSTANTIATE_TEST_SUITE_P(
    CVqDelayedProgressWndBase, TranslatedLabels,
    testing::Values(
        LabelRow{"Percent", 4, 0, "\"Fortschritt: 50\u00a0%\"", "\"進行状況: 50%\""},
        LabelRow{"PercentWithDecimals", 4 + 32, 0, "\"Fortschritt: 50.00\u00a0%\"", "\"進行状況: 50.00%\""},
        LabelRow{"Hours", 1, 7200000, "\"Verbleibende Zeit: 2 Stunde(n)\"", "\"残り時間: 2 時間\""},
        LabelRow{"Minutes", 1, 120000, "\"Verbleibende Zeit: 2 Minute(n)\"", "\"残り時間: 2 分\""},
        LabelRow{"Seconds", 1, 3000, "\"Verbleibende Zeit: 3 Sekunden\"", "\"残り時間: 3 秒\""},
        LabelRow{"Last", 1, 0, "\"Wird abgeschlossen ...\"", "\"完了処理中...\""},
        LabelRow{"Both", 1 + 4, 3000, "\"Fortschritt: 50\u00a0% - Verbleibende Zeit: 3 Sekunden\"",
                 "\"進行状況: 50% - 残り時間: 3 秒\""}),
    name_of);
