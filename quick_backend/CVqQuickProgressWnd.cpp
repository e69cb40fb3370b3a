#include "quick_backend/CVqQuickProgressWnd.h"

#include "quick_backend/CVqQuickProgressView.h"
#include "quick_backend/CVqTaskbarEntry.h"
#include "quick_backend/VqProgressWindow.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickWindow>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr int g_frame = 33; // ms
constexpr quint64 g_posted = quint64(1) << 32;

CVqQuickProgressWnd::Clock monotonic_clock()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return double(timer.nsecsElapsed()) / 1e6; };
}

}

CVqQuickProgressWnd::CVqQuickProgressWnd(const vq_wchar* title, unsigned int range, unsigned int delay,
                                         bool suppressOtherWnds, int flags, Clock clock)
    : CVqDelayedProgressWndBase(title, range, delay, suppressOtherWnds, flags),
      m_clock(clock ? std::move(clock) : monotonic_clock()),
      m_view(new CVqQuickProgressView(m_clock, range)),
      m_delay_begin(m_clock())
{
    m_pView = m_view;
    m_view->SetTitle(m_strTitle);
    connect(m_view, &CVqQuickProgressView::cancelRequested, this, &CVqQuickProgressWnd::Cancel);
    connect(m_view, &CVqQuickProgressView::eventsAsked, this, &CVqQuickProgressWnd::AppearIfDue);
    connect(m_view, &CVqQuickProgressView::published, this, &CVqQuickProgressWnd::Follow);

    m_delay_timer.setSingleShot(true);
    connect(&m_delay_timer, &QTimer::timeout, this, [this] {
        AppearIfDue();
        if (!m_appeared)
            WaitForDelay();
    });
    m_take_timer.setSingleShot(true);
    connect(&m_take_timer, &QTimer::timeout, this, &CVqQuickProgressWnd::Take);

    ResetRemaining();
    WaitForDelay();
}

CVqQuickProgressWnd::~CVqQuickProgressWnd()
{
    m_window.reset();
    delete m_pView;
    m_pView = nullptr;
}

__vq_hwnd* CVqQuickProgressWnd::GetHandle()
{
    if (!m_window)
        return nullptr;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): Qt gives the handle as a number.
    return reinterpret_cast<__vq_hwnd*>(m_window->winId());
}

void CVqQuickProgressWnd::setTitle(const vq_wchar* title)
{
    CVqDelayedProgressWndBase::setTitle(title);
    m_view->SetTitle(m_strTitle);
}

void CVqQuickProgressWnd::setRange(unsigned int range)
{
    CVqDelayedProgressWndBase::setRange(range);
    m_view->StartRun(range);
}

void CVqQuickProgressWnd::setDelay(unsigned int delay)
{
    CVqDelayedProgressWndBase::setDelay(delay);
    m_delay_begin = m_clock();
    if (!m_appeared)
        WaitForDelay();
}

void CVqQuickProgressWnd::Cancel()
{
    if (m_bCanceled)
        return;
    CVqDelayedProgressWndBase::CancelProgress(); // first, as whoever hears of it may ask or cancel again
    m_canceled_for_thread = true;
    m_view->SetCancelling(true);
    CVqDelayedProgressWndBase* const window = this;
    CVqDelayedProgressWndBase::CancelProgress(window);
}

double CVqQuickProgressWnd::currentTimeMs()
{
    return m_clock();
}

// Appearing ----------------------------------------------------------------------------------------------

void CVqQuickProgressWnd::positionChanged()
{
    if (!m_appeared)
        AppearIfDue();
}

void CVqQuickProgressWnd::AppearIfDue()
{
    if (!m_appeared && m_clock() - m_delay_begin >= m_uiDelay)
        Appear();
}

// The timer may be early, and the longest that it can wait is 24 days.
void CVqQuickProgressWnd::WaitForDelay()
{
    const double left = m_uiDelay - (m_clock() - m_delay_begin);
    m_delay_timer.start(int(std::clamp(left, 1.0, double(std::numeric_limits<int>::max()))));
}

void CVqQuickProgressWnd::Appear()
{
    m_appeared = true;
    m_delay_timer.stop();
    if (!m_engine) {
        m_own_engine = std::make_unique<QQmlEngine>();
        m_engine = m_own_engine.get();
    }
    m_view->Start();
    const bool outermost = !VqTopProgressWindow();
    m_window = VqShowProgressWindow(*m_engine, *m_view, m_bSuppressOtherWnds);
    if (outermost)
        m_taskbar = std::make_unique<CVqTaskbarEntry>(QGuiApplication::desktopFileName());
    Follow();
    Q_EMIT delayElapsed();
}

void CVqQuickProgressWnd::Follow()
{
    m_canceled_for_thread = m_bCanceled;
    m_view->SetCancelling(m_bCanceled);
    if (m_taskbar)
        m_taskbar->Show(m_view->Fraction());
}

// From another thread ------------------------------------------------------------------------------------

void CVqQuickProgressWnd::PostPos(unsigned int position)
{
    m_posted_pos = g_posted | position;
    AskToTake();
}

void CVqQuickProgressWnd::PostLabel(const QString& label)
{
    {
        const std::scoped_lock lock(m_posted_label_mutex);
        m_posted_label = label;
    }
    AskToTake();
}

// By way of a timer: a thread that posts without a pause would otherwise keep the GUI thread busy with its
// events.
void CVqQuickProgressWnd::AskToTake()
{
    if (!m_asked && !m_asked.exchange(true))
        QMetaObject::invokeMethod(this, [this] { m_take_timer.start(g_frame); }, Qt::QueuedConnection);
}

void CVqQuickProgressWnd::Take()
{
    m_asked = false; // before the values are read, so that none is left behind
    std::optional<QString> label;
    {
        const std::scoped_lock lock(m_posted_label_mutex);
        label.swap(m_posted_label);
    }
    if (label)
        SetLabel(CVqStringW::FromQString(*label));
    const quint64 position = m_posted_pos.exchange(0);
    if (position & g_posted)
        SetPos(static_cast<unsigned int>(position));
    m_canceled_for_thread = m_bCanceled;
}
