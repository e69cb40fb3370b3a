#include "gallery/resize/ProgressBarView.h"

#include "system/CVqStringW.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

const QString g_start_of_line = u"\r"_s;
const QString g_clear_rest = u"\x1b[K"_s;

}

ProgressBarView::ProgressBarView(std::function<void(const QString&)> write, std::function<int()> columns,
                                 std::function<double()> elapsed, unsigned int range)
    : m_write(std::move(write)), m_columns(std::move(columns)), m_elapsed(std::move(elapsed))
{
    m_state.range = range;
}

ProgressBarView::~ProgressBarView()
{
    if (!m_line.isEmpty())
        m_write(g_start_of_line + g_clear_rest);
}

void ProgressBarView::SetPos(unsigned int position)
{
    m_state.position = position;
    draw();
}

void ProgressBarView::SetLabel(const CVqStringW& label)
{
    m_state.label = label.ToQString();
    draw();
}

void ProgressBarView::draw()
{
    m_state.elapsed = m_elapsed();
    const QString line = ProgressLine(m_state, m_columns());
    if (line == m_line)
        return;
    m_line = line;
    m_write(g_start_of_line + line + g_clear_rest);
}

}
