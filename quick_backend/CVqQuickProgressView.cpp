#include "quick_backend/CVqQuickProgressView.h"

#include "quick_backend/CVqProgressEstimate.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace {

// Half the rate of most screens: smooth for a bar, and most of the time is left to the work.
constexpr int g_frame = 33; // ms

// How soon the times move on while the work says nothing.
constexpr int g_idle = 500; // ms

constexpr double g_between_announcements = 5'000; // ms

}

CVqQuickProgressView::CVqQuickProgressView(Clock clock, unsigned int range)
    : m_range(range),
      m_clock(std::move(clock)),
      m_begin(m_clock()),
      m_next_events(m_begin),
      m_next_announcement(m_begin),
      m_estimate(std::make_unique<CVqProgressEstimate>())
{
    m_estimate->Start(m_begin);
    m_frame.setSingleShot(true);
    connect(&m_frame, &QTimer::timeout, this, &CVqQuickProgressView::Publish);
}

CVqQuickProgressView::~CVqQuickProgressView() = default;

void CVqQuickProgressView::SetPos(unsigned int position)
{
    m_position = position;
    Wake();
}

void CVqQuickProgressView::SetLabel(const CVqStringW& label)
{
    m_told_label = label;
    Wake();
}

void CVqQuickProgressView::SetTitle(const CVqStringW& title)
{
    m_told_title = title;
    Wake();
}

void CVqQuickProgressView::ProcessEvents()
{
    if (m_clock() < m_next_events)
        return;
    m_next_events = m_clock() + g_frame; // from within, too, not before the next frame
    Q_EMIT eventsAsked();
    if (m_started) {
        Publish();
        QCoreApplication::processEvents();
    }
    m_next_events = m_clock() + g_frame;
}

void CVqQuickProgressView::Start()
{
    m_started = true;
    Publish();
}

void CVqQuickProgressView::StartRun(unsigned int range)
{
    m_range = range;
    m_position = 0;
    m_fraction = 0;
    m_estimate->Start(m_clock());
    Q_EMIT fractionChanged();
    Wake();
}

void CVqQuickProgressView::SetCancelling(bool cancelling)
{
    if (cancelling == m_cancelling)
        return;
    m_cancelling = cancelling;
    Q_EMIT cancellingChanged();
}

void CVqQuickProgressView::cancel()
{
    if (!m_cancelling)
        Q_EMIT cancelRequested();
}

void CVqQuickProgressView::Wake()
{
    if (m_awake)
        return;
    m_awake = true;
    m_frame.start(g_frame);
}

void CVqQuickProgressView::Publish()
{
    const double now = m_clock();
    const double fraction = m_range ? std::min(double(m_position) / m_range, 1.0) : 0.0;
    if (fraction > m_fraction) {
        m_fraction = fraction;
        Q_EMIT fractionChanged();
    }
    PublishTexts(now);
    PublishTimes(now);
    m_awake = false;
    m_frame.start(g_idle);
    Q_EMIT published();
}

void CVqQuickProgressView::PublishTexts(double now)
{
    if (const QString title = m_told_title.ToQString(); title != m_title) {
        m_title = title;
        Q_EMIT titleChanged();
    }
    if (const QString label = m_told_label.ToQString(); label != m_label) {
        m_label = label;
        Q_EMIT labelChanged();
    }
    if (!m_label.isEmpty() && m_label != m_announcement && now >= m_next_announcement) {
        m_announcement = m_label;
        m_next_announcement = now + g_between_announcements;
        Q_EMIT announcementChanged();
    }
}

void CVqQuickProgressView::PublishTimes(double now)
{
    m_estimate->Add(now, m_position);
    const int elapsed = int((now - m_begin) / 1'000);
    const int left = m_estimate->SecondsLeft(m_range);
    if (elapsed == m_seconds_elapsed && left == m_seconds_left)
        return;
    m_seconds_elapsed = elapsed;
    m_seconds_left = left;
    Q_EMIT timesChanged();
}
