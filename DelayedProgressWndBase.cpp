#include "DelayedProgressWndBase.h"

#include "system/VqNumber.h"
#include "system/VqTranslation.h"

#include <algorithm>

namespace QmlSupport {

namespace {

constexpr char g_context[] = "DelayedProgressWndBase";

constexpr int g_show_remaining = 1;
constexpr int g_show_counter = 2;
constexpr int g_show_percent = 4;
constexpr int g_label_set = 8;
constexpr int g_no_events = 16;
constexpr int g_percent_decimals = 32;

void append_percent(CVqStringW& label, unsigned int position, unsigned int range)
{
    label.AppendFormat(VQ_GetTranslation(VQ_TEXT("Progress: %d%%"), g_context),
                       range ? position * 100 / range : 0);
}

void append_percent_with_decimals(CVqStringW& label, unsigned int position, unsigned int range)
{
    label.AppendFormat(VQ_GetTranslation(VQ_TEXT("Progress: %3.2f%%"), g_context),
                       range ? position * 100.0 / range : 0.0);
}

/// `estimate` is in milliseconds and has lost what went beyond 32 bits; a division by two steps or more keeps
/// its sign bit clear. Only the largest unit shows.
void append_remaining(CVqStringW& label, unsigned int estimate)
{
    const int seconds = std::max(static_cast<int>(estimate) / 1000, 1);
    const int minutes = seconds / 60;
    const int hours = minutes / 60;
    if (hours > 0)
        label.AppendFormat(VQ_GetTranslation(VQ_TEXT("Time remaining: %d hour(s)"), g_context), hours);
    else if (minutes > 0)
        label.AppendFormat(VQ_GetTranslation(VQ_TEXT("Time remaining: %d minute(s)"), g_context), minutes);
    else if (seconds > 2)
        label.AppendFormat(VQ_GetTranslation(VQ_TEXT("Time remaining: %d seconds"), g_context), seconds);
    else
        label += VQ_GetTranslation(VQ_TEXT("Finalizing..."), g_context);
}

}

bool CVqDelayedProgressWndBase::m_bProgressVisible = false;

CVqDelayedProgressWndBase::CVqDelayedProgressWndBase(const vq_wchar* title, unsigned int range,
                                                     unsigned int delay, bool suppressOtherWnds, int flags)
    : m_uiRange(range), m_strTitle(title), m_uiDelay(delay), m_bSuppressOtherWnds(suppressOtherWnds)
{
    CVqDelayedProgressWndBase::setFlags(flags);
    m_bProgressVisible = true;
}

CVqDelayedProgressWndBase::~CVqDelayedProgressWndBase()
{
    delete m_pView;
    m_pView = nullptr;
    m_bProgressVisible = false;
}

__vq_hwnd* CVqDelayedProgressWndBase::GetHandle()
{
    return nullptr;
}

void CVqDelayedProgressWndBase::setTitle(const vq_wchar* title)
{
    m_strTitle = title;
}

void CVqDelayedProgressWndBase::setRange(unsigned int range)
{
    m_uiRange = range;
    ResetRemaining();
}

void CVqDelayedProgressWndBase::setDelay(unsigned int delay)
{
    m_uiDelay = delay;
    ResetRemaining();
}

void CVqDelayedProgressWndBase::setSuppressOtherWnds(bool suppress)
{
    m_bSuppressOtherWnds = suppress;
}

void CVqDelayedProgressWndBase::setFlags(int flags)
{
    m_bShowRemaining = flags & g_show_remaining;
    m_bShowCounter = flags & g_show_counter;
    m_bShowPercent = flags & g_show_percent;
    m_bPercentDecimals = flags & g_percent_decimals;
    m_bLabelSet = flags & g_label_set;
    m_bProcessEvents = !(flags & g_no_events);
}

int CVqDelayedProgressWndBase::getFlags()
{
    return (m_bShowRemaining ? g_show_remaining : 0) | (m_bShowCounter ? g_show_counter : 0)
        | (m_bShowPercent ? g_show_percent : 0) | (m_bPercentDecimals ? g_percent_decimals : 0)
        | (m_bLabelSet ? g_label_set : 0) | (m_bProcessEvents ? g_no_events : 0);
}

void CVqDelayedProgressWndBase::SetPos(unsigned int position)
{
    m_uiPos = position;
    positionChanged();
    if (m_bShowRemaining || m_bShowCounter || m_bShowPercent)
        UpdateLabel(m_uiPos);
    if (m_pView)
        m_pView->SetPos(m_uiPos);
}

void CVqDelayedProgressWndBase::SetPosRelative(unsigned int delta)
{
    SetPos(m_uiPos + delta);
}

void CVqDelayedProgressWndBase::IncrementPos()
{
    SetPos(m_uiPos + 1);
}

void CVqDelayedProgressWndBase::SetLabel(const CVqStringW& label)
{
    m_bLabelSet = true;
    positionChanged();
    if (m_pView)
        m_pView->SetLabel(label);
}

void CVqDelayedProgressWndBase::ResetRemaining()
{
    m_iStartTime = static_cast<int>(VqLowBits(currentTimeMs()));
}

bool CVqDelayedProgressWndBase::CheckCanceled()
{
    if (m_pView && m_bProcessEvents)
        m_pView->ProcessEvents();
    return m_bCanceled;
}

void CVqDelayedProgressWndBase::CancelProgress()
{
    m_bCanceled = true;
}

int CVqDelayedProgressWndBase::CancelProgress(void* window)
{
    auto* const self = static_cast<CVqDelayedProgressWndBase*>(window);
    self->CancelProgress();
    if (self->m_pCancelCallback)
        self->m_pCancelCallback(self->m_pCancelData);
    if (self->m_pAbortCallback)
        self->m_pAbortCallback(self->m_pAbortData);
    return 0;
}

void CVqDelayedProgressWndBase::SetCustomCancelCallback(void (*callback)(void*), void* data)
{
    m_pCancelCallback = callback;
    m_pCancelData = data;
}

void CVqDelayedProgressWndBase::SetCustomAbortCallback(void (*callback)(bool*), bool* data)
{
    m_pAbortCallback = callback;
    m_pAbortData = data;
}

bool CVqDelayedProgressWndBase::IsAnyProgressVisible()
{
    return true;
}

void CVqDelayedProgressWndBase::UpdateLabel(unsigned int pos)
{
    if (!m_pView)
        return;
    CVqStringW label;
    if (m_bShowPercent && m_bPercentDecimals)
        append_percent_with_decimals(label, m_uiPos, m_uiRange);
    else if (m_bShowPercent)
        append_percent(label, m_uiPos, m_uiRange);
    if (m_bShowRemaining && pos >= 2) {
        const unsigned int elapsed = VqLowBits(currentTimeMs()) - static_cast<unsigned int>(m_iStartTime);
        if (!label.IsEmpty())
            label += VQ_TEXT(" - ");
        append_remaining(label, elapsed * (m_uiRange - pos) / pos);
    }
    m_pView->SetLabel(label);
    if (m_bShowCounter) {
        CVqStringW title = m_strTitle;
        m_pView->SetTitle(
            title.AppendFormat(VQ_TEXT(" (%d/%d)"), static_cast<int>(pos), static_cast<int>(m_uiRange)));
    }
}

}
