#pragma once

#include "DelayedProgressWndBase.h"
#include "tests/support/RecordingProgressView.h"
#include "tests/support/SteppedClock.h"

/// A progress window whose clock a test steps and whose calls it reads. What derived classes see is open.
class RecordedProgressWnd : public QmlSupport::CVqDelayedProgressWndBase
{
public:
    using Base = QmlSupport::CVqDelayedProgressWndBase;
    using Lines = RecordingProgressView::Lines;

    using Base::Base;

    /// Title "Copy", a range of 10, a delay of 500 ms.
    explicit RecordedProgressWnd(int flags) : Base(VQ_TEXT("Copy"), 10, 500, true, flags) { }

    /// Gives the window a view that writes into Calls().
    void MakeView() { m_pView = new RecordingProgressView(m_calls); }

    /// From now on the next change makes the view, as a window does once its delay is over.
    void MakeViewOnChange() { m_make_view_on_change = true; }

    /// The lines of the view, and "positionChanged 3" with the position at that moment.
    std::shared_ptr<Lines> Calls() const { return m_calls; }

    /// What the last line of this beginning goes on with; empty if there is none.
    std::string Last(const std::string& beginning) const
    {
        for (auto line = m_calls->rbegin(); line != m_calls->rend(); ++line)
            if (line->starts_with(beginning))
                return line->substr(beginning.size());
        return {};
    }

    std::string Label() const { return Last("SetLabel "); }
    std::string Title() const { return Last("SetTitle "); }

    SteppedClock& Clock() { return m_clock; }

    using Base::m_bCanceled;
    using Base::m_bLabelSet;
    using Base::m_bPercentDecimals;
    using Base::m_bProcessEvents;
    using Base::m_bProgressVisible;
    using Base::m_bShowCounter;
    using Base::m_bShowPercent;
    using Base::m_bShowRemaining;
    using Base::m_bSuppressOtherWnds;
    using Base::m_iStartTime;
    using Base::m_pView;
    using Base::m_strTitle;
    using Base::m_uiDelay;
    using Base::m_uiPos;
    using Base::m_uiRange;
    using Base::UpdateLabel;

protected:
    double currentTimeMs() override { return m_clock.Now(); }

    void positionChanged() override
    {
        m_calls->push_back("positionChanged " + std::to_string(m_uiPos));
        if (m_make_view_on_change && !m_pView)
            MakeView();
    }

private:
    std::shared_ptr<Lines> m_calls = std::make_shared<Lines>();
    SteppedClock m_clock;
    bool m_make_view_on_change = false;
};
