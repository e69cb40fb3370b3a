#include "tests/AbstractGui/TestControl.h"

#include <gmock/gmock.h>

#include <ostream>
#include <string>

using testing::IsEmpty;

namespace {

/// What a size callback was given, and what it gives.
struct SizeCall
{
    static int Answer(CVqSizeBase<int>& size, IVqUIcontrol* control, void* data)
    {
        auto* call = static_cast<SizeCall*>(data);
        ++call->count;
        call->control = control;
        call->given = size;
        size = {30, 40};
        return -5; // nobody looks at it
    }

    int count = 0;
    IVqUIcontrol* control = nullptr;
    CVqSizeBase<int> given;
};

class CVqAbstractControlSize : public testing::Test
{
protected:
    TestControl m_control;
};

struct SizeRow
{
    const char* name;
    CVqSizeBase<int> stored;
    int orientation;
    bool asks;
};

void PrintTo(const SizeRow& row, std::ostream* out)
{
    *out << row.name;
}

class CVqAbstractControlEachSize : public testing::TestWithParam<SizeRow>
{
protected:
    CVqAbstractControlEachSize()
    {
        m_control.SetControlSize(GetParam().stored);
        m_control.SetOrientation(static_cast<EOrientation>(GetParam().orientation));
    }

    TestControl m_control;
};

const SizeRow size_rows[] = {
    {"VerticalWithSize", {10, 20}, 1, false},         {"VerticalWithLeastSize", {1, 1}, 1, false},
    {"VerticalWithoutWidth", {0, 20}, 1, true},       {"VerticalWithoutHeight", {10, 0}, 1, true},
    {"VerticalWithNegativeWidth", {-1, 20}, 1, true}, {"VerticalWithNegativeHeight", {10, -1}, 1, true},
    {"VerticalWithoutSize", {0, 0}, 1, true},         {"HorizontalWithSize", {10, 20}, 0, true},
    {"HorizontalWithoutSize", {0, 0}, 0, true},       {"OtherOrientationWithSize", {10, 20}, 2, true},
};

}

TEST_F(CVqAbstractControlSize, SetSizeCallbackKeepsBoth)
{
    EXPECT_EQ(m_control.SetSizeCallback(SizeCall::Answer, this), 0);
    EXPECT_EQ(m_control.m_pSizeCallback, &SizeCall::Answer);
    EXPECT_EQ(m_control.m_pSizeData, this);
}

TEST_F(CVqAbstractControlSize, SetControlSizeKeepsItAndTellsNothing)
{
    EXPECT_EQ(m_control.SetControlSize({10, 20}), 0);

    EXPECT_EQ(m_control.m_size, (CVqSizeBase<int>{10, 20}));
    EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
}

TEST_P(CVqAbstractControlEachSize, AsksTheCallbackUnlessAVerticalOneHasASize)
{
    SizeCall call;
    m_control.SetSizeCallback(SizeCall::Answer, &call);
    CVqSizeBase<int> size{5, 6};

    const int result = m_control.GetControlSize(size, -1);

    EXPECT_EQ(result, 0);
    EXPECT_EQ(call.count, GetParam().asks ? 1 : 0);
    EXPECT_EQ(size, (GetParam().asks ? CVqSizeBase<int>{30, 40} : GetParam().stored));
}

TEST_P(CVqAbstractControlEachSize, WithoutACallbackTheCallersSizeStays)
{
    CVqSizeBase<int> size{5, 6};

    const int result = m_control.GetControlSize(size, -1);

    EXPECT_EQ(result, 0);
    EXPECT_EQ(size, (GetParam().asks ? CVqSizeBase<int>{5, 6} : GetParam().stored));
}

INSTANTIATE_TEST_SUITE_P(Rows, CVqAbstractControlEachSize, testing::ValuesIn(size_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(CVqAbstractControlSize, SizeCallbackGetsTheCallersSizeAndTheControl)
{
    SizeCall call;
    m_control.SetSizeCallback(SizeCall::Answer, &call);
    CVqSizeBase<int> size{5, 6};

    m_control.GetControlSize(size, 0);

    EXPECT_EQ(call.given, (CVqSizeBase<int>{5, 6}));
    EXPECT_EQ(call.control, static_cast<IVqUIcontrol*>(&m_control));
}

TEST_F(CVqAbstractControlSize, SizeCallbackIsAskedEachTime)
{
    SizeCall call;
    m_control.SetSizeCallback(SizeCall::Answer, &call);
    CVqSizeBase<int> size;

    m_control.GetControlSize(size, -1);
    m_control.GetControlSize(size, 1000);

    EXPECT_EQ(call.count, 2);
}

TEST_F(CVqAbstractControlSize, SizeDoesNotDependOnTheZoom)
{
    m_control.SetControlSize({10, 20});
    m_control.SetOrientation(EOrientation::Vertical);
    m_control.m_dZoom = 3.0;
    CVqSizeBase<int> size;

    m_control.GetControlSize(size, -1);

    EXPECT_EQ(size, (CVqSizeBase<int>{10, 20}));
}
