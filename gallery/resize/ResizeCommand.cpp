#include "gallery/resize/ResizeCommand.h"

#include "gallery/resize/IResizeSteps.h"
#include "gallery/resize/ProgressBarView.h"
#include "gallery/resize/ProgressLinesView.h"
#include "gallery/resize/ResizeConsole.h"
#include "gallery/resize/ResizeRun.h"
#include "gallery/resize/TerminalProgress.h"
#include "gallery/resize/TerminalText.h"
#include "system/CVqStringW.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_some_failed = 1;
constexpr int g_bad_arguments = 2;
constexpr int g_signaled = 128;
constexpr unsigned int g_bar_delay = 250; // ms

/// Tells a progress of the steps, and cancels it on a signal.
class ConsoleSteps : public IResizeSteps
{
public:
    ConsoleSteps(TerminalProgress& progress, const ResizeConsole& console)
        : m_progress(progress), m_console(console)
    { }

    void SetPos(unsigned int position) override { m_progress.SetPos(position); }
    void SetLabel(const QString& label) override { m_progress.SetLabel(CVqStringW::FromQString(label)); }

    bool CheckCanceled() override
    {
        if (m_console.interrupted() != 0)
            m_progress.CancelProgress();
        return m_progress.CheckCanceled();
    }

private:
    TerminalProgress& m_progress;
    const ResizeConsole& m_console;
};

ResizeReport run(const ResizePlan& plan, const ResizeConsole& console)
{
    const auto range = static_cast<unsigned int>(plan.items.size());
    const bool has_bar = bool(console.columns);
    const auto make_view = [&]() -> IVqProgressView* {
        if (has_bar)
            return new ProgressBarView(console.out, console.columns, console.elapsed, range);
        return new ProgressLinesView(console.out, range);
    };
    TerminalProgress progress(range, has_bar ? g_bar_delay : 0, make_view, console.elapsed);
    ConsoleSteps steps(progress, console);
    return RunResize(plan, steps);
}

int exit_code(const ResizeReport& report, const ResizeConsole& console)
{
    if (report.canceled)
        return g_signaled + console.interrupted();
    return report.failures.isEmpty() ? 0 : g_some_failed;
}

}

int RunResizeCommand(const ResizeJob& job, const ResizeConsole& console)
{
    QString error;
    const std::optional<ResizePlan> plan = PlanResize(job, error);
    if (!plan) {
        console.err(error + u'\n');
        return g_bad_arguments;
    }
    if (plan->items.isEmpty()) {
        console.out(QCoreApplication::translate("Resize", "There are no images in %1.").arg(job.in) + u'\n');
        return 0;
    }
    const ResizeReport report = run(*plan, console);
    console.out(ResizeSummary(report) + u'\n');
    for (const ResizeFailure& failure : report.failures)
        console.err(u"%1: %2\n"_s.arg(PrintableText(failure.name), failure.reason));
    return exit_code(report, console);
}

}
