#include "gallery/resize/TerminalProgress.h"

#include <utility>

namespace Gallery {

// No flags: the views have a count and an estimate of their own, and the label is for the step.
TerminalProgress::TerminalProgress(unsigned int range, unsigned int delay, MakeView make_view, Clock elapsed)
    : CVqDelayedProgressWndBase(VQ_TEXT(""), range, delay, false, 0),
      m_make_view(std::move(make_view)),
      m_elapsed(std::move(elapsed))
{ }

void TerminalProgress::positionChanged()
{
    if (m_pView || m_elapsed() < m_uiDelay)
        return;
    m_pView = m_make_view();
    m_pView->SetPos(m_uiPos);
    Q_EMIT delayElapsed();
}

}
