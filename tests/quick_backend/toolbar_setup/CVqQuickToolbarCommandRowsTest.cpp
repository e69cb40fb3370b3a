#include "quick_backend/toolbar_setup/CVqQuickToolbarCommandRows.h"

#include "tests/quick_backend/toolbar_setup/SetupBars.h"

#include <QAbstractItemModelTester>

using testing::ElementsAre;
using testing::IsEmpty;
using namespace Qt::StringLiterals;

namespace {

class CVqQuickToolbarCommandRowsTest : public SetupSession
{
protected:
    CVqQuickToolbarCommandRowsTest()
    {
        rows.SetSetup(setup.get());
        rows.SetToolbar(&first);
    }

    std::vector<std::string> Labels()
    {
        std::vector<std::string> labels;
        for (int row = 0; row < rows.Count(); ++row)
            labels.push_back(Data(row, CVqQuickToolbarCommandRows::LabelRole).toString().toStdString());
        return labels;
    }

    QVariant Data(int row, int role) { return rows.data(rows.index(row), role); }

    CVqQuickToolbarCommandRows rows;
    QAbstractItemModelTester tester{&rows, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

bool only_copy(unsigned id, __vq_hwnd*, CVqStringW&)
{
    return id == 13;
}

}

TEST_F(CVqQuickToolbarCommandRowsTest, OfferTheCommandsOfTheMenu)
{
    EXPECT_THAT(Labels(), ElementsAre("Open", "Save", "one", "Undo", "Cut", "Copy", "Paste & Go", "Divide"));
    EXPECT_EQ(Data(0, CVqQuickToolbarCommandRows::PathRole), u"File > Open"_s);
    EXPECT_EQ(Data(0, CVqQuickToolbarCommandRows::ImageIndexRole), 5);
    EXPECT_EQ(Data(0, CVqQuickToolbarCommandRows::KeyTextRole), u"Ctrl+O"_s);
    EXPECT_EQ(rows.commandAt(0), u"FileOpen"_s);
}

TEST_F(CVqQuickToolbarCommandRowsTest, AllWordsOfTheFilterHaveToOccur)
{
    rows.SetFilter(u"o"_s);
    EXPECT_THAT(Labels(), ElementsAre("Open", "one", "Undo", "Copy", "Paste & Go"));

    rows.SetFilter(u"  EDIT  o "_s);
    EXPECT_THAT(Labels(), ElementsAre("Undo", "Copy", "Paste & Go"));

    rows.SetFilter(u"ctrl"_s);
    EXPECT_THAT(Labels(), ElementsAre("Open"));

    rows.SetFilter(u"nothing like it"_s);
    EXPECT_THAT(Labels(), IsEmpty());
}

TEST_F(CVqQuickToolbarCommandRowsTest, FollowTheMenu)
{
    menu.AppendMenuItem(40, 10, VQ_TEXT("New"), VQ_TEXT("New"), 0);
    QCoreApplication::processEvents();
    EXPECT_THAT(Labels(), testing::Contains("New"));

    menu.SetIdMenuString(40, VQ_TEXT("Newer"));
    QCoreApplication::processEvents();
    EXPECT_THAT(Labels(), testing::Contains("Newer"));
}

TEST_F(CVqQuickToolbarCommandRowsTest, AMenuThatIsBuiltIsReadOnce)
{
    const QSignalSpy resets(&rows, &QAbstractItemModel::modelReset);

    for (vq_uint32 id = 40; id < 60; ++id)
        menu.AppendMenuItem(id, 10, VQ_TEXT("New"), VQ_TEXT("New"), 0);
    QCoreApplication::processEvents();

    EXPECT_EQ(resets.size(), 1);
}

TEST_F(CVqQuickToolbarCommandRowsTest, WhatASessionOffersIsAskedForWhenItBegins)
{
    CVqVariant factory;
    setup->cancel();

    first.ShowToolbarSetup(0, factory, 0, true, only_copy);

    EXPECT_THAT(Labels(), ElementsAre("Copy"));
}

TEST_F(CVqQuickToolbarCommandRowsTest, ABarWithoutAMenuHasNone)
{
    first.SetMenu(nullptr);
    rows.SetToolbar(nullptr);
    rows.SetToolbar(&first);

    EXPECT_EQ(rows.Count(), 0);
    EXPECT_EQ(rows.commandAt(0), QString());
    EXPECT_EQ(rows.commandAt(-1), QString());
}

TEST_F(CVqQuickToolbarCommandRowsTest, WithoutASetupAllCommandsShow)
{
    rows.SetSetup(nullptr);

    EXPECT_EQ(rows.Count(), 8);
}
