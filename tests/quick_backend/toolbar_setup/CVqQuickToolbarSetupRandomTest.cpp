#include "quick_backend/toolbar_setup/CVqQuickToolbarSetupRows.h"
#include "tests/quick_backend/toolbar_setup/SetupBars.h"

#include <QAbstractItemModelTester>

#include <random>

using namespace Qt::StringLiterals;

namespace {

/// Sessions of random operations, with the rows of both bars looking on.
class CVqQuickToolbarSetupRandom : public testing::TestWithParam<unsigned>, protected SetupBars
{
protected:
    CVqQuickToolbarSetupRandom()
    {
        first_rows.SetSetup(setup.get());
        first_rows.SetToolbar(&first);
        second_rows.SetSetup(setup.get());
        second_rows.SetToolbar(&second);
        for (const char* command : {"One", "Paste", "Undo"})
            Add(second, command, command);
        second.AppendSeparator(nullptr);
        setup->setShown(Named(second, "Paste"), false);
        Settle();
    }

    int Pick(int count) { return std::uniform_int_distribution(0, count - 1)(random); }
    CVqQuickButtonToolbar& Bar() { return Pick(2) ? first : second; }

    /// Any control of the bar, or null.
    CVqQuickControl* Any(CVqQuickButtonToolbar& bar) { return At(bar, unsigned(Pick(12))); }

    void Change()
    {
        CVqQuickButtonToolbar& bar = Bar();
        switch (Pick(9)) {
        case 0:
            setup->setShown(Any(bar), Pick(2));
            break;
        case 1:
        case 2:
        case 3:
            setup->move(Any(Bar()), &bar, Any(bar));
            break;
        case 4:
            setup->step(Any(bar), Pick(2) ? 1 : -1, Pick(2));
            break;
        case 5:
            setup->addCommand(Pick(2) ? u"Paste"_s : u"FileOpen"_s, &bar, Any(bar));
            break;
        case 6:
            setup->addSeparator(&bar, Any(bar));
            break;
        case 7:
            setup->remove(Any(bar));
            break;
        default:
            Pick(20) == 0 ? setup->reset() : Settle();
        }
    }

    void ExpectRowsFollow(const CVqQuickToolbarSetupRows& rows, CVqQuickButtonToolbar& bar)
    {
        int row = 0;
        for (; CVqQuickControl* control = At(bar, unsigned(row)); ++row)
            ASSERT_EQ(rows.controlAt(row), control);
        ASSERT_EQ(rows.Count(), row);
    }

    std::mt19937 random{GetParam()};
    CVqQuickToolbarSetupRows first_rows;
    CVqQuickToolbarSetupRows second_rows;
    QAbstractItemModelTester first_tester{&first_rows, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QAbstractItemModelTester second_tester{&second_rows,
                                           QAbstractItemModelTester::FailureReportingMode::Fatal};
};

INSTANTIATE_TEST_SUITE_P(Seeds, CVqQuickToolbarSetupRandom, testing::Range(1u, 9u));

}

TEST_P(CVqQuickToolbarSetupRandom, CancelUndoesFiveHundredChanges)
{
    const std::string before = Everything();
    setup->begin();
    for (int change = 0; change < 500; ++change)
        Change();

    setup->cancel();
    Settle();

    EXPECT_EQ(Everything(), before);
    EXPECT_EQ(zoom_item->parentItem(), Named(first, "zoom")->Item());
}

TEST_P(CVqQuickToolbarSetupRandom, AcceptKeepsWhatFiveHundredChangesMade)
{
    setup->begin();
    for (int change = 0; change < 500; ++change)
        Change();
    Settle();
    const std::string order = Order(first) + '|' + Order(second);

    setup->accept();
    Settle();

    EXPECT_EQ(Order(first) + '|' + Order(second), order);
}

TEST_P(CVqQuickToolbarSetupRandom, TheRowsFollowEachChange)
{
    setup->begin();
    for (int change = 0; change < 500; ++change) {
        Change();
        ExpectRowsFollow(first_rows, first);
        ExpectRowsFollow(second_rows, second);
    }
}
