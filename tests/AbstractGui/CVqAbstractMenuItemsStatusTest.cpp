#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/AbstractGui/AccelTables.h"
#include "tests/support/TestMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr vq_uint32 unknown = 999;

struct StatusRow
{
    const char* m_name;
    vq_uint32 m_before;
    vq_uint32 m_value;
    vq_uint32 m_after;
};

/// Command 2 and lonely accelerator 9.
class CVqAbstractMenuStatus : public testing::Test
{
protected:
    CVqAbstractMenuStatus()
    {
        m_menu.AppendMenuItem(2, 0, VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT("open"), 0);
        m_menu.AppendLonelyAccel(9, 18, 0x4C, VQ_TEXT("lonely"));
        m_menu.TakeCalls();
    }

    vq_uint32 status(vq_uint32 id) { return m_menu.Item(id)->status(); }
    void set_status(vq_uint32 id, vq_uint32 status) { m_menu.Item(id)->setStatus(status); }

    TestMenu m_menu;
};

class CVqAbstractMenuStatusBits : public CVqAbstractMenuStatus, public testing::WithParamInterface<StatusRow>
{ };

}

TEST_P(CVqAbstractMenuStatusBits, HighByteKeepsAndLowByteSets)
{
    set_status(2, GetParam().m_before);

    EXPECT_EQ(m_menu.SetIdStatus(2, GetParam().m_value), 0);

    EXPECT_EQ(status(2), GetParam().m_after);
}

INSTANTIATE_TEST_SUITE_P(Rows, CVqAbstractMenuStatusBits,
                         testing::Values(StatusRow{"AllLowBitsKept", 0x17, 0xFF01, 0x17},
                                         StatusRow{"AllLowBitsKeptAndNoneAdded", 0x06, 0xFF01, 0x06},
                                         StatusRow{"EmptyHighByteGivesExactlyTwo", 0xFF, 0x0002, 0x02},
                                         StatusRow{"ZeroClearsAll", 0x17, 0x0000, 0x00},
                                         StatusRow{"OneBitKept", 0x03, 0x0204, 0x06},
                                         StatusRow{"KeptBitIsNotSetByTheLowByte", 0x01, 0x0206, 0x04},
                                         StatusRow{"BitsAboveTheLowByteGo", 0x1F03, 0x0001, 0x01},
                                         StatusRow{"ValueBeyondTheHighByteKeepsBitsAboveTheLowByte", 0x1303,
                                                   0x130001, 0x1301}),
                         [](const auto& row) { return std::string(row.param.m_name); });

TEST_F(CVqAbstractMenuStatus, StatusIsReadBack)
{
    vq_uint32 value = 0;

    EXPECT_EQ(m_menu.GetIdStatus(2, value), 0);
    EXPECT_EQ(value, 1u);
    EXPECT_EQ(m_menu.GetIdStatus(unknown, value), -13);
    EXPECT_EQ(m_menu.GetIdStatus(9, value), -13);
}

TEST_F(CVqAbstractMenuStatus, SetStatusTellsTheBackEndAlsoWithoutAChange)
{
    m_menu.SetIdStatus(2, 1);

    EXPECT_THAT(m_menu.TakeCalls(), ElementsAre("UpdateItemState 2 status 1"));
}

TEST_F(CVqAbstractMenuStatus, SetStatusOfAnUnknownIdIsRefused)
{
    EXPECT_EQ(m_menu.SetIdStatus(unknown, 1), -13);
    EXPECT_THAT(m_menu.TakeCalls(), IsEmpty());
}

TEST_F(CVqAbstractMenuStatus, EnableClearsGrayedAndSetsEnabled)
{
    set_status(2, 2 | 4 | 16);

    EXPECT_EQ(m_menu.EnableId(2, true), 0);

    EXPECT_EQ(status(2), 1u | 2u | 16u);
    EXPECT_THAT(m_menu.TakeCalls(), ElementsAre("UpdateItemState 2 status 19"));
}

TEST_F(CVqAbstractMenuStatus, DisableClearsEnabledAndSetsGrayed)
{
    set_status(2, 1 | 2);

    EXPECT_EQ(m_menu.EnableId(2, false), 0);

    EXPECT_EQ(status(2), 2u | 4u);
    EXPECT_THAT(m_menu.TakeCalls(), ElementsAre("UpdateItemState 2 status 6"));
}

TEST_F(CVqAbstractMenuStatus, EnableOfAnUnknownIdIsRefused)
{
    EXPECT_EQ(m_menu.EnableId(unknown, true), -13);
    EXPECT_THAT(m_menu.TakeCalls(), IsEmpty());
}

TEST_F(CVqAbstractMenuStatus, EnableMarksTheKeysOfTheIdInBothTables)
{
    m_menu.SecondTable().AddAccelKey(2, 16, 0x70, 0);
    m_menu.SecondTable().AddAccelKey(9, 16, 0x71, 0);

    m_menu.EnableId(2, false);
    EXPECT_EQ(marks_of(m_menu.MainTable()), (std::vector<bool>{false, true}));
    EXPECT_EQ(marks_of(m_menu.SecondTable()), (std::vector<bool>{false, true}));

    m_menu.EnableId(2, true);
    EXPECT_EQ(marks_of(m_menu.MainTable()), (std::vector<bool>{true, true}));
    EXPECT_EQ(marks_of(m_menu.SecondTable()), (std::vector<bool>{true, true}));
}

