#include "gallery/resize/ProgressBarView.h"

#include "system/CVqStringW.h"
#include "tests/support/SteppedClock.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

class ProgressBarView : public testing::Test
{
protected:
    QStringList m_written;
    int m_columns = 40;
    SteppedClock m_clock;
    std::unique_ptr<Gallery::ProgressBarView> m_view = std::make_unique<Gallery::ProgressBarView>(
        [this](const QString& text) { m_written << text; }, [this] { return m_columns; },
        [this] { return m_clock.Now(); }, 4);
};

}

TEST_F(ProgressBarView, EachChangeIsDrawnOverTheLine)
{
    m_view->SetPos(1);
    m_view->SetLabel(VQ_TEXT("harbour.png"));

    EXPECT_EQ(m_written,
              (QStringList{u"\r[==         ]  25%  1/4\x1b[K"_s,
                           u"\r[==         ]  25%  1/4  harbour.png\x1b[K"_s}));
}

TEST_F(ProgressBarView, TheSameLineIsNotDrawnAgain)
{
    m_view->SetPos(1);
    m_view->SetPos(1);
    m_view->ProcessEvents();

    EXPECT_EQ(m_written.size(), 1);
}

TEST_F(ProgressBarView, ProcessingEventsBringsTheEstimateUpToDate)
{
    m_view->SetPos(2);
    m_clock.Set(3000);
    m_view->ProcessEvents();

    ASSERT_EQ(m_written.size(), 2);
    EXPECT_TRUE(m_written.last().contains(u"about 3 s left"_s));
}

TEST_F(ProgressBarView, ANewWidthOfTheTerminalCounts)
{
    m_view->SetPos(1);
    m_columns = 12;
    m_view->SetPos(2);

    EXPECT_EQ(m_written.last(), u"\r 50%  2/4\x1b[K"_s);
}

TEST_F(ProgressBarView, ATitleIsNotDrawn)
{
    m_view->SetTitle(VQ_TEXT("Resize (1/4)"));

    EXPECT_TRUE(m_written.isEmpty());
}

TEST_F(ProgressBarView, AtItsEndTheLineIsClear)
{
    m_view->SetPos(4);
    m_view.reset();

    EXPECT_EQ(m_written.last(), u"\r\x1b[K"_s);
}

TEST_F(ProgressBarView, WhatNeverDrewClearsNothing)
{
    m_view.reset();

    EXPECT_TRUE(m_written.isEmpty());
}
