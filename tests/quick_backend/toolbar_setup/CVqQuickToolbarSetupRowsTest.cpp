#include "quick_backend/toolbar_setup/CVqQuickToolbarSetupRows.h"

#include "tests/quick_backend/toolbar_setup/SetupBars.h"

#include <QAbstractItemModelTester>

using namespace Qt::StringLiterals;

namespace {

class CVqQuickToolbarSetupRowsTest : public SetupSession
{
protected:
    CVqQuickToolbarSetupRowsTest()
    {
        rows.SetSetup(setup.get());
        rows.SetToolbar(&first);
    }

    QVariant Data(int row, int role) { return rows.data(rows.index(row), role); }

    CVqQuickToolbarSetupRows rows;
    QAbstractItemModelTester tester{&rows, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

}

TEST_F(CVqQuickToolbarSetupRowsTest, TellWhatEachControlIs)
{
    CVqQuickControl* save = Named(first, "save");
    save->SetKeyText(u"Ctrl+S"_s);

    EXPECT_EQ(rows.Count(), 5);
    EXPECT_EQ(Data(1, CVqQuickToolbarSetupRows::NameRole), u"save"_s);
    EXPECT_EQ(Data(1, CVqQuickToolbarSetupRows::LabelRole), u"save"_s);
    EXPECT_EQ(Data(1, CVqQuickToolbarSetupRows::ImageIndexRole), -1);
    EXPECT_EQ(Data(1, CVqQuickToolbarSetupRows::KeyTextRole), u"Ctrl+S"_s);
    EXPECT_EQ(Data(1, CVqQuickToolbarSetupRows::ShownRole), true);
    EXPECT_EQ(Data(1, CVqQuickToolbarSetupRows::SeparatorRole), false);
    EXPECT_EQ(Data(1, CVqQuickToolbarSetupRows::GeneralRole), false);
    EXPECT_EQ(Data(1, CVqQuickToolbarSetupRows::ControlRole).value<CVqQuickControl*>(), save);
    EXPECT_EQ(Data(2, CVqQuickToolbarSetupRows::SeparatorRole), true);
    EXPECT_EQ(Data(2, CVqQuickToolbarSetupRows::LabelRole), QString());
    EXPECT_EQ(Data(3, CVqQuickToolbarSetupRows::GeneralRole), true);
}

TEST_F(CVqQuickToolbarSetupRowsTest, ALabelIsTheTextElseTheTooltipElseTheName)
{
    const vq_uint64 id = first.FindButton(VQ_TEXT("save"));
    first.SetTextsOnButton(id, 0, VQ_TEXT("tip"), VQ_TEXT("Text"), VQ_TEXT(""));
    EXPECT_EQ(Data(1, CVqQuickToolbarSetupRows::LabelRole), u"Text"_s);

    first.SetTextsOnButton(id, 0, VQ_TEXT("tip"), VQ_TEXT(""), VQ_TEXT(""));
    EXPECT_EQ(Data(1, CVqQuickToolbarSetupRows::LabelRole), u"tip"_s);

    first.SetTextsOnButton(id, 0, VQ_TEXT(""), VQ_TEXT(""), VQ_TEXT(""));
    EXPECT_EQ(Data(1, CVqQuickToolbarSetupRows::LabelRole), u"save"_s);
}

TEST_F(CVqQuickToolbarSetupRowsTest, ARowMovesWithItsControl)
{
    const QSignalSpy moves(&rows, &QAbstractItemModel::rowsMoved);
    const QSignalSpy removals(&rows, &QAbstractItemModel::rowsRemoved);

    setup->move(Named(first, "undo"), &first, Named(first, "open"));
    setup->move(Named(first, "undo"), &first, nullptr);

    EXPECT_EQ(moves.size(), 2);
    EXPECT_EQ(removals.size(), 0);
    EXPECT_EQ(rows.rowOf(Named(first, "undo")), 4);
}

TEST_F(CVqQuickToolbarSetupRowsTest, RowsComeAndGo)
{
    const QSignalSpy counts(&rows, &CVqQuickToolbarSetupRows::countChanged);

    setup->move(Named(second, "cut"), &first, Named(first, "save"));
    EXPECT_EQ(rows.rowOf(Named(first, "cut")), 1);
    setup->remove(Named(first, "open"));

    EXPECT_EQ(rows.Count(), 5);
    EXPECT_EQ(rows.rowOf(Named(first, "cut")), 0);
    EXPECT_EQ(counts.size(), 2);
}

TEST_F(CVqQuickToolbarSetupRowsTest, WhatTheApplicationAddsComesWithTheEventLoop)
{
    Add(first, "new", "");
    QCoreApplication::processEvents();

    EXPECT_EQ(rows.Count(), 6);
}

TEST_F(CVqQuickToolbarSetupRowsTest, AChangeOfAControlTellsItsRow)
{
    const QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);

    first.SetTooltipOnButton(first.FindButton(VQ_TEXT("save")), 0, VQ_TEXT("tip"));

    ASSERT_GE(changes.size(), 1);
    EXPECT_EQ(changes.front().front().toModelIndex().row(), 1);
}

TEST_F(CVqQuickToolbarSetupRowsTest, HidingAndLockingShow)
{
    setup->setShown(Named(first, "open"), false);
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("first"), VQ_TEXT("save"), true, true);

    EXPECT_EQ(Data(0, CVqQuickToolbarSetupRows::ShownRole), false);
    EXPECT_EQ(Data(0, CVqQuickToolbarSetupRows::LockedRole), false);
    EXPECT_EQ(Data(1, CVqQuickToolbarSetupRows::ShownRole), true);
    EXPECT_EQ(Data(1, CVqQuickToolbarSetupRows::LockedRole), true);
}

TEST_F(CVqQuickToolbarSetupRowsTest, ShowAnotherBarOrNone)
{
    rows.SetToolbar(&second);
    EXPECT_EQ(rows.Count(), 2);

    rows.SetToolbar(nullptr);
    EXPECT_EQ(rows.Count(), 0);
}

TEST_F(CVqQuickToolbarSetupRowsTest, WithoutASetupARowTellsWhatIsDrawn)
{
    rows.SetSetup(nullptr);
    Named(first, "open")->SetControlVisibility(false);

    EXPECT_EQ(Data(0, CVqQuickToolbarSetupRows::ShownRole), false);
    EXPECT_EQ(Data(0, CVqQuickToolbarSetupRows::LockedRole), false);
}

TEST_F(CVqQuickToolbarSetupRowsTest, TheEndOfTheBarLeavesNoRow)
{
    auto third = std::make_unique<CVqQuickButtonToolbar>(VQ_TEXT("third"));
    Add(*third, "one", "");
    rows.SetToolbar(third.get());

    third.reset();

    EXPECT_EQ(rows.Count(), 0);
}

TEST_F(CVqQuickToolbarSetupRowsTest, OutsideTheRangeThereIsNothing)
{
    EXPECT_EQ(rows.controlAt(-1), nullptr);
    EXPECT_EQ(rows.controlAt(5), nullptr);
    EXPECT_EQ(rows.rowOf(nullptr), -1);
    EXPECT_EQ(rows.rowOf(Named(second, "cut")), -1);
    EXPECT_FALSE(Data(0, Qt::UserRole).isValid());
    EXPECT_FALSE(Data(7, CVqQuickToolbarSetupRows::NameRole).isValid());
}