TEST_F(CVqAbstractMenuStatus, EnableMarksTheKeysOfAnIdThatTheTreeDoesNotHold)
{
    m_menu.SecondTable().AddAccelKey(unknown, 16, 0x70, 0);

    EXPECT_EQ(m_menu.EnableId(9, false), -13);
    EXPECT_EQ(m_menu.EnableId(unknown, false), -13);

    EXPECT_EQ(marks_of(m_menu.MainTable()), (std::vector<bool>{true, false}));
    EXPECT_EQ(marks_of(m_menu.SecondTable()), std::vector<bool>{false});
}

TEST_F(CVqAbstractMenuStatus, DisabledKeyOfALonelyAccelStillTranslates)
{
    vq_uint64 target = 0;
    vq_uint32 id = 0;

    EXPECT_EQ(m_menu.EnableId(9, false), -13);

    EXPECT_TRUE(m_menu.Translate(0x4C, 2, target, id));
    EXPECT_EQ(id, 9u);
}

TEST_F(CVqAbstractMenuStatus, CheckSetsAndClearsItsBit)
{
    set_status(2, 1 | 4);

    EXPECT_EQ(m_menu.CheckId(2, true), 0);
    EXPECT_EQ(status(2), 1u | 2u | 4u);
    EXPECT_EQ(m_menu.CheckId(2, false), 0);
    EXPECT_EQ(status(2), 1u | 4u);

    EXPECT_THAT(m_menu.TakeCalls(), ElementsAre("UpdateItemState 2 status 7", "UpdateItemState 2 status 5"));
}

TEST_F(CVqAbstractMenuStatus, GraySetsAndClearsItsBit)
{
    set_status(2, 1 | 2);

    EXPECT_EQ(m_menu.GrayId(2, true), 0);
    EXPECT_EQ(status(2), 1u | 2u | 4u);
    EXPECT_EQ(m_menu.GrayId(2, false), 0);
    EXPECT_EQ(status(2), 1u | 2u);

    EXPECT_THAT(m_menu.TakeCalls(), ElementsAre("UpdateItemState 2 status 7", "UpdateItemState 2 status 3"));
}

TEST_F(CVqAbstractMenuStatus, CheckAndGrayOfAnUnknownIdAreRefused)
{
    EXPECT_EQ(m_menu.CheckId(unknown, true), -13);
    EXPECT_EQ(m_menu.GrayId(unknown, true), -13);
}

// Radio groups --------------------------------------------------------------------------------------------

namespace {

/// Commands 11 to 16 under the root, all checked but 12.
class CVqAbstractMenuRadio : public testing::Test
{
protected:
    CVqAbstractMenuRadio()
    {
        for (vq_uint32 id = 11; id <= 16; ++id)
            m_menu.AppendMenuItem(id, 0, VQ_TEXT("Item"), VQ_TEXT(""), id == 12 ? 1 : 1 | 2);
        m_menu.TakeCalls();
    }

    /// The checked identifiers.
    std::string checked()
    {
        std::string ids;
        for (vq_uint32 id = 11; id <= 16; ++id)
            if (m_menu.Item(id)->status() & CVqMenuItem::StatusChecked)
                ids += (ids.empty() ? "" : " ") + std::to_string(id);
        return ids;
    }

    TestMenu m_menu;
};

}

TEST_F(CVqAbstractMenuRadio, ChecksTheIdAndUnchecksTheOthersOfTheRange)
{
    EXPECT_EQ(m_menu.CheckRadioId(13, 12, 14), 0);

    EXPECT_EQ(checked(), "11 13 15 16");
}

TEST_F(CVqAbstractMenuRadio, TellsTheBackEndOfEachInOrder)
{
    m_menu.CheckRadioId(12, 11, 13);

    EXPECT_THAT(m_menu.TakeCalls(),
                ElementsAre("UpdateItemState 11 status 1", "UpdateItemState 12 status 3",
                            "UpdateItemState 13 status 1"));
}

TEST_F(CVqAbstractMenuRadio, UnknownLastIdRunsToTheEndOfTheChain)
{
    m_menu.CheckRadioId(14, 13, unknown);

    EXPECT_EQ(checked(), "11 14");
}

TEST_F(CVqAbstractMenuRadio, LastIdAheadOfTheFirstRunsToTheEndOfTheChain)
{
    m_menu.CheckRadioId(14, 13, 11);

    EXPECT_EQ(checked(), "11 14");
}

TEST_F(CVqAbstractMenuRadio, OneItemAsRange)
{
    m_menu.CheckRadioId(12, 12, 12);

    EXPECT_EQ(checked(), "11 12 13 14 15 16");
}

TEST_F(CVqAbstractMenuRadio, IdOutsideTheRangeUnchecksTheRange)
{
    EXPECT_EQ(m_menu.CheckRadioId(unknown, 12, 15), 0);

    EXPECT_EQ(checked(), "11 16");
}

TEST_F(CVqAbstractMenuRadio, UnknownFirstIdGivesZeroAndChangesNothing)
{
    EXPECT_EQ(m_menu.CheckRadioId(12, unknown, 15), 0);

    EXPECT_EQ(checked(), "11 13 14 15 16");
    EXPECT_THAT(m_menu.TakeCalls(), IsEmpty());
}

TEST_F(CVqAbstractMenuRadio, OtherBitsStay)
{
    m_menu.Item(12)->setStatus(1 | 4 | 16);

    m_menu.CheckRadioId(12, 11, 13);

    EXPECT_EQ(m_menu.Item(12)->status(), 1u | 2u | 4u | 16u);
}
