#include "gallery/resize/ProgressLinesView.h"

#include "system/CVqStringW.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ProgressLinesView : public testing::Test
{
protected:
    QStringList m_written;
    Gallery::ProgressLinesView m_view{[this](const QString& text) { m_written << text; }, 2};
};

}

TEST_F(ProgressLinesView, EachStepIsALineAsItBegins)
{
    m_view.SetLabel(VQ_TEXT("a.png"));
    m_view.SetPos(1);
    m_view.SetLabel(VQ_TEXT("b.png"));
    m_view.SetPos(2);

    EXPECT_EQ(m_written, (QStringList{u"1/2 a.png\n"_s, u"2/2 b.png\n"_s}));
}

TEST_F(ProgressLinesView, AStepIsOneLineWhateverItsName)
{
    m_view.SetLabel(VQ_TEXT("a\nb.png"));

    EXPECT_EQ(m_written, QStringList{u"1/2 a?b.png\n"_s});
}

TEST_F(ProgressLinesView, TitlesAndEventsWriteNothing)
{
    m_view.SetTitle(VQ_TEXT("Resize"));
    m_view.ProcessEvents();

    EXPECT_TRUE(m_written.isEmpty());
}
