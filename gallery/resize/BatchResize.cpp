#include "gallery/resize/BatchResize.h"

#include "gallery/resize/IResizeSteps.h"
#include "gallery/resize/ResizeWidth.h"
#include "quick_backend/CVqQuickProgressWnd.h"
#include "system/CVqStringW.h"

#include <QCoreApplication>

namespace Gallery {

namespace {

constexpr unsigned int g_delay = 500; // ms

// The window has an estimate of its own that long runs do not wrap, so the label needs none.
constexpr int g_counter_and_percent = 2 | 4;

/// Posts the steps to a window of the GUI thread. The label is the percentage.
class PostedSteps : public IResizeSteps
{
public:
    explicit PostedSteps(CVqQuickProgressWnd& window) : m_window(window) { }

    void SetPos(unsigned int position) override { m_window.PostPos(position); }
    void SetLabel(const QString&) override { }
    bool CheckCanceled() override { return m_window.IsCanceled(); }

private:
    CVqQuickProgressWnd& m_window;
};

}

BatchResize::BatchResize(QObject* parent) : QObject(parent) { }

BatchResize::~BatchResize()
{
    Cancel();
    if (m_thread)
        m_thread->wait();
}

void BatchResize::start(const QString& in, const QString& out, const QString& width)
{
    if (IsRunning())
        return;
    QString error;
    const std::optional<int> pixels = ParseResizeWidth(width, error);
    const auto plan = pixels ? PlanResize({in.trimmed(), out.trimmed(), *pixels}, error) : std::nullopt;
    if (!plan)
        tell(error, {}, true);
    else if (plan->items.isEmpty())
        tell(QCoreApplication::translate("Resize", "There are no images in %1.").arg(plan->job.in), {},
             false);
    else
        run(*plan);
}

void BatchResize::Cancel()
{
    if (m_progress)
        m_progress->Cancel();
}

void BatchResize::run(const ResizePlan& plan)
{
    const CVqStringW title
        = CVqStringW::FromQString(QCoreApplication::translate("Resize", "Resizing images"));
    m_progress = std::make_unique<CVqQuickProgressWnd>(title, unsigned(plan.items.size()), g_delay, true,
                                                       g_counter_and_percent);
    m_thread.reset(QThread::create([this, plan] {
        PostedSteps steps(*m_progress);
        m_report = RunResize(plan, steps);
    }));
    connect(m_thread.get(), &QThread::finished, this, &BatchResize::finish);
    tell({}, {}, false);
    m_thread->start();
}

void BatchResize::finish()
{
    m_thread->wait();
    m_thread.reset();
    m_progress.reset();
    tell(ResizeSummary(m_report), m_report, !m_report.failures.isEmpty());
}

void BatchResize::tell(const QString& outcome, const ResizeReport& report, bool failed)
{
    m_outcome = outcome;
    m_failed = failed;
    m_failed_names.clear();
    m_reasons.clear();
    for (const ResizeFailure& failure : report.failures) {
        m_failed_names << failure.name;
        m_reasons << failure.reason;
    }
    Q_EMIT Changed();
}

}
