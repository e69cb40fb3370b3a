#pragma once

#include "DelayedProgressWndBase.h"
#include "arbor_quick_backend_export.h"

#include <QString>
#include <QTimer>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

class CVqQuickProgressView;
class CVqTaskbarEntry;
class QQmlEngine;
class QQuickWindow;

/// A progress window that Qt Quick draws, for work on the GUI thread and for work on another one.
///
/// It appears once the delay is over, counted from its making or the last setDelay(): when a position or a
/// label is set, in CheckCanceled(), or by a timer while the event loop runs. Work that ends sooner shows
/// nothing. Its end is the end of this object, which must not come while one of its own operations runs.
///
///     CVqQuickProgressWnd progress(VQ_TEXT("Batch resize"), files.size(), 500);
///     for (const QString& file : files) {
///         if (progress.CheckCanceled())
///             break;
///         progress.SetLabel(CVqStringW::FromQString(file));
///         resize(file);
///         progress.IncrementPos();
///     }
///
/// CheckCanceled() lets Qt process what is waiting, 30 times a second at most. With "suppress other windows"
/// the window is modal to the application meanwhile: no other window gets keys, presses, drops or a close, so
/// the user starts no second command. Without it they all do, and what they run, runs inside CheckCanceled().
///
/// Cancel, Esc and the close button go through the static CancelProgress(), once: the button then says so and
/// takes no further press. A window that appears while another one shows stands before it and blocks it.
///
/// All operations are for the GUI thread but PostPos(), PostLabel() and IsCanceled().
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickProgressWnd : public QmlSupport::CVqDelayedProgressWndBase
{
    Q_OBJECT

public:
    /// The present time in milliseconds; only differences count.
    using Clock = std::function<double()>;

    /// As the base class; `delay` is in milliseconds. An empty `clock` is a monotonic one. The estimate
    /// counts from now. Flag 1 adds a second estimate to the label; the window has one of its own without it.
    CVqQuickProgressWnd(const vq_wchar* title, unsigned int range, unsigned int delay,
                        bool suppressOtherWnds = true, int flags = 0, Clock clock = {});

    /// Takes the window away, whatever it waits for.
    ~CVqQuickProgressWnd() override;

    /// The native window from when it appeared; null before.
    __vq_hwnd* GetHandle() override;

    /// Shows at once, without the counter.
    void setTitle(const vq_wchar* title) override;

    /// Begins a new run: bar and estimate start from nothing, also when the range is the same.
    void setRange(unsigned int range) override;

    /// Counts the delay from now. Nothing more for a window that has appeared.
    void setDelay(unsigned int delay) override;

    /// The engine that makes the window; null for one of its own. Not owned. Has to be set before it appears.
    void SetEngine(QQmlEngine* engine) { m_engine = engine; }

    /// What the window shows; always there.
    CVqQuickProgressView* View() const { return m_view; }

    /// Null until it appears.
    QQuickWindow* Window() const { return m_window.get(); }

    /// What Cancel, Esc and the close button do: CancelProgress() with the callbacks, once.
    void Cancel();

    // For the thread that works ------------------------------------------------------------------------

    /// SetPos() on the GUI thread, at most 30 times a second; of positions that come faster the last one
    /// counts. Never waits. The GUI thread has to run its event loop, and this object to outlive the calls.
    void PostPos(unsigned int position);

    /// SetLabel() in the same way.
    void PostLabel(const QString& label);

    /// Whether the user has cancelled. A CancelProgress() of the program's own is seen a moment later: with
    /// what is posted next, or once the window shows.
    bool IsCanceled() const { return m_canceled_for_thread; }

protected:
    double currentTimeMs() override;
    void positionChanged() override;

private:
    ARBOR_QUICK_BACKEND_NO_EXPORT void AppearIfDue();
    ARBOR_QUICK_BACKEND_NO_EXPORT void WaitForDelay();
    ARBOR_QUICK_BACKEND_NO_EXPORT void Appear();
    ARBOR_QUICK_BACKEND_NO_EXPORT void Follow();
    ARBOR_QUICK_BACKEND_NO_EXPORT void AskToTake();
    ARBOR_QUICK_BACKEND_NO_EXPORT void Take();

    const Clock m_clock;
    CVqQuickProgressView* m_view; // the base owns it
    QQmlEngine* m_engine = nullptr;
    std::unique_ptr<QQmlEngine> m_own_engine;
    std::unique_ptr<QQuickWindow> m_window; // dies before its engine
    std::unique_ptr<CVqTaskbarEntry> m_taskbar;
    double m_delay_begin;
    bool m_appeared = false;
    QTimer m_delay_timer;

    // Between the threads.
    QTimer m_take_timer;
    std::atomic<bool> m_canceled_for_thread = false;
    std::atomic<bool> m_asked = false;     // Take() is on its way
    std::atomic<quint64> m_posted_pos = 0; // with a mark above the 32 bits
    std::mutex m_posted_label_mutex;
    std::optional<QString> m_posted_label;
};
